#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Builds one SQLite database from text sources.

    rakenna_kanta.py RESULT STEP...

A step is an SQL script (name.sql) or the rows of a table (Table=rows.csv); steps run in the order given.
The heading of a CSV file names the columns, an empty cell takes the column's default. The column Vakio, which names a
row for the code, goes to no database; a row without a name may end before it. A fault in a source
ends the build with the file and line; the result appears whole or not at all, and equal sources give equal bytes.
"""
import csv
import os
import sqlite3
import sys
import unicodedata

NIMISARAKE = "Vakio"


class Lahdevirhe(Exception):
    """A fault in a source file."""


def lue(tiedosto):
    with open(tiedosto, encoding="utf-8", newline="") as virta:
        teksti = virta.read()
    if not unicodedata.is_normalized("NFC", teksti):
        raise Lahdevirhe(f"{tiedosto}: text is not in Unicode form NFC")
    return teksti


def lisaa_rivi(kanta, taulu, rivi):
    annetut = {sarake: arvo for sarake, arvo in rivi.items() if arvo != "" and sarake != NIMISARAKE}
    sarakkeet = ", ".join(f'"{sarake}"' for sarake in annetut)
    kysymykset = ", ".join("?" * len(annetut))
    kanta.execute(f'INSERT INTO "{taulu}" ({sarakkeet}) VALUES ({kysymykset})', tuple(annetut.values()))


def lisaa_rivit(kanta, taulu, tiedosto):
    rivit = csv.DictReader(lue(tiedosto).splitlines(keepends=True), strict=True)
    for rivi in rivit:
        if None in rivi or None in (arvo for sarake, arvo in rivi.items() if sarake != NIMISARAKE):
            raise Lahdevirhe(f"{tiedosto}:{rivit.line_num}: wrong number of fields")
        try:
            lisaa_rivi(kanta, taulu, rivi)
        except sqlite3.Error as virhe:
            raise Lahdevirhe(f"{tiedosto}:{rivit.line_num}: {virhe}") from virhe


def suorita(kanta, vaihe):
    taulu, erotin, tiedosto = vaihe.partition("=")
    if erotin:
        lisaa_rivit(kanta, taulu, tiedosto)
        return
    try:
        kanta.executescript(lue(vaihe))
    except sqlite3.Error as virhe:
        raise Lahdevirhe(f"{vaihe}: {virhe}") from virhe


def rakenna(tulos, vaiheet):
    os.makedirs(os.path.dirname(tulos), exist_ok=True)
    keskenerainen = tulos + ".kesken"
    if os.path.exists(keskenerainen):
        os.remove(keskenerainen)
    kanta = sqlite3.connect(keskenerainen)
    kanta.execute("PRAGMA journal_mode = OFF")
    kanta.execute("PRAGMA synchronous = OFF")
    for vaihe in vaiheet:
        suorita(kanta, vaihe)
    kanta.commit()
    kanta.close()
    os.replace(keskenerainen, tulos)


if __name__ == "__main__":
    try:
        rakenna(sys.argv[1], sys.argv[2:])
    except (Lahdevirhe, csv.Error, OSError) as virhe:
        sys.exit(f"rakenna_kanta: {virhe}")
