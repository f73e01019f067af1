// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmIlmanvaihtokoneenKayntiajat.h"

#include "ui/Kenttatarkistus.h"
#include "ui/Lomakekaannos.h"

frmIlmanvaihtokoneenKayntiajat::Rivi::Rivi(const Lomake& lomake, const std::string& numero)
    : kentat{TextBox(lomake, "txtKayntiJaksojenLkm" + numero),
             TextBox(lomake, "txtAlkaa" + numero),
             TextBox(lomake, "txtPaattyy" + numero),
             TextBox(lomake, "txtTuloIlmavirtaProsentti" + numero),
             TextBox(lomake, "txtTsp" + numero),
             TextBox(lomake, "txtdTPuhallin" + numero)},
      tunnit(lomake, "txtTunnit" + numero),
      cmdTunteina(lomake, "cmdTunteina" + numero) {}

frmIlmanvaihtokoneenKayntiajat::frmIlmanvaihtokoneenKayntiajat() : Muokkauslomake("frmIlmanvaihtokoneenKayntiajat") {
  TaytaValinta(*this, cmbKayntiAikojenSyottoTapa);
  for (int i = 1; i <= kRiveja; ++i) rivit.emplace_back(*this, std::to_string(i));
  for (std::size_t i = 0; i < rivit.size(); ++i) KuunteleRivia(i);
  cmbKayntiAikojenSyottoTapa.KunMuuttuu([this] {
    if (!TarkistaLukukentat(*this)) return cmbKayntiAikojenSyottoTapa.Indeksi(syottotapa_);
    syottotapa_ = cmbKayntiAikojenSyottoTapa.Indeksi();
    Nosta(SyottotapaValittu);
  });
  lvwJaksot.KunMuuttuu([this] {
    if (lvwJaksot.Indeksi() < 0 || !TarkistaLukukentat(*this)) return lvwJaksot.Indeksi(jakso_);
    jakso_ = lvwJaksot.Indeksi();
    Nosta(JaksoValittu);
  });
  lvwJaksot.KunKlikataan([this] { rivit.front().kentat.front().Kohdista(); });
  NostaaKunKelpaa(cmdKopioiMuihin, KopioiMuihinKlikattu);
}

void frmIlmanvaihtokoneenKayntiajat::KuunteleRivia(std::size_t rivi) {
  for (const TextBox& kentta : rivit[rivi].kentat) {
    kentta.KunMuuttuu([this, rivi] { Nosta(KenttaMuuttui, rivi); });
    kentta.KunPoistutaan([this, rivi] { Nosta(KenttaJatetty, rivi); });
  }
  rivit[rivi].cmdTunteina.KunKlikataan([this, rivi] {
    if (TarkistaLukukentat(*this)) Nosta(TunteinaKlikattu, rivi);
  });
}

void frmIlmanvaihtokoneenKayntiajat::ValitseSyottotapa(int tapa) {
  cmbKayntiAikojenSyottoTapa.Indeksi(tapa);
  syottotapa_ = tapa;
}

void frmIlmanvaihtokoneenKayntiajat::ValitseJakso(int rivi) {
  lvwJaksot.Indeksi(rivi);
  jakso_ = lvwJaksot.Indeksi();
}
