// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Kayttajankirjasto.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <variant>

#include "kernel/Luetteleminen.h"
#include "kernel/Virhe.h"
#include "library/Kirjastoluettelo.h"
#include "library/Kirjastosanoma.h"

namespace fs = std::filesystem;

namespace {

constexpr int kOdotus_ms = 500;  // the person waits in the window meanwhile

using Sarakearvo = std::variant<std::monostate, std::string, double, std::int64_t>;
using Sarakkeet = std::map<std::string_view, Sarakearvo>;

std::string UusiId(std::string_view alku) { return Tunniste::Uusi(Sanaksi(alku)).Teksti(); }

/// A figure in single precision as the shortest decimal that reads back equal: 0.04, not 0.0399999991059303.
double Sievennetty(double arvo) {
  char teksti[32];
  std::snprintf(teksti, sizeof teksti, "%.7g", arvo);
  const double lyhyt = std::strtod(teksti, nullptr);
  return static_cast<float>(lyhyt) == static_cast<float>(arvo) ? lyhyt : arvo;
}

void Sido(Kysely& kysely, int paikka, const Sarakearvo& arvo) {
  if (std::holds_alternative<std::monostate>(arvo))
    kysely.SidoTyhja(paikka);
  else if (const auto* teksti = std::get_if<std::string>(&arvo))
    kysely.Sido(paikka, *teksti);
  else if (const auto* luku = std::get_if<double>(&arvo))
    kysely.Sido(paikka, Sievennetty(*luku));
  else
    kysely.Sido(paikka, std::get<std::int64_t>(arvo));
}

Sarakearvo Jasenarvo(const Olio& olio, const Jasen& jasen) {
  ArvoNakyma arvo;
  jasen.nayta(olio, arvo);
  switch (arvo.OmaMuoto()) {
    case ArvoNakyma::Muoto::Teksti:
      return std::string(arvo.Teksti());
    case ArvoNakyma::Muoto::Kokonaisluku:
      return arvo.Kokonais();
    case ArvoNakyma::Muoto::Reaaliluku:
      return arvo.Reaali();
    case ArvoNakyma::Muoto::Tyhja:
      break;
  }
  return std::monostate();
}

std::vector<std::string> TaulunSarakkeet(Tietokanta& kanta, const std::string& taulu) {
  const Kysely kysely(kanta, "SELECT * FROM " + taulu);
  std::vector<std::string> nimet;
  for (int i = 0; i < kysely.Sarakkeita(); ++i) nimet.emplace_back(kysely.SarakkeenNimi(i));
  return nimet;
}

/// Adds to `sarakkeet` what the object's members of the table's column names hold; those that are told already stay.
Sarakkeet LisaaJasenet(const std::vector<std::string>& nimet, const Olio& olio, Sarakkeet sarakkeet) {
  for (const std::string& nimi : nimet)
    if (const Jasen* jasen = olio.LuokanTiedot().Etsi(nimi); jasen && jasen->nayta)
      sarakkeet.try_emplace(jasen->nimi, Jasenarvo(olio, *jasen));
  return sarakkeet;
}

/// Puts the row in, in place of the one with the same key.
void KorvaaRivi(Tietokanta& kanta, const std::string& taulu, const Sarakkeet& sarakkeet) {
  std::string nimet, kysymykset;
  for (const auto& [nimi, arvo] : sarakkeet) {
    LisaaLuetteloon(nimet, Lainaa(nimi));
    kysymykset += kysymykset.empty() ? "?" : ", ?";
  }
  Kysely kysely(kanta, "INSERT OR REPLACE INTO " + taulu + " (" + nimet + ") VALUES (" + kysymykset + ")");
  int paikka = 0;
  for (const auto& [nimi, arvo] : sarakkeet) Sido(kysely, ++paikka, arvo);
  kysely.Suorita();
}

/// The solution as a text, wherever its materials were picked from.
std::string Sisalto(Rakenneratkaisu ratkaisu) {
  for (clsRakennekerros& kerros : ratkaisu.Kerrokset) {
    kerros.Materiaali.Id.clear();
    kerros.Lisamateriaali.Id.clear();
  }
  return Sanomaksi(ratkaisu);
}

bool Samat(const Kirjastorakenne& x, const Kirjastorakenne& y) {
  return x.Id == y.Id && x.Aikakausi == y.Aikakausi && x.VuosiAlku == y.VuosiAlku && x.VuosiLoppu == y.VuosiLoppu &&
         x.Lahde == y.Lahde && Sisalto(x.Ratkaisu) == Sisalto(y.Ratkaisu);
}

bool Samat(const Kirjastomateriaali& x, const Kirjastomateriaali& y) {
  return x.Aine == y.Aine && x.Ryhma == y.Ryhma && x.MuKuiva == y.MuKuiva && x.MuMarka == y.MuMarka &&
         x.Lahde == y.Lahde && x.Tila == y.Tila;
}

const Kirjastomateriaali* Etsi(const std::vector<Kirjastomateriaali>& materiaalit, const Materiaali& aine) {
  const auto it = std::ranges::find(materiaalit, aine, &Kirjastomateriaali::Aine);
  return it == materiaalit.end() ? nullptr : &*it;
}

}  // namespace

