// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

class clsRakennus;

/// Brings back the model as it was before the last committed dialog. Keeps two copies: the model as it is since the
/// last change, and as it was before it. Measures, water tariffs and the tariff comparison aren't part of a copy and
/// stay.
class Kumous {
 public:
  /// Another object, or nothing: forgets what there was.
  void Aloita(clsRakennus* rakennus);
  /// To be called after each command with the present object, or nothing: notices another object, and whether a dialog
  /// has committed a change.
  void Seuraa(clsRakennus* rakennus);
  bool Voi() const noexcept { return ennen_ != nullptr; }
  /// Puts the model back. Doing it again brings back what was undone.
  void Kumoa();

 private:
  clsRakennus* rakennus_ = nullptr;
  int muutoksia_ = 0;
  std::unique_ptr<clsRakennus> nyt_, ennen_;
};
