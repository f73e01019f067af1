// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Toimenpidesarakkeet.h"

#include <algorithm>
#include <span>
#include <stdexcept>

#include "measures/clsSaastotoimenpide.h"
#include "measures/clsValittuToimenpide.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_elinkaari.h"
#include "tekstit/lomakkeet_toimenpideluettelo.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kKokonaisina = "### ##0";
constexpr const char* kEiLukua = "---";

/// What shown amounts are multiplied by: the currency, with VAT or without.
struct Kertoimet {
  double lampo = Asetukset().NayttoKerroin(Energialaji::Lampo);
  double sahko = Asetukset().NayttoKerroin(Energialaji::Sahko);
  double vesi = Asetukset().NayttoKerroin(Energialaji::Vesi);
  double yleinen = Asetukset().NayttoKerroin(Energialaji::Yleinen);
};

using Rivi = Toimenpiderivi;
using Solu = void (*)(Luettelorivi&, const Rivi&, const Kertoimet&);

/// Cell of a number.
template <double (*Arvo)(const Rivi&, const Kertoimet&)>
constexpr Solu kLuku =
    [](Luettelorivi& solut, const Rivi& rivi, const Kertoimet& k) { solut.LisaaLuku(Arvo(rivi, k), kKokonaisina); };
/// The same number in every row: the emissions of single measures aren't calculated here.
template <int Luku>
constexpr Solu kVakio = kLuku<[](const Rivi&, const Kertoimet&) -> double { return Luku; }>;

/// With the factors of its parts, as Kustannussaastot::Yhteensa with their VAT.
double Yhteensa(const Kustannussaastot& s, const Kertoimet& k) {
  return (s.lampoEnergia + s.lampoTeho) * k.lampo + (s.sahkoEnergia + s.sahkoPatoTeho + s.sahkoLoisTeho) * k.sahko +
         s.vesi * k.vesi;
}

void Nimi(Luettelorivi& solut, const Rivi& rivi, const Kertoimet&) { solut.solut.push_back(rivi.nimi); }

/// A row that has never been computed has no figure yet.
void Nettosaasto(Luettelorivi& solut, const Rivi& rivi, const Kertoimet& k) {
  const double saasto = rivi.netto ? Yhteensa(rivi.netto->Kustannussaasto(), k) : 0;
  const bool vanhentunut = rivi.netto && !rivi.netto->TiedotUpToDate;
  if (vanhentunut) {
    solut.piirteet.merkitys = Merkitys::Vanhentunut;
    solut.piirteet.merkitty = static_cast<int>(solut.solut.size());
    solut.piirteet.selite = Teksti(tekstit::kNettosaastoVanhentunut);
  }
  if (!rivi.netto || (vanhentunut && saasto == 0))
    solut.solut.emplace_back(rivi.netto ? kEiLukua : "");
  else
    solut.LisaaLuku(saasto, kKokonaisina);
}

void Takaisinmaksu(Luettelorivi& solut, const Rivi& rivi, const Kertoimet&) {
  if (rivi.takaisinmaksuaika)
    solut.LisaaLuku(*rivi.takaisinmaksuaika, rivi.takaisinmaksukuvio);
  else
    solut.solut.emplace_back("--");
}

/// A figure over the life; a dash where there is none.
template <std::optional<double> Elinkaariluvut::*Luvun, bool Rahaa>
void Elinkaari(Luettelorivi& solut, const Rivi& rivi, const Kertoimet&) {
  if (const auto& luku = rivi.elinkaari.*Luvun)
    solut.LisaaLuku(*luku * (Rahaa ? Asetukset().dblCurrencyConvCoeff : 1),
                    Luvun == &Elinkaariluvut::nettonykyarvo ? kKokonaisina : "### ##0.0");
  else
    solut.solut.emplace_back(kEiLukua);
}

void Kohdentuminen(Luettelorivi& solut, const Rivi&, const Kertoimet&) {
  solut.solut.emplace_back("Koko kohde/Johtuminen/Tila1");
}

/// The views in which a column has width, a digit for each.
struct Sarake {
  std::string_view avain;
  Tekstinumero otsikko;
  std::string_view nakymat;
  Solu solu;
};

