// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Kirjastoluettelo.h"

#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "library/Rakennetietokanta.h"

namespace {

constexpr std::string_view kRakenteetSql =
    "SELECT Id, Aikakausi, VuosiAlku, VuosiLoppu, Lahde FROM Rakenne "
    "WHERE ?1 = '' OR Id = ?1 ORDER BY Rakennetyyppi, VuosiAlku, Aikakausi, Nimi, Id";

constexpr std::string_view kMateriaalitSql =
    "SELECT Id, Nimi, Ryhma, Lambda, Tiheys, Ominaislampo, MuKuiva, MuMarka, Lahde, Tila FROM Materiaali "
    "ORDER BY Ryhma, Nimi, Id";

std::string Teksti(const Kysely& kysely, int sarake) { return std::string(kysely.Teksti(sarake)); }

float Luku(const Kysely& kysely, int sarake) { return static_cast<float>(kysely.Luku(sarake)); }

Kirjastorakenne LueRivi(const Kysely& kysely, Kirjasto kirjasto) {
  return {kirjasto,
          Teksti(kysely, 0),
          Teksti(kysely, 1),
          static_cast<std::int32_t>(kysely.Kokonais(2)),
          static_cast<std::int32_t>(kysely.Kokonais(3)),
          Teksti(kysely, 4),
          {}};
}

/// The structures of that identifier, all when it is empty. One removed while they are being read is left out.
std::vector<Kirjastorakenne> Lue(const std::string& polku, Kirjasto kirjasto, const std::string& id) {
  Tietokanta kanta(polku);
  Rakennetietokanta ratkaisut(polku);
  std::vector<Kirjastorakenne> rakenteet;
  Kysely kysely(kanta, kRakenteetSql, id);
  while (kysely.Seuraava()) {
    Kirjastorakenne rakenne = LueRivi(kysely, kirjasto);
    auto ratkaisu = ratkaisut.Hae(rakenne.Id);
    if (!ratkaisu) continue;
    rakenne.Ratkaisu = std::move(*ratkaisu);
    if (kirjasto == Kirjasto::Oma) rakenne.Ratkaisu.PaivitaKerrossummat();  // a material may have been edited
    rakenteet.push_back(std::move(rakenne));
  }
  return rakenteet;
}

Materiaali LueAine(const Kysely& kysely) {
  Materiaali aine;
  aine.Id = Teksti(kysely, 0);
  aine.Nimi = Teksti(kysely, 1);
  aine.Lambda = Luku(kysely, 3);
  aine.Tiheys = Luku(kysely, 4);
  aine.Ominaislampo = Luku(kysely, 5);
  return aine;
}

}  // namespace

std::vector<Kirjastorakenne> LueRakenteet(const std::string& kanta, Kirjasto kirjasto) try {
  return Lue(kanta, kirjasto, {});
} catch (...) {
  NostaVirhe("Kirjastoluettelo:LueRakenteet Method");
}

std::optional<Kirjastorakenne> LueRakenne(const std::string& kanta, Kirjasto kirjasto, const std::string& id) try {
  if (id.empty()) return std::nullopt;
  auto rakenteet = Lue(kanta, kirjasto, id);
  if (rakenteet.empty()) return std::nullopt;
  return std::move(rakenteet.front());
} catch (...) {
  NostaVirhe("Kirjastoluettelo:LueRakenne Method");
}

std::vector<Kirjastomateriaali> LueMateriaalit(const std::string& kanta, Kirjasto kirjasto) try {
  Tietokanta tietokanta(kanta);
  std::vector<Kirjastomateriaali> materiaalit;
  Kysely kysely(tietokanta, kMateriaalitSql);
  while (kysely.Seuraava())
    materiaalit.push_back({kirjasto, Teksti(kysely, 0), Teksti(kysely, 2), Luku(kysely, 6), Luku(kysely, 7),
                           Teksti(kysely, 8), Teksti(kysely, 9), LueAine(kysely)});
  return materiaalit;
} catch (...) {
  NostaVirhe("Kirjastoluettelo:LueMateriaalit Method");
}
