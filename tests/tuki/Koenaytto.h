// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdlib>
#include <string>

#include "tests/tuki/Lahdekoodi.h"

/// A screen of 1920 x 1080 that nobody sees, for a test program with windows, unless the caller has chosen another
/// platform. To be called before the application is made.
inline void AsetaKoenaytto() {
  const char* alusta = std::getenv("QT_QPA_PLATFORM");
  if (alusta && std::string(alusta) != "offscreen") return;
  setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + Lahdekoodi("tests/tuki/naytto.json")).c_str(), 1);
}
