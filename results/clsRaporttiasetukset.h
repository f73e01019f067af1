// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// What the auditor has given for the object's report.
class clsRaporttiasetukset : public Malli<clsRaporttiasetukset> {
 public:
  static const Luokka kLuokka;

  std::string Nykytila;     ///< the present state, in the auditor's words; lines are paragraphs
  std::string Suositus;     ///< what the auditor recommends
  std::string Poisjatetyt;  ///< names of the chapters that are left out, with a comma between

  bool OnMukana(std::string_view osa) const;
  /// Takes the chapter in or leaves it out. Names that this program doesn't know stay.
  void OtaMukaan(std::string_view osa, bool mukana);
};
