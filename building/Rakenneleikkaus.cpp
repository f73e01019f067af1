// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Rakenneleikkaus.h"

#include <utility>

#include "building/Yhteiset.h"
#include "building/clsRakenne.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "library/Lampotilajakauma.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "tekstit/lomakkeet_tilat.h"
#include "ui/Lampotilakuvaus.h"
#include "ui/Tekstivarasto.h"

namespace {

/// A partition, or a wall, roof or floor towards a space at room temperature.
bool OnHuoneidenValissa(const clsRakenne& rakenne) {
  if (rakenne.Rakennetyyppi <= Rakennelaji::Alapohja) return rakenne.TyyppiID == kHuonelampoinenTila;
  return rakenne.Rakennetyyppi >= Rakennelaji::KantavaValiseina;
}

std::string Lampotila(int teksti, double asteet) {
  return Teksti(teksti) + " " + Muotoile(asteet, "0.#") + " " + Teksti(tekstit::kCelsiusaste);
}

}  // namespace

Kaaviotiedot Rakenneleikkaus(const clsRakenne& rakenne, double Tsisa) {
  const bool huoneidenValissa = OnHuoneidenValissa(rakenne);
  const double Tulko = huoneidenValissa ? Tsisa : VaadiSaa().LammMitoitusUlkolampotila;
  const std::string takana =
      huoneidenValissa ? Teksti(tekstit::kSamaLampotilaToisella) : Lampotila(tekstit::kLeikkauksenUlkolampotila, Tulko);
  Leikkaus leikkaus = rakenne.RakenneRatkaisu ? MuodostaLeikkaus(*rakenne.RakenneRatkaisu, Tsisa, Tulko) : Leikkaus();
  Kaaviotiedot kuvaus =
      Lampotilakuvaus(Lampotila(tekstit::kTilanSisalampotila, Tsisa) + ", " + takana, std::move(leikkaus.nimet),
                      std::move(leikkaus.paksuudet), std::move(leikkaus.vastukset), std::move(leikkaus.lampotilat));
  if (huoneidenValissa) kuvaus.reunat.back() = kuvaus.reunat.front();
  return kuvaus;
}
