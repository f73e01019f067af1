// SPDX-License-Identifier: GPL-3.0-or-later
// Copies of the two fuel databases, which the tests may spoil.
#pragma once
#include <filesystem>

#include "kernel/Hakemistot.h"
#include "supply/Energiamuotokanta.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"

class Polttoainekannat : public RakennusTesti {
 protected:
  using Laji = Energiamuotokanta::Laji;

  Polttoainekannat() {
    for (const char* nimi : {"VakioPolttoainekanta.mdb", "KayttajanPolttoainekanta.mdb"})
      std::filesystem::copy_file(AppPath() + nimi, kansio / nimi);
    Asetukset().VakioPolttoainekanta = (kansio / "VakioPolttoainekanta.mdb").string();
    Asetukset().KayttajanPolttoainekanta = (kansio / "KayttajanPolttoainekanta.mdb").string();
    AlustaPerustiedot(rakennus->Perustiedot);
    AlustaToteutuneetKulutukset(rakennus->Perustiedot.ToteutuneetKulutukset);
  }
  ~Polttoainekannat() override { Asetukset().HaeRekisteristä(); }

  const Koehakemisto kansio;
};
