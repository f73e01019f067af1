// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Lammitystarveluvut.h"

#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"

std::optional<Vuositarveluku> HaeLammitystarveluku(int paikkakunta, int vuosi) try {
  Tietokanta kanta(Aineistotiedosto("Oletuskanta.mdb"));
  Kysely kysely(kanta, "SELECT Luku, Lahde FROM Lammitystarveluku WHERE PaikkakuntaID = ? AND Vuosi = ?", paikkakunta,
                vuosi);
  if (!kysely.Seuraava()) return std::nullopt;
  return Vuositarveluku{kysely.Luku(0), std::string(kysely.Teksti(1))};
} catch (...) {
  NostaVirhe("Lammitystarveluvut:HaeLammitystarveluku Function");
}
