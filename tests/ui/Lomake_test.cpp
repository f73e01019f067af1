// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lomake.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "kernel/Virhe.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Ikkunaton.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Lomakekaannos.h"
#include "ui/Ohjaimet.h"
#include "ui/Tekstivarasto.h"

namespace {

std::uint32_t nyt = 0;
std::uint32_t Koekello() { return nyt; }

constexpr const char* kKoelomake = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0"><class>frmKoe</class><widget class="QWidget" name="frmKoe">
<property name="Tag" stdset="0"><string>1281</string></property>
<layout class="QVBoxLayout">
<item><widget class="QLabel" name="lblHinta"><property name="Tag" stdset="0"><string>9183</string></property></widget></item>
<item><widget class="QLineEdit" name="txtLuku"><property name="Tag" stdset="0"><string>1281,N,1.5,100</string></property></widget></item>
<item><widget class="QLineEdit" name="txtVapaa"><property name="Tag" stdset="0"><string>,0,100</string></property></widget></item>
<item><widget class="QTabWidget" name="tabSivut">
<widget class="QWidget" name="sivu1"><property name="Tag" stdset="0"><string>2142</string></property></widget>
<widget class="QWidget" name="sivu2"><property name="Tag" stdset="0"><string>2143</string></property>
<layout class="QVBoxLayout"><item><widget class="QLineEdit" name="txtPiilossa"><property name="Tag" stdset="0"><string>,n,0,</string></property></widget></item></layout>
</widget></widget></item>
<item><widget class="QTreeView" name="lvwRivit"><property name="Sarakkeet"><stringlist><string>9183</string></stringlist></property></widget></item>
<item><widget class="QPushButton" name="cmdLisaaRivi"><property name="Tag" stdset="0"><string>2144</string></property><property name="ToolTipText" stdset="0"><string>9179</string></property></widget></item>
<item><widget class="QPushButton" name="cmdMuuta"/></item>
</layout></widget></ui>)";

class frmKoe : public Lomake {
 public:
  frmKoe() : Lomake("frmKoe") {}
  Label lblHinta{*this, "lblHinta"};
  TextBox txtLuku{*this, "txtluku"};  // names compare without regard to case
  TextBox txtVapaa{*this, "txtVapaa"};
  TextBox txtPiilossa{*this, "txtPiilossa"};
  TabStrip tabSivut{*this, "tabSivut"};
  ListView lvwRivit{*this, "lvwRivit"};
  CommandButton cmdLisaaRivi{*this, "cmdLisaaRivi"};
  CommandButton cmdMuuta{*this, "cmdMuuta"};
};

/// A form of this test's own, opened without a screen, with the program's texts.
class Lomakekerros : public ::testing::Test {
 protected:
  Lomakekerros() {
    AlustaTekstit();
    AsetaRahayksikko("mk");
    AsetaTarkistuksenKello(Koekello);
    std::ofstream(kansio_ / "frmKoe.ui") << kKoelomake;
    lomake_ = std::make_unique<frmKoe>();
  }
  ~Lomakekerros() override {
    lomake_.reset();
    AsetaTarkistuksenKello(nullptr);
    AsetaRahayksikko("€");
    std::filesystem::remove_all(kansio_);
  }

  static std::filesystem::path TeeKansio() {
    auto kansio = std::filesystem::temp_directory_path() / ("lomakekoe-" + std::to_string(::getpid()));
    std::filesystem::create_directories(kansio);
    return kansio;
  }

  Ikkunaton& Ikkuna() { return ikkunattomat_.Ikkuna("frmKoe"); }

  Koeviestit viestit_;
  std::filesystem::path kansio_ = TeeKansio();
  Ikkunattomat ikkunattomat_{kansio_.string()};
  std::unique_ptr<frmKoe> lomake_;
};

