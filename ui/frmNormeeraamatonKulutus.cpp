// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmNormeeraamatonKulutus.h"

#include "kernel/Luvut.h"
#include "ui/Kenttatarkistus.h"

namespace {

constexpr std::string_view kKuvio = "0.0";

}  // namespace

frmNormeeraamatonKulutus::frmNormeeraamatonKulutus() : Lomake("frmNormeeraamatonKulutus") {
  txtKk_kulutus.KunMuuttuu([this] {
    if (LueLuku(txtKk_kulutus.Teksti())) Aseta(txtKk_kulutus.Luku(), txtKk_kulutus.Luku() * 12);
    txtVuosi_kulutus.Luku(vuosiOsuus_, kKuvio);
  });
  txtVuosi_kulutus.KunMuuttuu([this] {
    if (LueLuku(txtVuosi_kulutus.Teksti())) Aseta(txtVuosi_kulutus.Luku() / 12, txtVuosi_kulutus.Luku());
    txtKk_kulutus.Luku(kkOsuus_, kKuvio);
  });
  cmdOk.KunKlikataan([this] {
    hyvaksytty_ = TarkistaLukukentat(*this);
    if (hyvaksytty_) Sulje();
  });
  cmdPeruuta.KunKlikataan([this] { Sulje(); });
}

void frmNormeeraamatonKulutus::Aseta(double kkOsuus, double vuosiOsuus) {
  kkOsuus_ = kkOsuus;
  vuosiOsuus_ = vuosiOsuus;
}

bool frmNormeeraamatonKulutus::Kysy(double& kkOsuus, double& vuosiOsuus) {
  Aseta(kkOsuus, vuosiOsuus);
  txtKk_kulutus.Luku(kkOsuus_, kKuvio);
  txtVuosi_kulutus.Luku(vuosiOsuus_, kKuvio);
  hyvaksytty_ = false;
  NaytaModaalisena();
  if (!hyvaksytty_) return false;
  kkOsuus = kkOsuus_;
  vuosiOsuus = vuosiOsuus_;
  return true;
}
