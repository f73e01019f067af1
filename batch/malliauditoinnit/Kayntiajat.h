// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

class clsKayntiAjat;

/// Gives the periods of a schedule: "5 06:00 16:00 100" (times a week, start, end, flow in per cent) divided by ";",
/// once for the whole year or four times, by season, divided by "|". Further periods stay as they are.
void TaytaKayntiajat(const std::string& teksti, clsKayntiAjat& ajat);
