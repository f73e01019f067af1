// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Muunnelma.h"

#include <algorithm>
#include <array>

#include "building/Tasehaarukka.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "ventilation/clsIVKoneet.h"

namespace {

thread_local int g_voimassa = 0;

/// The value as its type holds it; false when it doesn't.
template <class T>
bool Mahtuu(ArvoNakyma& arvo) {
  T luku{};
  if (!Muunna(arvo, luku)) return false;
  NaytaArvo(luku, arvo);
  return true;
}

/// The new value in the form of its type code; false for an unknown code or a number that the type can't hold.
bool NaytaUusi(const clsMuuttunutAttribuutti& muutos, ArvoNakyma& arvo) {
  constexpr std::int32_t kSuurinKoodi = 14;
  if (muutos.TietoTyyppi < 0 || muutos.TietoTyyppi > kSuurinKoodi) return false;
  arvo.Aseta(muutos.ArvoJalkeen);
  switch (static_cast<Laji>(muutos.TietoTyyppi)) {
    case Laji::Lyhyt:
      return Mahtuu<std::int16_t>(arvo);
    case Laji::Pitka:
      return Mahtuu<std::int32_t>(arvo);
    case Laji::Yksinkertainen:
      return Mahtuu<float>(arvo);
    case Laji::Kaksinkertainen:
    case Laji::Valuutta:
    case Laji::Paivays:
    case Laji::Desimaali:
      return true;
    case Laji::Totuus:
      return Mahtuu<bool>(arvo);
    case Laji::Teksti:
      arvo.Aseta(std::string_view(muutos.ArvoJalkeenStr));
      return true;
    case Laji::Olio:
      break;
  }
  return false;
}

/// Water, supplies and prices have no part in the heat balance.
bool OnTaseenUlkopuolella(const Luokka& luokka) {
  static const std::array<const Luokka*, 6> kUlkopuoliset{
      &clsVedenKulutusryhma::kLuokka, &clsVedenKulutusryhmat::kLuokka, &clsVedenTiedot::kLuokka,
      &clsEnergianHankinta::kLuokka,  &clsEnergiamuodot::kLuokka,      &clsEnergiamuoto::kLuokka};
  return std::ranges::find(kUlkopuoliset, &luokka) != kUlkopuoliset.end();
}

template <class T>
const T* Tyyppina(const Olio& olio) {
  return &olio.LuokanTiedot() == &T::kLuokka ? static_cast<const T*>(&olio) : nullptr;
}

}  // namespace

Muunnelma::Muunnelma(clsRakennus& rakennus) : rakennus_(rakennus) {
  ++g_voimassa;
  if (GlobaaliRakennus() == &rakennus) varaus_.emplace();
}

Muunnelma::~Muunnelma() {
  for (auto entinen = entiset_.rbegin(); entinen != entiset_.rend(); ++entinen)
    entinen->jasen->palauta(*entinen->olio, std::move(entinen->arvo));
  Tasehaarukka::Mitatoi(rakennus_);
  --g_voimassa;
}

bool Muunnelma::Voimassa() noexcept { return g_voimassa > 0; }

void Muunnelma::Liita(const clsMuuttuneetAttribuutit& muuttuneet) {
  Tasehaarukka::Mitatoi(rakennus_);
  for (const clsMuuttunutAttribuutti& muutos : muuttuneet)
    if (!Kirjoita(muutos)) ohitetut_.push_back(muutos.clsTypeName + "." + muutos.AttribuutinNimi);
}

bool Muunnelma::Kirjoita(const clsMuuttunutAttribuutti& muutos) {
  const Instanssi kohde = rakennus_.HaeInstanssi(muutos.clsTypeName, muutos.InstanssiId);
  const Jasen* jasen = kohde.olio ? kohde.olio->LuokanTiedot().Etsi(muutos.AttribuutinNimi) : nullptr;
  ArvoNakyma uusi;
  if (!jasen || !jasen->aseta || !NaytaUusi(muutos, uusi)) return false;
  Ulottuu(kohde);
  entiset_.push_back({kohde.olio, jasen, jasen->ota(*kohde.olio)});
  if (!jasen->kirjoita(*kohde.olio, uusi)) return entiset_.pop_back(), false;
  Ulottuu(kohde);
  return true;
}

/// Asked before a change and after it: what it reaches is where the object belonged and where it belongs now.
void Muunnelma::Ulottuu(const Instanssi& kohde) {
  const Olio& ylin = kohde.omistaja ? *kohde.omistaja : *kohde.olio;
  if (OnTaseenUlkopuolella(ylin.LuokanTiedot())) return;
  if (const auto* kone = Tyyppina<clsIVKone>(ylin)) {
    ulottuvuus_.omistajat.insert(kone);
    ulottuvuus_.tilat.push_back(kone->LiittyyTilaansKey);
  } else if (const auto* ryhma = Tyyppina<clsSahkonKulutusryhma>(ylin)) {
    ulottuvuus_.kaikkiTilat |= ryhma->LiittyyTilaansKey.Tyhja();
    ulottuvuus_.tilat.push_back(ryhma->LiittyyTilaansKey);
  } else if (Tyyppina<clsTila>(ylin)) {
    ulottuvuus_.omistajat.insert(&ylin);
  } else {
    ulottuvuus_.kaikki = true;
  }
}

bool Muunnelma::OnMuuttunut(const clsTila& tila) const {
  return ulottuvuus_.kaikki || ulottuvuus_.kaikkiTilat || ulottuvuus_.omistajat.contains(&tila) ||
         std::ranges::find(ulottuvuus_.tilat, tila.sKey) != ulottuvuus_.tilat.end();
}

std::vector<clsTila*> Muunnelma::Tilat() const {
  std::vector<clsTila*> muuttuneet;
  for (clsTila& tila : rakennus_.Tilat)
    if (OnMuuttunut(tila)) muuttuneet.push_back(&tila);
  return muuttuneet;
}

std::vector<clsIVKone*> Muunnelma::Koneet() const {
  std::vector<clsIVKone*> muuttuneet;
  for (clsIVKone& kone : rakennus_.IVKoneet) {
    const clsTila* tila = rakennus_.Tilat.Etsi(kone.LiittyyTilaansKey);
    if (ulottuvuus_.kaikki || ulottuvuus_.omistajat.contains(&kone) || ulottuvuus_.omistajat.contains(tila))
      muuttuneet.push_back(&kone);
  }
  return muuttuneet;
}
