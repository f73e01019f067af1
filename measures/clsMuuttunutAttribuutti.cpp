// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsMuuttunutAttribuutti.h"

#include <algorithm>

#include "kernel/Tulos.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsMuuttunutAttribuutti::clsTypeName>("clsTypeName"),
    Arvo<&clsMuuttunutAttribuutti::AttribuutinNimi>("AttribuutinNimi"),
    Arvo<&clsMuuttunutAttribuutti::ArvoEnnen>("ArvoEnnen"),
    Arvo<&clsMuuttunutAttribuutti::ArvoJalkeen>("ArvoJalkeen"),
    Arvo<&clsMuuttunutAttribuutti::Yksikko>("Yksikko"),
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsMuuttunutAttribuutti::ArvoEnnenStr>("ArvoEnnenStr"),
    Arvo<&clsMuuttunutAttribuutti::ArvoJalkeenStr>("ArvoJalkeenStr"),
    Arvo<&clsMuuttunutAttribuutti::TietoTyyppi>("TietoTyyppi"),
};

/// The value as its type holds it; false when it doesn't.
template <class T>
bool Mahtuu(ArvoNakyma& arvo) {
  T luku{};
  if (!Muunna(arvo, luku)) return false;
  NaytaArvo(luku, arvo);
  return true;
}

/// The number in the form of its kind; false when the kind can't hold it.
bool Muotoon(Laji laji, ArvoNakyma& arvo) {
  switch (laji) {
    case Laji::Lyhyt:
      return Mahtuu<std::int16_t>(arvo);
    case Laji::Pitka:
      return Mahtuu<std::int32_t>(arvo);
    case Laji::Yksinkertainen:
      return Mahtuu<float>(arvo);
    case Laji::Totuus:
      return Mahtuu<bool>(arvo);
    default:
      return true;
  }
}

using Muutos = clsMuuttunutAttribuutti;
using Muutosarvo = Tulosarvo;

constexpr Tulos kTulokset[] = {
    Tekstitulos<&Muutos::clsTypeName>("clsTypeName"),
    Tekstitulos<&Muutos::AttribuutinNimi>("AttribuutinNimi"),
    Arvotulos<[](const Muutos& m) { return m.OnTeksti() ? Muutosarvo(m.ArvoEnnenStr) : Muutosarvo(m.ArvoEnnen); }>(
        "Ennen"),
    Arvotulos<[](const Muutos& m) { return m.OnTeksti() ? Muutosarvo(m.ArvoJalkeenStr) : Muutosarvo(m.ArvoJalkeen); }>(
        "Jalkeen"),
};

}  // namespace

const Luokka clsMuuttunutAttribuutti::kLuokka{"clsMuuttunutAttribuutti", kJasenet, Luokka::Osallistuu::EiRekisteriin,
                                              kTulokset};

bool clsMuuttunutAttribuutti::OnTunnettuTyyppi() const noexcept {
  constexpr Laji kTunnetut[] = {Laji::Lyhyt,           Laji::Pitka,    Laji::Yksinkertainen,
                                Laji::Kaksinkertainen, Laji::Valuutta, Laji::Paivays,
                                Laji::Teksti,          Laji::Totuus,   Laji::Desimaali};
  return std::ranges::any_of(kTunnetut, [this](Laji laji) { return static_cast<std::int32_t>(laji) == TietoTyyppi; });
}

bool clsMuuttunutAttribuutti::Kirjoita(Olio& olio, const Jasen& jasen) const {
  if (!OnTunnettuTyyppi()) return false;
  ArvoNakyma arvo;
  if (OnTeksti())
    arvo.Aseta(std::string_view(ArvoJalkeenStr));
  else
    arvo.Aseta(ArvoJalkeen);
  return Muotoon(static_cast<Laji>(TietoTyyppi), arvo) && jasen.kirjoita(olio, arvo);
}
