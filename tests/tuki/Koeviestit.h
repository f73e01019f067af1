// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/KerataanViestit.h"

/// Takes the messages of the program for its own lifetime and answers the questions.
class Koeviestit : public KerataanViestit {
 public:
  Koeviestit() { AsetaViestit(this); }
  ~Koeviestit() override { AsetaViestit(nullptr); }
};
