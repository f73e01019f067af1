// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog script that fails is a failure of the test that gave it; the other tests of the program run on.
#include <gtest/gtest.h>

#include "ui/Ikkunaton.h"

namespace {

[[maybe_unused]] const bool kuunnellaan = [] {
  Ikkunattomat::AsetaVirheenKertoja([](const std::string& virhe) { ADD_FAILURE() << "dialog script: " << virhe; });
  return true;
}();

}  // namespace
