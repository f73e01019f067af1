#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Includes go one way: app -> ui/qt -> ui <- model -> library, solar, kernel; and each layer has its own libraries.

The database has one interface, kernel/Tietokanta.h: SQLite's own header is the kernel's."""
import re

from lahteet import lahteet, lopeta, rivit

MALLI = {"building", "ventilation", "consumers", "supply", "measures", "lifecycle", "results", "settings", "checks"}
# layer: the layers that it may include besides itself
SALLITUT = {
    "kernel": set(),
    "solar": set(),
    "library": {"kernel"},
    "ui": {"kernel"},
    "model": {"ui", "library", "solar", "kernel"},
    "batch": {"model", "ui", "library", "solar", "kernel"},
    "ui/qt": {"ui", "library", "kernel"},
    "pdf": {"ui/qt", "model", "ui", "library", "solar", "kernel"},
    "library/server": {"ui/qt", "ui", "library", "kernel"},
    "app": {"pdf", "ui/qt", "model", "ui", "library", "solar", "kernel"},
    "bench/qt": {"app", "batch", "pdf", "ui/qt", "model", "ui", "library", "solar", "kernel"},
}
# Folders beside the layers count as the layer whose rules they follow.
VERTAISET = {"bench": "batch", "bench/vertailu": "batch", "tests/fault": "batch", "tests/fuzz": "batch", "tests/qt": "ui/qt",
             "tests/tuki": "batch", "ui/forms": "ui", "tests/palvelin": "library/server"}
KAIKILLE = ("tests/tuki/", "tekstit/")  # the tests' helpers, and the numbers of texts made from data/
# header of a library: the folders that may include it. One that matches no row is refused; the last rows are the C++ and
# the operating system's own.
TESTIT = {"tests/*"}
QT = {"ui/qt", "pdf", "app", "library/server", "bench/qt"}
KIRJASTOT = [
    (r"sqlite3\.h", {"kernel", "bench"}),
    (r"pugixml\.hpp", {"ui", "results", "tests/tuki"}),
    (r"fontconfig/fontconfig\.h", {"app"}),
    (r"libvoikko/voikko\.h", {"ui"}),
    (r"xlsxwriter\.h", {"results"}),
    (r"zip\.h", {"results", "tests/tuki"}),
    (r"(Q\w+|Lomaketaulu\.h)", {*QT, "tests/qt", "tests/pdf", "tests/app", "tests/palvelin"}),
    (r"(gtest|gmock)/.*", TESTIT),
    (r"fuzzer/.*", {"tests/fuzz"}),
    (r"benchmark/.*", {"bench", "bench/qt"}),
    (r"random", {"kernel", "bench", "tests/tuki"}),  # tests: tests/tuki/Arpa.h, which tells its seed
    (r"[a-z_]+", None),
    (r"(unistd|fcntl|signal|pwd|spawn|malloc|dirent|errno|poll|iconv|sys/\w+|linux/\w+)\.h",
     {"kernel", "library", "settings", "app", "batch", "bench", "bench/vertailu", "bench/qt", *TESTIT}),
]
# (file, included file): why it may go against the arrows; one that is no longer needed must be taken off.
POIKKEUKSET = {
    ("ui/qt/Tietoja.cpp", "sqlite3.h"): "tells the versions of the libraries",
    ("ui/qt/Tietoja.cpp", "pugixml.hpp"): "tells the versions of the libraries",
    ("ui/qt/Tietoja.cpp", "xlsxwriter.h"): "tells the versions of the libraries",
    ("ui/qt/Tietoja.cpp", "zip.h"): "tells the versions of the libraries",
}


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


def kirjasto_sallitaan(otsikko, mihin):
    for kuvio, kansiot in KIRJASTOT:
        if re.fullmatch(kuvio, otsikko):
            return kansiot is None or mihin in kansiot or (mihin.startswith("tests/") and kansiot >= TESTIT)
    return False


def kerros_sallitaan(otsikko, oma):
    muu = kerros(kansio(otsikko))
    return muu == oma or muu in SALLITUT[oma]


virheet, kaytetyt = [], set()
for polku in lahteet(".cpp", ".h"):
    nimi = polku.as_posix()
    oma = kerros(kansio(nimi))
    if oma not in SALLITUT:
        virheet.append(f"{nimi}:1: the folder belongs to no layer")
        continue
    for nro, rivi in enumerate(rivit(polku), 1):
        if m := re.match(r"#include <([^>]+)>", rivi):
            kelpaa = kirjasto_sallitaan(m[1], kansio(nimi))
        elif (m := re.match(r'#include "([^"]+/[^"]+)"', rivi)) and not m[1].startswith(KAIKILLE):
            kelpaa = kerros_sallitaan(m[1], oma)
        else:
            continue
        if not kelpaa and (nimi, m[1]) in POIKKEUKSET:
            kaytetyt.add((nimi, m[1]))
        elif not kelpaa:
            virheet.append(f"{nimi}:{nro}: {kansio(nimi)} may not include {m[1]}")
virheet += [f"tools/tarkista_sisallytykset.py: exception {p} is no longer needed" for p in POIKKEUKSET.keys() - kaytetyt]
lopeta(virheet)
