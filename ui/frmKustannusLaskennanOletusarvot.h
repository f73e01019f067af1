// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Avokenttalomake.h"

/// The defaults of the life-cycle reckoning: all given, or none.
class frmKustannusLaskennanOletusarvot : public Avokenttalomake {
 public:
  frmKustannusLaskennanOletusarvot();

  std::function<void()> EhdotuksetKlikattu;

  TextBox Text1{*this, "Text1"};  // calculation period, a
  TextBox Text2{*this, "Text2"};  // interest, %
  TextBox Text3{*this, "Text3"};  // rise of the costs of heat, % a year
  TextBox Text4{*this, "Text4"};  // of electricity
  TextBox Text5{*this, "Text5"};  // of water
  CommandButton cmdEhdotukset{*this, "cmdEhdotukset"};
};
