// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsTila.h"

#include <algorithm>
#include <cmath>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/tulokset.h"
#include "tekstit/virheet.h"
#include "ui/Edistyminen.h"
#include "ui/Laskentakohde.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsTila::TilanNimi>("TilanNimi"),
    Arvo<&clsTila::Kokonaistilavuus>("Kokonaistilavuus", Suure("m³").Rajat(0).Tavallisesti(1, 500000)),
    Arvo<&clsTila::BruttoAla>("BruttoAla", Suure("m²").Rajat(0.1).Tavallisesti(1, 100000)),
    Arvo<&clsTila::TilanHenkilomaara>("TilanHenkilomaara", Suure("hlö").Rajat(0).Tavallisesti(0, 10000)),
    Arvo<&clsTila::TilanKayttoaikaID>("TilanKayttoaikaID"),
    Arvo<&clsTila::TilanKayttoaikaStr>("TilanKayttoaikaStr"),
    Arvo<&clsTila::TilanKayttoaikaHpA>("TilanKayttoaikaHpA", Suure("h/a").Rajat(0, 8760)),
    Arvo<&clsTila::Sisalampotila>("Sisalampotila", Suure("°C").Rajat(-50, 60).Tavallisesti(5, 30)),
    Arvo<&clsTila::Sahkolammitys>("Sahkolammitys"),
    Arvo<&clsTila::Kuvausteksti>("Kuvausteksti"),
    Arvo<&clsTila::LammitettyTila>("LammitettyTila"),
    Arvo<&clsTila::PainovoimainenIVMaara>("PainovoimainenIVMaara", Suure("1/h").Rajat(0).Tavallisesti(0, 10)),
    Arvo<&clsTila::Vuotoilmanvaihto>("Vuotoilmanvaihto", Suure("1/h").Rajat(0).Tavallisesti(0, 2)),
    Arvo<&clsTila::PainovoimainenIlmanvaihto>("PainovoimainenIlmanvaihto"),
    Arvo<&clsTila::SaatotapaID>("SaatotapaID"),
    Arvo<&clsTila::SaatotapaStr>("SaatotapaStr"),
    Arvo<&clsTila::Saatohyotysuhde>("Saatohyotysuhde", Suure("%").Tavallisesti(50, 100)),
    Arvo<&clsTila::RakenteidenDynamiikkaID>("RakenteidenDynamiikkaID"),
    Arvo<&clsTila::RakenteidenDynamiikkaStr>("RakenteidenDynamiikkaStr"),
    Lapsi<&clsTila::Rakenteet>("Rakenteet"),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&clsTila::TilanNimi>("TilanNimi", tekstit::kTilanNimi),
    Kuukausitulos<&clsTila::JohtumisHaviot>("JohtumisHaviot", tekstit::kTasetermit[0]),
    Kuukausitulos<&clsTila::IVHaviotTilassa>("IVHaviotTilassa", tekstit::kTilanIlmanvaihto),
    Kuukausitulos<[](clsTila& t, int m) { return t.IVHaviotTilassa(m) - t.Vuotoilma(m); }>("KoneidenHaviot",
                                                                                           tekstit::kTasetermit[1]),
    Kuukausitulos<&clsTila::Vuotoilma>("Vuotoilma", tekstit::kTasetermit[2]),
    Kuukausitulos<&clsTila::LampoHaviot>("LampoHaviot", tekstit::kTasetermit[3]),
    Kuukausitulos<&clsTila::SahkoKuorma>("SahkoKuorma", tekstit::kTasetermit[4]),
    Kuukausitulos<&clsTila::HenkiloKuorma>("HenkiloKuorma", tekstit::kTasetermit[5]),
    Kuukausitulos<&clsTila::AurinkoKuorma>("AurinkoKuorma", tekstit::kTasetermit[6]),
    Kuukausitulos<&clsTila::IVKoneLampoKuorma>("IVKoneLampoKuorma", tekstit::kTasetermit[7]),
    Kuukausitulos<&clsTila::IdeaalinenHyvaksiKayttoAste>("IdeaalinenHyvaksiKayttoAste", tekstit::kHyodyntamisaste, "",
                                                         "0.00"),
    Kuukausitulos<&clsTila::HyodynnetytLampoKuormat>("HyodynnetytLampoKuormat", tekstit::kTasetermit[10]),
    Kuukausitulos<&clsTila::LampoEnergianTarve>("LampoEnergianTarve", tekstit::kTasetermit[11]),
    Vuositulos<&clsTila::VuotuisetJohtumisHaviot>("VuotuisetJohtumisHaviot", tekstit::kTasetermit[0]),
    Vuositulos<&clsTila::VuotuisetIVHaviotTilassa>("VuotuisetIVHaviotTilassa", tekstit::kTilanIlmanvaihto),
    Vuositulos<&clsTila::VuotuisetLampoHaviot>("VuotuisetLampoHaviot", tekstit::kTasetermit[3]),
    Vuositulos<&clsTila::VuotuinenSahkoKuorma>("VuotuinenSahkoKuorma", tekstit::kTasetermit[4]),
    Vuositulos<&clsTila::VuotuinenHenkiloKuorma>("VuotuinenHenkiloKuorma", tekstit::kTasetermit[5]),
    Vuositulos<&clsTila::VuotuinenAurinkoKuorma>("VuotuinenAurinkoKuorma", tekstit::kTasetermit[6]),
    Vuositulos<&clsTila::VuotuinenIVKoneLampoKuorma>("VuotuinenIVKoneLampoKuorma", tekstit::kTasetermit[7]),
    Vuositulos<&clsTila::VuotuisetHyodynnetytLampoKuormat>("VuotuisetHyodynnetytLampoKuormat",
                                                           tekstit::kTasetermit[10]),
    Vuositulos<&clsTila::VuotuinenLampoEnergianTarve>("VuotuinenLampoEnergianTarve", tekstit::kTasetermit[11]),
    Vuositulos<&clsTila::VuotuisetSaatohaviot>("VuotuisetSaatohaviot", tekstit::kSaatohaviot),
    Kokoelmatulos<&clsTila::Rakenteet>("Rakenteet"),
};

