// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/KerataanViestit.h"

/// Collects the messages of this thread for its lifetime.
class Viestinkeruu : public KerataanViestit {
 public:
  Viestinkeruu() { AsetaViestit(this); }
  ~Viestinkeruu() override { AsetaViestit(nullptr); }
};
