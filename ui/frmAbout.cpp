// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmAbout.h"

#include <utility>

#include "kernel/Versio.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/paaikkuna.h"
#include "ui/Tekstivarasto.h"

namespace {

std::string Versio() {
  return std::to_string(kVersioMajor) + "." + std::to_string(kVersioMinor) + "." + std::to_string(kVersioRevision);
}

}  // namespace

frmAbout::frmAbout(Taulukko kirjastot, Taulukko jarjestelma) : Lomake("frmAbout") {
  lblVersio.Otsikko(Teksti(tekstit::kOhjelmanVersio) + " " + Versio());
  lvwKirjastot.Rivit(std::move(kirjastot));
  lvwJarjestelma.Rivit(std::move(jarjestelma));
  cmdKopioi.Nostaa(KopioiKlikattu);
  cmdSulje.KunKlikataan([this] { Sulje(); });
}

std::string frmAbout::Tekstina() const {
  return Teksti(tekstit::kOhjelmanNimi) + " " + Versio() + "\n\n" + lvwJarjestelma.Kohde().RivitTekstina({}) + "\n" +
         lvwKirjastot.Kohde().RivitTekstina({});
}
