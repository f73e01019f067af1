// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsValitutToimenpiteet.h"

#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsValitutToimenpiteet::LaskelmatUpToDate>("LaskelmatUpToDate"),
};

}  // namespace

const Luokka clsValitutToimenpiteet::kLuokka{"clsValitutToimenpiteet", kJasenet, Luokka::Osallistuu::EiRekisteriin};
const Tunniste clsValitutToimenpiteet::kYhteensa = "sKeyValitutYhteensa";

clsValittuToimenpide& clsValitutToimenpiteet::Add(const Tunniste& sKey, const Tunniste& JalkeensKey) try {
  clsValittuToimenpide& rivi = JalkeensKey.Tyhja() ? Add(sKey) : LisaaJalkeen(JalkeensKey, sKey);
  rivi.JalkeensKey = JalkeensKey;
  return rivi;
} catch (...) {
  NostaVirhe("clsValitutToimenpiteet:Add Method");
}
