// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <optional>

/// How the flow of a fan is controlled; "2nop" has a two-speed motor.
enum IlmavirranSaatotavat : std::int32_t {
  Kuristus1nop,
  Kuristus2nop,
  Johtosiipi1nop,
  Johtosiipi2nop,
  Siipikulma,
  Taajuusmuuttaja
};

/// Relative shaft power of a fan at x % of its flow: ma2 (x/100)² + ma1 (x/100) + ma0.
struct Sovite {
  double ma2 = 0, ma1 = 0, ma0 = 0;
};

/// The fit at x % by control method and share of constant pressure rise, % in steps of ten: nothing is interpolated;
/// below 0 counts as 0, above 100 as 100. Two-speed fans have other fits above 70 %. Nothing for an unknown method.
/// Source: as given for this method.
std::optional<Sovite> MivSovite(double x, std::int32_t tapa, std::int32_t osuus);
