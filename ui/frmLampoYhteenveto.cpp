// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmLampoYhteenveto.h"

#include "kernel/Luvut.h"
#include "ui/Kenttatarkistus.h"
#include "ui/frmJakaumaGraafi.h"
#include "ui/frmLammonTuotonJaJaonHaviot.h"

namespace {

constexpr std::string_view kEnergia = "### ##0.00";
constexpr std::string_view kOminaisarvo = "0.00";

using Rivi = frmLampoYhteenveto::Rivi;

/// The parts of the total, in the order of the form and the chart, with the labels that name them.
struct Osuus {
  const char* otsikko;
  Rivi frmLampoYhteenveto::*rivi;
};
constexpr Osuus kOsuudet[] = {
    {"lblTilojenLammitys", &frmLampoYhteenveto::txtTilojenLammitys},
    {"lblIlmanvaihtokoneet", &frmLampoYhteenveto::txtIlmanvaihtokoneet},
    {"lblKayttoVedenLammitys", &frmLampoYhteenveto::txtKayttoVedenLammitys},
    {"lblProsessiVedenLammitys", &frmLampoYhteenveto::txtProsessiVedenLammitys},
    {"lblMuuLampo", &frmLampoYhteenveto::txtMuuLampo},
};
constexpr Rivi frmLampoYhteenveto::*kLasketutRivit[] = {
    &frmLampoYhteenveto::txtVedenLammitysYht, &frmLampoYhteenveto::txtYhteensa,
    &frmLampoYhteenveto::txtToteutunutKulutus, &frmLampoYhteenveto::txtHaviot, &frmLampoYhteenveto::txtHaviotYhteensa};

std::string IlmanKaksoispistetta(std::string otsikko) {
  if (otsikko.ends_with(':')) otsikko.pop_back();
  return otsikko;
}

void LaskeOminaisarvo(const TextBox& kentta, double megawattitunnit, double jakaja) {
  if (jakaja != 0) kentta.Luku(megawattitunnit / jakaja * 1000, kOminaisarvo);
}

}  // namespace

frmLampoYhteenveto::frmLampoYhteenveto() : Lomake("frmLampoYhteenveto") {
  txtMuuLampo.arvo.KunMuuttuu([this] { MuuLampoKirjoitettu(); });
  txtMuuLampo.arvo.KunPoistutaan([this] { VahvistaMuuLampo(); });
  cmdNaytaGraafi.KunKlikataan([this] { NaytaGraafi(); });
  Command4.KunKlikataan([this] { NaytaHaviot(); });
  cmdKuukausitase.Nostaa(KuukausitaseKlikattu);
  cmdOk.KunKlikataan([this] {
    if (!TarkistaLukukentat(*this)) return;
    VahvistaMuuLampo();
    Nosta(OkKlikattu);
  });
}

void frmLampoYhteenveto::Laske() {
  LaskeYhteensa();
  for (const Osuus& osuus : kOsuudet) LaskeOminaisarvot(this->*osuus.rivi);
  for (const auto rivi : kLasketutRivit) LaskeOminaisarvot(this->*rivi);
}

void frmLampoYhteenveto::LaskeYhteensa() {
  double summa = 0;
  for (const Osuus& osuus : kOsuudet) summa += (this->*osuus.rivi).arvo.Luku();
  txtYhteensa.arvo.Luku(summa, kEnergia);
  txtVedenLammitysYht.arvo.Luku(txtKayttoVedenLammitys.arvo.Luku() + txtProsessiVedenLammitys.arvo.Luku(), kEnergia);
  txtHaviot.arvo.Luku(txtToteutunutKulutus.arvo.Luku() - txtYhteensa.arvo.Luku(), kEnergia);
  txtHaviotYhteensa.arvo.Luku(txtSaatoHaviot.Luku() + txtLammonTuotonHaviot.Luku(), kEnergia);
}

void frmLampoYhteenveto::LaskeOminaisarvot(const Rivi& rivi) const {
  LaskeOminaisarvo(rivi.nelioille, rivi.arvo.Luku(), BruttoAla);
  LaskeOminaisarvo(rivi.kuutioille, rivi.arvo.Luku(), Kokonaistilavuus);
}

void frmLampoYhteenveto::MuuLampoKirjoitettu() {
  if (LueLuku(txtMuuLampo.arvo.Teksti())) Laske();
}

void frmLampoYhteenveto::VahvistaMuuLampo() {
  const auto arvo = LueLuku(txtMuuLampo.arvo.Teksti());
  if (!arvo || !txtMuuLampo.arvo.Muuttunut()) return;
  txtMuuLampo.arvo.Luku(*arvo, kEnergia);
  Nosta(MuuLampoMuuttui, *arvo);
}

void frmLampoYhteenveto::NaytaGraafi() {
  std::vector<std::string> nimet;
  std::vector<double> arvot;
  for (const Osuus& osuus : kOsuudet) {
    nimet.push_back(IlmanKaksoispistetta(Etsi(osuus.otsikko).Teksti()));
    arvot.push_back((this->*osuus.rivi).arvo.Luku());
  }
  frmJakaumaGraafi().NaytaJakauma(KohteenNimi, std::move(nimet), std::move(arvot), "MWh/a");
}

void frmLampoYhteenveto::NaytaHaviot() {
  frmLammonTuotonJaJaonHaviot().NaytaHaviot(txtYhteensa.arvo.Luku(), txtHaviot.arvo.Luku(), txtSaatoHaviot.Luku(),
                                            txtLammonTuotonHaviot.Luku());
}
