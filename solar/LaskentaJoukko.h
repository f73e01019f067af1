// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "solar/AurinkoVirhe.h"

/// What a calculation is given, in the order of giving; positions count from 1. The first member lies in the collection
/// itself, so that the usual calculation with one zone and one window asks for no memory.
template <class T>
class LaskentaJoukko {
 public:
  /// Takes a copy: later changes to the argument don't show here.
  void Add(T uusi) {
    if (maara_++ == 0)
      ensimmainen_ = std::move(uusi);
    else
      muut_.push_back(std::move(uusi));
  }

  int Count() const { return maara_; }

  /// Errors: AurinkoVirhe for a position that isn't 1 to Count.
  T& Item(int paikka) {
    Tarkista(paikka);
    return paikka == 1 ? ensimmainen_ : muut_[static_cast<std::size_t>(paikka - 2)];
  }
  const T& Item(int paikka) const { return const_cast<LaskentaJoukko*>(this)->Item(paikka); }

 private:
  void Tarkista(int paikka) const {
    if (paikka < 1 || paikka > maara_)
      throw AurinkoVirhe("Laskennan kohdetta " + std::to_string(paikka) + " ei ole, kohteita on " +
                         std::to_string(maara_) + ".");
  }

  int maara_ = 0;
  T ensimmainen_{};
  std::vector<T> muut_;
};
