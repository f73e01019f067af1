// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <chrono>
#include <optional>
#include <string_view>

#include "ui/Odotus.h"

/// Progress of a long calculation in the status panel. Costs next to nothing: the text is put together and painted at
/// most ten times a second, and not at all in a calculation that is over sooner. The panel is restored at the end.
class Edistyminen {
 public:
  void Nayta(std::string_view teksti, std::string_view kohde) {
    const auto nyt = std::chrono::steady_clock::now();
    if (nyt - edellinen_ < kVali) return;
    edellinen_ = nyt;
    Paivita(teksti, kohde);
  }

 private:
  static constexpr std::chrono::milliseconds kVali{100};

  void Paivita(std::string_view teksti, std::string_view kohde);

  std::chrono::steady_clock::time_point edellinen_ = std::chrono::steady_clock::now();
  std::optional<Odotus> odotus_;
};
