// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <span>
#include <string>

#include "kernel/Projektitiedosto.h"

class clsRakennus;

/// What has to be done to an object that an older program has saved, beyond new attributes getting their defaults: an
/// attribute that has changed its meaning or its place. One row for each change, in the order of the versions.
struct Tiedostomuunnos {
  int Major, Minor;  ///< the first version whose files are as the program wants them
  /// Changes the object that was read from `tiedosto`; what no attribute holds any more is still in the file.
  void (*muunna)(clsRakennus& rakennus, const std::string& tiedosto);
};

/// The changes of the present program.
std::span<const Tiedostomuunnos> Tiedostomuunnokset();

/// Runs those that a file of this version lacks. True when there were any: the object differs from its file then.
bool MuunnaNykyiseksi(clsRakennus& rakennus, const std::string& tiedosto, const Tiedostoversio& versio,
                      std::span<const Tiedostomuunnos> muunnokset = Tiedostomuunnokset());
