// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

// What shown figures rest on, as whole sentences for a window, a report or a text.

/// Whether amounts hold VAT, and their currency, by the settings in force; both together.
std::string Alvperuste();
std::string Valuuttaperuste();
std::string Rahaperuste();
/// How the emissions of measured and of calculated use are computed.
std::string Paastoperuste();
