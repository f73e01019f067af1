// SPDX-License-Identifier: GPL-3.0-or-later
// The program's link and the server as real processes over a real socket. Every wait has its end.
#include <gtest/gtest.h>
#include <signal.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>

#include "library/Kirjastoluettelo.h"
#include "tests/palvelin/Koekirjasto.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Komento.h"
#include "ui/qt/Kirjastoyhteys.h"

namespace {

bool Odota(const std::function<bool()>& ehto, int aika_ms = 20000) {
  QElapsedTimer kello;
  for (kello.start(); !ehto() && kello.elapsed() < aika_ms;) QApplication::processEvents(QEventLoop::AllEvents, 20);
  return ehto();
}

/// Dead ones that nobody has waited for don't count.
bool Elaa(qint64 prosessi) {
  QFile tila(QString("/proc/%1/stat").arg(prosessi));
  return prosessi > 0 && tila.open(QIODevice::ReadOnly) && !tila.readAll().contains(") Z ");
}

class Kirjastolinkki : public testing::Test {
 protected:
  void TearDown() override {
    const qint64 palvelin = Yhteys().Prosessi();
    yhteydet_.clear();
    EXPECT_TRUE(Odota([&] { return !Elaa(palvelin); })) << "the server has to end with its last client";
  }

  /// The person at the server follows the script.
  void Kasikirjoitus(const std::string& teko) {
    qputenv("KIRJASTOKOE", teko.c_str());
    ohjelma_ = QApplication::applicationFilePath().toStdString();
  }
  Kirjastoyhteys& Yhteys(std::size_t i = 0) {
    while (yhteydet_.size() <= i)
      yhteydet_.push_back(std::make_unique<Kirjastoyhteys>(Kirjastoyhteystiedot{
          koe_.Koti(), ohjelma_, [this] { return koe_.Oma(); }, [this] { return koe_.Vakio(); }, aikaraja_}));
    return *yhteydet_[i];
  }
  Rakennekirjastotapahtumat Kuuntelija() {
    return {[this](const Rakenneratkaisu& r) { valitut_.push_back(r.Nimi), ratkaisu_ = r; },
            [this](const Materiaali& m) { valitut_.push_back(m.Nimi); }, [this] { ++aikarajoja_; },
            [this] { ++sulkemisia_; }};
  }
  std::string EnsimmainenIkkuna() {
    for (const auto& rakenne : LueRakenteet(koe_.Vakio(), Kirjasto::Vakio))
      if (rakenne.Ratkaisu.Rakennetyyppi == "Ikkuna") return rakenne.Ratkaisu.Nimi;
    return {};
  }

  Koekirjasto koe_;
  Koeviestit viestit_;
  std::string ohjelma_ = Kirjastopalvelinohjelma();
  std::chrono::milliseconds aikaraja_{15000};
  std::vector<std::unique_ptr<Kirjastoyhteys>> yhteydet_;
  std::vector<std::string> valitut_;
  Rakenneratkaisu ratkaisu_;
  int aikarajoja_ = 0;
  int sulkemisia_ = 0;
};

TEST_F(Kirjastolinkki, PickedStructureArrivesWholeAndThenTheDialogIsClosed) {
  Kasikirjoitus("valitse");
  const auto pyynto = Yhteys().ValitseRakenne("Ikkuna", Kuuntelija());
  EXPECT_TRUE(valitut_.empty()) << "nothing may be waited for";
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 0; }));
  EXPECT_EQ(valitut_, std::vector<std::string>{EnsimmainenIkkuna()});
  EXPECT_TRUE(ratkaisu_.U_arvoAnnettu);
  EXPECT_GT(ratkaisu_.Aurinkoenergianlapaisy, 0);

  const auto toinen = Yhteys().ValitseMateriaali("Asfaltti", Kuuntelija());
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 1; }));
  EXPECT_EQ(valitut_.back(), "Asfaltti");
  EXPECT_EQ(aikarajoja_, 0);
  EXPECT_TRUE(viestit_.Naytetyt().empty());
}

TEST_F(Kirjastolinkki, ServerThatDiesInTheMiddleOfAPickIsStartedAnewAndTheDialogOpensAgain) {
  Kasikirjoitus("kuole:" + koe_.Tiedosto("kuollut"));
  const auto pyynto = Yhteys().ValitseRakenne("Ikkuna", Kuuntelija());
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 0; }));
  EXPECT_EQ(valitut_.size(), 1U);
  EXPECT_EQ(ratkaisu_.Rakennetyyppi, "Ikkuna");
  EXPECT_EQ(ratkaisu_.VoimassaolevaU_arvo(), 1) << "the condition that the person had set stands in the new window";
  EXPECT_EQ(aikarajoja_, 0);
}

