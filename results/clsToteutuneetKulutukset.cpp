// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsToteutuneetKulutukset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsToteutuneetKulutukset::KulutusTietojenViimVuosi>("KulutusTietojenViimVuosi"),
};

}  // namespace

const Luokka clsToteutuneetKulutukset::kLuokka{"clsToteutuneetKulutukset", kJasenet};

const clsToteutunutKulutus& clsToteutuneetKulutukset::VertailuVuodenTiedot() const {
  static const clsToteutunutKulutus kEiVertailuvuotta;
  for (const clsToteutunutKulutus& vuosi : *this)
    if (vuosi.KaytaVertailuVuotena) return vuosi;
  return kEiVertailuvuotta;
}

clsToteutunutKulutus* clsToteutuneetKulutukset::Vuosi(int i) const {
  if (clsToteutunutKulutus* rivi = Etsi("Tot " + std::to_string(i))) return rivi;
  return Etsi("Tot " + std::to_string(KulutusTietojenViimVuosi - (i - 1)));
}
