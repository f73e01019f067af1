// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <string>

#include "kernel/Tiedostotunnus.h"
#include "kernel/UusiTiedosto.h"

struct Korvaustapa {
  bool sailytaEnnen = false;                 ///< keep the replaced file as "<tiedosto>.ennen"
  const Tiedostotunnus* odotettu = nullptr;  ///< the file that may be replaced; null for any
};

/// Replaces the file `tiedosto` by one that `rakenna` makes and flushes under another name. The procedure and what an
/// interruption leaves are told in the source. False when the disk didn't confirm the renaming: the backup stays then.
/// Raises Projektivirhe; what `rakenna` raises passes through.
bool KorvaaTurvallisesti(const std::string& tiedosto, const Korvaustapa& tapa,
                         const std::function<void(UusiTiedosto& uusi)>& rakenna);
