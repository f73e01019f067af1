#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the built reference data: tarkista_data.py SOURCE_FOLDER BUILT_FOLDER [unittest arguments]."""
import datetime
import hashlib
import itertools
import pathlib
import re
import sqlite3
import subprocess
import sys
import tempfile
import unicodedata
import unittest
import xml.etree.ElementTree as xml

LAHTEET = pathlib.Path(sys.argv.pop(1))
KOTI = pathlib.Path(sys.argv.pop(1))
PUU = LAHTEET.parent

KOODIT = [1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24, 31, 32, 41, 42, 43, 44, 45, 49, 51, 52, 53, 60, 61, 62, 63, 64,
          65, 66, 69, 71, 72, 79, 81, 89, 91, 92, 93, 94, 99]

# Rows of each list; the model stores the index of the chosen row, so a missing row shifts meanings.
LISTOJEN_RIVIT = {
    "frmPerustiedot.cmbKayttotarkoitus": 41, "frmPerustiedot.cmbPaikkakunta": 16,
    "frmRakenteet.cmbTyyppi": 4, "frmRakenteet.cmbSuuntaus": 5, "frmRakenteet.cmbRakennetyyppi": 9,
    "frmRakenteet.cmbHorisVarjTyyppi": 3, "frmRakenteet.cmbSivulipanTyyppi": 3, "frmRakenteet.cmbYlalipanTyyppi": 3,
    "frmTila.cmbTilanKayttoaika": 5, "frmTila.cmbSaatotapa": 6, "frmTila.cmbRakenteidenDynamiikka": 3,
    "frmIlmanvaihtokone.cmbIVPeriaate": 4, "frmIlmanvaihtokone.cmbJarjestelmaTyyppi": 3,
    "frmIlmanvaihtokone.cmbPuhaltimenVoimansiirtoTapa": 3, "frmIlmanvaihtokone.cmbPuhaltimenSaatotapa": 6,
    "frmIlmanvaihtokone.cmbVakioPaineOsuus": 11, "frmIlmanvaihtokoneenKayntiajat.cmbKayntiAikojenSyottoTapa": 2,
    "frmIVKoneenPuhaltimienSahkonKaytto.cmbTiedonLaatu": 2,
    "frmTarkennettuLaiteLaskenta.cmbLaskentaOminaissuureTeho": 4,
    "frmTarkennettuLaiteLaskenta.cmbLaskentayksikkoTeho": 4,
    "frmTarkennettuLaiteLaskenta.cmbLaskentaOminaissuureEnergia": 7,
    "frmTarkennettuLaiteLaskenta.cmbLaskentayksikkoEnergia": 7,
    "frmTarkennettuVesiLaskenta.cmbLaskentaOminaissuure": 7, "frmTarkennettuVesiLaskenta.cmbLaskentayksikko": 7,
    "frmTarkennettuVesiLaskenta.cmb_hPer_d": 7, "frmSahkotariffi.cmbSahkoVeroTyyppi": 3, "frmEmuo3.cmbKanta": 2,
    "frmToimenpiteidenJarjestelija.cmbVaihtoehtoSuodatus": 6,
    "frmToimenpiteidenJarjestelija.cmbNakymatasonValinta": 5, "frmSaastoToimenpiteet.cmbNakymatasonValinta": 4,
    "frmToimenpiteidenJarjestelija.cmbSuure": 4,
    "frmKustannukset.cmbJasentelynValinta": 2,
}

VALIKOT = {
    "menu bar": [1000, 1013, 1019, 1084, 1088, 1095, 1102, 1031, 1025, 1033],
    "file": [1001, 1002, 1003, 1004, 1005, 1006, 1082, 1089, 1007, 1008, 1009, 1010, 1011, 1012],
    "edit": range(1014, 1019), "view": [1020, 1021, 1022, 1024], "window": range(1026, 1031),
    "help": range(1034, 1037), "building": [1083, 1085, 1086, 1087, 1093], "libraries": range(1077, 1081),
    "measures": [1096, 1097, 1098, 1099, 1086, 1087, 1100, 1101], "life cycle": range(1103, 1107),
}


