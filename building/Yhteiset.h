// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class clsRakennus;
class clsSaa;

/// The building being worked on, or nothing. Spaces, structures and consumer groups read the common data of the
/// calculation (basic data, machines, loads) from it.
clsRakennus* GlobaaliRakennus() noexcept;
/// The weather of that building, or nothing: every calculation reads the climate from it, whichever copy it works on.
clsSaa* GlobaaliSaa() noexcept;
/// Makes the building and its weather the common ones; null clears both.
void AsetaGlobaaliRakennus(clsRakennus* rakennus) noexcept;

/// The same, raising std::logic_error when there is none.
clsRakennus& VaadiRakennus();
clsSaa& VaadiSaa();
