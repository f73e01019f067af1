// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "kernel/Olio.h"

/// An object of the register, and the outermost item of a collection that holds it, which may be the object itself: the
/// space of a structure's shading, the machine of a period. Nothing for a part of the building outside its collections.
struct Instanssi {
  Olio* olio = nullptr;
  Olio* omistaja = nullptr;
};

/// The live objects of one class by `InstanssiId`. Open addressing over one array: entering thousands of objects at
/// each copy and save allocates nothing once the array has grown.
class InstanssiLista {
 public:
  /// False when the identity is already there.
  bool Add(Olio& olio, Olio* omistaja = nullptr);
  /// The object of that identity, or nothing.
  Olio* Item(const Tunniste& instanssiId) const noexcept { return Etsi(instanssiId).olio; }
  /// The same with the item that holds it.
  Instanssi Etsi(const Tunniste& instanssiId) const noexcept;
  int Count() const noexcept { return static_cast<int>(maara_); }
  void Tyhjenna() noexcept;

 private:
  struct Paikka {
    std::size_t tiiviste = 0;  // of the object's identity when it was entered
    Olio* olio = nullptr;
    Olio* omistaja = nullptr;
  };
  std::size_t Kohta(std::size_t tiiviste, const Tunniste& tunniste) const noexcept;
  void Kasvata();

  std::vector<Paikka> paikat_;
  std::size_t maara_ = 0;
};

/// The instance register: a list for each class of the catalogue.
class Instanssirekisteri {
 public:
  void Lisaa(const Luokka& luokka);
  /// The class's list, or nothing when the catalogue doesn't have the class.
  InstanssiLista* Etsi(const Luokka& luokka) noexcept;
  /// List by class name; nothing for an unknown name.
  InstanssiLista* Etsi(std::string_view clsNimi) noexcept;
  /// Number of classes.
  int Count() const noexcept;
  /// Empties every list; the classes stay.
  void TyhjennaIdListat() noexcept;

 private:
  std::vector<std::unique_ptr<InstanssiLista>> listat_;  // by class number
};