def hae(kanta, kysely, *arvot):
    yhteys = sqlite3.connect(f"file:{KOTI / kanta}?mode=ro", uri=True)
    try:
        return yhteys.execute(kysely, arvot).fetchall()
    finally:
        yhteys.close()


def tekstit():
    return dict(hae("StrVarasto.mdb", "SELECT Id, Suomi FROM LumivirtaResurssit"))


def lahdekoodit(*paatteet):
    kansiot = [kansio for kansio in PUU.iterdir() if kansio.is_dir() and not kansio.name.startswith((".", "build"))]
    return [t for k in kansiot if k.name != "tests" for t in k.rglob("*") if t.suffix in paatteet]


class Tekstivarasto(unittest.TestCase):
    def test_language_and_id_range(self):
        self.assertEqual(hae("StrVarasto.mdb", "SELECT Kielitunnus FROM Kieli"), [("Suomi",)])
        self.assertTrue(all(1000 <= numero <= 9999 for numero in tekstit()))

    def test_texts_are_nfc_without_control_characters(self):
        rivit = itertools.chain(tekstit().values(), *hae("StrVarasto.mdb", "SELECT Suomi FROM Combotaulu"),
                                *hae("StrVarasto.mdb", "SELECT Suomi FROM Errortaulu"))
        for teksti in rivit:
            self.assertTrue(unicodedata.is_normalized("NFC", teksti or ""), teksti)
            # One message names the replacement character on purpose.
            self.assertNotRegex((teksti or "").replace("merkillä \ufffd.", ""), r"[\x00-\x1f\x7f]|\ufffd", teksti)

    def test_mnemonics_are_unique_in_each_menu(self):
        kaikki = tekstit()
        for valikko, numerot in VALIKOT.items():
            kirjaimet = [re.search(r"&(\w)", kaikki[numero]) for numero in numerot]
            kirjaimet = [osuma[1].lower() for osuma in kirjaimet if osuma]
            self.assertEqual(len(kirjaimet), len(set(kirjaimet)), f"{valikko}: {kirjaimet}")

    def test_ids_in_the_program_are_in_the_store(self):
        kaikki = tekstit()
        virheet = {koodi for (koodi,) in hae("StrVarasto.mdb", "SELECT ErrorCode FROM Errortaulu")}
        for tiedosto in lahdekoodit(".cpp", ".h"):
            koodi = tiedosto.read_text(encoding="utf-8")
            for numero in re.findall(r"\bTeksti\((\d{4})\)", koodi):
                self.assertIn(int(numero), kaikki, tiedosto)
            for numero in re.findall(r"\bNaytaVirhe\((\d{4})\b", koodi):
                self.assertIn(int(numero), virheet, tiedosto)

    def test_ids_in_the_forms_are_in_the_store(self):
        kaikki = tekstit()
        for tiedosto in lahdekoodit(".ui"):
            for ominaisuus in xml.parse(tiedosto).iter("property"):
                if ominaisuus.get("name") not in ("Tag", "ToolTipText", "Sarakkeet"):
                    continue
                for teksti in ominaisuus.iter("string"):
                    if tunnus := re.match(r"[1-9]\d{3}\b", teksti.text or ""):
                        self.assertIn(int(tunnus[0]), kaikki, tiedosto)

    def test_choice_lists_have_their_rows(self):
        rivit = hae("StrVarasto.mdb", "SELECT frmName || '.' || cmbName, COUNT(*) FROM Combotaulu GROUP BY 1")
        self.assertEqual(dict(rivit), LISTOJEN_RIVIT)

    def test_localities_are_alphabetical(self):
        paikat = [p for (p,) in hae("StrVarasto.mdb",
                                    "SELECT Suomi FROM Combotaulu WHERE cmbName = 'CMBPAIKKAKUNTA' ORDER BY Id")]
        self.assertEqual((paikat, paikat[0], paikat[15]), (sorted(paikat), "Hanko", "Vaasa"))

    def test_use_types_stand_in_the_order_of_their_codes(self):
        nimet = [nimi for (nimi,) in hae("StrVarasto.mdb", "SELECT Suomi FROM Combotaulu "
                                         "WHERE cmbName = 'cmbKayttotarkoitus' ORDER BY Id")]
        self.assertEqual([nimet[KOODIT.index(koodi)] for koodi in (1, 4, 31, 51, 99)],
                         ["Omakotitalo", "Asuinkerrostalo", "Toimistorakennus",
                          "Yleissivistävän oppilaitoksen rakennus", "Muu rakennus"])

    def test_messages_compose(self):
        t = tekstit()
        self.assertEqual(f"{t[9217]} 700 {t[9218]} 800 {t[9219]}",
                         "Vertailuvuoden mitattu lämmönkulutus 700 MWh on pienempi kuin säästä riippumaton vakio-osuus "
                         "800 MWh. Laskenta jatkuu, mutta tarkista vakio-osuus perustiedoista.")
        self.assertEqual(f"{t[1150]}a.lvt{t[1151]}", "Tiedosto a.lvt on jo olemassa. Haluatko korvata sen?")
        self.assertTrue(f"{t[9222]} 2.1.xx {t[9224]}".startswith("Kohdetiedoston ohjelmaversio 2.1.xx on vanhempi"))


