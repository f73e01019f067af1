// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <thread>

/// Reads the system's fonts on a thread of its own, so that they are at hand when the first text is drawn. To be
/// started first in the program; whoever needs them earlier waits. The thread ends by itself, and is joined when it
/// goes.
std::jthread LueFontitTaustalla();
