// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a list: the tree, the sorting, filling anew, and what the person does to them without a screen.
#include "ui/Luettelo.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/tuki/Koeviestit.h"
#include "ui/Ikkunaton.h"
#include "ui/Ohjaimet.h"

namespace {

Luettelorivi Rivi(const char* avain, const char* ylempi, std::vector<std::string> solut, Rivipiirteet piirteet = {}) {
  return {std::move(solut), avain, ylempi, std::move(piirteet)};
}

/// Consumers under two headings, one of which comes before the row that it hangs under.
std::vector<Luettelorivi> Kulutusrivit() {
  return {Rivi("valo", "kaikki", {"Valaistus", "30"}),
          Rivi("kaikki", "", {"Yhteensä", "42,5"}, {.lihava = true}),
          Rivi("aula", "valo", {"Aula", "9"}),
          Rivi("sali", "valo", {"Sali", "21"}),
          Rivi("muu", "kaikki", {"Muu", "12,5"}, {.suljettu = true}),
          Rivi("hissi", "muu", {"Hissi", "12,5"})};
}

std::string Nimet(const Luettelo& lista, const std::vector<int>& rivit) {
  std::string nimet;
  for (const int rivi : rivit) nimet += (nimet.empty() ? "" : " ") + lista.Solut()[static_cast<std::size_t>(rivi)][0];
  return nimet;
}

TEST(Luettelo, TheTreeFollowsParentKeysAndBranchesClose) {
  Luettelo lista;
  lista.Tayta(Kulutusrivit());
  EXPECT_EQ(Nimet(lista, lista.Jarjestys()), "Yhteensä Valaistus Aula Sali Muu Hissi");
  EXPECT_EQ(Nimet(lista, lista.Nakyvat()), "Yhteensä Valaistus Aula Sali Muu");
  EXPECT_FALSE(lista.Nakyvissa(lista.Etsi("HISSI"))) << "keys compare without regard to case";
  lista.Suljettu(lista.Etsi("valo"), true);
  lista.Suljettu(lista.Etsi("muu"), false);
  auto rivit = Kulutusrivit();
  rivit.push_back(Rivi("uusi", "muu", {"Uusi"}));
  EXPECT_FALSE(lista.Tayta(std::move(rivit)));
  EXPECT_EQ(Nimet(lista, lista.Nakyvat()), "Yhteensä Valaistus Muu Hissi Uusi")
      << "branches stay as the person had them";
}

TEST(Luettelo, RowsOfACircleAndOrphansShowOnTop) {
  Luettelo lista;
  lista.Tayta({Rivi("a", "b", {"A"}), Rivi("b", "a", {"B"}), Rivi("c", "c", {"C"}), Rivi("d", "ei ole", {"D"})});
  EXPECT_EQ(Nimet(lista, lista.Jarjestys()), "B A C D");
}

TEST(Luettelo, SortingKeepsBranchesAndTheThirdTimeRestoresTheOrder) {
  Luettelo lista;
  lista.Tayta(Kulutusrivit());
  lista.Lajittele(1);
  EXPECT_EQ(Nimet(lista, lista.Jarjestys()), "Yhteensä Muu Hissi Valaistus Aula Sali");
  lista.Lajittele(1);
  EXPECT_EQ(Nimet(lista, lista.Jarjestys()), "Yhteensä Valaistus Sali Aula Muu Hissi");
  lista.Lajittele(1);
  EXPECT_EQ(Nimet(lista, lista.Jarjestys()), "Yhteensä Valaistus Aula Sali Muu Hissi");
}

TEST(Luettelo, FillingWithTheSameRowsTellsOnlyTheChanged) {
  Luettelo lista;
  lista.Tayta(Kulutusrivit());
  lista.Lajittele(1);
  auto rivit = Kulutusrivit();
  rivit[2].solut[1] = "10";
  EXPECT_EQ(lista.Tayta(rivit), (std::vector<int>{2}));
  rivit[2].solut[1] = "40";
  EXPECT_FALSE(lista.Tayta(rivit)) << "a row changes its place";
  EXPECT_EQ(Nimet(lista, lista.Alemmat(lista.Etsi("valo"))), "Sali Aula");
  rivit[2].ylempi = "muu";
  EXPECT_FALSE(lista.Tayta(rivit));
}

TEST(Luettelo, AChangedRowChangesTheColumnsKind) {
  Luettelo lista;
  lista.Tayta(Kulutusrivit());
  EXPECT_TRUE(lista.OnLukusarake(1));
  lista.Rivi(2, {"Aula", "ei tietoa"});
  EXPECT_FALSE(lista.OnLukusarake(1));
  lista.Rivi(2, {"Aula", "---"});
  EXPECT_TRUE(lista.OnLukusarake(1));
}

constexpr const char* kLomake = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0"><class>frmPuu</class><widget class="QWidget" name="frmPuu">
<widget class="QTreeView" name="lvwPuu"><property name="Sarakkeet"><stringlist><string>9183</string>
<string>9183,oikea</string></stringlist></property></widget></widget></ui>)";

