// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Muutoskuvaus.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Kellonajat.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Luetteleminen.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpide.h"
#include "supply/clsEnergianHankinta.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_puhaltimet.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/lomakkeet_toimenpide.h"
#include "tekstit/rakennus.h"
#include "ventilation/clsIVKone.h"

namespace {

/// As exactly as a comparison sees numbers.
constexpr const char* kTarkka = "### ##0.#####";

template <class T, auto Nimi>
std::string Nimeksi(const Olio& olio) {
  return std::invoke(Nimi, static_cast<const T&>(olio));
}

template <std::size_t N>
std::string Kohdalta(const std::array<Tekstinumero, N>& tekstit, int paikka) {
  return paikka >= 0 && std::cmp_less(paikka, N) ? Teksti(tekstit[static_cast<std::size_t>(paikka)]) : std::string();
}

constexpr auto kHankinnanNimi = [](const clsEnergianHankinta& hankinta) {
  constexpr std::array kNimet{tekstit::kLammonHankinta, tekstit::kSahkonHankinta, tekstit::kVedenHankinta};
  return Kohdalta(kNimet, hankinta.Kayttotarkoitus);
};
constexpr auto kVuodenaika = [](const clsKayntiAika& jakso) { return Kohdalta(tekstit::kVuodenajat, jakso.Jakso); };

/// What the person calls an object that has a name of its own; "" for others.
std::string OmaNimi(const Olio& olio) {
  struct Nimetty {
    const Luokka& luokka;
    std::string (*nimi)(const Olio&);
  };
  static const Nimetty kNimetyt[] = {
      {clsTila::kLuokka, Nimeksi<clsTila, &clsTila::TilanNimi>},
      {clsRakenne::kLuokka, Nimeksi<clsRakenne, &clsRakenne::NaytettavaNimi>},
      {clsIVKone::kLuokka, Nimeksi<clsIVKone, &clsIVKone::KoneenTunnus>},
      {clsKayntiAika::kLuokka, Nimeksi<clsKayntiAika, kVuodenaika>},
      {clsSahkonKulutusryhma::kLuokka, Nimeksi<clsSahkonKulutusryhma, &clsSahkonKulutusryhma::KulutusRyhma>},
      {clsVedenKulutusryhma::kLuokka, Nimeksi<clsVedenKulutusryhma, &clsVedenKulutusryhma::KulutusRyhma>},
      {clsEnergianHankinta::kLuokka, Nimeksi<clsEnergianHankinta, kHankinnanNimi>},
      {clsEnergiamuoto::kLuokka, Nimeksi<clsEnergiamuoto, &clsEnergiamuoto::Nimi>},
      {clsResurssi::kLuokka, Nimeksi<clsResurssi, &clsResurssi::Nimi>},
  };
  for (const Nimetty& nimetty : kNimetyt)
    if (&nimetty.luokka == &olio.LuokanTiedot()) return nimetty.nimi(olio);
  return {};
}

/// Name of the item; its number among those of the same name when there are several.
std::string AlkionNimi(KokoelmaPohja& alkiot, const Olio& alkio) {
  std::string nimi = OmaNimi(alkio);
  int samoja = 0, paikka = 0;
  for (int i = 1; i <= alkiot.Count(); ++i) {
    if (OmaNimi(alkiot.Pohja(i)) != nimi) continue;
    ++samoja;
    if (&alkiot.Pohja(i) == &alkio) paikka = samoja;
  }
  if (samoja > 1) nimi += " (" + std::to_string(paikka) + ")";
  return nimi;
}

std::string Liita(const std::string& ylempi, const std::string& alempi) {
  std::string nimi = ylempi;
  if (!alempi.empty()) LisaaLuetteloon(nimi, alempi);
  return nimi;
}

std::string Ominaisuusavain(std::string_view luokka, std::string_view ominaisuus) {
  return std::string(luokka) + "." + std::string(ominaisuus);
}

bool OnAvain(std::string_view nimi) {
  constexpr std::string_view kPaate = "Key";
  return nimi.size() > kPaate.size() && SamaNimi(nimi.substr(nimi.size() - kPaate.size()), kPaate);
}

/// The value that the object has.
void LueArvo(const Olio& olio, const Jasen& jasen, double& luku, std::string& teksti) {
  ArvoNakyma arvo;
  jasen.nayta(olio, arvo);
  luku = arvo.Lukuna();
  if (jasen.laji == Laji::Teksti) teksti = arvo.Teksti();
}

bool OnLuku(const Jasen* jasen) {
  return jasen && jasen->laji != Laji::Teksti && jasen->laji != Laji::Totuus && jasen->laji != Laji::Paivays;
}

}  // namespace

