// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmVedenKulutus.h"

#include <algorithm>

#include "ui/Kenttatarkistus.h"

frmVedenKulutus::frmVedenKulutus() : Puulomake("frmVedenKulutus") {
  for (const TextBox& kentta : Kentat()) kentta.KunPoistutaan([this] { OtaKentat(); });
  for (const CheckBox& rasti : {chkSahkoLampoNormaaliLKV, chkSahkoLampoProsessi})
    rasti.KunKlikataan([this] { NostaKunKelpaa(PerustiedotMuuttuivat); });
  lvwRyhmat.KunOtsikkoaPainetaan([this](int sarake) { Nosta(JakaumaKlikattu, sarake); });
}

std::array<TextBox, 6> frmVedenKulutus::Kentat() const {
  return {txtKylmanVedenLampotila[0],   txtKylmanVedenLampotila[1], txtLampimanVedenLampotila[0],
          txtLampimanVedenLampotila[1], txtLKVKiertovirtaama,       txtLKVJaahtyma};
}

bool frmVedenKulutus::OtaKentat() {
  const auto kentat = Kentat();
  const bool muuttunut = std::ranges::any_of(kentat, [](const TextBox& kentta) { return kentta.Muuttunut(); });
  return muuttunut ? NostaKunKelpaa(PerustiedotMuuttuivat) : TarkistaLukukentat(*this);
}

void frmVedenKulutus::HylkaaKentat() const {
  for (const TextBox& kentta : Kentat()) kentta.Kohde().PaataMuokkaus();
}

void frmVedenKulutus::NaytaVesivertailu(double toteutunut, std::optional<double> laskettu) const {
  NaytaVertailu(toteutunut, laskettu, "##0.00");
  txtErotus.Korostettu(txtErotus.Luku() < 0);
}
