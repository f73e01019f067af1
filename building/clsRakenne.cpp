// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsRakenne.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Hakemistot.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "library/Rakennetietokanta.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "solar/AurinkoLaskin.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "ui/Laskentakohde.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr double kPuskuritilanKerroin = 0.8;
constexpr double kTuntiaVuorokaudessa = 24;
constexpr double kWhPerkWh = 1000;
constexpr double kMJperkWh = 3.6;

/// Loss towards the ground, kWh/m² per month, by room temperature.
struct Maataulukko {
  double yli;  ///< holds above this room temperature, °C
  Kuukausitaulu haviot;
};
constexpr std::array<Maataulukko, 2> kMaataulukot{{
    {17, {2, 2.5, 3, 3, 3, 2.5, 2, 1, 0.5, 0.5, 1, 2}},
    {12, {1.4, 1.8, 2.2, 2.2, 2.2, 1.8, 1.4, 0.8, 0.3, 0.3, 0.8, 1.4}},
}};
constexpr double kAlinMaalampotila = 5;
constexpr Kuukausitaulu kViileaMaataulukko{0.8, 1.1, 1.3, 1.3, 1.3, 1.1, 0.8, 0.3, 0, 0, 0.3, 0.5};

/// The table of that room temperature; nothing below 5 °C, where there is no loss.
const Kuukausitaulu* Maahaviot(double Tsisa) {
  for (const Maataulukko& taulukko : kMaataulukot)
    if (Tsisa > taulukko.yli) return &taulukko.haviot;
  return Tsisa >= kAlinMaalampotila ? &kViileaMaataulukko : nullptr;
}

enum class Johtumistapa { Ei, Ilmaan, Maahan };

struct Johtuminen {
  Johtumistapa tapa = Johtumistapa::Ei;
  double WperK = 0;  ///< to air: conductance, W/K
};

Johtuminen MuodostaJohtuminen(const clsRakenne& r) {
  if (r.Rakennetyyppi == Rakennelaji::Ikkuna || r.Rakennetyyppi == Rakennelaji::Ovi)
    return {Johtumistapa::Ilmaan, r.PintaAla * r.U_arvo()};
  if (r.Rakennetyyppi < Rakennelaji::Ulkoseina || r.Rakennetyyppi > Rakennelaji::Alapohja) return {};
  switch (r.TyyppiID) {
    case kUlkoilma:
      return {Johtumistapa::Ilmaan, r.PintaAla * r.U_arvo()};
    case kPuskuritila:
      return {Johtumistapa::Ilmaan, r.U_arvo() * kPuskuritilanKerroin * r.PintaAla};
    case kMaa:
      return {Johtumistapa::Maahan};
    default:
      return {};
  }
}

double HavioIlmaan(double WperK, double Tsisa, double Tulko, int paivia) {
  return (Tsisa - Tulko) * WperK * paivia * kTuntiaVuorokaudessa / kWhPerkWh;
}

double HavioMaahan(const clsRakenne& rakenne, double Tsisa, int kuukausi) {
  if (const Kuukausitaulu* haviot = Maahaviot(Tsisa))
    return rakenne.PintaAla * (*haviot)[static_cast<std::size_t>(kuukausi)];
  const std::string nimi = rakenne.NaytettavaNimi();
  const Laskentakohde kohde(nimi, Laskentakohde::Tapa::Omistajineen);
  Ilmoita(Teksti(tekstit::kLiianKylmaMaanvastaiselle));
  return 0;
}

/// Latitude by locality: Hanko, Helsinki, Ivalo, ... Vaasa; degrees.
constexpr std::array<double, 16> kLeveysasteet{60, 60, 65, 63, 62, 63, 63, 61, 61, 60, 65, 61, 65, 61, 60, 62};

/// The zone is a formal carrier of the gains; its figures are constants of the method.
constexpr double kVyohykkeenAsetuslampotila = 21.0, kVyohykkeenTilavuus = 500.0, kVyohykkeenKoko = 60.0;

/// Paths of the calculator's files, put together once a thread for each program folder and weather file.
struct Aurinkotiedostot {
  std::string koti, saaNimi, saa, fh, ff, fo;

  static const Aurinkotiedostot& Saalle(const std::string& nimi) {
    thread_local Aurinkotiedostot t;
    if (t.saaNimi != nimi || t.koti != AppPath())
      t = {AppPath(),
           nimi,
           Aineistotiedosto(nimi),
           Aineistotiedosto("CenFh_Table.txt"),
           Aineistotiedosto("CenFf_Table.txt"),
           Aineistotiedosto("CenFo_Table.txt")};
    return t;
  }
};

