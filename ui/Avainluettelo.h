// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "kernel/Tunniste.h"
#include "ui/Ohjaimet.h"

/// The keys of the items that the rows of a list stand for. The list itself is given to each call, since its form comes
/// and goes.
class Avainluettelo {
 public:
  /// Fills the list: a row for each key, and behind them the sums. The item chosen before stays chosen; the first one
  /// is chosen when it is no more.
  void Tayta(const ListView& lista, std::vector<Tunniste> avaimet, Taulukko rivit);
  /// Chooses the item, or the first one when there is no such key.
  void Valitse(const ListView& lista, const Tunniste& avain) const;
  /// Key of the chosen item, empty when there is none.
  Tunniste Valittu(const ListView& lista) const;

 private:
  std::vector<Tunniste> avaimet_;
};
