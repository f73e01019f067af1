// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

[[noreturn]] void VaaraPaikka(int paikka, int maara);

/// What a calculation is given, in the order of giving; positions count from 1. The first member lies in the collection
/// itself, so that the usual calculation with one zone and one window asks for no memory.
template <class T>
class LaskentaJoukko {
 public:
  /// Takes a copy: later changes to the argument don't show here.
  void Add(const T& uusi) {
    if (ensimmainen_)
      muut_.push_back(uusi);
    else
      ensimmainen_.emplace(uusi);
  }

  void Tyhjenna() {
    ensimmainen_.reset();
    muut_.clear();
  }

  int Count() const { return ensimmainen_ ? 1 + static_cast<int>(muut_.size()) : 0; }

  /// Errors: AurinkoVirhe for a position that isn't 1 to Count.
  T& Item(int paikka) {
    if (paikka < 1 || paikka > Count()) VaaraPaikka(paikka, Count());
    return paikka == 1 ? *ensimmainen_ : muut_[static_cast<std::size_t>(paikka - 2)];
  }
  const T& Item(int paikka) const { return const_cast<LaskentaJoukko*>(this)->Item(paikka); }

 private:
  std::optional<T> ensimmainen_;
  std::vector<T> muut_;
};