LaskentaVyohyke MuodostaVyohyke() {
  LaskentaVyohyke vyohyke;
  for (int kuukausi = 1; kuukausi <= kKuukausia; ++kuukausi)
    vyohyke.Asetuslampotila(kuukausi) = kVyohykkeenAsetuslampotila;
  vyohyke.Tilavuus = kVyohykkeenTilavuus;
  vyohyke.Koko = kVyohykkeenKoko;
  return vyohyke;
}

LaskentaIkkuna MuodostaIkkuna(const clsRakenne& r, const Aurinkotiedostot& tiedostot) {
  constexpr double kProsentti = 100;
  LaskentaIkkuna ikkuna;
  ikkuna.Suuntaus = r.SuuntausID;
  ikkuna.PintaAla = r.PintaAla;
  ikkuna.U_arvo = r.U_arvo();
  ikkuna.Aurinkoenergianlapaisy = r.RakenneRatkaisu->Aurinkoenergianlapaisy / kProsentti;
  ikkuna.Karmikerroin = r.RakenneRatkaisu->Karmikerroin / kProsentti;
  ikkuna.Verhokerroin = r.RakenneRatkaisu->Verhokerroin / kProsentti;
  ikkuna.SivuLippaKulma = r.SivuLippa.Varjostuskulma;
  ikkuna.YlaLippaKulma = r.YlaLippa.Varjostuskulma;
  ikkuna.LataaFf(tiedostot.ff);
  ikkuna.LataaFo(tiedostot.fo);
  return ikkuna;
}

}  // namespace

constexpr Jasen clsRakenne::kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsRakenne::Rakennetyyppi>("Rakennetyyppi"),
    Arvo<&clsRakenne::TyyppiID>("TyyppiID"),
    Arvo<&clsRakenne::TyyppiStr>("TyyppiStr"),
    Arvo<&clsRakenne::SuuntausID>("SuuntausID"),
    Arvo<&clsRakenne::SuuntausStr>("SuuntausStr"),
    Arvo<&clsRakenne::PintaAla>("PintaAla", Suure("m²").Rajat(0).Tavallisesti(0, 100000)),
    Ominaisuus<clsRakenne, [](const clsRakenne& r) { return r.U_arvo(); }, [](clsRakenne& r, double u) { r.U_arvo(u); },
               &clsRakenne::u_arvo_>("U_arvo", Suure("W/m²K").Rajat(0, 20).Tavallisesti(0.05, 6)),
    Arvo<&clsRakenne::LaskeU_arvoMateriaaleista>("LaskeU_arvoMateriaaleista"),
    Lapsi<&clsRakenne::RakenneRatkaisu>("RakenneRatkaisu"),
    Lapsi<&clsRakenne::HorisVarjostus>("HorisVarjostus"),
    Lapsi<&clsRakenne::SivuLippa>("SivuLippa"),
    Lapsi<&clsRakenne::YlaLippa>("YlaLippa"),
    Arvo<&clsRakenne::RakennekannanVersio>("RakennekannanVersio"),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Lukutulos<[](const clsRakenne& r) { return r.U_arvo(); }>("U_arvo", tekstit::kUArvo, "W/m²K"),
    Kuukausitulos<[](const clsRakenne& r, const Tuloskohde& kohde, int m) {
      return r.LampoHaviot(kohde.Omistaja<clsTila>().Sisalampotila, m);
    }>("LampoHaviot", tekstit::kTasetermit[0]),
    Kuukausitulos<&clsRakenne::AurinkoKuorma>("AurinkoKuorma", tekstit::kTasetermit[6]),
};

const Luokka clsRakenne::kLuokka{"clsRakenne", kJasenet, kTulokset};

clsRakenne::clsRakenne() : RakennekannanVersio(Asetukset().TietokannanVersio()) {}

double clsRakenne::U_arvo() const {
  if (!LaskeU_arvoMateriaaleista || !RakenneRatkaisu) return u_arvo_;
  return RakenneRatkaisu->LaskeU_arvo().value_or(u_arvo_);
}

std::string clsRakenne::NaytettavaNimi() const {
  if (RakenneRatkaisu && !RakenneRatkaisu->Nimi.empty()) return RakenneRatkaisu->Nimi;
  static const auto lajit = Valintalista("frmRakenteet", "cmbRakennetyyppi");  // after the row of all kinds
  const auto laji = static_cast<std::size_t>(Rakennetyyppi) + 1;
  return laji < lajit.size() ? lajit[laji] : std::string();
}

void clsRakenne::OtaRatkaisu(const Rakenneratkaisu& ratkaisu) {
  RakenneRatkaisu.Luo() = ratkaisu;
  Rakennetyyppi = RakennetyyppiSanasta(ratkaisu.Rakennetyyppi).value_or(Rakennetyyppi);
  LaskeU_arvoMateriaaleista = !ratkaisu.U_arvoAnnettu;
  if (ratkaisu.U_arvoAnnettu && ratkaisu.U_arvo > 0) U_arvo(ratkaisu.U_arvo);
  RakennekannanVersio = Asetukset().TietokannanVersio();
}

