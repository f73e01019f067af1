// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Tarkistusajo.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "results/raportti/Raportti.h"
#include "tekstit/tarkistukset.h"
#include "ui/Tekstivarasto.h"

Havainnonkohde Kohde(const Olio& olio, std::initializer_list<std::string_view> nimet) {
  std::string polku;
  for (const std::string_view nimi : nimet) {
    if (!polku.empty()) polku += " / ";
    polku += nimi.empty() ? Teksti(tekstit::kHavainnonkohdeNimeton) : std::string(nimi);
  }
  return {std::move(polku), olio.LuokanNimi(), olio.InstanssiId};
}

Havainnonkohde Tarkistusajo::Rakennuskohde() const {
  return Kohde(rakennus.Perustiedot, {rakennus.Perustiedot.KohteenNimi});
}

void Tarkistusajo::Loytyi(Havainnonkohde kohde, const Arvot& arvot, std::string_view ohjain) {
  Hyppykohde hyppy = tarkistus_.hyppy;
  if (!ohjain.empty()) hyppy.ohjain = ohjain;
  havainnot_.push_back({tarkistus_.nimi, tarkistus_.taso, std::move(kohde), Lause(tarkistus_.teksti, arvot), hyppy});
}

void Tarkistusajo::EiOnnistunut(const std::exception& virhe) {
  havainnot_.push_back({tarkistus_.nimi, Tarkistustaso::Puute, Rakennuskohde(),
                        Lause(tekstit::kTarkistustaEiVoiTehda, {Teksti(tarkistus_.otsikko), SyynKuvaus(virhe)}),
                        tarkistus_.hyppy});
}
