// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// Names the object that is being calculated, for one scope on one thread: the messages that come on the way tell it,
/// in parentheses at their end, an object inside another before the outer one ("(TK01, Varasto)"). Costs nothing but
/// two stores: the name isn't copied and must live as long as the scope.
class Laskentakohde {
 public:
  explicit Laskentakohde(const std::string& nimi) noexcept;
  ~Laskentakohde();
  Laskentakohde(const Laskentakohde&) = delete;
  Laskentakohde& operator=(const Laskentakohde&) = delete;

  /// A blank and the objects of this thread in parentheses; "" when there are none.
  static std::string Liite();

 private:
  const std::string& nimi_;
  const Laskentakohde* ulompi_;
};
