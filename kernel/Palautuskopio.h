// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "kernel/Tiedostot.h"
#include "kernel/Tiedostotunnus.h"

class Olio;

/// The recovery copy of one run: its unsaved object, written aside for the case that the program dies. A project file
/// of its own in AppPath, "~palautus <process>.lvt", which only its user can read, and which is locked as long as the
/// object of this class lives: a copy that nobody holds belongs to a run that has died.
///
/// Use by a session, which has one of these as a member:
/// 1. At the start OtaJaaneet() gives what died runs have left. They are held from then on, so that no other program
///    offers them at the same time. For each the person is asked:
///    - opens it: the building is loaded from Polku(), takes Projekti() and ProjektinTunnus() as its own file, and is
///      unsaved. The session moves the copy to its member: it is now the copy of this run, and goes by Poista() after
///      the first good save, as any other. If the loading fails or is only partial, Sailyta() first.
///    - doesn't want it: Sailyta().
///    - gives no answer: the copy is let go, and the next start offers it again.
/// 2. Kirjoita() at quiet moments. It raises Projektivirhe: the object has changed, but isn't safe.
/// 3. Poista() after a good save and when the object is closed. No other run's copy is ever touched.
class Palautuskopio {
 public:
  /// Nothing has been written yet.
  Palautuskopio() = default;

  /// Copies that no running program holds, the latest first; they are held from now on.
  static std::vector<Palautuskopio> OtaJaaneet();

  bool Tyhja() const noexcept { return polku_.empty(); }
  const std::string& Polku() const noexcept { return polku_; }
  /// The object's own file, "" when it had none.
  const std::string& Projekti() const noexcept { return projekti_; }
  /// The state of that file that the object was read from or saved to.
  const Tiedostotunnus& ProjektinTunnus() const noexcept { return tunnus_; }

  /// Writes the tree, whole or not at all, in place of what was written before. The first time takes a name of its own.
  void Kirjoita(Olio& juuri, const std::string& projekti, const Tiedostotunnus& tunnus);
  /// Removes the copy, if there is one.
  void Poista() noexcept;
  /// Sets the copy aside as "~palautus <date> <time>.lvt", where the last five stay; gives the new name. Raises
  /// std::system_error.
  std::string Sailyta();

 private:
  void VaraaNimi();

  std::string polku_;
  std::string projekti_;
  Tiedostotunnus tunnus_;
  std::optional<Kahva> kahva_;
};