std::string Muutosrivi::Lause() const {
  const std::string alku = kohde.empty() ? std::string() : kohde + ": ";
  return alku + ominaisuus + " " + ennen + " → " + jalkeen;
}

Muutoskuvaus::Muutoskuvaus(clsRakennus& rakennus) : rakennus_(rakennus), nimet_(Ominaisuustekstit()) {}

std::vector<Muutosrivi> Muutoskuvaus::Rivit(clsSaastotoimenpide& toimenpide) const try {
  std::vector<Muutosrivi> rivit;
  std::vector<const clsMuuttunutAttribuutti*> kerrotut;
  const clsMuuttuneetAttribuutit& muutokset = toimenpide.MuuttuneetAttribuutit;
  for (const clsMuuttunutAttribuutti& muutos : muutokset) {
    const Yhdistelma yhdistelma = Yhdista(muutokset, muutos);
    if (!yhdistelma.arvo || std::ranges::find(kerrotut, yhdistelma.arvo) != kerrotut.end()) continue;
    kerrotut.push_back(yhdistelma.arvo);
    rivit.push_back(Rivi(yhdistelma, EtsiKohde(toimenpide, *yhdistelma.arvo)));
  }
  return rivit;
} catch (...) {
  NostaVirhe("Muutoskuvaus:Rivit Method");
}

std::string Muutoskuvaus::KohteenNimi(clsSaastotoimenpide& toimenpide) {
  const Olio* ennen = toimenpide.Ennen();
  return ennen ? OmaNimi(*ennen) : std::string();
}

const Ominaisuusteksti* Muutoskuvaus::Nimetty(const clsMuuttunutAttribuutti& muutos) const {
  const auto nimi = nimet_.find(Ominaisuusavain(muutos.clsTypeName, muutos.AttribuutinNimi));
  return nimi == nimet_.end() ? nullptr : &nimi->second;
}

/// A member without a name of its own is the text of a choice, or one of an unknown file.
Muutoskuvaus::Yhdistelma Muutoskuvaus::Yhdista(const clsMuuttuneetAttribuutit& muutokset,
                                               const clsMuuttunutAttribuutti& ensimmainen) const {
  Yhdistelma tulos;
  for (const clsMuuttunutAttribuutti& muutos : muutokset) {
    if (!clsMuuttuneetAttribuutit::OvatPari(muutos, ensimmainen)) continue;
    if (Nimetty(muutos)) {
      if (!tulos.arvo) tulos.arvo = &muutos;
    } else if (muutos.OnTeksti()) {
      tulos.teksti = &muutos;
    }
  }
  const Luokka* luokka = Luokka::Nimella(ensimmainen.clsTypeName);
  if (!tulos.arvo && !(luokka && luokka->Etsi(ensimmainen.AttribuutinNimi))) tulos.arvo = &ensimmainen;
  return tulos;
}

Muutoskuvaus::Kohde Muutoskuvaus::EtsiKohde(clsSaastotoimenpide& toimenpide,
                                            const clsMuuttunutAttribuutti& muutos) const {
  Olio* ennen = toimenpide.Ennen();
  if (ennen && toimenpide.Kelluva()) return {ennen, OmaNimi(*ennen)};
  Kohde kohde{nullptr, ennen ? OmaNimi(*ennen) : std::string()};
  if (ennen && EtsiOsa(*ennen, muutos, kohde)) return kohde;
  return {nullptr, Teksti(tekstit::kMuutoksenKohdePuuttuu)};
}

/// Goes down from the object, whose name stands in `loydetty`, to the one that holds the attribute.
bool Muutoskuvaus::EtsiOsa(Olio& olio, const clsMuuttunutAttribuutti& muutos, Kohde& loydetty) const {
  loydetty.olio = &olio;
  if (olio.InstanssiId == muutos.InstanssiId && SamaNimi(olio.LuokanNimi(), muutos.clsTypeName)) return true;
  const std::string nimi = loydetty.nimi;
  if (KokoelmaPohja* alkiot = olio.Kokoelmana())
    for (int i = 1; i <= alkiot->Count(); ++i) {
      loydetty.nimi = Liita(nimi, AlkionNimi(*alkiot, alkiot->Pohja(i)));
      if (EtsiOsa(alkiot->Pohja(i), muutos, loydetty)) return true;
    }
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet()) {
    Olio* osa = jasen.OnOlio() && !jasen.viittaus ? jasen.olio(olio) : nullptr;
    if (!osa) continue;
    const auto osanNimi = nimet_.find(Ominaisuusavain(olio.LuokanNimi(), jasen.nimi));
    loydetty.nimi = Liita(nimi, osanNimi == nimet_.end() ? std::string() : osanNimi->second.nimi);
    if (EtsiOsa(*osa, muutos, loydetty)) return true;
  }
  return false;
}

