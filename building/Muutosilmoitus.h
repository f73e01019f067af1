// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>
#include <vector>

/// What an open window does when figures may have changed.
using Muutoskuulija = std::function<void()>;
/// A subscription: lasts as long as it is kept, and may outlive the building.
using Muutostilaus = std::shared_ptr<const Muutoskuulija>;

/// The windows that show results of a building. Each is told of every change, in the order of subscribing, as a command
/// of its own: one that fails shows its error and the others follow all the same.
class Muutosilmoitus {
 public:
  [[nodiscard]] Muutostilaus Tilaa(Muutoskuulija kuulija);
  void Ilmoita();

 private:
  std::vector<std::weak_ptr<const Muutoskuulija>> kuulijat_;
};
