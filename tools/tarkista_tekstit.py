#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every text has a user, and every number a text.

A text is used by a form (its number begins a text of the form) or by its name in the code. A text marked "tulossa" waits for
its module and has no user yet. That code doesn't use a number past its name is the compiler's matter: the functions
that show texts take the named type only.
"""
import collections
import re
import sys
import xml.etree.ElementTree as xml

from lahteet import JUURI, lahteet, lopeta, rivit

sys.path.insert(0, str(JUURI / "data"))
from rakenna_tekstinumerot import TULOSSA, lue  # noqa: E402


def lomakkeiden_numerot():
    """Number: the first form that shows its text."""
    numerot = {}
    for polku in lahteet(".ui"):
        for teksti in xml.parse(JUURI / polku).iter("string"):
            tunnus = (teksti.text or "").split(",")[0]
            if re.fullmatch(r"[1-9]\d{3}", tunnus):
                numerot.setdefault(int(tunnus), polku)
    return numerot


def koodi():
    polut = (p for p in lahteet(".cpp", ".h") if p.parts[0] not in ("tests", "bench"))
    return "\n".join(rivi for polku in polut for rivi in rivit(polku))


SIIRTYMASSA = True  # code still uses numbers: a name without a user is no fault yet
KOODI = koodi()
KAYTETYT = set(re.findall(r"\b(tekstit|virheet)::k(\w+)", KOODI))
LOMAKKEISSA = lomakkeiden_numerot()
virheet, paikat, nimien_paikat = [], collections.defaultdict(list), {}
for tiedosto in sorted((JUURI / "data/tekstit").glob("*.csv")) + [JUURI / "data/virheet.csv"]:
    nimi = tiedosto.relative_to(JUURI)
    avaruus = "virheet" if tiedosto.stem == "virheet" else "tekstit"
    for numero, vakio in lue(tiedosto)[1]:
        vakio = vakio.removesuffix("[]")
        lomakkeessa = avaruus == "tekstit" and numero in LOMAKKEISSA
        koodissa = (avaruus, vakio) in KAYTETYT
        paikat[avaruus, numero].append(nimi)
        if vakio == TULOSSA:
            if lomakkeessa:
                virheet.append(f"{nimi}: {numero} is no longer to come: {LOMAKKEISSA[numero]} shows it")
            continue
        if SIIRTYMASSA and (vakio or re.search(rf"(?<![\w.]){numero}(?![\w.])", KOODI)):
            pass
        elif not lomakkeessa and not koodissa:
            virheet.append(f"{nimi}: {numero} has no user" + (f" ({avaruus}::k{vakio})" if vakio else ""))
        elif vakio and not koodissa:
            virheet.append(f"{nimi}: {numero} needs no name, only forms show it")
        if vakio and nimien_paikat.setdefault((avaruus, vakio), nimi) != nimi:
            virheet.append(f"{nimi}: {vakio} is also a name in {nimien_paikat[avaruus, vakio]}")
virheet += [f"{', '.join(map(str, p))}: {numero} stands twice" for (_, numero), p in paikat.items() if len(p) > 1]
virheet += [f"{polku}: {numero} has no text" for numero, polku in LOMAKKEISSA.items() if ("tekstit", numero) not in paikat]
lopeta(virheet)
