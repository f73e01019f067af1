// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/server/Elotallennus.h"
#include "library/server/frmKirjastorakenne.h"

/// Editing of one own structure with its layers; each edit is stored as it is made, and the U-value and the
/// temperatures follow it.
class Rakennemuokkain {
 public:
  Rakennemuokkain(const Kirjastot& kirjastot, Kirjastorakenne rakenne);

  void Nayta() { KayttoLiittyma.Nayta(); }
  bool Auki() const { return KayttoLiittyma.Auki(); }
  bool Yrita() { return tallennus_.Yrita(); }
  bool VoiSulkea() { return !Auki() || tallennus_.VoiSulkea(); }

 private:
  void Kuuntele();
  void LueDataluokka();
  void LueKerros();
  void LueLaskettavat();
  void KirjoitaDataluokka();
  void KirjoitaVuodet();
  void KirjoitaKerros(clsRakennekerros& kerros);
  void KayttoLiittyma_RakenneMuuttui();
  void KayttoLiittyma_KerrosMuuttui();
  void KayttoLiittyma_RakKerLisaa();
  void KayttoLiittyma_RakKerKopioi();
  void KayttoLiittyma_RakKerPoista();
  void KayttoLiittyma_RakKerSiirraSisaanPain(int paikka, int uusiPaikka);
  void Tallenna();
  void KirjastoMuuttui();
  void NaytaTulokset();
  void NaytaKerrokset(int valittu);
  void TaytaMateriaalit();
  void ValitseMateriaali(const ComboBox& valinta, const Materiaali& aine);
  /// Position of the chosen layer from 1; 0 when none is chosen.
  int Paikka() const { return KayttoLiittyma.lvwKerrokset.Indeksi() + 1; }
  colMateriaalit& Kerrokset() { return rakenne_.Ratkaisu.Kerrokset; }

  const Kirjastot& kirjastot_;
  Kirjastorakenne rakenne_;
  std::vector<Materiaali> materiaalit_;  // rows of the choice lists behind the empty one
  frmKirjastorakenne KayttoLiittyma;
  Elotallennus tallennus_;
  bool tallentaa_ = false;
  Muutoskuuntelija kuuntelija_{[this] { KirjastoMuuttui(); }};
};