TEST_F(Lomakekerros, OnlyAChangeByThePersonRaisesTheEvent) {
  int tapahtumia = 0;
  lomake_->txtLuku.KunMuuttuu([&] { ++tapahtumia; });
  lomake_->txtLuku.Teksti("5,00");
  EXPECT_EQ(tapahtumia, 0);
  EXPECT_FALSE(lomake_->txtLuku.Muuttunut());
  Ikkuna().KayttajaKirjoittaa("txtLuku", "6");
  EXPECT_EQ(tapahtumia, 1);
  EXPECT_TRUE(lomake_->txtLuku.Muuttunut());
}

TEST_F(Lomakekerros, AnUnchangedFieldIsNotParsed) {
  double arvo = 21.504;
  std::int32_t vuosi = 1974;
  lomake_->txtLuku.Luku(arvo, "0.00");
  EXPECT_TRUE(LueArvo(lomake_->txtLuku, arvo));
  EXPECT_EQ(arvo, 21.504);
  Ikkuna().KayttajaKirjoittaa("txtLuku", "1 021.5");
  EXPECT_TRUE(LueArvo(lomake_->txtLuku, arvo));
  EXPECT_EQ(arvo, 1021.5);
  Ikkuna().KayttajaKirjoittaa("txtLuku", "21,50");
  EXPECT_TRUE(LueArvo(lomake_->txtLuku, arvo));
  EXPECT_EQ(arvo, 21.504) << "typed back: as it was before it was read";
  Ikkuna().KayttajaKirjoittaa("txtLuku", "1 021.5");
  EXPECT_TRUE(LueArvo(lomake_->txtLuku, vuosi));
  EXPECT_EQ(vuosi, 1022);  // a half to the even one
  for (const char* eiLuku : {"", "x", "99999999999"}) {
    Ikkuna().KayttajaKirjoittaa("txtLuku", eiLuku);
    EXPECT_FALSE(LueArvo(lomake_->txtLuku, vuosi)) << eiLuku;
    EXPECT_EQ(vuosi, 1022);
  }
}

TEST_F(Lomakekerros, AFieldBeingTypedIsFilledWhenItIsLeft) {
  double arvo = 21.5;
  lomake_->txtLuku.KunMuuttuu([&] { lomake_->txtLuku.Luku(22, "0.00"); });
  lomake_->txtLuku.Luku(arvo, "0.00");
  Ikkuna().KayttajaKirjoittaa("txtLuku", "22");
  EXPECT_EQ(lomake_->txtLuku.Teksti(), "22");
  EXPECT_TRUE(LueArvo(lomake_->txtLuku, arvo));
  EXPECT_EQ(arvo, 22);
  Ikkuna().KayttajaPoistuu("txtLuku");
  EXPECT_EQ(lomake_->txtLuku.Teksti(), "22,00");
  EXPECT_FALSE(lomake_->txtLuku.Muuttunut());
}

TEST_F(Lomakekerros, AnErrorIsShownAndTheProgramGoesOn) {
  viestit_.AsetaPaneeli("ennen");
  lomake_->cmdMuuta.KunKlikataan([&] {
    viestit_.AsetaPaneeli("kesken");
    NostaVirhe("clsTila:LueDataluokka Method", "koe");
  });
  Ikkuna().KayttajaPainaa("cmdMuuta");
  ASSERT_EQ(viestit_.Naytetyt().size(), 1u);
  EXPECT_EQ(viestit_.Esiintymia(Teksti(9999)), 1);
  EXPECT_EQ(viestit_.Esiintymia("Syy: koe"), 1);
  EXPECT_EQ(viestit_.Naytetyt()[0].tarkenne, "clsTila:LueDataluokka Method\nkoe");
  EXPECT_EQ(viestit_.Naytetyt()[0].otsikko, Teksti(9100));
  EXPECT_EQ(viestit_.Paneeli(), "ennen");
  lomake_->cmdMuuta.KunKlikataan([] { throw std::runtime_error("levy on täynnä"); });
  Ikkuna().KayttajaPainaa("cmdMuuta");
  EXPECT_EQ(viestit_.Esiintymia("levy on täynnä"), 1);
}