constexpr Sarake kSarakkeet[] = {
    {"KeyToimenpide", tekstit::kSarakeToimenpide, "01234", Nimi},
    {"KeySaastoMKYht", tekstit::kSarakeSaastoYhteensa, "012",
     kLuku<[](const Rivi& r, const Kertoimet& k) { return Yhteensa(r.kustannukset, k); }>},
    {"KeyNettosaasto", tekstit::kSarakeNettosaasto, "012", Nettosaasto},
    {"KeyTakaisinmaksuaika", tekstit::kSarakeTakaisinmaksu, "2", Takaisinmaksu},
    {"KeyInvestointi", tekstit::kSarakeInvestointi, "24",
     kLuku<[](const Rivi& r, const Kertoimet& k) { return r.investointi * k.yleinen; }>},
    {"KeyLampoEnergiaSaasto", tekstit::kSarakeLampoEnergia, "12",
     kLuku<[](const Rivi& r, const Kertoimet&) { return r.saasto.lampo; }>},
    {"KeyLampoKustannusSaasto", tekstit::kSarakeLampoEnergianKustannus, "02",
     kLuku<[](const Rivi& r, const Kertoimet& k) { return r.kustannukset.lampoEnergia * k.lampo; }>},
    {"KeyLampoTehoKustannusSaasto", tekstit::kSarakeLampotehonKustannus, "2",
     kLuku<[](const Rivi& r, const Kertoimet& k) { return r.kustannukset.lampoTeho * k.lampo; }>},
    {"KeySahkoEnergiaSaasto", tekstit::kSarakeSahkoEnergia, "12",
     kLuku<[](const Rivi& r, const Kertoimet&) { return r.saasto.sahko; }>},
    {"KeySahkoKustannusSaasto", tekstit::kSarakeSahkoEnergianKustannus, "02",
     kLuku<[](const Rivi& r, const Kertoimet& k) { return r.kustannukset.sahkoEnergia * k.sahko; }>},
    {"KeySahkoTehoKustannusSaasto", tekstit::kSarakeSahkotehonKustannus, "2",
     kLuku<[](const Rivi& r, const Kertoimet& k) {
       return (r.kustannukset.sahkoLoisTeho + r.kustannukset.sahkoPatoTeho) * k.sahko;
     }>},
    {"KeyEnergiaKustannusSaastoYht", tekstit::kSarakeEnergianKustannus, "2",
     kLuku<[](const Rivi& r, const Kertoimet& k) {
       return r.kustannukset.lampoEnergia * k.lampo + r.kustannukset.sahkoEnergia * k.sahko;
     }>},
    {"KeyVesiKulutusSaasto", tekstit::kSarakeVesi, "12",
     kLuku<[](const Rivi& r, const Kertoimet&) { return r.saasto.vesi; }>},
    {"KeyVesiKustannusSaasto", tekstit::kSarakeVedenKustannus, "02",
     kLuku<[](const Rivi& r, const Kertoimet& k) { return r.kustannukset.vesi * k.vesi; }>},
    {"KeyPaastotSaastoYht", tekstit::kSarakePaastot, "3", kVakio<1000>},
    {"KeyPaastotLampoSaasto", tekstit::kSarakeLammonPaastot, "3", kVakio<800>},
    {"KeyPaastotSahkoSaasto", tekstit::kSarakeSahkonPaastot, "", kVakio<200>},
    {"KeyKohdentuminen", tekstit::kSarakeKohdentuminen, "", Kohdentuminen},
    {"KeyNettonykyarvo", tekstit::kSarakeNettonykyarvo, "4", Elinkaari<&Elinkaariluvut::nettonykyarvo, true>},
    {"KeyDiskontattuTakaisinmaksu", tekstit::kSarakeDiskontattuTakaisinmaksu, "4",
     Elinkaari<&Elinkaariluvut::takaisinmaksuaika, false>},
    {"KeySisainenKorko", tekstit::kSarakeSisainenKorko, "4", Elinkaari<&Elinkaariluvut::sisainenKorko, false>},
    {"KeyEnergianHinta", tekstit::kSarakeSaastetynEnergianHinta, "4", Elinkaari<&Elinkaariluvut::energianHinta, true>},
};

/// Share of the list's width.
double Leveys(const Sarake& sarake, int nakyma, bool netto) {
  constexpr double kNimi = 1 / 2.9, kMuu = 1 / 4.7;
  if (sarake.nakymat.find(static_cast<char>('0' + nakyma)) == std::string_view::npos ||
      (sarake.solu == Nettosaasto && !netto))
    return 0;
  return sarake.solu == Nimi ? kNimi : kMuu;
}

}  // namespace

Toimenpiderivi ToimenpiteenRivi(clsSaastotoimenpide& toimenpide) {
  const Hyodykkeet saasto = toimenpide.Saasto();
  return {.nimi = toimenpide.Nimi,
          .saasto = saasto,
          .kustannukset = toimenpide.Kustannussaasto(saasto),
          .investointi = toimenpide.Investointi,
          .takaisinmaksuaika = toimenpide.Takaisinmaksuaika(Asetukset().NaytettavatAlvt())};
}

Toimenpiderivi JarjestelijanRivi(const clsValittuToimenpide& valittu) {
  Toimenpiderivi rivi{
      .nimi = valittu.Nimi,
      .saasto = {valittu.SaastoLampoEnergia, valittu.SaastoSahkoEnergia, valittu.SaastoVedenKulutus},
      .kustannukset = valittu.Kustannussaasto(),
      .investointi = valittu.Investointi,
      .takaisinmaksukuvio = "### ##0.0",
  };
  if (valittu.Tyyppi != clsValittuToimenpide::Yhteensa) rivi.takaisinmaksuaika = valittu.Takaisinmaksuaika;
  return rivi;
}

Luettelorivi ToimenpiderivinSolut(const Toimenpiderivi& rivi) {
  const Kertoimet kertoimet;
  Luettelorivi solut;
  for (const Sarake& sarake : kSarakkeet) sarake.solu(solut, rivi, kertoimet);
  return solut;
}

Luettelorivi LuvutonToimenpiderivi(const std::string& nimi) {
  Luettelorivi rivi{.solut = std::vector<std::string>(std::size(kSarakkeet), kEiLukua)};
  rivi.solut[static_cast<std::size_t>(Toimenpidesarake("KeyToimenpide"))] = nimi;
  return rivi;
}

void AsetaToimenpidesarakkeet(const ListView& lista, int nakyma, bool netto) {
  std::vector<Osa> osat;
  for (const Sarake& sarake : kSarakkeet)
    osat.push_back({.otsikko = RahayksikonKanssa(Teksti(sarake.otsikko), Asetukset().strDefaultCurrencyUnit),
                    .vihje = sarake.solu == Nettosaasto ? Teksti(tekstit::kNettosaastonVihje) : std::string(),
                    .leveys = Leveys(sarake, nakyma, netto)});
  lista.Kohde().Osat(std::move(osat));
}

int Toimenpidesarake(std::string_view avain) {
  const auto sarake = std::ranges::find(kSarakkeet, avain, &Sarake::avain);
  if (sarake == std::end(kSarakkeet)) throw std::out_of_range("toimenpiteiden luettelossa ei ole saraketta");
  return static_cast<int>(sarake - std::begin(kSarakkeet));
}
