// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamuodot.h"

#include <algorithm>

#include "building/clsRakennus.h"
#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"
#include "supply/clsEnergianHankinta.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"

namespace {

constexpr double kProsentti = 100;

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsEnergiamuodot::kLuokka{"clsEnergiamuodot", kJasenet};

/// What is asked of a tariff, and of a water tariff: null when that has no such figure.
struct clsEnergiamuodot::Tariffisuure {
  double (*tariffi)(const clsTariffi&);
  double (*vesitariffi)(const clsVesitariffi&);
};

double clsEnergiamuodot::Tariffeista(const clsEnergiamuoto& muoto, const Tariffisuure& suure) const {
  const bool vesi = muoto.Tyyppi == clsEnergianHankinta::Vesi;
  double summa = 0;
  for (const Tunniste* avain : {&muoto.MyyntiTariffiSkey, &muoto.SiirtoTariffiSkey}) {
    if (avain->Tyhja() || (vesi && !suure.vesitariffi)) continue;
    const clsRakennus& rakennus = koti_.Rakennus();
    summa +=
        vesi ? suure.vesitariffi(rakennus.Vesitariffit.Item(*avain)) : suure.tariffi(rakennus.Tariffit.Item(*avain));
  }
  return summa;
}

double clsEnergiamuodot::Painotettu(const Tariffisuure& suure) const {
  double summa = 0;
  for (const clsEnergiamuoto& muoto : *this)
    summa += Tariffeista(muoto, suure) * muoto.OsuusNettotarpeesta / kProsentti;
  return Aarellinen(summa);
}

double clsEnergiamuodot::Taysina(const Tariffisuure& suure) const {
  double summa = 0;
  for (const clsEnergiamuoto& muoto : *this) summa += Tariffeista(muoto, suure);
  return Aarellinen(summa);
}

double clsEnergiamuodot::Keskihinta() const try {
  return Painotettu(
      {[](const clsTariffi& t) { return t.Keskihinta(); }, [](const clsVesitariffi& t) { return t.Keskihinta(); }});
} catch (...) {
  NostaVirhe("clsEnergiamuodot:Keskihinta Method");
}

double clsEnergiamuodot::Vuosimaksut() const try {
  return Taysina({[](const clsTariffi& t) { return t.VuosimaksutYht(); },
                  [](const clsVesitariffi& t) { return t.VuosimaksutYht(); }});
} catch (...) {
  NostaVirhe("clsEnergiamuodot:Vuosimaksut Method");
}

double clsEnergiamuodot::Tehomaksut() const try {
  return Taysina(
      {[](const clsTariffi& t) { return t.VuotuisetPatotehomaksut() + t.VuotuisetLoistehomaksut(); }, nullptr});
} catch (...) {
  NostaVirhe("clsEnergiamuodot:Tehomaksut Method");
}

double clsEnergiamuodot::TehoKeskihinta() const try {
  return Painotettu({[](const clsTariffi& t) { return t.Tehomaksu; }, nullptr});
} catch (...) {
  NostaVirhe("clsEnergiamuodot:TehoKeskihinta Method");
}

double clsEnergiamuodot::LoisTehoKeskihinta() const try {
  return Painotettu({[](const clsTariffi& t) { return t.Loistehomaksu; }, nullptr});
} catch (...) {
  NostaVirhe("clsEnergiamuodot:LoisTehoKeskihinta Method");
}

double clsEnergiamuodot::IlmastonLampeneminenCO2ekv() const try {
  double summa = 0;
  for (const clsEnergiamuoto& muoto : *this)
    if (muoto.Hyotysuhde != 0)
      summa += muoto.IlmastonLampeneminenCO2ekv() * muoto.OsuusNettotarpeesta / muoto.Hyotysuhde;
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsEnergiamuodot:IlmastonLampeneminenCO2ekv Method");
}

double clsEnergiamuodot::Konversiohaviot(double verkko) const try {
  double summa = 0;
  for (const clsEnergiamuoto& muoto : *this) summa += muoto.Konversiohavio(verkko);
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsEnergiamuodot:Konversiohaviot Method");
}

double clsEnergiamuodot::OsuuksienSumma() const {
  double summa = 0;
  for (const clsEnergiamuoto& muoto : *this) summa += muoto.OsuusNettotarpeesta;
  return summa;
}

bool clsEnergiamuodot::OnTaysi(double osuuksienSumma) {
  constexpr double kPyoristys = 1e-9;
  return std::abs(osuuksienSumma - kProsentti) < kPyoristys;
}

bool clsEnergiamuodot::OnkoTariffiKiinniEnergiamuodossa(const Tunniste& tariffi) const {
  return std::any_of(begin(), end(), [&](const clsEnergiamuoto& muoto) {
    return muoto.MyyntiTariffiSkey == tariffi || muoto.SiirtoTariffiSkey == tariffi;
  });
}

std::vector<std::string> clsEnergiamuodot::TariffinKayttajat(const Tunniste& tariffi) const {
  std::vector<std::string> nimet;
  for (const clsEnergiamuoto& muoto : *this)
    if (muoto.MyyntiTariffiSkey == tariffi || muoto.SiirtoTariffiSkey == tariffi) nimet.push_back(muoto.Nimi);
  return nimet;
}
