#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the guide's page of quantities: rakenna_suureet.py LUMIVIRTA-SUUREET TEXTS FORMS PAGE.md.

The program tells the tables of members and results; a member's Finnish name is the label of its field, by the form's
label whose buddy is the field that bears the member's name. A field whose limits (",N,lower,upper,unusual" of its Tag) aren't
those of its member stops the build: a range stands in one place, and the forms follow it.
"""
import collections
import csv
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as xml

# class: heading, form, and the fields that are named otherwise than their member; "=" begins a name of no single field
LUOKAT = {
    "clsPerustiedot": ("Perustiedot", "frmPerustiedot", {}),
    "clsToteutunutKulutus": ("Mitattu kulutus", "frmPerustiedot", {"Lampo": "=Lämpö", "Sahko": "=Sähkö", "Vesi": "=Vesi",
                                                  "LammTarveLuku": "=Lämmitystarveluku"}),
    "clsLammKulutuksenVakioOsuus": ("Vakio-osuus", "frmNormeeraamatonKulutus",
                                    {"kkOsuus": "Kk_kulutus", "VuosiOsuus": "Vuosi_kulutus"}),
    "clsSaa": ("Sää", "", {}),
    "clsTilat": ("Tilat", "frmTilaYhteenveto", {}),
    "clsTila": ("Tila", "frmTila", {}),
    "clsRakenne": ("Rakenne", "frmRakenteet", {"PintaAla": "Rakenneala", "U_arvo": "Uarvo"}),
    "Rakenneratkaisu": ("Rakenneratkaisu", "frmKirjastorakenne", {"U_arvo": "Uarvo"}),
    "clsRakennekerros": ("Rakennekerros", "frmRakennekerroksenMuokkaaminen",
                         {f"{j}{s}": f"{f}materiaalin{s}" for j, f in (("Materiaali", "Paa"), ("Lisamateriaali", "Lisa"))
                          for s in ("Lambda", "Tiheys", "Ominaislampo")}),
    "clsHorisVarjostus": ("Ympäristön varjostus", "frmRakenteet", {"Varjostuskulma": "YmparistonVarjostuskulma"}),
    "clsLippaVarjostus": ("Lipan varjostus", "frmRakenteet", {"Varjostuskulma": "YlalipanVarjostuskulma"}),
    "clsIVKone": ("Ilmanvaihtokone", "frmIlmanvaihtokone", {}),
    "clsKayntiAika": ("Käyntiaika", "frmIlmanvaihtokoneenKayntiajat", {}),
    "clsPuhaltimenSahkonKulutus": ("Puhaltimet", "frmIVKoneenPuhaltimienSahkonKaytto",
                                   {"TuloSahkoTeho11": "SahkoTeho11Tulo", "PoistoSahkoTeho11": "SahkoTeho11Poisto",
                                    "TuloSahkoOsaTeho": "SahkoOsaTehoTulo", "PoistoSahkoOsaTeho": "SahkoOsaTehoPoisto"}),
    "clsPuhallinSahkoLaskParametrit": ("Puhaltimen tarkennettu laskenta", "frmPuhaltimenOttotehonTarkennettuLaskenta", {}),
    "clsLto": ("Lämmöntalteenotto", "frmLTOhyotylaskenta", {}),
    "clsIVKoneet": ("Ilmanvaihtokoneet yhteensä", "", {}),
    "clsSahkonKulutusryhmat": ("Sähkö", "", {}),
    "clsSahkonKulutusryhma": ("Sähkön kulutusryhmä", "frmTarkennettuLaiteLaskenta",
                              {"LaskentaperusteNumber": "OminaissuureidenMaara",
                               "LaskentayksikkoNumber": "LaskentaYksikoidenMaara",
                               "KayttoaikaHpD": "KayttomaaraTunnitVrk_ssa", "KayttoaikaDpA": "KayttomaaraVrktVuodessa",
                               "KulutusryhmienLukumaara": "KulutusRyhmienMaara", "SyötettyKulutus": "Kulutus2"}),
    "clsVedenKulutusryhmat": ("Vesi", "", {"LKVKiertoKayttoAika": "=Kierron käyttöaika",
                                           "LKVKiertoJaahtyma": "=Kierron jäähtymä",
                                           "LKVKiertoVirtaama": "=Kierron virtaama"}),
    "clsVedenTiedot": ("Veden lämpötilat", "", {"KylmanLampotila": "=Kylmä vesi", "LamminLampotila": "=Lämmin vesi"}),
    "clsVedenKulutusryhma": ("Veden kulutusryhmä", "frmTarkennettuVesiLaskenta",
                             {"LaskentaperusteNumber": "OminaissuureidenMaara",
                              "Laskentayksikko": "LaskentaYksikoidenMaara",
                              "KayttokuvausKertaaD": "KayttomaaraTunnitVrk_ssa",
                              "KayttokuvausDpA": "KayttomaaraVrktVuodessa",
                              "VedenKayttolampotila": "VedenKayttoLampotila",
                              "LammityksessaHyodynnettavaOsuus": "=Lämmityksessä hyödynnettävä osuus"}),
    "clsEnergianHankinta": ("Energian ja veden hankinta", "", {}),
    "clsEnergiamuoto": ("Energiamuoto", "", {"OsuusNettotarpeesta": "=Osuus nettotarpeesta", "Hyotysuhde": "=Vuosihyötysuhde"}),
    "clsTariffi": ("Tariffi", "", {}),
    "clsVesitariffi": ("Vesitariffi", "", {}),
    "clsSahkoTariffienVertailu": ("Sähkötariffien vertailu", "", {"TotEnergia": "=Sähköenergia",
                                                                 "TotHuippuTeho": "=Huipputeho", "TotLoisteho": "=Loisteho",
                                                                 "BruttoAla": "=Bruttoala"}),
    "clsTariffiVertailuTapaus": ("Tariffiyhdistelmä", "", {"Investointi": "=Investointi", "TotEnergia": "=Sähköenergia",
                                                         "TotHuippuTeho": "=Huipputeho", "TotLoisteho": "=Loisteho"}),
    "clsSaastotoimenpide": ("Säästötoimenpide", "", {"SahkoLoisTehoHinta": "=Loistehon hinta",
                                                     "SahkoPatoTehoHinta": "=Sähkötehon hinta",
                                                     "LampoTehoHinta": "=Lämpötehon hinta", "VesiHinta": "=Veden hinta",
                                                     "SahkoEnergiaHinta": "=Sähköenergian hinta",
                                                     "LampoEnergiaHinta": "=Lämpöenergian hinta"}),
    "clsToimenpiteidenJarjestelija": ("Toimenpiteiden järjestelijä", "", {}),
    "clsValittuToimenpide": ("Järjestelijän rivi", "", {}),
    "clsYhteenveto": ("Yhteenveto", "", {}),
    "clsRakennus": ("Rakennus", "frmLampoYhteenveto", {}),
}
ALKU = """# Suureiden taulukko

