// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

// What shown figures rest on, as whole sentences for a window, a report or a text.

/// The currency, and whether the amounts hold VAT, by the settings in force.
std::string Rahaperuste();
/// How the emissions of measured and of calculated use are computed.
std::string Paastoperuste();
