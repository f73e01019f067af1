// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class clsRakennus;

/// The bracket within which many results of the building are read from one calculation:
///  1. both flags (machines, spaces) False;
///  2. ask the machines' yearly after-heating, then the spaces' yearly demand;
///  3. both flags True;
///  4. whoever opened the bracket reads what is wanted;
///  5. at the end of the scope, also by an error: both flags False.
/// Outside a bracket the flags are False, so that changed properties need no notification. One opened inside another
/// does nothing.
class Tasehaarukka {
 public:
  /// Errors: 9999 from the calculation; the flags are False then.
  explicit Tasehaarukka(clsRakennus& rakennus);
  ~Tasehaarukka();
  Tasehaarukka(const Tasehaarukka&) = delete;
  Tasehaarukka& operator=(const Tasehaarukka&) = delete;

  /// Both flags False, and with them those of all spaces: what was computed no longer holds.
  static void Mitatoi(clsRakennus& rakennus) noexcept { AsetaLiput(rakennus, false); }

 private:
  static void AsetaLiput(clsRakennus& rakennus, bool voimassa) noexcept;

  clsRakennus* rakennus_;  // nothing in an inner bracket
};
