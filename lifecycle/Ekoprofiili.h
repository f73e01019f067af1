// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "lifecycle/Vaikutuspuu.h"
#include "ui/frmEkoprofiili.h"

class clsElinkaari;

/// Impact of the building's life by module, for a gross square metre and year: materials (A1–A3) divided over the
/// period, and a year's bought energy (B6). MJ and kg; nothing where it isn't known.
struct Profiiliarvot {
  Vaikutusarvot materiaalit{};
  Vaikutusarvot energia{};
};
/// All are missing without a period or a gross area.
Profiiliarvot LaskeProfiili(const Vaikutuspuu& puu, double bruttoala);

/// The dialog of the eco-profile while it is open. What the building is compared with follows the typing.
class Ekoprofiili {
 public:
  /// Errors: those of the tree and of the structure library.
  explicit Ekoprofiili(clsRakennus& rakennus);

  /// Shows the dialog, modal. True after OK.
  bool Nayta();

 private:
  void LueDataluokka();
  void NaytaProfiili();
  void NaytaVertailu();
  void VertailuMuuttui();

  clsElinkaari& elinkaari_;
  std::string kohde_;
  Profiiliarvot arvot_;
  bool laskettavissa_;
  frmEkoprofiili lomake_;
};
