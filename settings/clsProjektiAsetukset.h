// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// The open project file of a building.
class clsProjektiAsetukset : public Malli<clsProjektiAsetukset> {
 public:
  static const Luokka kLuokka;

  std::string strCurrentProjectFile;          ///< full name of the file; empty when the object has none yet
  std::string strCurrentProjectPath;          ///< its folder
  std::string strCurrentProjectFileRevision;  ///< version of the program that wrote it
};
