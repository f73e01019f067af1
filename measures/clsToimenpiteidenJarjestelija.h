// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "measures/clsValitutToimenpiteet.h"

/// The arranger: an ordered list of measures, each computed with all those above it in force.
class clsToimenpiteidenJarjestelija : public Malli<clsToimenpiteidenJarjestelija> {
 public:
  static const Luokka kLuokka;

  clsValitutToimenpiteet ValitutToimenpiteet;
  std::string NaytaToimenpiteetStr = "sKeyKokoKohde";  ///< node whose measures the upper list shows
  std::int32_t NaytaToimenpiteetID = 0;                ///< its index in the list of filters
  std::string TaulukonNakymaStr;                       ///< name of the column view
  std::int32_t TaulukonNakymaTyyppiID = 0;             ///< column view, 0 to 3
};
