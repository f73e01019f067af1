// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The program: its name and version, its licence, the libraries that it uses, and the computer that it runs on.
class frmAbout : public Lomake {
 public:
  /// Versions and licences of libraries, and facts of the computer: rows of the two lists.
  frmAbout(Taulukko kirjastot, Taulukko jarjestelma);

  /// Version, libraries and computer as text, for a report of a fault.
  std::string Tekstina() const;

  std::function<void()> KopioiKlikattu;

  Label lblVersio{*this, "lblVersio"};
  ListView lvwKirjastot{*this, "lvwKirjastot"};
  ListView lvwJarjestelma{*this, "lvwJarjestelma"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdSulje{*this, "cmdSulje"};
};
