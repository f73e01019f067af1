// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Tariffilomake.h"

/// Water tariffs: clean water and waste water.
class frmVesitariffi : public Tariffilomake {
 public:
  frmVesitariffi() : Tariffilomake({"frmVesitariffi", "lstVesitariffit", "txtVedenkulutusM3a", "txtYhteensa"}) {}

  /// The water tax that came with the tariff is shown to be read, since it costs nothing; 0 isn't.
  void NaytaVesivero(double vero) const {
    for (const char* nimi : {"lblVesivero", "txtVesivero"}) Etsi(nimi).Nakyva(vero != 0);
    txtVesivero.Luku(vero, "### ##0.00");
  }

  // Of a year, read only:
  TextBox txtPuhdasVesiYhteensa{*this, "txtEnergiaYhteensa1"};
  TextBox txtJatevesiYhteensa{*this, "txtEnergiaYhteensa2"};
  TextBox txtVesiYhteensa{*this, "txtVesiYhteensa"};
  TextBox txtVesivero{*this, "txtVesivero"};
};
