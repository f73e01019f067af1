// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Kokoelma.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tuki/Koepuu.h"

using testing::ElementsAre;

namespace {

std::vector<std::string> Avaimet(const koe::Tilat& tilat) {
  std::vector<std::string> avaimet;
  for (const koe::Tila& tila : tilat) avaimet.push_back(tila.sKey.Teksti());
  return avaimet;
}

}  // namespace

TEST(Kokoelma, PlacesBeginAtOneAndKeysIgnoreLetterCase) {
  koe::Tilat tilat;
  koe::Tila& a = tilat.Add("a");
  koe::Tila& o = tilat.Add("Ö");
  EXPECT_EQ(&tilat.Item(1), &a);
  EXPECT_EQ(&tilat.Item("ö"), &o);
  EXPECT_THROW(tilat.Item(0), std::out_of_range);
  EXPECT_THROW(tilat.Item(3), std::out_of_range);
  EXPECT_THROW(tilat.Item("b"), std::out_of_range);
  EXPECT_THROW(tilat.Add("A"), std::invalid_argument);
  EXPECT_THROW(tilat.Remove("b"), std::out_of_range);
}

TEST(Kokoelma, ManyMayBeWithoutAKey) {
  koe::Tilat tilat;
  EXPECT_TRUE(tilat.Add().sKey.Tyhja());
  tilat.Add("");
  EXPECT_EQ(tilat.Count(), 2);
  EXPECT_EQ(tilat.Etsi(""), nullptr);
}

TEST(Kokoelma, OrderStaysInRemovalAndAddition) {
  koe::Tilat tilat;
  for (const char* avain : {"a", "b", "c"}) tilat.Add(avain);
  tilat.LisaaJalkeen("a", "a2");
  tilat.LisaaJalkeen("ei ole", "loppu");
  tilat.Remove("B");
  tilat.Remove(1);
  EXPECT_THAT(Avaimet(tilat), ElementsAre("a2", "c", "loppu"));
}

// Beyond a few items the keys are found through an index: it must follow every change.
TEST(Kokoelma, InALargeCollectionKeysAreFoundAfterChanges) {
  koe::Tilat tilat;
  for (int i = 0; i < 100; ++i) tilat.Add("avain" + std::to_string(i));
  for (int i = 0; i < 100; i += 2) tilat.Remove("AVAIN" + std::to_string(i));
  tilat.Add("avain0");
  for (int i = 0; i < 100; ++i)
    EXPECT_EQ(tilat.Etsi("avain" + std::to_string(i)) != nullptr, i % 2 == 1 || i == 0) << i;
  EXPECT_THROW(tilat.Add("avain99"), std::invalid_argument);
  const koe::Tilat kopio = tilat;
  EXPECT_EQ(&kopio.Item("avain99"), &kopio.Item(50));
  EXPECT_NE(&kopio.Item("avain99"), &tilat.Item("avain99"));
  tilat.Tyhjenna();
  EXPECT_EQ(tilat.Etsi("avain99"), nullptr);
}
