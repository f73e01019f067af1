// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Toimenpidepuu.h"

#include "measures/clsSaastotoimenpiteet.h"

Luettelosisalto Toimenpidepuu(const clsSaastotoimenpiteet& toimenpiteet, bool naytaToimenpiteet) {
  Luettelosisalto puu;
  for (const clsSaastoToimenpideListaItem& solmu : toimenpiteet.ListaItems())
    if (solmu.Visible && (naytaToimenpiteet || solmu.ItemTyyppi == clsSaastoToimenpideListaItem::Mallisolmu)) {
      const clsSaastotoimenpide* toimenpide = toimenpiteet.Etsi(solmu.sKey);
      puu.rivit.push_back(
          {.solut = {toimenpide ? toimenpide->Nimi : solmu.NimiTeksti}, .avain = solmu.sKey, .ylempi = solmu.Parent});
    }
  return puu;
}
