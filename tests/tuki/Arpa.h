// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

/// Generator of a random test. Its seed is new in each run; a failing test tells it, and LUMIVIRTA_SIEMEN in the
/// environment gives it again.
class Arpa : public std::mt19937 {
 public:
  explicit Arpa(unsigned siemen = Siemen())
      : std::mt19937(siemen), jalki_(__FILE__, __LINE__, "again with LUMIVIRTA_SIEMEN=" + std::to_string(siemen)) {}

  /// Even between the ends.
  double Luku(double alku, double loppu) { return std::uniform_real_distribution(alku, loppu)(*this); }
  int Kokonaisluku(int alku, int loppu) { return std::uniform_int_distribution(alku, loppu)(*this); }

 private:
  static unsigned Siemen() {
    const char* annettu = std::getenv("LUMIVIRTA_SIEMEN");
    return annettu ? static_cast<unsigned>(std::stoul(annettu)) : std::random_device{}();
  }

  testing::ScopedTrace jalki_;
};
