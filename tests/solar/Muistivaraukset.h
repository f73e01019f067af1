// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How many times this test program has asked for memory so far.
int Muistivarauksia();
