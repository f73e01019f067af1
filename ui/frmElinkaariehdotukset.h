// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Poimintalomake.h"

/// A catalogue of published values to pick from: name, value, its range, unit, how sure it is.
class frmElinkaariehdotukset : public Poimintalomake {
 public:
  frmElinkaariehdotukset() : Poimintalomake("frmElinkaariehdotukset") {}
};
