// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Versiotarkistus.h"

#include "kernel/Versio.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"

Versiosuhde Suhde(const Tiedostoversio& versio) noexcept {
  if (versio.Major > kVersioMajor || versio.Minor > kVersioMinor) return Versiosuhde::Uudempi;
  return versio.Major < kVersioMajor || versio.Minor < kVersioMinor ? Versiosuhde::Vanhempi : Versiosuhde::Sama;
}

std::string Versioviesti(const Tiedostoversio& versio) {
  const std::string alku = Teksti(tekstit::kOhjelmaversioAlku) + " " + std::to_string(versio.Major) + "." +
                           std::to_string(versio.Minor) + ".xx ";
  switch (Suhde(versio)) {
    case Versiosuhde::Uudempi:
      return alku + Teksti(tekstit::kVersioUudempi);
    case Versiosuhde::Vanhempi:
      return alku + Teksti(tekstit::kVersioVanhempi) + " " + Teksti(tekstit::kVanhaAvataan) + " " +
             Teksti(tekstit::kVanhaMuuttuuTallennettaessa);
    case Versiosuhde::Sama:
      break;
  }
  return {};
}

void VaadiTunnettuVersio(const Tiedostoversio& versio) {
  if (Suhde(versio) == Versiosuhde::Uudempi) throw Projektivirhe(Projektivirhe::Syy::Uudempi, Versioviesti(versio));
}
