// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "building/clsRakenteet.h"
#include "ui/Rakennekirjastolinkki.h"
#include "ui/frmRakenteet.h"

/// The dialog of a space's structures while it is open. The structures are edited live: what is written of the chosen
/// one reaches it when another is chosen, or at OK; choices and layers at once. Cancel copies back what was.
class Rakennemuokkaus {
 public:
  /// `Tsisa`: the space's temperature in the pictures, °C.
  Rakennemuokkaus(clsRakenteet& rakenteet, double Tsisa);

  /// Shows the dialog with structures of one kind, or frmRakenteet::kKaikki. True after OK.
  bool Nayta(std::int32_t rakennetyyppi, const std::string& tilanNimi);

 private:
  void LiitaTapahtumat();
  void LiitaKerrostapahtumat();

  /// The chosen structure to the fields, and back.
  void LueDataluokka();
  void KirjoitaDataluokka();
  void TyhjennaKentat();
  void LueRatkaisu(const Rakenneratkaisu& ratkaisu);

  bool KaikkiNaytetaan() const;
  bool Naytetaan(const clsRakenne& rakenne) const;
  void NaytaLuettelo(const Tunniste& valittava);
  void PaivitaRivit();
  bool OtaKentat();
  void NaytaValittu();
  void NaytaUarvo();
  void NaytaKerrokset(int valittava);
  void NaytaHaku(const std::string& teksti);
  void PaivitaKentat();
  /// Asks of structures added here without a U-value. False when the person goes back to give it.
  bool UarvotOnAnnettu(const std::unordered_set<Tunniste>& entiset);
  /// Rows of the kinds shown, and that of the structure of the key.
  Luettelosisalto Rivit(const Tunniste& valittava) const;

  clsRakenne* Muokattava() const { return rakenteet_.Etsi(muokattava_); }
  /// The solution of the chosen structure; made if it has none.
  Rakenneratkaisu& Ratkaisu();
  /// A copy of it, or a new one for a structure that has none.
  Rakenneratkaisu RatkaisuTaiUusi() const;
  clsRakenne& LisaaRakenne(std::int32_t rakennetyyppi, const std::string& nimi);
  /// Structures have come: fills the list. The key of the last one.
  Tunniste Lisattiin(const Tunniste& viimeinen);
  void KerroksetMuuttuivat(int valittava);
  /// Opens the dialog of the layer at that place, from 0; at the end of the layers of a new one.
  void AvaaKerros(int rivi);

  Luettelotoimet Luettelonhoito();
  Tunniste Lisaa();
  Tunniste Kopioi(const clsRakenne& lahde);
  void Poista(const Tunniste& avain);
  Tunniste Liita(const Taulukko& rivit);

  void KayttoLiittyma_NaytettavatValittu();
  void KayttoLiittyma_HaeKirjastosta();
  void RakKirjasto_RakenneValittu(const Rakenneratkaisu& ratkaisu);
  /// Ends the pick that is going on, if any, and closes the library.
  void RakKirjasto_KantaDlgSuljettu();
  void KayttoLiittyma_UarvonLahdeKlikattu();
  void KayttoLiittyma_RajoittuminenValittu();
  void KayttoLiittyma_PintavastusMuuttui();
  void KayttoLiittyma_VarjostusValittu(frmRakenteet::Varjostus varjostus);
  void KayttoLiittyma_RakKerLisaa();
  void KayttoLiittyma_RakKerMuokkaa();
  void KayttoLiittyma_RakKerKopioi();
  void KayttoLiittyma_RakKerPoista();
  void KayttoLiittyma_RakKerSiirraSisaanPain();

  clsRakenteet& rakenteet_;
  frmRakenteet KayttoLiittyma;
  Tunniste muokattava_;  // key of the chosen one
  Tunniste haettava_;    // key of the one for which the library is open
  std::unique_ptr<Rakennekirjastopyynto> haku_;
  std::uint64_t luettu_ = 0;  // fingerprint of the chosen one when its row was made
  double Tsisa_;              // °C
};
