// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// A dialog with OK and Cancel whose number fields may be left empty; what is written in them has to be good.
class Avokenttalomake : public Muokkauslomake {
 protected:
  explicit Avokenttalomake(std::string nimi);
  /// Every field that isn't empty holds a good value; else tells and takes the person to the field.
  bool KentatKelpaavat() const;
};
