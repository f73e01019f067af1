// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The constant share of the heat consumption, which doesn't follow the weather: per month and per year, MWh. Each of
/// the two fields follows the other.
class frmNormeeraamatonKulutus : public Lomake {
 public:
  frmNormeeraamatonKulutus();

  /// Shows the two shares and waits. True when approved: they hold the new values then. A share that wasn't edited
  /// keeps its exact value though the form shows it rounded.
  bool Kysy(double& kkOsuus, double& vuosiOsuus);

  Label LblNimi{*this, "LblNimi"};
  TextBox txtKk_kulutus{*this, "txtKk_kulutus"};        // MWh a month
  TextBox txtVuosi_kulutus{*this, "txtVuosi_kulutus"};  // MWh a year
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 private:
  void Aseta(double kkOsuus, double vuosiOsuus);

  double kkOsuus_ = 0;
  double vuosiOsuus_ = 0;
  bool hyvaksytty_ = false;
};
