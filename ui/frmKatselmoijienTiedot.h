// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The auditors of the audited object: six contact fields of each (job title, name, telephone, mobile, fax, e-mail).
class frmKatselmoijienTiedot : public Lomake {
 public:
  frmKatselmoijienTiedot();

  std::function<void()> OkKlikattu;
  std::function<void()> PeruutaKlikattu;
  /// The person wants their own data from the settings in the fields.
  std::function<void()> HaeOmatKlikattu;

  std::array<TextBox, 6> txtLVI = Kuusi<TextBox>(*this, "txtLVI");  // HVAC auditor
  std::array<TextBox, 6> txtSah = Kuusi<TextBox>(*this, "txtSah");  // electrical auditor

  CommandButton cmdHaeOmat{*this, "cmdHaeOmat"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};
};
