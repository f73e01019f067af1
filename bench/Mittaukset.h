// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "bench/Parit.h"
#include "bench/vertailu/Mallirakennus.h"

namespace mittaus {

/// What is measured on a building, whatever its size: ours, the yardstick, and the check that both did the work. The
/// building must outlive it.
struct Vertailupari {
  Ajo meidan, vertailu;
  std::function<void()> tarkista;
};

Vertailupari Tallennuspari(clsRakennus& rakennus);
Vertailupari Avauspari(clsRakennus& rakennus);
Vertailupari Kopiointipari(clsRakennus& rakennus);
/// A step of undo after a commit, which has made the register stale.
Vertailupari Kumouspari(clsRakennus& rakennus);
Vertailupari Laskentapari(clsRakennus& rakennus);
/// Rebuilding and summing a tree of so many electricity groups under ten titles.
Vertailupari Kulutuspuupari(int ryhmia);
/// The after-heating of the machines.
Vertailupari Ilmanvaihtopari(clsRakennus& rakennus);
/// The batch program over 200 files of the building, with all cores against one.
Vertailupari Massapari(clsRakennus& rakennus);

/// Access to attributes by name: declares its benchmarks.
void IlmoitaJasenmittaukset();
/// Saving measures.
void IlmoitaToimenpidemittaukset();

}  // namespace mittaus
