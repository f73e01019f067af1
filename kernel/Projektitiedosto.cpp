// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Projektitiedosto.h"

#include <fcntl.h>
#include <sqlite3.h>

#include "kernel/Hakemistot.h"
#include "kernel/Rivikirjoitin.h"
#include "kernel/Rivilukija.h"
#include "kernel/Tietokanta.h"
#include "kernel/Turvatallennus.h"
#include "kernel/UusiTiedosto.h"

namespace {

using Syy = Projektivirhe::Syy;

std::string LueMalli(const std::string& malli) try {
  return LueTiedosto(malli);
} catch (const std::system_error& virhe) {
  if (virhe.code() != std::errc::no_such_file_or_directory)
    throw Projektivirhe(Syy::Malli, malli + ": " + Selitys(virhe.code()));
  throw Projektivirhe(Syy::MalliPuuttuu, "File: " + malli + " cannot be found.");
}

/// The journal stays beside the file until the commit, everything is flushed, and pages are kept in memory until then.
Tallennusraportti TaytaKanta(Olio& juuri, Tietokanta& kanta, const Eteneminen& eteneminen,
                             const std::function<void(Tietokanta&)>& lisaa) {
  kanta.Aja(
      "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL; PRAGMA cache_spill=OFF; "
      "PRAGMA cache_size=-262144");
  Rivikirjoitin kirjoitin(kanta, eteneminen);
  Transaktio transaktio(kanta);
  TyhjennaProjektikanta(kanta);
  kirjoitin.Kirjoita(juuri);
  if (lisaa) lisaa(kanta);
  transaktio.Hyvaksy();
  kirjoitin.TarkistaRivimaarat();
  return kirjoitin.Raportti();
}

/// The bytes were the template's until now: when they aren't a database of the right kind, the template is to blame.
[[noreturn]] void NostaKirjoitusvirhe(const Tietokantavirhe& virhe, const std::string& tiedosto,
                                      const std::string& malli) {
  if (virhe.OnSisallossa()) throw Projektivirhe(Syy::Malli, malli + ": " + virhe.Selitys());
  throw Projektivirhe(Syy::Kirjoitus, tiedosto + ": " + virhe.Selitys());
}

/// SQLite's error codes: 11 a page can't be read as one, 26 the file isn't a database, 14 it can't be opened.
[[noreturn]] void NostaLukuvirhe(const Tietokantavirhe& virhe) {
  constexpr int kVaurioitunut = 11;
  throw Projektivirhe(virhe.Koodi() == kVaurioitunut ? Syy::Vaurioitunut : Syy::EiProjekti, virhe.what());
}

std::int64_t Luku(Tietokanta& kanta, const char* kysymys) {
  Kysely kysely(kanta, kysymys);
  return kysely.Seuraava() ? kysely.Kokonais(0) : 0;
}

Kahva AvaaTiedosto(const std::string& tiedosto) try {
  return Kahva(tiedosto, O_RDONLY);
} catch (const std::system_error& virhe) {
  throw Projektivirhe(Syy::EiProjekti, tiedosto + ": " + Selitys(virhe.code()));
}

/// A project file holds plain tables. What computes its rows (views, triggers, virtual tables, generated columns) is
/// the work of another hand, and reading it could take any time and memory.
void VaadiPelkatTaulut(Tietokanta& kanta) {
  Kysely laskevat(kanta,
                  "SELECT name FROM sqlite_master m WHERE type IN ('view', 'trigger') OR (type = 'table' AND "
                  "(rootpage = 0 OR EXISTS (SELECT 1 FROM pragma_table_xinfo(m.name) WHERE hidden > 1)))");
  if (laskevat.Seuraava())
    throw Projektivirhe(Syy::EiProjekti, kanta.Tiedosto() + ": " + std::string(laskevat.Teksti(0)) +
                                             " ei ole tavallinen taulu, jollaisista kohdetiedosto koostuu");
}

/// Steps of the database's machine that reading a file of that many bytes may take: a stored value is at least a byte,
/// and costs a few steps.
std::int64_t SallittuTyo(std::int64_t koko) { return 10'000'000 + 50 * koko; }

/// Size of the open file, whatever stands under its name by now: another program may have saved there.
std::int64_t Koko(const Tietokanta& kanta) {
  sqlite3_file* tiedosto = nullptr;
  sqlite3_int64 koko = 0;
  sqlite3_file_control(kanta.Kahva(), "main", SQLITE_FCNTL_FILE_POINTER, &tiedosto);
  if (tiedosto && tiedosto->pMethods) tiedosto->pMethods->xFileSize(tiedosto, &koko);
  return koko;
}

/// Opens a file to be read. One that lacks its end reads as zeros there, which would pass for values.
Tietokanta AvaaLuettavaksi(const std::string& tiedosto) {
  Tietokanta kanta(tiedosto, Tietokanta::Tapa::Muuttumaton);
  const std::int64_t koko = Koko(kanta);
  kanta.RajaaTyo(SallittuTyo(koko));
  if (Luku(kanta, "PRAGMA page_count") * Luku(kanta, "PRAGMA page_size") > koko)
    throw Projektivirhe(Syy::Vaurioitunut, tiedosto + ": tiedoston loppu puuttuu");
  VaadiPelkatTaulut(kanta);
  return kanta;
}

Tiedostoversio LueVersio(Tietokanta& kanta) {
  Kysely rivi(kanta, "SELECT Major, Minor, Revision FROM clsRakennus");
  Tiedostoversio versio;
  ArvoNakyma arvo;
  if (!rivi.Seuraava())
    throw Projektivirhe(Syy::EiProjekti, kanta.Tiedosto() + ": tiedostossa ei ole katselmuskohdetta");
  int sarake = 0;
  for (int* osa : {&versio.Major, &versio.Minor, &versio.Revision}) {
    rivi.Nayta(sarake++, arvo);
    if (!Muunna(arvo, *osa))
      throw Projektivirhe(Syy::EiProjekti, kanta.Tiedosto() + ": tiedoston versiota ei voi lukea");
  }
  return versio;
}

}  // namespace

