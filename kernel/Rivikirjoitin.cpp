// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Rivikirjoitin.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"

namespace {

/// Columns that are never looked up as member objects: they bear names of a collection's operations.
constexpr std::array<std::string_view, 5> kEiLapsia{"Add", "Item", "NewEnum", "Remove", "Yhdista"};

/// A user's text that would be taken for a marker gets a blank behind it.
constexpr std::array<std::string_view, 4> kSuojatut{"Empty ", "IsObjectGet ", "IsObjectMethod ",
                                                    "IsObjectGetReference "};

std::string_view Tallennusmuoto(std::string_view teksti) {
  if (teksti.empty()) return merkit::kTyhja;
  if (teksti.front() != 'E' && teksti.front() != 'I') return teksti;
  for (const std::string_view suojattu : kSuojatut)
    if (teksti == suojattu.substr(0, suojattu.size() - 1)) return suojattu;
  return teksti;
}

std::vector<std::string> Taulunimet(Tietokanta& kanta) {
  std::vector<std::string> nimet;
  for (Kysely rivit(kanta, "SELECT Name FROM ClassTypes"); rivit.Seuraava();) nimet.emplace_back(rivit.Teksti(0));
  return nimet;
}

/// One number of each table, all in one query: a prepared template has some seventy tables.
std::vector<std::int64_t> KysyTauluittain(Tietokanta& kanta, const std::vector<std::string>& taulut,
                                          std::string_view kysymys) {
  std::string lause = "SELECT 0";
  for (const std::string& taulu : taulut) lause.append(",").append(kysymys).append(Lainaa(taulu)).append(")");
  Kysely kysely(kanta, lause);
  kysely.Seuraava();
  std::vector<std::int64_t> luvut;
  for (std::size_t i = 1; i <= taulut.size(); ++i) luvut.push_back(kysely.Kokonais(static_cast<int>(i)));
  return luvut;
}

}  // namespace

/// A class's table: its columns resolved to members once, and the prepared insertion of a row.
class Rivikirjoitin::Taulu {
 public:
  struct Lapsi {
    const Jasen* jasen;
    std::string nimi;  // the column's
  };

  Taulu(Tietokanta& kanta, const Luokka& luokka) : luokka_(luokka), lisays_(Avaa(kanta)) {}

  void Lisaa(const Olio& olio, std::string_view objId, const Rivipaikka& paikka) {
    if (objIdSarake_) lisays_.Sido(objIdSarake_, objId);
    if (parentIdSarake_) lisays_.Sido(parentIdSarake_, paikka.parentId);
    if (jasenSarake_) lisays_.Sido(jasenSarake_, paikka.jasen);
    if (jarjestysSarake_) lisays_.Sido(jarjestysSarake_, paikka.jarjestys);
    for (Sarake& sarake : arvot_) SidoArvo(olio, sarake);
    for (const Lapsisarake& sarake : merkinnat_) lisays_.Sido(sarake.paikka, OlionMerkki(olio, *sarake.jasen));
    lisays_.Suorita();
    ++riveja_;
  }

  const Luokka& OmaLuokka() const noexcept { return luokka_; }
  const std::vector<Lapsi>& Lapset() const noexcept { return lapset_; }
  int Riveja() const noexcept { return riveja_; }

 private:
  /// The view is the column's own: a bound text stays valid until the row has been inserted.
  struct Sarake {
    int paikka;
    const Jasen* jasen;
    bool teksti;
    std::unique_ptr<ArvoNakyma> nakyma;
    std::string luku;  // a number that stands in a text column
  };
  struct Lapsisarake {
    int paikka;
    const Jasen* jasen;
  };

  Kysely Avaa(Tietokanta& kanta) {
    const std::string taulu = Lainaa(luokka_.Nimi());
    Kysely sarakkeet(kanta, "SELECT * FROM " + taulu + " LIMIT 0");
    std::string kysymysmerkit;
    for (int i = 0; i < sarakkeet.Sarakkeita(); ++i) kysymysmerkit += i ? ",?" : "?";
    Kysely lisays(kanta, "INSERT INTO " + taulu + " VALUES (" + kysymysmerkit + ")");
    for (int i = 0; i < sarakkeet.Sarakkeita(); ++i)
      LisaaSarake(lisays, i + 1, sarakkeet.SarakkeenNimi(i), sarakkeet.OnTekstisarake(i));
    VaadiKaikkiJasenet();
    return lisays;
  }

