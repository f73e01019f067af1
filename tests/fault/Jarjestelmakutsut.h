// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The system calls of this program that open or change files pass through here (the program's own definitions stand
/// before the C library's, for SQLite too), so that any one of them can be made to fail or to be the last.
namespace kutsut {

enum class Isku {
  Ei,
  Virhe,        ///< the call fails; a write has written half
  PysyvaVirhe,  ///< it fails and so do all after it
  Tappo,        ///< the process is killed before it; a write has written half
};

/// Strikes at the call number `monesko`, counted from 1 and from now. `virhe` is the error number.
void Aseta(Isku isku, int monesko = 0, int virhe = 0);
/// Makes the permissions and owners of files fail with this error number, as on drives that have none; 0 for no more.
void EstaOikeudet(int virhe);
/// Ends the strike; gives the number of calls since Aseta.
int Lopeta();

}  // namespace kutsut
