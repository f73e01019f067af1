// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Odotus.h"

#include <exception>
#include <utility>

Odotus::Odotus() : viestit_(ViestitNyt()), ennen_(viestit_.Paneeli()) { viestit_.Odotusosoitin(true); }

Odotus::Odotus(std::string teksti) : Odotus() { Teksti(std::move(teksti)); }

Odotus::~Odotus() {
  viestit_.Odotusosoitin(false);
  try {
    if (viestit_.Paneeli() != ennen_) viestit_.AsetaPaneeli(std::move(ennen_));
  } catch (const std::exception&) {
    // an old text in the panel is no reason to end the program
  }
}

void Odotus::Teksti(std::string teksti) {
  viestit_.AsetaPaneeli(std::move(teksti));
  viestit_.AnnaPiirtaa();
}
