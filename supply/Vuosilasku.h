// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The bill of a year by its parts, € without VAT.
struct Vuosilasku {
  double energia = 0;   ///< energy fees; of water the prices per m³
  double teho = 0;      ///< power fee
  double loisteho = 0;  ///< reactive power fee
  double perus = 0;     ///< basic fee
  double muu = 0;       ///< other fees
  double vero = 0;      ///< energy tax

  double Yhteensa() const { return energia + teho + loisteho + perus + muu + vero; }
};

/// What a tariff's dialog multiplies the stored amounts by, and divides the written ones by: the coefficient of the
/// display currency, with the VAT rate `alv` (%) of the tariff when its fees are shown with it.
double Tariffikerroin(double alv, bool maksutSisaltavatAlvn);