class Oletuskanta(unittest.TestCase):
    def test_every_use_type_and_year_has_one_row(self):
        jaksot = hae("Oletuskanta.mdb", "SELECT KayttotarkoitusID, Rakennusv_alk, Rakennusv_lop "
                     "FROM RakennustyyppienOletusarvot, RakenneTyyppiratkaisut "
                     "WHERE RakenneTyyppiRatkaisuID = RakenneTyyppiratkaisut.Id")
        for koodi, vuosi in itertools.product(KOODIT, range(1700, 2101)):
            osumat = [1 for tunnus, alku, loppu in jaksot if tunnus == koodi and alku <= vuosi <= loppu]
            self.assertEqual(len(osumat), 1, f"use type {koodi}, year {vuosi}")

    def test_solutions_are_in_the_library_with_the_right_kind(self):
        kirjasto = dict(hae("Rakennekirjasto/Tietokanta_perus.mdb", "SELECT Id, Rakennetyyppi FROM Rakenne"))
        for rivi in hae("Oletuskanta.mdb", "SELECT USRakenneID, IkkRakenneID, APRakenneID, YPRakenneID, OviRakenneID "
                        "FROM RakenneTyyppiratkaisut"):
            self.assertEqual([kirjasto.get(tunnus) for tunnus in rivi],
                             ["Ulkoseinä", "Ikkuna", "Alapohja", "Yläpohja", "Ovi"])

    def test_later_eras_insulate_better_in_each_group(self):
        """A row in a wrong place would show as an era that is worse than the one before it. Doors aside: metal ones with
        glass came in the 1970s, worse than wood."""
        u = dict(hae("Rakennekirjasto/Tietokanta_perus.mdb", "SELECT Id, U_arvo FROM Rakenne"))
        for koodi in KOODIT:
            rivit = hae("Oletuskanta.mdb", "SELECT USRakenneID, IkkRakenneID, APRakenneID, YPRakenneID "
                        "FROM RakennustyyppienOletusarvot JOIN RakenneTyyppiratkaisut ON Id = RakenneTyyppiRatkaisuID "
                        "WHERE KayttotarkoitusID = ? ORDER BY Rakennusv_alk", koodi)
            for ennen, jalkeen in itertools.pairwise(rivit):
                for x, y in zip(ennen, jalkeen):
                    self.assertLess(u[y], u[x] + 0.015, f"use type {koodi}: {x}, then {y}")

    def test_degree_days_of_years_stand_at_the_level_of_the_normal_year(self):
        rivit = hae("Oletuskanta.mdb", "SELECT PaikkakuntaID, Vuosi, Luku, S17, Lahde FROM Lammitystarveluku")
        lahde = (PUU / "building/clsPerustiedot.cpp").read_text(encoding="utf-8")
        normit = [float(n) for n in re.search(r"kLammitystarveluvut\{([\d,\s]+)\}", lahde)[1].split(",")]
        for paikka, vuosi, luku, mitattu, lahde in rivit:
            # The normal years are those of 1961-1990; hardly a year since has been as cold, 2020 was a third milder.
            self.assertTrue(0.68 < luku / normit[paikka] < 1.1, (paikka, vuosi, luku))
            self.assertTrue(lahde, (paikka, vuosi))
            # Helsinki's normal is Vantaa's level, 6.4 % above the station whose years these are.
            self.assertAlmostEqual(luku / mitattu, 4366 / 4105 if paikka == 1 else 1, delta=0.0003)
        self.assertEqual({paikka for paikka, *_ in rivit}, set(range(16)))

    def test_usual_use_is_of_known_use_types_and_sure_as_told(self):
        for koodit, yksikko, suure, lahde, tila in hae("Oletuskanta.mdb", "SELECT Koodit, Yksikko, Suure, Lahde, Tila FROM Ominaiskulutus"):
            self.assertLessEqual({int(koodi) for koodi in koodit.split(";")}, set(KOODIT), koodit)
            self.assertEqual(yksikko.startswith("dm³"), suure == "vesi", koodit)
            self.assertTrue(lahde, koodit)
            self.assertIn(tila, Kulutusluettelo.TILAT, koodit)

    def test_a_use_type_gets_the_walls_of_its_way_of_building(self):
        def seina(koodi, vuosi):
            kerrokset = hae("Rakennekirjasto/Tietokanta_perus.mdb", "SELECT MateriaaliId FROM Kerros WHERE RakenneId = ?",
                            *hae("Oletuskanta.mdb", "SELECT USRakenneID FROM RakenneTyyppiratkaisut "
                                 "JOIN RakennustyyppienOletusarvot ON Id = RakenneTyyppiRatkaisuID WHERE "
                                 "KayttotarkoitusID = ? AND ? BETWEEN Rakennusv_alk AND Rakennusv_lop", koodi, vuosi)[0])
            return {materiaali for (materiaali,) in kerrokset}

        self.assertIn("puu500", seina(1, 1990))
        self.assertIn("terbet1", seina(4, 1990))
        self.assertIn("tiili1700", seina(31, 1990))
        self.assertIn("teraspelti", seina(11, 1990))
        self.assertIn("teraspelti", seina(69, 1990))


