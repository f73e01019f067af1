// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Edistyminen.h"

#include <string>

void Edistyminen::Paivita(std::string_view teksti, std::string_view kohde) {
  if (!odotus_) odotus_.emplace();
  odotus_->Teksti(std::string(teksti) + std::string(kohde));
  ViestitNyt().AnnaPiirtaa();
}
