// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsIVKone.h"

#include <limits>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"
#include "ui/Laskentakohde.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr double kkWhperMWh = 1000;
constexpr double kTaysVirta = 100;  // %

/// Sum of the months, kWh, as MWh.
template <class F>
double Vuosisumma(const F& kuukausiarvo) {
  double summa = 0;
  for (int m = 0; m < kKuukausia; ++m) summa += kuukausiarvo(m);
  return Aarellinen(summa / kkWhperMWh);
}
double Vuosisumma(const Kuukausitaulu& taulu) {
  return Vuosisumma([&taulu](int m) { return taulu[static_cast<std::size_t>(m)]; });
}

Kuukausitaulu Erotus(Kuukausitaulu a, const Kuukausitaulu& b) {
  for (std::size_t m = 0; m < kKuukausia; ++m) a[m] -= b[m];
  return a;
}

}  // namespace

constexpr Jasen clsIVKone::kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsIVKone::KoneenTunnus>("KoneenTunnus"),
    Arvo<&clsIVKone::TuloIlmavirta11Teho>("TuloIlmavirta11Teho", Suure("m³/s").Rajat(0).Tavallisesti(0, 50)),
    Arvo<&clsIVKone::PoistoIlmavirta11Teho>("PoistoIlmavirta11Teho", Suure("m³/s").Rajat(0).Tavallisesti(0, 50)),
    Ominaisuus<clsIVKone, [](const clsIVKone& k) { return k.SisaanpuhallusLampotila(); },
               [](clsIVKone& k, double T) { k.SisaanpuhallusLampotila(T); }, &clsIVKone::sisaanpuhallusLampotila_>(
        "SisaanpuhallusLampotila", Suure("°C").Rajat(-50, 60).Tavallisesti(15, 30)),
    Arvo<&clsIVKone::PoistoLampotila>("PoistoLampotila", Suure("°C").Rajat(-50, 60).Tavallisesti(15, 30)),
    Arvo<&clsIVKone::IlmanLampeneminenPuhaltimessa>("IlmanLampeneminenPuhaltimessa",
                                                    Suure("K").Rajat(0).Tavallisesti(0, 5)),
    Arvo<&clsIVKone::LtoHyotysuhde>("LtoHyotysuhde", Suure("%").Rajat(0, 100).Tavallisesti(0, 90)),
    Arvo<&clsIVKone::TuloilmanLammitysSahkoPatterilla>("TuloilmanLammitysSahkoPatterilla"),
    Arvo<&clsIVKone::IVPeriaateID>("IVPeriaateID"),
    Arvo<&clsIVKone::IVPeriaate>("IVPeriaate"),
    Arvo<&clsIVKone::JarjestelmaTyyppiID>("JarjestelmaTyyppiID"),
    Arvo<&clsIVKone::JarjestelmaTyyppi>("JarjestelmaTyyppi"),
    Arvo<&clsIVKone::PuhaltimenSaatotapaID>("PuhaltimenSaatotapaID"),
    Arvo<&clsIVKone::PuhaltimenSaatotapa>("PuhaltimenSaatotapa"),
    Arvo<&clsIVKone::PuhaltimenVoimansiirtoTapaID>("PuhaltimenVoimansiirtoTapaID"),
    Arvo<&clsIVKone::PuhaltimenVoimansiirtoTapa>("PuhaltimenVoimansiirtoTapa"),
    Ominaisuus<clsIVKone, [](const clsIVKone& k) { return k.VakioPaineOsuusID(); },
               [](clsIVKone& k, std::int32_t rivi) { k.VakioPaineOsuusID(rivi); }, &clsIVKone::vakioPaineOsuusID_>(
        "VakioPaineOsuusID"),
    Arvo<&clsIVKone::VakioPaineOsuus>("VakioPaineOsuus"),
    Arvo<&clsIVKone::LiittyyTilaansKey>("LiittyyTilaansKey"),
    Lapsi<&clsIVKone::Lto>("Lto"),
    Lapsi<&clsIVKone::KayntiAikaYleistiedot>("KayntiAikaYleistiedot"),
    Lapsi<&clsIVKone::PuhaltimienSahkonKulutus>("PuhaltimienSahkonKulutus"),
    Lapsi<&clsIVKone::LammTehot>("LammTehot"),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&clsIVKone::KoneenTunnus>("KoneenTunnus", tekstit::kKoneenTunnus),
    Kuukausitulos<[](const clsIVKone& k, int m) { return k.IV_LammEnergia(m); }>("IV_LammEnergia",
                                                                                 tekstit::kJalkilammitys),
    Kuukausitulos<[](const clsIVKone& k, int m) { return k.LtoEnergia(m); }>("LtoEnergia", tekstit::kTalteenotto),
    Kuukausitulos<&clsIVKone::SahkoPatterinEnergia>("SahkoPatterinEnergia", tekstit::kSahkopatterinEnergia),
    Kuukausitulos<&clsIVKone::VesikiertoisenLampoPatterinEnergia>("VesikiertoisenLampoPatterinEnergia",
                                                                  tekstit::kVesipatterinEnergia),
    Kuukausitulos<[](clsIVKone& k, int m) { return k.PuhallinSahko(m); }>("PuhallinSahko", tekstit::kPuhaltimienSahko),
    Kuukausitulos<[](const clsIVKone& k, int m) { return k.HaviotTilaan(k.Poistoilma(), m); }>(
        "HaviotTilaan", tekstit::kKoneenHavioTilassa),
    Vuositulos<&clsIVKone::VuotuinenPuhallinSahko>("VuotuinenPuhallinSahko", tekstit::kPuhaltimienSahko),
    Vuositulos<&clsIVKone::VuotuinenIVjalkilammitysLampo>("VuotuinenIVjalkilammitysLampo", tekstit::kJalkilammitys),
    Vuositulos<&clsIVKone::Sahko>("Sahko", tekstit::kPatterinJaPuhaltimienSahko),
    Upotustulos<&clsIVKone::AjantasaisetPuhaltimet>(),
    Osatulos<&clsIVKone::Lto>("Lto"),
    Kokoelmatulos<&clsIVKone::KayntiAikaYleistiedot>("KayntiAjat"),
};