constexpr double kHenkiloOmKuorma = 95.3454545454548;  // heat given off by one person, W
constexpr double kIlmanTiheys = 1.2;                   // kg/m³
constexpr double kIlmanLampokapasiteetti = 1.006;      // kJ/(kg·K)
constexpr double kSekuntiaTunnissa = 3600;
constexpr double kTuntiaVuorokaudessa = 24;
constexpr double kkWhperMWh = 1000;

// The heating season, months 0 to 11: it wraps the turn of the year and takes in every month as it stands.
constexpr int kLammityskaudenAlku = 6, kLammityskaudenLoppu = 5;

bool OnLammityskautta(int kuukausi) { return kuukausi >= kLammityskaudenAlku || kuukausi <= kLammityskaudenLoppu; }

}  // namespace

const Luokka clsTila::kLuokka{"clsTila", kJasenet, kTulokset};

void clsTila::Kotiudu(const Koti& koti) {
  koti_.Muuta(koti);
  Rakenteet.Kotiudu(koti);
}

void clsTila::AurKuormatTilassaUpToDate(bool voimassa) noexcept {
  aurKuormatUpToDate_ = voimassa;
  if (!voimassa)
    for (clsRakenne& rakenne : Rakenteet) rakenne.MitatoiAurinkokuormat();
}

void clsTila::TaseUpToDate(bool voimassa) noexcept {
  IVHaviotTilassaUpToDate(voimassa);
  AurKuormatTilassaUpToDate(voimassa);
  JohtumishaviotUpToDate(voimassa);
}

double clsTila::JohtumisHaviot(int kuukausi) const try {
  const Laskentakohde kohde(TilanNimi);
  const auto m = static_cast<std::size_t>(TarkistaKuukausi(kuukausi));
  return johtumishaviotUpToDate_ ? johtumishaviot_.arvo[m] : Rakenteet.LampoHaviot(Sisalampotila, kuukausi);
} catch (...) {
  NostaVirhe("clsTila:JohtumisHaviot Method", Virheenkohde{TilanNimi});
}

double clsTila::Vuotoilma(int kuukausi) const try {
  const auto m = static_cast<std::size_t>(TarkistaKuukausi(kuukausi));
  const double n = PainovoimainenIlmanvaihto ? PainovoimainenIVMaara : Vuotoilmanvaihto;
  const double q = Kokonaistilavuus * n / kSekuntiaTunnissa;
  return q * kIlmanTiheys * kIlmanLampokapasiteetti * (Sisalampotila - koti_.Rakennus().Saa.Keskilampotila(kuukausi)) *
         kPaivatKuukaudessa[m] * kTuntiaVuorokaudessa;
} catch (...) {
  NostaVirhe("clsTila:Vuotoilma Method", Virheenkohde{TilanNimi});
}

