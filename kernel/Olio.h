// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <span>
#include <string_view>
#include <unordered_map>

#include "kernel/Jasen.h"
#include "kernel/Oliomuisti.h"

class KokoelmaPohja;
struct Tulos;

/// What the generic mechanisms (save, load, register, comparison, saving measures) know of a class.
class Luokka {
 public:
  /// How a class stands towards the instance register and the comparison of object trees.
  enum class Osallistuu : std::uint8_t {
    Kaikkeen,       ///< register and comparison
    EiRekisteriin,  ///< compared, but not entered in the register and not walked further by it
    EiKumpaankaan,  ///< objects of the structure library: neither registered nor compared
  };

  /// `nimi` and the tables live for the whole run. Enters the class in the list of all classes.
  Luokka(std::string_view nimi, std::span<const Jasen> jasenet, Osallistuu osallistuu = Osallistuu::Kaikkeen,
         std::span<const Tulos> tulokset = {});
  Luokka(std::string_view nimi, std::span<const Jasen> jasenet, std::span<const Tulos> tulokset)
      : Luokka(nimi, jasenet, Osallistuu::Kaikkeen, tulokset) {}
  Luokka(const Luokka&) = delete;
  Luokka& operator=(const Luokka&) = delete;

  std::string_view Nimi() const noexcept { return sana_.teksti; }
  const Sana& NimiSana() const noexcept { return sana_; }
  std::span<const Jasen> Jasenet() const noexcept { return jasenet_; }
  /// What is computed of an object of the class (kernel/Tulos.h), in the order in which it is shown.
  std::span<const Tulos> Tulokset() const noexcept { return tulokset_; }
  /// The result of that name. Raises std::logic_error if the class has none.
  const Tulos& TulosNimella(std::string_view nimi) const;
  Osallistuu Osallistuminen() const noexcept { return osallistuu_; }
  /// Running number of the class, from 0: an index for tables by class.
  std::size_t Numero() const noexcept { return numero_; }
  /// The member of that name, letter case aside; nothing if the class has none. Quick for a name spelt as in the table.
  const Jasen* Etsi(std::string_view nimi) const noexcept;

  /// All classes of the program, in the order of their numbers.
  static std::span<const Luokka* const> Kaikki() noexcept;
  /// The class of that name, letter case aside, or nothing.
  static const Luokka* Nimella(std::string_view nimi) noexcept;

 private:
  const Sana& sana_;
  std::span<const Jasen> jasenet_;
  std::span<const Tulos> tulokset_;
  Osallistuu osallistuu_;
  std::size_t numero_;
  std::unordered_map<std::string_view, const Jasen*> hakemisto_;
};

/// Access by a name that the class doesn't have, or a value that the member can't take.
class TuntematonJasen : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Base of every class of the model.
class Olio {
 public:
  virtual ~Olio() = default;
  static void* operator new(std::size_t koko) { return oliomuisti::Varaa(koko); }
  static void operator delete(void* olio, std::size_t koko) noexcept { oliomuisti::Vapauta(olio, koko); }

  virtual const Luokka& LuokanTiedot() const noexcept = 0;
  std::string_view LuokanNimi() const noexcept { return LuokanTiedot().Nimi(); }
  /// The items, if this object is a keyed collection.
  virtual KokoelmaPohja* Kokoelmana() noexcept { return nullptr; }
  /// The display rows, if this collection keeps a second list of them.
  virtual KokoelmaPohja* ListaItemeina() noexcept { return nullptr; }

  /// Identity: made at construction, kept by a copy. The register gives a fresh one to the second of two equal ones.
  Tunniste InstanssiId;

 protected:
  Olio() = default;
  Olio(const Olio&) = default;
  Olio& operator=(const Olio&) = default;
};

/// An item of a collection: bears its key.
class Alkio : public Olio {
 public:
  /// False for one that is made anew from other objects whenever it is shown: it holds nothing of its own.
  virtual bool OnSisaltoa() const noexcept { return true; }

  Tunniste sKey;
};

/// Gives a model class its run-time class, its identity and its deep copy. `C::kLuokka` is the class's description.
/// A copy keeps `InstanssiId` and `sKey`; into an existing target it reuses the target's objects.
template <class C, class Kanta = Olio>
class Malli : public Kanta {
 public:
  const Luokka& LuokanTiedot() const noexcept override { return C::kLuokka; }
  std::unique_ptr<C> Kopioi() const { return std::make_unique<C>(static_cast<const C&>(*this)); }
  void Kopioi(C& kohde) const {
    if (&kohde != this) kohde = static_cast<const C&>(*this);
  }

 protected:
  Malli() { this->InstanssiId = Tunniste::Uusi(C::kLuokka.NimiSana()); }
};

/// Value of a member by name. Raises TuntematonJasen if the class has no such member.
Variantti HaeJasen(const Olio& olio, std::string_view nimi);
/// The same by a resolved member.
Variantti HaeJasen(const Olio& olio, const Jasen& jasen);
/// Sets a member by name, converting the value. Raises TuntematonJasen if there is none, it is read only, or the value
/// can't be read as its type.
void AsetaJasen(Olio& olio, std::string_view nimi, const Variantti& arvo);
