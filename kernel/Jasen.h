// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstddef>
#include <memory>
#include <type_traits>

#include "kernel/Suure.h"
#include "kernel/Variantti.h"

/// One row of a class's member table: the name under which the value stands in project files and in saving measures,
/// its kind, unit and range, and typed access to it. Names are a contract with old files: a row is never renamed.
struct Jasen {
  std::string_view nimi;
  Laji laji;
  Suure suure;
  /// Shows the value; null for a member that holds an object.
  void (*nayta)(const Olio&, ArvoNakyma&) = nullptr;
  /// Sets the value from one of any form, with the property's own code; false when it can't be read as this member's
  /// type. Null: read only by name, as an object's identity and key are.
  bool (*aseta)(Olio&, const ArvoNakyma&) = nullptr;
  /// Writes the field alone, as a copy does: converted and checked, without the code of a property. Loading and
  /// variations write so. Null for a member that holds an object.
  bool (*kirjoita)(Olio&, const ArvoNakyma&) = nullptr;
  /// The field as it is, and the field put back as it was, to the last bit.
  Kentanarvo (*ota)(const Olio&) = nullptr;
  void (*palauta)(Olio&, Kentanarvo&&) = nullptr;
  /// The object held, or nothing; null for a scalar member.
  Olio* (*olio)(Olio&) = nullptr;
  /// Makes the object of a member that may hold nothing, and gives it.
  Olio& (*luo)(Olio&) = nullptr;
  /// A copy of another object's value, or a state of the display, kept for the file: a comparison passes over it.
  bool kopio = false;
  /// The object may lie outside this one, reachable by its identity: it is stored as a reference then.
  bool viittaus = false;

  bool OnOlio() const noexcept { return laji == Laji::Olio; }
};

/// Owner and type of a data member.
template <class>
struct Osat;
template <class C, class T>
struct Osat<T C::*> {
  using Luokka = C;
  using Tyyppi = T;
};

class Alkio;

/// Identity and key, the members of the base classes: whoever renamed them by name would break the register and the
/// index of a collection.
template <auto Kentta>
inline constexpr bool kOnTunniste = std::is_same_v<typename Osat<decltype(Kentta)>::Luokka, Olio> ||
                                    std::is_same_v<typename Osat<decltype(Kentta)>::Luokka, Alkio>;

template <class T>
constexpr Laji LajiTyypista() {
  if constexpr (std::is_same_v<T, std::int16_t>) return Laji::Lyhyt;
  if constexpr (std::is_same_v<T, std::int32_t>) return Laji::Pitka;
  if constexpr (std::is_same_v<T, float>) return Laji::Yksinkertainen;
  if constexpr (std::is_same_v<T, double>) return Laji::Kaksinkertainen;
  if constexpr (std::is_same_v<T, bool>) return Laji::Totuus;
  if constexpr (std::is_same_v<T, Kellonaika>) return Laji::Paivays;
  if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, Tunniste>) return Laji::Teksti;
}

template <class T>
void NaytaArvo(const T& arvo, ArvoNakyma& nakyma) {
  if constexpr (std::is_same_v<T, bool>)
    nakyma.Aseta(std::int64_t{arvo ? -1 : 0});
  else if constexpr (std::is_integral_v<T>)
    nakyma.Aseta(std::int64_t{arvo});
  else if constexpr (std::is_floating_point_v<T>)
    nakyma.Aseta(double{arvo});
  else if constexpr (std::is_same_v<T, Kellonaika>)
    nakyma.Aseta(arvo.Vuorokausina());
  else if constexpr (std::is_same_v<T, Tunniste>)
    nakyma.Aseta(arvo);
  else
    nakyma.Aseta(std::string_view(arvo));
}

/// Gives the member its field.
template <auto Kentta>
constexpr void LiitaKentta(Jasen& j) {
  using C = typename Osat<decltype(Kentta)>::Luokka;
  using T = typename Osat<decltype(Kentta)>::Tyyppi;
  j.kirjoita = [](Olio& o, const ArvoNakyma& n) { return Muunna(n, static_cast<C&>(o).*Kentta); };
  j.ota = [](const Olio& o) -> Kentanarvo { return static_cast<const C&>(o).*Kentta; };
  j.palauta = [](Olio& o, Kentanarvo&& arvo) { static_cast<C&>(o).*Kentta = std::get<T>(std::move(arvo)); };
}

