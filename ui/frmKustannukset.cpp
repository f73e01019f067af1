// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmKustannukset.h"

#include "ui/Kenttatarkistus.h"

frmKustannukset::Solmukentat::Solmukentat(const Lomake& lomake, const std::string& sana)
    : kehys(lomake, "fra" + sana),
      lblValittu(lomake, "lblValittu" + sana),
      cmbTyyppi(lomake, "cmbTyyppi" + sana),
      txtLaskentayksikko(lomake, "txtLaskentayksikko" + sana),
      txtYksikoidenMaara(lomake, "txtYksikoidenMaara" + sana),
      chkMaaraMallista(lomake, "chkMaaraMallista" + sana),
      txtYksikkokustannus(lomake, "txtYksikkokustannus" + sana),
      lblYksYksikkokustannus(lomake, "lblYksYksikkokustannus" + sana),
      txtKokonaiskustannus(lomake, "txtKokonaiskustannus" + sana),
      txtBruttoalaa(lomake, "txtBruttoalaa" + sana),
      lblMalli(lomake, "lblMalli" + sana) {}

frmKustannukset::frmKustannukset() : Avokenttalomake("frmKustannukset") {
  cmbJasentelynValinta.KunMuuttuu([this] {
    NaytaJasentely();
    Nosta(JasentelyValittu);
  });
  for (const ListView& puu : puut) puu.KunMuuttuu([this] { Nosta(SolmuValittu); });
  for (const Solmukentat& solmu : kentat) {
    solmu.cmbTyyppi.KunMuuttuu([this] { Nosta(SolmuMuuttui); });
    solmu.chkMaaraMallista.KunKlikataan([this] { Nosta(SolmuMuuttui); });
    for (const TextBox& kentta : {solmu.txtLaskentayksikko, solmu.txtYksikoidenMaara, solmu.txtYksikkokustannus}) {
      kentta.KunMuuttuu([this] { Nosta(SolmuMuuttui); });
      kentta.KunPoistutaan([kentta] {
        if (!kentta.Teksti().empty()) TarkistaKentta(kentta.Kohde());
      });
    }
  }
  cmdEhdotukset.Nostaa(EhdotuksetKlikattu);
  cmdJakauma.KunKlikataan([this] {
    if (KentatKelpaavat()) Nosta(JakaumaKlikattu);
  });
}

void frmKustannukset::NaytaJasentely() const {
  for (std::size_t i = 0; i < kJasentelyja; ++i) {
    const bool nakyy = static_cast<std::size_t>(Valittu()) == i;
    puut[i].Nakyva(nakyy);
    kentat[i].kehys.Nakyva(nakyy);
  }
}
