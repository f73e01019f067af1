// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Vertailukanta.h"
#include "building/clsTilat.h"

#include <sqlite3.h>

#include <array>
#include <functional>
#include <stdexcept>

namespace mittaus {

namespace {

struct Sulkija {
  void operator()(sqlite3* kanta) const { sqlite3_close(kanta); }
  void operator()(sqlite3_stmt* lause) const { sqlite3_finalize(lause); }
};
using Kanta = std::unique_ptr<sqlite3, Sulkija>;
using Lause = std::unique_ptr<sqlite3_stmt, Sulkija>;

void Vaadi(bool onnistui, sqlite3* kanta) {
  if (!onnistui) throw std::runtime_error(sqlite3_errmsg(kanta));
}

Kanta Avaa(const std::string& tiedosto, int tapa) {
  sqlite3* kanta = nullptr;
  const int tulos = sqlite3_open_v2(tiedosto.c_str(), &kanta, tapa | SQLITE_OPEN_NOMUTEX, nullptr);
  Kanta oma(kanta);
  Vaadi(tulos == SQLITE_OK, kanta);
  return oma;
}

Lause Valmista(sqlite3* kanta, const std::string& sql) {
  sqlite3_stmt* lause = nullptr;
  Vaadi(sqlite3_prepare_v2(kanta, sql.c_str(), -1, &lause, nullptr) == SQLITE_OK, kanta);
  return Lause(lause);
}

void Aja(sqlite3* kanta, const std::string& sql) {
  Vaadi(sqlite3_exec(kanta, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, kanta);
}

std::string Teksti(sqlite3_stmt* lause, int sarake) {
  const auto* teksti = reinterpret_cast<const char*>(sqlite3_column_text(lause, sarake));
  return teksti ? std::string(teksti, static_cast<std::size_t>(sqlite3_column_bytes(lause, sarake))) : std::string();
}

struct Taululuettelo {
  std::string nimi, luontilause;
};

std::vector<Taululuettelo> Taulut(sqlite3* kanta) {
  std::vector<Taululuettelo> taulut;
  const Lause lause = Valmista(kanta, "SELECT name, sql FROM sqlite_master WHERE type='table'");
  while (sqlite3_step(lause.get()) == SQLITE_ROW) taulut.push_back({Teksti(lause.get(), 0), Teksti(lause.get(), 1)});
  return taulut;
}

/// Row ids and the identities of the rows' parents are fresh in each save.
bool OnRivitunnus(const std::string& sarake) { return sarake == "ObjID" || sarake == "ParentID"; }

}  // namespace

Vertailukanta::Vertailukanta(const std::string& tiedosto) {
  const Kanta kanta = Avaa(tiedosto, SQLITE_OPEN_READONLY);
  for (const auto& [nimi, luontilause] : Taulut(kanta.get())) {
    Taulu& taulu = taulut_.emplace_back(Taulu{nimi, luontilause, {}, {}});
    const Lause lause = Valmista(kanta.get(), "SELECT * FROM \"" + nimi + "\"");
    const int sarakkeita = sqlite3_column_count(lause.get());
    for (int i = 0; i < sarakkeita; ++i) taulu.sarakkeet.emplace_back(sqlite3_column_name(lause.get(), i));
    while (sqlite3_step(lause.get()) == SQLITE_ROW) {
      std::vector<Arvo>& rivi = taulu.rivit.emplace_back();
      for (int i = 0; i < sarakkeita; ++i) switch (sqlite3_column_type(lause.get(), i)) {
          case SQLITE_NULL:
            rivi.emplace_back();
            break;
          case SQLITE_INTEGER:
            rivi.emplace_back(std::int64_t{sqlite3_column_int64(lause.get(), i)});
            break;
          case SQLITE_FLOAT:
            rivi.emplace_back(sqlite3_column_double(lause.get(), i));
            break;
          default:
            rivi.emplace_back(Teksti(lause.get(), i));
        }
    }
  }
}

void Vertailukanta::Kirjoita(const std::string& tiedosto) const {
  const Kanta kanta = Avaa(tiedosto, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  Aja(kanta.get(), "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL; BEGIN IMMEDIATE");
  for (const Taulu& taulu : taulut_) {
    Aja(kanta.get(), taulu.luontilause);
    std::string kysymysmerkit = "?";
    for (std::size_t i = 1; i < taulu.sarakkeet.size(); ++i) kysymysmerkit += ",?";
    const Lause lisays = Valmista(kanta.get(), "INSERT INTO \"" + taulu.nimi + "\" VALUES (" + kysymysmerkit + ")");
    for (const std::vector<Arvo>& rivi : taulu.rivit) {
      for (std::size_t i = 0; i < rivi.size(); ++i) {
        const int paikka = static_cast<int>(i) + 1;
        if (const auto* teksti = std::get_if<std::string>(&rivi[i]))
          sqlite3_bind_text(lisays.get(), paikka, teksti->data(), static_cast<int>(teksti->size()), SQLITE_STATIC);
        else if (const auto* luku = std::get_if<double>(&rivi[i]))
          sqlite3_bind_double(lisays.get(), paikka, *luku);
        else if (const auto* kokonais = std::get_if<std::int64_t>(&rivi[i]))
          sqlite3_bind_int64(lisays.get(), paikka, *kokonais);
        else
          sqlite3_bind_null(lisays.get(), paikka);
      }
      Vaadi(sqlite3_step(lisays.get()) == SQLITE_DONE, kanta.get());
      sqlite3_reset(lisays.get());
    }
  }
  Aja(kanta.get(), "COMMIT");
}

int Vertailukanta::Riveja() const {
  std::size_t riveja = 0;
  for (const Taulu& taulu : taulut_) riveja += taulu.rivit.size();
  return static_cast<int>(riveja);
}

std::uint64_t Vertailukanta::Tarkiste() const {
  std::uint64_t summa = 0;
  for (const Taulu& taulu : taulut_)
    for (const std::vector<Arvo>& rivi : taulu.rivit) {
      std::uint64_t tiiviste = std::hash<std::string>{}(taulu.nimi);
      for (std::size_t i = 0; i < rivi.size(); ++i)
        if (!OnRivitunnus(taulu.sarakkeet[i])) tiiviste = tiiviste * 31 + std::hash<Arvo>{}(rivi[i]);
      summa += tiiviste;
    }
  return summa;
}

namespace {

template <int Teksteja, int Reaaleja, int Kokonaisia>
struct Struktuuri {
  std::array<std::string, Teksteja> tekstit;
  std::array<double, Reaaleja> reaalit;
  std::array<std::int64_t, Kokonaisia> kokonaiset;

  std::string& LisaaTeksti(int n) { return tekstit.at(static_cast<std::size_t>(n)); }
  double& LisaaReaali(int n) { return reaalit.at(static_cast<std::size_t>(n)); }
  std::int64_t& LisaaKokonais(int n) { return kokonaiset.at(static_cast<std::size_t>(n)); }
};

/// For the tables of a row or a few.
struct Yleinen {
  std::vector<std::string> tekstit;
  std::vector<double> reaalit;
  std::vector<std::int64_t> kokonaiset;

  std::string& LisaaTeksti(int) { return tekstit.emplace_back(); }
  double& LisaaReaali(int) { return reaalit.emplace_back(); }
  std::int64_t& LisaaKokonais(int) { return kokonaiset.emplace_back(); }
};

enum class Sarakelaji { Teksti, Reaali, Kokonais };

/// The kinds of a table's columns, and how many there are of each.
struct Sarakkeet {
  std::vector<Sarakelaji> lajit;
  std::array<int, 3> maarat{};

  explicit Sarakkeet(sqlite3_stmt* lause) {
    for (int i = 0; i < sqlite3_column_count(lause); ++i) {
      const std::string tyyppi = sqlite3_column_decltype(lause, i);
      lajit.push_back(tyyppi.starts_with("TEXT")                           ? Sarakelaji::Teksti
                      : tyyppi.starts_with("REAL") || tyyppi == "DATETIME" ? Sarakelaji::Reaali
                                                                           : Sarakelaji::Kokonais);
      ++maarat[static_cast<std::size_t>(lajit.back())];
    }
  }
};

template <class Rivi>
struct Luettu : Selaus::Taulu {
  std::vector<Rivi> rivit;
  int Riveja() const override { return static_cast<int>(rivit.size()); }

  Luettu(sqlite3_stmt* lause, const Sarakkeet& sarakkeet) {
    while (sqlite3_step(lause) == SQLITE_ROW) {
      Rivi& rivi = rivit.emplace_back();
      int n[3] = {};
      for (int i = 0; i < static_cast<int>(sarakkeet.lajit.size()); ++i)
        switch (sarakkeet.lajit[static_cast<std::size_t>(i)]) {
          case Sarakelaji::Teksti:
            rivi.LisaaTeksti(n[0]++) = Teksti(lause, i);
            break;
          case Sarakelaji::Reaali:
            rivi.LisaaReaali(n[1]++) = sqlite3_column_double(lause, i);
            break;
          case Sarakelaji::Kokonais:
            rivi.LisaaKokonais(n[2]++) = sqlite3_column_int64(lause, i);
        }
    }
  }
};

using Lukija = std::unique_ptr<Selaus::Taulu> (*)(sqlite3_stmt*, const Sarakkeet&);

template <class Rivi>
std::unique_ptr<Selaus::Taulu> Lue(sqlite3_stmt* lause, const Sarakkeet& sarakkeet) {
  return std::make_unique<Luettu<Rivi>>(lause, sarakkeet);
}

struct Struktuuririvi {
  std::array<int, 3> maarat;
  Lukija lukija;
};

template <int T, int R, int K>
constexpr Struktuuririvi kStruktuuri{{T, R, K}, Lue<Struktuuri<T, R, K>>};

/// Columns of a kind in the tables of spaces and structures: texts, real numbers, integers.
constexpr std::array kStruktuurit{
    kStruktuuri<11, 8, 7>,  // clsTila
    kStruktuuri<11, 2, 6>,  // clsRakenne
    kStruktuuri<4, 0, 1>,   // clsRakenteet
    kStruktuuri<8, 14, 3>,  // Rakenneratkaisu
    kStruktuuri<7, 9, 3>,   // clsRakennekerros
    kStruktuuri<3, 0, 1>,   // colMateriaalit
    kStruktuuri<5, 1, 2>,   // clsHorisVarjostus, clsLippaVarjostus
};

Lukija LukijaSarakkeille(const Sarakkeet& sarakkeet) {
  for (const Struktuuririvi& rivi : kStruktuurit)
    if (rivi.maarat == sarakkeet.maarat) return rivi.lukija;
  return Lue<Yleinen>;
}

}  // namespace

Selaus::Selaus(const std::string& tiedosto) {
  const Kanta kanta = Avaa(tiedosto, SQLITE_OPEN_READONLY);
  for (const auto& taulu : Taulut(kanta.get())) {
    const Lause lause = Valmista(kanta.get(), "SELECT * FROM \"" + taulu.nimi + "\"");
    const Sarakkeet sarakkeet(lause.get());
    taulut_.push_back(LukijaSarakkeille(sarakkeet)(lause.get(), sarakkeet));
  }
}

Selaus::~Selaus() = default;
Selaus::Selaus(Selaus&&) noexcept = default;

int Selaus::Riveja() const {
  int riveja = 0;
  for (const auto& taulu : taulut_) riveja += taulu->Riveja();
  return riveja;
}

}  // namespace mittaus
