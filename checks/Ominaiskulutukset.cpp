// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Ominaiskulutukset.h"

#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"

std::vector<Ominaiskulutus> HaeOminaiskulutukset(int kayttotarkoituskoodi, std::string_view suure) try {
  const Tietokanta kanta(Aineistotiedosto("Oletuskanta.mdb"));
  Kysely kysely(kanta,
                "SELECT Ryhma, Yksikko, Alaraja, Ylaraja, Lahde || '; ' || Tila FROM Ominaiskulutus "
                "WHERE instr(';' || Koodit || ';', ';' || ?1 || ';') AND Suure = ?2 ORDER BY rowid",
                kayttotarkoituskoodi, suure);
  std::vector<Ominaiskulutus> rivit;
  while (kysely.Seuraava())
    rivit.push_back({std::string(kysely.Teksti(0)), std::string(kysely.Teksti(1)), kysely.Luku(2), kysely.Luku(3),
                     std::string(kysely.Teksti(4))});
  return rivit;
} catch (...) {
  NostaVirhe("Ominaiskulutukset:HaeOminaiskulutukset Function");
}