class Kulutusluettelo(unittest.TestCase):
    """What the schema itself can't hold: units of the dialogs, groups of use types, derived values."""
    TILAT = {"taulukkoarvo", "yleisesti tunnettu", "valittu vahvistetulta väliltä", "johdettu", "oletus"}

    def rivit(self, taulu):
        return hae("Kulutusluettelo.mdb", f"SELECT Nimi, Kayttoryhmat, Yksikko, Arvo, Pienin, Suurin, Hakusanat, Lahde, Tila FROM {taulu}")

    def lista(self, lomake, *valinnat):
        return [y for v in valinnat for (y,) in hae("StrVarasto.mdb", "SELECT Suomi FROM Combotaulu "
                                                    "WHERE frmName = ? AND cmbName = ? ORDER BY Id", lomake, v)]

    def test_rows_speak_the_language_of_the_dialogs(self):
        ryhmat = {r for (r,) in hae("Kulutusluettelo.mdb", "SELECT Kayttoryhma FROM Kayttotarkoitus")} | {""}
        yksikot = {"Sahkolaite": self.lista("frmTarkennettuLaiteLaskenta", "cmbLaskentaOminaissuureTeho",
                                            "cmbLaskentaOminaissuureEnergia"),
                   "Vedenkaytto": self.lista("frmTarkennettuVesiLaskenta", "cmbLaskentaOminaissuure")}
        for taulu, sallitut in yksikot.items():
            for nimi, kayttoryhmat, yksikko, _, pienin, suurin, hakusanat, lahde, tila in self.rivit(taulu):
                self.assertLessEqual(set(kayttoryhmat.split(";")), ryhmat, nimi)
                self.assertIn(yksikko, sallitut, nimi)
                self.assertIn(tila, self.TILAT, nimi)
                self.assertTrue(lahde, nimi)
                self.assertTrue(all(hakusanat.split(";")), nimi)
                # A range that wide, or none, was typed wrong.
                self.assertTrue(1.1 < suurin / pienin <= 30, (nimi, pienin, suurin))

    def test_derived_lighting_follows_from_its_source(self):
        johdetut = 0
        for nimi, _, _, arvo, _, _, _, lahde, _ in self.rivit("Sahkolaite"):
            if osuma := re.match(r"(\d+) lx .*× (\d,\d+) W/m² / 100 lx", lahde):
                johdetut += 1
                self.assertAlmostEqual(arvo, int(osuma[1]) * float(osuma[2].replace(",", ".")) / 100, delta=0.051, msg=nimi)
        self.assertGreater(johdetut, 10)

    def test_fields_that_the_dialog_hides_hold_one(self):
        # dm³/kpl has no use at all, portions and persons no times a day
        self.assertEqual(hae("Kulutusluettelo.mdb", "SELECT Nimi FROM Vedenkaytto WHERE KertaaD <> 1 AND Yksikko IN "
                             "('dm³/kpl', 'dm³/annos', 'dm³/hlö,d') OR VrkVuosi <> 1 AND Yksikko = 'dm³/kpl' OR "
                             "KertaaD > 24 AND Yksikko IN ('dm³/s', 'dm³/min', 'dm³/h')"), [])

    def test_every_use_type_has_devices_of_its_own(self):
        omat = {ryhma for _, ryhmat, *_ in self.rivit("Sahkolaite") for ryhma in ryhmat.split(";")}
        self.assertLessEqual({r for (r,) in hae("Kulutusluettelo.mdb", "SELECT Kayttoryhma FROM Kayttotarkoitus")}, omat)


