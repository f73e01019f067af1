// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "kernel/Rekisteri.h"

/// Adds a copy of an item right behind it, under a key and with identities of its own.
template <class T>
T& LisaaKopio(Sailio<T>& kokoelma, const T& lahde) {
  const Tunniste avain = Tunniste::Uusi(T::kLuokka.NimiSana());
  T& kopio = kokoelma.LisaaJalkeen(lahde.sKey, avain);
  kopio = lahde;
  kopio.sKey = avain;
  UusiTunnisteet(kopio);
  return kopio;
}
