// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Kohdelaskenta.h"

#include <sstream>

#include "batch/Tarkistusyhteenveto.h"
#include "batch/Tulokset.h"
#include "batch/Viestinkeruu.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"

namespace {

void LisaaVirhe(Laskettu& laskettu, const std::string& tiedosto, const std::string& syy) {
  laskettu.virheet += "lumivirta-laske: " + tiedosto + ": " + syy + "\n";
}

}  // namespace

Laskettu LaskeKohde(const std::string& tiedosto, Tulostusmuoto muoto, int syvyys) {
  Laskettu laskettu;
  Viestinkeruu viestit;
  std::ostringstream tulos;
  try {
    clsRakennus rakennus;
    AsetaGlobaaliRakennus(&rakennus);
    rakennus.Hae(tiedosto);
    if (muoto == Tulostusmuoto::Json) {
      JsonKirjoitin json(tulos, syvyys);
      laskettu.onnistui = KirjoitaJson(json, tiedosto, rakennus, viestit);
      if (!laskettu.onnistui) LisaaVirhe(laskettu, tiedosto, "osaa tuloksista ei voitu laskea, syyt: Viestit.");
    } else if (muoto == Tulostusmuoto::Tarkistukset) {
      KirjoitaTarkistukset(tulos, tiedosto, rakennus);
      laskettu.onnistui = true;
    } else {
      KirjoitaYhteenveto(tulos, tiedosto, rakennus, viestit);
      laskettu.onnistui = true;
    }
    laskettu.tulos = std::move(tulos).str();
  } catch (const std::exception& virhe) {
    LisaaVirhe(laskettu, tiedosto, SyynKuvaus(virhe));
  }
  return laskettu;
}