class Rakennekirjasto(unittest.TestCase):
    KANTA = "Rakennekirjasto/Tietokanta_perus.mdb"

    @classmethod
    def setUpClass(cls):
        cls.materiaalit = {m[0]: m[1:] for m in hae(cls.KANTA, "SELECT Id, Lambda, Tiheys FROM Materiaali")}
        cls.kerrokset = {}
        for rakenne, *kerros in hae(cls.KANTA, "SELECT RakenneId, MateriaaliId, Paksuus, UArvoon, Yhtenainen, "
                                    "LisamateriaaliId, LisamateriaalinOsuus, Lammonvastus FROM Kerros "
                                    "ORDER BY RakenneId, Jarjestys"):
            cls.kerrokset.setdefault(rakenne, []).append(kerros)

    def osat(self, kerros):
        """(share of the area, material) pairs of a layer."""
        materiaali, _, _, yhtenainen, lisamateriaali, osuus, _ = kerros
        return [(1.0, materiaali)] if yhtenainen else [(1 - osuus / 100, materiaali), (osuus / 100, lisamateriaali)]

    def vastus(self, kerros, materiaali):
        return kerros[6] if kerros[6] is not None else kerros[1] / 1000 / self.materiaalit[materiaali][0]

    def u_arvo(self, kerrokset, pinnat):
        """EN ISO 6946, combined method: the mean of the upper and the lower limit of the resistance."""
        lasketut = [kerros for kerros in kerrokset if kerros[2]]
        johtavuus = 0.0
        for yhdistelma in itertools.product(*(self.osat(kerros) for kerros in lasketut)):
            osuus, vastus = 1.0, pinnat
            for kerros, (kerroksen_osuus, materiaali) in zip(lasketut, yhdistelma):
                osuus *= kerroksen_osuus
                vastus += self.vastus(kerros, materiaali)
            johtavuus += osuus / vastus
        alaraja = pinnat + sum(1 / sum(osuus / self.vastus(kerros, materiaali) for osuus, materiaali
                                       in self.osat(kerros)) for kerros in lasketut)
        return 2 / (1 / johtavuus + alaraja)

    def test_u_follows_from_the_layers(self):
        rakenteet = hae(self.KANTA, "SELECT Id, U_arvo, U_arvoAnnettu, PintavastusSisa + PintavastusUlko FROM Rakenne")
        for tunnus, u, annettu, pinnat in rakenteet:
            if annettu:
                self.assertNotIn(tunnus, self.kerrokset)
                self.assertGreater(u, 0)
            else:
                self.assertAlmostEqual(self.u_arvo(self.kerrokset[tunnus], pinnat), u, delta=0.00501, msg=tunnus)

    def test_layers_refer_to_materials_and_add_up(self):
        for tunnus, paksuus, massa in hae(self.KANTA, "SELECT Id, Paksuus, KerrostenMassaYht FROM Rakenne"):
            kerrokset = self.kerrokset.get(tunnus, [])
            self.assertAlmostEqual(sum(kerros[1] for kerros in kerrokset), paksuus, delta=0.051, msg=tunnus)
            laskettu = sum(kerros[1] / 1000 * osuus * self.materiaalit[materiaali][1]
                           for kerros in kerrokset for osuus, materiaali in self.osat(kerros))
            self.assertAlmostEqual(laskettu, massa, delta=0.1, msg=tunnus)
            for kerros in kerrokset:
                self.assertEqual(bool(kerros[3]), kerros[4] is None and kerros[5] == 0, tunnus)

    def test_every_kind_has_solutions_and_windows_have_their_factors(self):
        lajit = dict(hae(self.KANTA, "SELECT Rakennetyyppi, COUNT(*) FROM Rakenne GROUP BY 1"))
        self.assertEqual(len(lajit), 8)
        vaarat = hae(self.KANTA, "SELECT Id FROM Rakenne WHERE (Rakennetyyppi = 'Ikkuna') <> (OnIkkuna = -1) OR OnIkkuna AND"
                     "(Aurinkoenergianlapaisy NOT BETWEEN 20 AND 90 OR Karmikerroin NOT BETWEEN 50 AND 95"
                     " OR Verhokerroin NOT BETWEEN 50 AND 100)")
        self.assertEqual(vaarat, [])

    def test_version_and_the_empty_own_library(self):
        oma = "Rakennekirjasto/Tietokanta.mdb"
        skeema = "SELECT sql FROM sqlite_master ORDER BY name"
        self.assertEqual(hae(self.KANTA, "SELECT Versio FROM Asetukset"), [("1.0002.0",)])
        self.assertEqual(hae(oma, skeema), hae(self.KANTA, skeema))
        self.assertEqual(hae(oma, "SELECT (SELECT COUNT(*) FROM Rakenne) + (SELECT COUNT(*) FROM Materiaali)"), [(0,)])


