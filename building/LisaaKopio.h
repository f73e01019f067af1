// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"

/// Adds a copy of an item right behind it, under a key of its own. The copy bears the source's identities until the
/// register is rebuilt at the next look-up (clsRakennus::HaeInstanssi), which gives new ones to the second of two.
template <class T>
T& LisaaKopio(Sailio<T>& kokoelma, const T& lahde) {
  const Tunniste avain = Tunniste::Uusi(T::kLuokka.NimiSana());
  T& kopio = kokoelma.LisaaJalkeen(lahde.sKey, avain);
  kopio = lahde;
  kopio.sKey = avain;
  return kopio;
}
