#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every text has a user, and every number a text.

A text is used by a form (its number begins a text of the form) or by its name in the code; code has no numbers of texts.
A text marked "tulossa" waits for its module and has no user yet.
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


RAAKA = re.compile(r"(?<![.>])\b(?:Teksti|NaytaVirhe)\([1-9]\d{3}\b")
KOODI = koodi()
KAYTETYT = set(re.findall(r"\b(tekstit|virheet)::k(\w+)", KOODI))
LOMAKKEISSA = lomakkeiden_numerot()
virheet, paikat, nimien_paikat = [], collections.defaultdict(list), {}
for tiedosto in sorted((JUURI / "data/tekstit").glob("*.csv")) + [JUURI / "data/virheet.csv"]:
    nimi = tiedosto.relative_to(JUURI)
    avaruus = "virheet" if tiedosto.stem == "virheet" else "tekstit"
    for numero, vakiot in lue(tiedosto)[1]:
        nimet = [vakio.removesuffix("[]") for vakio in vakiot.split() if vakio != TULOSSA]
        lomakkeessa = avaruus == "tekstit" and numero in LOMAKKEISSA
        turhat = [vakio for vakio in nimet if (avaruus, vakio) not in KAYTETYT]
        paikat[avaruus, numero].append(nimi)
        if vakiot == TULOSSA and lomakkeessa:
            virheet.append(f"{nimi}: {numero} is no longer to come: {LOMAKKEISSA[numero]} shows it")
        elif not vakiot and not lomakkeessa:
            virheet.append(f"{nimi}: {numero} has no user")
        virheet += [f"{nimi}: {numero}: nobody uses {avaruus}::k{vakio}" for vakio in turhat]
        virheet += [f"{nimi}: {vakio} is also a name in {nimien_paikat[avaruus, vakio]}" for vakio in nimet
                    if nimien_paikat.setdefault((avaruus, vakio), nimi) != nimi]
virheet += [f"{', '.join(map(str, p))}: {numero} stands twice" for (_, numero), p in paikat.items() if len(p) > 1]
virheet += [f"{polku}: {numero} has no text" for numero, polku in LOMAKKEISSA.items() if ("tekstit", numero) not in paikat]
for polku in lahteet(".cpp", ".h"):
    if polku.parts[0] not in ("tests", "bench"):
        virheet += [f"{polku}:{nro}: the text's name instead of its number" for nro, rivi in enumerate(rivit(polku), 1)
                    if RAAKA.search(rivi)]
lopeta(virheet)
