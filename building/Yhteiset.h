// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class clsRakennus;
class clsSaa;

/// The building that the windows show, or nothing. No calculation asks it: what belongs together finds its building
/// through building/Koti.h.
clsRakennus* GlobaaliRakennus() noexcept;
/// The weather of that building, or nothing.
clsSaa* GlobaaliSaa() noexcept;
/// Makes the building the one that the windows show; null clears it.
void AsetaGlobaaliRakennus(clsRakennus* rakennus) noexcept;

/// The same, raising std::logic_error when there is none.
clsRakennus& VaadiRakennus();
clsSaa& VaadiSaa();
