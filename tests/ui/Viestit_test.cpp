// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Viestit.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/tuki/Koeviestit.h"
#include "ui/Odotus.h"

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

}  // namespace