TEST_F(Lomakekerros, TranslationPutsTextsByTheTags) {
  EXPECT_EQ(lomake_->Otsikko(), Teksti(1281));
  EXPECT_EQ(lomake_->lblHinta.Otsikko(), "Investointi (mk)");
  EXPECT_EQ(lomake_->txtLuku.Kohde().Vihje(), Teksti(1281));
  EXPECT_EQ(lomake_->txtVapaa.Kohde().Vihje(), "");
  EXPECT_EQ(lomake_->tabSivut.Kohde().Osat()[1].otsikko, Teksti(2143));
  EXPECT_EQ(lomake_->lvwRivit.Kohde().Osat()[0].otsikko, "Investointi (mk)");
  EXPECT_EQ(lomake_->cmdLisaaRivi.Kohde().Teksti(), Teksti(2144));
  EXPECT_EQ(lomake_->cmdLisaaRivi.Kohde().Vihje(), "Myynti (mk/a)");
  KorvaaOtsikoissa(*lomake_, "mk", "€");
  KorvaaSarakkeissa(lomake_->lvwRivit, "mk", "t€");
  EXPECT_EQ(lomake_->lblHinta.Otsikko(), "Investointi (€)");
  EXPECT_EQ(lomake_->lvwRivit.Kohde().Osat()[0].otsikko, "Investointi (t€)");
}

TEST_F(Lomakekerros, FieldChecksByCondition) {
  struct Tapaus {
    const char* luku;
    const char* piilossa;
    const char* viesti;  // part of the message, nullptr when all is well
    const char* kohdistus;
    bool valittu;
  };
  for (const Tapaus& t :
       {Tapaus{"1 0,5", "0", nullptr, "", false}, Tapaus{"1.5", "1 000,5", nullptr, "", false},
        Tapaus{"", "0", "", "txtLuku", true}, Tapaus{"1,49", "0", " vähintään 1,5, enintään 100.", "txtLuku", false},
        Tapaus{"100,01", "0", " vähintään 1,5, enintään 100.", "txtLuku", false},
        Tapaus{"50", "-1", " vähintään 0.", "txtPiilossa", false}}) {
    SCOPED_TRACE(std::string(t.luku) + " / " + t.piilossa);
    frmKoe lomake;
    nyt += 5000;
    viestit_.Tyhjenna();
    lomake.txtLuku.Teksti(t.luku);
    lomake.txtPiilossa.Teksti(t.piilossa);
    lomake.txtVapaa.Teksti("mitä vain");
    EXPECT_EQ(TarkistaLukukentat(lomake), t.viesti == nullptr);
    EXPECT_EQ(viestit_.Naytetyt().size(), t.viesti ? 1u : 0u);
    if (t.viesti) {
      EXPECT_TRUE(viestit_.Naytetyt()[0].teksti.ends_with(t.viesti)) << viestit_.Naytetyt()[0].teksti;
    }
    EXPECT_EQ(Ikkuna().Kohdistettu(), t.kohdistus);
    EXPECT_EQ(Ikkuna().TekstiValittu(), t.valittu);
  }
}

TEST_F(Lomakekerros, ADisabledOrHiddenFieldIsNotChecked) {
  lomake_->txtLuku.Teksti("x");
  lomake_->txtLuku.Kaytossa(false);
  lomake_->txtPiilossa.Teksti("x");
  lomake_->txtPiilossa.Nakyva(false);
  EXPECT_TRUE(TarkistaLukukentat(*lomake_));
}

TEST_F(Lomakekerros, CheckingShowsOneMessageASecond) {
  lomake_->txtLuku.Teksti("x");
  const auto naytti = [&](std::uint32_t aika) {
    nyt = aika;
    const auto ennen = viestit_.Naytetyt().size();
    EXPECT_FALSE(TarkistaLukukentat(*lomake_));
    return viestit_.Naytetyt().size() > ennen;
  };
  EXPECT_TRUE(naytti(50000));
  lomake_->txtVapaa.Kohdista();
  EXPECT_FALSE(naytti(51000));
  EXPECT_EQ(Ikkuna().Kohdistettu(), "txtLuku");
  EXPECT_TRUE(naytti(51001));
  EXPECT_TRUE(naytti(3));  // the counter has wrapped
}

}  // namespace
