// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "consumers/RivillinenKokoelma.h"
#include "measures/clsSaastoToimenpideListaItem.h"
#include "measures/clsSaastotoimenpide.h"

/// The saving measures of the building and the nodes of their tree.
class clsSaastotoimenpiteet
    : public Malli<clsSaastotoimenpiteet, RivillinenKokoelma<clsSaastotoimenpide, clsSaastoToimenpideListaItem>> {
 public:
  static const Luokka kLuokka;

  std::int32_t TaulukonNakymaTyyppiID = 0;  ///< column view of the list, 0 to 3

  /// Adds a node at the end of the tree's list.
  clsSaastoToimenpideListaItem& AddListaItem(const Tunniste& sKey, const Tunniste& Parent, std::string NimiTeksti,
                                             std::int32_t ItemTyyppi);
  /// Keys of the measures that concern the object of that identity.
  std::vector<Tunniste> LiittyykoToimenpidetta(const Tunniste& instanssiId) const;
};
