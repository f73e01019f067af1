// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/clsTyyppiTiedot.h"

/// Enters the object and all objects below it in the register. The second of two objects with one identity gets a fresh
/// one: so two objects that were loaded or copied with the same identity come apart.
/// Returns how many identities were renewed.
int PaivitaIdLista(Olio& olio, clsTyyppiTiedot& tyypit);
