// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Puulomake.h"

/// The water of the building: consumer groups, the temperatures of domestic and process water, and the circulation
/// loop. cmdJakauma isn't shown and does nothing: a heading of the list opens the chart of its column.
class frmVedenKulutus : public Puulomake {
 public:
  frmVedenKulutus();

  /// A field or a box of the water data was changed, and the number fields hold good values.
  std::function<void()> PerustiedotMuuttuivat;
  /// Column of the list, from 0.
  std::function<void(int sarake)> JakaumaKlikattu;

  /// As NaytaVertailu; a negative difference catches the eye.
  void NaytaVesivertailu(double toteutunut, std::optional<double> laskettu) const;
  /// Raises the event for a field that the person has changed but not left. False when a number field isn't good.
  bool OtaKentat();
  /// Fields that are being written in can be filled at once.
  void HylkaaKentat() const;

  // Domestic water, process water; °C.
  std::array<TextBox, 2> txtKylmanVedenLampotila{TextBox(*this, "txtKylmanVedenLampotila0"),
                                                 TextBox(*this, "txtKylmanVedenLampotila1")};
  std::array<TextBox, 2> txtLampimanVedenLampotila{TextBox(*this, "txtLampimanVedenLampotila0"),
                                                   TextBox(*this, "txtLampimanVedenLampotila1")};
  CheckBox chkSahkoLampoNormaaliLKV{*this, "chkSahkoLampoNormaaliLKV"};
  CheckBox chkSahkoLampoProsessi{*this, "chkSahkoLampoProsessi"};
  TextBox txtLKVKiertovirtaama{*this, "txtLKVKiertovirtaama"};          // dm³/s
  TextBox txtLKVJaahtyma{*this, "txtLKVJaahtyma"};                      // K
  TextBox txtLKVKiertojohdonHaviot{*this, "txtLKVKiertojohdonHaviot"};  // MWh/a, read only
  TextBox txtLKVHyodynnettavaOsuus{*this, "txtLKVHyodynnettavaOsuus"};  // without effect, read only

 private:
  std::array<TextBox, 6> Kentat() const;
};
