// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Hakuvalinta.h"

#include <gtest/gtest.h>

namespace {

using Rivinumerot = std::vector<int>;

TEST(Hakuvalinta, BestHitsFirst) {
  const Taulukko rivit{{"Hoitolaitos", "koulukoti;hoivakoti"}, {"Ammatillinen oppilaitos", "ammattikoulu"},
                       {"Oppilaitos", "koulu;lukio"},          {"Paloasema", ""},
                       {"Kurssikeskus", "kylän koulu"},        {"Muu"}};
  EXPECT_EQ(EtsiValinnat(rivit, "koulu"), (Rivinumerot{2, 0, 4, 1})) << "the word, its beginning, a later word, inside";
  EXPECT_EQ(EtsiValinnat(rivit, " KOULU "), EtsiValinnat(rivit, "koulu"));
  EXPECT_EQ(EtsiValinnat(rivit, "oppilaitos"), (Rivinumerot{2, 1})) << "names are searched like words";
  EXPECT_EQ(EtsiValinnat(rivit, "lukio oppi"), (Rivinumerot{2})) << "several words in any order";
  EXPECT_EQ(EtsiValinnat(rivit, "").size(), rivit.size());
  EXPECT_TRUE(EtsiValinnat(rivit, "koulu;lukio").empty()) << "the divider isn't text";
}

}  // namespace
