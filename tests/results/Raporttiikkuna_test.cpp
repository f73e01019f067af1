// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the report: what is chosen and written stays with the object, and a file that can't be written is asked
// for anew.
#include "results/raportti/Raporttiikkuna.h"

#include <filesystem>

#include "results/clsRaporttiasetukset.h"
#include "results/raportti/Raportti.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"

namespace {

class RaporttiikkunaTesti : public RakennusTesti {
 protected:
  RaporttiikkunaTesti() { LuoKoulu(); }
  ~RaporttiikkunaTesti() override { AsetaPdfkirjoitin({}); }
  Koehakemisto hakemisto_;
};

TEST_F(RaporttiikkunaTesti, ChoicesAndTextsStayAfterOkAndTheReportIsOfWhatStandsInTheDialog) {
  std::vector<std::string> osat;
  AsetaPdfkirjoitin([&](const Raportti& raportti, const std::string& tiedosto) {
    if (tiedosto.find("lukittu") != tiedosto.npos) throw std::runtime_error("se on lukittu.");
    for (const Raportinosa& osa : raportti.osat) osat.push_back(osa.nimi);
  });
  ikkunat.KunNaytetaan("frmRaportti", [&](Ikkunaton& lomake) {
    EXPECT_TRUE(lomake.Etsi("cmdPdf").Kaytossa());
    lomake.KayttajaRastittaa("lvwOsat", "Kohde");
    lomake.KayttajaKirjoittaa("txtNykytila", "Hyvä\nkunto");
    viestit.AsetaSeuraavaTiedosto((hakemisto_ / "lukittu.pdf").string());
    viestit.AsetaSeuraavaTiedosto((hakemisto_ / "toinen.pdf").string());
    lomake.KayttajaPainaa("cmdPdf");
    viestit.AsetaSeuraavaTiedosto((hakemisto_ / "kirja.xlsx").string());
    lomake.KayttajaPainaa("cmdTaulukko");
    lomake.KayttajaPainaa("cmdOk");
  });
  NaytaRaporttiikkuna(*rakennus);
  EXPECT_EQ(viestit.Esiintymia("ei voitu kirjoittaa: se on lukittu."), 1);
  EXPECT_EQ(std::ranges::count(osat, "Kohde"), 0);
  EXPECT_EQ(std::ranges::count(osat, "Lampo"), 1) << "made once, under the second name";
  EXPECT_TRUE(std::filesystem::exists((hakemisto_ / "kirja.xlsx").string()));
  EXPECT_EQ(rakennus->Raporttiasetukset.Nykytila, "Hyvä\nkunto");
  EXPECT_FALSE(rakennus->Raporttiasetukset.OnMukana("Kohde"));

  ikkunat.KunNaytetaan("frmRaportti", [&](Ikkunaton& lomake) {
    EXPECT_EQ(lomake.Etsi("txtNykytila").Teksti(), "Hyvä\nkunto");
    lomake.KayttajaKirjoittaa("txtNykytila", "Huono");
    lomake.KayttajaPainaa("cmdPeruuta");
  });
  NaytaRaporttiikkuna(*rakennus);
  EXPECT_EQ(rakennus->Raporttiasetukset.Nykytila, "Hyvä\nkunto");
}

}  // namespace
