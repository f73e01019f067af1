#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every C++ file begins with the licence line, every header has its include guard."""
from lahteet import lahteet, lopeta, rivit

LISENSSI = "// SPDX-License-Identifier: GPL-3.0-or-later"
virheet = []
for polku in lahteet(".cpp", ".h"):
    teksti = rivit(polku)
    if teksti[:1] != [LISENSSI]:
        virheet.append(f"{polku}:1: does not begin with '{LISENSSI}'")
    if polku.suffix == ".h" and "#pragma once" not in teksti:
        virheet.append(f"{polku}:1: no '#pragma once'")
lopeta(virheet)
