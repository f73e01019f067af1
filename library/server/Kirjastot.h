// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

#include "library/Kayttajankirjasto.h"

/// The user's and the standard library as the windows show them. A database that can't be read leaves its entries out;
/// the other one is there all the same.
class Kirjastot {
 public:
  Kirjastot(std::string kayttajanKanta, std::string vakiokanta);

  /// Reads both anew.
  void Lataa();
  /// The own entries first.
  const std::vector<Kirjastorakenne>& Rakenteet() const { return rakenteet_; }
  const std::vector<Kirjastomateriaali>& Materiaalit() const { return materiaalit_; }
  /// Why the library couldn't be read; empty when it could.
  const std::string& Vika(Kirjasto kirjasto) const { return Tila(kirjasto).vika; }
  const std::string& Polku(Kirjasto kirjasto) const { return Tila(kirjasto).polku; }
  /// Version of the standard library; empty when it can't be read.
  const std::string& Versio() const { return versio_; }
  /// The user's database for one operation of writing. Raises error 9999.
  Kayttajankirjasto Avaa() const { return {Polku(Kirjasto::Oma), Polku(Kirjasto::Vakio)}; }

 private:
  struct Kanta {
    std::string polku;
    std::string vika{};
  };
  void Lataa(Kirjasto kirjasto);
  const Kanta& Tila(Kirjasto kirjasto) const { return kirjasto == Kirjasto::Oma ? oma_ : vakio_; }
  Kanta& Tila(Kirjasto kirjasto) { return kirjasto == Kirjasto::Oma ? oma_ : vakio_; }

  Kanta oma_;
  Kanta vakio_;
  std::string versio_;
  std::vector<Kirjastorakenne> rakenteet_;
  std::vector<Kirjastomateriaali> materiaalit_;
};

/// Hears, while it lives, of every change that a window of this process has written.
class Muutoskuuntelija {
 public:
  explicit Muutoskuuntelija(std::function<void()> kunMuuttuu);
  ~Muutoskuuntelija();
  Muutoskuuntelija(const Muutoskuuntelija&) = delete;
  Muutoskuuntelija& operator=(const Muutoskuuntelija&) = delete;

 private:
  friend void IlmoitaMuutos();
  std::function<void()> kunMuuttuu_;
};
void IlmoitaMuutos();
