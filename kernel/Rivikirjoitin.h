// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kernel/Kokoelma.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Tietokanta.h"

/// Where an object's row hangs: row key of the parent, name of the parent's member, place among the siblings.
struct Rivipaikka {
  std::string_view parentId;
  std::string_view jasen;
  int jarjestys = 1;
};

/// The place of the topmost object.
inline constexpr Rivipaikka kJuurenPaikka{"Root", "Laskentakohde", 1};

/// Texts that stand in a text column for something else than themselves.
namespace merkit {
inline constexpr std::string_view kTyhja = "Empty";                            ///< an empty text, or no value at all
inline constexpr std::string_view kOlio = "IsObjectGet";                       ///< an object, in a row of its own
inline constexpr std::string_view kMetodi = "IsObjectMethod";                  ///< an object that isn't stored
inline constexpr std::string_view kViittaus = "IsObjectGetReference";          ///< an object elsewhere in the tree
inline constexpr std::string_view kTunnistePuuttuu = "InstanssiId puuttuu!!";  ///< identity of an object without one
}  // namespace merkit

/// Writes a tree of objects into the tables of an open project database: an object's row, then its member objects in
/// the order of the columns, then its items. Raises Projektivirhe and Tietokantavirhe.
class Rivikirjoitin {
 public:
  Rivikirjoitin(Tietokanta& kanta, const Eteneminen& eteneminen);
  ~Rivikirjoitin();

  void Kirjoita(Olio& juuri);
  const Tallennusraportti& Raportti() const noexcept { return raportti_; }
  /// Compares the rows of every table with the objects walked; raises Projektivirhe when they differ.
  void TarkistaRivimaarat() const;

 private:
  class Taulu;

  void KirjoitaOlio(Olio& olio, const Rivipaikka& paikka);
  void KirjoitaAlkiot(KokoelmaPohja& kokoelma, std::string_view parentId, std::string_view jasen);
  void VarmistaTunniste(Olio& olio);
  Taulu& TauluLuokalle(const Luokka& luokka);
  int Riveja(std::string_view taulu) const;

  Tietokanta& kanta_;
  const Eteneminen& eteneminen_;
  std::vector<std::unique_ptr<Taulu>> taulut_;  // by class number
  Tallennusraportti raportti_;
};

/// Removes the rows of every class's table; the list of classes stays. Empty tables aren't touched: each would cost a
/// page of the journal.
void TyhjennaProjektikanta(Tietokanta& kanta);
