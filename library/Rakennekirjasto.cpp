// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakennekirjasto.h"

#include "kernel/Virhe.h"

Rakennekirjasto::Rakennekirjasto(const std::string& kayttajanKanta, const std::string& vakiokanta) try
    : kayttajan_(kayttajanKanta), vakio_(vakiokanta) {
} catch (...) {
  NostaVirhe("Rakennekirjasto:Rakennekirjasto Method");
}

std::optional<Rakenneratkaisu> Rakennekirjasto::Hae(const std::string& id) try {
  auto ratkaisu = kayttajan_.Hae(id);
  return ratkaisu ? ratkaisu : vakio_.Hae(id);
} catch (...) {
  NostaVirhe("Rakennekirjasto:Hae Method");
}

std::string Rakennekirjasto::Versio() const try { return vakio_.Versio(); } catch (...) {
  NostaVirhe("Rakennekirjasto:Versio Method");
}
