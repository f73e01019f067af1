// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Kirjastosuodatin.h"

#include <algorithm>
#include <sstream>

#include "kernel/Kirjainkoko.h"

namespace {

template <class T>
bool Sallii(const std::optional<T>& ehto, const T& arvo) {
  return !ehto || *ehto == arvo;
}

bool Sallii(const std::string& ehto, const std::string& arvo) { return ehto.empty() || ehto == arvo; }

bool KaikkiSanatLoytyvat(const std::string& haku, std::initializer_list<std::string_view> tekstit) {
  std::string kaikki;
  for (const std::string_view teksti : tekstit) kaikki.append(PieniksiKirjaimiksi(teksti)).append(1, '\n');
  std::istringstream sanat(PieniksiKirjaimiksi(haku));
  for (std::string sana; sanat >> sana;)
    if (kaikki.find(sana) == std::string::npos) return false;
  return true;
}

}  // namespace

bool Rakennesuodatin::Sopii(const Kirjastorakenne& rakenne) const {
  const Rakenneratkaisu& ratkaisu = rakenne.Ratkaisu;
  if (!Sallii(Kanta, rakenne.Kanta) || !Sallii(Rakennetyyppi, ratkaisu.Rakennetyyppi) ||
      !Sallii(Aikakausi, rakenne.Aikakausi) ||
      !KaikkiSanatLoytyvat(Haku, {ratkaisu.Nimi, ratkaisu.Kuvaus, rakenne.Aikakausi, rakenne.Lahde}))
    return false;
  if (!U_vahintaan && !U_enintaan) return true;
  const auto U = ratkaisu.VoimassaolevaU_arvo();
  return U && *U >= U_vahintaan.value_or(*U) && *U <= U_enintaan.value_or(*U);
}

bool Materiaalisuodatin::Sopii(const Kirjastomateriaali& materiaali) const {
  return Sallii(Kanta, materiaali.Kanta) && Sallii(Ryhma, materiaali.Ryhma) &&
         KaikkiSanatLoytyvat(Haku, {materiaali.Aine.Nimi, materiaali.Ryhma, materiaali.Lahde});
}
