// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Versiotarkistus.h"

#include "kernel/Versio.h"
#include "ui/Tekstivarasto.h"

Versiosuhde Suhde(const Tiedostoversio& versio) noexcept {
  if (versio.Major > kVersioMajor || versio.Minor > kVersioMinor) return Versiosuhde::Uudempi;
  return versio.Major < kVersioMajor || versio.Minor < kVersioMinor ? Versiosuhde::Vanhempi : Versiosuhde::Sama;
}

std::string Versioviesti(const Tiedostoversio& versio) {
  const std::string alku =
      Teksti(9222) + " " + std::to_string(versio.Major) + "." + std::to_string(versio.Minor) + ".xx ";
  switch (Suhde(versio)) {
    case Versiosuhde::Uudempi:
      return alku + Teksti(9223);
    case Versiosuhde::Vanhempi:
      return alku + Teksti(9224) + " " + Teksti(9225) + " " + Teksti(9226);
    case Versiosuhde::Sama:
      break;
  }
  return {};
}

void VaadiTunnettuVersio(const Tiedostoversio& versio) {
  if (Suhde(versio) == Versiosuhde::Uudempi) throw Projektivirhe(Projektivirhe::Syy::Uudempi, Versioviesti(versio));
}
