// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

/// Which catalogue of published values.
enum class Ehdotuslaji {
  Oletusarvo,    ///< defaults of the reckoning; groups are Pitoaika, Korkokanta, Lampo, Sahko and Vesi
  Kayttoika,     ///< technical lives, a
  Yksikkohinta,  ///< founding costs of a unit, € without VAT
};

/// A value that the person may take; the program takes none by itself.
struct Elinkaariehdotus {
  std::string Id;
  std::string Ryhma;
  std::string Nimi;
  double Arvo = 0;
  double Pienin = 0;  ///< usual range of it
  double Suurin = 0;
  std::string Yksikko;
  std::string Lahde;  ///< where it comes from, in Finnish
  std::string Tila;   ///< how sure it is (docs/reference-data.md)
};

/// The rows in the catalogue's order. Raises error 9999 when it can't be read.
std::vector<Elinkaariehdotus> LueEhdotukset(Ehdotuslaji laji);

/// Lets the person pick a row; nothing when none was picked. Raises error 9999 as above.
std::optional<Elinkaariehdotus> PoimiEhdotus(Ehdotuslaji laji);
