#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the user's guide: rakenna_ohje.py SOURCE_FOLDER TARGET_FOLDER [PAGE.md...].

Source: Markdown pages of the folder and those told, of which sisallys.md (the contents page) names the others in reading order, and kuvat/*.png.
Target: "Lumivirta 2.hlp", a line "level TAB page TAB title TAB topics" for each chapter, page and section in that
order, and beside it the folder "Ohje" of HTML pages, pictures and their style.

The Markdown is a subset: headings, paragraphs, lists of two levels, tables, code blocks, notes (>), pictures, links,
bold, italic, code, and HTML lines as they are. A comment "<!-- aiheet: 10 11 -->" gives the heading above it these
topic numbers. A dead link, a missing picture, an unlisted page or a topic given twice stops the build.
"""
import html
import pathlib
import re
import shutil
import sys

LUETTELO = "Lumivirta 2.hlp"
KANSIO = "Ohje"
SISALLYS = "sisallys"
SALLITUT = r"&lt;(/?(?:sub|sup|br|i|b))&gt;"

TYYLI = """\
body { font-family: sans-serif; line-height: 130%; max-width: 46em; }
h1 { font-size: xx-large; margin-top: 4px; margin-bottom: 10px; }
h2 { font-size: x-large; margin-top: 20px; margin-bottom: 6px; }
h3 { font-size: large; margin-top: 14px; margin-bottom: 4px; }
p { margin-top: 6px; margin-bottom: 6px; }
li { margin-bottom: 3px; }
a { text-decoration: none; }
table.taulu { border-collapse: collapse; border-style: solid; border-width: 1px; border-color: #a0a6ad;
              margin-top: 8px; margin-bottom: 10px; }
table.taulu th { background-color: palette(alternate-base); }
table.huom { background-color: palette(alternate-base); margin-top: 8px; margin-bottom: 10px; }
p.kaava { margin-left: 28px; margin-top: 6px; margin-bottom: 6px; font-family: serif; font-size: large; }
p.kuva { line-height: 100%; margin-top: 8px; margin-bottom: 12px; }
p.selaus { margin-top: 24px; }
pre, code { font-family: monospace; }
pre { font-size: 7.5pt; margin-left: 4px; margin-top: 8px; margin-bottom: 8px; }
"""


class Virhe(Exception):
    pass


def ankkuri(otsikko):
    """Anchor of a heading: small letters without accents, words joined with a hyphen."""
    pelkka = re.sub(r"[*`<>/]|sub|sup", "", otsikko).lower().translate(str.maketrans("äöå", "aoa"))
    return re.sub(r"[^a-z0-9]+", "-", pelkka).strip("-")


def linkin_kohde(kohde):
    return re.sub(r"\.md(?=$|#)", ".html", kohde)


def rivin_sisalto(teksti):
    """Markup inside a line. Code stays as it is written."""
    osat = re.split(r"(`[^`]+`)", teksti)
    return "".join(f"<code>{html.escape(o[1:-1])}</code>" if o.startswith("`") else muotoiltu(o) for o in osat)


def muotoiltu(teksti):
    teksti = html.escape(teksti, quote=False)
    teksti = re.sub(SALLITUT, r"<\1>", teksti)
    teksti = re.sub(r"!\[([^]]*)\]\(([^)]+)\)", r'<img src="\2" alt="\1">', teksti)
    teksti = re.sub(r"\[([^]]+)\]\(([^)]+)\)", lambda m: f'<a href="{linkin_kohde(m[2])}">{m[1]}</a>', teksti)
    teksti = re.sub(r"\*\*(.+?)\*\*", r"<b>\1</b>", teksti)
    return re.sub(r"(?<![\w*])\*(?!\s)(.+?)\*", r"<i>\1</i>", teksti)


class Sivu:
    """One page: its headings as (level, title, anchor, topics, line) and its HTML."""

    def __init__(self, polku):
        self.nimi = polku.stem
        self.polku = polku
        self.otsikot = []
        self.osat = []
        self.rivit = polku.read_text(encoding="utf-8").splitlines()
        self.i = 0
        while self.i < len(self.rivit):
            self.lue_osa()
        if not self.otsikot or self.otsikot[0][0] != 1:
            raise Virhe(f"{polku}: sivulla ei ole pääotsikkoa")

    @property
    def otsikko(self):
        return self.otsikot[0][1]

    def ota(self, ehto):
        """The lines from here on that meet the condition."""
        alku = self.i
        while self.i < len(self.rivit) and ehto(self.rivit[self.i]):
            self.i += 1
        return self.rivit[alku:self.i]

    def lue_osa(self):
        rivi = self.rivit[self.i]
        for alku, lue in ((r"\s*$", self.ohita), (r"#{1,3} ", self.lue_otsikko), (r"<!-- aiheet:", self.lue_aiheet),
                          (r"```", self.lue_koodi), (r"\|", self.lue_taulu), (r"> ?", self.lue_huomautus),
                          (r"(-|\d+\.) ", self.lue_luettelo), (r"<", self.lue_html), (r"", self.lue_kappale)):
            if re.match(alku, rivi):
                return lue()

    def ohita(self):
        self.i += 1

    def lue_otsikko(self):
        merkit, teksti = self.rivit[self.i].split(" ", 1)
        self.i += 1
        nimi = ankkuri(teksti)
        self.otsikot.append((len(merkit), teksti.strip(), nimi, [], self.i))
        self.osat.append(f'<h{len(merkit)}><a name="{nimi}"></a>{rivin_sisalto(teksti)}</h{len(merkit)}>')

    def lue_aiheet(self):
        self.otsikot[-1][3].extend(int(n) for n in re.findall(r"\d+", self.rivit[self.i]))
        self.i += 1

    def lue_koodi(self):
        self.i += 1
        koodi = self.ota(lambda r: not r.startswith("```"))
        self.i += 1
        self.osat.append("<pre>" + html.escape("\n".join(koodi), quote=False) + "</pre>")

    def lue_taulu(self):
        rivit = [[s.strip() for s in r.strip().strip("|").split("|")] for r in self.ota(lambda r: r.startswith("|"))]
        suunnat = ["right" if s.endswith(":") else "left" for s in rivit[1]]

        def tee(solut, laji):
            return "<tr>" + "".join(f'<{laji} align="{suunta}">{rivin_sisalto(solu)}</{laji}>'
                                    for solu, suunta in zip(solut, suunnat, strict=True)) + "</tr>"

        self.osat.append('<table class="taulu" border="1" cellspacing="0" cellpadding="4">'
                         + tee(rivit[0], "th") + "".join(tee(r, "td") for r in rivit[2:]) + "</table>")

    def lue_huomautus(self):
        teksti = " ".join(r[1:].strip() for r in self.ota(lambda r: r.startswith(">")))
        self.osat.append('<table class="huom" width="100%" cellpadding="8"><tr><td>'
                         + rivin_sisalto(teksti) + "</td></tr></table>")

    def lue_luettelo(self):
        rivit = self.ota(lambda r: re.match(r"(-|\d+\.) |  +\S", r))
        self.osat.append(luettelo(rivit))

    def lue_html(self):
        self.osat.append(self.rivit[self.i])
        self.i += 1

    def lue_kappale(self):
        rivit = self.ota(lambda r: r.strip() and not re.match(r"#{1,3} |```|\||> |(-|\d+\.) |<", r))
        laji = ' class="kuva"' if re.fullmatch(r"!\[[^]]*\]\([^)]+\)", " ".join(rivit)) else ""
        self.osat.append(f"<p{laji}>" + rivin_sisalto(" ".join(rivit)) + "</p>")


def luettelo(rivit):
    """A list; a deeper list and the continuation of an item are indented."""
    numeroitu = rivit[0][0].isdigit()
    kohdat = []
    for rivi in rivit:
        if not rivi.startswith(" "):
            kohdat.append((rivi.split(" ", 1)[1], []))
        elif re.match(r"\s+- ", rivi) or kohdat[-1][1]:
            kohdat[-1][1].append(re.sub(r"^ {2,3}", "", rivi))
        else:
            kohdat[-1] = (kohdat[-1][0] + " " + rivi.strip(), kohdat[-1][1])
    laji = "ol" if numeroitu else "ul"
    osat = (f"<li>{rivin_sisalto(teksti)}{luettelo(ala) if ala else ''}</li>" for teksti, ala in kohdat)
    return f"<{laji}>" + "".join(osat) + f"</{laji}>"


def jarjestys(sisallys):
    """Chapters of the contents page: heading, and the pages that it lists."""
    luvut = []
    for rivi in sisallys.rivit:
        if rivi.startswith("## "):
            luvut.append((rivi[3:].strip(), []))
        elif m := re.match(r"- \[[^]]+\]\((\w+)\.md\)", rivi):
            luvut[-1][1].append(m[1])
    return luvut


def luettelorivit(sivut, luvut):
    def rivi(taso, sivu, nimi, otsikko, aiheet):
        ankkuroitu = f"{sivu.nimi}.html" + (f"#{nimi}" if nimi else "")
        return (taso, ankkuroitu, re.sub(r"[*`]|</?su[bp]>", "", otsikko), aiheet)

    sisallys = sivut[SISALLYS]
    yield rivi(0, sisallys, "", sisallys.otsikko, sisallys.otsikot[0][3])
    for luku, nimet in luvut:
        yield rivi(0, sisallys, ankkuri(luku), luku, [])
        for sivu in (sivut[n] for n in nimet):
            for taso, otsikko, nimi, aiheet, _ in sivu.otsikot:
                if taso < 3 or aiheet:
                    yield rivi(taso, sivu, "" if taso == 1 else nimi, otsikko, aiheet)


def tarkista(sivut, luvut, kuvat):
    listatut = [n for _, nimet in luvut for n in nimet]
    if vaarat := {*sivut} ^ {SISALLYS, *listatut}:
        raise Virhe(f"{SISALLYS}.md: sivu puuttuu sisällyksestä tai kansiosta: {', '.join(sorted(vaarat))}")
    ankkurit = {f"{s.nimi}.html#{o[2]}" for s in sivut.values() for o in s.otsikot} | {f"{n}.html" for n in sivut}
    for sivu in sivut.values():
        teksti = "".join(sivu.osat)
        for kohde in re.findall(r'<a href="([^"]+)"', teksti):
            koko = sivu.nimi + ".html" + kohde if kohde.startswith("#") else kohde
            if not koko.startswith("http") and koko not in ankkurit:
                raise Virhe(f"{sivu.polku}: linkin kohdetta ei ole: {kohde}")
        for kuva in re.findall(r'<img src="([^"]+)"', teksti):
            if kuva not in kuvat:
                raise Virhe(f"{sivu.polku}: kuvaa ei ole: {kuva}")
    annetut = {}
    for sivu in sivut.values():
        for _, _, _, aiheet, numero in sivu.otsikot:
            for aihe in aiheet:
                if aihe in annetut:
                    raise Virhe(f"{sivu.polku}:{numero}: aihe {aihe} on jo sivulla {annetut[aihe]}")
                annetut[aihe] = sivu.polku


def sivun_html(sivu, edellinen, seuraava):
    selaus = []
    if edellinen and edellinen.nimi != SISALLYS:
        selaus.append(f'<a href="{edellinen.nimi}.html">← {html.escape(edellinen.otsikko)}</a>')
    selaus.append(f'<a href="{SISALLYS}.html">Sisällys</a>')
    if seuraava:
        selaus.append(f'<a href="{seuraava.nimi}.html">{html.escape(seuraava.otsikko)} →</a>')
    return (f'<!DOCTYPE html>\n<html lang="fi"><head><meta charset="utf-8"><title>{html.escape(sivu.otsikko)}</title>\n'
            '<link rel="stylesheet" type="text/css" href="tyyli.css"></head><body>\n'
            + "\n".join(sivu.osat) + f'\n<p class="selaus">{" &nbsp;|&nbsp; ".join(selaus)}</p>\n</body></html>\n')


def rakenna(lahde, kohde, *lisasivut):
    sivut = {p.stem: Sivu(p) for p in [*sorted(lahde.glob("*.md")), *lisasivut]}
    luvut = jarjestys(sivut[SISALLYS])
    kuvat = {f"kuvat/{p.name}" for p in (lahde / "kuvat").glob("*.png")}
    tarkista(sivut, luvut, kuvat)

    ohje = kohde / KANSIO
    shutil.rmtree(ohje, ignore_errors=True)
    (ohje / "kuvat").mkdir(parents=True)
    jono = [sivut[SISALLYS], *(sivut[n] for _, nimet in luvut for n in nimet)]
    for edellinen, sivu, seuraava in zip([None, *jono], jono, [*jono[1:], None]):
        (ohje / f"{sivu.nimi}.html").write_text(sivun_html(sivu, edellinen, seuraava), encoding="utf-8")
    (ohje / "tyyli.css").write_text(TYYLI, encoding="utf-8")
    for kuva in kuvat:
        shutil.copyfile(lahde / kuva, ohje / kuva)
    rivit = (f"{taso}\t{sivu}\t{otsikko}\t{' '.join(map(str, aiheet))}\n"
             for taso, sivu, otsikko, aiheet in luettelorivit(sivut, luvut))
    (kohde / LUETTELO).write_text("".join(rivit), encoding="utf-8")


if __name__ == "__main__":
    try:
        rakenna(*map(pathlib.Path, sys.argv[1:]))
    except Virhe as virhe:
        sys.exit(f"rakenna_ohje.py: {virhe}")
