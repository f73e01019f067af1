// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// Names the object that is being calculated, for one scope on one thread: the messages that come on the way are about
/// it (Viesti::kohde). Costs nothing but two stores: the name isn't copied and must live as long as the scope.
class Laskentakohde {
 public:
  /// Omistajineen: the name says little without that of what it stands in, as a structure's without its space.
  enum class Tapa : bool { Yksin, Omistajineen };
  explicit Laskentakohde(const std::string& nimi, Tapa tapa = Tapa::Yksin) noexcept;
  ~Laskentakohde();
  Laskentakohde(const Laskentakohde&) = delete;
  Laskentakohde& operator=(const Laskentakohde&) = delete;

  /// The innermost object of this thread that has a name, a part with its owner: "TK01", "Alapohja (Varasto)"; "" when
  /// there is none.
  static std::string Nimi();

 private:
  static const Laskentakohde* Nimellinen(const Laskentakohde* kohde) noexcept;

  const std::string& nimi_;
  Tapa tapa_;
  const Laskentakohde* ulompi_;
};
