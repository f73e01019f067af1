// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/frmMateriaalikirjasto.h"

frmMateriaalikirjasto::frmMateriaalikirjasto() : Lomake("frmMateriaalikirjasto") {
  for (const ComboBox& ehto : {cmbRyhma, cmbKirjasto}) ehto.KunMuuttuu([this] { Nosta(SuodatinMuuttui); });
  txtHaku.KunMuuttuu([this] { Nosta(SuodatinMuuttui); });
  lvwMateriaalit.KunMuuttuu([this] { Nosta(MateriaaliVaihtui); });
  lvwMateriaalit.KunKlikataan([this] { cmdOk.Nakyva() ? Nosta(ValitseKlikattu) : Nosta(MuokkaaKlikattu); });
  cmdUusi.Nostaa(UusiKlikattu);
  cmdMuokkaa.Nostaa(MuokkaaKlikattu);
  cmdKopioi.Nostaa(KopioiKlikattu);
  cmdPoista.Nostaa(PoistaKlikattu);
  cmdOk.Nostaa(ValitseKlikattu);
  cmdPeruuta.Nostaa(SuljeKlikattu);
}