/// A plain data member.
template <auto Kentta>
constexpr Jasen Arvo(std::string_view nimi, Suure suure = {}) {
  using C = typename Osat<decltype(Kentta)>::Luokka;
  using T = typename Osat<decltype(Kentta)>::Tyyppi;
  Jasen j{nimi, LajiTyypista<T>(), suure};
  j.nayta = [](const Olio& o, ArvoNakyma& n) { NaytaArvo(static_cast<const C&>(o).*Kentta, n); };
  LiitaKentta<Kentta>(j);
  if constexpr (!kOnTunniste<Kentta>) j.aseta = j.kirjoita;
  return j;
}

/// A data member that holds a copy of another object's value.
template <auto Kentta>
constexpr Jasen Kopio(auto... tiedot) {
  Jasen j = Arvo<Kentta>(tiedot...);
  j.kopio = true;
  return j;
}

/// A property with code: `Hae` is a function of const C&, `Aseta` one of C& and the value. `Kentta` is its field;
/// without one the two functions are to do no more than read and write the value that a copy carries.
template <class C, auto Hae, auto Aseta, auto Kentta = nullptr>
constexpr Jasen Ominaisuus(std::string_view nimi, Suure suure = {}) {
  using T = std::remove_cvref_t<decltype(Hae(std::declval<const C&>()))>;
  Jasen j{nimi, LajiTyypista<T>(), suure};
  j.nayta = [](const Olio& o, ArvoNakyma& n) { NaytaArvo(Hae(static_cast<const C&>(o)), n); };
  j.aseta = [](Olio& o, const ArvoNakyma& n) {
    T arvo{};
    if (!Muunna(n, arvo)) return false;
    Aseta(static_cast<C&>(o), std::move(arvo));
    return true;
  };
  if constexpr (std::is_null_pointer_v<decltype(Kentta)>) {
    j.kirjoita = j.aseta;
    j.ota = [](const Olio& o) -> Kentanarvo { return Hae(static_cast<const C&>(o)); };
    j.palauta = [](Olio& o, Kentanarvo&& arvo) { Aseta(static_cast<C&>(o), std::get<T>(std::move(arvo))); };
  } else {
    LiitaKentta<Kentta>(j);
  }
  static_assert(!std::is_same_v<T, std::string>, "a text property must show a member, not a temporary");
  return j;
}

/// A member that holds an object: the object itself, or a std::unique_ptr or Omistus of it.
template <auto Kentta>
constexpr Jasen Lapsi(std::string_view nimi) {
  using C = typename Osat<decltype(Kentta)>::Luokka;
  using T = typename Osat<decltype(Kentta)>::Tyyppi;
  Jasen j{nimi, Laji::Olio, {}};
  if constexpr (requires(T & t) {
                  t.Luo();
                  t.get();
                }) {
    j.olio = [](Olio& o) -> Olio* { return (static_cast<C&>(o).*Kentta).get(); };
    j.luo = [](Olio& o) -> Olio& { return (static_cast<C&>(o).*Kentta).Luo(); };
  } else {
    j.olio = [](Olio& o) -> Olio* { return &(static_cast<C&>(o).*Kentta); };
  }
  return j;
}

/// Owner of an object that may be nothing. Copies deeply, into the object that it has where there is one.
template <class T>
class Omistus {
 public:
  Omistus() = default;
  Omistus(const Omistus& toinen) : olio_(toinen ? std::make_unique<T>(*toinen) : nullptr) {}
  Omistus(Omistus&&) noexcept = default;
  Omistus& operator=(Omistus&&) noexcept = default;
  Omistus& operator=(const Omistus& toinen) {
    if (this == &toinen) return *this;
    if (olio_ && toinen)
      *olio_ = *toinen;
    else
      olio_ = toinen ? std::make_unique<T>(*toinen) : nullptr;
    return *this;
  }
  T& Luo() {
    if (!olio_) olio_ = std::make_unique<T>();
    return *olio_;
  }
  void Tyhjenna() { olio_.reset(); }
  T* get() const noexcept { return olio_.get(); }
  T* operator->() const noexcept { return olio_.get(); }
  T& operator*() const noexcept { return *olio_; }
  explicit operator bool() const noexcept { return olio_ != nullptr; }

 private:
  std::unique_ptr<T> olio_;
};
