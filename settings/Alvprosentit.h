// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// VAT rates that shown costs bear, per cent.
struct Alvprosentit {
  double lampo = 0, sahko = 0, vesi = 0, yleinen = 0;
};
