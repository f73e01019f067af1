// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <span>

struct Tulos;

/// The figures of the heat summary, MWh/a, as results of a clsRakennus under the names of the fields that show them:
/// the computed distribution of heat, the measured consumption, and the losses. Sums are of unrounded figures here,
/// while the window adds what it shows. To be read inside a Tasehaarukka; what the normalisation has to tell isn't
/// shown.
std::span<const Tulos> LampoyhteenvedonTulokset() noexcept;
