// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/frmRakennekirjasto.h"

frmRakennekirjasto::frmRakennekirjasto() : Lomake("frmRakennekirjasto") {
  for (const ComboBox& ehto : {cmbRakennetyyppi, cmbAikakausi, cmbKirjasto})
    ehto.KunMuuttuu([this] { Nosta(SuodatinMuuttui); });
  for (const TextBox& ehto : {txtHaku, txtUvahintaan, txtUenintaan})
    ehto.KunMuuttuu([this] { Nosta(SuodatinMuuttui); });
  lvwRakenteet.KunMuuttuu([this] { Nosta(RakenneVaihtui); });
  lvwRakenteet.KunKlikataan([this] { cmdOk.Nakyva() ? Nosta(ValitseKlikattu) : Nosta(MuokkaaKlikattu); });
  cmdUusi.Nostaa(UusiKlikattu);
  cmdMuokkaa.Nostaa(MuokkaaKlikattu);
  cmdKopioi.Nostaa(KopioiKlikattu);
  cmdPoista.Nostaa(PoistaKlikattu);
  cmdTuo.Nostaa(TuoKlikattu);
  cmdVie.Nostaa(VieKlikattu);
  cmdOk.Nostaa(ValitseKlikattu);
  cmdPeruuta.Nostaa(SuljeKlikattu);
}
