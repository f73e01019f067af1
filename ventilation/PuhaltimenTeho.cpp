// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/PuhaltimenTeho.h"

#include <algorithm>

#include "kernel/Virhe.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/Puhallinlaskenta.h"
#include "ventilation/clsKaksiNopOikosulkuMoottori.h"
#include "ventilation/clsVoimasiirto.h"

namespace {

constexpr double kTaysi = 100;                                // %
constexpr double kPieninOsavirta = 33, kSuurinOsavirta = 66;  // %
constexpr double kMoottorinYlimitoitus = 1.3;
constexpr double kOsanopeudenLisa = 1.2;

bool OnOsanopeudenVirta(double x) { return x >= kPieninOsavirta && x <= kSuurinOsavirta; }

}  // namespace

bool PuhaltimenTeho::OnVirta(double x) const noexcept {
  switch (jarjestelma_) {
    case Kaksinopeus:
      return OnOsanopeudenVirta(x) || x >= kTaysi;
    case MuuttuvaIlmavirta:
      return clsMivSaato::OnVirta(x);
    default:
      return true;
  }
}

double PuhaltimenTeho::Teho(double x) {
  for (const Virranteho& kysytty : muisti_)
    if (kysytty.x == x) return kysytty.teho;
  const double teho = jarjestelma_ == Kaksinopeus && x >= kTaysi ? Taysteho() : Osateho(x);
  muisti_[seuraava_++ % muisti_.size()] = {x, teho};
  return teho;
}

double PuhaltimenTeho::Osateho(double x) {
  switch (jarjestelma_) {
    case Kaksinopeus:
      return KaksiNopPuhaltimenOsateho(x);
    case MuuttuvaIlmavirta:
      return MivPuhaltimenOsateho(x);
    default:
      return Taysteho();
  }
}

clsMivSaato::Toimintapiste PuhaltimenTeho::KaksinopeuksinenPiste() const {
  clsMivSaato::Toimintapiste piste;
  piste.P4 = IteroiAkseliteho(Taysteho(), [&](double P4) {
    const double P3 = clsVoimasiirto{saato_.VoimansiirtoID, P4}.Moottoriteho();
    if (!(P3 > 0)) return 0.0;
    piste.P3N = kMoottorinYlimitoitus * P3;
    return OttotehoHyotysuhteella(P3, clsKaksiNopOikosulkuMoottori{piste.P3N}.HyotySuhde11Teho());
  });
  return piste;
}

double PuhaltimenTeho::KaksiNopPuhaltimenOsateho(double x) {
  if (!OnOsanopeudenVirta(x)) return NaytaVirhe(virheet::kOsailmavirtaRajojenUlkopuolella), 0;
  if (!(Taysteho() > 0)) return 0;
  if (!piste_) piste_ = KaksinopeuksinenPiste();
  if (piste_->P4 == 0) return 0;
  const double osa = x / kTaysi;
  const clsVoimasiirto voimansiirto{saato_.VoimansiirtoID, kOsanopeudenLisa * piste_->P4 * osa * osa * osa};
  const clsKaksiNopOikosulkuMoottori moottori{piste_->P3N};
  return std::min(OttotehoHyotysuhteella(voimansiirto.Moottoriteho(), moottori.HyotySuhde12Teho()), Taysteho());
}

double PuhaltimenTeho::MivPuhaltimenOsateho(double x) {
  if (!piste_) piste_ = saato_.LaskeToimintapiste();
  return saato_.MivTehontarve(x, *piste_);
}