void clsRakenne::PaivitaMateriaalitVakiokannasta(Rakennetietokanta& kanta) try {
  if (RakenneRatkaisu) kanta.PaivitaMateriaalit(*RakenneRatkaisu);
  RakennekannanVersio = Asetukset().TietokannanVersio();
} catch (...) {
  NostaVirhe("clsRakenne:PaivitaMateriaalitVakiokannasta Method");
}

double clsRakenne::LampoHaviot(double Tsisa, int kuukausi) const try {
  const Johtuminen johtuminen = MuodostaJohtuminen(*this);
  if (johtuminen.tapa == Johtumistapa::Maahan) return HavioMaahan(*this, Tsisa, TarkistaKuukausi(kuukausi));
  if (johtuminen.tapa == Johtumistapa::Ei) return 0;
  return HavioIlmaan(johtuminen.WperK, Tsisa, koti_.Rakennus().Saa.Keskilampotila(kuukausi),
                     kPaivatKuukaudessa[static_cast<std::size_t>(kuukausi)]);
} catch (...) {
  NostaVirhe("clsRakenne:LampoHaviot Method");
}

void clsRakenne::LisaaLampoHaviot(double Tsisa, const Kuukausitaulu& ulkolampotilat, Kuukausitaulu& summa) const try {
  const Johtuminen johtuminen = MuodostaJohtuminen(*this);
  if (johtuminen.tapa == Johtumistapa::Ilmaan) {
    Kuukausitaulu haviot;
    for (std::size_t m = 0; m < kKuukausia; ++m)
      haviot[m] = HavioIlmaan(johtuminen.WperK, Tsisa, ulkolampotilat[m], kPaivatKuukaudessa[m]);
    for (std::size_t m = 0; m < kKuukausia; ++m) summa[m] += haviot[m];
  }
  if (johtuminen.tapa == Johtumistapa::Maahan)
    for (std::size_t m = 0; m < kKuukausia; ++m) summa[m] += HavioMaahan(*this, Tsisa, static_cast<int>(m));
} catch (...) {
  NostaVirhe("clsRakenne:LampoHaviot Method");
}

double clsRakenne::AurinkoKuorma(int kuukausi) try {
  const auto m = static_cast<std::size_t>(TarkistaKuukausi(kuukausi));
  if (!aurinkokuormatUpToDate_)
    LaskeAurinkokuormat();
  else if (kuukausi == kKuukausia - 1)
    aurinkokuormatUpToDate_ = false;
  return aurinkoKuormat_.arvo[m];
} catch (...) {
  NostaVirhe("clsRakenne:AurinkoKuorma Method");
}

const Kuukausitaulu& clsRakenne::AurinkoKuormat() try {
  if (!aurinkokuormatUpToDate_) LaskeAurinkokuormat();
  aurinkokuormatUpToDate_ = false;
  return aurinkoKuormat_.arvo;
} catch (...) {
  NostaVirhe("clsRakenne:AurinkoKuorma Method");
}

void clsRakenne::PaivitaAurinkokuormat() try {
  LaskeAurinkokuormat();
  aurinkokuormatUpToDate_ = true;
} catch (...) {
  NostaVirhe("clsRakenne:PaivitaAurinkokuormat Method");
}

void clsRakenne::LaskeAurinkokuormat() {
  Kuukausitaulu& kuormat = aurinkoKuormat_.arvo;
  kuormat = {};
  if (Rakennetyyppi != Rakennelaji::Ikkuna || !RakenneRatkaisu) return;
  const clsRakennus& rakennus = koti_.Rakennus();
  const Aurinkotiedostot& tiedostot = Aurinkotiedostot::Saalle(rakennus.Saa.SaaFileNimi);
  AurinkoLaskin laskin;
  laskin.LataaSaa(tiedostot.saa);
  const auto paikkakunta = static_cast<std::size_t>(rakennus.Perustiedot.LammTarveLukuPaikkakuntaID());
  if (paikkakunta < kLeveysasteet.size()) laskin.Leveysaste = kLeveysasteet[paikkakunta];
  laskin.LataaFh(tiedostot.fh);
  static const LaskentaVyohyke kVyohyke = MuodostaVyohyke();
  laskin.Vyohykkeet.Add(kVyohyke);
  laskin.HorisonttiKulma(SuuntausID, HorisVarjostus.Varjostuskulma);
  laskin.Ikkunat.Add(MuodostaIkkuna(*this, tiedostot));
  laskin.Laske();
  for (int m = 0; m < kKuukausia; ++m) kuormat[static_cast<std::size_t>(m)] = laskin.AurinkoEnergia(m + 1) / kMJperkWh;
  aurinkokuormatUpToDate_ = true;
}
