// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tasehaarukka.h"

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "ventilation/clsIVKoneet.h"

Tasehaarukka::Tasehaarukka(clsRakennus& rakennus)
    : rakennus_(rakennus.Tilat.VuotuinenLampoEnergianTarveUpToDate() ? nullptr : &rakennus) {
  if (!rakennus_) return;
  Mitatoi(*rakennus_);
  try {
    rakennus.IVKoneet.VuotuinenIVjalkilammitysLampo();
    rakennus.Tilat.VuotuinenLampoEnergianTarve();
  } catch (...) {
    Mitatoi(*rakennus_);
    throw;
  }
  AsetaLiput(*rakennus_, true);
}

Tasehaarukka::~Tasehaarukka() {
  if (rakennus_) Mitatoi(*rakennus_);
}

void Tasehaarukka::AsetaLiput(clsRakennus& rakennus, bool voimassa) noexcept {
  rakennus.IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate = voimassa;
  rakennus.Tilat.VuotuinenLampoEnergianTarveUpToDate(voimassa);
}
