// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// Adds a part to a list in a sentence: "a, b, c".
inline void LisaaLuetteloon(std::string& luettelo, const std::string& osa) {
  if (!luettelo.empty()) luettelo += ", ";
  luettelo += osa;
}

/// The texts as a list in a sentence.
template <class Tekstit>
std::string Luettele(const Tekstit& tekstit) {
  std::string luettelo;
  for (const std::string& teksti : tekstit) LisaaLuetteloon(luettelo, teksti);
  return luettelo;
}
