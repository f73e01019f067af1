// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>

/// One UTF-8 byte in lower case: A to Z, and the second byte of À to Þ (Latin letters such as Å, Ä, Ö).
/// `edellinen` is the byte before it.
constexpr char PieniTavu(char tavu, char edellinen) noexcept {
  if (tavu >= 'A' && tavu <= 'Z') return static_cast<char>(tavu + 32);
  const auto t = static_cast<unsigned char>(tavu);
  const bool latinalainen = static_cast<unsigned char>(edellinen) == 0xC3 && t >= 0x80 && t <= 0x9E && t != 0x97;
  return latinalainen ? static_cast<char>(t + 0x20) : tavu;
}

/// The text with Latin letters in lower case; UTF-8.
std::string PieniksiKirjaimiksi(std::string_view teksti);

/// Names, keys, columns and controls are the same when they differ by letter case only.
constexpr bool SamaNimi(std::string_view x, std::string_view y) noexcept {
  if (x.size() != y.size()) return false;
  for (std::size_t i = 0; i < x.size(); ++i)
    if (x[i] != y[i] && PieniTavu(x[i], i ? x[i - 1] : '\0') != PieniTavu(y[i], i ? y[i - 1] : '\0')) return false;
  return true;
}
