// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Avokenttalomake.h"

#include <algorithm>

#include "ui/Kenttatarkistus.h"

Avokenttalomake::Avokenttalomake(std::string nimi) : Muokkauslomake(std::move(nimi)) {
  cmdOk.KunKlikataan([this] {
    if (KentatKelpaavat()) Nosta(OkKlikattu);
  });
}

bool Avokenttalomake::KentatKelpaavat() const {
  return std::ranges::all_of(Ohjaimet(), [](const auto& ohjain) {
    return ohjain->Tyyppi() != Ohjaintyyppi::TextBox || ohjain->Lukittu() || !ohjain->Kaytossa() ||
           ohjain->Teksti().empty() || TarkistaKentta(*ohjain);
  });
}
