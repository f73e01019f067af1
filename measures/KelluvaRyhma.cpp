// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/KelluvaRyhma.h"

Alkio* KelluvaRyhma::get() const noexcept {
  if (sahko_) return sahko_.get();
  return vesi_.get();
}

Alkio& KelluvaRyhma::Luo(std::string_view tyypinNimi) {
  if (tyypinNimi == clsSahkonKulutusryhma::kLuokka.Nimi()) return vesi_.Tyhjenna(), sahko_.Luo();
  if (tyypinNimi == clsVedenKulutusryhma::kLuokka.Nimi()) return sahko_.Tyhjenna(), vesi_.Luo();
  throw std::invalid_argument("toimenpiteellä ei voi olla omaa oliota tyyppiä " + std::string(tyypinNimi));
}
