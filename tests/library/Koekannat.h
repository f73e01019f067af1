// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <gtest/gtest.h>

#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Lahdekoodi.h"

/// Structure databases made by the shipped schema in a folder of the test's own.
class Koekannat : public testing::Test {
 protected:
  std::string Polku(const std::string& nimi) const { return (hakemisto_ / nimi).string(); }

  std::string TeeKanta(const std::string& nimi, const std::string& rivit = {}) const {
    Tietokanta kanta(Polku(nimi), Tietokanta::Tapa::Uusi);
    kanta.Aja("PRAGMA synchronous = OFF");
    kanta.Aja(LueTiedosto(Lahdekoodi("data/skeemat/rakennekirjasto.sql")) + rivit);
    return Polku(nimi);
  }

 private:
  Koehakemisto hakemisto_;
};
