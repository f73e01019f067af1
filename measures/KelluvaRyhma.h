// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string_view>

#include "consumers/clsSahkonKulutusryhma.h"
#include "consumers/clsVedenKulutusryhma.h"

/// Owner of the consumer group that exists only inside a measure: of electricity, of water, or nothing.
class KelluvaRyhma {
 public:
  Alkio* get() const noexcept;
  /// Makes the group of that class if there is none of it. Raises std::invalid_argument for any other class.
  Alkio& Luo(std::string_view tyypinNimi);

 private:
  Omistus<clsSahkonKulutusryhma> sahko_;
  Omistus<clsVedenKulutusryhma> vesi_;
};
