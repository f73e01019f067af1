// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the fans.
#include "kernel/Virhe.h"
#include "ventilation/Puhallinmuokkaus.h"

bool clsPuhaltimenSahkonKulutus::NaytaKayttoliittyma() try { return Puhallinmuokkaus(*this).Nayta(); } catch (...) {
  NostaVirhe("clsPuhaltimenSahkonKulutus:NaytaKayttoliittyma Method");
}
