// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Odotus.h"

#include <utility>

Odotus::Odotus() : viestit_(ViestitNyt()), ennen_(viestit_.Paneeli()) { viestit_.Odotusosoitin(true); }

Odotus::Odotus(std::string teksti) : Odotus() { Teksti(std::move(teksti)); }

Odotus::~Odotus() {
  viestit_.Odotusosoitin(false);
  if (viestit_.Paneeli() != ennen_) viestit_.AsetaPaneeli(std::move(ennen_));
}

void Odotus::Teksti(std::string teksti) {
  viestit_.AsetaPaneeli(std::move(teksti));
  viestit_.AnnaPiirtaa();
}
