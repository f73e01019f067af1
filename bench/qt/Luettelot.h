// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QTreeWidget>

#include "ui/frmTilaYhteenveto.h"

namespace mittaus {

/// A list of the program and a bare one of the toolkit with the same rows of nine cells, both shown. Each fills itself
/// anew, or changes one row, and paints.
class Luetteloparit {
 public:
  static constexpr int kRiveja = 1000;

  Luetteloparit();

  double TaytaOma();
  double TaytaPaljas();
  double MuutaOmanRivi();
  double MuutaPaljaanRivi();
  /// Throws when the two don't show the same.
  void Tarkista();

 private:
  std::vector<std::string> Solut(int rivi) const;
  Luettelosisalto Sisalto();

  frmTilaYhteenveto lomake_;
  QTreeView& oma_;
  QTreeWidget paljas_;
  int kierros_ = 0;  // another text at each round
};

}  // namespace mittaus
