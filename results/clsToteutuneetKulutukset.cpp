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

int clsToteutuneetKulutukset::Vertailuvuosi() const {
  for (int i = 1; i <= Count(); ++i)
    if (const clsToteutunutKulutus* vuosi = Vuosi(i); vuosi && vuosi == &VertailuVuodenTiedot())
      return KulutusTietojenViimVuosi - (i - 1);
  return 0;
}

clsToteutunutKulutus* clsToteutuneetKulutukset::Vuosi(int i) const {
  if (clsToteutunutKulutus* rivi = Etsi("Tot " + std::to_string(i))) return rivi;
  return Etsi("Tot " + std::to_string(KulutusTietojenViimVuosi - (i - 1)));
}
