#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""An error literal "clsTila:LampoHaviot Method" stands in a file of that class and in the function that it names.

People find the place of an error by its literal, so a literal copied from a neighbour sends them the wrong way.
"""
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
# A module's literal bears the prefix "mod" before the name of its class or file.
LITERAALI = re.compile(r'"(?:mod)?(\w+):(\w+) (?:Method|Property (?:Let|Get|Set))"')
# A function's first line; a free function of a module counts as one of a class named as its file.
FUNKTIO = re.compile(r"^[^\s#/}].*?\b(?:(\w+)::)?(~?\w+)\(")

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
lopeta(virheet)
