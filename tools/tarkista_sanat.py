#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""One word for one thing: texts, messages, choice lists and the guide have none of the words that data/sanalista.csv
tells to avoid. Code (`...`) and names of files aren't looked at."""
import csv
import re

from lahteet import JUURI, lopeta

SAANNOT = [(re.compile(r["Valtettava"]), r["Sana"]) for r in csv.DictReader(open(JUURI / "data/sanalista.csv", encoding="utf-8"))]
TIEDOSTOT = [*sorted((JUURI / "data/tekstit").glob("*.csv")), JUURI / "data/virheet.csv", JUURI / "data/valintalistat.csv",
             JUURI / "data/ominaisuudet.csv",
             *sorted((JUURI / "docs/opas").glob("*.md"))]


def nakyva(tiedosto, rivi):
    """What the person sees of a line."""
    if tiedosto.suffix == ".csv":
        solut = next(csv.reader([rivi]), [])
        return solut[2] if len(solut) > 2 and not tiedosto.parent.name == "tekstit" else "".join(solut[1:2])
    return re.sub(r"`[^`]*`|\]\([^)]*\)", "", rivi)


virheet = []
for tiedosto in TIEDOSTOT:
    for nro, rivi in enumerate(tiedosto.read_text("utf-8").splitlines(), 1):
        for valtettava, sana in SAANNOT:
            if osuma := valtettava.search(nakyva(tiedosto, rivi)):
                virheet.append(f"{tiedosto.relative_to(JUURI)}:{nro}: {osuma[0]!r} should be {sana!r}")
lopeta(virheet)