Kayttajankirjasto::Kayttajankirjasto(const std::string& kanta, std::string vakiokanta) try
    : polku_(kanta), vakiokanta_(std::move(vakiokanta)), kanta_(kanta, Tietokanta::Tapa::Kirjoitus) {
  kanta_.Aja("PRAGMA busy_timeout = " + std::to_string(kOdotus_ms));
} catch (...) {
  NostaVirhe("Kayttajankirjasto:Kayttajankirjasto Method");
}

bool Kayttajankirjasto::On(std::string_view taulu, const std::string& id) {
  return Kysely(kanta_, "SELECT 1 FROM " + std::string(taulu) + " WHERE Id = ?", id).Seuraava();
}

bool Kayttajankirjasto::Tallenna(Kirjastorakenne& rakenne) try {
  Transaktio transaktio(kanta_);
  if (!rakenne.Id.empty() && !On("Rakenne", rakenne.Id)) return false;
  Kirjoita(rakenne);
  transaktio.Hyvaksy();
  return true;
} catch (...) {
  NostaVirhe("Kayttajankirjasto:Tallenna Method");
}

bool Kayttajankirjasto::Tallenna(Kirjastomateriaali& materiaali) try {
  Transaktio transaktio(kanta_);
  if (!materiaali.Id.empty() && !On("Materiaali", materiaali.Id)) return false;
  Kirjoita(materiaali);
  transaktio.Hyvaksy();
  return true;
} catch (...) {
  NostaVirhe("Kayttajankirjasto:Tallenna Method");
}

void Kayttajankirjasto::Kirjoita(Kirjastorakenne& rakenne) {
  if (rakenne.Id.empty()) rakenne.Id = UusiId("Rakenne");
  KorvaaRivi(kanta_, "Rakenne",
             LisaaJasenet(TaulunSarakkeet(kanta_, "Rakenne"), rakenne.Ratkaisu,
                          {{"Id", rakenne.Id},
                           {"Aikakausi", rakenne.Aikakausi},
                           {"VuosiAlku", std::int64_t{rakenne.VuosiAlku}},
                           {"VuosiLoppu", std::int64_t{rakenne.VuosiLoppu}},
                           {"Lahde", rakenne.Lahde}}));
  kanta_.Aja("DELETE FROM Kerros WHERE RakenneId = ?", rakenne.Id);
  std::int64_t jarjestys = 0;
  for (const clsRakennekerros& kerros : rakenne.Ratkaisu.Kerrokset) KirjoitaKerros(rakenne, kerros, ++jarjestys);
}

void Kayttajankirjasto::KirjoitaKerros(const Kirjastorakenne& rakenne, const clsRakennekerros& kerros,
                                       std::int64_t jarjestys) {
  const auto ehka = [](bool on, Sarakearvo arvo) { return on ? std::move(arvo) : Sarakearvo(); };
  KorvaaRivi(kanta_, "Kerros",
             LisaaJasenet(
                 TaulunSarakkeet(kanta_, "Kerros"), kerros,
                 {{"RakenneId", rakenne.Id},
                  {"Jarjestys", jarjestys},
                  {"MateriaaliId", MateriaalinId(kerros.Materiaali)},
                  {"LisamateriaaliId", ehka(!kerros.Lisamateriaali.Nimi.empty(), MateriaalinId(kerros.Lisamateriaali))},
                  {"Lammonvastus", ehka(kerros.Lammonvastus > 0, double{kerros.Lammonvastus})}}));
}

void Kayttajankirjasto::Kirjoita(Kirjastomateriaali& materiaali) {
  if (materiaali.Id.empty()) materiaali.Id = UusiId("Materiaali");
  KorvaaRivi(kanta_, "Materiaali",
             {{"Id", materiaali.Id},
              {"Nimi", materiaali.Aine.Nimi},
              {"Ryhma", materiaali.Ryhma},
              {"Lambda", double{materiaali.Aine.Lambda}},
              {"Tiheys", double{materiaali.Aine.Tiheys}},
              {"Ominaislampo", double{materiaali.Aine.Ominaislampo}},
              {"MuKuiva", double{materiaali.MuKuiva}},
              {"MuMarka", double{materiaali.MuMarka}},
              {"Lahde", materiaali.Lahde},
              {"Tila", materiaali.Tila}});
}

