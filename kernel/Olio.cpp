// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Olio.h"

#include <bit>
#include <cstring>
#include <stdexcept>

#include "kernel/Kirjainkoko.h"
#include "kernel/Tulos.h"

namespace {

std::vector<const Luokka*>& Luokat() {
  static std::vector<const Luokka*> luokat;
  return luokat;
}

std::uint64_t Tavut(const char* kohta) noexcept {
  std::uint64_t tavut = 0;
  std::memcpy(&tavut, kohta, 8);
  return tavut;
}

/// Two names of one length and with the same ends are the same.
bool SamaKeskelta(std::string_view x, std::string_view y) noexcept {
  for (std::size_t i = 8; i + 8 < x.size(); i += 8)
    if (Tavut(x.data() + i) != Tavut(y.data() + i)) return false;
  return true;
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

Luokka::Nimenpaat::Nimenpaat(std::string_view nimi) noexcept : pituus(nimi.size()) {
  if (nimi.size() >= 8) {
    alku = Tavut(nimi.data());
    loppu = Tavut(nimi.data() + nimi.size() - 8);
  } else {
    std::memcpy(&alku, nimi.data(), nimi.size());
  }
}

std::size_t Luokka::Nimenpaat::Tiiviste() const noexcept {
  constexpr std::uint64_t kPieni = 0x2020202020202020;  // the bit that tells small letters from capitals
  const std::uint64_t sekoitus = ((alku | kPieni) ^ std::rotl(loppu | kPieni, 29) ^ pituus) * 0x9E3779B97F4A7C15;
  return sekoitus ^ sekoitus >> 29;
}

Luokka::Luokka(std::string_view nimi, std::span<const Jasen> jasenet, Osallistuu osallistuu,
               std::span<const Tulos> tulokset)
    : sana_(Sanaksi(nimi)),
      jasenet_(jasenet),
      tulokset_(tulokset),
      osallistuu_(osallistuu),
      numero_(Luokat().size()),
      hakemisto_(std::bit_ceil(jasenet.size() * 4 + 1)) {
  for (const Jasen& jasen : jasenet_) {
    if (Etsi(jasen.nimi))
      throw std::logic_error("jäsen kahdesti: " + std::string(nimi) + "." + std::string(jasen.nimi));
    const Nimenpaat paat(jasen.nimi);
    std::size_t kohta = paat.Tiiviste() & (hakemisto_.size() - 1);
    while (hakemisto_[kohta].jasen) kohta = (kohta + 1) & (hakemisto_.size() - 1);
    hakemisto_[kohta] = {paat, &jasen};
  }
  Luokat().push_back(this);
}

const Tulos& Luokka::TulosNimella(std::string_view nimi) const {
  for (const Tulos& tulos : tulokset_)
    if (tulos.nimi == nimi) return tulos;
  throw std::logic_error("luokalla ei ole tulosta " + std::string(Nimi()) + "." + std::string(nimi));
}

const Jasen* Luokka::Etsi(std::string_view nimi) const noexcept {
  const Nimenpaat paat(nimi);
  const std::size_t peite = hakemisto_.size() - 1;
  for (std::size_t kohta = paat.Tiiviste() & peite; hakemisto_[kohta].jasen; kohta = (kohta + 1) & peite) {
    const Paikka& paikka = hakemisto_[kohta];
    const std::string_view oma = paikka.jasen->nimi;
    if (paikka.paat == paat && SamaKeskelta(oma, nimi)) return paikka.jasen;
    if (SamaNimi(oma, nimi)) return paikka.jasen;
  }
  return nullptr;
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
