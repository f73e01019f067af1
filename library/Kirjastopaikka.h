// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// Where the library server of one data directory and the programs that use it meet: files in the user's runtime
/// directory, which nobody else can enter: XDG_RUNTIME_DIR if it is the user's and closed to others, else one of the
/// user's own in the directory for temporary files.
struct Kirjastopaikka {
  std::string pistoke;  ///< local socket
  std::string lukko;    ///< held by the server while it runs
};

/// The place for the data directory `koti`; other spellings of the same directory give the same. Makes the runtime
/// directory. Raises error 9999 when it can't be made, belongs to another user, or the name is too long for a socket.
Kirjastopaikka PalvelimenPaikka(const std::string& koti);
