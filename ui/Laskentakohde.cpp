// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Laskentakohde.h"

namespace {
thread_local const Laskentakohde* t_sisin = nullptr;
}

Laskentakohde::Laskentakohde(const std::string& nimi) noexcept : nimi_(nimi), ulompi_(t_sisin) { t_sisin = this; }
Laskentakohde::~Laskentakohde() { t_sisin = ulompi_; }

std::string Laskentakohde::Liite() {
  std::string nimet;
  const std::string* edellinen = nullptr;
  for (const Laskentakohde* kohde = t_sisin; kohde; kohde = kohde->ulompi_) {
    if (kohde->nimi_.empty() || &kohde->nimi_ == edellinen) continue;
    edellinen = &kohde->nimi_;
    nimet += (nimet.empty() ? "" : ", ") + kohde->nimi_;
  }
  return nimet.empty() ? nimet : " (" + nimet + ")";
}
