// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tekstivarasto.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <array>
#include <optional>
#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "kernel/Hakemistot.h"
#include "kernel/Virhe.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Viestit.h"

namespace {

std::string g_kielitunnus;
std::unordered_map<int, std::string> g_tekstit;

std::string VarastonPolku(const std::string& tiedosto = {}) {
  return tiedosto.empty() ? AppPath() + "StrVarasto.mdb" : tiedosto;
}

SQLite::Database AvaaVarasto(const std::string& tiedosto = {}) {
  return SQLite::Database(VarastonPolku(tiedosto), SQLite::OPEN_READONLY);
}

/// A column or table name for an SQL text. Brackets, since a quoted unknown name would be taken for a text.
std::string Nimi(const std::string& nimi) {
  if (nimi.empty() || nimi.find_first_of("[]") != std::string::npos)
    throw std::runtime_error("Sarakkeen nimi: " + nimi);
  return "[" + nimi + "]";
}

std::optional<std::string> EnsimmainenKieli(const SQLite::Database& varasto) {
  SQLite::Statement kysely(varasto, "SELECT Kielitunnus FROM Kieli ");
  if (!kysely.executeStep()) return std::nullopt;
  return kysely.getColumn(0).getString();
}

/// The language column: as read at start, else read now. Remembers nothing: threads ask for texts side by side.
std::string Kielisarake(const SQLite::Database& varasto) {
  return Nimi(g_kielitunnus.empty() ? EnsimmainenKieli(varasto).value_or("") : g_kielitunnus);
}

/// Nothing when the store, somebody's own of an older program, has no such column.
std::optional<int> SarakkeenPaikka(const SQLite::Statement& kysely, std::string_view nimi) {
  for (int i = 0; i < kysely.getColumnCount(); ++i)
    if (kysely.getColumnName(i) == nimi) return i;
  return std::nullopt;
}

struct Otsake {
  std::string otsikko;
  Vakavuus vakavuus;
};

Otsake TasonOtsake(int taso) {
  switch (taso) {
    case 1:
      return {Teksti(tekstit::kVirhe), Vakavuus::Virhe};
    case 2:
      return {Teksti(tekstit::kHuomautus), Vakavuus::Varoitus};
    default:
      return {{}, Vakavuus::Tieto};
  }
}

/// The message of the table; nothing when the store or its row is missing.
std::optional<Viesti> HaeViesti(int koodi) try {
  const auto varasto = AvaaVarasto();
  SQLite::Statement kysely(
      varasto, "SELECT " + Kielisarake(varasto) + ", ErrorLevel FROM Errortaulu WHERE ErrorCode = ? ORDER BY Id ");
  kysely.bind(1, koodi);
  if (!kysely.executeStep()) return std::nullopt;
  auto [otsikko, vakavuus] = TasonOtsake(kysely.getColumn(1).getInt());
  return Viesti{kysely.getColumn(0).getString(), std::move(otsikko), vakavuus};
} catch (const std::exception&) {
  return std::nullopt;
}

std::unordered_map<int, std::string> LueTekstit(const std::string& tiedosto, const std::string& kieli,
                                                const std::string& taulu) {
  const auto varasto = AvaaVarasto(tiedosto);
  SQLite::Statement kysely(varasto, "SELECT " + Nimi(kieli) + ", Id FROM " + Nimi(taulu) + " ORDER BY Id ");
  std::unordered_map<int, std::string> tekstit;
  while (kysely.executeStep()) tekstit.emplace(kysely.getColumn(1).getInt(), kysely.getColumn(0).getString());
  return tekstit;
}

}  // namespace

void AlustaTekstit() {
  const std::string kieli = HaeKielitunnus();
  if (!kieli.empty()) LataaTekstit({}, kieli);
}

std::string HaeKielitunnus(const std::string& tiedosto) {
  g_kielitunnus.clear();
  try {
    g_kielitunnus = EnsimmainenKieli(AvaaVarasto(tiedosto)).value_or("");
  } catch (const std::exception&) {
    // a store that can't be read has no language: told below
  }
  if (g_kielitunnus.empty()) NaytaVirhe(virheet::kTekstivarastoPuuttuu, VarastonPolku(tiedosto));
  return g_kielitunnus;
}

void LataaTekstit(const std::string& tiedosto, const std::string& kieli, const std::string& taulu) {
  g_tekstit.clear();
  AsetaVirhetekstinHaku(Teksti);
  try {
    g_tekstit = LueTekstit(tiedosto, kieli, taulu);
  } catch (const std::exception& e) {
    NaytaVirhe(virheet::kTekstivarastoPuuttuu, VarastonPolku(tiedosto) + ": " + e.what());
  }
}

std::string Teksti(int id) {
  const auto loydetty = g_tekstit.find(id);
  return loydetty == g_tekstit.end() ? "[String " + std::to_string(id) + " is missing]" : loydetty->second;
}

void NaytaVirhe(int koodi, std::string_view lisateksti) {
  Viesti viesti = HaeViesti(koodi).value_or(Viesti{"Virhe " + std::to_string(koodi), {}, Vakavuus::Virhe});
  viesti.teksti.append(" ").append(lisateksti);
  ViestitNyt().Nayta(viesti);
}

bool KysyPoisto() {
  const Viesti kysymys{Teksti(tekstit::kPoistetaankoRivi), Teksti(tekstit::kPoistonVahvistus), Vakavuus::Kysymys,
                       Napit::KyllaEi, Vastaus::Ei};
  return ViestitNyt().Nayta(kysymys) == Vastaus::Kylla;
}

Taulukko HaettavaValintalista(std::string_view lomake, std::string_view valinta) try {
  const auto varasto = AvaaVarasto();
  SQLite::Statement kysely(varasto, "SELECT " + Kielisarake(varasto) +
                                        ", * FROM Combotaulu WHERE frmName = ? COLLATE NOCASE AND cmbName = ? COLLATE "
                                        "NOCASE ORDER BY Id ");
  kysely.bind(1, std::string(lomake));
  kysely.bind(2, std::string(valinta));
  const auto sanat = SarakkeenPaikka(kysely, "Hakusanat");
  Taulukko rivit;
  while (kysely.executeStep()) {
    rivit.push_back({kysely.getColumn(0).getString()});
    if (sanat && kysely.getColumn(*sanat).size() > 0) rivit.back().push_back(kysely.getColumn(*sanat).getString());
  }
  return rivit;
} catch (...) {
  NostaVirhe("modTekstivarasto:HaettavaValintalista Method");
}

std::vector<std::string> Valintalista(std::string_view lomake, std::string_view valinta) try {
  std::vector<std::string> nimet;
  for (auto& rivi : HaettavaValintalista(lomake, valinta)) nimet.push_back(std::move(rivi.front()));
  return nimet;
} catch (...) {
  NostaVirhe("modTekstivarasto:Valintalista Method");
}

int Ohjeaihe(std::string_view lomake, int indeksi) try {
  constexpr std::array kSarakkeet = {"HelpID", "HelpID2", "HelpID3"};
  if (indeksi < 0 || indeksi >= static_cast<int>(kSarakkeet.size())) return 0;
  const auto varasto = AvaaVarasto();
  SQLite::Statement kysely(varasto, "SELECT * FROM HelppiIDt WHERE Formi = ? COLLATE NOCASE");
  kysely.bind(1, std::string(lomake));
  return kysely.executeStep() ? kysely.getColumn(kSarakkeet[static_cast<std::size_t>(indeksi)]).getInt() : 0;
} catch (...) {
  NostaVirhe("modTekstivarasto:Ohjeaihe Method");
}