/// Identifier of the material with this name and these figures; it is added when the database hasn't got it.
std::string Kayttajankirjasto::MateriaalinId(const Materiaali& aine) {
  if (aine.Nimi.empty()) return {};
  Kysely kysely(kanta_, "SELECT Id, Lambda, Tiheys, Ominaislampo FROM Materiaali WHERE Nimi = ? ORDER BY Id",
                aine.Nimi);
  while (kysely.Seuraava()) {
    Materiaali ehdokas = aine;
    ehdokas.Lambda = static_cast<float>(kysely.Luku(1));
    ehdokas.Tiheys = static_cast<float>(kysely.Luku(2));
    ehdokas.Ominaislampo = static_cast<float>(kysely.Luku(3));
    if (ehdokas == aine) return std::string(kysely.Teksti(0));
  }
  Kirjastomateriaali uusi = UusiMateriaali(aine);
  Kirjoita(uusi);
  return uusi.Id;
}

Kirjastomateriaali Kayttajankirjasto::UusiMateriaali(const Materiaali& aine) {
  Kirjastomateriaali uusi;
  try {
    const auto vakiot = LueMateriaalit(vakiokanta_, Kirjasto::Vakio);
    if (const Kirjastomateriaali* vakio = Etsi(vakiot, aine)) uusi = *vakio;
  } catch (const Virhe&) {  // the group and the source stay empty
  }
  uusi.Kanta = Kirjasto::Oma;
  uusi.Id.clear();
  uusi.Aine = aine;
  return uusi;
}

void Kayttajankirjasto::PoistaRakenne(const std::string& id) try {
  Transaktio transaktio(kanta_);
  kanta_.Aja("DELETE FROM Kerros WHERE RakenneId = ?", id);
  kanta_.Aja("DELETE FROM Rakenne WHERE Id = ?", id);
  transaktio.Hyvaksy();
} catch (...) {
  NostaVirhe("Kayttajankirjasto:PoistaRakenne Method");
}

void Kayttajankirjasto::PoistaMateriaali(const std::string& id) try {
  Transaktio transaktio(kanta_);
  kanta_.Aja("DELETE FROM Materiaali WHERE Id = ?", id);
  transaktio.Hyvaksy();
} catch (...) {
  NostaVirhe("Kayttajankirjasto:PoistaMateriaali Method");
}

std::vector<std::string> Kayttajankirjasto::MateriaalinKayttajat(const std::string& id) try {
  std::vector<std::string> nimet;
  Kysely kysely(kanta_,
                "SELECT Nimi FROM Rakenne WHERE Id IN (SELECT RakenneId FROM Kerros "
                "WHERE MateriaaliId = ?1 OR LisamateriaaliId = ?1) ORDER BY Nimi",
                id);
  while (kysely.Seuraava()) nimet.emplace_back(kysely.Teksti(0));
  return nimet;
} catch (...) {
  NostaVirhe("Kayttajankirjasto:MateriaalinKayttajat Method");
}

void Kayttajankirjasto::Vie(const std::string& tiedosto) try {
  if (fs::weakly_canonical(tiedosto) == fs::weakly_canonical(polku_))
    throw std::runtime_error("kirjastoa ei voi viedä omaan tiedostoonsa");
  const std::string uusi = tiedosto + ".uusi." + std::to_string(getpid());
  fs::remove(uusi);
  try {
    kanta_.Aja("VACUUM INTO ?", uusi);
    fs::rename(uusi, tiedosto);
  } catch (...) {
    std::error_code ohi;
    fs::remove(uusi, ohi);
    throw;
  }
} catch (...) {
  NostaVirhe("Kayttajankirjasto:Vie Method");
}

Tuontitulos Kayttajankirjasto::Tuo(const std::string& tiedosto) try {
  Tuontitulos tulos;
  const auto omatMateriaalit = LueMateriaalit(polku_, Kirjasto::Oma);
  const auto omatRakenteet = LueRakenteet(polku_, Kirjasto::Oma);
  auto materiaalit = LueMateriaalit(tiedosto, Kirjasto::Oma);
  auto rakenteet = LueRakenteet(tiedosto, Kirjasto::Oma);
  Transaktio transaktio(kanta_);
  for (auto& materiaali : materiaalit) ++(Tuo(materiaali, omatMateriaalit) ? tulos.materiaaleja : tulos.entisia);
  for (auto& rakenne : rakenteet) ++(Tuo(rakenne, omatRakenteet) ? tulos.rakenteita : tulos.entisia);
  transaktio.Hyvaksy();
  return tulos;
} catch (...) {
  NostaVirhe("Kayttajankirjasto:Tuo Method");
}

/// Puts the entry in unless it is among the own ones.
template <class T>
bool Kayttajankirjasto::Tuo(T& tuotava, const std::vector<T>& omat) {
  if (std::ranges::any_of(omat, [&](const T& oma) { return Samat(oma, tuotava); })) return false;
  if (std::ranges::find(omat, tuotava.Id, &T::Id) != omat.end()) tuotava.Id.clear();
  Kirjoita(tuotava);
  return true;
}
