// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmIlmanvaihtokone.h"

#include "tekstit/lomakkeet_ilmanvaihto.h"
#include "tekstit/rakennus.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr int kVakioilmavirta = 0, kMuuttuvaIlmavirta = 2;  // rows of the system

struct Periaate {
  const char* kuva;
  bool tulo, poisto;
};
constexpr Periaate kPeriaatteet[] = {
    {"Tuloilmakone", true, false},
    {"TuloilmakonePlusLTO", true, true},
    {"Poistoilmakone", false, true},
    {"TuloPoisto", true, true},
};
constexpr Periaate kTuntematon{"", true, true};

}  // namespace

frmIlmanvaihtokone::frmIlmanvaihtokone() : Muokkauslomake("frmIlmanvaihtokone") {
  for (const ComboBox& valinta : {cmbIVPeriaate, cmbJarjestelmaTyyppi, cmbPuhaltimenVoimansiirtoTapa,
                                  cmbPuhaltimenSaatotapa, cmbVakioPaineOsuus}) {
    TaytaValinta(*this, valinta);
    valinta.KunMuuttuu([this] { Muuttui(); });
  }
  cmbLiittyyTilaan.KunMuuttuu([this] { Muuttui(); });
  chkTuloilmanLammitysSahkoPatterilla.KunKlikataan([this] { Muuttui(); });
  for (const TextBox& kentta : {txtTuloIlmavirta11Teho, txtPoistoIlmavirta11Teho, txtSisaanpuhallusLampotila,
                                txtPoistoLampotila, txtIlmanLampeneminenPuhaltimessa, txtLtoHyotysuhde})
    kentta.KunPoistutaan([this, kentta] {
      if (kentta.Muuttunut()) Nosta(DataMuuttui);
    });
  cmdLto.Nostaa(LtoKlikattu);
  NostaaKunKelpaa(cmdKayntiajat, KayntiajatKlikattu);
  NostaaKunKelpaa(cmdPuhaltimet, PuhaltimetKlikattu);
}

void frmIlmanvaihtokone::Muuttui() {
  PaivitaKentat();
  Nosta(DataMuuttui);
}

void frmIlmanvaihtokone::Tilat(const std::vector<std::string>& nimet) {
  std::vector<std::string> rivit{Teksti(nimet.empty() ? tekstit::kEiTiloja : tekstit::kViiva)};
  rivit.insert(rivit.end(), nimet.begin(), nimet.end());
  cmbLiittyyTilaan.Rivit(rivit);
  cmbLiittyyTilaan.Kaytossa(!nimet.empty());
}

void frmIlmanvaihtokone::PaivitaKentat() {
  const int rivi = cmbIVPeriaate.Indeksi();
  const Periaate& periaate = rivi < 0 ? kTuntematon : kPeriaatteet[rivi];
  const bool talteenotto = periaate.tulo && periaate.poisto;
  const int jarjestelma = cmbJarjestelmaTyyppi.Indeksi();
  imgPeriaate.Kuva(periaate.kuva);
  txtTuloIlmavirta11Teho.Kaytossa(periaate.tulo);
  txtSisaanpuhallusLampotila.Kaytossa(periaate.tulo);
  chkTuloilmanLammitysSahkoPatterilla.Kaytossa(periaate.tulo);
  txtPoistoIlmavirta11Teho.Kaytossa(periaate.poisto);
  txtLtoHyotysuhde.Kaytossa(talteenotto);
  cmdLto.Kaytossa(talteenotto);
  txtPoistoLampotila.Kaytossa(talteenotto && cmbLiittyyTilaan.Indeksi() <= 0);
  cmbPuhaltimenVoimansiirtoTapa.Kaytossa(jarjestelma != kVakioilmavirta);
  cmbPuhaltimenSaatotapa.Kaytossa(jarjestelma == kMuuttuvaIlmavirta);
  cmbVakioPaineOsuus.Kaytossa(jarjestelma == kMuuttuvaIlmavirta);
}
