// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmRakenteet.h"

#include "ui/Kenttatarkistus.h"
#include "ui/Lomakekaannos.h"

namespace {

constexpr int kVarjostussivu = 2;
constexpr std::int32_t kIkkunat = 3;  // kind shown

template <class K, class... L>
void AsetaKaytossa(bool kaytossa, const K& kahva, const L&... muut) {
  kahva.Kaytossa(kaytossa);
  (muut.Kaytossa(kaytossa), ...);
}

}  // namespace

frmRakenteet::frmRakenteet() : Muokkauslomake("frmRakenteet") {
  for (const ComboBox& valinta :
       {cmbRakennetyyppi, cmbTyyppi, cmbSuuntaus, cmbYlalipanTyyppi, cmbSivulipanTyyppi, cmbHorisVarjTyyppi})
    TaytaValinta(*this, valinta);
  cmbRakennetyyppi.Indeksi(naytettavatRivi_);
  KuunteleLuetteloa();
  KuunteleRakennetta();
  KuunteleKerroksia();
}

void frmRakenteet::KuunteleLuetteloa() {
  cmbRakennetyyppi.KunMuuttuu([this] {
    if (!TarkistaLukukentat(*this)) return cmbRakennetyyppi.Indeksi(naytettavatRivi_);
    naytettavatRivi_ = cmbRakennetyyppi.Indeksi();
    Nosta(NaytettavatValittu);
    if (Naytettavat() == kIkkunat && tilanne_.ikkuna) tabRakenne.Indeksi(kVarjostussivu);
  });
  cmdHaeKirjastosta.Nostaa(HaeKirjastostaKlikattu);
}

void frmRakenteet::KuunteleRakennetta() {
  chkLaskeUarvoMateriaaleista.KunKlikataan([this] {
    txtUarvo.Kaytossa(!chkLaskeUarvoMateriaaleista.Valittu());
    Nosta(UarvonLahdeKlikattu);
  });
  cmbTyyppi.KunMuuttuu([this] { Nosta(RajoittuminenValittu); });
  for (const TextBox& kentta : {txtPintavastusSisa, txtPintavastusUlko})
    kentta.KunMuuttuu([this] { Nosta(PintavastusMuuttui); });
  cmbYlalipanTyyppi.KunMuuttuu([this] { Nosta(VarjostusValittu, kYlalippa); });
  cmbSivulipanTyyppi.KunMuuttuu([this] { Nosta(VarjostusValittu, kSivulippa); });
  cmbHorisVarjTyyppi.KunMuuttuu([this] { Nosta(VarjostusValittu, kHorisontti); });
}

void frmRakenteet::KuunteleKerroksia() {
  lvwKerrokset.KunMuuttuu([this] { PaivitaKerrosnapit(); });
  lvwKerrokset.KunKlikataan([this] { NostaKunKelpaa(RakKerMuokkaa); });
  NostaaKunKelpaa(cmdRakKerLisaa, RakKerLisaa);
  NostaaKunKelpaa(cmdRakKerMuokkaa, RakKerMuokkaa);
  NostaaKunKelpaa(cmdRakKerKopioi, RakKerKopioi);
  NostaaKunKelpaa(cmdRakKerPoista, RakKerPoista);
  NostaaKunKelpaa(cmdRakKerSiirraSisaanPain, RakKerSiirraSisaanPain);
}

std::int32_t frmRakenteet::Naytettavat() const { return naytettavatRivi_ > 0 ? naytettavatRivi_ - 1 : kKaikki; }

void frmRakenteet::Naytettavat(std::int32_t rakennetyyppi) {
  naytettavatRivi_ = rakennetyyppi == kKaikki ? 0 : rakennetyyppi + 1;
  cmbRakennetyyppi.Indeksi(naytettavatRivi_);
}

void frmRakenteet::PaivitaKentat(const Tilanne& tilanne) {
  tilanne_ = tilanne;
  const bool v = tilanne.valittu, ikkuna = v && tilanne.ikkuna;
  AsetaKaytossa(v, cmdHaeKirjastosta, txtNimi, txtKuvaus, txtRakenneala, chkLaskeUarvoMateriaaleista,
                txtPintavastusSisa, txtPintavastusUlko, txtPistemaiset, txtPistemaisetWpK, txtViivamaiset,
                txtViivamaisetWpK, txtRw, txtPaloluokka, lvwKerrokset, cmdRakKerLisaa);
  AsetaKaytossa(v && !tilanne.kerroksia, txtPaksuus, txtKerrostenMassaYht);
  txtUarvo.Kaytossa(v && !chkLaskeUarvoMateriaaleista.Valittu());
  cmbTyyppi.Kaytossa(v && tilanne.rajoittuu);
  lblSuuntaus.Nakyva(ikkuna);
  cmbSuuntaus.Nakyva(ikkuna);
  AsetaKaytossa(ikkuna, txtAurinkoenergianlapaisy, txtKarmikerroin, txtVerhokerroin, txtKokonaisvarjostuskerroin,
                txtYlalipanVarjostuskulma, txtSivulipanVarjostuskulma, txtYmparistonVarjostuskulma);
  if (!ikkuna && tabRakenne.Indeksi() == kVarjostussivu) tabRakenne.Indeksi(0);
  tabRakenne.SivuKaytossa(kVarjostussivu, ikkuna);
  PaivitaKerrosnapit();
}

void frmRakenteet::PaivitaKerrosnapit() {
  const bool valittu = tilanne_.valittu && lvwKerrokset.Indeksi() >= 0;
  AsetaKaytossa(valittu, cmdRakKerMuokkaa, cmdRakKerKopioi, cmdRakKerPoista);
  cmdRakKerSiirraSisaanPain.Kaytossa(valittu && lvwKerrokset.Indeksi() > 0);
}