  /// A member without a column would be lost without a word.
  void VaadiKaikkiJasenet() const {
    for (const Jasen& jasen : luokka_.Jasenet())
      if (std::ranges::find(loydetyt_, &jasen) == loydetyt_.end())
        throw Projektivirhe(Projektivirhe::Syy::Malli, "kohdetiedoston mallista puuttuu sarake " +
                                                           std::string(luokka_.Nimi()) + "." + std::string(jasen.nimi));
  }

  void LisaaSarake(Kysely& lisays, int paikka, std::string_view nimi, bool teksti) {
    if (int* kiintea = KiinteaSarake(nimi)) {
      *kiintea = paikka;
      return;
    }
    const Jasen* jasen = luokka_.Etsi(nimi);
    if (jasen) loydetyt_.push_back(jasen);
    if (jasen && jasen->OnOlio())
      LisaaOliosarake(paikka, nimi, *jasen, teksti);
    else if (jasen)
      arvot_.push_back({paikka, jasen, teksti, std::make_unique<ArvoNakyma>(), {}});
    else if (teksti)
      lisays.Sido(paikka, merkit::kTyhja);  // for every row: a bound value stays
  }

  void LisaaOliosarake(int paikka, std::string_view nimi, const Jasen& jasen, bool teksti) {
    if (!teksti) return;
    merkinnat_.push_back({paikka, &jasen});
    for (const std::string_view ei : kEiLapsia)
      if (SamaNimi(ei, nimi)) return;
    lapset_.push_back({&jasen, std::string(nimi)});
  }

  int* KiinteaSarake(std::string_view nimi) {
    if (SamaNimi(nimi, "ObjID")) return &objIdSarake_;
    if (SamaNimi(nimi, "ParentID")) return &parentIdSarake_;
    if (SamaNimi(nimi, "MyRealNameInParentObj")) return &jasenSarake_;
    return SamaNimi(nimi, "OrderID") ? &jarjestysSarake_ : nullptr;
  }

  static std::string_view OlionMerkki(const Olio& olio, const Jasen& jasen) {
    if (jasen.olio(const_cast<Olio&>(olio))) return merkit::kOlio;
    return jasen.viittaus ? merkit::kViittaus : merkit::kTyhja;
  }

  void SidoArvo(const Olio& olio, Sarake& sarake) {
    ArvoNakyma& nakyma = *sarake.nakyma;
    sarake.jasen->nayta(olio, nakyma);
    switch (nakyma.OmaMuoto()) {
      case ArvoNakyma::Muoto::Teksti:
        return lisays_.Sido(sarake.paikka, sarake.teksti ? Tallennusmuoto(nakyma.Teksti()) : nakyma.Teksti());
      case ArvoNakyma::Muoto::Reaaliluku:
        if (!std::isfinite(nakyma.Reaali())) NostaArvovirhe(*sarake.jasen);
        if (sarake.teksti) return lisays_.Sido(sarake.paikka, sarake.luku = LyhinMuoto(nakyma.Reaali()));
        return lisays_.Sido(sarake.paikka, nakyma.Reaali());
      case ArvoNakyma::Muoto::Kokonaisluku:
        if (sarake.teksti) return lisays_.Sido(sarake.paikka, sarake.luku = std::to_string(nakyma.Kokonais()));
        return lisays_.Sido(sarake.paikka, nakyma.Kokonais());
      case ArvoNakyma::Muoto::Tyhja:
        if (sarake.teksti) return lisays_.Sido(sarake.paikka, merkit::kTyhja);
        return lisays_.SidoTyhja(sarake.paikka);
    }
  }

  [[noreturn]] void NostaArvovirhe(const Jasen& jasen) const {
    throw Projektivirhe(Projektivirhe::Syy::Arvo, std::string(luokka_.Nimi()) + "." + std::string(jasen.nimi) +
                                                      ": arvo ei ole äärellinen luku, eikä sitä voi tallentaa");
  }

