// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// A dialog with OK and Cancel over fields.
class Muokkauslomake : public Lomake {
 public:
  /// The number fields hold good values (ui/Kenttatarkistus.h).
  std::function<void()> OkKlikattu;
  std::function<void()> PeruutaKlikattu;

  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 protected:
  explicit Muokkauslomake(std::string nimi);
  /// Raises the event if the number fields hold good values; else tells and takes the person to the field.
  bool NostaKunKelpaa(const std::function<void()>& tapahtuma);
  /// The button raises the event so; `tapahtuma` must live as long as the form.
  void NostaaKunKelpaa(const CommandButton& nappi, const std::function<void()>& tapahtuma);
};
