// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsTilat.h"

#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "ui/Edistyminen.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsTilat::TotSahkoKuormaPros>("TotSahkoKuormaPros", Suure("%").Rajat(0, 100)),
    Arvo<&clsTilat::KaytaTotSahkoKuormia>("KaytaTotSahkoKuormia"),
};

template <class F>
double Summa(const clsTilat& tilat, F&& arvo) {
  double summa = 0;
  for (clsTila& tila : tilat) summa += arvo(tila);
  return Aarellinen(summa);
}

}  // namespace

const Luokka clsTilat::kLuokka{"clsTilat", kJasenet};

void clsTilat::VuotuinenLampoEnergianTarveUpToDate(bool voimassa) noexcept {
  tarveUpToDate_ = voimassa;
  for (clsTila& tila : *this) tila.TaseUpToDate(voimassa);
}

double clsTilat::TilavuusYht() const {
  return Summa(*this, [](const clsTila& t) { return t.Kokonaistilavuus; });
}

double clsTilat::BruttoAlaYht() const {
  return Summa(*this, [](const clsTila& t) { return t.BruttoAla; });
}

double clsTilat::VuotuinenLampoEnergianTarve() try {
  if (tarveUpToDate_) return tarve_.arvo;
  Edistyminen edistyminen;
  PaivitaIVHaviot(edistyminen);
  tarve_.arvo = Summa(*this, [&edistyminen](clsTila& tila) {
    edistyminen.Nayta("Lasketaan lämmöntarvetta tilalle: ", tila.TilanNimi);
    return tila.VuotuinenLampoEnergianTarve();
  });
  return tarve_.arvo;
} catch (...) {
  NostaVirhe("clsTilat:VuotuinenLampoEnergianTarve Method");
}

double clsTilat::VuotuisetLampoHaviot() try {
  return Summa(*this, [](clsTila& t) { return t.VuotuisetLampoHaviot(); });
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetLampoHaviot Method");
}

double clsTilat::VuotuisetHyodynnetytLampoKuormat() try {
  return Summa(*this, [](clsTila& t) { return t.VuotuisetHyodynnetytLampoKuormat(); });
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetHyodynnetytLampoKuormat Method");
}

double clsTilat::VuotuisetSaatohaviot() try {
  return Summa(*this, [](clsTila& t) { return t.VuotuisetSaatohaviot(); });
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsTilat::VuotuinenLammityssahko() try {
  return Summa(*this, [](clsTila& t) {
    return t.Sahkolammitys ? t.VuotuinenLampoEnergianTarve() + t.VuotuisetSaatohaviot() : 0;
  });
} catch (...) {
  NostaVirhe("clsTilat:VuotuinenLammityssahko Method");
}

/// Fills the ventilation caches that aren't up to date, with one pass over the machines for all spaces.
void clsTilat::PaivitaIVHaviot(Edistyminen& edistyminen) {
  const KoneetTiloittain koneet = Rakennus().IVKoneet.ListaaTiloittain();
  const clsTila::Koneet eiKoneita;
  for (clsTila& tila : *this) {
    const auto omat = koneet.find(tila.sKey);
    tila.PaivitaIVHaviotTilassa(omat == koneet.end() ? eiKoneita : omat->second, edistyminen);
  }
}

void clsTilat::PaivitaTilojenLampotaseenLahtotiedot() try {
  Edistyminen edistyminen;
  PaivitaIVHaviot(edistyminen);
  for (clsTila& tila : *this) {
    tila.PaivitaAurKuormatTilassa();
    tila.PaivitaJohtumishaviot();
  }
} catch (...) {
  NostaVirhe("clsTilat:PaivitaTilojenLampotaseenLahtotiedot Method");
}
