// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tietokanta.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cctype>
#include <filesystem>

#include "kernel/Kirjainkoko.h"

namespace {

constexpr int kOdotusMs = 5000;

std::string_view Selitys(int koodi) {
  switch (koodi & 0xFF) {
    case SQLITE_FULL:
      return "levy on täynnä";
    case SQLITE_IOERR:
      return "levyn luku tai kirjoitus epäonnistui";
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return "tiedostoon ei ole kirjoitusoikeutta";
    case SQLITE_CANTOPEN:
      return "tiedostoa ei voi avata";
    case SQLITE_CORRUPT:
      return "tiedosto on vaurioitunut";
    case SQLITE_NOTADB:
      return "tiedosto ei ole tietokanta";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "toinen ohjelma varaa tiedostoa";
    case SQLITE_NOMEM:
      return "muisti ei riitä";
    case SQLITE_TOOBIG:
      return "arvo on liian pitkä";
    default:
      return "tietokannan käsittely epäonnistui";
  }
}

[[noreturn]] void NostaTietokantavirhe(int koodi, const std::string& tiedosto, const char* syy) {
  throw Tietokantavirhe(koodi & 0xFF, tiedosto + ": " + std::string(Selitys(koodi)) + " (" + syy + ")");
}

std::string TiedostoUri(const std::string& tiedosto) {
  static constexpr std::string_view kSallitut = "/._-~";
  std::string uri = "file:";
  for (const char c : std::filesystem::absolute(tiedosto).string()) {
    const auto tavu = static_cast<unsigned char>(c);
    if ((tavu < 0x80 && std::isalnum(tavu)) || kSallitut.find(c) != std::string_view::npos)
      uri += c;
    else
      uri.append({'%', "0123456789ABCDEF"[tavu >> 4], "0123456789ABCDEF"[tavu & 15]});
  }
  return uri + "?immutable=1";
}

std::unique_ptr<SQLite::Database> Avaa(const std::string& tiedosto, Tietokanta::Tapa tapa) {
  constexpr int kYhteinen = SQLITE_OPEN_NOMUTEX;
  switch (tapa) {
    case Tietokanta::Tapa::Luku:
      return std::make_unique<SQLite::Database>(tiedosto, SQLITE_OPEN_READONLY | kYhteinen, kOdotusMs);
    case Tietokanta::Tapa::Muuttumaton:
      return std::make_unique<SQLite::Database>(TiedostoUri(tiedosto),
                                                SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | kYhteinen, kOdotusMs);
    case Tietokanta::Tapa::Kirjoitus:
      return std::make_unique<SQLite::Database>(tiedosto, SQLITE_OPEN_READWRITE | kYhteinen, kOdotusMs);
    case Tietokanta::Tapa::Uusi:
      break;
  }
  return std::make_unique<SQLite::Database>(tiedosto, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | kYhteinen,
                                            kOdotusMs);
}

struct Korvaus {
  std::string_view mika;
  std::string_view milla;
};
constexpr Korvaus kKorvaukset[] = {{"DELETE * FROM", "DELETE FROM"}, {"= True", "<> 0"}, {"= False", "= 0"}};

const Korvaus* KorvausKohdassa(std::string_view loppu) {
  for (const Korvaus& korvaus : kKorvaukset)
    if (SamaNimi(loppu.substr(0, korvaus.mika.size()), korvaus.mika)) return &korvaus;
  return nullptr;
}

}  // namespace

std::string Lauseeksi(std::string_view sql) {
  std::string tulos;
  bool tekstissa = false;
  while (!sql.empty()) {
    if (sql.front() == '\'') tekstissa = !tekstissa;
    const Korvaus* korvaus = tekstissa ? nullptr : KorvausKohdassa(sql);
    tulos += korvaus ? korvaus->milla : sql.substr(0, 1);
    sql.remove_prefix(korvaus ? korvaus->mika.size() : 1);
  }
  return tulos;
}

std::string Lainaa(std::string_view nimi) {
  std::string tulos = "\"";
  for (const char c : nimi) tulos.append(c == '"' ? 2 : 1, c);
  return tulos + '"';
}

Tietokanta::Tietokanta(const std::string& tiedosto, Tapa tapa) try : tiedosto_(tiedosto), kanta_(Avaa(tiedosto, tapa)) {
} catch (const SQLite::Exception& virhe) {
  NostaTietokantavirhe(virhe.getErrorCode(), tiedosto, virhe.what());
}

Tietokanta::Tietokanta(Tietokanta&&) noexcept = default;

Tietokanta::~Tietokanta() = default;

sqlite3* Tietokanta::Kahva() const noexcept { return kanta_->getHandle(); }

