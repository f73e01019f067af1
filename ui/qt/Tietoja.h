// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Taulukko.h"

/// Name, version and licence of each library that the program uses, as they are on this computer.
Taulukko KirjastojenTiedot();
/// What is asked first when something fails: system, processor, screen, folders.
Taulukko JarjestelmanTiedot();

/// Shows the About window; returns when it is closed.
void NaytaTietoja();
