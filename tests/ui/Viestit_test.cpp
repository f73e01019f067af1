// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Viestit.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/tuki/Koeviestit.h"
#include "ui/Laskentakohde.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestikooste.h"

namespace {

TEST(Viestit, WaitingRestoresPointerAndPanelNestedAndAfterErrors) {
  Koeviestit viestit;
  viestit.AsetaPaneeli("Valmis!");
  try {
    const Odotus ulompi("Lasketaan");
    {
      Odotus sisempi;
      sisempi.Teksti("Tila 1");
      EXPECT_EQ(viestit.Paneeli(), "Tila 1");
    }
    EXPECT_EQ(viestit.Paneeli(), "Lasketaan");
    EXPECT_TRUE(viestit.OdotusosoitinPaalla());
    throw std::runtime_error("kesken");
  } catch (const std::runtime_error&) {
  }
  EXPECT_FALSE(viestit.OdotusosoitinPaalla());
  EXPECT_EQ(viestit.Paneeli(), "Valmis!");
  EXPECT_EQ(viestit.Piirtoja(), 2);
}

TEST(Viestit, SamanlaisetKootaanJokaTietaaKohteensa) {
  AlustaTekstit();
  Koeviestit viestit;
  const std::string varasto = "Varasto", alapohja = "Alapohja", tyhja;
  const Laskentakohde tila(varasto), nimeton(tyhja);
  Ilmoita("Liian kylmä");
  {
    const Laskentakohde rakenne(alapohja, Laskentakohde::Tapa::Omistajineen);
    Ilmoita("Suuri U-arvo");
  }
  for (int i = 1; i <= 7; ++i) {
    const std::string nimi = "TK0" + std::to_string(i);
    const Laskentakohde kone(nimi);
    Ilmoita("Vajaa");
    if (i == 2) Ilmoita("Vajaa");
  }
  EXPECT_EQ(KoosteTekstina(viestit.Naytetyt()),
            "Liian kylmä\n\nKoskee: Varasto\n"
            "Suuri U-arvo\n\nKoskee: Alapohja (Varasto)\n"
            "Vajaa\n\nKoskee: TK01, TK02, TK03, TK04, TK05 ja 2 muuta\n\n(Sama ilmoitus tuli 8 kertaa.)\n");
}

}  // namespace
