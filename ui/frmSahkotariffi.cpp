// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSahkotariffi.h"

#include <cmath>

#include "kernel/Luvut.h"
#include "tekstit/lomakkeet_tariffit.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kOsuus = "0.##";

}  // namespace

frmSahkotariffi::frmSahkotariffi()
    : Tariffilomake({"frmSahkotariffi", "lstSahkotariffit", "txtKulutus", "txtKaikkiMaksutYhteensa"}),
      txtEnergiaYhteensa{TextBox(*this, "txtEnergiaYhteensa1"), TextBox(*this, "txtEnergiaYhteensa2"),
                         TextBox(*this, "txtEnergiaYhteensa3"), TextBox(*this, "txtEnergiaYhteensa4"),
                         TextBox(*this, "txtEnergiaYhteensa5"), TextBox(*this, "txtEnergiaYhteensa6")} {
  TaytaValinta(*this, cmbSahkoVeroTyyppi);
}

void frmSahkotariffi::TyhjennaKentat() const {
  Tariffilomake::TyhjennaKentat();
  LblSataProsenttia.Otsikko("");
}

void frmSahkotariffi::NaytaTehorivi(const std::string& maksu, bool nakyva) const {
  for (const std::string& nimi : {"lbl" + maksu, "Txt" + maksu, "lblYks" + maksu, "txt" + maksu + "nPeruste",
                                  "lblYks" + maksu + "nPeruste", "txt" + maksu + "Yhteensa"})
    Etsi(nimi).Nakyva(nakyva);
}

void frmSahkotariffi::NaytaTehomaksut(bool teho, bool loisteho) const {
  NaytaTehorivi("Tehomaksu", teho);
  NaytaTehorivi("Loistehomaksu", loisteho);
  Etsi("lblPeruste").Nakyva(teho || loisteho);
}

void frmSahkotariffi::NaytaVero(std::string otsikko, bool luokat) const {
  Etsi("lblVeroHinta").Teksti(std::move(otsikko));
  cmbSahkoVeroTyyppi.Nakyva(luokat);
}

void frmSahkotariffi::NaytaOsuudet(double summa, bool taysi) const {
  constexpr double kKaikki = 100;
  std::string teksti = Muotoile(summa, kOsuus) + " %";
  if (!taysi)
    teksti += ", " + Teksti(summa < kKaikki ? tekstit::kOsuuksistaPuuttuu : tekstit::kOsuuksiaLiikaa) + " " +
              Muotoile(std::abs(kKaikki - summa), kOsuus) + " %";
  LblSataProsenttia.Otsikko(std::move(teksti));
}
