// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kernel/Kokoelma.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Rivikirjoitin.h"
#include "kernel/Tietokanta.h"

/// Fills a tree of objects from the tables of an open project database. A save writes the rows of every table in the
/// order in which the tree is walked, so one pass over each table serves. When a wanted row isn't the next one, or rows
/// are left over, the file has been changed by other hands: the tree is then read again through an index of each table.
/// Each row is used at most once, so rows that are their own ancestors end the walk.
/// Raises Tietokantavirhe, and Projektivirhe when there is no topmost row.
class Rivilukija {
 public:
  Rivilukija(Tietokanta& kanta, Latausraportti& raportti);
  ~Rivilukija();

  void Lue(Olio& juuri);
  /// Key of the topmost row that was read.
  const std::string& JuurenAvain() const noexcept { return juurenAvain_; }

 private:
  class Taulu;
  struct Oliosarake;
  enum class Haku { Jarjestyksessa, Hakemistosta };
  struct Poikkeama {};  // thrown in the first pass: the rows aren't in the order of a save

  void LuePuu(Olio& juuri, Haku haku);
  void LueOlio(Olio& olio, Taulu& taulu, std::string_view jasen, bool alkio);
  void LueTunnisteet(Olio& olio, const Taulu& taulu, bool alkio);
  void LueArvot(Olio& olio, const Taulu& taulu);
  bool TulkitseMerkki(const Jasen& jasen, ArvoNakyma& arvo);
  std::vector<const Oliosarake*> LueMerkit(const Taulu& taulu);
  void LueLapsi(Olio& olio, const Jasen& jasen, std::string_view nimi, const std::string& objId);
  void LueAlkiot(KokoelmaPohja& kokoelma, const std::string& parentId, std::string_view jasen);
  Tunniste AlkionAvain(const Taulu& taulu, KokoelmaPohja& kokoelma);
  void TarkistaKaytetyt();
  void RiviPuuttuu(const Luokka& luokka, std::string_view mika);
  void Vaurio(const Luokka& luokka, std::string_view mika, std::string_view arvo);
  /// The class's table, or nothing when the file has none.
  Taulu* EtsiTaulu(const Luokka& luokka);

  Tietokanta& kanta_;
  Latausraportti& raportti_;
  std::vector<std::string> tiedostonTaulut_;
  std::vector<std::unique_ptr<Taulu>> taulut_;  // by class number
  std::string juurenAvain_;
  Haku haku_ = Haku::Jarjestyksessa;
  int syvyys_ = 0;
  bool vieraitaJasenia_ = false;  // the file has member objects that the program doesn't know
};
