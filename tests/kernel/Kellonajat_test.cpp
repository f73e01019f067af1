// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Kellonajat.h"

#include <gtest/gtest.h>

TEST(Kellonajat, ManyWaysOfWritingAreOneTime) {
  for (const char* teksti : {"7:30", "07:30", "7.30", "0730", "730", " 07:30 "})
    EXPECT_EQ(LueKellonaika(teksti), Kellonaika{450}) << teksti;
  for (const char* teksti : {"0", "00", "0000", "00:00", "24", "24:00", "2400"})
    EXPECT_EQ(LueKellonaika(teksti), Kellonaika{0}) << teksti;
  EXPECT_EQ(LueKellonaika("23"), Kellonaika{23 * 60});
  for (const char* teksti :
       {"", " ", "7:3", "7:", ":30", "7:60", "25", "24:01", "12345", "7:30:00", "-1", "7,5", "klo 7"})
    EXPECT_FALSE(LueKellonaika(teksti)) << teksti;
}

TEST(Kellonajat, WhatIsShownIsReadBack) {
  for (int minuutti = 0; minuutti < 1440; ++minuutti)
    ASSERT_EQ(LueKellonaika(KellonaikaTekstina({minuutti})), Kellonaika{minuutti}) << minuutti;
  EXPECT_EQ(KellonaikaTekstina({9 * 60 + 5}), "09:05");
}