const Luokka clsIVKone::kLuokka{"clsIVKone", kJasenet, kTulokset};

clsIVKone::clsIVKone() : KoneenTunnus(Teksti(tekstit::kUusiKone)) { PaivitaPuhaltimienTiedot(); }

void clsIVKone::SisaanpuhallusLampotila(double lampotila) noexcept {
  sisaanpuhallusLampotila_ = lampotila;
  for (clsKayntiAika& jakso : KayntiAikaYleistiedot)
    if (jakso.Jakso == clsKayntiAika::KokoVuosi) jakso.Tsp = lampotila;
}

void clsIVKone::AsetaLampeneminen(double lampeneminen) noexcept {
  IlmanLampeneminenPuhaltimessa = lampeneminen;
  for (clsKayntiAika& jakso : KayntiAikaYleistiedot) jakso.dTPuhallin = lampeneminen;
}

void clsIVKone::PoistaPeriaatteeseenKuulumattomat() noexcept {
  if (!OnTulopuhallin()) TuloIlmavirta11Teho = 0;
  if (!OnPoistopuhallin()) PoistoIlmavirta11Teho = 0;
  if (!OnTalteenotto()) LtoHyotysuhde = 0;
}

void clsIVKone::VakioPaineOsuusID(std::int32_t rivi) noexcept {
  vakioPaineOsuusID_ = rivi;
  PuhaltimienSahkonKulutus.VakioPaineOsuusID = rivi;
}

