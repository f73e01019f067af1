// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of a report: what stands together, and the PDF read back by a program that isn't ours.
#include "pdf/Pdfraportti.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "pdf/Ladonta.h"
#include "pdf/Sivutus.h"
#include "results/raportti/Raportti.h"
#include "tests/kernel/Koehakemisto.h"
#include "ui/Tekstivarasto.h"

namespace {

/// What the command writes.
std::string Tuloste(const std::string& komento) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> putki(popen(komento.c_str(), "r"), pclose);
  std::string teksti;
  std::array<char, 4096> puskuri;
  while (const auto luettu = std::fread(puskuri.data(), 1, puskuri.size(), putki.get()))
    teksti.append(puskuri.data(), luettu);
  return teksti;
}

int Esiintymia(const std::string& teksti, const std::string& osa) {
  int maara = 0;
  for (auto i = teksti.find(osa); i != teksti.npos; i = teksti.find(osa, i + osa.size())) ++maara;
  return maara;
}

Raportti Koeraportti(int riveja) {
  Raporttitaulukko t{
      .sarakkeet = {{"Rakenne", "", "", 4, Summaus::Ei, false}, {"Ala", "m²", "ala", 1, Summaus::Luvut}}};
  for (int i = 0; i < riveja; ++i) t.Lisaa({"Seinä " + std::to_string(i), Raporttiluku{1000.0 + i, "### ##0.0"}});
  t.LisaaSummat("Yhteensä");
  Raportti raportti{.otsikko = "Raportti",
                    .kohde = "Ääkköstalo & " + std::string(300, 'w'),
                    .pvm = "1.2.2024",
                    .ohjelma = "Lumivirta"};
  Raportinosa osa{"Kohde", "Kohteen luku", "1"};
  osa.Kappale("Lämpötila laskee -5 asteeseen, ja lämpöä kuluu 12 345 MWh.");
  osa.Taulukko(std::move(t));
  osa.Otsikko("Väliotsikko");
  osa.Kappale("Loppu.");
  osa.Kaavio({Kaaviolaji::Piirakka, {.otsikko = "Jakauma", .nimet = {"Lämpö", "Sähkö"}, .arvot = {3, 1}}});
  raportti.osat = {osa, Raportinosa{"Liite", "Toinen luku", "Liite A"}};
  return raportti;
}

class PdfraporttiTesti : public testing::Test {
 protected:
  PdfraporttiTesti() { AlustaTekstit(); }
  std::string Kirjoita(const Raportti& raportti) {
    const std::string tiedosto = (hakemisto_ / "raportti.pdf").string();
    KirjoitaPdfraportti(raportti, tiedosto);
    return tiedosto;
  }
  Koehakemisto hakemisto_;
};

TEST_F(PdfraporttiTesti, TextIsReadBackAndHeadingsOfTablesAreOnEveryPage) {
  const std::string tiedosto = Kirjoita(Koeraportti(5000));
  std::string teksti = Tuloste("pdftotext -layout '" + tiedosto + "' -");
  for (const std::string& sitova : {std::string("\u202F"), std::string("\u00A0")})
    for (auto i = teksti.find(sitova); i != teksti.npos; i = teksti.find(sitova)) teksti.replace(i, sitova.size(), " ");
  for (const char* osa : {"Ääkköstalo", "Kohteen luku", "Seinä 4999", "Yhteensä", "Väliotsikko", "Liite A"})
    EXPECT_GE(Esiintymia(teksti, osa), 1) << osa;
  EXPECT_EQ(Esiintymia(teksti, "laskee \u22125 asteeseen"), 1);
  EXPECT_EQ(Esiintymia(teksti, "12 345 MWh"), 1);
  const int sivuja = Esiintymia(teksti, "\f");
  EXPECT_GT(sivuja, 90);
  EXPECT_GE(Esiintymia(teksti, "Rakenne "), sivuja - 4) << "all but the cover, the end and the appendix";
  EXPECT_EQ(Esiintymia(teksti, std::to_string(sivuja) + " / " + std::to_string(sivuja)), 1);
}

TEST_F(PdfraporttiTesti, FontsAreEmbeddedAndTheOutlineNamesTheChapters) {
  const std::string tiedosto = Kirjoita(Koeraportti(5));
  const std::string fontit = Tuloste("pdffonts '" + tiedosto + "' | tail -n +3");
  EXPECT_GT(Esiintymia(fontit, "\n"), 0);
  EXPECT_EQ(Esiintymia(fontit, "Identity-H       yes"), Esiintymia(fontit, "\n")) << fontit;
  const std::string virheet = Tuloste("pdfinfo '" + tiedosto + "' 2>&1");
  EXPECT_EQ(Esiintymia(virheet, "rror"), 0) << virheet;
  const std::string rakenne = Tuloste("cat '" + tiedosto + "'");
  EXPECT_EQ(Esiintymia(rakenne, "/Title <FEFF"), 3);
  EXPECT_EQ(Esiintymia(rakenne, "/Type /Outlines"), 1);
}

TEST_F(PdfraporttiTesti, AFileThatCantBeWrittenIsToldOf) {
  EXPECT_THROW(KirjoitaPdfraportti(Koeraportti(1), "/ei/ole/raportti.pdf"), std::runtime_error);
}

TEST(Ladonta, NumbersAreSetAsInFinnish) {
  EXPECT_EQ(Ladottu("1 234 567,5 m²"), QString::fromUtf8("1\u202F234\u202F567,5\u00A0m²"));
  EXPECT_EQ(Ladottu("(-12 %)"), QString::fromUtf8("(\u221212\u00A0%)"));
  EXPECT_EQ(Ladottu("vuosina 2020-2024 kului"), "vuosina 2020-2024 kului");
  EXPECT_EQ(Ladottu("3 tilaa ja 5 t"), QString::fromUtf8("3 tilaa ja 5\u00A0t"));
}

TEST(Sivutus, WhatBelongsTogetherIsOnOnePageAndHeadingsAreRepeated) {
  std::vector<std::string> loki;
  const auto pala = [&](const char* nimi, double korkeus, bool seuraavanKanssa = false) {
    return Pala{.korkeus = korkeus,
                .piirra = [&loki, nimi](QPainter&, double) { loki.emplace_back(nimi); },
                .seuraavanKanssa = seuraavanKanssa};
  };
  const auto otsikko = std::make_shared<Pala>(pala("otsikko", 1));
  std::vector<Pala> palat{pala("a", 8), pala("yksin", 1, true), pala("b", 2), *otsikko, pala("r1", 6), pala("r2", 6)};
  palat[3].seuraavanKanssa = true;
  palat[4].toistuva = palat[5].toistuva = otsikko;
  const Sivutettu sivutettu = Sivuta(palat, 0, 10);
  ASSERT_EQ(sivutettu.sivut.size(), 3u);
  QImage kuva(1, 1, QImage::Format_RGB32);
  QPainter maalain(&kuva);
  std::vector<std::string> sivut;
  for (const Sivu& sivu : sivutettu.sivut) {
    loki.clear();
    for (const auto& piirra : sivu.piirrot) piirra(maalain);
    sivut.emplace_back();
    for (const std::string& nimi : loki) sivut.back() += nimi + " ";
  }
  EXPECT_EQ(sivut, (std::vector<std::string>{"a ", "yksin b otsikko r1 ", "otsikko r2 "}));
}

}  // namespace
