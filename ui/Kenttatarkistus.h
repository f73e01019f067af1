// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>

#include "ui/Lomake.h"

/// Checks the number fields of a form by their design-time Tag "tip id,type,lower,upper": with the type "N" the text
/// must be a number (an empty one isn't) between the limits, each of which may be missing; with the type "K" a time of
/// day. Looks at enabled text boxes whose own hidden flag is off, also on hidden pages. At the first failure shows
/// error 1008 (no number; the text is selected), 1009 (limits) or 1013 (no time; the text is selected), gives the field
/// the focus and returns false. A message within a second of the last one is left out, so that a field that keeps
/// losing the focus raises no storm of boxes; the focus moves all the same.
bool TarkistaLukukentat(const Lomake& lomake);

/// Milliseconds from any start, wrapping to 0. Tests give their own; nullptr sets the real clock.
void AsetaTarkistuksenKello(std::uint32_t (*kello)());