clsTila::Koneet clsTila::LiittyvatKoneet() const {
  return koti_.Rakennus().IVKoneet.ListaaTilaanLiittyvatIVKoneet(sKey);
}

/// Nothing with natural ventilation.
void clsTila::LisaaKone(const clsIVKone& kone, IVTase& tase) const {
  if (PainovoimainenIlmanvaihto) return;
  const Laskentakohde kohde(TilanNimi);
  const Kuukausitaulu vaikutus = kone.HaviotTilaan(Sisalampotila);
  for (std::size_t m = 0; m < kKuukausia; ++m)
    (vaikutus[m] > 0 ? tase.haviot : tase.kuormat)[m] += std::abs(vaikutus[m]);
}

clsTila::IVTase clsTila::Koneista() const {
  IVTase tase;
  for (const clsIVKone* kone : LiittyvatKoneet()) LisaaKone(*kone, tase);
  return tase;
}

double clsTila::IVHaviotTilassa(int kuukausi) const try {
  const auto m = static_cast<std::size_t>(TarkistaKuukausi(kuukausi));
  return ivHaviotUpToDate_ ? ivHaviot_.arvo[m] : Koneista().haviot[m] + Vuotoilma(kuukausi);
} catch (...) {
  NostaVirhe("clsTila:IVHaviotTilassa Method", Virheenkohde{TilanNimi});
}

