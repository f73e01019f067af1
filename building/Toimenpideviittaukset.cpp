// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Toimenpideviittaukset.h"

#include <algorithm>
#include <unordered_set>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"

namespace {

using Tunnisteet = std::unordered_set<Tunniste>;

/// Identities of the object and of all below it that are in the register.
void Keraa(Olio& olio, Tunnisteet& tunnisteet) {
  if (olio.LuokanTiedot().Osallistuminen() != Luokka::Osallistuu::Kaikkeen) return;
  tunnisteet.insert(olio.InstanssiId);
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) Keraa(kokoelma->Pohja(i), tunnisteet);
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet())
    if (Olio* lapsi = jasen.olio ? jasen.olio(olio) : nullptr) Keraa(*lapsi, tunnisteet);
}

bool Viittaa(const clsMuuttuneetAttribuutit& muutokset, const Tunnisteet& tunnisteet) {
  return tunnisteet.contains(muutokset.LiittyyInstanssiin) ||
         std::ranges::any_of(
             muutokset, [&](const clsMuuttunutAttribuutti& muutos) { return tunnisteet.contains(muutos.InstanssiId); });
}

}  // namespace

std::string ViittaavatToimenpiteet(Olio& olio) {
  Tunnisteet tunnisteet;
  Keraa(olio, tunnisteet);
  std::string nimet;
  for (const clsSaastotoimenpide& toimenpide : VaadiRakennus().Saastotoimenpiteet)
    if (Viittaa(toimenpide.MuuttuneetAttribuutit, tunnisteet))
      nimet += (nimet.empty() ? "" : ", ") + (toimenpide.Nimi.empty() ? Teksti(tekstit::kViiva) : toimenpide.Nimi);
  return nimet;
}

std::string Muokkauslukko() {
  return VaadiRakennus().Saastotoimenpiteet.Count() > 0 ? Teksti(tekstit::kOsiaEiVoiLisata) : std::string();
}