Projektimalli::Projektimalli(const std::string& polku)
    : polku_(polku.empty() ? Aineistotiedosto("stemplate.tmp") : polku), sisalto_(LueMalli(polku_)) {}

Tallennusraportti RakennaProjekti(Olio& juuri, UusiTiedosto& uusi, const Projektimalli& malli,
                                  const Eteneminen& eteneminen, const std::function<void(Tietokanta&)>& lisaa) try {
  uusi.OmaKahva().Kirjoita(malli.Sisalto());
  Tietokanta kanta(uusi.Polku().string(), Tietokanta::Tapa::Oma);
  Tallennusraportti raportti = TaytaKanta(juuri, kanta, eteneminen, lisaa);
  raportti.tunnus = {uusi.OmaKahva(), raportti.juurenAvain};
  return raportti;
} catch (const Tietokantavirhe& virhe) {
  NostaKirjoitusvirhe(virhe, uusi.OmaKahva().Tiedosto(), malli.Polku());
}

Tallennusraportti TallennaProjekti(Olio& juuri, const std::string& tiedosto, const std::string& malli,
                                   const Tallennustapa& tapa) {
  const Projektimalli pohja(malli);
  Tallennusraportti raportti;
  const bool vahvistettu =
      KorvaaTurvallisesti(tiedosto, {.sailytaEnnen = tapa.sailytaEnnen, .odotettu = tapa.odotettu},
                          [&](UusiTiedosto& uusi) { raportti = RakennaProjekti(juuri, uusi, pohja, tapa.eteneminen); });
  raportti.vahvistettu = vahvistettu;
  return raportti;
}

void HaeProjekti(Olio& juuri, const std::string& tiedosto, Latausraportti& raportti) try {
  const Kahva kahva = AvaaTiedosto(tiedosto);
  Tietokanta kanta = AvaaLuettavaksi(tiedosto);
  Rivilukija lukija(kanta, raportti);
  lukija.Lue(juuri);
  raportti.tunnus = {kahva, lukija.JuurenAvain()};
} catch (const Tietokantavirhe& virhe) {
  NostaLukuvirhe(virhe);
}

Tiedostoversio HaeTiedostonVersio(const std::string& tiedosto) try {
  Tietokanta kanta = AvaaLuettavaksi(tiedosto);
  return LueVersio(kanta);
} catch (const Tietokantavirhe& virhe) {
  NostaLukuvirhe(virhe);
}

std::string HaeTiedostonTeksti(const std::string& tiedosto, const std::string& luokka, const std::string& jasen) try {
  Tietokanta kanta = AvaaLuettavaksi(tiedosto);
  Kysely rivi(kanta, "SELECT t." + Lainaa(jasen) + " FROM " + Lainaa(luokka) + " t ORDER BY rowid LIMIT 1");
  const bool onTeksti = rivi.Seuraava() && rivi.Teksti(0) != merkit::kTyhja;
  return std::string(onTeksti ? rivi.Teksti(0) : std::string_view());
} catch (const std::runtime_error&) {
  return {};
}
