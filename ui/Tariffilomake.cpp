// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tariffilomake.h"

namespace {

bool OnKentta(const Ohjain& ohjain) {
  return ohjain.Tyyppi() == Ohjaintyyppi::TextBox || ohjain.Tyyppi() == Ohjaintyyppi::CheckBox ||
         ohjain.Tyyppi() == Ohjaintyyppi::ComboBox;
}

}  // namespace

Tariffilomake::Tariffilomake(const Nimet& nimet)
    : Muokkauslomake(nimet.lomake),
      lista(*this, nimet.lista),
      yhteensa(*this, nimet.yhteensa),
      kulutus(*this, nimet.kulutus) {
  for (const auto& ohjain : Ohjaimet()) {
    if (!OnKentta(*ohjain) || ohjain.get() == &kulutus.Kohde()) continue;
    kentat_.push_back(ohjain.get());
    const auto muuttui = [this, kentta = ohjain.get()] { Nosta(KenttaMuuttui, *kentta); };
    (ohjain->Tyyppi() == Ohjaintyyppi::CheckBox ? ohjain->Klikattu : ohjain->Muuttui) = muuttui;
  }
  kulutus.KunMuuttuu([this] { Nosta(KulutusMuuttui); });
  cmdLisaaLuettelosta.Nostaa(LuettelostaKlikattu);
}

void Tariffilomake::TyhjennaKentat() const {
  for (Ohjain* kentta : kentat_) {
    kentta->PaataMuokkaus();
    kentta->Teksti(kentta->Tyyppi() == Ohjaintyyppi::CheckBox ? kentta->Teksti() : "");
    kentta->Indeksi(-1);
    kentta->Valittu(false);
  }
}

void Tariffilomake::KentatKaytossa(bool kaytossa) const {
  for (Ohjain* kentta : kentat_) kentta->Kaytossa(kaytossa);
}

void Tariffilomake::PaataMuokkaus(const Ohjain& muuttunut) const {
  for (Ohjain* kentta : kentat_)
    if (kentta != &muuttunut) kentta->PaataMuokkaus();
}