class Saa(unittest.TestCase):
    def test_zone_files_follow_the_line_rules(self):
        tarveluvut = []
        for vyohyke in range(1, 5):
            rivit = (KOTI / f"SaaVyohyke{vyohyke}.txt").read_text(encoding="utf-8").splitlines()
            kuukaudet = [[float(kentta) for kentta in rivi.split(",")] for rivi in rivit[1:13]]
            self.assertEqual([kuukausi[0] for kuukausi in kuukaudet], list(range(1, 13)))
            self.assertTrue(all(len(kuukausi) == 7 and min(kuukausi[2:]) >= 0 for kuukausi in kuukaudet))
            self.assertIn("Säävyöhyke " + ["I", "II", "III", "IV"][vyohyke - 1] + ",", rivit[16])
            self.assertTrue(-45 < float(re.match(r"-?\d+", rivit[19])[0]) < -20, rivit[19])
            tarveluku = float(re.fullmatch(r"\d+", rivit[22])[0])
            # Degree days can't exceed those of a heating season that never ends.
            ylaraja = sum(30.4 * max(0, 17 - kuukausi[1]) for kuukausi in kuukaudet)
            self.assertTrue(0.8 * ylaraja < tarveluku < 1.02 * ylaraja, (tarveluku, ylaraja))
            tarveluvut.append(tarveluku)
        self.assertEqual(tarveluvut, sorted(tarveluvut))


