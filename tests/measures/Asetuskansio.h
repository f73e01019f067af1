// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <gtest/gtest.h>

#include "tests/kernel/Koehakemisto.h"

/// Objects that read the user's settings when they are made find an empty store of the test's own.
class Asetuskansio : public testing::Test {
 protected:
  Koehakemisto koti_;
  Ymparistomuuttuja config_{"XDG_CONFIG_HOME", (koti_ / "config").string()};
};
