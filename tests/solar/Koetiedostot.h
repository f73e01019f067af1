// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "solar/AurinkoVirhe.h"
#include "solar/Aurinkotaulukot.h"

/// Gives each test a folder of its own (with the letters a user's folder has), and the calculator nothing remembered.
class Koetiedostot : public testing::Test {
 protected:
  Koetiedostot() {
    const auto* testi = testing::UnitTest::GetInstance()->current_test_info();
    kansio_ = std::filesystem::path(testing::TempDir()) /
              (std::string("Työpöytä Åbo ") + testi->test_suite_name() + testi->name());
    std::filesystem::create_directories(kansio_);
  }
  ~Koetiedostot() override {
    TyhjennaAurinkotaulukot();
    std::filesystem::remove_all(kansio_);
  }

  std::string Polku(const std::string& nimi) const { return (kansio_ / nimi).string(); }

  std::string Kirjoita(const std::string& nimi, const std::string& sisalto) const {
    std::ofstream(Polku(nimi), std::ios::binary) << sisalto;
    return Polku(nimi);
  }

 private:
  std::filesystem::path kansio_;
};

/// The message of the AurinkoVirhe that f throws; empty if it throws none.
template <class F>
std::string Virheteksti(F f) {
  try {
    f();
  } catch (const AurinkoVirhe& virhe) {
    return virhe.what();
  }
  return {};
}

/// Monthly radiation of the building code D5 2012, zone I, MJ/m²: month, temperature, H, S, E, W, N.
inline const std::string kSaaVyohyke1 =
    "kk,T,H,S,E,W,N\n"
    "1,-3.97,22.32,46.44,13.68,13.68,22.32\n"
    "2,-4.50,80.64,149.04,56.16,56.16,62.28\n"
    "3,-2.58,231.48,322.20,174.60,157.32,145.08\n"
    "4,4.50,431.64,386.28,287.64,290.16,158.04\n"
    "5,10.76,595.80,417.60,406.08,376.20,208.08\n"
    "6,14.23,606.96,365.76,394.56,400.32,254.16\n"
    "7,17.30,651.24,415.80,427.68,441.72,238.68\n"
    "8,16.05,456.12,361.44,330.48,283.68,180.00\n"
    "9,10.53,295.20,361.80,203.40,213.48,118.44\n"
    "10,6.20,94.32,133.20,63.00,67.68,64.44\n"
    "11,0.50,29.16,60.48,18.36,18.36,25.92\n"
    "12,-2.19,15.84,42.48,9.36,10.44,15.12\n";

/// Factors of EN 832 at 55 and 65 degrees north: latitude, angle, S, E/W, N.
inline const std::string kFh =
    "leveysaste,kulma,etelä,itä/länsi,pohjoinen\n"
    "55,0,1,1,1\n55,10,0.94,0.92,0.99\n55,20,0.68,0.75,0.95\n55,30,0.49,0.62,0.92\n55,40,0.40,0.56,0.89\n"
    "65,0,1,1,1\n65,10,0.86,0.89,0.97\n65,20,0.58,0.68,0.93\n65,30,0.41,0.54,0.89\n65,40,0.29,0.49,0.85\n";
inline const std::string kFo =
    "leveysaste,kulma,etelä,itä/länsi,pohjoinen\n"
    "55,0,1,1,1\n55,30,0.93,0.91,0.91\n55,45,0.80,0.79,0.80\n55,60,0.60,0.61,0.65\n"
    "65,0,1,1,1\n65,30,0.95,0.92,0.90\n65,45,0.85,0.81,0.80\n65,60,0.66,0.65,0.66\n";
inline const std::string kFf =
    "leveysaste,kulma,etelä,itä/länsi,pohjoinen\n"
    "55,0,1,1,1\n55,30,0.94,0.91,0.99\n55,45,0.86,0.83,0.99\n55,60,0.74,0.75,0.99\n"
    "65,0,1,1,1\n65,30,0.94,0.90,0.98\n65,45,0.85,0.82,0.98\n65,60,0.73,0.73,0.98\n";
