// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Toimenpideviittaukset.h"

#include <algorithm>
#include <unordered_set>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr int kEiNimea = 9128;

using Tunnisteet = std::unordered_set<Tunniste>;

void Lisaa(Tunnisteet& tunnisteet, const clsRakenne& rakenne) {
  for (const Olio* olio :
       std::initializer_list<const Olio*>{&rakenne, &rakenne.HorisVarjostus, &rakenne.SivuLippa, &rakenne.YlaLippa})
    tunnisteet.insert(olio->InstanssiId);
}

bool Viittaa(const clsMuuttuneetAttribuutit& muutokset, const Tunnisteet& tunnisteet) {
  return tunnisteet.contains(muutokset.LiittyyInstanssiin) ||
         std::ranges::any_of(
             muutokset, [&](const clsMuuttunutAttribuutti& muutos) { return tunnisteet.contains(muutos.InstanssiId); });
}

std::string Viittaavat(const Tunnisteet& tunnisteet) {
  std::string nimet;
  for (const clsSaastotoimenpide& toimenpide : VaadiRakennus().Saastotoimenpiteet)
    if (Viittaa(toimenpide.MuuttuneetAttribuutit, tunnisteet))
      nimet += (nimet.empty() ? "" : ", ") + (toimenpide.Nimi.empty() ? Teksti(kEiNimea) : toimenpide.Nimi);
  return nimet;
}

}  // namespace

std::string ViittaavatToimenpiteet(const clsTila& tila) {
  Tunnisteet tunnisteet{tila.InstanssiId, tila.Rakenteet.InstanssiId};
  for (const clsRakenne& rakenne : tila.Rakenteet) Lisaa(tunnisteet, rakenne);
  return Viittaavat(tunnisteet);
}

std::string ViittaavatToimenpiteet(const clsRakenne& rakenne) {
  Tunnisteet tunnisteet;
  Lisaa(tunnisteet, rakenne);
  return Viittaavat(tunnisteet);
}
