// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmIVKoneenPuhaltimienSahkonKaytto.h"

#include "ui/Tekstivarasto.h"

frmIVKoneenPuhaltimienSahkonKaytto::Puhallin::Puhallin(const Lomake& lomake, const std::string& puoli)
    : txtIlmavirta11Teho(lomake, "txtIlmavirta11Teho" + puoli),
      txtSahkoTeho11(lomake, "txtSahkoTeho11" + puoli),
      cmbTeho11TiedonLaatu(lomake, "cmbTeho11TiedonLaatu" + puoli),
      cmdTarkennettu(lomake, "cmdTarkennettu" + puoli),
      txtOminaisteho(lomake, "txtOminaisteho" + puoli),
      txtSahkoOsaTeho(lomake, "txtSahkoOsaTeho" + puoli),
      cmbOsaTehoTiedonLaatu(lomake, "cmbOsaTehoTiedonLaatu" + puoli) {
  const auto laadut = Valintalista(lomake.Nimi(), "cmbTiedonLaatu");
  for (const ComboBox& valinta : {cmbTeho11TiedonLaatu, cmbOsaTehoTiedonLaatu}) valinta.Rivit(laadut);
}

frmIVKoneenPuhaltimienSahkonKaytto::frmIVKoneenPuhaltimienSahkonKaytto()
    : Muokkauslomake("frmIVKoneenPuhaltimienSahkonKaytto") {
  for (const Puoli puoli : {kTulo, kPoisto}) Kuuntele(puoli);
  for (const TextBox& kentta : {txtTeho11Prosentti, txtOsaTehoProsentti})
    kentta.KunMuuttuu([this] { Nosta(IlmavirtaMuuttui); });
}

void frmIVKoneenPuhaltimienSahkonKaytto::Kuuntele(Puoli puoli) {
  const Puhallin& puhallin = puhaltimet[puoli];
  puhallin.txtSahkoTeho11.KunMuuttuu([this, puoli] { Nosta(TaysiTehoMuuttui, puoli); });
  puhallin.cmbTeho11TiedonLaatu.KunMuuttuu([this, puoli] { Nosta(TaydenTehonLaatuValittu, puoli); });
  puhallin.cmdTarkennettu.KunKlikataan([this, puoli] { Nosta(TarkennettuKlikattu, puoli); });
  puhallin.txtSahkoOsaTeho.KunMuuttuu([this, puoli] { Nosta(OsaTehoMuuttui, puoli); });
  puhallin.cmbOsaTehoTiedonLaatu.KunMuuttuu([this, puoli] { Nosta(OsaTehonLaatuValittu, puoli); });
}

void frmIVKoneenPuhaltimienSahkonKaytto::PaivitaKentat(const Tilanne& tilanne) {
  for (const Puoli puoli : {kTulo, kPoisto}) {
    const Puhallin& puhallin = puhaltimet[puoli];
    const bool on = tilanne.onPuhallin[puoli];
    for (const TextBox& kentta : {puhallin.txtIlmavirta11Teho, puhallin.txtSahkoTeho11, puhallin.txtOminaisteho})
      kentta.Kaytossa(on);
    puhallin.cmbTeho11TiedonLaatu.Kaytossa(on);
    puhallin.cmdTarkennettu.Kaytossa(on);
    puhallin.cmbOsaTehoTiedonLaatu.Kaytossa(on && tilanne.osavirta);
  }
  txtTeho11Prosentti.Kaytossa(tilanne.muuttuva);
  txtOsaTehoProsentti.Kaytossa(tilanne.osavirta);
}
