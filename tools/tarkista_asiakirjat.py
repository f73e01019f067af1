#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""README.md and docs/*.md tell the truth about the tree: the paths and the links that they name exist, every folder of
sources is on the map of the tree and in the table of layers, and the numbers of rows are those of the data."""
import csv
import re

from lahteet import JUURI, lahteet, lopeta

# (document, pattern whose group is the number, file whose rows it counts)
LUVUT = [("docs/reference-data.md", r"^(\d+) solutions", "data/rakennekirjasto/rakenteet.csv")]
# What documents call by a path but the tree doesn't hold.
MUUALLA = re.compile(r"^(build/|koti/|/|~|\$|https?:|mailto:)|[<>*]|XXXX")
PAATTEET = ("", ".h", ".cpp", ".py", ".cmake", ".md", ".csv", ".ui")

KANSIOT = {p.parent.as_posix() for p in lahteet(".cpp") if p.parts[0] not in ("tests", "bench")}


def on_olemassa(polku):
    """A path of the tree, its suffix left out or not; "kernel/Olio.h" or, in "ui/frmX.h", X in place of a name."""
    kuvio = re.sub(r"(?<=frm|cls)X|(?<=/)X", "*", polku.rstrip("/"))
    return any(next(JUURI.glob(kuvio + paate), None) for paate in PAATTEET)


def polut(teksti):
    """Paths in code marks: those with a folder that the tree has."""
    for koodi in re.findall(r"`([^`\n]+)`", re.sub(r"```.*?```", "", teksti, flags=re.S)):
        for sana in koodi.split():
            sana = re.sub(r"\{[^}]*\}", "*", sana)
            ensimmainen = sana.split("/")[0]
            if "/" in sana and not MUUALLA.search(sana) and (JUURI / ensimmainen).is_dir():
                yield sana


def kansiotaulun_polut(teksti):
    """Folders of a document's tables."""
    rivit = "\n".join(r for r in teksti.splitlines() if r.startswith("|"))
    return {k.rstrip("/") for koodi in re.findall(r"`([^`]+)`", rivit) for k in koodi.split()}


def rivien_maara(tiedosto):
    with open(JUURI / tiedosto, encoding="utf-8", newline="") as virta:
        return sum(1 for _ in csv.DictReader(virta))


virheet = []
asiakirjat = {p.relative_to(JUURI).as_posix(): p.read_text("utf-8") for p in [JUURI / "README.md", *sorted((JUURI / "docs").glob("*.md"))]}
for nimi, teksti in asiakirjat.items():
    virheet += [f"{nimi}: there is no {polku}" for polku in sorted(set(polut(teksti))) if not on_olemassa(polku)]
    for linkki in re.findall(r"\]\(([^)#]+)[^)]*\)", teksti):
        if not MUUALLA.search(linkki) and not (JUURI / nimi).parent.joinpath(linkki).exists():
            virheet.append(f"{nimi}: dead link {linkki}")
for nimi in ("README.md", "docs/architecture.md"):
    kartta = kansiotaulun_polut(asiakirjat[nimi])
    virheet += [f"{nimi}: {k}/ is in no table" for k in sorted(KANSIOT) if not kartta & {k, k.split("/")[0]}]
for nimi, kuvio, tiedosto in LUVUT:
    for luku in re.findall(kuvio, asiakirjat[nimi], re.M) or [None]:
        if luku is None or int(luku) != rivien_maara(tiedosto):
            virheet.append(f"{nimi}: says {luku}, {tiedosto} has {rivien_maara(tiedosto)} rows")
lopeta(virheet)
