// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/clsTyyppiTiedot.h"

/// Enters the object and all objects below it in the register. The second of two objects with one identity gets a fresh
/// one: so two objects that were loaded or copied with the same identity come apart.
/// Returns how many identities were renewed.
int PaivitaIdLista(Olio& olio, clsTyyppiTiedot& tyypit);

/// Gives the object and all objects that it owns identities of their own: for a copy that is to stand beside its
/// source.
void UusiTunnisteet(Olio& olio);