class Varjostus(unittest.TestCase):
    KULMAT = {"Fh": [0, 10, 20, 30, 40], "Ff": [0, 30, 45, 60], "Fo": [0, 30, 45, 60]}

    def test_tables_are_complete_and_fall_with_the_angle(self):
        for nimi, kulmat in self.KULMAT.items():
            rivit = (KOTI / f"Cen{nimi}_Table.txt").read_text(encoding="utf-8").splitlines()[1:]
            luvut = [[float(kentta) for kentta in rivi.split(",")] for rivi in rivit]
            self.assertEqual([rivi[:2] for rivi in luvut], [[l, k] for l in (45, 55, 65) for k in kulmat])
            for edellinen, rivi in zip(luvut, luvut[1:]):
                if rivi[1] == 0:
                    self.assertEqual(rivi[2:], [1, 1, 1])
                else:
                    self.assertTrue(all(0 < f <= e for e, f in zip(edellinen[2:], rivi[2:])), (nimi, rivi))


class Polttoaineet(unittest.TestCase):
    def test_forms_are_complete(self):
        self.assertEqual(hae("VakioPolttoainekanta.mdb", "SELECT Versio FROM Asetukset"), [(1,)])
        muodot = hae("VakioPolttoainekanta.mdb", "SELECT COUNT(DISTINCT sKey), SUM(LiittyyLammitykseen = 0), "
                     "SUM(LiittyyLammitykseen = -1), MIN(Hyotysuhde) > 0, MIN(Yksikko = 'MWh') FROM Energiamuoto")
        self.assertEqual(muodot, [(20, 2, 18, 1, 1)])
        # Burning fuel gives its heat once: the energy content of a bought MWh is 3600 MJ.
        vaarat = hae("VakioPolttoainekanta.mdb", "SELECT Id FROM Energiamuoto WHERE Massa > 0 AND ("
                     "UusiutumatonEnergia + UusiutuvaEnergia <> 3600 OR "
                     "UusiutumattomatRaakaaineet + UusiutuvatRaakaaineet <> Massa)")
        self.assertEqual(vaarat, [])
        self.assertEqual(hae("KayttajanPolttoainekanta.mdb", "SELECT COUNT(*) FROM Energiamuoto"), [(0,)])


class Tariffiluettelo(unittest.TestCase):
    """What the schema itself can't hold: prices of the size of Finnish ones without VAT, taxes without gaps."""
    KANTA = "Tariffiluettelo.mdb"
    TILAT = Kulutusluettelo.TILAT

    def test_prices_are_of_the_usual_size(self):
        # A price left in cents per kWh, or with taxes in it, falls outside.
        alat = {0: (20, 110), 1: (5, 40), 2: (40, 90)}
        rivit = hae(self.KANTA, "SELECT Nimi, Laji, (Maksu1Hinta * Maksu1Osuus + Maksu2Hinta * Maksu2Osuus + Maksu3Hinta * "
                    "Maksu3Osuus + Maksu4Hinta * Maksu4Osuus) / 100, Perusmaksu, Tehomaksu, Hintavuosi, Lahde, Tila FROM Tariffi")
        for nimi, laji, hinta, perus, teho, vuosi, lahde, tila in rivit:
            self.assertTrue(alat[laji][0] <= hinta <= alat[laji][1], nimi)
            self.assertTrue(0 <= perus < 30000 and 0 <= teho < 100 and 2013 <= vuosi <= 2026 and lahde, nimi)
            self.assertIn(tila, self.TILAT, nimi)
        for nimi, puhdas, jate, lahde, tila in hae(self.KANTA, "SELECT Nimi, PuhdasVesi, Jatevesi, Lahde, Tila FROM Vesitariffi"):
            self.assertTrue(1 <= puhdas <= 2 and puhdas < jate < 4 and lahde, nimi)
            self.assertIn(tila, self.TILAT, nimi)

    def test_there_is_something_of_each_to_start_from(self):
        nimet = " | ".join(n for (n,) in hae(self.KANTA, "SELECT Nimi FROM Tariffi UNION SELECT Nimi FROM Vesitariffi"))
        for sana in ("pieni (", "keskikokoinen (", "suuri (", "Kevyt polttoöljy", "Puupelletti", "Yleissiirto", "Yösiirto",
                     "tehosiirto", "Yleissähkö", "Aikasähkö", "mittari 20 mm", "mittari 50 mm"):
            self.assertIn(sana, nimet)

    def test_taxes_hold_without_gaps_from_their_first_day_on(self):
        jaksot = {}
        for nimike, alkaa, paattyy, tila in hae(self.KANTA, "SELECT Nimike, Alkaa, Paattyy, Tila FROM Vero ORDER BY Nimike, Alkaa"):
            self.assertIn(tila, self.TILAT)
            jaksot.setdefault(nimike, []).append((datetime.date.fromisoformat(alkaa), datetime.date.fromisoformat(paattyy)))
        self.assertEqual(len(jaksot), 7)
        for nimike, rivit in jaksot.items():
            for (_, loppu), (alku, _) in zip(rivit, rivit[1:]):
                self.assertEqual(alku - loppu, datetime.timedelta(days=1), nimike)
            self.assertEqual(rivit[-1][1].year, 9999, nimike)


    def test_the_settings_tell_the_taxes_that_hold_and_their_day(self):
        kaikki = tekstit()
        for nimike, numerot in {"alv": (2808,), "alv_lampo": (2810,), "alv_myynti": (2812,), "alv_vesi": (2814,),
                                "sahkovero1": (2822,), "sahkovero2": (2824,)}.items():
            rivit = hae(self.KANTA, "SELECT Arvo, Alkaa FROM Vero WHERE Nimike = ? ORDER BY Alkaa DESC", nimike)
            alkaa = datetime.date.fromisoformat(rivit[0][1])
            for numero in numerot:
                self.assertIn(str(rivit[0][0]).replace(".", ","), kaikki[numero])
                self.assertIn(f"{alkaa.day}.{alkaa.month}.{alkaa.year}", kaikki[numero])


