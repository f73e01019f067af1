// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

/// Runs what the person asked for: a menu command, an event of a dialog, a timer. Every such way in goes through here,
/// so that no error leaves it: the first status panel gets its former text back, the error's description and source are
/// shown, and the program goes on. Commands may nest (an event of a dialog that a command has opened).
void SuoritaKomento(const std::function<void()>& komento);

/// Called whenever a command ends, also a nested one; real windows show the messages that were held back until then.
void AsetaKomennonLoppu(std::function<void()> loppu);