void clsIVKone::PaivitaPuhaltimienTiedot() {
  clsPuhaltimenSahkonKulutus& puhaltimet = PuhaltimienSahkonKulutus;
  puhaltimet.TuloIlmavirta11Teho = TuloIlmavirta11Teho;
  puhaltimet.PoistoIlmavirta11Teho = PoistoIlmavirta11Teho;
  puhaltimet.VakioPaineOsuusID = vakioPaineOsuusID_;
  puhaltimet.PuhaltimenVoimansiirtoTapaID = PuhaltimenVoimansiirtoTapaID;
  puhaltimet.PuhaltimenSaatotapaID = PuhaltimenSaatotapaID;
  puhaltimet.JarjestelmaTyyppiID = JarjestelmaTyyppiID;
  puhaltimet.IVPeriaateID = IVPeriaateID;
  puhaltimet.PuhaltimenSaatotapa = PuhaltimenSaatotapa;
  puhaltimet.KoneenTunnus = KoneenTunnus;
}

void clsIVKone::PaivitaOsienTiedot() {
  PaivitaPuhaltimienTiedot();
  KayntiAikaYleistiedot.IvKoneenNimi = KoneenTunnus;
}

Lammitystarveluku clsIVKone::Tarveluku() const { return {koti_.Rakennus().Perustiedot.NormVuodenLammTarveLuku}; }