  const Luokka& luokka_;
  int objIdSarake_ = 0, parentIdSarake_ = 0, jasenSarake_ = 0, jarjestysSarake_ = 0;  // 0: the table has none
  std::vector<Sarake> arvot_;
  std::vector<Lapsisarake> merkinnat_;
  std::vector<Lapsi> lapset_;
  std::vector<const Jasen*> loydetyt_;
  int riveja_ = 0;
  Kysely lisays_;  // made last: it fills the members above
};

Rivikirjoitin::Rivikirjoitin(Tietokanta& kanta, const Eteneminen& eteneminen)
    : kanta_(kanta), eteneminen_(eteneminen), taulut_(Luokka::Kaikki().size()) {}

Rivikirjoitin::~Rivikirjoitin() = default;

void Rivikirjoitin::Kirjoita(Olio& juuri) { KirjoitaOlio(juuri, kJuurenPaikka); }

void Rivikirjoitin::KirjoitaOlio(Olio& olio, const Rivipaikka& paikka) {
  Taulu& taulu = TauluLuokalle(olio.LuokanTiedot());
  char puskuri[Tunniste::kPisinTeksti];
  const std::string_view objId = Tunniste::Uusi(olio.LuokanTiedot().NimiSana()).Nakyma(puskuri);
  if (olio.InstanssiId.Tyhja()) VarmistaTunniste(olio);
  taulu.Lisaa(olio, objId, paikka);
  if (raportti_.riveja++ == 0) raportti_.juurenAvain = objId;
  for (const Taulu::Lapsi& lapsi : taulu.Lapset())
    if (Olio* lapsiolio = lapsi.jasen->olio(olio)) {
      if (eteneminen_) eteneminen_(lapsiolio->LuokanTiedot());
      KirjoitaOlio(*lapsiolio, {objId, lapsi.nimi, 1});
    }
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana()) KirjoitaAlkiot(*kokoelma, objId, paikka.jasen);
  if (KokoelmaPohja* lista = olio.ListaItemeina()) KirjoitaAlkiot(*lista, objId, paikka.jasen);
}

void Rivikirjoitin::KirjoitaAlkiot(KokoelmaPohja& kokoelma, std::string_view parentId, std::string_view jasen) {
  const int maara = kokoelma.Count();
  for (int i = 1; i <= maara; ++i) KirjoitaOlio(kokoelma.Pohja(i), {parentId, jasen, i});
}

void Rivikirjoitin::VarmistaTunniste(Olio& olio) {
  olio.InstanssiId = Tunniste(merkit::kTunnistePuuttuu);
  raportti_.ilmanTunnistetta.emplace_back(olio.LuokanNimi());
}

Rivikirjoitin::Taulu& Rivikirjoitin::TauluLuokalle(const Luokka& luokka) {
  auto& taulu = taulut_[luokka.Numero()];
  if (!taulu) taulu = std::make_unique<Taulu>(kanta_, luokka);
  return *taulu;
}

int Rivikirjoitin::Riveja(std::string_view taulu) const {
  for (const auto& oma : taulut_)
    if (oma && SamaNimi(oma->OmaLuokka().Nimi(), taulu)) return oma->Riveja();
  return 0;
}

void Rivikirjoitin::TarkistaRivimaarat() const {
  const std::vector<std::string> taulut = Taulunimet(kanta_);
  const std::vector<std::int64_t> maarat = KysyTauluittain(kanta_, taulut, "(SELECT count(*) FROM ");
  for (std::size_t i = 0; i < taulut.size(); ++i)
    if (maarat[i] != Riveja(taulut[i]))
      throw Projektivirhe(Projektivirhe::Syy::Kirjoitus,
                          "taulun " + taulut[i] + " rivimäärä poikkeaa tallennettavien olioiden määrästä");
}

void TyhjennaProjektikanta(Tietokanta& kanta) {
  const std::vector<std::string> taulut = Taulunimet(kanta);
  const std::vector<std::int64_t> riveja = KysyTauluittain(kanta, taulut, "EXISTS (SELECT 1 FROM ");
  for (std::size_t i = 0; i < taulut.size(); ++i)
    if (riveja[i]) kanta.Aja("DELETE * FROM " + Lainaa(taulut[i]));
}
