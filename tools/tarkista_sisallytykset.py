#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Includes go one way: app -> ui/qt -> ui <- model -> library, solar, kernel; only the Qt layers include Qt headers."""
import re

from lahteet import lahteet, lopeta, rivit

MALLI = {"building", "ventilation", "consumers", "supply", "measures", "results", "settings"}
# layer: the layers that it may include besides itself
SALLITUT = {
    "kernel": set(),
    "solar": set(),
    "library": {"kernel"},
    "ui": {"kernel"},
    "model": {"ui", "library", "solar", "kernel"},
    "batch": {"model", "ui", "library", "solar", "kernel"},
    "ui/qt": {"ui", "library", "kernel"},
    "library/server": {"ui/qt", "ui", "library", "kernel"},
    "app": {"ui/qt", "model", "ui", "library", "solar", "kernel"},
    "bench/qt": {"app", "batch", "ui/qt", "model", "ui", "library", "solar", "kernel"},
}
# Folders beside the layers count as the layer whose rules they follow.
VERTAISET = {"bench": "batch", "tests/fault": "batch", "tests/fuzz": "batch", "tests/qt": "ui/qt",
             "tests/tuki": "batch", "ui/forms": "ui", "tests/palvelin": "library/server"}
QT_KERROKSET = {"ui/qt", "app", "library/server", "bench/qt"}
# (file, included file): why it may go against the arrows; one that is no longer needed must be taken off.
POIKKEUKSET = {}


def kerros(kansio):
    """Layer of a folder given as "ui/qt": the tests of a layer count as that layer."""
    if kansio in VERTAISET:
        return VERTAISET[kansio]
    kansio = kansio.removeprefix("tests/")
    return "model" if kansio in MALLI else kansio


def kansio(polku):
    """Folder of a file; tests/building/osa/x.h gives tests/building."""
    osat = polku.split("/")[:-1]
    return "/".join(osat[:2] if osat[0] in ("tests", "ui", "bench", "library") else osat[:1])


virheet, kaytetyt = [], set()
for polku in lahteet(".cpp", ".h"):
    nimi = polku.as_posix()
    oma = kerros(kansio(nimi))
    if oma not in SALLITUT:
        virheet.append(f"{nimi}:1: the folder belongs to no layer")
        continue
    for nro, rivi in enumerate(rivit(polku), 1):
        if (m := re.match(r'#include "([^"]+/[^"]+)"', rivi)) and not m[1].startswith("tests/tuki/"):
            muu = kerros(kansio(m[1]))
            if muu == oma or muu in SALLITUT[oma]:
                continue
            if (nimi, m[1]) in POIKKEUKSET:
                kaytetyt.add((nimi, m[1]))
            else:
                virheet.append(f"{nimi}:{nro}: {oma} may not include {m[1]}")
        elif re.match(r"#include <Q[A-Za-z]+", rivi) and oma not in QT_KERROKSET:
            virheet.append(f"{nimi}:{nro}: {oma} may not include Qt")
virheet += [f"tools/tarkista_sisallytykset.py: exception {p} is no longer needed" for p in POIKKEUKSET.keys() - kaytetyt]
lopeta(virheet)
