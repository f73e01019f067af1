// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "lifecycle/Investointilaskelma.h"

class clsSaastotoimenpide;
class clsToimenpiteidenJarjestelija;
class clsValittuToimenpide;
class clsSaastotoimenpiteet;
struct Alvprosentit;

/// What an investment is worth over the calculation period; a figure that there isn't is missing.
struct Elinkaariluvut {
  std::optional<double> nettonykyarvo{};      ///< €
  std::optional<double> takaisinmaksuaika{};  ///< discounted, a
  std::optional<double> sisainenKorko{};      ///< %
  std::optional<double> energianHinta{};      ///< €/MWh
};
/// All are missing without an investment or without the defaults of the reckoning.
Elinkaariluvut LaskeElinkaariluvut(const std::optional<Investointi>& investointi,
                                   const std::optional<Elinkaarioletukset>& oletukset);

/// The investment that a measure is: its price, what it saves in a year at the prices of today, each with its VAT. Of a
/// measure on a supply the saving by the supplies and tariffs of each state, since the measure's own prices can't show
/// a change of fuel. Figures are computed unless they are valid. Errors: those of the calculation.
Investointi ToimenpiteenInvestointi(clsSaastotoimenpide& toimenpide, const Alvprosentit& alv);

/// The same of a row of the arranger by its net figures; nothing when they aren't computed.
std::optional<Investointi> RivinInvestointi(const clsValittuToimenpide& rivi, const clsSaastotoimenpiteet& toimenpiteet,
                                            const Alvprosentit& alv);

/// The same of the arranger's list as it was last computed, net figures and changes of tariff together; with a measure
/// on a supply in it, by the supplies and tariffs of each state. Nothing when the list isn't computed, or when the
/// tariffs don't give it.
std::optional<Investointi> PaketinInvestointi(const clsToimenpiteidenJarjestelija& jarjestelija,
                                              const clsSaastotoimenpiteet& toimenpiteet, const Alvprosentit& alv);
