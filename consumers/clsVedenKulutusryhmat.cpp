// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVedenKulutusryhmat.h"

#include "kernel/Laskenta.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsVedenKulutusryhmat::LKVTiedot>("LKVTiedot"),
    Lapsi<&clsVedenKulutusryhmat::ProsessiVedenTiedot>("ProsessiVedenTiedot"),
    Arvo<&clsVedenKulutusryhmat::LKVKiertoKayttoAika>("LKVKiertoKayttoAika", "h/a"),
    Arvo<&clsVedenKulutusryhmat::LKVKiertoJaahtyma>("LKVKiertoJaahtyma", "K"),
    Arvo<&clsVedenKulutusryhmat::LKVKiertoVirtaama>("LKVKiertoVirtaama", "dm³/s"),
};

using Ryhmat = clsVedenKulutusryhmat;

template <auto Suure>
constexpr Tulos Rivitulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  return Karttatulos<[](const Ryhmat& r, const Karttakasittelija& kasittele) {
    LueAjantasaisetRivit(r, Suure, kasittele);
  }>(nimi, teksti, yksikko);
}

constexpr Tulos kPuu[] = {
    Rivitulos<&clsVesiListaItem::Vuosikulutus>("Vuosikulutus", tekstit::kKulutusRiveittain, "MWh/a"),
    Rivitulos<&clsVesiListaItem::KvVuosikulutus>("KvVuosikulutus", tekstit::kKulutusRiveittain, "m³/a"),
    Rivitulos<&clsVesiListaItem::LkvVuosikulutus>("LkvVuosikulutus", tekstit::kKulutusRiveittain, "m³/a"),
};

constexpr Tulos kTulokset[] = {
    Vuositulos<&Ryhmat::VuotuinenVedenKulutus>("VuotuinenVedenKulutus", tekstit::kVesiKaikki, "m³/a"),
    Vuositulos<&Ryhmat::VuotuinenKvKulutus>("VuotuinenKvKulutus", tekstit::kKayttovesiKaikki, "m³/a"),
    Vuositulos<&Ryhmat::VuotuinenKylmanProsessivedenKulutus>("VuotuinenKylmanProsessivedenKulutus",
                                                             tekstit::kProsessivesiKaikki, "m³/a"),
    Vuositulos<&Ryhmat::VuotuinenLkvKulutus>("VuotuinenLkvKulutus", tekstit::kLamminKayttovesi, "m³/a"),
    Vuositulos<&Ryhmat::VuotuinenLampimanProsessivedenKulutus>("VuotuinenLampimanProsessivedenKulutus",
                                                               tekstit::kLamminProsessivesi, "m³/a"),
    Vuositulos<&Ryhmat::VuotuinenLkvLammityksenEnergia>("VuotuinenLkvLammityksenEnergia",
                                                        tekstit::kKayttovedenLammitys),
    Vuositulos<&Ryhmat::VuotuinenProsessivedenLammityksenEnergia>("VuotuinenProsessivedenLammityksenEnergia",
                                                                  tekstit::kProsessivedenLammitys),
    Vuositulos<&Ryhmat::VuotuinenLkvSahkoLammityksenEnergia>("VuotuinenLkvSahkoLammityksenEnergia",
                                                             tekstit::kKayttovedenSahkolammitys),
    Vuositulos<&Ryhmat::VuotuinenProsessivedenSahkoLammityksenEnergia>("VuotuinenProsessivedenSahkoLammityksenEnergia",
                                                                       tekstit::kProsessivedenSahkolammitys),
    Vuositulos<&Ryhmat::LKVKiertopiirinHavio>("LKVKiertopiirinHavio", tekstit::kKierronHavio, "kWh/a"),
    Kokoelmatulos<[](Ryhmat& r) -> Ryhmat& { return r; }>("Ryhmat"),
    Ryhmatulos("Puu", kPuu),
};

constexpr double kProsessivedenLampotila = 70.0;  // °C
constexpr double kkWhPerMWh = 1e3;
constexpr double kProsentti = 100;

const Tunniste kYhteensa = "sKeyVesiYhteensa", kKierto = "sKeyLkvKierto", kProsessivedenRivi = "sKeyProsessivesi",
               kKayttovedenRivi = "sKeyNormaaliVesi";

const Kiintearivi kKiinteat[] = {{kYhteensa, Rivilaji::Juuri, tekstit::kYhteensa},
                                 {kKierto, Rivilaji::Kierto, tekstit::kLkvKierto},
                                 {kProsessivedenRivi, Rivilaji::Otsikko, tekstit::kProsessivesi},
                                 {kKayttovedenRivi, Rivilaji::Otsikko, tekstit::kKayttovesi}};

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

/// Groups under the title of domestic water are domestic, all others process water.
std::int16_t TyyppiRivilla(const Tunniste& vanhempi) {
  return vanhempi == kKayttovedenRivi ? Ryhma::Kayttovesi : Ryhma::Prosessivesi;
}

