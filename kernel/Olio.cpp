// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Olio.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "kernel/Kirjainkoko.h"
#include "kernel/Tulos.h"

namespace {

std::vector<const Luokka*>& Luokat() {
  static std::vector<const Luokka*> luokat;
  return luokat;
}

Variantti LuvuksiLajin(Laji laji, const ArvoNakyma& n) {
  switch (laji) {
    case Laji::Lyhyt:
      return static_cast<std::int16_t>(n.Kokonais());
    case Laji::Pitka:
      return static_cast<std::int32_t>(n.Kokonais());
    case Laji::Yksinkertainen:
      return static_cast<float>(n.Reaali());
    case Laji::Kaksinkertainen:
      return n.Reaali();
    case Laji::Valuutta:
      return Rahamaara{n.Reaali()};
    case Laji::Desimaali:
      return Desimaali{n.Reaali()};
    case Laji::Paivays: {
      Kellonaika aika;
      Muunna(n, aika);
      return aika;
    }
    case Laji::Totuus:
      return n.Kokonais() != 0;
    case Laji::Teksti:
      return std::string(n.Teksti());
    case Laji::Olio:
      break;
  }
  return {};
}

void NaytaVariantti(const Variantti& arvo, ArvoNakyma& n) {
  std::visit(
      [&n](const auto& v) {
        using T = std::remove_cvref_t<decltype(v)>;
        if constexpr (std::is_same_v<T, std::monostate> || std::is_same_v<T, Olio*>)
          n.AsetaTyhja();
        else if constexpr (std::is_same_v<T, Rahamaara> || std::is_same_v<T, Desimaali>)
          n.Aseta(v.maara);
        else
          NaytaArvo(v, n);
      },
      arvo);
}

const Jasen& VaadiJasen(const Olio& olio, std::string_view nimi) {
  const Jasen* jasen = olio.LuokanTiedot().Etsi(nimi);
  if (!jasen) throw TuntematonJasen(std::string(olio.LuokanNimi()) + "." + std::string(nimi));
  return *jasen;
}

}  // namespace

Luokka::Luokka(std::string_view nimi, std::span<const Jasen> jasenet, Osallistuu osallistuu,
               std::span<const Tulos> tulokset)
    : sana_(Sanaksi(nimi)), jasenet_(jasenet), tulokset_(tulokset), osallistuu_(osallistuu), numero_(Luokat().size()) {
  for (const Jasen& jasen : jasenet_) {
    if (Etsi(jasen.nimi) != &jasen)
      throw std::logic_error("jäsen kahdesti: " + std::string(nimi) + "." + std::string(jasen.nimi));
    hakemisto_.emplace(jasen.nimi, &jasen);
  }
  Luokat().push_back(this);
}

const Tulos& Luokka::TulosNimella(std::string_view nimi) const {
  for (const Tulos& tulos : tulokset_)
    if (tulos.nimi == nimi) return tulos;
  throw std::logic_error("luokalla ei ole tulosta " + std::string(Nimi()) + "." + std::string(nimi));
}

const Jasen* Luokka::Etsi(std::string_view nimi) const noexcept {
  if (const auto it = hakemisto_.find(nimi); it != hakemisto_.end()) return it->second;
  const auto jasen = std::ranges::find_if(jasenet_, [nimi](const Jasen& j) { return SamaNimi(j.nimi, nimi); });
  return jasen == jasenet_.end() ? nullptr : &*jasen;
}

std::span<const Luokka* const> Luokka::Kaikki() noexcept { return Luokat(); }

const Luokka* Luokka::Nimella(std::string_view nimi) noexcept {
  for (const Luokka* luokka : Luokat())
    if (SamaNimi(luokka->Nimi(), nimi)) return luokka;
  return nullptr;
}

Variantti HaeJasen(const Olio& olio, const Jasen& jasen) {
  if (jasen.OnOlio()) return jasen.olio(const_cast<Olio&>(olio));
  ArvoNakyma nakyma;
  jasen.nayta(olio, nakyma);
  return LuvuksiLajin(jasen.laji, nakyma);
}

Variantti HaeJasen(const Olio& olio, std::string_view nimi) { return HaeJasen(olio, VaadiJasen(olio, nimi)); }

void AsetaJasen(Olio& olio, std::string_view nimi, const Variantti& arvo) {
  const Jasen& jasen = VaadiJasen(olio, nimi);
  ArvoNakyma nakyma;
  NaytaVariantti(arvo, nakyma);
  if (!jasen.aseta || !jasen.aseta(olio, nakyma))
    throw TuntematonJasen("arvoa ei voi asettaa: " + std::string(olio.LuokanNimi()) + "." + std::string(nimi));
}
