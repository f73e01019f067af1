// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tasehaarukka.h"

#include "building/clsRakennus.h"

Tasehaarukka::Tasehaarukka(clsRakennus& rakennus)
    : rakennus_(rakennus.Tilat.VuotuinenLampoEnergianTarveUpToDate() ? nullptr : &rakennus) {
  if (!rakennus_) return;
  AsetaLiput(false);
  try {
    rakennus.IVKoneet.VuotuinenIVjalkilammitysLampo();
    rakennus.Tilat.VuotuinenLampoEnergianTarve();
  } catch (...) {
    AsetaLiput(false);
    throw;
  }
  AsetaLiput(true);
}

Tasehaarukka::~Tasehaarukka() {
  if (rakennus_) AsetaLiput(false);
}

void Tasehaarukka::AsetaLiput(bool voimassa) {
  rakennus_->IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate = voimassa;
  rakennus_->Tilat.VuotuinenLampoEnergianTarveUpToDate(voimassa);
}
