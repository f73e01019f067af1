// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QString>
#include <string>

/// A text as Finnish is set on paper: a narrow no-break space between groups of digits, a no-break space between a
/// number and its unit or per cent sign, and a minus sign where a hyphen stands before a number.
QString Ladottu(const std::string& teksti);
