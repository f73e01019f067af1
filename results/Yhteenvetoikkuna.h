// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "building/Muutosilmoitus.h"
#include "ui/frmYhteenveto.h"

class clsRakennus;
class clsYhteenveto;

/// The window of a building's yearly summary: made when it is first shown, and follows every commit and every change of
/// the currency and the VAT while it is open.
class Yhteenvetoikkuna {
 public:
  explicit Yhteenvetoikkuna(clsRakennus& rakennus);

  /// Shows the present figures, or brings the window to front. Error 9999 of the calculation.
  void Nayta();

 private:
  void Paivita();
  void Tayta(clsYhteenveto& yhteenveto);

  clsRakennus& rakennus_;
  frmYhteenveto lomake_;
  Muutostilaus tilaus_;
};
