// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "kernel/InstanssiLista.h"
#include "kernel/Olio.h"

/// One class of the type catalogue: its name and its persistent attributes, as the template names them.
class clsTyyppiTieto {
 public:
  std::string clsNimi;
  std::vector<std::string> clsAttribuutit;

  /// The program's class of that name, or nothing when the template knows a class that the program doesn't.
  const Luokka* LuokanTiedot() const noexcept { return luokka_; }
  /// The attributes that the class has, resolved once, in the order of the columns.
  const std::vector<const Jasen*>& Jasenet() const noexcept { return jasenet_; }
  /// Those of them that hold objects.
  const std::vector<const Jasen*>& Oliojasenet() const noexcept { return oliojasenet_; }

 private:
  friend class clsTyyppiTiedot;
  void Ratkaise();

  const Luokka* luokka_ = nullptr;
  std::vector<const Jasen*> jasenet_, oliojasenet_;
};

/// The type catalogue of a building: per class the attribute names read from the template of project files, and the
/// live objects by `InstanssiId` (`Nimet`, the instance register). The template alone says which members of a class are
/// attributes.
class clsTyyppiTiedot {
 public:
  /// Reads classes and attributes from a template database; "" means AppPath + "stemplate.tmp". A read template is kept
  /// for the run. Raises error 9999 if it can't be read.
  void AlustaTyyppitiedot(const std::string& tiedosto);

  clsTyyppiTieto& Add(std::string_view clsNimi);
  /// Description of a class; raises std::out_of_range for an unknown one.
  const clsTyyppiTieto& Item(std::string_view clsNimi) const;
  const clsTyyppiTieto* Etsi(const Luokka& luokka) const noexcept;
  int Count() const noexcept { return static_cast<int>(tiedot_.size()); }
  void Remove(std::string_view clsNimi);
  auto begin() const { return tiedot_.begin(); }
  auto end() const { return tiedot_.end(); }

  Instanssirekisteri Nimet;

 private:
  void PaivitaHakemisto();

  std::vector<clsTyyppiTieto> tiedot_;
  std::vector<std::int16_t> hakemisto_;  // by class number: place in tiedot_, or -1
};
