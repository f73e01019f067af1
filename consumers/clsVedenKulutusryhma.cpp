// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVedenKulutusryhma.h"

#include <array>

#include "kernel/Laskenta.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
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
    Arvo<&clsVedenKulutusryhma::LaskentaperusteNumber>("LaskentaperusteNumber"),
    Arvo<&clsVedenKulutusryhma::Laskentayksikko>("Laskentayksikko"),
    Arvo<&clsVedenKulutusryhma::LaskentayksikonTeksti>("LaskentayksikonTeksti"),
    Arvo<&clsVedenKulutusryhma::KayttokuvausKertaaD>("KayttokuvausKertaaD", "1/d"),
    Arvo<&clsVedenKulutusryhma::KayttokuvausDpA>("KayttokuvausDpA", "d/a"),
    Arvo<&clsVedenKulutusryhma::Tasauskerroin>("Tasauskerroin"),
    Arvo<&clsVedenKulutusryhma::VedenKayttolampotila>("VedenKayttolampotila", "°C"),
    Arvo<&clsVedenKulutusryhma::LampimanVedenOsuus>("LampimanVedenOsuus", "%"),
    Arvo<&clsVedenKulutusryhma::LammityksessaHyodynnettavaOsuus>("LammityksessaHyodynnettavaOsuus", "%"),
};

constexpr double kMJperkWh = 3.6;
constexpr double kkWhPerMWh = 1e3;

// Per unit of the specific consumption (dm³ a time, a piece, a portion, a person and day; dm³/s, dm³/min, dm³/h): what
// it is divided by to give m³, times and hours being multiplied in.
constexpr std::array<double, 7> kMuuntokertoimet{1000, 1000, 1000, 1000, 1000.0 / 3600, 1000.0 / 60, 1000};

}  // namespace

const Luokka clsVedenKulutusryhma::kLuokka{"clsVedenKulutusryhma", kJasenet};

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
