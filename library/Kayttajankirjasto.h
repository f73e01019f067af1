// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "kernel/Tietokanta.h"
#include "library/Kirjastotietue.h"

/// What an import did.
struct Tuontitulos {
  int rakenteita = 0;
  int materiaaleja = 0;
  int entisia = 0;  ///< entries that were here already, alike
};

/// The user's own structure database, opened for writing. Each operation is one transaction: done on the disk when it
/// returns, or not at all. Every method raises error 9999 when the database can't be written; a database that another
/// program holds is waited for a moment only.
class Kayttajankirjasto {
 public:
  /// `vakiokanta` gives the group and source of materials that come with copied structures; it may be missing.
  Kayttajankirjasto(const std::string& kanta, std::string vakiokanta);

  /// Stores the structure with its layers and materials, under a fresh identifier when it has none. False when it has
  /// one that is no longer there: another window has removed it, and nothing is written.
  bool Tallenna(Kirjastorakenne& rakenne);
  /// The same of a material; the structures that use it follow.
  bool Tallenna(Kirjastomateriaali& materiaali);
  /// Nothing happens when it is gone already.
  void PoistaRakenne(const std::string& id);
  void PoistaMateriaali(const std::string& id);
  /// Names of the structures that have the material in a layer.
  std::vector<std::string> MateriaalinKayttajat(const std::string& id);

  /// Writes all own entries to a file, itself a structure database, in place of what stood there.
  void Vie(const std::string& tiedosto);
  /// Adds the entries of such a file or of another user's database. An entry that is here already, alike, isn't
  /// doubled; one with the same identifier but other contents comes in under a fresh one.
  Tuontitulos Tuo(const std::string& tiedosto);

 private:
  void Kirjoita(Kirjastorakenne& rakenne);
  void Kirjoita(Kirjastomateriaali& materiaali);
  void KirjoitaKerros(const Kirjastorakenne& rakenne, const clsRakennekerros& kerros, std::int64_t jarjestys);
  std::string MateriaalinId(const Materiaali& aine);
  Kirjastomateriaali UusiMateriaali(const Materiaali& aine);
  bool On(std::string_view taulu, const std::string& id);
  template <class T>
  bool Tuo(T& tuotava, const std::vector<T>& omat);

  std::string polku_;
  std::string vakiokanta_;
  Tietokanta kanta_;
};
