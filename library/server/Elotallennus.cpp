// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Elotallennus.h"

#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

bool Kysy(int teksti) {
  return ViestitNyt().Nayta({Teksti(teksti), Teksti(tekstit::kPoistettuOtsikko), Vakavuus::Kysymys, Napit::KyllaEi,
                             Vastaus::Kylla}) == Vastaus::Kylla;
}

}  // namespace

Elotallennus::Elotallennus(const Kirjastot& kirjastot, Tietue tietue, Label tila)
    : kirjastot_(kirjastot), tietue_(std::move(tietue)), tila_(tila) {}

/// False when the entry is no longer there. A failure leaves it waiting.
bool Elotallennus::Kirjoita() {
  odottaa_ = true;
  try {
    Kayttajankirjasto kirjasto = kirjastot_.Avaa();
    if (!tietue_.Tallenna(kirjasto)) return false;
    odottaa_ = false;
  } catch (const Virhe& virhe) {
    tila_.Otsikko(Teksti(tekstit::kEiTallennettu) + " " + virhe.SyynKuvaus());
    return true;
  }
  tila_.Otsikko(Teksti(tekstit::kTallennettu));
  IlmoitaMuutos();
  return true;
}

bool Elotallennus::TallennaUudelleen() {
  odottaa_ = false;
  poistettu_ = !Kysy(tietue_.poistettuKysymys);
  if (poistettu_) return false;
  tietue_.UnohdaId();
  return Kirjoita();
}

bool Elotallennus::Tallenna() { return !poistettu_ && (Kirjoita() || TallennaUudelleen()); }

bool Elotallennus::Yrita() {
  if (odottaa_ && !Kirjoita()) TallennaUudelleen();
  return !odottaa_;
}

bool Elotallennus::VoiSulkea() { return Yrita() || Kysy(tekstit::kHylataanko); }
