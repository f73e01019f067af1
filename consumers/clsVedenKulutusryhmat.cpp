// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVedenKulutusryhmat.h"

#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsVedenKulutusryhmat::LKVTiedot>("LKVTiedot"),
    Lapsi<&clsVedenKulutusryhmat::ProsessiVedenTiedot>("ProsessiVedenTiedot"),
    Arvo<&clsVedenKulutusryhmat::LKVKiertoKayttoAika>("LKVKiertoKayttoAika", "h/a"),
    Arvo<&clsVedenKulutusryhmat::LKVKiertoJaahtyma>("LKVKiertoJaahtyma", "K"),
    Arvo<&clsVedenKulutusryhmat::LKVKiertoVirtaama>("LKVKiertoVirtaama", "dm³/s"),
};

constexpr double kProsessivedenLampotila = 70.0;  // °C
constexpr double kkWhPerMWh = 1e3;

using Ryhma = clsVedenKulutusryhma;
constexpr auto kKaikki = [](const Ryhma&) { return true; };
constexpr auto kKayttovesi = [](const Ryhma& ryhma) { return !ryhma.OnProsessivesi(); };
constexpr auto kProsessivesi = [](const Ryhma& ryhma) { return ryhma.OnProsessivesi(); };

double Summa(const clsVedenKulutusryhmat& ryhmat, bool (*mukana)(const Ryhma&), double (Ryhma::*suure)() const) {
  double summa = 0;
  for (const Ryhma& ryhma : ryhmat)
    if (mukana(ryhma)) summa += (ryhma.*suure)();
  return Aarellinen(summa);
}

}  // namespace

const Luokka clsVedenKulutusryhmat::kLuokka{"clsVedenKulutusryhmat", kJasenet};

clsVedenKulutusryhmat::clsVedenKulutusryhmat() { ProsessiVedenTiedot.LamminLampotila = kProsessivedenLampotila; }

clsVedenKulutusryhma& clsVedenKulutusryhmat::Add(const Tunniste& sKey, std::int16_t KulutusRyhmaTyyppi) try {
  clsVedenKulutusryhma& ryhma = Sailio::Add(sKey);
  ryhma.KulutusRyhmaTyyppi = KulutusRyhmaTyyppi;
  Tiedot(KulutusRyhmaTyyppi).KopioiArvot(ryhma.VedenTiedot);
  ryhma.VedenKayttolampotila = ryhma.VedenTiedot.KylmanLampotila;
  return ryhma;
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:Add Method");
}

clsVesiListaItem& clsVedenKulutusryhmat::AddListaItem(const Tunniste& sKey, const Tunniste& Parent,
                                                      std::int16_t ItemTyyppi, std::string NimiTeksti,
                                                      bool loppuun) try {
  return LisaaRivi(sKey, Parent, ItemTyyppi, std::move(NimiTeksti), loppuun);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:AddListaItem Method");
}

const clsVedenTiedot& clsVedenKulutusryhmat::Tiedot(std::int16_t KulutusRyhmaTyyppi) const noexcept {
  return KulutusRyhmaTyyppi == clsVedenKulutusryhma::Kayttovesi ? LKVTiedot : ProsessiVedenTiedot;
}

double clsVedenKulutusryhmat::VuotuinenVedenKulutus() const try {
  return Summa(*this, kKaikki, &Ryhma::VedenKulutus);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenVedenKulutus Method");
}

double clsVedenKulutusryhmat::VuotuinenKvKulutus() const try {
  return Summa(*this, kKayttovesi, &Ryhma::VedenKulutus);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenKvKulutus Method");
}

double clsVedenKulutusryhmat::VuotuinenKylmanProsessivedenKulutus() const try {
  return Summa(*this, kProsessivesi, &Ryhma::VedenKulutus);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenKylmanProsessivedenKulutus Method");
}

double clsVedenKulutusryhmat::VuotuinenLkvKulutus() const try {
  return Summa(*this, kKayttovesi, &Ryhma::LampimanVedenKulutus);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenLkvKulutus Method");
}

double clsVedenKulutusryhmat::VuotuinenLampimanProsessivedenKulutus() const try {
  return Summa(*this, kProsessivesi, &Ryhma::LampimanVedenKulutus);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenLampimanProsessivedenKulutus Method");
}

double clsVedenKulutusryhmat::VuotuinenLkvLammityksenEnergia() const try {
  return Summa(*this, kKayttovesi, &Ryhma::VedenLammityksenEnergia) + LKVKiertopiirinHavio() / kkWhPerMWh;
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenLkvLammityksenEnergia Method");
}

double clsVedenKulutusryhmat::VuotuinenProsessivedenLammityksenEnergia() const try {
  return Summa(*this, kProsessivesi, &Ryhma::VedenLammityksenEnergia);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenProsessivedenLammityksenEnergia Method");
}

double clsVedenKulutusryhmat::VuotuinenLkvSahkoLammityksenEnergia() const try {
  return LKVTiedot.Sahkolammitys ? VuotuinenLkvLammityksenEnergia() : 0;
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenLkvSahkoLammityksenEnergia Method");
}

double clsVedenKulutusryhmat::VuotuinenProsessivedenSahkoLammityksenEnergia() const try {
  return ProsessiVedenTiedot.Sahkolammitys ? VuotuinenProsessivedenLammityksenEnergia() : 0;
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:VuotuinenProsessivedenSahkoLammityksenEnergia Method");
}

double clsVedenKulutusryhmat::LKVKiertopiirinHavio() const try {
  return Aarellinen(LKVKiertoJaahtyma * LKVKiertoVirtaama * kVedenOminaislampo * LKVKiertoKayttoAika);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:LKVKiertopiirinHavio Method");
}
