// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmLammonTuotonJaJaonHaviot.h"

#include "kernel/Luvut.h"

namespace {

constexpr std::string_view kHavio = "### ##0.00";
constexpr std::string_view kHyotysuhdeAvattaessa = "### ##0.0";
constexpr std::string_view kHyotysuhde = "0.0";

double HyotysuhdeAvattaessa(double havio, double yhteensa) { return yhteensa <= 0 ? 0 : (1 - havio / yhteensa) * 100; }

}  // namespace

frmLammonTuotonJaJaonHaviot::frmLammonTuotonJaJaonHaviot() : Lomake("frmLammonTuotonJaJaonHaviot") {
  txtSaatoHaviot.KunMuuttuu([this] { HavioKirjoitettu(txtSaatoHaviot, txtHyotysuhdeSaato); });
  txtLammonTuotonHaviot.KunMuuttuu([this] { HavioKirjoitettu(txtLammonTuotonHaviot, txtHyotysuhdeLammonTuotto); });
  cmdSulje.KunKlikataan([this] { Sulje(); });
}

void frmLammonTuotonJaJaonHaviot::NaytaHaviot(double yhteensa, double erotus, double saatohaviot, double tuotonHaviot) {
  nettolampo_ = yhteensa - erotus;
  txtSaatoHaviot.Luku(saatohaviot, kHavio);
  txtLammonTuotonHaviot.Luku(tuotonHaviot, kHavio);
  TaytaYhteensa(saatohaviot + tuotonHaviot);
  txtHyotysuhdeLammonTuotto.Luku(HyotysuhdeAvattaessa(tuotonHaviot, yhteensa), kHyotysuhdeAvattaessa);
  txtHyotysuhdeSaato.Luku(HyotysuhdeAvattaessa(saatohaviot, yhteensa), kHyotysuhdeAvattaessa);
  NaytaModaalisena();
}

void frmLammonTuotonJaJaonHaviot::HavioKirjoitettu(const TextBox& havio, const TextBox& hyotysuhde) {
  if (!LueLuku(txtSaatoHaviot.Teksti()) || !LueLuku(txtLammonTuotonHaviot.Teksti())) return;
  TaytaYhteensa(txtSaatoHaviot.Luku() + txtLammonTuotonHaviot.Luku());
  hyotysuhde.Luku(Hyotysuhde(havio.Luku()), kHyotysuhde);
}

void frmLammonTuotonJaJaonHaviot::TaytaYhteensa(double haviot) {
  txtHaviotYhteensa.Luku(haviot, kHavio);
  txtHyotysuhdeYhteensa.Luku(Hyotysuhde(txtHaviotYhteensa.Luku()), kHyotysuhde);
}

double frmLammonTuotonJaJaonHaviot::Hyotysuhde(double havio) const {
  const double jakaja = havio + nettolampo_;
  return jakaja == 0 ? 0 : nettolampo_ * 100 / jakaja;
}
