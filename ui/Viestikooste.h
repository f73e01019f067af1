// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <span>
#include <string>
#include <vector>

#include "ui/Viestit.h"

/// Messages of one text, told as one: how many they were and what they were about.
class Viestikooste {
 public:
  explicit Viestikooste(const Viesti& viesti) : viesti_(viesti) { Lisaa(viesti); }

  /// The message belongs here: same text and title.
  bool Sopii(const Viesti& viesti) const;
  void Lisaa(const Viesti& viesti);
  /// The message to show: its text, the first names that it concerns and, when the names don't tell it, how many times
  /// it came, each on a line of its own.
  Viesti Koottu() const;

 private:
  Viesti viesti_;
  std::vector<std::string> kohteet_;  // each once, in the order in which they came
  int maara_ = 0;
};

/// Puts the message where it belongs, or at the end.
void LisaaKoosteisiin(std::vector<Viestikooste>& koosteet, const Viesti& viesti);
/// Messages by kind, in the order in which the kinds came.
std::vector<Viestikooste> Koosta(std::span<const Viesti> viestit);
/// The same as text, for programs that have no windows: each kind ends in a line feed.
std::string KoosteTekstina(std::span<const Viesti> viestit);
