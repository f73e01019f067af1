// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Ohjeluettelo.h"

#include <gtest/gtest.h>

TEST(Ohjeluettelo, AiheLoytyyJaTuntematonAntaaSisallyksen) {
  const Ohjeluettelo luettelo(
      "0\tsisallys.html\tSisällys\t1\n"
      "rikkinäinen rivi\n"
      "x\ttaso.html\tTaso ei ole luku\t3\n"
      "2\trakenteet.html#kerrokset\tRakennekerrokset\t31 33\n");
  ASSERT_EQ(luettelo.Rivit().size(), 2u);
  EXPECT_EQ(luettelo.Aihe(33)->sivu, "rakenteet.html#kerrokset");
  EXPECT_EQ(luettelo.Aihe(999)->sivu, "sisallys.html");
  EXPECT_EQ(Ohjeluettelo("").Aihe(1), nullptr);
}
