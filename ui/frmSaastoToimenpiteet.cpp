// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSaastoToimenpiteet.h"

#include "ui/Lomakekaannos.h"

frmSaastoToimenpiteet::frmSaastoToimenpiteet() : Muokkauslomake("frmSaastoToimenpiteet") {
  TaytaValinta(*this, cmbNakymatasonValinta);
  cmbNakymatasonValinta.KunMuuttuu([this] { Nosta(NakymatasonValintaCmbKlikattu, cmbNakymatasonValinta.Indeksi()); });
  lvwKohdentaminen.KunMuuttuu([this] { Nosta(TreeViewKlikattu); });
  lvwKohdentaminen.KunKlikataan([this] { Nosta(SolmuaPainettu); });
  lvwKohdentaminen.KunLisataan([this] { cmdLisaaUusi.Kohde().KayttajaPainaa(); });
  lvwKohdentaminen.KunPoistetaan([this] { Nosta(SolmuPoistettava); });
  OkKlikattu = PeruutaKlikattu = [this] { Sulje(); };
}
