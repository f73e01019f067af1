// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSyotaTuntiTiedot.h"

#include <algorithm>

#include "kernel/Kellonajat.h"
#include "kernel/Luvut.h"
#include "ui/Kenttatarkistus.h"

namespace {

constexpr int kMinuuttejaTunnissa = 60, kMinuuttejaVuorokaudessa = 1440;

}  // namespace

frmSyotaTuntiTiedot::frmSyotaTuntiTiedot() : Lomake("frmSyotaTuntiTiedot") {
  txtAlkaa.KunMuuttuu([this] { AlkaaKirjoitettu(); });
  txtAlkaa.KunPoistutaan([this] {
    if (LueKellonaika(txtAlkaa.Teksti())) txtAlkaa.Teksti(KellonaikaTekstina(alkaa_));
  });
  txtTunteja.KunMuuttuu([this] { TunnitKirjoitettu(); });
  cmdOk.KunKlikataan([this] {
    hyvaksytty_ = TarkistaLukukentat(*this);
    if (hyvaksytty_) Sulje();
  });
  cmdPeruuta.KunKlikataan([this] { Sulje(); });
}

Kellonaika frmSyotaTuntiTiedot::Paattyy() const { return {(alkaa_.minuutit + kesto_) % kMinuuttejaVuorokaudessa}; }

void frmSyotaTuntiTiedot::NaytaPaattyy() const { txtPaattyy.Teksti(KellonaikaTekstina(Paattyy())); }

void frmSyotaTuntiTiedot::AlkaaKirjoitettu() {
  alkaa_ = LueKellonaika(txtAlkaa.Teksti()).value_or(alkaa_);
  NaytaPaattyy();
}

/// A length that doesn't do is told of at OK.
void frmSyotaTuntiTiedot::TunnitKirjoitettu() {
  const auto tunnit = LueLuku(txtTunteja.Teksti());
  if (!tunnit || *tunnit <= 0 || *tunnit > kMinuuttejaVuorokaudessa / kMinuuttejaTunnissa) return;
  kesto_ = std::max(1, PyoristaKokonaisluvuksi(*tunnit * kMinuuttejaTunnissa));
  NaytaPaattyy();
}

bool frmSyotaTuntiTiedot::Kysy(Kellonaika& alkaa, Kellonaika& paattyy) {
  alkaa_ = alkaa;
  kesto_ = paattyy.minuutit - alkaa.minuutit;
  if (kesto_ <= 0) kesto_ += kMinuuttejaVuorokaudessa;
  txtAlkaa.Teksti(KellonaikaTekstina(alkaa_));
  txtTunteja.Luku(static_cast<double>(kesto_) / kMinuuttejaTunnissa, "0.0#");
  NaytaPaattyy();
  hyvaksytty_ = false;
  NaytaModaalisena();
  if (!hyvaksytty_) return false;
  alkaa = alkaa_;
  paattyy = Paattyy();
  return true;
}
