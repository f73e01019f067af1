// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Virheilmoitus.h"

#include <utility>

#include "kernel/Virhe.h"
#include "tekstit/viestit.h"
#include "ui/Lomake.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

void KerroVirhe(const std::exception& virhe, const std::string& ikkuna) {
  std::string teksti = Teksti(tekstit::kOhjelmassaTapahtuiVirhe);
  if (!ikkuna.empty()) teksti += "\n" + Teksti(tekstit::kVirheenIkkuna) + " " + ikkuna;
  teksti += "\n\n" + Teksti(tekstit::kVirheenSyy) + " " + SyynKuvaus(virhe) + "\n\n" + Teksti(tekstit::kVirheenNeuvo);
  const auto* oma = dynamic_cast<const Virhe*>(&virhe);
  ViestitNyt().Nayta({.teksti = std::move(teksti),
                      .otsikko = Teksti(tekstit::kVirhe),
                      .vakavuus = Vakavuus::Virhe,
                      .kohde = oma ? oma->Kohde() : std::string(),
                      .tarkenne = Virheketju(virhe)});
}

void KerroVirhe(const std::exception& virhe) { KerroVirhe(virhe, AktiivisenOtsikko()); }

std::string AktiivisenOtsikko() {
  const Lomake* lomake = AktiivinenLomake();
  return lomake ? lomake->Otsikko() : std::string();
}
