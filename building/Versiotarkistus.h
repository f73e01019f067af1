// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

#include "kernel/Projektitiedosto.h"

/// How the version of a project file stands to the program's: the major and the minor number each count alone, so that
/// 1.9 is newer than 2.0. A newer file isn't opened: what this program doesn't know would be lost at its next save.
enum class Versiosuhde { Vanhempi, Sama, Uudempi };
Versiosuhde Suhde(const Tiedostoversio& versio) noexcept;

/// What is told of a file of another version, in Finnish; "" for the same.
std::string Versioviesti(const Tiedostoversio& versio);

/// Raises Projektivirhe, with the message, when the file is of a newer program.
void VaadiTunnettuVersio(const Tiedostoversio& versio);
