// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "kernel/Variantti.h"

/// A time of day as a person sees it: "07:30". Minutes beyond the day are shown as they are: 1440 is "24:00".
std::string KellonaikaTekstina(Kellonaika aika);

/// Reads a typed time of day: "7", "07:30", "7.30", "0730", blanks around it skipped. "24:00" is midnight, the same as
/// "00:00". Nothing for any other text.
std::optional<Kellonaika> LueKellonaika(std::string_view teksti);
