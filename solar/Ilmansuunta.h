// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

/// What a surface faces. The numbers are those of a structure's orientation index.
enum class Ilmansuunta { Pohjoinen = 0, Ita = 1, Etela = 2, Lansi = 3, Vaaka = 4 };

inline constexpr std::size_t kIlmansuuntia = 5;

/// The orientation of an index 0 to 4. Errors: AurinkoVirhe for any other index.
Ilmansuunta IlmansuuntaNumerosta(int numero);

/// Its place in a table of kIlmansuuntia entries.
constexpr std::size_t Indeksi(Ilmansuunta suunta) { return static_cast<std::size_t>(suunta); }
