// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamaksut.h"

#include "kernel/Luvut.h"

namespace {

constexpr double kProsentti = 100;

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsEnergiamaksut::kLuokka{"clsEnergiamaksut", kJasenet};

double clsEnergiamaksut::Keskihinta() const {
  double summa = 0;
  for (const clsEnergiamaksu& maksu : *this) summa += maksu.Hinta * maksu.Kulutusosuus / kProsentti;
  return summa;
}

double clsEnergiamaksut::OsuuksienSumma() const {
  double summa = 0;
  for (const clsEnergiamaksu& maksu : *this) summa += maksu.Kulutusosuus;
  return summa;
}

bool clsEnergiamaksut::OnTaysi(double osuuksienSumma) {
  constexpr double kAlle = 99.7, kYli = 100.3;
  const double pyoristetty = PyoristaParilliseen(osuuksienSumma, 1);
  return kAlle < pyoristetty && pyoristetty < kYli;
}