class frmPuu : public Lomake {
 public:
  frmPuu() : Lomake("frmPuu") {}
  ListView lvwPuu{*this, "lvwPuu"};
};

/// A form with a tree, opened without a screen.
class Puulomake : public ::testing::Test {
 protected:
  Puulomake() {
    std::ofstream(kansio_ / "frmPuu.ui") << kLomake;
    lomake_ = std::make_unique<frmPuu>();
    auto rivit = Kulutusrivit();
    for (auto& rivi : rivit)
      rivi.piirteet.siirrettava = rivi.avain == Tunniste("aula") || rivi.avain == Tunniste("sali");
    rivit[2].piirteet.muokattavat = {1};
    lomake_->lvwPuu.Tayta({std::move(rivit), {"Summa", "42,5"}});
  }
  ~Puulomake() override {
    lomake_.reset();
    std::filesystem::remove_all(kansio_);
  }
  static std::filesystem::path TeeKansio() {
    auto kansio = std::filesystem::temp_directory_path() / ("puukoe-" + std::to_string(::getpid()));
    std::filesystem::create_directories(kansio);
    return kansio;
  }
  Ikkunaton& Ikkuna() const { return ikkunattomat_.Ikkuna("frmPuu"); }
  const ListView& Puu() const { return lomake_->lvwPuu; }
  int Rivi(const char* avain) const { return Puu().Kohde().Lista().Etsi(avain); }

  Koeviestit viestit_;
  std::filesystem::path kansio_ = TeeKansio();
  Ikkunattomat ikkunattomat_{kansio_.string()};
  std::unique_ptr<frmPuu> lomake_;
};

TEST_F(Puulomake, ARowOfAClosedBranchIsOutOfReach) {
  EXPECT_EQ(Puu().Kohde().Osat()[1].tasaus, Tasaus::Oikea);
  EXPECT_THROW(Ikkuna().KayttajaValitsee("lvwPuu", "Hissi"), std::logic_error);
  Ikkuna().KayttajaAvaa("lvwPuu", "Muu", true);
  Ikkuna().KayttajaValitsee("lvwPuu", "Hissi");
  EXPECT_EQ(Puu().Valittu(), Tunniste("hissi"));
}

TEST_F(Puulomake, OnlyAnAllowedCellTakesText) {
  Puu().KunMuokataan([this](int rivi, int sarake, const std::string& teksti) {
    EXPECT_EQ(sarake, 1);
    Puu().Rivi(rivi, {"Aula", teksti + ",0"});
  });
  Ikkuna().KayttajaMuokkaa("lvwPuu", "Aula", 1, "8");
  EXPECT_EQ(Puu().Rivit()[2][1], "8,0");
  EXPECT_THROW(Ikkuna().KayttajaMuokkaa("lvwPuu", "Sali", 1, "8"), std::logic_error);
  EXPECT_THROW(Ikkuna().KayttajaMuokkaa("lvwPuu", "Aula", 0, "8"), std::logic_error);
}

TEST_F(Puulomake, ARowMovesOnlyWhereItMay) {
  std::string siirto;
  Puu().KunSiirretaan([this](int, int ylempi) { return ylempi != Rivi("hissi"); },
                      [&](int rivi, int ylempi) { siirto = std::to_string(rivi) + ">" + std::to_string(ylempi); });
  Ikkuna().KayttajaSiirtaa("lvwPuu", "Aula", "Muu");
  EXPECT_EQ(siirto, "2>4");
  Ikkuna().KayttajaAvaa("lvwPuu", "Muu", true);
  EXPECT_THROW(Ikkuna().KayttajaSiirtaa("lvwPuu", "Aula", "Hissi"), std::logic_error);
  EXPECT_THROW(Ikkuna().KayttajaSiirtaa("lvwPuu", "Aula", "Aula"), std::logic_error) << "not under itself";
  EXPECT_THROW(Ikkuna().KayttajaSiirtaa("lvwPuu", "Aula", "Valaistus"), std::logic_error) << "it hangs there already";
  EXPECT_THROW(Ikkuna().KayttajaSiirtaa("lvwPuu", "Muu", "Valaistus"), std::logic_error);
}

TEST_F(Puulomake, TheChoiceStaysAtItsKeyOrPlace) {
  Puu().Valitse("aula");
  auto rivit = Kulutusrivit();
  rivit.insert(rivit.begin(), {{"Uusi"}, "uusi", "valo"});
  Puu().Tayta({rivit});
  EXPECT_EQ(Puu().Valittu(), Tunniste("aula"));
  std::erase_if(rivit, [](const Luettelorivi& rivi) { return rivi.avain == Tunniste("aula"); });
  Puu().Tayta({rivit});
  EXPECT_EQ(Puu().Valittu(), Tunniste("sali")) << "the row that came to its place";
  Puu().Tayta({});
  EXPECT_EQ(Puu().Indeksi(), -1);
}

}  // namespace
