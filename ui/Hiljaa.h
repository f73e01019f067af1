// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <utility>

#include "ui/KerataanViestit.h"

/// Keeps messages from the person for one scope.
class Hiljaisuus {
 public:
  Hiljaisuus() : ennen_(ViestitNyt()) { AsetaViestit(&keratyt_); }
  ~Hiljaisuus() { AsetaViestit(&ennen_); }
  Hiljaisuus(const Hiljaisuus&) = delete;
  Hiljaisuus& operator=(const Hiljaisuus&) = delete;

  /// Something was to be told.
  bool Viesteja() const { return !keratyt_.Naytetyt().empty(); }
  /// Text of the first message; "" when there is none.
  std::string EnsimmainenViesti() const { return Viesteja() ? keratyt_.Naytetyt().front().teksti : ""; }

 private:
  Viestit& ennen_;
  KerataanViestit keratyt_;
};

/// Result of a calculation whose complaints aren't for now: a field may be half typed. Nothing when it shows a message
/// or raises.
template <class F>
auto LaskeHiljaa(F&& laske) -> std::optional<decltype(laske())> try {
  const Hiljaisuus hiljaisuus;
  auto tulos = std::forward<F>(laske)();
  if (hiljaisuus.Viesteja()) return std::nullopt;
  return tulos;
} catch (...) {
  return std::nullopt;
}
