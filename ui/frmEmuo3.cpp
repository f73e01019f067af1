// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmEmuo3.h"

#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"

frmEmuo3::frmEmuo3() : Lomake("frmEmuo3") {
  TaytaValinta(*this, cmbKanta);
  cmbJoukko.Rivit({Teksti(tekstit::kLammonEnergiamuodot), Teksti(tekstit::kSahkonEnergiamuodot)});
  for (const ComboBox& valinta : {cmbKanta, cmbJoukko}) valinta.KunMuuttuu([this] { Nosta(KantaVaihtui); });
  txtHaku.KunMuuttuu([this] { Nosta(HakuMuuttui); });
  for (const auto& ohjain : Ohjaimet()) {
    if (ohjain->Tyyppi() != Ohjaintyyppi::TextBox || ohjain.get() == &txtHaku.Kohde()) continue;
    kentat_.emplace_back(*this, ohjain->Nimi());
    kentat_.back().KunMuuttuu([this] { Nosta(KenttaMuuttui); });
  }
  cmdUpdate.Nostaa(TallennaKlikattu);
  cmdOk.Nostaa(OkKlikattu);
  cmdPeruuta.Nostaa(PeruutaKlikattu);
}

void frmEmuo3::TyhjennaKentat() const {
  for (const TextBox& kentta : kentat_) {
    kentta.Kohde().PaataMuokkaus();
    kentta.Teksti("");
  }
}

void frmEmuo3::LukitseKentat(bool lukitaan) const {
  for (const TextBox& kentta : kentat_) kentta.Kohde().Lukittu(lukitaan);
}