void Tietokanta::Aja(std::string_view sql) {
  const int tulos = sqlite3_exec(Kahva(), Lauseeksi(sql).c_str(), nullptr, nullptr, nullptr);
  if (tulos != SQLITE_OK) NostaTietokantavirhe(tulos, tiedosto_, sqlite3_errmsg(Kahva()));
}

// Rows and values go straight to the C interface: a value of a row is read and bound without an allocation or a copy.

void Kysely::Vapautus::operator()(sqlite3_stmt* lause) const noexcept { sqlite3_finalize(lause); }

Kysely::Kysely(Tietokanta& kanta, std::string_view sql) {
  const std::string teksti = Lauseeksi(sql);
  sqlite3_stmt* lause = nullptr;
  const int tulos = sqlite3_prepare_v2(kanta.Kahva(), teksti.data(), static_cast<int>(teksti.size()), &lause, nullptr);
  if (tulos != SQLITE_OK) NostaTietokantavirhe(tulos, kanta.Tiedosto(), sqlite3_errmsg(kanta.Kahva()));
  lause_.reset(lause);
}

void Kysely::Nosta() const {
  sqlite3* kahva = sqlite3_db_handle(lause_.get());
  const char* tiedosto = sqlite3_db_filename(kahva, "main");
  NostaTietokantavirhe(sqlite3_errcode(kahva), tiedosto ? tiedosto : "", sqlite3_errmsg(kahva));
}

void Kysely::Tarkista(int tulos) const {
  if (tulos != SQLITE_OK) Nosta();
}

void Kysely::Sido(int paikka, std::int64_t arvo) { Tarkista(sqlite3_bind_int64(lause_.get(), paikka, arvo)); }

void Kysely::Sido(int paikka, double arvo) { Tarkista(sqlite3_bind_double(lause_.get(), paikka, arvo)); }

void Kysely::Sido(int paikka, std::string_view teksti) {
  Tarkista(sqlite3_bind_text64(lause_.get(), paikka, teksti.data() ? teksti.data() : "", teksti.size(), SQLITE_STATIC,
                               SQLITE_UTF8));
}

void Kysely::SidoTyhja(int paikka) { Tarkista(sqlite3_bind_null(lause_.get(), paikka)); }

bool Kysely::Seuraava() {
  const int tulos = sqlite3_step(lause_.get());
  if (tulos != SQLITE_ROW && tulos != SQLITE_DONE) Nosta();
  return tulos == SQLITE_ROW;
}

void Kysely::Suorita() {
  Seuraava();
  Alkuun();
}

void Kysely::Alkuun() noexcept { sqlite3_reset(lause_.get()); }

int Kysely::Sarakkeita() const noexcept { return sqlite3_column_count(lause_.get()); }

std::string_view Kysely::SarakkeenNimi(int sarake) const noexcept {
  const char* nimi = sqlite3_column_name(lause_.get(), sarake);
  return nimi ? nimi : "";
}

bool Kysely::OnTekstisarake(int sarake) const noexcept {
  const char* tyyppi = sqlite3_column_decltype(lause_.get(), sarake);
  if (!tyyppi) return false;
  const std::string t = PieniksiKirjaimiksi(tyyppi);
  return t.find("text") != std::string::npos || t.find("char") != std::string::npos;
}

bool Kysely::OnTyhja(int sarake) const noexcept { return sqlite3_column_type(lause_.get(), sarake) == SQLITE_NULL; }

std::int64_t Kysely::Kokonais(int sarake) const noexcept { return sqlite3_column_int64(lause_.get(), sarake); }

double Kysely::Luku(int sarake) const noexcept { return sqlite3_column_double(lause_.get(), sarake); }

std::string_view Kysely::Teksti(int sarake) const noexcept {
  const auto* teksti = reinterpret_cast<const char*>(sqlite3_column_text(lause_.get(), sarake));
  if (!teksti) return {};
  return {teksti, static_cast<std::size_t>(sqlite3_column_bytes(lause_.get(), sarake))};
}

void Kysely::Nayta(int sarake, ArvoNakyma& nakyma) const noexcept {
  switch (sqlite3_column_type(lause_.get(), sarake)) {
    case SQLITE_NULL:
      return nakyma.AsetaTyhja();
    case SQLITE_INTEGER:
      return nakyma.Aseta(std::int64_t{Kokonais(sarake)});
    case SQLITE_FLOAT:
      return nakyma.Aseta(Luku(sarake));
    default:
      nakyma.Aseta(Teksti(sarake));
  }
}

Transaktio::~Transaktio() {
  if (auki_) sqlite3_exec(kanta_.Kahva(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaktio::Hyvaksy() {
  kanta_.Aja("COMMIT");
  auki_ = false;
}