// The gains have a flag of their own, which a change leaves standing: it is the losses' flag that tells whether both
// hold.
double clsTila::IVKoneLampoKuorma(int kuukausi) const try {
  const auto m = static_cast<std::size_t>(TarkistaKuukausi(kuukausi));
  return ivHaviotUpToDate_ && ivKuormatUpToDate_ ? ivKuormat_.arvo[m] : Koneista().kuormat[m];
} catch (...) {
  NostaVirhe("clsTila:IVKoneLampoKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::LampoHaviot(int kuukausi) const try {
  return JohtumisHaviot(kuukausi) + IVHaviotTilassa(kuukausi);
} catch (...) {
  NostaVirhe("clsTila:LampoHaviot Method", Virheenkohde{TilanNimi});
}

void clsTila::PaivitaSahkoOmKuorma() try {
  const Laskentakohde kohde(TilanNimi);
  clsRakennus& rakennus = koti_.Rakennus();
  const clsTilat& tilat = rakennus.Tilat;
  if (BruttoAla <= 0) return NaytaVirhe(virheet::kBruttoalaPuuttuu);
  if (tilat.KaytaTotSahkoKuormia) {
    const double sahko = rakennus.Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Sahko;
    sahkoOmKuorma_ = tilat.TotSahkoKuormaPros * kkWhperMWh * sahko / BruttoAla / 100 / kKuukausia;
  } else {
    const double yleiskuorma = rakennus.LaskeYleisSahkoKuorma();
    sahkoOmKuorma_ = rakennus.SahkonKulutusryhmat.TilanSahkoKuorma(sKey) / BruttoAla + yleiskuorma;
  }
} catch (...) {
  NostaVirhe("clsTila:PaivitaSahkoOmKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::SahkoKuorma(int kuukausi) const try {
  TarkistaKuukausi(kuukausi);
  return BruttoAla * sahkoOmKuorma_;
} catch (...) {
  NostaVirhe("clsTila:SahkoKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::HenkiloKuorma(int kuukausi) const try {
  TarkistaKuukausi(kuukausi);
  return TilanHenkilomaara * kHenkiloOmKuorma * TilanKayttoaikaHpA / 1000 / kKuukausia;
} catch (...) {
  NostaVirhe("clsTila:HenkiloKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::AurinkoKuorma(int kuukausi) const try {
  const auto m = static_cast<std::size_t>(TarkistaKuukausi(kuukausi));
  if (aurKuormatUpToDate_) return aurKuormat_.arvo[m];
  double summa = 0;
  for (clsRakenne& rakenne : Rakenteet)
    if (rakenne.PaastaaAuringon()) summa += rakenne.AurinkoKuorma(kuukausi);
  return summa;
} catch (...) {
  NostaVirhe("clsTila:AurinkoKuorma Method", Virheenkohde{TilanNimi});
}

clsTila::Tase clsTila::KuukaudenTase(int kuukausi) const {
  const double L = LampoHaviot(kuukausi);
  const double G =
      SahkoKuorma(kuukausi) + AurinkoKuorma(kuukausi) + HenkiloKuorma(kuukausi) + IVKoneLampoKuorma(kuukausi);
  return {L, G, G <= 0 ? 0.0 : std::min(L / G, 1.0)};
}

double clsTila::IdeaalinenHyvaksiKayttoAste(int kuukausi) const try {
  return KuukaudenTase(kuukausi).hyvaksikayttoaste;
} catch (...) {
  NostaVirhe("clsTila:IdeaalinenHyvaksiKayttoAste Method", Virheenkohde{TilanNimi});
}

double clsTila::HyodynnetytLampoKuormat(int kuukausi) const try {
  const Tase tase = KuukaudenTase(kuukausi);
  return tase.kuormat * tase.hyvaksikayttoaste;
} catch (...) {
  NostaVirhe("clsTila:HyodynnetytLampoKuormat Method", Virheenkohde{TilanNimi});
}

double clsTila::KuukaudenTarve(int kuukausi) const {
  const Tase tase = KuukaudenTase(kuukausi);
  return tase.haviot - tase.kuormat * tase.hyvaksikayttoaste;
}

double clsTila::LampoEnergianTarve(int kuukausi) try {
  PaivitaSahkoOmKuorma();
  return KuukaudenTarve(kuukausi);
} catch (...) {
  NostaVirhe("clsTila:LampoEnergianTarve Method", Virheenkohde{TilanNimi});
}

template <class F>
double clsTila::Vuosisumma(F&& kuukausiarvo) {
  double summa = 0;
  for (int m = 0; m < kKuukausia; ++m) summa += kuukausiarvo(m);
  return Aarellinen(summa / kkWhperMWh);
}

double clsTila::VuotuisetJohtumisHaviot() const try {
  return Vuosisumma([this](int m) { return JohtumisHaviot(m); });
} catch (...) {
  NostaVirhe("clsTila:VuotuisetJohtumisHaviot Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuisetIVHaviotTilassa() const try {
  return Vuosisumma([this](int m) { return IVHaviotTilassa(m); });
} catch (...) {
  NostaVirhe("clsTila:VuotuisetIVHaviotTilassa Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuisetLampoHaviot() const try {
  return Vuosisumma([this](int m) { return OnLammityskautta(m) ? LampoHaviot(m) : 0.0; });
} catch (...) {
  NostaVirhe("clsTila:VuotuisetLampoHaviot Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuinenSahkoKuorma() try {
  PaivitaSahkoOmKuorma();
  return Vuosisumma([this](int m) { return SahkoKuorma(m); });
} catch (...) {
  NostaVirhe("clsTila:VuotuinenSahkoKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuinenHenkiloKuorma() const try {
  return Aarellinen(TilanHenkilomaara * kHenkiloOmKuorma * TilanKayttoaikaHpA / 1000000);
} catch (...) {
  NostaVirhe("clsTila:VuotuinenHenkiloKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuinenAurinkoKuorma() const try {
  return Vuosisumma([this](int m) { return AurinkoKuorma(m); });
} catch (...) {
  NostaVirhe("clsTila:VuotuinenAurinkoKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuinenIVKoneLampoKuorma() const try {
  return Vuosisumma([this](int m) { return IVKoneLampoKuorma(m); });
} catch (...) {
  NostaVirhe("clsTila:VuotuinenIVKoneLampoKuorma Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuisetHyodynnetytLampoKuormat() try {
  PaivitaSahkoOmKuorma();
  return Vuosisumma([this](int m) { return HyodynnetytLampoKuormat(m); });
} catch (...) {
  NostaVirhe("clsTila:VuotuisetHyodynnetytLampoKuormat Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuinenLampoEnergianTarve() try {
  const Laskentakohde kohde(TilanNimi);
  const clsRakennus& rakennus = koti_.Rakennus();
  const double paikkakunta = rakennus.Perustiedot.NormVuodenLammTarveLuku;
  const double vyohyke = rakennus.Saa.NormVuodenLammTarveLuku;
  PaivitaSahkoOmKuorma();
  if (!ivHaviotUpToDate_) PaivitaIVHaviotTilassa();
  if (!aurKuormatUpToDate_) PaivitaAurKuormatTilassa();
  if (!johtumishaviotUpToDate_) PaivitaJohtumishaviot();
  if (vyohyke <= 0) return NaytaVirhe(virheet::kLammitystarvelukuPuuttuu), 0;
  double tarve = 0;
  for (int m = 0; m < kKuukausia; ++m)
    if (OnLammityskautta(m)) tarve += KuukaudenTarve(m);
  return Aarellinen(tarve * (paikkakunta / vyohyke) / kkWhperMWh);
} catch (...) {
  NostaVirhe("clsTila:VuotuinenLampoEnergianTarve Method", Virheenkohde{TilanNimi});
}

double clsTila::VuotuisetSaatohaviot() try {
  return Aarellinen((100 - Saatohyotysuhde) * VuotuisetHyodynnetytLampoKuormat() / 100);
} catch (...) {
  NostaVirhe("clsTila:VuotuisetSaatohaviot Method", Virheenkohde{TilanNimi});
}

void clsTila::PaivitaIVHaviotTilassa() try {
  Edistyminen edistyminen;
  PaivitaIVHaviotTilassa(ivHaviotUpToDate_ ? Koneet{} : LiittyvatKoneet(), edistyminen);
} catch (...) {
  NostaVirhe("clsTila:PaivitaIVHaviotTilassa Method", Virheenkohde{TilanNimi});
}

void clsTila::PaivitaIVHaviotTilassa(const Koneet& koneet, Edistyminen& edistyminen) try {
  if (!ivHaviotUpToDate_) LaskeIVHaviot(koneet, edistyminen);
  ivHaviotUpToDate_ = true;
  ivKuormatUpToDate_ = true;
} catch (...) {
  NostaVirhe("clsTila:PaivitaIVHaviotTilassa Method", Virheenkohde{TilanNimi});
}

void clsTila::LaskeIVHaviot(const Koneet& koneet, Edistyminen& edistyminen) {
  IVTase tase;
  for (const clsIVKone* kone : koneet) {
    edistyminen.Nayta("Lasketaan ilmanvaihtokonetta: ", kone->KoneenTunnus);
    LisaaKone(*kone, tase);
  }
  for (int m = 0; m < kKuukausia; ++m)
    if (OnLammityskautta(m)) tase.haviot[static_cast<std::size_t>(m)] += Vuotoilma(m);
  ivHaviot_.arvo = tase.haviot;
  ivKuormat_.arvo = tase.kuormat;
}

void clsTila::PaivitaIVKuormatTilassa() try {
  for (int m = 0; m < kKuukausia; ++m)
    ivKuormat_.arvo[static_cast<std::size_t>(m)] = OnLammityskautta(m) ? IVKoneLampoKuorma(m) : 0;
  ivKuormatUpToDate_ = true;
} catch (...) {
  NostaVirhe("clsTila:PaivitaIVKuormatTilassa Method", Virheenkohde{TilanNimi});
}

void clsTila::PaivitaAurKuormatTilassa() try {
  if (aurKuormatUpToDate_) return;
  Kuukausitaulu summa{};
  for (clsRakenne& rakenne : Rakenteet) {
    if (!rakenne.PaastaaAuringon()) continue;
    const Kuukausitaulu& kuormat = rakenne.AurinkoKuormat();
    for (std::size_t m = 0; m < kKuukausia; ++m) summa[m] += kuormat[m];
  }
  aurKuormat_.arvo = summa;
  aurKuormatUpToDate_ = true;
} catch (...) {
  NostaVirhe("clsTila:PaivitaAurKuormatTilassa Method", Virheenkohde{TilanNimi});
}

void clsTila::PaivitaJohtumishaviot() try {
  if (johtumishaviotUpToDate_) return;
  const Laskentakohde kohde(TilanNimi);
  johtumishaviot_.arvo = Rakenteet.LampoHaviot(Sisalampotila);
  johtumishaviotUpToDate_ = true;
} catch (...) {
  NostaVirhe("clsTila:PaivitaJohtumishaviot Method", Virheenkohde{TilanNimi});
}
