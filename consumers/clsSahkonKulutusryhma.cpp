// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkonKulutusryhma.h"

#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsSahkonKulutusryhma::KulutusRyhma>("KulutusRyhma"),
    Arvo<&clsSahkonKulutusryhma::LiittyyTilaanStr>("LiittyyTilaanStr"),
    Arvo<&clsSahkonKulutusryhma::LiittyyTilaansKey>("LiittyyTilaansKey"),
    Arvo<&clsSahkonKulutusryhma::EnergiaHyodynnetaanLammityksessa>("EnergiaHyodynnetaanLammityksessa"),
    Ominaisuus<clsSahkonKulutusryhma, [](const clsSahkonKulutusryhma& o) { return o.LaskentatapaTehopohjainen(); },
               [](clsSahkonKulutusryhma& o, bool arvo) { o.LaskentatapaTehopohjainen(arvo); }>(
        "LaskentatapaTehopohjainen"),
    Ominaisuus<clsSahkonKulutusryhma, [](const clsSahkonKulutusryhma& o) { return o.LaskentatapaEnergiapohjainen(); },
               [](clsSahkonKulutusryhma& o, bool arvo) { o.LaskentatapaEnergiapohjainen(arvo); }>(
        "LaskentatapaEnergiapohjainen"),
    Arvo<&clsSahkonKulutusryhma::LaskentatapaEnergiapohjainenIndex>("LaskentatapaEnergiapohjainenIndex"),
    Arvo<&clsSahkonKulutusryhma::LaskentaperusteID>("LaskentaperusteID"),
    Arvo<&clsSahkonKulutusryhma::LaskentaperusteStr>("LaskentaperusteStr"),
    Arvo<&clsSahkonKulutusryhma::LaskentaperusteNumber>("LaskentaperusteNumber"),
    Arvo<&clsSahkonKulutusryhma::Laskentayksikko>("Laskentayksikko"),
    Arvo<&clsSahkonKulutusryhma::LaskentayksikkoNumber>("LaskentayksikkoNumber"),
    Arvo<&clsSahkonKulutusryhma::KayttoaikaHpD>("KayttoaikaHpD", "h/d"),
    Arvo<&clsSahkonKulutusryhma::KayttoaikaDpA>("KayttoaikaDpA", "d/a"),
    Arvo<&clsSahkonKulutusryhma::Tasauskerroin>("Tasauskerroin"),
    Arvo<&clsSahkonKulutusryhma::KulutusryhmienLukumaara>("KulutusryhmienLukumaara"),
    Arvo<&clsSahkonKulutusryhma::SyötettyKulutus>("SyötettyKulutus", "MWh/a"),
};

}  // namespace

const Luokka clsSahkonKulutusryhma::kLuokka{"clsSahkonKulutusryhma", kJasenet};

clsSahkonKulutusryhma::clsSahkonKulutusryhma() : KulutusRyhma(Teksti(tekstit::kUusiKulutusryhma)) {}

double clsSahkonKulutusryhma::Kulutus(double ryhmia) const noexcept {
  if (KulutusSyotetaan()) return ryhmia * SyötettyKulutus;
  return LaskentaperusteNumber * LaskentayksikkoNumber * KayttoaikaHpD * KayttoaikaDpA * Tasauskerroin * ryhmia /
         Muuntokerroin();
}

double clsSahkonKulutusryhma::YhdenVuosikulutus() const try { return Aarellinen(Kulutus(1)); } catch (...) {
  NostaVirhe("clsSahkonKulutusryhma:YhdenVuosikulutus Method");
}

double clsSahkonKulutusryhma::Vuosikulutus() const try {
  return Aarellinen(Kulutus(KulutusryhmienLukumaara));
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhma:Vuosikulutus Method");
}
