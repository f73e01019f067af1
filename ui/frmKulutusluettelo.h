// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Poimintalomake.h"

/// The catalogue of typical devices or water uses: name, kind, value, unit, what is counted, use, how sure it is.
class frmKulutusluettelo : public Poimintalomake {
 public:
  frmKulutusluettelo() : Poimintalomake("frmKulutusluettelo") {}
};
