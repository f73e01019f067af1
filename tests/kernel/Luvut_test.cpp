// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Luvut.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/tuki/Arpa.h"

namespace {

TEST(Luvut, FormatsInFinnish) {
  struct Rivi {
    double arvo;
    const char* kuvio;
    const char* teksti;
  };
  const Rivi rivit[] = {
      {2.675, "0.00", "2,68"},  // binary value lies below the half
      {0.1 + 0.2, "0.00#", "0,30"},
      {-2.5, "0", "-3"},
      {0.49999, "0", "0"},
      {-0.001, "0.00", "0,00"},
      {-0.005, "0.00", "-0,01"},
      {0, "### ##0.00", "0,00"},
      {999.995, "### ##0.00", "1 000,00"},  // the carry makes a new group
      {-1234567.5, "# ### ##0", "-1 234 568"},
      {123456, "##0.00", "123456,00"},  // no blank in the pattern, no groups
      {0.256, "0.00#", "0,256"},
      {0.2504, "0.00#", "0,25"},
      {1e21, "### ##0", "1 000 000 000 000 000 000 000"},
      {123456789012345678.0, "0", "123456789012346000"},  // 15 significant digits
      {5e-324, "0.00000000", "0,00000000"},
      {7, "00", "07"},
  };
  for (const auto& r : rivit) EXPECT_EQ(Muotoile(r.arvo, r.kuvio), r.teksti) << r.arvo << " " << r.kuvio;
  EXPECT_EQ(Muotoile(std::numeric_limits<double>::infinity(), "0.00"), "---");
  EXPECT_EQ(Muotoile(std::nan(""), "0.00"), "---");
}

TEST(Luvut, ReadsATypedAndAPastedNumber) {
  const std::pair<const char*, double> rivit[] = {
      {"1 000,5", 1000.5},
      {"1\u202F234\u2009567.25", 1234567.25},
      {"  -12,5  ", -12.5},
      {"\u221212,5", -12.5},
      {"- 3", -3},
      {",5", 0.5},
      {"5,", 5},
      {"21.4\r\n", 21.4},
      {"0,1000000000000000055511151231257827", 0.1},
  };
  for (const auto& [teksti, arvo] : rivit) EXPECT_EQ(LueLuku(teksti), arvo) << teksti;
  EXPECT_FALSE(std::signbit(LueLuku("-0").value()));
}

TEST(Luvut, RefusesWhatIsNoNumber) {
  const std::string liian_suuri(400, '9');
  for (std::string_view teksti :
       {"", " ", "-", ",", "--5", "5-", "1e5", "1.000,5", "1,2,3", "0x10", "nan", "inf", "12 kWh", "1\t2", "1\n2",
        "\u2013"
        "5",
        "\xFF", "1\xE2", liian_suuri.c_str()}) {
    EXPECT_FALSE(LueLuku(teksti)) << teksti;
  }
}

TEST(Luvut, AnEmptyFieldIsZeroOnlyWhenAsked) {
  EXPECT_EQ(LueLukuTaiNolla(""), 0.0);
  EXPECT_EQ(LueLukuTaiNolla(" \u00A0"), 0.0);
  EXPECT_EQ(LueLukuTaiNolla("4,5"), 4.5);
  EXPECT_FALSE(LueLukuTaiNolla("x"));
}

TEST(Luvut, TheShortestFormReadsBackTheSame) {
  EXPECT_EQ(LyhinMuoto(0.1), "0.1");
  EXPECT_EQ(LyhinMuoto(-0.0), "0");
  EXPECT_EQ(LyhinMuoto(1e-7), "0.0000001");
  Arpa arpa;
  std::uniform_real_distribution<double> eksponentti(-300, 300);
  for (int i = 0; i < 2000; ++i) {
    const double arvo = std::pow(10.0, eksponentti(arpa)) * (i % 2 == 0 ? 1 : -1);
    EXPECT_EQ(LueLuku(LyhinMuoto(arvo)), arvo);
  }
}

TEST(Luvut, AShownNumberReadsBackWithinHalfItsLastDecimal) {
  Arpa arpa;
  std::uniform_real_distribution<double> jakauma(-1e7, 1e7);
  for (int i = 0; i < 2000; ++i) {
    const double arvo = jakauma(arpa);
    EXPECT_NEAR(LueLuku(Muotoile(arvo, "### ##0.00")).value(), arvo, 0.005000001);
  }
}

TEST(Luvut, RoundsToAnIntegerHalfToEven) {
  EXPECT_EQ(PyoristaKokonaisluvuksi(0.5), 0);
  EXPECT_EQ(PyoristaKokonaisluvuksi(1.5), 2);
  EXPECT_EQ(PyoristaKokonaisluvuksi(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_THROW(PyoristaKokonaisluvuksi(2147483647.5), std::out_of_range);
  EXPECT_THROW(PyoristaKokonaisluvuksi(std::nan("")), std::out_of_range);
}

TEST(Luvut, RoundsToDecimalsHalfToEven) {
  EXPECT_EQ(PyoristaParilliseen(99.65, 1), 99.6);
  EXPECT_EQ(PyoristaParilliseen(99.6500001, 1), 99.7);
  EXPECT_EQ(PyoristaParilliseen(33.3 + 33.3 + 33.4, 1), 100.0);
  EXPECT_EQ(PyoristaParilliseen(-2.5, 0), -2);
  EXPECT_EQ(PyoristaParilliseen(1e300, 2), 1e300);
}

}  // namespace