class Rakentaja(unittest.TestCase):
    def rakenna(self, kansio, **tiedostot):
        for nimi, sisalto in tiedostot.items():
            (kansio / nimi).write_text(sisalto, encoding="utf-8")
        tekstivaiheet = [f"LumivirtaResurssit={kansio / nimi}" for nimi in tiedostot]
        return subprocess.run([sys.executable, LAHTEET / "rakenna_kanta.py", kansio / "kanta.mdb",
                               LAHTEET / "skeemat/tekstivarasto.sql", *tekstivaiheet], capture_output=True, text=True)

    def test_faulty_sources_stop_the_build(self):
        viat = {"same id in two files": ("Id,Suomi\n2000,Uusi\n", "UNIQUE"), "decomposed letter":
                ("Id,Suomi\n2001,Pa\u0308iva\n", "NFC"), "field missing": ("Id,Suomi\n2001\n", "number of fields")}
        for vika, (sisalto, viesti) in viat.items():
            with self.subTest(vika), tempfile.TemporaryDirectory() as kansio:
                tulos = self.rakenna(pathlib.Path(kansio), yksi="Id,Suomi\n2000,Vanha\n", kaksi=sisalto)
                self.assertNotEqual(tulos.returncode, 0)
                self.assertIn("kaksi", tulos.stderr)
                self.assertIn(viesti, tulos.stderr)
                self.assertFalse((pathlib.Path(kansio) / "kanta.mdb").exists())

    def test_equal_sources_give_equal_bytes(self):
        with tempfile.TemporaryDirectory() as kansio:
            tavut = []
            for _ in range(2):
                self.assertEqual(self.rakenna(pathlib.Path(kansio), a="Id,Suomi\n2000,Öljy\n").returncode, 0)
                tavut.append((pathlib.Path(kansio) / "kanta.mdb").read_bytes())
            self.assertEqual(tavut[0], tavut[1])

    def test_the_list_of_shipped_files_fits_them(self):
        for rivi in (KOTI / "tehdastiedot.txt").read_text(encoding="utf-8").splitlines():
            summa, nimi = rivi.split("  ", 1)
            self.assertEqual(hashlib.sha256((KOTI / nimi).read_bytes()).hexdigest(), summa, nimi)


if __name__ == "__main__":
    unittest.main()
