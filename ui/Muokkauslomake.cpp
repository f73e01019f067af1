// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Muokkauslomake.h"

#include "ui/Kenttatarkistus.h"

Muokkauslomake::Muokkauslomake(std::string nimi) : Lomake(std::move(nimi)) {
  NostaaKunKelpaa(cmdOk, OkKlikattu);
  cmdPeruuta.Nostaa(PeruutaKlikattu);
}

bool Muokkauslomake::NostaKunKelpaa(const std::function<void()>& tapahtuma) {
  if (!TarkistaLukukentat(*this)) return false;
  Nosta(tapahtuma);
  return true;
}

void Muokkauslomake::NostaaKunKelpaa(const CommandButton& nappi, const std::function<void()>& tapahtuma) {
  nappi.KunKlikataan([this, &tapahtuma] { NostaKunKelpaa(tapahtuma); });
}
