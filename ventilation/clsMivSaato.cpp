// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsMivSaato.h"

#include "ui/Viestit.h"
#include "ventilation/MivSovitteet.h"
#include "ventilation/Puhallinlaskenta.h"
#include "ventilation/clsKaksiNopOikosulkuMoottori.h"
#include "ventilation/clsOikosulkuMoottori.h"
#include "ventilation/clsVoimasiirto.h"

namespace {

constexpr double kPieninVirta = 30, kSuurinVirta = 100;  // %
constexpr double kNopeudenVaihto = 70;                   // %

/// The flow lies within the fits; shows the message if not.
bool TarkistaVirta(double x) {
  if (clsMivSaato::OnVirta(x)) return true;
  Ilmoita("MIV-puhaltimen osatehon tulee olla välillä 30 - 100 %. Ole hyvä ja korjaa arvo!");
  return false;
}

double Kolmanteen(double x) { return x * x * x; }

}  // namespace

bool clsMivSaato::OnVirta(double x) noexcept { return x >= kPieninVirta && x <= kSuurinVirta; }

bool clsMivSaato::KaksiNopeusmoottori() const {
  return IlmavirranSaatotapa == Kuristus2nop || IlmavirranSaatotapa == Johtosiipi2nop;
}

/// Electric power of a motor of nominal power P3N at the shaft power P3 and the flow x.
double clsMivSaato::Sahkoteho(double P3, double P3N_, double x) const {
  double hyotysuhde = 0;
  if (KaksiNopeusmoottori()) {
    const clsKaksiNopOikosulkuMoottori moottori{P3N_};
    hyotysuhde = x > kNopeudenVaihto ? moottori.HyotySuhde11Teho() : moottori.HyotySuhde12Teho();
  } else {
    hyotysuhde = clsOikosulkuMoottori{P3N_}.HyotySuhde12Teho(P3);
  }
  const double P2 = OttotehoHyotysuhteella(P3, hyotysuhde);
  return IlmavirranSaatotapa == Taajuusmuuttaja ? OttotehoHyotysuhteella(P2, TaajuusMuuttajanHyotySuhde) : P2;
}

clsMivSaato::Toimintapiste clsMivSaato::Iteroi() const {
  if (!TarkistaVirta(IlmavirtaPros) || !(P1 > 0)) return {};
  Toimintapiste tulos;
  tulos.P4 = IteroiAkseliteho(P1, [&](double P4) {
    const double P3 = clsVoimasiirto{VoimansiirtoID, P4}.Moottoriteho();
    if (!(P3 > 0)) return 0.0;
    tulos.P3N = P3N.value_or(P3 / Kolmanteen(IlmavirtaPros / 100));
    return Sahkoteho(P3, tulos.P3N, IlmavirtaPros);
  });
  return tulos;
}

double clsMivSaato::IteroiP4Toimintapisteessa() const try { return Iteroi().P4; } catch (...) {
  return 0;
}

void clsMivSaato::AsetaSovitteenKertoimet(double x, std::int32_t tapa, std::int32_t osuus) {
  const Sovite sovite = MivSovite(x, tapa, osuus).value_or(Sovite{});
  ma2 = sovite.ma2;
  ma1 = sovite.ma1;
  ma0 = sovite.ma0;
}

/// Relative shaft power at x %; leaves the fit in use.
double clsMivSaato::SuhteellinenTeho(double x) {
  AsetaSovitteenKertoimet(x, IlmavirranSaatotapa, PaineenKorotuksenVakioOsuus);
  const double osa = x / 100;
  return ma2 * osa * osa + ma1 * osa + ma0;
}

clsMivSaato::Toimintapiste clsMivSaato::LaskeToimintapiste() try {
  const double vertailu = SuhteellinenTeho(IlmavirtaPros);
  if (vertailu == 0) return {};
  const Toimintapiste piste = Iteroi();
  return {piste.P4 / vertailu, piste.P3N};
} catch (...) {
  return {};
}

double clsMivSaato::MivTehontarve(double x, const Toimintapiste& piste) try {
  if (!TarkistaVirta(x) || piste.P4 == 0) return 0;
  const double P3 = clsVoimasiirto{VoimansiirtoID, SuhteellinenTeho(x) * piste.P4}.Moottoriteho();
  return Sahkoteho(P3, piste.P3N, x);
} catch (...) {
  return 0;
}

double clsMivSaato::MivTehontarve(double x) { return TarkistaVirta(x) ? MivTehontarve(x, LaskeToimintapiste()) : 0; }
