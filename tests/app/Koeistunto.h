// SPDX-License-Identifier: GPL-3.0-or-later
// A session without windows: answers and dialogs are scripted, files lie in a directory of the test's own.
#pragma once
#include <filesystem>
#include <fstream>

#include "app/Istunto.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsTilat.h"
#include "kernel/Kirjoitussuoja.h"
#include "kernel/Tietokanta.h"
#include "settings/clsProjektiAsetukset.h"
#include "tests/app/Koekoti.h"
#include "tests/tuki/Koeviestit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ui/Ikkunaton.h"
#include "ui/Lomake.h"
#include "ui/Paaikkuna.h"

namespace fs = std::filesystem;

class Otsikot : public Paaikkuna {
 public:
  Otsikot() { AsetaPaaikkuna(this); }
  ~Otsikot() override { AsetaPaaikkuna(nullptr); }
  void AsetaOtsikko(const std::string& teksti) override { otsikko = PaaikkunanOtsikko(teksti); }
  std::string otsikko;
};

inline void Kirjoita(const std::string& tiedosto, const std::string& sisalto) { std::ofstream(tiedosto) << sisalto; }

class IstuntoTesti : public testing::Test {
 protected:
  IstuntoTesti() {
    lomakkeet.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) { lomake.KayttajaPainaa("cmdOk"); });
  }
  ~IstuntoTesti() override {
    EXPECT_EQ(viestit.VastauksiaJaljella(), 0u) << "an answer that was never asked for";
    istunto.SuljeKohde();
  }

  void PeruutaPerustiedot() {
    lomakkeet.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) { lomake.KayttajaPainaa("cmdPeruuta"); });
  }
  void UusiKohde(const std::string& nimi) {
    lomakkeet.KunNaytetaan("frmPerustiedot", [nimi](Ikkunaton& lomake) {
      lomake.KayttajaKirjoittaa("txtKohteenNimi", nimi);
      lomake.KayttajaKirjoittaa("txtValmistumisVuosi", "1965");
      lomake.KayttajaKirjoittaa("txtKokonaistilavuus", "17 500");
      lomake.KayttajaKirjoittaa("txtBruttoAla", "4200");
      lomake.KayttajaKirjoittaa("txtKerrostenLukumaara", "3");
      lomake.KayttajaPainaa("cmdOk");
    });
    istunto.mnuFileNew_Click();
  }
  /// A new object under a name of its own, saved and open.
  std::string TallennettuKohde(const std::string& nimi) {
    UusiKohde(nimi);
    const std::string tiedosto = koti.Tiedosto(nimi + ".lvt");
    viestit.AsetaSeuraavaTiedosto(tiedosto);
    istunto.mnuFileSave_Click();
    EXPECT_TRUE(istunto.Rakennus()->Tallennettu);
    PeruutaPerustiedot();
    return tiedosto;
  }
  void Avaa(const std::string& tiedosto) {
    viestit.AsetaSeuraavaTiedosto(tiedosto);
    istunto.mnuFileOpen_Click();
  }
  /// A copy of the file with something changed in it.
  std::string Muunnos(const std::string& tiedosto, const std::string& sql) {
    const std::string muunnos = koti.Tiedosto("Muunnos.lvt");
    fs::copy_file(tiedosto, muunnos);
    PoistaKirjoitussuoja(muunnos);
    Tietokanta(muunnos, Tietokanta::Tapa::Kirjoitus).Aja(sql);
    return muunnos;
  }
  const std::string& KohteenNimi() const { return istunto.Rakennus()->Perustiedot.KohteenNimi; }
  const std::string& Tiedosto() const { return istunto.Rakennus()->ProjektiAsetukset.strCurrentProjectFile; }
  const std::string& ViimeTeksti() const { return viestit.Naytetyt().back().teksti; }

  Koekoti koti;
  Koeviestit viestit;
  Ikkunattomat lomakkeet{Lahdekoodi("ui/forms")};
  Otsikot paaikkuna;
  Istunto istunto;
};
