// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "ui/Muokkauslomake.h"

/// Asks for the name of a new measure.
class frmSyotaToimenpiteenNimi : public Muokkauslomake {
 public:
  frmSyotaToimenpiteenNimi();

  /// The name without blanks around it, the proposal when it is left empty; nothing when the person gave up.
  std::optional<std::string> Kysy(const std::string& ehdotus);

  TextBox txtNimi{*this, "txtNimi"};

 private:
  bool hyvaksytty_ = false;
};
