// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

/// Runs what the person asked for: a menu command, an event of a dialog, a timer. Every such way in goes through here,
/// so that no error leaves it: the first status panel gets its former text back, the error's description and source are
/// shown, and the program goes on. Commands may nest (an event of a dialog that a command has opened).
void SuoritaKomento(const std::function<void()>& komento);

/// Runs at the end of each outermost command, still as a part of it; an empty function takes it away.
void AsetaKomennonJalki(std::function<void()> jalki);

/// True while a command runs.
bool KomentoKaynnissa();

/// Real windows hold a command's plain messages back, to show equal ones once: they hook the showing in here. It
/// happens at the end of each command and before a form is shown as modal.
void AsetaViestienNaytto(std::function<void()> nayta);
void NaytaOdottavatViestit();
