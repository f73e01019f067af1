#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""An error literal "clsTila:LampoHaviot Method" stands in a file of that class and in the function that it names, and a
public method of a model class that calls one with a literal has one of its own.

People find the place of an error by its literal, so a literal copied from a neighbour, or a missing one, sends them the
wrong way.
"""
import collections
import re

from lahteet import lahteet, lopeta, rivit

# The literals that several functions share, as the program's users know them: "Class::Function" -> literal's name.
POIKKEUKSET = {
    "clsRakennus::VuotuinenIVjalkilammitysLampo": "clsRakennus:VuotuisetIVHaviot",
    "clsRakennus::VuotuisetLKVHaviot": "clsRakennus:VuotuisetLKVHaviotKk",
    "clsRakennus::LampoEnergianTarveTilatKk": "clsRakennus:LampoEnergianTarveKk",
    "clsRakennus::VuotuinenLampoEnergianTarveTilat": "clsRakennus:LampoEnergianTarveYht",
    "clsRakennus::VuotuisetLampoHaviot": "clsRakennus:LampoHaviotYht",
    "clsRakennus::VuotuisetHyodynnetytLampoKuormat": "clsRakennus:HyodynnetytLampoKuormatYht",
    "clsRakennus::VuotuisetSaatohaviot": "clsTilat:VuotuisetSaatohaviot",
    "clsRakennus::VuotuisetLammonKonversiohaviot": "clsTilat:VuotuisetSaatohaviot",
    "clsRakennus::VuotuisetLaiteSahkoKonversiohaviot": "clsTilat:VuotuisetSaatohaviot",
    "clsRakennus::VuotuisetSahkoLammonKonversiohaviot": "clsTilat:VuotuisetSaatohaviot",
    "clsRakennus::VuotuisetSahkoKonversiohaviot": "clsTilat:VuotuisetSaatohaviot",
    "clsRakennus::VuotuinenBruttoSahkoEnergia": "clsRakennus:VuotuinenBruttoLampoEnergia",
    "clsRakennus::VuotuinenBruttoLaiteSahkoEnergia": "clsRakennus:VuotuinenBruttoLampoEnergia",
    "clsRakenne::LisaaLampoHaviot": "clsRakenne:LampoHaviot",  # all months at once
    "clsRakenne::AurinkoKuormat": "clsRakenne:AurinkoKuorma",  # all months at once
}
# Public methods without a literal, though they call one that has it.
ILMAN_LITERAALIA = {
    "clsRakennus::HaeInstanssi": "a look-up; only rebuilding the register can fail, and tells itself",
    "clsRakenteet::PaivitaRakenteetVakiokannasta": "a loop over the structures, each of which tells itself",
    "clsVedenKulutusryhma::LampimanVedenKulutus": "a share of VedenKulutus, which tells itself",
    "colMateriaalit::LisaaKerros": "the collection's own Add",
    "clsIVKone::PuhallinSahko": "the fans' part of a month, which tells itself",
    "clsKaksiNopOikosulkuMoottori::HyotySuhde12Teho": "follows HyotySuhde11Teho, which tells itself",
}
# A module's literal bears the prefix "mod" before the name of its class or file.
LITERAALI = re.compile(r'"(?:mod)?(\w+):(\w+) (?:Method|Property (?:Let|Get|Set))"')
# A function's first line; a free function of a module counts as one of a class named as its file.
FUNKTIO = re.compile(r"^[^\s#/}].*?\b(?:(\w+)::)?(~?\w+)\(")

JASENFUNKTIO = re.compile(r"^[^\s#/}].*?\b(\w+)::(~?\w+)\(")


def julkiset():
    """Class: its public functions, as the headers tell."""
    funktiot = collections.defaultdict(set)
    for polku in lahteet(".h"):
        luokka, nakyvyys = None, None
        for rivi in rivit(polku):
            if m := re.match(r"(class|struct) (\w+)[^;]*\{", rivi):
                luokka, nakyvyys = m[2], "private" if m[1] == "class" else "public"
            elif m := re.match(r" (public|private|protected):", rivi):
                nakyvyys = m[1]
            elif nakyvyys == "public" and luokka:
                funktiot[luokka].update(re.findall(r"\b(\w+)\(", rivi))
    return funktiot


def jasenfunktiot():
    """(file, line, class, name, text) of the member functions of the model and the library."""
    for polku in lahteet(".cpp"):
        if polku.parts[0] in ("tests", "bench", "app", "ui") or polku.parts[:2] == ("library", "server"):
            continue
        alku, osat = None, []
        for nro, rivi in enumerate([*rivit(polku), "loppu("], 1):
            if re.match(r"[^\s#/}].*\(", rivi):
                if alku:
                    yield polku, alku[0], alku[1], alku[2], "\n".join(osat)
                m = JASENFUNKTIO.match(rivi)
                alku, osat = ((nro, m[1], m[2]) if m and not rivi.endswith(";") else None), []
            osat.append(rivi)


def puuttuvat():
    """Public methods that should have a literal and have none."""
    kaikki, julki = list(jasenfunktiot()), julkiset()
    nostavat = {nimi for *_, nimi, teksti in kaikki if LITERAALI.search(teksti)}
    for polku, nro, luokka, nimi, teksti in kaikki:
        kutsuu = {k for k in re.findall(r"\b(\w+)\(", teksti) if k in nostavat and k != nimi}
        if kutsuu and luokka.startswith(("cls", "col")) and nimi in julki[luokka] and not re.search(r"\btry\b", teksti):
            yield f"{luokka}::{nimi}", f"{polku}:{nro}: {luokka}::{nimi} has no error literal, but calls {min(kutsuu)}"


virheet = []
for polku in lahteet(".cpp"):
    if polku.parts[0] in ("tests", "bench"):
        continue
    tiedosto = polku.stem.split("_")[0].removeprefix("mod")
    funktio = None
    for nro, rivi in enumerate(rivit(polku), 1):
        if m := FUNKTIO.match(rivi):
            funktio = m
        for luokka, nimi in LITERAALI.findall(rivi):
            paikka = f"{funktio[1] or tiedosto}::{funktio[2]}" if funktio else "no function"
            if POIKKEUKSET.get(paikka, paikka.replace("::", ":")) != f"{luokka}:{nimi}":
                virheet.append(f'{polku}:{nro}: "{luokka}:{nimi}" stands in {paikka}')
            elif tiedosto != luokka and paikka not in POIKKEUKSET:
                virheet.append(f'{polku}:{nro}: "{luokka}:{nimi}" stands outside the files of {luokka}')
ilman = dict(puuttuvat())
virheet += [virhe for paikka, virhe in ilman.items() if paikka not in ILMAN_LITERAALIA]
virheet += [f"tools/tarkista_virhetekstit.py: {p} needs no exception" for p in ILMAN_LITERAALIA.keys() - ilman.keys()]
lopeta(virheet)
