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
  clsTyyppiTieto(std::string nimi, std::vector<std::string> attribuutit);

  std::string clsNimi;
  std::vector<std::string> clsAttribuutit;

  /// The program's class of that name, or nothing when the template knows a class that the program doesn't.
  const Luokka* LuokanTiedot() const noexcept { return luokka_; }
  /// The attributes that the class has, resolved once, in the order of the columns.
  const std::vector<const Jasen*>& Jasenet() const noexcept { return jasenet_; }
  /// Those of them that hold objects.
  const std::vector<const Jasen*>& Oliojasenet() const noexcept { return oliojasenet_; }

 private:
  const Luokka* luokka_;
  std::vector<const Jasen*> jasenet_, oliojasenet_;
};

/// The type catalogue: per class the attribute names, read from the template of project files. The template alone says
/// which members of a class are attributes. Never changes once read: all buildings share one.
class Tyyppiluettelo {
 public:
  explicit Tyyppiluettelo(const std::string& tiedosto);
  Tyyppiluettelo(const Tyyppiluettelo&) = delete;
  Tyyppiluettelo& operator=(const Tyyppiluettelo&) = delete;
  /// The catalogue of a template database, read once in a run.
  static std::shared_ptr<const Tyyppiluettelo> Hae(const std::string& tiedosto);

  /// Description of a class; raises std::out_of_range for an unknown one.
  const clsTyyppiTieto& Item(std::string_view clsNimi) const;
  const clsTyyppiTieto* Etsi(const Luokka& luokka) const noexcept {
    return luokka.Numero() < hakemisto_.size() ? hakemisto_[luokka.Numero()] : nullptr;
  }
  auto begin() const noexcept { return tiedot_.begin(); }
  auto end() const noexcept { return tiedot_.end(); }

 private:
  std::vector<clsTyyppiTieto> tiedot_;
  std::vector<const clsTyyppiTieto*> hakemisto_;  // by class number
};

/// A building's way to the type catalogue, and its live objects by `InstanssiId` (`Nimet`, the instance register).
class clsTyyppiTiedot {
 public:
  /// Takes the catalogue of a template database; "" means AppPath + "stemplate.tmp". Raises error 9999 if it can't be
  /// read.
  void AlustaTyyppitiedot(const std::string& tiedosto);

  /// Description of a class; raises std::out_of_range for an unknown one.
  const clsTyyppiTieto& Item(std::string_view clsNimi) const { return luettelo_->Item(clsNimi); }
  const clsTyyppiTieto* Etsi(const Luokka& luokka) const noexcept { return luettelo_->Etsi(luokka); }

  Instanssirekisteri Nimet;

 private:
  std::shared_ptr<const Tyyppiluettelo> luettelo_;
};
