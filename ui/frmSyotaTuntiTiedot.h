// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Variantti.h"
#include "ui/Ohjaimet.h"

/// A running time given by its start and its length in hours.
class frmSyotaTuntiTiedot : public Lomake {
 public:
  frmSyotaTuntiTiedot();

  /// Shows the running time and waits; equal times are a whole day. True when approved: the two hold the new values
  /// then. The length is kept in whole minutes, 1 to 1440; one that wasn't edited stays exact.
  bool Kysy(Kellonaika& alkaa, Kellonaika& paattyy);

  TextBox txtAlkaa{*this, "txtAlkaa"};      // hh:mm
  TextBox txtTunteja{*this, "txtTunteja"};  // h
  TextBox txtPaattyy{*this, "txtPaattyy"};  // hh:mm, read only
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 private:
  Kellonaika Paattyy() const;
  void NaytaPaattyy() const;
  void AlkaaKirjoitettu();
  void TunnitKirjoitettu();

  Kellonaika alkaa_;
  std::int32_t kesto_ = 0;  // minutes
  bool hyvaksytty_ = false;
};
