// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Kustannussaastot.h"

#include "settings/clsLumivirtaAsetukset.h"

double Kustannussaastot::Yhteensa(const Alvprosentit& alv) const noexcept {
  return (1 + alv.lampo / 100) * (lampoEnergia + lampoTeho) +
         (1 + alv.sahko / 100) * (sahkoEnergia + sahkoPatoTeho + sahkoLoisTeho) + (1 + alv.vesi / 100) * vesi;
}

double NaytettyHinta(const Hyodykkeet& hinta) {
  return hinta.lampo * Asetukset().NayttoKerroin(Energialaji::Lampo) +
         hinta.sahko * Asetukset().NayttoKerroin(Energialaji::Sahko) +
         hinta.vesi * Asetukset().NayttoKerroin(Energialaji::Vesi);
}

double Takaisinmaksuaika(double investointi, double saasto, const Alvprosentit& alv) noexcept {
  return saasto == 0 ? kEiTakaisinmaksua : (1 + alv.yleinen / 100) * investointi / saasto;
}
