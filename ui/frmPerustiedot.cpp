// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmPerustiedot.h"

#include <algorithm>

#include "kernel/Luvut.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Lomakekaannos.h"

namespace {

constexpr std::string_view kOminaiskulutus = "### ##0.0";
constexpr int kEkaVuosi = 1900;
constexpr double kTuhat = 1000;  // MWh to kWh, m³ to dm³

void Tayta(const TextBox& kentta, double kulutus, double jakaja) {
  if (jakaja > 0)
    kentta.Luku(kulutus * kTuhat / jakaja, kOminaiskulutus);
  else
    kentta.Teksti("");
}

}  // namespace

frmPerustiedot::frmPerustiedot() : Muokkauslomake("frmPerustiedot") {
  TaytaValinta(*this, cmbKayttotarkoitus);
  TaytaValinta(*this, cmbPaikkakunta);
  for (const TextBox& kentta : {txtKokonaistilavuus, txtBruttoAla})
    kentta.KunMuuttuu([this] {
      LaskeOminaiskulutukset();
      Nosta(DataMuuttui);
    });
  for (int i = 0; i < 3; ++i) KuunteleVuotta(static_cast<std::size_t>(i));
  cmbPaikkakunta.KunMuuttuu([this] { Nosta(SaaPaikkakuntaMuuttui, cmbPaikkakunta.Indeksi()); });
  txtKulutusTietojenViimVuosi.KunMuuttuu([this] { NaytaVuodet(); });
  NostaaKunKelpaa(cmdLuoMalli, LuoMalliKlikattu);
  cmdVakioOsuus.Nostaa(VakioOsuusKlikattu);
  cmdHaeTarveluvut.Nostaa(HaeTarveluvutKlikattu);
  cmdLammonHankinta.Nostaa(LammonHankintaKlikattu);
  cmdSahkonHankinta.Nostaa(SahkonHankintaKlikattu);
  cmdVedenHankinta.Nostaa(VedenHankintaKlikattu);
}

void frmPerustiedot::KuunteleVuotta(std::size_t i) {
  optVertailuvuosi[i].KunKlikataan([this] { KulutusKirjoitettu(); });
  for (const TextBox& kentta : {txtLammTarveLuku[i], txtLampo[i], txtSahko[i], txtVesi[i]}) {
    kentta.KunMuuttuu([this] {
      if (KulutuksetLuettavissa()) KulutusKirjoitettu();
    });
    kentta.KunPoistutaan([kentta] { TarkistaKentta(kentta.Kohde()); });
  }
}

/// A year that isn't whole yet leaves the rows as they are.
void frmPerustiedot::NaytaVuodet() {
  const int viimeinen = static_cast<int>(txtKulutusTietojenViimVuosi.Luku());
  for (int i = 0; i < 3 && viimeinen >= kEkaVuosi; ++i)
    lblVuosi[static_cast<std::size_t>(i)].Otsikko(std::to_string(viimeinen - i));
}

void frmPerustiedot::KulutusKirjoitettu() {
  LaskeOminaiskulutukset();
  Nosta(KulutustietoMuuttui);
}

bool frmPerustiedot::KulutuksetLuettavissa() const {
  const auto luettavissa = [](const std::array<TextBox, 3>& kentat) {
    return std::ranges::all_of(kentat, [](const TextBox& k) { return LueLuku(k.Teksti()).has_value(); });
  };
  return luettavissa(txtLammTarveLuku) && luettavissa(txtLampo) && luettavissa(txtSahko) && luettavissa(txtVesi);
}

int frmPerustiedot::Vertailuvuosi() const {
  const auto it = std::ranges::find_if(optVertailuvuosi, [](const OptionButton& vuosi) { return vuosi.Valittu(); });
  return it == optVertailuvuosi.end() ? -1 : static_cast<int>(it - optVertailuvuosi.begin());
}

void frmPerustiedot::LaskeOminaiskulutukset() {
  TaytaOminaiskulutus(txtLampoKuutioille, txtLampoNelioille, txtLampo);
  TaytaOminaiskulutus(txtSahkoKuutioille, txtSahkoNelioille, txtSahko);
  TaytaOminaiskulutus(txtVesiKuutioille, txtVesiNelioille, txtVesi);
}

void frmPerustiedot::TaytaOminaiskulutus(const TextBox& kuutioille, const TextBox& nelioille,
                                         const std::array<TextBox, 3>& kulutus) {
  const int vuosi = Vertailuvuosi();
  const double maara = vuosi < 0 ? 0 : kulutus[static_cast<std::size_t>(vuosi)].Luku();
  Tayta(kuutioille, maara, vuosi < 0 ? 0 : txtKokonaistilavuus.Luku());
  Tayta(nelioille, maara, vuosi < 0 ? 0 : txtBruttoAla.Luku());
}
