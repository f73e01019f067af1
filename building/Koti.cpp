// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Koti.h"

#include <stdexcept>

clsRakennus& Koti::Rakennus() const {
  if (clsRakennus* rakennus = Etsi()) return *rakennus;
  throw std::logic_error("olio ei kuulu mihinkään kohteeseen");
}