Muutosrivi Muutoskuvaus::Rivi(const Yhdistelma& muutokset, const Kohde& kohde) const {
  const clsMuuttunutAttribuutti& muutos = *muutokset.arvo;
  const Luokka* luokka = Luokka::Nimella(muutos.clsTypeName);
  const Jasen* jasen = luokka ? luokka->Etsi(muutos.AttribuutinNimi) : nullptr;
  const Ominaisuusteksti* nimi = Nimetty(muutos);
  double luku = muutos.ArvoEnnen, valinnanLuku = 0;
  std::string teksti = muutos.ArvoEnnenStr, valinta, uusiValinta;
  if (kohde.olio && jasen) LueArvo(*kohde.olio, *jasen, luku, teksti);
  if (muutokset.teksti) {
    valinta = muutokset.teksti->ArvoEnnenStr;
    uusiValinta = muutokset.teksti->ArvoJalkeenStr;
    if (kohde.olio) LueArvo(*kohde.olio, *luokka->Etsi(muutokset.teksti->AttribuutinNimi), valinnanLuku, valinta);
  }
  const auto arvot = [&](const std::string& kuvio) {
    return std::pair(Arvo(muutos, jasen, luku, teksti, valinta, kuvio),
                     Arvo(muutos, jasen, muutos.ArvoJalkeen, muutos.ArvoJalkeenStr, uusiValinta, kuvio));
  };
  auto [ennen, jalkeen] = arvot(nimi ? nimi->kuvio : kTarkka);
  if (ennen == jalkeen && OnLuku(jasen)) std::tie(ennen, jalkeen) = arvot(kTarkka);
  return {muutos.sKey, kohde.nimi, nimi ? nimi->nimi : muutos.AttribuutinNimi, ennen, jalkeen};
}

std::string Muutoskuvaus::Arvo(const clsMuuttunutAttribuutti& muutos, const Jasen* jasen, double luku,
                               const std::string& teksti, const std::string& valinta, const std::string& kuvio) const {
  if (OnAvain(muutos.AttribuutinNimi)) return NimiAvaimella(teksti, valinta);
  if (muutos.OnTeksti()) return teksti.empty() ? Teksti(tekstit::kViiva) : teksti;
  const bool totuus = jasen && jasen->laji == Laji::Totuus;
  if (const Ominaisuusteksti* nimi = Nimetty(muutos); nimi && !nimi->valinnat.empty()) {
    const double rivi = totuus ? (luku != 0) : luku;
    if (rivi >= 0 && rivi < static_cast<double>(nimi->valinnat.size()))
      return nimi->valinnat[static_cast<std::size_t>(rivi)];
  }
  if (!valinta.empty()) return valinta;
  if (totuus) return Teksti(luku != 0 ? tekstit::kKylla : tekstit::kEi);
  if (jasen && jasen->laji == Laji::Paivays) {
    constexpr double kMinuuttiaVuorokaudessa = 1440;
    return KellonaikaTekstina({static_cast<std::int32_t>(std::lround(luku * kMinuuttiaVuorokaudessa))});
  }
  const std::string yksikko = jasen ? std::string(jasen->suure.yksikko) : std::string();
  return Muotoile(luku, kuvio) + (yksikko.empty() ? "" : " ") + yksikko;
}

/// Name of the space or of the tariff of that key; the text beside the key when they are gone.
std::string Muutoskuvaus::NimiAvaimella(const std::string& avain, const std::string& valinta) const {
  const Tunniste tunniste(avain);
  if (const clsTila* tila = rakennus_.Tilat.Etsi(tunniste)) return tila->TilanNimi;
  if (const clsTariffi* tariffi = rakennus_.Tariffit.Etsi(tunniste)) return tariffi->Nimi;
  if (const clsVesitariffi* tariffi = rakennus_.Vesitariffit.Etsi(tunniste)) return tariffi->Nimi;
  return avain.empty() || valinta.empty() ? Teksti(tekstit::kViiva) : valinta;
}
