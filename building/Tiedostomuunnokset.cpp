// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tiedostomuunnokset.h"

#include <utility>

/// So far every change of the template has been an addition, for which a default is enough.
std::span<const Tiedostomuunnos> Tiedostomuunnokset() { return {}; }

bool MuunnaNykyiseksi(clsRakennus& rakennus, const std::string& tiedosto, const Tiedostoversio& versio,
                      std::span<const Tiedostomuunnos> muunnokset) {
  bool muuttui = false;
  for (const Tiedostomuunnos& muunnos : muunnokset) {
    if (std::pair(versio.Major, versio.Minor) >= std::pair(muunnos.Major, muunnos.Minor)) continue;
    muunnos.muunna(rakennus, tiedosto);
    muuttui = true;
  }
  return muuttui;
}
