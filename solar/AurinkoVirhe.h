// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

/// Every failure of the solar calculator. what() is a Finnish sentence in UTF-8 for the person at the screen;
/// a failure in a file begins with the file's path and, where there is one, the line.
class AurinkoVirhe : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