Tällä sivulla ovat tiedot ja tulokset, joilla on yksikkö tai rajat. Tunnus on tiedon nimi kohdetiedostossa, säästötoimenpiteissä ja [komentorivin tuloksissa](komentorivi.md). Kentän arvon on oltava sallitulla välillä; tavallisen välin ulkopuolisesta arvosta kannattaa tarkistaa, ettei siinä ole kirjoitusvirhettä. Selitykset ovat sivulla [Suureet, yksiköt ja lyhenteet](sanasto.md).
"""


def lue_tekstit(kansio):
    tekstit = {}
    for tiedosto in kansio.glob("*.csv"):
        with open(tiedosto, encoding="utf-8", newline="") as virta:
            tekstit.update((int(r["Id"]), r["Suomi"].rstrip(":")) for r in csv.DictReader(virta))
    return tekstit


def kenttien_nimet(lomake, tekstit):
    """Field name without "txt": the text of its label."""
    nimet = {}
    if lomake.is_file():
        for osa in xml.parse(lomake).iter("widget"):
            arvot = {p.get("name"): "".join(p.itertext()).strip() for p in osa.findall("property")}
            if m := re.match(r"txt(.+)", arvot.get("buddy", "")):
                nimet[m[1]] = tekstit.get(int((arvot.get("Tag") or "0").split(",")[0] or 0), "")
    return nimet


def kenttien_rajat(lomake):
    """Field name without "txt": lower and upper limit as the member table shows them."""
    rajat = {}
    for osa in xml.parse(lomake).iter("widget") if lomake.is_file() else []:
        for p in osa.findall("property"):
            if p.get("name") == "Tag" and (m := re.match(r"\d*,N,([^,]*),?([^,]*)(?:,[^,]*)?$", "".join(p.itertext()).strip())):
                rajat[osa.get("name").removeprefix("txt")] = tuple(r.replace(".", ",") for r in m.groups())
    return rajat


def tarkista_rajat(luokka, jasenet, lomake, kentat):
    rajat = kenttien_rajat(lomake)
    for tunnus, _, ala, yla, *_ in jasenet:
        kentta = tunnus if kentat.get(tunnus, "").startswith("=") else kentat.get(tunnus, tunnus)
        odotettu = tuple(r.replace(" ", "").replace("−", "-") for r in (ala, yla))
        for nimi in {kentta, *(f"{kentta}{i}" for i in range(1, 8))} & {*rajat}:
            if rajat[nimi] != odotettu:
                raise SystemExit(f"{lomake}: limits of txt{nimi} are {rajat[nimi]}, those of {luokka}.{tunnus} {odotettu}")


def vali(ala, yla):
    if ala and yla:
        return f"{ala}–{yla}".replace("-", "−")
    return f"vähintään {ala}" if ala else f"enintään {yla}" if yla else ""


def jasentaulukko(jasenet, nimet, kentat):
    yield "\n| Tieto | Tunnus | Yksikkö | Sallittu | Tavallinen |\n|---|---|---|---|---|\n"
    for tunnus, yksikko, ala, yla, tala, tyla in jasenet:
        kentta = kentat.get(tunnus, tunnus)
        nimi = kentta[1:] if kentta[0] == "=" else nimet.get(kentta) or nimet.get(kentta + "1") or ""
        yield f"| {nimi} | `{tunnus}` | {yksikko} | {vali(ala, yla)} | {vali(tala, tyla)} |\n"


def tulostaulukko(tulokset, tekstit):
    yield "\n| Tulos | Tunnus | Yksikkö | Aika |\n|---|---|---|---|\n"
    for tunnus, yksikko, teksti, aika in tulokset:
        yield f"| {tekstit[int(teksti)]} | `{tunnus}` | {yksikko.replace('mkTagi', '€')} | {aika} |\n"


def sivu(rivit, tekstit, lomakkeet):
    jasenet, tulokset = collections.defaultdict(list), collections.defaultdict(list)
    for laji, luokka, *arvot in rivit:
        if laji == "tulos":
            tulokset[luokka].append(arvot)
        elif any(arvot[1:]):
            jasenet[luokka].append(arvot)
    if puuttuvat := {*tulokset} - {*LUOKAT}:
        raise SystemExit(f"rakenna_suureet.py: no heading for {', '.join(sorted(puuttuvat))}")
    for luokka, omat in jasenet.items():
        tulosten_nimet = {t[0] for t in tulokset[luokka]}
        jasenet[luokka] = [j for j in omat if j[0] not in tulosten_nimet]
    yield ALKU
    for luokka, (otsikko, lomake, kentat) in LUOKAT.items():
        yield f"\n## {otsikko}\n"
        tarkista_rajat(luokka, jasenet[luokka], lomakkeet / f"{lomake}.ui", kentat)
        if jasenet[luokka]:
            yield from jasentaulukko(jasenet[luokka], kenttien_nimet(lomakkeet / f"{lomake}.ui", tekstit), kentat)
        if tulokset[luokka]:
            yield from tulostaulukko(tulokset[luokka], tekstit)


if __name__ == "__main__":
    ohjelma, teksteja, lomakkeita, kohde = map(pathlib.Path, sys.argv[1:])
    tuloste = subprocess.run([ohjelma], check=True, capture_output=True, encoding="utf-8").stdout
    rivit = [rivi.split("\t") for rivi in tuloste.splitlines()]
    kohde.parent.mkdir(parents=True, exist_ok=True)
    kohde.write_text("".join(sivu(rivit, lue_tekstit(teksteja), lomakkeita)), encoding="utf-8")
