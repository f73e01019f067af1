// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmToimenpiteidenJarjestelija.h"

#include "ui/Lomakekaannos.h"

frmToimenpiteidenJarjestelija::frmToimenpiteidenJarjestelija() : Muokkauslomake("frmToimenpiteidenJarjestelija") {
  for (const ComboBox& valinta : {cmbVaihtoehtoSuodatus, cmbNakymatasonValinta, cmbSuure}) {
    TaytaValinta(*this, valinta);
    valinta.Indeksi(0);
  }
  chkLaskeHeti.Valittu(true);
  cmbNakymatasonValinta.KunMuuttuu([this] { Nosta(NakymatasonValintaCmbKlikattu); });
  cmbVaihtoehtoSuodatus.KunMuuttuu([this] { Nosta(VaihtoehtoSuodatusCmbKlikattu); });
  cmbSuure.KunMuuttuu([this] { Nosta(SuureVaihtui); });
  lvwToimenpiteet.KunRastitetaan(
      [this](int rivi, bool valittu) { Nosta(TehtyToimenpideChekattu, lvwToimenpiteet.Avain(rivi), valittu); });
  lvwValitut.KunMuuttuu([this] { Nosta(RiviVaihtui); });
  lvwValitut.KunPoistetaan([this] {
    if (cmdPoista.Kaytossa()) Nosta(PoistaValittuKlikattu, lvwValitut.Valittu());
  });
  lvwValitut.KunJarjestetaan(
      [this](int rivi, int edellinen) { return SaaSiirtaa(lvwValitut.Avain(rivi), lvwValitut.Avain(edellinen)); },
      [this](int rivi, int edellinen) {
        Nosta(ValittuToimenpideSiirtyi, lvwValitut.Avain(rivi), lvwValitut.Avain(edellinen));
      });
  cmdLaske.Nostaa(LaskeKlikattu);
  chkLaskeHeti.KunKlikataan([this] {
    if (chkLaskeHeti.Valittu()) Nosta(LaskeKlikattu);
  });
  cmdYlos.KunKlikataan([this] { Nosta(ValittuToimenpideSiirtyiYlos, lvwValitut.Valittu()); });
  cmdAlas.KunKlikataan([this] { Nosta(ValittuToimenpideSiirtyiAlas, lvwValitut.Valittu()); });
  cmdPoista.KunKlikataan([this] { Nosta(PoistaValittuKlikattu, lvwValitut.Valittu()); });
  cmdTaulukko2een.Nostaa(Taulukko2eenKlikattu);
}
