#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""rakenna_paataulu.py RESULT FOLDER: the template of the report table, an OOXML workbook of one sheet and one chart.

The folder tells it in four tables. solut.csv: a range, its text or formula ("{S}" and "{R}" stand for the column and the
row), its style, and the defined name of the range by which the program finds the cell. tyylit.csv: styles. sarakkeet.csv:
widths and hidden columns. kaavio.csv: the column chart. Formulas carry no result: the program that opens the filled table
computes them."""
import csv
import pathlib
import re
import sys
import zipfile
from xml.sax.saxutils import escape, quoteattr

SIVU = "Taulukko 2"
OTSIKKORIVI = 14  # repeated on paper
TULOSTETAAN = "$A$1:$M$72"
AIKA = (2024, 1, 1, 0, 0, 0)  # the same file from the same tables
ALKU = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
NS = "http://schemas.openxmlformats.org/"
PAA = NS + "spreadsheetml/2006/main"
SUHTEET = NS + "officeDocument/2006/relationships"
PAKETTISUHTEET = NS + "package/2006/relationships"
PIIRROS = NS + "drawingml/2006/"
TYYPIT = "application/vnd.openxmlformats-officedocument."


def lue(tiedosto):
    with open(tiedosto, encoding="utf-8", newline="") as f:
        return list(csv.DictReader(f))


def numeroksi(kirjaimet):
    numero = 0
    for kirjain in kirjaimet:
        numero = numero * 26 + ord(kirjain) - ord("A") + 1
    return numero


def kirjaimiksi(numero):
    kirjaimet = ""
    while numero:
        numero, jaannos = divmod(numero - 1, 26)
        kirjaimet = chr(ord("A") + jaannos) + kirjaimet
    return kirjaimet


def kulmat(alue):
    """"B15:M40" gives 2, 15, 13, 40."""
    osat = re.findall(r"([A-Z]+)(\d+)", alue.replace("$", ""))
    (s1, r1), (s2, r2) = osat[0], osat[-1]
    return numeroksi(s1), int(r1), numeroksi(s2), int(r2)


def sidottu(alue):
    return re.sub(r"([A-Z]+)(\d+)", r"$\1$\2", alue)


def solu_xml(osoite, sisalto, tyyli):
    alku = f'<c r="{osoite}" s="{tyyli}"'
    if sisalto.startswith("="):
        return f"{alku}><f>{escape(sisalto[1:])}</f></c>"
    if sisalto:
        return f'{alku} t="inlineStr"><is><t xml:space="preserve">{escape(sisalto)}</t></is></c>'
    return alku + "/>"


def solut_xml(solut, tyylit):
    """Rows and cells in ascending order."""
    rivit = {}
    for s in solut:
        s1, r1, s2, r2 = kulmat(s["Alue"])
        if not s["Tyyli"]:
            continue
        for rivi in range(r1, r2 + 1):
            for sarake in range(s1, s2 + 1):
                kirjain = kirjaimiksi(sarake)
                sisalto = s["Sisalto"].replace("{S}", kirjain).replace("{R}", str(rivi))
                rivit.setdefault(rivi, {})[sarake] = solu_xml(f"{kirjain}{rivi}", sisalto, tyylit[s["Tyyli"]])
    return "".join(f'<row r="{r}">' + "".join(rivit[r][s] for s in sorted(rivit[r])) + "</row>" for r in sorted(rivit))


def sivu_xml(solut, sarakkeet, tyylit):
    cols = ""
    for s in sarakkeet:
        s1, s2 = (numeroksi(osa) for osa in s["Sarakkeet"].split(":"))
        piilossa = ' hidden="1"' if s["Piilossa"] else ""
        cols += f'<col min="{s1}" max="{s2}" width="{s["Leveys"]}" customWidth="1"{piilossa}/>'
    return (f'{ALKU}<worksheet xmlns="{PAA}" xmlns:r="{SUHTEET}"><sheetPr><pageSetUpPr fitToPage="1"/></sheetPr>'
            f'<sheetViews><sheetView showGridLines="0" workbookViewId="0"/></sheetViews>'
            f'<sheetFormatPr defaultRowHeight="15"/><cols>{cols}</cols><sheetData>{solut_xml(solut, tyylit)}</sheetData>'
            '<pageMargins left="0.5" right="0.5" top="0.6" bottom="0.6" header="0.3" footer="0.3"/>'
            '<pageSetup paperSize="9" orientation="landscape" fitToHeight="0"/>'
            '<headerFooter><oddFooter>&amp;R&amp;P / &amp;N</oddFooter></headerFooter>'
            '<drawing r:id="rId1"/></worksheet>')


def tyylit_xml(tyylit):
    """The style sheet, and the number of each style."""
    fontit, taustat, kuviot, xf, numerot = [], [], {}, [], {}
    fontit.append('<font><sz val="11"/><name val="Calibri"/></font>')
    taustat += ['<fill><patternFill patternType="none"/></fill>', '<fill><patternFill patternType="gray125"/></fill>']
    for i, t in enumerate(tyylit, 1):
        numerot[t["Tyyli"]] = i
        vari = f'<color rgb="FF{t["Vari"]}"/>' if t["Vari"] else ""
        fontit.append(f'<font>{"<b/>" if t["Lihava"] else ""}<sz val="{t["Koko"]}"/>{vari}<name val="Calibri"/></font>')
        tausta = 0
        if t["Tausta"]:
            tausta = len(taustat)
            taustat.append(f'<fill><patternFill patternType="solid"><fgColor rgb="FF{t["Tausta"]}"/></patternFill></fill>')
        kuvio = kuviot.setdefault(t["Kuvio"], 164 + len(kuviot)) if t["Kuvio"] else 0
        tasaus = f' horizontal="{t["Tasaus"]}"' if t["Tasaus"] else ""
        tasaus += ' wrapText="1"' if t["Rivita"] else ""
        xf.append(f'<xf numFmtId="{kuvio}" fontId="{i}" fillId="{tausta}" borderId="{t["Reuna"] or 0}" xfId="0" '
                  'applyNumberFormat="1" applyFont="1" applyFill="1" applyBorder="1" applyAlignment="1">'
                  f'<alignment vertical="center"{tasaus}/></xf>')
    viiva = '<{0} style="thin"><color rgb="FFBFBFBF"/></{0}>'
    reunat = ["<border><left/><right/><top/><bottom/><diagonal/></border>",
              "<border>" + "".join(viiva.format(r) for r in ("left", "right", "top", "bottom")) + "<diagonal/></border>"]

    def joukko(nimi, osat):
        return f'<{nimi} count="{len(osat)}">{"".join(osat)}</{nimi}>'

    numFmts = [f'<numFmt numFmtId="{n}" formatCode={quoteattr(k)}/>' for k, n in kuviot.items()]
    perus = '<xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>'
    xml = (f'{ALKU}<styleSheet xmlns="{PAA}">' + joukko("numFmts", numFmts) + joukko("fonts", fontit) +
           joukko("fills", taustat) + joukko("borders", reunat) +
           joukko("cellStyleXfs", ['<xf numFmtId="0" fontId="0" fillId="0" borderId="0"/>']) +
           joukko("cellXfs", [perus, *xf]) + '<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/>'
           "</cellStyles></styleSheet>")
    return xml, numerot


def kirja_xml(solut):
    nimet = {s["Nimi"]: f"'{SIVU}'!{sidottu(s['Alue'])}" for s in solut if s["Nimi"]}
    rivit = [f"<definedName name={quoteattr(nimi)}>{escape(alue)}</definedName>" for nimi, alue in sorted(nimet.items())]
    rivit.insert(0, f"<definedName name=\"_xlnm.Print_Area\" localSheetId=\"0\">'{SIVU}'!{TULOSTETAAN}</definedName>")
    rivit.insert(1, f"<definedName name=\"_xlnm.Print_Titles\" localSheetId=\"0\">'{SIVU}'!${OTSIKKORIVI}:${OTSIKKORIVI}"
                    "</definedName>")
    return (f'{ALKU}<workbook xmlns="{PAA}" xmlns:r="{SUHTEET}"><sheets><sheet name={quoteattr(SIVU)} sheetId="1" '
            f'r:id="rId1"/></sheets><definedNames>{"".join(rivit)}</definedNames><calcPr fullCalcOnLoad="1"/></workbook>')


def kaavio_xml(kaavio):
    arvot = {k["Avain"]: k["Arvo"] for k in kaavio}
    viite = f"'{SIVU}'!"
    sarjat = ""
    for i, k in enumerate(k for k in kaavio if k["Avain"] == "Sarja"):
        nimi, alue, vari = k["Arvo"].split(";")
        sarjat += (f'<c:ser><c:idx val="{i}"/><c:order val="{i}"/><c:tx><c:strRef><c:f>{viite}{nimi}</c:f></c:strRef></c:tx>'
                   f'<c:spPr><a:solidFill><a:srgbClr val="{vari}"/></a:solidFill></c:spPr><c:invertIfNegative val="0"/>'
                   f'<c:cat><c:strRef><c:f>{viite}{arvot["Luokat"]}</c:f></c:strRef></c:cat>'
                   f'<c:val><c:numRef><c:f>{viite}{alue}</c:f></c:numRef></c:val></c:ser>')
    akseli = '<c:scaling><c:orientation val="minMax"/></c:scaling><c:delete val="0"/>'
    return (f'{ALKU}<c:chartSpace xmlns:c="{PIIRROS}chart" xmlns:a="{PIIRROS}main" xmlns:r="{SUHTEET}"><c:chart><c:title>'
            f'<c:tx><c:rich><a:bodyPr/><a:p><a:r><a:rPr lang="fi-FI" sz="1200" b="1"/><a:t>{escape(arvot["Otsikko"])}</a:t>'
            '</a:r></a:p></c:rich></c:tx><c:overlay val="0"/></c:title><c:autoTitleDeleted val="0"/><c:plotArea><c:layout/>'
            f'<c:barChart><c:barDir val="col"/><c:grouping val="clustered"/><c:varyColors val="0"/>{sarjat}'
            '<c:gapWidth val="80"/><c:axId val="1"/><c:axId val="2"/></c:barChart>'
            f'<c:catAx><c:axId val="1"/>{akseli}<c:axPos val="b"/><c:numFmt formatCode="General" sourceLinked="0"/>'
            '<c:majorTickMark val="none"/><c:minorTickMark val="none"/><c:tickLblPos val="low"/><c:crossAx val="2"/>'
            '<c:crosses val="autoZero"/></c:catAx>'
            f'<c:valAx><c:axId val="2"/>{akseli}<c:axPos val="l"/><c:majorGridlines><c:spPr><a:ln w="6350"><a:solidFill>'
            '<a:srgbClr val="D9D9D9"/></a:solidFill></a:ln></c:spPr></c:majorGridlines><c:numFmt formatCode="#,##0" '
            'sourceLinked="0"/><c:majorTickMark val="none"/><c:minorTickMark val="none"/><c:tickLblPos val="nextTo"/>'
            '<c:crossAx val="1"/><c:crosses val="autoZero"/></c:valAx></c:plotArea><c:legend><c:legendPos val="b"/>'
            '<c:overlay val="0"/></c:legend><c:plotVisOnly val="0"/><c:dispBlanksAs val="gap"/></c:chart></c:chartSpace>')


def piirros_xml(kaavio):
    s1, r1, s2, r2 = kulmat(next(k["Arvo"] for k in kaavio if k["Avain"] == "Paikka"))

    def kulma(nimi, sarake, rivi):
        return (f"<xdr:{nimi}><xdr:col>{sarake}</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>{rivi}</xdr:row>"
                f"<xdr:rowOff>0</xdr:rowOff></xdr:{nimi}>")

    return (f'{ALKU}<xdr:wsDr xmlns:xdr="{PIIRROS}spreadsheetDrawing" xmlns:a="{PIIRROS}main"><xdr:twoCellAnchor>'
            f'{kulma("from", s1 - 1, r1 - 1)}{kulma("to", s2, r2)}<xdr:graphicFrame macro=""><xdr:nvGraphicFramePr>'
            '<xdr:cNvPr id="2" name="Kustannukset"/><xdr:cNvGraphicFramePr/></xdr:nvGraphicFramePr><xdr:xfrm>'
            '<a:off x="0" y="0"/><a:ext cx="0" cy="0"/></xdr:xfrm><a:graphic>'
            f'<a:graphicData uri="{PIIRROS}chart"><c:chart xmlns:c="{PIIRROS}chart" xmlns:r="{SUHTEET}" r:id="rId1"/>'
            "</a:graphicData></a:graphic></xdr:graphicFrame><xdr:clientData/></xdr:twoCellAnchor></xdr:wsDr>")


def suhteet_xml(*suhteet):
    rivit = "".join(f'<Relationship Id="rId{i}" Type="{SUHTEET}/{laji}" Target="{kohde}"/>'
                    for i, (laji, kohde) in enumerate(suhteet, 1))
    return f'{ALKU}<Relationships xmlns="{PAKETTISUHTEET}">{rivit}</Relationships>'


def sisaltotyypit_xml():
    osat = {"/xl/workbook.xml": "spreadsheetml.sheet.main", "/xl/worksheets/sheet1.xml": "spreadsheetml.worksheet",
            "/xl/styles.xml": "spreadsheetml.styles", "/xl/drawings/drawing1.xml": "drawing",
            "/xl/charts/chart1.xml": "drawingml.chart"}
    rivit = "".join(f'<Override PartName="{osa}" ContentType="{TYYPIT}{laji}+xml"/>' for osa, laji in osat.items())
    return (f'{ALKU}<Types xmlns="{NS}package/2006/content-types"><Default Extension="rels" '
            'ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Default Extension="xml" '
            f'ContentType="application/xml"/>{rivit}</Types>')


def main():
    tulos, kansio = sys.argv[1], pathlib.Path(sys.argv[2])
    solut, kaavio = lue(kansio / "solut.csv"), lue(kansio / "kaavio.csv")
    tyylit, numerot = tyylit_xml(lue(kansio / "tyylit.csv"))
    osat = {
        "[Content_Types].xml": sisaltotyypit_xml(),
        "_rels/.rels": suhteet_xml(("officeDocument", "xl/workbook.xml")),
        "xl/workbook.xml": kirja_xml(solut),
        "xl/_rels/workbook.xml.rels": suhteet_xml(("worksheet", "worksheets/sheet1.xml"), ("styles", "styles.xml")),
        "xl/styles.xml": tyylit,
        "xl/worksheets/sheet1.xml": sivu_xml(solut, lue(kansio / "sarakkeet.csv"), numerot),
        "xl/worksheets/_rels/sheet1.xml.rels": suhteet_xml(("drawing", "../drawings/drawing1.xml")),
        "xl/drawings/drawing1.xml": piirros_xml(kaavio),
        "xl/drawings/_rels/drawing1.xml.rels": suhteet_xml(("chart", "../charts/chart1.xml")),
        "xl/charts/chart1.xml": kaavio_xml(kaavio),
    }
    with zipfile.ZipFile(tulos, "w", zipfile.ZIP_DEFLATED) as paketti:
        for nimi, sisalto in osat.items():
            paketti.writestr(zipfile.ZipInfo(nimi, AIKA), sisalto, zipfile.ZIP_DEFLATED)


main()
