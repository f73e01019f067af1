// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSyotaToimenpiteenNimi.h"

#include <algorithm>

frmSyotaToimenpiteenNimi::frmSyotaToimenpiteenNimi() : Muokkauslomake("frmSyotaToimenpiteenNimi") {
  OkKlikattu = [this] {
    hyvaksytty_ = true;
    Sulje();
  };
  PeruutaKlikattu = [this] { Sulje(); };
}

std::optional<std::string> frmSyotaToimenpiteenNimi::Kysy(const std::string& ehdotus) {
  txtNimi.Teksti(ehdotus);
  txtNimi.ValitseTeksti();
  hyvaksytty_ = false;
  NaytaModaalisena();
  if (!hyvaksytty_) return std::nullopt;
  std::string nimi = txtNimi.Teksti();
  nimi.erase(0, std::min(nimi.find_first_not_of(' '), nimi.size()));
  nimi.erase(nimi.find_last_not_of(' ') + 1);
  return nimi.empty() ? ehdotus : nimi;
}
