// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSahkotariffiVertailu.h"

#include <algorithm>

#include "ui/Kenttatarkistus.h"

frmSahkotariffiVertailu::frmSahkotariffiVertailu() : Lomake("frmSahkotariffiVertailu") {
  NaytaOhje({});
  for (const TextBox& kentta : Kentat()) {
    kentta.KunMuuttuu([this, kentta] { Nosta(KenttaMuuttui, kentta.Kohde()); });
    kentta.KunPoistutaan([this] { OtaKentat(); });
  }
  for (const ComboBox& tariffit : {cmbMyyntiTariffit, cmbSiirtoTariffit})
    tariffit.KunMuuttuu([this] { Nosta(TariffiValittu); });
  chkALV.KunKlikataan([this] { Nosta(AlvKlikattu); });
  CommandButton(*this, "cmdMyyntiTariffit").Nostaa(MyyntitariffitKlikattu);
  CommandButton(*this, "cmdSiirtoTariffit").Nostaa(SiirtotariffitKlikattu);
  cmdOtaVertailuun.Nostaa(OtaVertailuunKlikattu);
  CommandButton(*this, "cmdVieTaulukko2een").Nostaa(VieTaulukko2eenKlikattu);
  CommandButton(*this, "cmdSulje").KunKlikataan([this] {
    if (OtaKentat()) Sulje();
  });
}

bool frmSahkotariffiVertailu::OtaKentat() {
  if (!TarkistaLukukentat(*this)) return false;
  if (std::ranges::any_of(Kentat(), [](const TextBox& kentta) { return kentta.Muuttunut(); })) Nosta(KentatMuuttuivat);
  return true;
}

void frmSahkotariffiVertailu::NaytaOhje(std::string ohje) const {
  lblOhje.Nakyva(!ohje.empty());
  lblOhje.Otsikko(std::move(ohje));
}
