// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "kernel/Tunniste.h"

class clsRakenne;
class clsRakennus;

/// Which tree of the building's life.
enum class Hierarkialaji {
  Perustaminen,  ///< founding costs by building element
  Hoito,         ///< yearly upkeep
  Ymparisto      ///< environmental impact: the elements down to "MuuLvi", then what is bought
};

/// A node of a tree over the building.
struct Hierarkiasolmu {
  Tunniste avain{};
  std::string nimi{};
  int vanhempi = -1;  ///< place of the node above; the root has none
  std::vector<int> lapset{};
  std::string yksikko{};                ///< unit by which the model counts it; empty: the model doesn't
  std::optional<double> mallinMaara{};  ///< number of units by the model
  std::vector<const clsRakenne*>
      rakenteet{};  ///< structures that stand here, alive as long as the building is unchanged
};

/// The nodes of a tree, the root first and each after its parent. Below the kinds of structures stand the building's
/// own in place of the placeholders, those of one name as one with their area, and below ventilation its machines.
std::vector<Hierarkiasolmu> TeeHierarkia(const clsRakennus& rakennus, Hierarkialaji laji);
