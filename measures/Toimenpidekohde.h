// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string_view>

#include "kernel/Olio.h"

/// A copy of the object, of the class that it is. Raises std::invalid_argument for a class that no saving measure
/// concerns: it is a space, a machine, a group of electricity or water consumers, or a supply.
std::unique_ptr<Olio> KopioiToimenpidekohde(const Olio& kohde);
