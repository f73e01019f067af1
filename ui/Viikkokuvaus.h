// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "kernel/Variantti.h"
#include "ui/Ohjain.h"

/// A run of a ventilation machine: a time of day on some days of the week.
struct Viikkokaynti {
  int kertoja = 0;            ///< runs a week
  Kellonaika alkaa, paattyy;  ///< an end at or before the start is that of the next day
  double virta = 0;           ///< flow, %
};

/// What the chart control of a week (the widget class Viikkokuva of a form file) shows: the flow at each time of the
/// week as periods that don't overlap; runs at the same time are added. Only the number of runs a week is known, so the
/// days are for show: seven or more are every day, three to six from Monday on, two the weekend, and one the day of the
/// weekend that has less so far. A run without flow isn't shown.
Kaaviotiedot Viikkokuvaus(std::string otsikko, const std::vector<Viikkokaynti>& kaynnit);

/// The parts of such a chart, by the place of their series: each has a value for each period.
enum Viikkosarja : std::size_t {
  kPaivat,  ///< day of the week, 0 is Monday
  kAlut,    ///< minutes from midnight
  kLoput,   ///< minutes from midnight, up to 1440
  kVirrat,  ///< %
};
