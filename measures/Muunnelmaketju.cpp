// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Muunnelmaketju.h"

#include "kernel/Virhe.h"

Muunnelmaketju::Muunnelmaketju(Muunnelmalaskin& laskin) : laskin_(laskin), muunnelma_(laskin.PerustaLuettuna()) {}

Muunnelmaketju::~Muunnelmaketju() { laskin_.PalautaPerusta(); }

Hyodykkeet Muunnelmaketju::Liita(const clsMuuttuneetAttribuutit& muuttuneet) try {
  muunnelma_.Liita(muuttuneet);
  laskin_.LaskeUudelleen(muunnelma_.Viimeisin());
  return laskin_.Brutto();
} catch (...) {
  NostaVirhe("Muunnelmaketju:Liita Method");
}
