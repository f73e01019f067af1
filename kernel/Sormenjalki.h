// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>

#include "kernel/clsTyyppiTiedot.h"

/// A number that tells the contents of object trees apart: the values of all attributes of the object and of what it
/// owns, in their order, but those that are copies of other values (Jasen::kopio). Equal trees give the same number;
/// different ones almost surely another.
std::uint64_t Sormenjalki(Olio& olio, const clsTyyppiTiedot& tyypit);
/// The same of a collection's own attributes, without its items and display rows.
std::uint64_t SormenjalkiIlmanAlkioita(Olio& olio, const clsTyyppiTiedot& tyypit);
