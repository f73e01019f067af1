// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Muunnelma.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "building/Tasehaarukka.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "supply/clsTariffi.h"
#include "supply/clsVesitariffi.h"
#include "ventilation/clsIVKoneet.h"

namespace {

thread_local int g_voimassa = 0;

/// Water, supplies and prices have no part in the heat balance.
bool OnTaseenUlkopuolella(const Luokka& luokka) {
  static const std::array kUlkopuoliset{&clsVedenKulutusryhma::kLuokka, &clsVedenKulutusryhmat::kLuokka,
                                        &clsVedenTiedot::kLuokka,       &clsEnergianHankinta::kLuokka,
                                        &clsEnergiamuodot::kLuokka,     &clsEnergiamuoto::kLuokka,
                                        &clsTariffi::kLuokka,           &clsVesitariffi::kLuokka};
  return std::ranges::find(kUlkopuoliset, &luokka) != kUlkopuoliset.end();
}

template <class T>
T* Tyyppina(Olio& olio) {
  return &olio.LuokanTiedot() == &T::kLuokka ? static_cast<T*>(&olio) : nullptr;
}

template <class T>
bool OnJoukossa(const std::vector<T*>& joukko, const std::type_identity_t<T>* olio) noexcept {
  return std::ranges::find(joukko, olio) != joukko.end();
}
template <class T>
void LisaaKerran(std::vector<T*>& joukko, T* olio) {
  if (!OnJoukossa(joukko, olio)) joukko.push_back(olio);
}

void Yhdista(Muunnelma::Ulottuvuus& kaikki, const Muunnelma::Ulottuvuus& uusi) {
  for (clsTila* tila : uusi.tilat) LisaaKerran(kaikki.tilat, tila);
  kaikki.kaikkiTilat |= uusi.kaikkiTilat;
}

}  // namespace

bool Muunnelma::Ulottuvuus::Sisaltaa(const clsTila& tila) const { return kaikkiTilat || OnJoukossa(tilat, &tila); }
bool Muunnelma::Ulottuvuus::Sisaltaa(const clsIVKone& kone) const { return kaikkiKoneet || OnJoukossa(koneet, &kone); }

Muunnelma::Muunnelma(clsRakennus& rakennus) : rakennus_(rakennus) {
  ++g_voimassa;
  if (GlobaaliRakennus() == &rakennus) varaus_.emplace();
}

Muunnelma::~Muunnelma() {
  for (auto entinen = entiset_.rbegin(); entinen != entiset_.rend(); ++entinen)
    entinen->jasen->palauta(*entinen->olio, std::move(entinen->arvo));
  Mitatoi(aiemmat_);
  Mitatoi(viimeisin_);
  --g_voimassa;
}

bool Muunnelma::Voimassa() noexcept { return g_voimassa > 0; }

void Muunnelma::Liita(const clsMuuttuneetAttribuutit& muuttuneet) {
  Yhdista(aiemmat_, viimeisin_);
  viimeisin_ = {};
  muutetutTilat_.clear();
  int rivi = 0;
  for (const clsMuuttunutAttribuutti& muutos : muuttuneet) {
    ++rivi;
    if (!Kirjoita(muutos))
      ohitetut_.push_back({rivi, muutos.clsTypeName + "." + muutos.AttribuutinNimi,
                           muutos.OnTunnettuTyyppi() ? 0 : muutos.TietoTyyppi});
  }
  Mitatoi(viimeisin_);
}

bool Muunnelma::Kirjoita(const clsMuuttunutAttribuutti& muutos) {
  const Instanssi kohde = rakennus_.HaeInstanssi(muutos.clsTypeName, muutos.InstanssiId);
  const Jasen* jasen = kohde.olio ? kohde.olio->LuokanTiedot().Etsi(muutos.AttribuutinNimi) : nullptr;
  if (!jasen || !jasen->aseta) return false;
  Ulottuu(kohde);
  entiset_.push_back({kohde.olio, jasen, jasen->ota(*kohde.olio)});
  if (!muutos.Kirjoita(*kohde.olio, *jasen)) return entiset_.pop_back(), false;
  Ulottuu(kohde);
  return true;
}

/// Asked before a change and after it: what it reaches is where the object belonged and where it belongs now.
void Muunnelma::Ulottuu(const Instanssi& kohde) {
  Olio& ylin = kohde.omistaja ? *kohde.omistaja : *kohde.olio;
  if (OnTaseenUlkopuolella(ylin.LuokanTiedot())) return;
  if (auto* kone = Tyyppina<clsIVKone>(ylin)) {
    LisaaKerran(viimeisin_.koneet, kone);
    LisaaTila(rakennus_.Tilat.Etsi(kone->LiittyyTilaansKey));
  } else if (const auto* ryhma = Tyyppina<clsSahkonKulutusryhma>(ylin)) {
    viimeisin_.kaikkiTilat |= ryhma->LiittyyTilaansKey.Tyhja();
    LisaaTila(rakennus_.Tilat.Etsi(ryhma->LiittyyTilaansKey));
  } else if (auto* tila = Tyyppina<clsTila>(ylin)) {
    if (OnJoukossa(muutetutTilat_, tila)) return;
    muutetutTilat_.push_back(tila);
    LisaaTila(tila);
    for (clsIVKone& kone : rakennus_.IVKoneet)
      if (kone.LiittyyTilaansKey == tila->sKey) LisaaKerran(viimeisin_.koneet, &kone);
  } else {
    viimeisin_.kaikkiTilat = viimeisin_.kaikkiKoneet = true;
  }
}

void Muunnelma::LisaaTila(clsTila* tila) {
  if (tila) LisaaKerran(viimeisin_.tilat, tila);
}

void Muunnelma::Mitatoi(const Ulottuvuus& ulottuvuus) noexcept {
  if (ulottuvuus.kaikkiTilat) return Tasehaarukka::Mitatoi(rakennus_);
  for (clsTila* tila : ulottuvuus.tilat) tila->TaseUpToDate(false);
  rakennus_.Tilat.MitatoiSumma();
  rakennus_.IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate = false;
}
