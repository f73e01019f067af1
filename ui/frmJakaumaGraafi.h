// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// A pie chart in a window of its own.
class frmJakaumaGraafi : public Lomake {
 public:
  frmJakaumaGraafi();

  /// Shows the values, in that unit, as a pie and waits. Each name in the legend gets its value's share of the total.
  /// Values of 0 are left out; when all are, each is shown with "0 %".
  void NaytaJakauma(std::string otsikko, std::vector<std::string> nimet, std::vector<double> arvot,
                    std::string yksikko);

  MSChart chtReport{*this, "chtReport"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdTallennaKuva{*this, "cmdTallennaKuva"};
  CommandButton cmdSulje{*this, "cmdSulje"};
};
