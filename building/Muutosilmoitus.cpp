// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Muutosilmoitus.h"

#include <utility>

#include "ui/Komento.h"

Muutostilaus Muutosilmoitus::Tilaa(Muutoskuulija kuulija) {
  std::erase_if(kuulijat_, [](const auto& k) { return k.expired(); });
  auto tilaus = std::make_shared<const Muutoskuulija>(std::move(kuulija));
  kuulijat_.push_back(tilaus);
  return tilaus;
}

void Muutosilmoitus::Ilmoita() {
  const auto kuulijat = kuulijat_;  // one of them may open a window or close itself
  for (const auto& heikko : kuulijat)
    if (const Muutostilaus kuulija = heikko.lock()) SuoritaKomento(*kuulija);
}
