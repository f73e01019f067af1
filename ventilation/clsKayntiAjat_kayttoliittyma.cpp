// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the running times.
#include "kernel/Virhe.h"
#include "ventilation/Kayntiaikamuokkaus.h"

bool clsKayntiAjat::NaytaKayttoliittyma() try { return Kayntiaikamuokkaus(*this).Nayta(); } catch (...) {
  NostaVirhe("clsKayntiAjat:NaytaKayttoliittyma Method");
}
