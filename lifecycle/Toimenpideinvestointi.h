// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "lifecycle/Investointilaskelma.h"

class clsSaastotoimenpide;
class clsToimenpiteidenJarjestelija;
class clsSaastotoimenpiteet;
struct Alvprosentit;

/// The investment that a measure is: its price, what it saves in a year at the prices of today, each with its VAT. Of a
/// measure on a supply the saving by the supplies and tariffs of each state, since the measure's own prices can't show
/// a change of fuel. Figures are computed unless they are valid. Errors: those of the calculation.
Investointi ToimenpiteenInvestointi(clsSaastotoimenpide& toimenpide, const Alvprosentit& alv);

/// The same of the arranger's list as it was last computed, net figures and changes of tariff together; with a measure
/// on a supply in it, by the supplies and tariffs of each state. Nothing when the list isn't computed, or when the
/// tariffs don't give it.
std::optional<Investointi> PaketinInvestointi(const clsToimenpiteidenJarjestelija& jarjestelija,
                                              const clsSaastotoimenpiteet& toimenpiteet, const Alvprosentit& alv);
