// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

/// Runs what the person asked for: a menu command, an event of a dialog, a timer. Every such way in goes through here,
/// so that no error leaves it: the first status panel gets its former text back, what happened is shown with the form
/// where it happened, the cause and what to do, the chain of sources behind a details button, and the program goes on.
/// Commands may nest (an event of a dialog that a command has opened).
void SuoritaKomento(const std::function<void()>& komento);

/// Runs at the end of each outermost command, still as a part of it; an empty function takes it away.
void AsetaKomennonJalki(std::function<void()> jalki);

/// True while a command runs.
bool KomentoKaynnissa();

/// For the time in which a modal form waits for the person: the command that showed it rests.
class IhmisenVuoro {
 public:
  IhmisenVuoro() noexcept;
  ~IhmisenVuoro();
  IhmisenVuoro(const IhmisenVuoro&) = delete;
  IhmisenVuoro& operator=(const IhmisenVuoro&) = delete;

 private:
  int edellinen_;
};
/// No command runs but those that rest so: the model stands still, and can be written aside.
bool OnHiljaista() noexcept;

/// Real windows hold a command's plain messages back, to show equal ones once: they hook the showing in here. It
/// happens at the end of each command and before a form is shown as modal.
void AsetaViestienNaytto(std::function<void()> nayta);
void NaytaOdottavatViestit();
