// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// What the model may ask of the main window. Without windows (batch, tests) nothing happens.
class Paaikkuna {
 public:
  virtual ~Paaikkuna() = default;
  /// Caption: the program's name and `teksti`; with an empty text the name of the open project file, if there is one.
  virtual void AsetaOtsikko(const std::string&) {}
  /// Enables or disables the first `maara` buttons of the tool bar.
  virtual void TyokalutKaytossa(int, bool) {}
};

/// The present main window, or one that does nothing.
Paaikkuna& PaaikkunaNyt();
/// Sets it; nullptr brings back the one that does nothing.
void AsetaPaaikkuna(Paaikkuna* ikkuna);
