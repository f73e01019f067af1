// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "kernel/Variantti.h"

struct sqlite3;
struct sqlite3_stmt;

/// A failure of a database. what() is a Finnish sentence that names the file and the cause.
class Tietokantavirhe : public std::runtime_error {
 public:
  /// `koodi` is SQLite's primary result code, `tarkenne` its own words.
  Tietokantavirhe(int koodi, const std::string& tiedosto, const std::string& tarkenne);
  int Koodi() const noexcept { return koodi_; }
  /// The cause without the file.
  const std::string& Selitys() const noexcept { return selitys_; }
  /// The file could be handled, but isn't what it should be: no database, a damaged one, or one with other tables.
  bool OnSisallossa() const noexcept;

 private:
  int koodi_;
  std::string selitys_;
};

/// The statement as SQLite reads it: "DELETE * FROM" loses its star, "= True" becomes "<> 0" (True is stored as -1) and
/// "= False" becomes "= 0". Texts in apostrophes stay as they are.
std::string Lauseeksi(std::string_view sql);

/// A name of a table or column between quotes.
std::string Lainaa(std::string_view nimi);

/// A database file. Errors of the class and of its queries raise Tietokantavirhe.
///
/// Files come from other people's hands: only a regular file is opened, and its schema is not trusted. Views, triggers
/// and virtual tables can't be used, nothing in the file may name a function with side effects, and values longer than
/// 64 MB are refused.
class Tietokanta {
 public:
  enum class Tapa {
    Luku,         ///< read only, beside others that may write
    Muuttumaton,  ///< read only and nobody writes: no locks, and a journal beside the file is left alone
    Kirjoitus,    ///< an existing file
    Oma,          ///< an existing file that only this program knows of: written without locks
    Uusi,         ///< made if it doesn't exist
  };
  explicit Tietokanta(const std::string& tiedosto, Tapa tapa = Tapa::Luku);

  /// Runs one or several statements without values.
  void Aja(std::string_view sql);
  /// Runs one statement with values for its question marks.
  template <class... Arvot>
  void Aja(std::string_view sql, const Arvot&... arvot);

  const std::string& Tiedosto() const noexcept { return tiedosto_; }
  sqlite3* Kahva() const noexcept { return kanta_.get(); }
  /// Queries give up with an error after this many steps of SQLite's machine (some ten million a second) in all.
  void RajaaTyo(std::int64_t askelia);

 private:
  struct Sulku {
    void operator()(sqlite3* kanta) const noexcept;
  };
  /// What is left of the work allowed; its address is known to SQLite.
  struct Tyoraja;
  struct TyorajanVapautus {
    void operator()(Tyoraja* raja) const noexcept;
  };

  std::string tiedosto_;
  std::unique_ptr<Tyoraja, TyorajanVapautus> tyoraja_;
  std::unique_ptr<sqlite3, Sulku> kanta_;
};

/// A prepared statement. Parameters count from 1, columns from 0.
class Kysely {
 public:
  Kysely(const Tietokanta& kanta, std::string_view sql);
  template <class... Arvot>
  Kysely(const Tietokanta& kanta, std::string_view sql, Arvot&&... arvot) : Kysely(kanta, sql) {
    int paikka = 0;
    (Sido(++paikka, std::forward<Arvot>(arvot)), ...);
  }

  void Sido(int paikka, std::int64_t arvo);
  void Sido(int paikka, int arvo) { Sido(paikka, std::int64_t{arvo}); }
  void Sido(int paikka, double arvo);
  void Sido(int paikka, bool arvo) { Sido(paikka, std::int64_t{arvo ? -1 : 0}); }
  /// The text isn't copied: it has to live until the statement has run.
  void Sido(int paikka, std::string_view teksti);
  void Sido(int paikka, const char* teksti) { Sido(paikka, std::string_view(teksti)); }
  void Sido(int paikka, const std::string& teksti) { Sido(paikka, std::string_view(teksti)); }
  void Sido(int paikka, std::string&& teksti) = delete;
  void SidoTyhja(int paikka);

  /// Moves to the next row; false when there are no more.
  bool Seuraava();
  /// Runs a statement that gives no rows and makes it ready to run again.
  void Suorita();
  /// Ready to run again; the bound values stay.
  void Alkuun() noexcept;

  int Sarakkeita() const noexcept;
  std::string_view SarakkeenNimi(int sarake) const noexcept;
  /// True when the column is declared as text; its values may be markers of a project file.
  bool OnTekstisarake(int sarake) const noexcept;

  bool OnTyhja(int sarake) const noexcept;
  /// Value by SQLite's own conversions; nothing is 0 or "". A text lives until the next row.
  std::int64_t Kokonais(int sarake) const noexcept;
  double Luku(int sarake) const noexcept;
  bool Tosi(int sarake) const noexcept { return Kokonais(sarake) != 0; }
  std::string_view Teksti(int sarake) const noexcept;
  /// The value as it is stored.
  void Nayta(int sarake, ArvoNakyma& nakyma) const noexcept;

 private:
  struct Vapautus {
    void operator()(sqlite3_stmt* lause) const noexcept;
  };
  void Tarkista(int tulos) const;
  [[noreturn]] void Nosta() const;

  std::unique_ptr<sqlite3_stmt, Vapautus> lause_;
};

template <class... Arvot>
void Tietokanta::Aja(std::string_view sql, const Arvot&... arvot) {
  Kysely(*this, sql, arvot...).Suorita();
}

/// Everything between construction and Hyvaksy, or nothing of it.
class Transaktio {
 public:
  explicit Transaktio(Tietokanta& kanta) : kanta_(kanta) { kanta_.Aja("BEGIN IMMEDIATE"); }
  ~Transaktio();
  Transaktio(const Transaktio&) = delete;
  Transaktio& operator=(const Transaktio&) = delete;
  void Hyvaksy();

 private:
  Tietokanta& kanta_;
  bool auki_ = true;
};
