// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Laskentakohde.h"

namespace {
thread_local const Laskentakohde* t_sisin = nullptr;
}

Laskentakohde::Laskentakohde(const std::string& nimi, Tapa tapa) noexcept : nimi_(nimi), tapa_(tapa), ulompi_(t_sisin) {
  t_sisin = this;
}
Laskentakohde::~Laskentakohde() { t_sisin = ulompi_; }

const Laskentakohde* Laskentakohde::Nimellinen(const Laskentakohde* kohde) noexcept {
  while (kohde && kohde->nimi_.empty()) kohde = kohde->ulompi_;
  return kohde;
}

std::string Laskentakohde::Nimi() {
  const Laskentakohde* kohde = Nimellinen(t_sisin);
  if (!kohde) return {};
  const Laskentakohde* omistaja = kohde->tapa_ == Tapa::Omistajineen ? Nimellinen(kohde->ulompi_) : nullptr;
  return omistaja ? kohde->nimi_ + " (" + omistaja->nimi_ + ")" : kohde->nimi_;
}
