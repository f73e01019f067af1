// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmElinkaarenYmparistoVaikutukset.h"

frmElinkaarenYmparistoVaikutukset::Laji::Laji(const Lomake& lomake, const std::string& sana, const char* yksikko)
    : txt(lomake, "txt" + sana),
      lblYksikko(lomake, yksikko),
      txtYhteensa(lomake, "txtYhteensa" + sana),
      lblIlman(lomake, "lblIlman" + sana) {}

frmElinkaarenYmparistoVaikutukset::frmElinkaarenYmparistoVaikutukset()
    : Muokkauslomake("frmElinkaarenYmparistoVaikutukset") {
  TreeView1.KunMuuttuu([this] { Nosta(SolmuValittu); });
  NostaaKunKelpaa(Command1, ProfiiliKlikattu);
  OkKlikattu = PeruutaKlikattu = [this] { Sulje(); };
}