Kuukausitaulu clsIVKone::HaviotTilaan(double Tsisa) const try {
  const Laskentakohde kohde(KoneenTunnus);
  const Lammitystarveluku S = Tarveluku();
  const double poistuva = OnPoistopuhallin() ? PoistoIlmavirta11Teho : TuloIlmavirta11Teho;
  const Kuukausitaulu poistoilma = KayntiAikaYleistiedot.LammonTarveTilaan(poistuva, Tsisa, S);
  return OnTulopuhallin() ? Erotus(poistoilma, KayntiAikaYleistiedot.LammonTarve(TuloIlmavirta11Teho, S)) : poistoilma;
} catch (...) {
  NostaVirhe("clsIVKone:HaviotTilaan Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::HaviotTilaan(double Tsisa, int kuukausi) const try {
  return HaviotTilaan(Tsisa)[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
} catch (...) {
  NostaVirhe("clsIVKone:HaviotTilaan Method", Virheenkohde{KoneenTunnus});
}

Kuukausitaulu clsIVKone::IV_LammEnergia() const try {
  const Laskentakohde kohde(KoneenTunnus);
  return Erotus(KayntiAikaYleistiedot.LammonTarve(TuloIlmavirta11Teho, Tarveluku()), LtoEnergia());
} catch (...) {
  NostaVirhe("clsIVKone:IV_LammEnergia Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::IV_LammEnergia(int kuukausi) const try {
  return IV_LammEnergia()[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
} catch (...) {
  NostaVirhe("clsIVKone:IV_LammEnergia Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::Poistoilma() const {
  const clsTila* tila = LiittyyTilaansKey.Tyhja() ? nullptr : koti_.Rakennus().Tilat.Etsi(LiittyyTilaansKey);
  return tila ? tila->Sisalampotila : PoistoLampotila;
}

Kuukausitaulu clsIVKone::LtoEnergia() const try {
  const Laskentakohde kohde(KoneenTunnus);
  return KayntiAikaYleistiedot.LtoEnergia(TuloIlmavirta11Teho, Poistoilma(), LtoHyotysuhde, Tarveluku());
} catch (...) {
  NostaVirhe("clsIVKone:LtoEnergia Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::LtoEnergia(int kuukausi) const try {
  return LtoEnergia()[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
} catch (...) {
  NostaVirhe("clsIVKone:LtoEnergia Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::SahkoPatterinEnergia(int kuukausi) const try {
  return TuloilmanLammitysSahkoPatterilla ? IV_LammEnergia(kuukausi) : 0;
} catch (...) {
  NostaVirhe("clsIVKone:SahkoPatterinEnergia Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::VesikiertoisenLampoPatterinEnergia(int kuukausi) const try {
  return TuloilmanLammitysSahkoPatterilla ? 0 : IV_LammEnergia(kuukausi);
} catch (...) {
  NostaVirhe("clsIVKone:VesikiertoisenLampoPatterinEnergia Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::VuotuinenIVjalkilammitysLampo() const try { return Vuosisumma(IV_LammEnergia()); } catch (...) {
  NostaVirhe("clsIVKone:VuotuinenIVjalkilammitysLampo Method", Virheenkohde{KoneenTunnus});
}

/// The fans' electricity by system type; each of the two counts if the machine has it.
double clsIVKone::PuhallinSahko(PuhaltimenTeho& tulo, PuhaltimenTeho& poisto, int kuukausi) const {
  if (TuloIlmavirta11Teho == 0 && PoistoIlmavirta11Teho == 0) return 0;
  const clsKayntiAjat& ajat = KayntiAikaYleistiedot;
  if (JarjestelmaTyyppiID == PuhaltimenTeho::Kaksinopeus || JarjestelmaTyyppiID == PuhaltimenTeho::MuuttuvaIlmavirta)
    return (OnTulopuhallin() ? ajat.PuhallinSahkoPerKuukausi(tulo, kuukausi) : 0) +
           (OnPoistopuhallin() ? ajat.PuhallinSahkoPerKuukausi(poisto, kuukausi) : 0);
  const double teho = (OnTulopuhallin() ? tulo.Taysteho() : 0) + (OnPoistopuhallin() ? poisto.Taysteho() : 0);
  return teho * ajat.KayntiAikaPerKuukausi(kuukausi, ajat.KayntiaikojenSyottotapaID, kTaysVirta, kTaysVirta);
}

clsPuhaltimenSahkonKulutus::Valinnat clsIVKone::PuhallinValinnat() const noexcept {
  return {JarjestelmaTyyppiID, PuhaltimenSaatotapaID, PuhaltimenVoimansiirtoTapaID, vakioPaineOsuusID_};
}

double clsIVKone::PuhallinSahko(int kuukausi) const try {
  const Laskentakohde kohde(KoneenTunnus);
  PuhaltimenTeho tulo = PuhaltimienSahkonKulutus.Tulopuhallin(PuhallinValinnat());
  PuhaltimenTeho poisto = PuhaltimienSahkonKulutus.Poistopuhallin(PuhallinValinnat());
  return PuhallinSahko(tulo, poisto, kuukausi);
} catch (...) {
  NostaVirhe("clsIVKone:PuhallinSahko Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::VuotuinenPuhallinSahko() const try {
  const Laskentakohde kohde(KoneenTunnus);
  PuhaltimenTeho tulo = PuhaltimienSahkonKulutus.Tulopuhallin(PuhallinValinnat());
  PuhaltimenTeho poisto = PuhaltimienSahkonKulutus.Poistopuhallin(PuhallinValinnat());
  return Vuosisumma([&](int m) { return PuhallinSahko(tulo, poisto, m); });
} catch (...) {
  NostaVirhe("clsIVKone:VuotuinenPuhallinSahko Method", Virheenkohde{KoneenTunnus});
}

double clsIVKone::Sahko() const try {
  return (TuloilmanLammitysSahkoPatterilla ? VuotuinenIVjalkilammitysLampo() : 0) + VuotuinenPuhallinSahko();
} catch (...) {
  NostaVirhe("clsIVKone:Sahko Method", Virheenkohde{KoneenTunnus});
}

clsIVKone::Vuosiluvut clsIVKone::VuodenLuvut() const try {
  using Raja = std::numeric_limits<double>;
  const clsKayntiAjat& ajat = KayntiAikaYleistiedot;
  const double tunteja =
      kkWhperMWh * Vuosisumma([&ajat](int m) {
        return ajat.KayntiAikaPerKuukausi(m, ajat.KayntiaikojenSyottotapaID, Raja::min(), Raja::infinity());
      });
  return {tunteja, VuotuinenIVjalkilammitysLampo(), Vuosisumma(LtoEnergia()), VuotuinenPuhallinSahko()};
} catch (...) {
  NostaVirhe("clsIVKone:VuodenLuvut Method", Virheenkohde{KoneenTunnus});
}
