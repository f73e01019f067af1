// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One changed attribute of a variation. `InstanssiId` is not its own: it names the object that holds the attribute,
/// which may lie far below the object that the measure concerns.
class clsMuuttunutAttribuutti : public Malli<clsMuuttunutAttribuutti, Alkio> {
 public:
  static const Luokka kLuokka;
  clsMuuttunutAttribuutti() { InstanssiId = {}; }

  std::string clsTypeName;       ///< class of the object that holds the attribute
  std::string AttribuutinNimi;   ///< member's name
  double ArvoEnnen = 0;          ///< old value, every kind but text
  double ArvoJalkeen = 0;        ///< new value
  std::string Yksikko;           ///< stored only
  std::string ArvoEnnenStr;      ///< old text
  std::string ArvoJalkeenStr;    ///< new text
  std::int32_t TietoTyyppi = 0;  ///< code of the value's kind, see Laji

  /// The code is one of a kind that values have.
  bool OnTunnettuTyyppi() const noexcept;
  /// The values are texts.
  bool OnTeksti() const noexcept { return TietoTyyppi == static_cast<std::int32_t>(Laji::Teksti); }
  /// Writes the new value into the field raw (kernel/Jasen.h), converted by its kind: whole numbers are rounded, a half
  /// to the even one. False, and nothing is written, for an unknown kind or a value that the kind or the field can't
  /// hold.
  bool Kirjoita(Olio& olio, const Jasen& jasen) const;
};
