#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the C++ header that names the numbers of one file of texts: rakenna_tekstinumerot.py TEXTS.csv HEADER.

The column Vakio gives a row its name: "Virhe" becomes tekstit::kVirhe, rows in order with the same "Kuukaudet[]" the
array tekstit::kKuukaudet; a row may have both, with a blank between. A row without a name is used by forms only;
"tulossa" marks the text of a module to come.
Messages (first column ErrorCode) get names of their own type in the namespace virheet.
"""
import csv
import pathlib
import re
import sys

TULOSSA = "tulossa"


def lue(tiedosto):
    """Rows of a file of texts as (number, name), the name "" when the row has none."""
    with open(tiedosto, encoding="utf-8", newline="") as virta:
        rivit = csv.DictReader(virta)
        return rivit.fieldnames[0], [(int(r[rivit.fieldnames[0]]), r.get("Vakio") or "") for r in rivit]


def otsikko(tiedosto):
    numerosarake, rivit = lue(tiedosto)
    tyyppi, avaruus = ("Virhenumero", "virheet") if numerosarake == "ErrorCode" else ("Tekstinumero", "tekstit")
    vakiot, sarjat = {}, {}
    for numero, nimi in ((numero, nimi) for numero, nimet in rivit for nimi in nimet.split() if nimi != TULOSSA):
        if not re.fullmatch(r"[A-Z][A-Za-z0-9]*(\[\])?", nimi):
            raise ValueError(f"{numero}: {nimi} is no name of a constant")
        if nimi.endswith("[]"):
            sarjat.setdefault(nimi[:-2], []).append(numero)
        elif nimi in vakiot:
            raise ValueError(f"{numero}: {nimi} is the name of {vakiot[nimi]}")
        else:
            vakiot[nimi] = numero
    yield f"// Made from {tiedosto.name} of data/."
    yield "#pragma once\n"
    if sarjat:
        yield "#include <array>\n"
    yield f"enum {tyyppi} : int;\n\nnamespace {avaruus} {{"
    for nimi, numero in vakiot.items():
        yield f"inline constexpr {tyyppi} k{nimi}{{{numero}}};"
    for nimi, numerot in sarjat.items():
        arvot = ", ".join(f"{tyyppi}{{{n}}}" for n in numerot)
        yield f"inline constexpr std::array<{tyyppi}, {len(numerot)}> k{nimi}{{{arvot}}};"
    yield f"}}  // namespace {avaruus}\n"


if __name__ == "__main__":
    lahde, kohde = map(pathlib.Path, sys.argv[1:])
    try:
        teksti = "\n".join(otsikko(lahde))
    except (ValueError, KeyError, OSError) as virhe:
        sys.exit(f"{lahde}: {virhe}")
    # An unchanged header stays as it is, so that a changed text compiles nothing anew.
    if not kohde.exists() or kohde.read_text(encoding="utf-8") != teksti:
        kohde.write_text(teksti, encoding="utf-8")
