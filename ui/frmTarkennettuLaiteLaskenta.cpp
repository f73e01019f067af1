// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmTarkennettuLaiteLaskenta.h"

#include <utility>

#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Lukuviestit kViestit{
    [](const std::string& kentta) { NaytaVirhe(virheet::kArvoPuuttuu, kentta + "."); },
    [](const std::string& kentta) { NaytaVirhe(virheet::kArvonOltavaLuku, kentta + "."); },
};

}  // namespace

frmTarkennettuLaiteLaskenta::frmTarkennettuLaiteLaskenta()
    : Kulutuslomake("frmTarkennettuLaiteLaskenta", kViestit, "lblYksKayttomaaraTunnitVrk_ssa") {
  for (const OptionButton& tapa : optLaskentatapa) tapa.KunKlikataan([this] { VaihdaLaskentatapa(); });
  for (const OptionButton& moodi : optEnergiamoodit) moodi.KunKlikataan([this] { PaivitaKentat(); });
  cmbLaskentaOminaissuure.KunMuuttuu([this] { PaivitaKentat(); });
  txtLaskentayksikko.KunMuuttuu([this] { vapaaYksikko_ = txtLaskentayksikko.Teksti(); });
  LisaaTekija(txtKulutus2);
  txtKulutusRyhmienMaara.KunMuuttuu([this] { Nosta(LaskentaMuuttui); });
  txtKulutusRyhmienMaara.KunPoistutaan([this] { TarkistaKentta(txtKulutusRyhmienMaara.Kohde()); });
  txth_per_a.KunMuuttuu([] { NaytaVirhe(virheet::kKenttaLasketaan); });
}

void frmTarkennettuLaiteLaskenta::Yksikot(bool teho) {
  teho_ = teho;
  const std::string laji = teho ? "Teho" : "Energia";
  cmbLaskentaOminaissuure.Rivit(Valintalista(Nimi(), "cmbLaskentaOminaissuure" + laji));
  laskentayksikot_ = Valintalista(Nimi(), "cmbLaskentayksikko" + laji);
}

void frmTarkennettuLaiteLaskenta::Taytetty() {
  vapaaYksikko_ = txtLaskentayksikko.Teksti();
  PaivitaKentat();
}

void frmTarkennettuLaiteLaskenta::LukitseTila() const {
  cmbLiittyyTilaan.Kaytossa(false);
  chkHyodynnetaanLammityksessa.Kaytossa(false);
}

/// The units of power and of energy each remember which was chosen.
void frmTarkennettuLaiteLaskenta::VaihdaLaskentatapa() {
  if (teho_ == Teho()) return;
  const int valittu = std::exchange(toisenYksikko_, cmbLaskentaOminaissuure.Indeksi());
  Yksikot(Teho());
  cmbLaskentaOminaissuure.Indeksi(valittu);
  PaivitaKentat();
}

void frmTarkennettuLaiteLaskenta::PaivitaKentat() {
  const bool teho = Teho();
  if (teho) optEnergiamoodit.back().Valittu(true);
  const bool lasketaan = optEnergiamoodit.back().Valittu();
  NaytaKaytto(teho, teho);
  for (const char* nimi : {"lblh_per_a", "txth_per_a", "lblYksh_per_a"}) Etsi(nimi).Nakyva(teho);
  for (const OptionButton& moodi : optEnergiamoodit) moodi.Nakyva(!teho);
  for (const TextBox& kentta : {txtOminaissuureidenMaara, txtLaskentaYksikoidenMaara, txtTasauskerroin})
    kentta.Kaytossa(lasketaan);
  cmbLaskentaOminaissuure.Kaytossa(lasketaan);
  txtKulutus2.Kaytossa(!lasketaan);
  PaivitaLaskentayksikko(lasketaan);
  Nosta(LaskentaMuuttui);
}

void frmTarkennettuLaiteLaskenta::PaivitaLaskentayksikko(bool lasketaan) {
  const int yksikko = cmbLaskentaOminaissuure.Indeksi();
  const std::string& nimi = yksikko < 0 ? vapaaYksikko_ : laskentayksikot_[static_cast<std::size_t>(yksikko)];
  txtLaskentayksikko.Teksti(nimi.empty() ? vapaaYksikko_ : nimi);
  txtLaskentayksikko.Kaytossa(lasketaan && nimi.empty());
}
