// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "lifecycle/Vaikutuspuu.h"
#include "ui/frmElinkaarenYmparistoVaikutukset.h"

/// The dialog of environmental impact while it is open: shows the building's figures and changes nothing.
class Vaikutusikkuna {
 public:
  /// Errors: those of the tree and of the structure library.
  explicit Vaikutusikkuna(clsRakennus& rakennus);

  void Nayta();

 private:
  void NaytaPuu();
  void NaytaSolmu();
  void NaytaLaji(std::size_t laji, const Vaikutuspuu::Solmu& solmu, double yksikoita);
  void NaytaTiedot(const Vaikutuspuu::Solmu& solmu);
  void NaytaRaakaaineet(const Vaikutuspuu::Solmu& solmu, double yksikoita);
  bool Esimerkki() const;

  clsRakennus& rakennus_;
  Vaikutuspuu puu_;
  frmElinkaarenYmparistoVaikutukset lomake_;
};
