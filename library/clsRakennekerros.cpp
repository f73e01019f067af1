// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/clsRakennekerros.h"

namespace {

/// A figure of one of the layer's materials as a member of the layer.
template <auto Aine, auto Kentta>
constexpr Jasen Aineesta(std::string_view nimi, Suure suure = {}) {
  Jasen j{nimi, LajiTyypista<typename Osat<decltype(Kentta)>::Tyyppi>(), suure};
  j.nayta = [](const Olio& o, ArvoNakyma& n) { NaytaArvo((static_cast<const clsRakennekerros&>(o).*Aine).*Kentta, n); };
  j.kirjoita = j.aseta = [](Olio& o, const ArvoNakyma& n) {
    return Muunna(n, (static_cast<clsRakennekerros&>(o).*Aine).*Kentta);
  };
  j.ota = [](const Olio& o) -> Kentanarvo { return (static_cast<const clsRakennekerros&>(o).*Aine).*Kentta; };
  j.palauta = [](Olio& o, Kentanarvo&& arvo) {
    (static_cast<clsRakennekerros&>(o).*Aine).*Kentta =
        std::get<typename Osat<decltype(Kentta)>::Tyyppi>(std::move(arvo));
  };
  return j;
}

constexpr auto kPaaaine = &clsRakennekerros::Materiaali;
constexpr auto kLisaaine = &clsRakennekerros::Lisamateriaali;

constexpr Jasen kJasenet[] = {
    Arvo<&clsRakennekerros::Nimi>("Nimi"),
    Aineesta<kPaaaine, &Materiaali::Id>("MateriaaliId"),
    Aineesta<kPaaaine, &Materiaali::Nimi>("MateriaaliNimi"),
    Aineesta<kPaaaine, &Materiaali::Lambda>("MateriaaliLambda", Suure("W/mK").Rajat(0).Tavallisesti(0.01, 400)),
    Aineesta<kPaaaine, &Materiaali::Tiheys>("MateriaaliTiheys", Suure("kg/m³").Rajat(0).Tavallisesti(1, 12000)),
    Aineesta<kPaaaine, &Materiaali::Ominaislampo>("MateriaaliOminaislampo",
                                                  Suure("kJ/kgK").Rajat(0).Tavallisesti(0.1, 5)),
    Arvo<&clsRakennekerros::Paksuus>("Paksuus", Suure("mm").Rajat(0).Tavallisesti(0, 1000)),
    Arvo<&clsRakennekerros::UArvoon>("UArvoon"),
    Arvo<&clsRakennekerros::Yhtenainen>("Yhtenainen"),
    Aineesta<kLisaaine, &Materiaali::Id>("LisamateriaaliId"),
    Aineesta<kLisaaine, &Materiaali::Nimi>("LisamateriaaliNimi"),
    Aineesta<kLisaaine, &Materiaali::Lambda>("LisamateriaaliLambda", Suure("W/mK").Rajat(0).Tavallisesti(0.01, 400)),
    Aineesta<kLisaaine, &Materiaali::Tiheys>("LisamateriaaliTiheys", Suure("kg/m³").Rajat(0).Tavallisesti(1, 12000)),
    Aineesta<kLisaaine, &Materiaali::Ominaislampo>("LisamateriaaliOminaislampo",
                                                   Suure("kJ/kgK").Rajat(0).Tavallisesti(0.1, 5)),
    Arvo<&clsRakennekerros::LisamateriaalinOsuus>("LisamateriaalinOsuus", Suure("%").Rajat(0, 100)),
    Arvo<&clsRakennekerros::Lammonvastus>("Lammonvastus", Suure("m²K/W").Rajat(0).Tavallisesti(0, 10)),
    Arvo<&clsRakennekerros::sKey>("sKey"),
};

}  // namespace

const Luokka clsRakennekerros::kLuokka("clsRakennekerros", kJasenet, Luokka::Osallistuu::EiKumpaankaan);

clsRakennekerros::Aineidenmassat clsRakennekerros::Massat() const noexcept {
  const double osuus = LisamateriaalinPaino();
  return {PaksuusMetreina() * (1 - osuus) * Materiaali.Tiheys, PaksuusMetreina() * osuus * Lisamateriaali.Tiheys};
}
