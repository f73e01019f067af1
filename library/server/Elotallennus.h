// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/server/Kirjastot.h"
#include "ui/Ohjaimet.h"

/// Keeps an own entry stored while it is being edited: each edit is a transaction of its own, so that the end of this
/// or another process loses nothing. What can't be stored yet waits in memory and is tried again. An entry that has
/// been removed meanwhile is stored anew if the person wants.
class Elotallennus {
 public:
  struct Tietue {
    std::function<bool(Kayttajankirjasto&)> Tallenna;  ///< false: it is no longer there
    std::function<void()> UnohdaId;
    int poistettuKysymys;  ///< text of the question whether it is stored anew
  };
  Elotallennus(const Kirjastot& kirjastot, Tietue tietue, Label tila);

  /// Stores the entry as it is now. False when it has been removed and isn't wanted back.
  bool Tallenna();
  /// Tries once more what couldn't be stored. True when nothing is waiting.
  bool Yrita();
  /// True when the window may close: all is stored, or the person gives it up.
  bool VoiSulkea();

 private:
  bool Kirjoita();
  bool TallennaUudelleen();

  const Kirjastot& kirjastot_;
  Tietue tietue_;
  Label tila_;
  bool odottaa_ = false;
  bool poistettu_ = false;
};
