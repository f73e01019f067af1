// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Fontit.h"

#include <fontconfig/fontconfig.h>

std::jthread LueFontitTaustalla() {
  return std::jthread([] { FcInit(); });
}