TEST_F(Kirjastolinkki, ServerThatKeepsDyingIsGivenUpWithTheMessage) {
  Kasikirjoitus("kuole");
  const auto pyynto = Yhteys().ValitseRakenne({}, Kuuntelija());
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 0; }));
  EXPECT_EQ(aikarajoja_, 1);
  EXPECT_EQ(viestit_.Esiintymia("Rakennekirjasto ei vastannut ajoissa"), 1);
  EXPECT_TRUE(valitut_.empty());
}

TEST_F(Kirjastolinkki, MissingServerProgramIsTold) {
  ohjelma_ = "/ei/ole/RakKirjSrv";
  const auto pyynto = Yhteys().ValitseRakenne({}, Kuuntelija());
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 0; }, 5000)) << "at once, not when the time is up";
  EXPECT_EQ(aikarajoja_, 1);
  EXPECT_EQ(viestit_.Esiintymia("ei voi käynnistää"), 1);
  EXPECT_EQ(viestit_.Esiintymia(ohjelma_), 1);
}

TEST_F(Kirjastolinkki, ServerThatHangsIsGivenUpAndServesAgainWhenItGoesOn) {
  Kasikirjoitus("jumita");
  aikaraja_ = std::chrono::milliseconds(4000);
  const auto pyynto = Yhteys().ValitseRakenne({}, Kuuntelija());
  ASSERT_TRUE(Odota([&] { return aikarajoja_ > 0; }));
  const qint64 jumissa = std::stoll(LueTiedosto(koe_.Tiedosto("jumissa")));
  ASSERT_GT(jumissa, 0);
  kill(static_cast<pid_t>(jumissa), SIGCONT);
  const auto toinen = Yhteys().ValitseRakenne({}, Kuuntelija());
  EXPECT_TRUE(Odota([&] { return Yhteys().Prosessi() == jumissa; }));
}

TEST_F(Kirjastolinkki, TwoProgramsShareOneServerAndItOutlivesTheFirst) {
  Yhteys(0).NaytaRakennekirjasto();
  Yhteys(1).NaytaMateriaalikirjasto();
  ASSERT_TRUE(Odota([&] { return Yhteys(0).Prosessi() != 0 && Yhteys(1).Prosessi() != 0; }));
  EXPECT_EQ(Yhteys(0).Prosessi(), Yhteys(1).Prosessi());
  yhteydet_.erase(yhteydet_.begin());
  Odota([] { return false; }, 1000);
  EXPECT_TRUE(Elaa(Yhteys().Prosessi()));
  const auto pyynto = Yhteys().ValitseRakenne({}, Kuuntelija());
  Odota([] { return false; }, 500);
  EXPECT_EQ(sulkemisia_ + aikarajoja_, 0);
}

TEST_F(Kirjastolinkki, DroppedRequestHearsNothingAndALaterOneEndsTheFormer) {
  Kasikirjoitus("valitse");
  Yhteys().ValitseRakenne({}, Kuuntelija()).reset();
  Odota([] { return false; }, 1500);
  EXPECT_EQ(valitut_.size() + static_cast<std::size_t>(sulkemisia_), 0U);

  const auto ensin = Yhteys().ValitseRakenne({}, Kuuntelija());
  const auto sitten = Yhteys().ValitseMateriaali({}, Kuuntelija());
  EXPECT_EQ(sulkemisia_, 1);
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 1; }));
  EXPECT_EQ(valitut_.size(), 1U);
}

TEST_F(Kirjastolinkki, EventsWaitForARunningCommand) {
  Kasikirjoitus("valitse");
  const auto pyynto = Yhteys().ValitseRakenne("Ovi", Kuuntelija());
  SuoritaKomento([&] {
    Odota([&] { return sulkemisia_ > 0; }, 3000);
    EXPECT_TRUE(valitut_.empty());
  });
  ASSERT_TRUE(Odota([&] { return sulkemisia_ > 0; }));
  EXPECT_EQ(valitut_.size(), 1U);
}

TEST_F(Kirjastolinkki, ServerEndsWhenItsProgramIsKilled) {
  QProcess asiakas;
  asiakas.start(QApplication::applicationFilePath(), {"--asiakas", QString::fromStdString(koe_.Koti())});
  ASSERT_TRUE(Odota([&] { return asiakas.canReadLine(); }));
  const qint64 palvelin = asiakas.readLine().trimmed().toLongLong();
  EXPECT_TRUE(Elaa(palvelin));
  asiakas.kill();
  asiakas.waitForFinished(5000);
  EXPECT_TRUE(Odota([&] { return !Elaa(palvelin); }));
}

}  // namespace
