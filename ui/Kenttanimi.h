// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

#include "ui/Lomakeikkuna.h"

/// What a person calls a control: the captions of the controls that its design-time property Nimio names, or of the
/// label whose buddy it is. Without its colon; "" when it has no name.
std::string KentanNimi(const Lomakeikkuna& ikkuna, const Ohjain& ohjain);
/// The unit beside the field txtX: the caption of the label lblYksX; "" when there is none.
std::string KentanYksikko(const Lomakeikkuna& ikkuna, const Ohjain& ohjain);
