// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// The mark of a project file in use: no write permission. Failures (another owner, a file system without permissions)
/// are silent, since the mark only warns.

/// Sets the mark.
void AsetaKirjoitussuoja(const std::string& tiedosto);
/// True when the owner may not write. Looks at the permissions, not at whether writing succeeds: as root it always
/// does.
bool OnKirjoitussuojattu(const std::string& tiedosto);
/// Takes the mark away: the permissions are what they were when it was set, also by a run that has died. Where the file
/// system keeps no notes with a file and the run has died, the owner alone gets the right to write.
void PoistaKirjoitussuoja(const std::string& tiedosto);
