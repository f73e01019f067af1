// SPDX-License-Identifier: GPL-3.0-or-later
// Appendix: what is missing, contradictory or improbable in the object.
#include "checks/Tarkistukset.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "tekstit/raportti.h"
#include "tekstit/tarkistukset.h"
#include "ui/Tekstivarasto.h"

void raportti::Tarkistukset(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const std::vector<Havainto> havainnot = Tarkista(aineisto.rakennus);
  if (havainnot.empty()) return osa.Kappale(Teksti(tekstit::kEiHuomautettavaa));
  osa.Kappale(Teksti(tekstit::kRapTarkistustenSelitys));
  Raporttitaulukko taulukko{.sarakkeet = {{Teksti(tekstit::kRapMuutoksenKohde), "", "", 2, Summaus::Ei, false},
                                          {Teksti(tekstit::kRapHavainto), "", "", 6, Summaus::Ei, false}}};
  for (std::size_t i = 0; i < havainnot.size(); ++i) {
    if (i == 0 || havainnot[i].taso != havainnot[i - 1].taso)
      taulukko.LisaaValiotsikko(TasonOtsikko(havainnot[i].taso));
    taulukko.Lisaa({havainnot[i].kohde.polku, havainnot[i].teksti});
  }
  osa.Taulukko(std::move(taulukko));
}
