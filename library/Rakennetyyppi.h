// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

/// Kinds of structure: the values of a structure's `Rakennetyyppi`.
namespace Rakennelaji {
enum : std::int32_t { Ulkoseina, Ylapohja, Alapohja, Ikkuna, Ovi, KantavaValiseina, KevytValiseina, Valipohja };
}

/// Surface resistances, m²K/W.
struct Pintavastukset {
  float sisa;
  float ulko;
};

/// Where heat flows through a structure in winter.
enum class Lampovirta { Vaakaan, Ylos, Alas };

/// Kind of the structure library's word ("Ulkoseinä", "Yläpohja", ...), compared as exact text; nothing for other
/// words.
std::optional<std::int32_t> RakennetyyppiSanasta(std::string_view sana);
/// The library's word of a kind 0 to 7; empty for other values.
std::string_view RakennetyypinSana(std::int32_t tyyppi);
/// Design values of EN ISO 6946 by the direction of the heat flow; indoor air on both sides of partitions and
/// intermediate floors. An unknown word gives those of an outer wall.
Pintavastukset Oletuspintavastukset(std::string_view sana);
/// Up through a roof, down through a floor, else level.
Lampovirta LampovirranSuunta(std::string_view sana);
