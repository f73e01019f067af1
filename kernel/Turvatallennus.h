// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <string>

/// Replaces the file `tiedosto` by one that starts as a copy of `malli` and that `rakenna` then fills and flushes under
/// another name. The procedure and what an interruption leaves are told in the source. `sailytaEnnen` keeps the
/// replaced file as "<tiedosto>.ennen". Raises Projektivirhe; what `rakenna` raises passes through.
void KorvaaTurvallisesti(const std::string& tiedosto, const std::string& malli, bool sailytaEnnen,
                         const std::function<void(const std::string& uusi)>& rakenna);
