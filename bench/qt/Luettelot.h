// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QTreeWidget>

#include "ui/frmTilaYhteenveto.h"

namespace mittaus {

/// A list of the program and a bare one of the toolkit with the same rows of nine cells, both shown. Each fills itself
/// anew, or changes one row, and paints. With titles it is a tree: the rows hang under them, and all are open.
class Luetteloparit {
 public:
  static constexpr int kRiveja = 1000;

  explicit Luetteloparit(int nimikkeita = 0);

  double TaytaOma();
  double TaytaPaljas();
  double MuutaOmanRivi();
  double MuutaPaljaanRivi();
  /// Throws when the two don't show the same.
  void Tarkista();

 private:
  std::vector<std::string> Solut(int rivi) const;
  Luettelosisalto Sisalto();
  QVariant Solu(const QAbstractItemModel& malli, int rivi, int sarake) const;

  frmTilaYhteenveto lomake_;
  QTreeView& oma_;
  QTreeWidget paljas_;
  int nimikkeita_;
  int kierros_ = 0;  // another text at each round
};

}  // namespace mittaus