void PaivitaLampotilat(Ryhma& ryhma, const clsVedenTiedot& tiedot) {
  ryhma.VedenTiedot.KylmanLampotila = tiedot.KylmanLampotila;
  ryhma.VedenTiedot.LamminLampotila = tiedot.LamminLampotila;
}

/// Share of hot water, %, that gives the use temperature; 0 where hot and cold are the same.
double OsuusKayttolampotilasta(double kaytto, const clsVedenTiedot& tiedot) {
  const double ero = tiedot.LamminLampotila - tiedot.KylmanLampotila;
  return ero == 0 ? 0 : LueLuku(Muotoile((kaytto - tiedot.KylmanLampotila) * kProsentti / ero, "0")).value_or(0);
}

}  // namespace

const Luokka clsVedenKulutusryhmat::kLuokka{"clsVedenKulutusryhmat", kJasenet, kTulokset};

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

std::span<const Kiintearivi> clsVedenKulutusryhmat::Kiinteat() const { return kKiinteat; }

clsVedenKulutusryhma& clsVedenKulutusryhmat::LuoRyhma(const Tunniste& avain, const Tunniste& vanhempi) {
  return Add(avain, TyyppiRivilla(vanhempi));
}

void clsVedenKulutusryhmat::Siirtyi(clsVedenKulutusryhma& ryhma, const Tunniste& vanhempi) {
  ryhma.KulutusRyhmaTyyppi = TyyppiRivilla(vanhempi);
  Tiedot(ryhma.KulutusRyhmaTyyppi).KopioiArvot(ryhma.VedenTiedot);
}

Tunniste clsVedenKulutusryhmat::OrvonPaikka(const Tunniste& ryhma) const {
  const Ryhma* orpo = Etsi(ryhma);
  return orpo && orpo->OnProsessivesi() ? kProsessivedenRivi : kKayttovedenRivi;
}

void clsVedenKulutusryhmat::PaivitaKulutusRyhmatJaLaitteet() try {
  PaivitaRyhmienRivit([this](clsVesiListaItem& rivi, Ryhma& ryhma) {
    rivi.NimiTeksti = ryhma.KulutusRyhma;
    rivi.OnProsessiVesi = ryhma.OnProsessivesi();
    rivi.Vuosikulutus = ryhma.VedenLammityksenEnergia();
    rivi.KvVuosikulutus = ryhma.VedenKulutus();
    rivi.LkvVuosikulutus = ryhma.LampimanVedenKulutus();
    PaivitaLampotilat(ryhma, Tiedot(ryhma.KulutusRyhmaTyyppi));
  });
  ListaItem(kProsessivedenRivi).OnProsessiVesi = true;
  clsVesiListaItem& kierto = ListaItem(kKierto);
  kierto.ItemTyyppi = kRyhma;
  kierto.KvVuosikulutus = kierto.LkvVuosikulutus = 0;
  kierto.Vuosikulutus = LKVKiertopiirinHavio() / kkWhPerMWh;
  RipustaJaSummaa(
      {&clsVesiListaItem::Vuosikulutus, &clsVesiListaItem::KvVuosikulutus, &clsVesiListaItem::LkvVuosikulutus});
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:PaivitaKulutusRyhmatJaLaitteet Method");
}

Tunniste clsVedenKulutusryhmat::ToimenpiteidenSolmu(const Ryhma& ryhma) {
  return ryhma.OnProsessivesi() ? "sKeyProsessiVesi" : "sKeyNormaaliVesi";
}

std::vector<const clsVedenKulutusryhma*> clsVedenKulutusryhmat::VesitiedotMuuttuivat() {
  std::vector<const Ryhma*> rajanYli;
  for (Ryhma& ryhma : *this) {
    const clsVedenTiedot& tiedot = Tiedot(ryhma.KulutusRyhmaTyyppi);
    PaivitaLampotilat(ryhma, tiedot);
    ryhma.LampimanVedenOsuus = OsuusKayttolampotilasta(ryhma.VedenKayttolampotila, tiedot);
    if (ryhma.LampimanVedenOsuus < 0 || ryhma.LampimanVedenOsuus > kProsentti) rajanYli.push_back(&ryhma);
  }
  return rajanYli;
}

void clsVedenKulutusryhmat::PaivitaVedenTiedotKulutusryhmiin() {
  for (Ryhma& ryhma : *this) LKVTiedot.KopioiArvot(ryhma.VedenTiedot);
}

std::vector<clsVesiListaItem*> clsVedenKulutusryhmat::PaaRivit() const {
  return {&ListaItem(kKayttovedenRivi), &ListaItem(kProsessivedenRivi), &ListaItem(kKierto)};
}

double clsVedenKulutusryhmat::RivienVedenKulutus() const {
  double summa = 0;
  for (const clsVesiListaItem& rivi : ListaItems())
    if (!rivi.Parent.Tyhja() && !(rivi.Parent == kYhteensa)) summa += rivi.KvVuosikulutus;
  return summa;
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
