// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

#include "building/Muutosilmoitus.h"
#include "lifecycle/Toimenpideinvestointi.h"
#include "ui/Luettelo.h"
#include "ui/frmToimenpiteidenJarjestelija.h"

enum Tekstinumero : int;
class clsRakennus;
class clsSaastotoimenpide;
class clsToimenpiteidenJarjestelija;
class clsValittuToimenpide;

/// The arranger under the person's hands: each tick, move and removal is committed at once, follows what others commit,
/// and computes the rows unless the person has put that off. The building outlives it.
class Jarjestelijamuokkaus {
 public:
  explicit Jarjestelijamuokkaus(clsRakennus& rakennus);
  Jarjestelijamuokkaus(const Jarjestelijamuokkaus&) = delete;
  Jarjestelijamuokkaus& operator=(const Jarjestelijamuokkaus&) = delete;

  /// Computes all rows, and opens the window or brings it to front.
  void Avaa();

 private:
  void Kuuntele();
  void KirjoitaDataluokka();
  const Tunniste& Haara() const;
  void Laske();
  void LaskeBruttosaastot();
  bool Yrita(const std::function<void()>& laske);
  void Muuta(Tekstinumero nimi, const std::function<Tunniste()>& muutos);
  void MuutosTuli();
  void VieTaulukko2een();

  void Nayta();
  void NaytaOtsikot();
  void NaytaSarakkeet();
  void NaytaKuva();
  void PaivitaNapit();
  Luettelosisalto Toimenpiteet();
  Luettelorivi Bruttorivi(clsSaastotoimenpide& toimenpide) const;
  Elinkaariluvut Elinkaari(const std::function<std::optional<Investointi>()>& investointi) const;
  Luettelosisalto Valitut();
  Luettelorivi Nettorivi(const clsValittuToimenpide& rivi);
  std::string Yhteenveto() const;

  clsRakennus& rakennus_;
  clsToimenpiteidenJarjestelija& jarjestelija_;
  frmToimenpiteidenJarjestelija lomake_;
  bool laskettu_ = false;  // what each measure saves alone
  bool omaMuutos_ = false;
  Muutostilaus tilaus_;
};
