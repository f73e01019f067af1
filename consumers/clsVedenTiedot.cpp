// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVedenTiedot.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsVedenTiedot::KylmanLampotila>("KylmanLampotila", "°C"),
    Arvo<&clsVedenTiedot::LamminLampotila>("LamminLampotila", "°C"),
    Arvo<&clsVedenTiedot::Sahkolammitys>("Sahkolammitys"),
};

}  // namespace

const Luokka clsVedenTiedot::kLuokka{"clsVedenTiedot", kJasenet};

void clsVedenTiedot::KopioiArvot(clsVedenTiedot& kohde) const noexcept {
  kohde.KylmanLampotila = KylmanLampotila;
  kohde.LamminLampotila = LamminLampotila;
  kohde.Sahkolammitys = Sahkolammitys;
}

double clsVedenTiedot::LampimanOsuus(double kayttolampotila) const noexcept {
  const double ero = LamminLampotila - KylmanLampotila;
  return ero <= 0 ? 0 : (kayttolampotila - KylmanLampotila) * 100 / ero;
}

double clsVedenTiedot::Kayttolampotila(double lampimanOsuus) const noexcept {
  return lampimanOsuus * (LamminLampotila - KylmanLampotila) / 100 + KylmanLampotila;
}
