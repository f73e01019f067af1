// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// The auditors of the audited object: six contact fields of each (job title, name, telephone, mobile, fax, e-mail).
class frmKatselmoijienTiedot : public Muokkauslomake {
 public:
  frmKatselmoijienTiedot();

  /// The person wants their own data from the settings in the fields.
  std::function<void()> HaeOmatKlikattu;

  std::array<TextBox, 6> txtLVI = Kuusi<TextBox>(*this, "txtLVI");  // HVAC auditor
  std::array<TextBox, 6> txtSah = Kuusi<TextBox>(*this, "txtSah");  // electrical auditor

  CommandButton cmdHaeOmat{*this, "cmdHaeOmat"};
};
