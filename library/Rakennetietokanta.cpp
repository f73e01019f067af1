// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakennetietokanta.h"

#include "kernel/Virhe.h"

namespace {

constexpr const char* kRakenneSql = "SELECT * FROM Rakenne WHERE Id = ?";

constexpr const char* kKerrosSql =
    "SELECT Kerros.*, Paa.Nimi AS MateriaaliNimi, Paa.Lambda AS MateriaaliLambda, Paa.Tiheys AS MateriaaliTiheys, "
    "Paa.Ominaislampo AS MateriaaliOminaislampo, Lisa.Nimi AS LisamateriaaliNimi, Lisa.Lambda AS LisamateriaaliLambda, "
    "Lisa.Tiheys AS LisamateriaaliTiheys, Lisa.Ominaislampo AS LisamateriaaliOminaislampo "
    "FROM Kerros LEFT JOIN Materiaali AS Paa ON Paa.Id = Kerros.MateriaaliId "
    "LEFT JOIN Materiaali AS Lisa ON Lisa.Id = Kerros.LisamateriaaliId "
    "WHERE Kerros.RakenneId = ? ORDER BY Kerros.Jarjestys";

constexpr const char* kMateriaaliSql =
    "SELECT Id AS MateriaaliId, Nimi AS MateriaaliNimi, Lambda AS MateriaaliLambda, Tiheys AS MateriaaliTiheys, "
    "Ominaislampo AS MateriaaliOminaislampo FROM Materiaali WHERE Nimi = ? ORDER BY Id LIMIT 1";

}  // namespace

Rakennetietokanta::Rakennetietokanta(const std::string& polku) try
    : kanta_(polku),
      rakenteet_(kanta_, kRakenneSql, Rakenneratkaisu::kLuokka),
      kerrokset_(kanta_, kKerrosSql, clsRakennekerros::kLuokka),
      materiaalit_(kanta_, kMateriaaliSql, clsRakennekerros::kLuokka) {
} catch (...) {
  NostaVirhe("Rakennetietokanta:Rakennetietokanta Method");
}

std::string Rakennetietokanta::Versio() const try {
  Kysely kysely(kanta_, "SELECT Versio FROM Asetukset");
  return kysely.Seuraava() ? std::string(kysely.Teksti(0)) : std::string();
} catch (...) {
  NostaVirhe("Rakennetietokanta:Versio Method");
}

std::optional<Rakenneratkaisu> Rakennetietokanta::Hae(const std::string& id) try {
  std::optional<Rakenneratkaisu> ratkaisu;
  rakenteet_.Kay(id, [&] { rakenteet_.LueRivi(ratkaisu.emplace()); });
  if (ratkaisu) kerrokset_.Kay(id, [&] { kerrokset_.LueRivi(ratkaisu->Kerrokset.LisaaKerros()); });
  return ratkaisu;
} catch (...) {
  NostaVirhe("Rakennetietokanta:Hae Method");
}

std::optional<Materiaali> Rakennetietokanta::HaeMateriaali(const std::string& nimi) try {
  std::optional<Materiaali> materiaali;
  materiaalit_.Kay(nimi, [&] {
    clsRakennekerros kerros;
    materiaalit_.LueRivi(kerros);
    materiaali = kerros.Materiaali;
  });
  return materiaali;
} catch (...) {
  NostaVirhe("Rakennetietokanta:HaeMateriaali Method");
}

bool Rakennetietokanta::PaivitaMateriaali(Materiaali& materiaali) {
  const auto tuore = HaeMateriaali(materiaali.Nimi);
  if (!tuore || *tuore == materiaali) return false;
  materiaali = *tuore;
  return true;
}

bool Rakennetietokanta::PaivitaMateriaalit(Rakenneratkaisu& ratkaisu) try {
  bool muuttui = false;
  for (clsRakennekerros& kerros : ratkaisu.Kerrokset) {
    muuttui |= PaivitaMateriaali(kerros.Materiaali);
    muuttui |= PaivitaMateriaali(kerros.Lisamateriaali);
  }
  if (muuttui) ratkaisu.PaivitaKerrossummat();
  return muuttui;
} catch (...) {
  NostaVirhe("Rakennetietokanta:PaivitaMateriaalit Method");
}
