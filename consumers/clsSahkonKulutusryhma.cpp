// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkonKulutusryhma.h"

#include "kernel/Laskenta.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"
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
    Arvo<&clsSahkonKulutusryhma::LaskentaperusteNumber>("LaskentaperusteNumber", Suure().Rajat(0).Tavallisesti(0, 1e6)),
    Arvo<&clsSahkonKulutusryhma::Laskentayksikko>("Laskentayksikko"),
    Arvo<&clsSahkonKulutusryhma::LaskentayksikkoNumber>("LaskentayksikkoNumber", Suure().Rajat(0).Tavallisesti(0, 1e6)),
    Arvo<&clsSahkonKulutusryhma::KayttoaikaHpD>("KayttoaikaHpD", Suure("h/d").Rajat(0, 24)),
    Arvo<&clsSahkonKulutusryhma::KayttoaikaDpA>("KayttoaikaDpA", Suure("d/a").Rajat(0, 366)),
    Arvo<&clsSahkonKulutusryhma::Tasauskerroin>("Tasauskerroin", Suure().Rajat(0).Tavallisesti(0, 1)),
    Arvo<&clsSahkonKulutusryhma::KulutusryhmienLukumaara>("KulutusryhmienLukumaara",
                                                          Suure("kpl").Rajat(0).Tavallisesti(0, 1e4)),
    Arvo<&clsSahkonKulutusryhma::SyötettyKulutus>("SyötettyKulutus", Suure("MWh/a").Rajat(0).Tavallisesti(0, 1e4)),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&clsSahkonKulutusryhma::KulutusRyhma>("KulutusRyhma"),
    Vuositulos<&clsSahkonKulutusryhma::Vuosikulutus>("Vuosikulutus", tekstit::kRyhmanSahko),
};

}  // namespace

const Luokka clsSahkonKulutusryhma::kLuokka{"clsSahkonKulutusryhma", kJasenet, kTulokset};

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
