// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsIVKoneet.h"

#include <gtest/gtest.h>

TEST(clsIVKoneet, IlmavirratSummataanKoneistaJoissaOnSePuhallin) {
  clsIVKoneet koneet;
  EXPECT_EQ(koneet.Tuloilmavirtojen11Summa(), 0);
  double virta = 1;
  for (const auto periaate :
       {clsIVKone::Tuloilmakone, clsIVKone::TuloilmakonePlusLTO, clsIVKone::Poistoilmakone, clsIVKone::TuloPoisto}) {
    clsIVKone& kone = koneet.Add();
    kone.IVPeriaateID = periaate;
    kone.TuloIlmavirta11Teho = virta;
    kone.PoistoIlmavirta11Teho = 10 * virta;
    virta *= 2;
  }
  EXPECT_EQ(koneet.Tuloilmavirtojen11Summa(), 1 + 2 + 8);
  EXPECT_EQ(koneet.Poistoilmavirtojen11Summa(), 10 * (2 + 4 + 8));
}
