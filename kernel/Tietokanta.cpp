// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tietokanta.h"

#include <sqlite3.h>

#include <cctype>
#include <filesystem>

#include "kernel/Kirjainkoko.h"

namespace {

constexpr int kOdotusMs = 5000;
constexpr int kPisinArvo = 64 << 20;  // bytes of one value, and of one row

std::string_view KoodinSelitys(int koodi) {
  switch (koodi) {
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
    case SQLITE_INTERRUPT:
      return "tiedoston käsittely vaatisi kohtuuttomasti työtä";
    default:
      return "tietokannan käsittely epäonnistui";
  }
}

std::string TiedostoUri(const std::string& tiedosto, std::string_view ehto) {
  static constexpr std::string_view kSallitut = "/._-~";
  std::string uri = "file:";
  for (const char c : std::filesystem::absolute(tiedosto).string()) {
    const auto tavu = static_cast<unsigned char>(c);
    if ((tavu < 0x80 && std::isalnum(tavu)) || kSallitut.find(c) != std::string_view::npos)
      uri += c;
    else
      uri.append({'%', "0123456789ABCDEF"[tavu >> 4], "0123456789ABCDEF"[tavu & 15]});
  }
  return uri.append("?").append(ehto);
}

sqlite3* AvaaNimella(const std::string& nimi, const std::string& tiedosto, int tapa) {
  sqlite3* kanta = nullptr;
  const int tulos = sqlite3_open_v2(nimi.c_str(), &kanta, tapa | SQLITE_OPEN_NOMUTEX, nullptr);
  if (tulos == SQLITE_OK) return kanta;
  const std::string syy = kanta ? sqlite3_errmsg(kanta) : sqlite3_errstr(tulos);
  sqlite3_close_v2(kanta);
  throw Tietokantavirhe(tulos, tiedosto, syy);
}

/// A pipe or a device in place of the file would be waited for without end.
void VaadiTavallinen(const std::string& tiedosto) {
  std::error_code virhe;
  const auto tila = std::filesystem::status(tiedosto, virhe);
  if (!std::filesystem::exists(tila) || std::filesystem::is_regular_file(tila)) return;
  throw Tietokantavirhe(SQLITE_NOTADB, tiedosto, "not a regular file");
}

sqlite3* Avaa(const std::string& tiedosto, Tietokanta::Tapa tapa) {
  VaadiTavallinen(tiedosto);
  switch (tapa) {
    case Tietokanta::Tapa::Luku:
      return AvaaNimella(tiedosto, tiedosto, SQLITE_OPEN_READONLY);
    case Tietokanta::Tapa::Muuttumaton:
      return AvaaNimella(TiedostoUri(tiedosto, "immutable=1"), tiedosto, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    case Tietokanta::Tapa::Kirjoitus:
      return AvaaNimella(tiedosto, tiedosto, SQLITE_OPEN_READWRITE);
    case Tietokanta::Tapa::Oma:
      return AvaaNimella(TiedostoUri(tiedosto, "nolock=1"), tiedosto, SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI);
    case Tietokanta::Tapa::Uusi:
      break;
  }
  return AvaaNimella(tiedosto, tiedosto, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

void Suojaa(sqlite3* kanta) {
  sqlite3_busy_timeout(kanta, kOdotusMs);
  sqlite3_limit(kanta, SQLITE_LIMIT_LENGTH, kPisinArvo);
  sqlite3_db_config(kanta, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  for (const int kielletty : {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_VIEW,
                              SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION})
    sqlite3_db_config(kanta, kielletty, 0, nullptr);
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

Tietokantavirhe::Tietokantavirhe(int koodi, const std::string& tiedosto, const std::string& tarkenne)
    : std::runtime_error(tiedosto + ": " + std::string(KoodinSelitys(koodi & 0xFF)) + " (" + tarkenne + ")"),
      koodi_(koodi & 0xFF),
      selitys_(KoodinSelitys(koodi & 0xFF)) {
  selitys_ += " (" + tarkenne + ")";
}

bool Tietokantavirhe::OnSisallossa() const noexcept {
  return koodi_ == SQLITE_CORRUPT || koodi_ == SQLITE_NOTADB || koodi_ == SQLITE_ERROR;
}

struct Tietokanta::Tyoraja {
  static constexpr int kAskel = 100'000;
  std::int64_t jaljella;

  static int Kulu(void* raja) { return (static_cast<Tyoraja*>(raja)->jaljella -= kAskel) < 0; }
};

void Tietokanta::TyorajanVapautus::operator()(Tyoraja* raja) const noexcept { delete raja; }

void Tietokanta::Sulku::operator()(sqlite3* kanta) const noexcept { sqlite3_close_v2(kanta); }

Tietokanta::Tietokanta(const std::string& tiedosto, Tapa tapa) : tiedosto_(tiedosto), kanta_(Avaa(tiedosto, tapa)) {
  Suojaa(Kahva());
}

void Tietokanta::RajaaTyo(std::int64_t askelia) {
  tyoraja_.reset(new Tyoraja{askelia});
  sqlite3_progress_handler(Kahva(), Tyoraja::kAskel, Tyoraja::Kulu, tyoraja_.get());
}

void Tietokanta::Aja(std::string_view sql) {
  const int tulos = sqlite3_exec(Kahva(), Lauseeksi(sql).c_str(), nullptr, nullptr, nullptr);
  if (tulos != SQLITE_OK) throw Tietokantavirhe(tulos, tiedosto_, sqlite3_errmsg(Kahva()));
}

// Rows and values go straight to the C interface: a value of a row is read and bound without an allocation or a copy.

void Kysely::Vapautus::operator()(sqlite3_stmt* lause) const noexcept { sqlite3_finalize(lause); }

Kysely::Kysely(const Tietokanta& kanta, std::string_view sql) {
  const std::string teksti = Lauseeksi(sql);
  sqlite3_stmt* lause = nullptr;
  const int tulos = sqlite3_prepare_v2(kanta.Kahva(), teksti.data(), static_cast<int>(teksti.size()), &lause, nullptr);
  if (tulos != SQLITE_OK) throw Tietokantavirhe(tulos, kanta.Tiedosto(), sqlite3_errmsg(kanta.Kahva()));
  lause_.reset(lause);
}

void Kysely::Nosta() const {
  sqlite3* kahva = sqlite3_db_handle(lause_.get());
  const char* tiedosto = sqlite3_db_filename(kahva, "main");
  throw Tietokantavirhe(sqlite3_errcode(kahva), tiedosto ? tiedosto : "", sqlite3_errmsg(kahva));
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
