// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers as text. What a person sees and types is Finnish whatever the machine's locale: decimal comma, blank
/// between thousands. What goes to files and databases has the decimal point and no groups.

/// A number by a pattern of the form "### ##0.00": as many decimals as stand behind the point ('0' always shown, '#'
/// only when not zero), at least one digit before it, groups of three with an ordinary blank if the pattern has a
/// blank. Rounds half away from zero on the shortest decimal form of at most 15 significant digits, so that 2.675 in
/// "0.00" is "2,68". A result that rounds to zero has no minus sign. Infinity and NaN give "---".
std::string Muotoile(double arvo, std::string_view kuvio);

/// Reads a typed or pasted number: blanks of any kind are skipped, the decimal mark is a comma or a point, once; one
/// sign in front, '+', '-' or U+2212. Nothing (also for an empty text, an exponent, two marks, a tab or a line break
/// between digits, or a value outside the range of double) when it is not such a number.
std::optional<double> LueLuku(std::string_view teksti);

/// As LueLuku, but an empty or blank text is 0.
std::optional<double> LueLukuTaiNolla(std::string_view teksti);

/// The shortest decimal form that reads back equal, with a decimal point and without an exponent.
std::string LyhinMuoto(double arvo);

/// The nearest integer, a half to the even one. Throws std::out_of_range outside the range of 32 bits and for NaN.
std::int32_t PyoristaKokonaisluvuksi(double arvo);

/// Rounds to the given number of decimals (0 to 15), a half to the even digit, on the same decimal form as Muotoile.
/// Infinity and NaN are given back as they are.
double PyoristaParilliseen(double arvo, int desimaaleja);
