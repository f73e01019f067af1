// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// The local day as "d.M.yyyy", e.g. "7.3.2026".
std::string TamaPaiva();
/// The local calendar year.
int TamaVuosi();
