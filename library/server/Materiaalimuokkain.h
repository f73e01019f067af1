// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/server/Elotallennus.h"
#include "library/server/frmKirjastomateriaali.h"

/// Editing of one own material; each edit is stored as it is made.
class Materiaalimuokkain {
 public:
  Materiaalimuokkain(const Kirjastot& kirjastot, Kirjastomateriaali materiaali);

  void Nayta() { KayttoLiittyma.Nayta(); }
  bool Auki() const { return KayttoLiittyma.Auki(); }
  bool Yrita() { return tallennus_.Yrita(); }
  bool VoiSulkea() { return !Auki() || tallennus_.VoiSulkea(); }

 private:
  void LueDataluokka();
  void KirjoitaDataluokka();
  void KayttoLiittyma_MateriaaliMuuttui();

  Kirjastomateriaali materiaali_;
  frmKirjastomateriaali KayttoLiittyma;
  Elotallennus tallennus_;
};
