// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVedenKulutusryhma.h"

#include <array>

#include "kernel/Laskenta.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsVedenKulutusryhma::VedenTiedot>("VedenTiedot"),
    Arvo<&clsVedenKulutusryhma::KulutusRyhma>("KulutusRyhma"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsVedenKulutusryhma::KulutusRyhmaTyyppi>("KulutusRyhmaTyyppi"),
    Arvo<&clsVedenKulutusryhma::LaskentaperusteID>("LaskentaperusteID"),
    Arvo<&clsVedenKulutusryhma::LaskentaperusteStr>("LaskentaperusteStr"),
    Arvo<&clsVedenKulutusryhma::LaskentaperusteNumber>("LaskentaperusteNumber", Suure().Rajat(0).Tavallisesti(0, 1e4)),
    Arvo<&clsVedenKulutusryhma::Laskentayksikko>("Laskentayksikko", Suure().Rajat(0).Tavallisesti(0, 1e5)),
    Arvo<&clsVedenKulutusryhma::LaskentayksikonTeksti>("LaskentayksikonTeksti"),
    Arvo<&clsVedenKulutusryhma::KayttokuvausKertaaD>("KayttokuvausKertaaD", Suure("1/d").Rajat(0).Tavallisesti(0, 100)),
    Arvo<&clsVedenKulutusryhma::KayttokuvausDpA>("KayttokuvausDpA", Suure("d/a").Rajat(0, 366)),
    Arvo<&clsVedenKulutusryhma::Tasauskerroin>("Tasauskerroin", Suure().Rajat(0).Tavallisesti(0, 1)),
    Arvo<&clsVedenKulutusryhma::VedenKayttolampotila>("VedenKayttolampotila", Suure("°C").Rajat(0, 100)),
    Arvo<&clsVedenKulutusryhma::LampimanVedenOsuus>("LampimanVedenOsuus", Suure("%").Tavallisesti(0, 100)),
    Arvo<&clsVedenKulutusryhma::LammityksessaHyodynnettavaOsuus>("LammityksessaHyodynnettavaOsuus", "%"),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&clsVedenKulutusryhma::KulutusRyhma>("KulutusRyhma"),
    Vuositulos<&clsVedenKulutusryhma::VedenKulutus>("VedenKulutus", tekstit::kRyhmanVesi, "m³/a"),
    Vuositulos<&clsVedenKulutusryhma::VedenLammityksenEnergia>("VedenLammityksenEnergia", tekstit::kRyhmanLampo),
};

constexpr double kMJperkWh = 3.6;
constexpr double kkWhPerMWh = 1e3;

// Per unit of the specific consumption (dm³ a time, a piece, a portion, a person and day; dm³/s, dm³/min, dm³/h): what
// it is divided by to give m³, times and hours being multiplied in.
constexpr std::array<double, 7> kMuuntokertoimet{1000, 1000, 1000, 1000, 1000.0 / 3600, 1000.0 / 60, 1000};

}  // namespace

const Luokka clsVedenKulutusryhma::kLuokka{"clsVedenKulutusryhma", kJasenet, kTulokset};

clsVedenKulutusryhma::clsVedenKulutusryhma()
    : KulutusRyhma(Teksti(tekstit::kUusiKulutusryhma)), VedenKayttolampotila(VedenTiedot.KylmanLampotila) {}

void clsVedenKulutusryhma::PaivitaLampimanVedenOsuus() {
  LampimanVedenOsuus = LueLuku(Muotoile(VedenTiedot.LampimanOsuus(VedenKayttolampotila), "0")).value_or(0);
}

double clsVedenKulutusryhma::Muuntokerroin() const {
  const auto rivi = static_cast<std::size_t>(LaskentaperusteID);
  return LaskentaperusteID >= 0 && rivi < kMuuntokertoimet.size() ? kMuuntokertoimet[rivi] : 0;
}

double clsVedenKulutusryhma::VedenKulutus() const try {
  return Jaa(Laskentayksikko * LaskentaperusteNumber * KayttokuvausKertaaD * KayttokuvausDpA * Tasauskerroin,
             Muuntokerroin());
} catch (...) {
  NostaVirhe("clsVedenKulutusryhma:VedenKulutus Method");
}

double clsVedenKulutusryhma::LampimanVedenKulutus() const { return LampimanVedenOsuus * VedenKulutus() / 100; }

double clsVedenKulutusryhma::VedenLammityksenEnergia() const try {
  const double lampeneminen = VedenKayttolampotila - VedenTiedot.KylmanLampotila;
  return Aarellinen(VedenKulutus() * kVedenOminaislampo * lampeneminen / kMJperkWh / kkWhPerMWh);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhma:VedenLammityksenEnergia Method");
}
