// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// Losses of heat production and distribution, MWh/a, and their efficiencies, per cent. What is edited here is for
/// trying only; nothing is stored.
class frmLammonTuotonJaJaonHaviot : public Lomake {
 public:
  frmLammonTuotonJaJaonHaviot();

  /// Opens with the summary's figures, MWh/a, and waits. The efficiencies at opening are (1 − loss / total) × 100, or 0
  /// when the total isn't above 0; after an edit that of the edited field is Y × 100 / (loss + Y) with the net heat
  /// Y = total − difference.
  void NaytaHaviot(double yhteensa, double erotus, double saatohaviot, double tuotonHaviot);

  TextBox txtSaatoHaviot{*this, "txtSaatoHaviot"};
  TextBox txtLammonTuotonHaviot{*this, "txtLammonTuotonHaviot"};
  TextBox txtHaviotYhteensa{*this, "txtHaviotYhteensa"};
  TextBox txtHyotysuhdeSaato{*this, "txtHyotysuhdeSaato"};
  TextBox txtHyotysuhdeLammonTuotto{*this, "txtHyotysuhdeLammonTuotto"};
  TextBox txtHyotysuhdeYhteensa{*this, "txtHyotysuhdeYhteensa"};
  CommandButton cmdSulje{*this, "cmdSulje"};

 private:
  void HavioKirjoitettu(const TextBox& havio, const TextBox& hyotysuhde);
  void TaytaYhteensa(double haviot);
  double Hyotysuhde(double havio) const;

  double nettolampo_ = 0;  // Y, MWh/a
};
