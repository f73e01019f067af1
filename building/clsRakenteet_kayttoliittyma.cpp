// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the structures.
#include "building/Rakennemuokkaus.h"
#include "building/clsRakenteet.h"
#include "kernel/Virhe.h"
#include "ui/frmRakenteet.h"

bool clsRakenteet::NaytaKayttoliityma(const std::string& tilanNimi, double Tsisa) try {
  return Rakennemuokkaus(*this, Tsisa).Nayta(frmRakenteet::kKaikki, tilanNimi);
} catch (...) {
  NostaVirhe("clsRakenteet:NaytaKayttoliityma Method");
}

bool clsRakenteet::NaytaRakenteetKayttoliittyma(std::int32_t rakennetyyppi, const std::string& tilanNimi,
                                                double Tsisa) try {
  return Rakennemuokkaus(*this, Tsisa).Nayta(rakennetyyppi, tilanNimi);
} catch (...) {
  NostaVirhe("clsRakenteet:NaytaRakenteetKayttoliittyma Method");
}
