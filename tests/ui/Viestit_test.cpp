// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Viestit.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "ui/KerataanViestit.h"
#include "ui/Odotus.h"

namespace {

class ViestitTesti : public testing::Test {
 protected:
  ViestitTesti() { AsetaViestit(&viestit_); }
  ~ViestitTesti() override { AsetaViestit(nullptr); }
  KerataanViestit viestit_;
};

constexpr Napit kKaikkiNapit[] = {Napit::Ok, Napit::KyllaEi, Napit::KyllaEiPeruuta};

TEST_F(ViestitTesti, VastauksetAnnetaanJarjestyksessaJaSittenOletus) {
  const Viesti kysymys{"Tallennetaanko?", "Kohde", Vakavuus::Kysymys, Napit::KyllaEiPeruuta, Vastaus::Peruuta};
  viestit_.AsetaSeuraavaVastaus(Vastaus::Kylla);
  viestit_.AsetaSeuraavaVastaus(Vastaus::Ei);
  EXPECT_EQ(ViestitNyt().Nayta(kysymys), Vastaus::Kylla);
  EXPECT_EQ(ViestitNyt().Nayta(kysymys), Vastaus::Ei);
  EXPECT_EQ(ViestitNyt().Nayta(kysymys), Vastaus::Peruuta);
  EXPECT_EQ(viestit_.Esiintymia("Tallennetaan"), 3);
}

TEST_F(ViestitTesti, KaikistaViesteistaSaadaanNiidenOmaPainike) {
  for (const Napit napit : kKaikkiNapit) {
    Viesti viesti{"?"};
    viesti.napit = napit;
    EXPECT_TRUE(OnVastaus(napit, viestit_.Nayta(viesti)));
  }
}

TEST_F(ViestitTesti, SopimatonVastausOnKokeenVirhe) {
  viestit_.AsetaSeuraavaVastaus(Vastaus::Kylla);
  EXPECT_THROW(Ilmoita("Valmis"), std::logic_error);
}

TEST_F(ViestitTesti, TekstinJaTiedostonKysymysPeruuntuuIlmanVastausta) {
  EXPECT_FALSE(viestit_.KysyTeksti("Nimi", "Uusi", "ehdotus"));
  EXPECT_FALSE(viestit_.KysyAvattavaTiedosto("Avaa", "*.lvt"));
  viestit_.AsetaSeuraavaTeksti("Talo");
  viestit_.AsetaSeuraavaTiedosto("/tmp/Kohde Åbo.lvt");
  EXPECT_EQ(viestit_.KysyTeksti("Nimi", "Uusi", ""), "Talo");
  EXPECT_EQ(viestit_.KysyTallennettavaTiedosto("Tallenna", "*.lvt"), "/tmp/Kohde Åbo.lvt");
  EXPECT_EQ(viestit_.VastauksiaJaljella(), 0u);
}

TEST_F(ViestitTesti, OdotusPalauttaaOsoittimenJaPaneelinSisakkainJaVirheenTullessa) {
  viestit_.AsetaPaneeli("Valmis!");
  try {
    const Odotus ulompi("Lasketaan");
    {
      Odotus sisempi;
      sisempi.Teksti("Tila 1");
      EXPECT_EQ(viestit_.Paneeli(), "Tila 1");
    }
    EXPECT_EQ(viestit_.Paneeli(), "Lasketaan");
    EXPECT_TRUE(viestit_.OdotusosoitinPaalla());
    throw std::runtime_error("kesken");
  } catch (const std::runtime_error&) {
  }
  EXPECT_FALSE(viestit_.OdotusosoitinPaalla());
  EXPECT_EQ(viestit_.Paneeli(), "Valmis!");
  EXPECT_EQ(viestit_.Piirtoja(), 2);
}

}  // namespace
