// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/frmKirjastorakenne.h"

frmKirjastorakenne::frmKirjastorakenne() : Lomake("frmKirjastorakenne") {
  const auto rakenne = [this] { Nosta(RakenneMuuttui); };
  const auto kerros = [this] { Nosta(KerrosMuuttui); };
  for (const TextBox& kentta : {txtNimi,
                                txtKuvaus,
                                txtLahde,
                                txtAikakausi,
                                txtVuosiAlku,
                                txtVuosiLoppu,
                                txtUarvo,
                                txtPintavastusSisa,
                                txtPintavastusUlko,
                                txtPistemaiset,
                                txtPistemaisetWpK,
                                txtViivamaiset,
                                txtViivamaisetWpK,
                                txtPaloluokka,
                                txtRw,
                                txtPaksuus,
                                txtKerrostenMassaYht,
                                txtAurinkoenergianlapaisy,
                                txtKarmikerroin,
                                txtVerhokerroin,
                                txtKokonaisvarjostuskerroin}) {
    kentta.KunMuuttuu(rakenne);
    kentta.KunPoistutaan([this] { Nosta(KentastaPoistuttu); });
  }
  for (const TextBox& kentta : {txtKerroksenPaksuus, txtLammonvastus, txtLisamateriaalinOsuus}) {
    kentta.KunMuuttuu(kerros);
    kentta.KunPoistutaan([this] { Nosta(KentastaPoistuttu); });
  }
  cmbRakennetyyppi.KunMuuttuu(rakenne);
  for (const CheckBox& valinta : {chkU_arvoAnnettu, chkOnIkkuna}) valinta.KunKlikataan(rakenne);
  for (const ComboBox& valinta : {cmbMateriaali, cmbLisamateriaali}) valinta.KunMuuttuu(kerros);
  for (const CheckBox& valinta : {chkUArvoon, chkYhtenainen}) valinta.KunKlikataan(kerros);
  lvwKerrokset.KunMuuttuu([this] { Nosta(KerrosVaihtui); });
  cmdLisaaKerros.Nostaa(RakKerLisaa);
  cmdKopioiKerros.Nostaa(RakKerKopioi);
  cmdPoistaKerros.Nostaa(RakKerPoista);
  cmdSisaanpain.Nostaa(RakKerSiirraSisaanPain);
  cmdUlospain.Nostaa(RakKerSiirraUlosPain);
  cmdSulje.Nostaa(SuljeKlikattu);
}
