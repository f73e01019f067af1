// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/Energiamuotokanta.h"

#include <variant>

#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr int kOdotus_ms = 500;  // the person waits in the window meanwhile

using Rivi = Energiamuotorivi;
using Kentta = std::variant<std::int32_t Rivi::*, std::string Rivi::*, double Rivi::*, bool Rivi::*>;

struct Sarake {
  const char* nimi;
  Kentta kentta;
};
constexpr Sarake kSarakkeet[] = {
    {"Id", &Rivi::Id},
    {"sKey", &Rivi::sKey},
    {"Nimi", &Rivi::Nimi},
    {"Kuvaus", &Rivi::Kuvaus},
    {"Yksikko", &Rivi::Yksikko},
    {"YlempiLampoArvo", &Rivi::YlempiLampoArvo},
    {"AlempiLampoArvo", &Rivi::AlempiLampoArvo},
    {"HappamoituminenSOxekv", &Rivi::HappamoituminenSOxekv},
    {"Hyotysuhde", &Rivi::Hyotysuhde},
    {"IlmastonLampeneminenCO2ekv", &Rivi::IlmastonLampeneminenCO2ekv},
    {"Kuivatiheys", &Rivi::Kuivatiheys},
    {"Massa", &Rivi::Massa},
    {"OksidanttienMuodostus", &Rivi::OksidanttienMuodostus},
    {"OsuusNettotarpeesta", &Rivi::OsuusNettotarpeesta},
    {"Tyyppi", &Rivi::Tyyppi},
    {"UusiutumatonEnergia", &Rivi::UusiutumatonEnergia},
    {"UusiutumattomatRaakaaineet", &Rivi::UusiutumattomatRaakaaineet},
    {"UusiutuvaEnergia", &Rivi::UusiutuvaEnergia},
    {"UusiutuvatRaakaaineet", &Rivi::UusiutuvatRaakaaineet},
    {"Vakiohäviöt", &Rivi::Vakiohäviöt},
    {"VarastoitunutCO2", &Rivi::VarastoitunutCO2},
    {"LiittyyLammitykseen", &Rivi::LiittyyLammitykseen},
};

/// The columns with `jalki` behind each, divided by commas.
std::string Sarakkeet(const char* jalki = "") {
  std::string nimet;
  for (const Sarake& sarake : kSarakkeet) nimet += (nimet.empty() ? "" : ",") + std::string(sarake.nimi) + jalki;
  return nimet;
}

void Lue(const Kysely& kysely, int paikka, std::int32_t& arvo) {
  arvo = static_cast<std::int32_t>(kysely.Kokonais(paikka));
}
void Lue(const Kysely& kysely, int paikka, std::string& arvo) { arvo = kysely.Teksti(paikka); }
void Lue(const Kysely& kysely, int paikka, double& arvo) { arvo = kysely.Luku(paikka); }
void Lue(const Kysely& kysely, int paikka, bool& arvo) { arvo = kysely.Tosi(paikka); }

Rivi LueRivi(const Kysely& kysely) {
  Rivi rivi;
  int paikka = 0;
  for (const Sarake& sarake : kSarakkeet) {
    std::visit([&](auto kentta) { Lue(kysely, paikka, rivi.*kentta); }, sarake.kentta);
    ++paikka;
  }
  return rivi;
}

void Sido(Kysely& kysely, const Rivi& rivi) {
  int paikka = 0;
  for (const Sarake& sarake : kSarakkeet)
    std::visit([&](auto kentta) { kysely.Sido(++paikka, rivi.*kentta); }, sarake.kentta);
}

const std::string& Polku(Energiamuotokanta::Laji laji) {
  return laji == Energiamuotokanta::Laji::Vakio ? Asetukset().VakioPolttoainekanta
                                                : Asetukset().KayttajanPolttoainekanta;
}

}  // namespace

Energiamuotokanta::Energiamuotokanta(Laji laji) try : laji_(laji), polku_(Polku(laji)), kanta_(polku_) {
} catch (...) {
  NostaVirhe("Energiamuotokanta:Energiamuotokanta Method");
}

std::int32_t Energiamuotokanta::Versio() try {
  Kysely kysely(kanta_, "SELECT Versio FROM Asetukset");
  if (kysely.Seuraava()) return static_cast<std::int32_t>(kysely.Kokonais(0));
  Ilmoita("Ei löytynyt Energiamuototietokannan Versionumeron recordia");
  return -1;
} catch (...) {
  NostaVirhe("Energiamuotokanta:Versio Method");
}

std::vector<Energiamuotorivi> Energiamuotokanta::Rivit(bool lammitys) try {
  Kysely kysely(kanta_, "select " + Sarakkeet() + " FROM Energiamuoto WHERE LiittyyLammitykseen = " +
                            (lammitys ? "True" : "False") + " ORDER BY Id");
  std::vector<Rivi> rivit;
  while (kysely.Seuraava()) rivit.push_back(LueRivi(kysely));
  return rivit;
} catch (...) {
  NostaVirhe("Energiamuotokanta:Rivit Method");
}

std::optional<Energiamuotorivi> Energiamuotokanta::Hae(std::int32_t id) try {
  Kysely kysely(kanta_, "select " + Sarakkeet() + " FROM Energiamuoto WHERE Id = ?", id);
  if (!kysely.Seuraava()) return std::nullopt;
  return LueRivi(kysely);
} catch (...) {
  NostaVirhe("Energiamuotokanta:Hae Method");
}

clsEnergiamuoto Energiamuotokanta::Muoto(const Energiamuotorivi& rivi) const {
  clsEnergiamuoto muoto;
  muoto.IdEmuotoKannassa = rivi.Id;
  muoto.OnVakiokannasta = laji_ == Laji::Vakio;
  muoto.Nimi = rivi.Nimi;
  muoto.Kuvaus = rivi.Kuvaus;
  muoto.Yksikko = rivi.Yksikko;
  muoto.Hyotysuhde = rivi.Hyotysuhde;
  muoto.OsuusNettotarpeesta = rivi.OsuusNettotarpeesta;
  muoto.HappamoituminenSOxekv(rivi.HappamoituminenSOxekv);
  muoto.IlmastonLampeneminenCO2ekv(rivi.IlmastonLampeneminenCO2ekv);
  muoto.OksidanttienMuodostus(rivi.OksidanttienMuodostus);
  muoto.UusiutumatonEnergia(rivi.UusiutumatonEnergia);
  muoto.UusiutumattomatRaakaaineet(rivi.UusiutumattomatRaakaaineet);
  muoto.UusiutuvaEnergia(rivi.UusiutuvaEnergia);
  muoto.UusiutuvatRaakaaineet(rivi.UusiutuvatRaakaaineet);
  muoto.VarastoitunutCO2(rivi.VarastoitunutCO2);
  return muoto;
}

void Energiamuotokanta::Poimi(const Energiamuotorivi& rivi, clsEnergiamuoto& muoto) try {
  muoto.Korvaa(Muoto(rivi));
  if (muoto.OnVakiokannasta) muoto.EnergiaMuotokannanVersio = Versio();
} catch (...) {
  NostaVirhe("Energiamuotokanta:Poimi Method");
}

clsResurssi Energiamuotokanta::Polttoaine(const Energiamuotorivi& rivi) const {
  const auto megajoulelta = [](double megawattitunnilta) {
    return static_cast<float>(megawattitunnilta / clsEnergiamuoto::kMJ_MWh);
  };
  clsResurssi polttoaine;
  polttoaine.ID = rivi.Id;
  polttoaine.Nimi = rivi.Nimi;
  polttoaine.Kuvaus = rivi.Kuvaus;
  polttoaine.KuuluuVakiokantaan = laji_ == Laji::Vakio;
  polttoaine.Yksikko = "MJ";
  polttoaine.Maara = 1;
  polttoaine.Massa = rivi.Massa / clsEnergiamuoto::kMJ_MWh;
  polttoaine.Kuivatiheys = static_cast<float>(rivi.Kuivatiheys);
  polttoaine.YlempiLampoArvo = rivi.YlempiLampoArvo;
  polttoaine.AlempiLampoArvo = rivi.AlempiLampoArvo;
  polttoaine.UusiutumatonEnergia = megajoulelta(rivi.UusiutumatonEnergia);
  polttoaine.UusiutuvaEnergia = megajoulelta(rivi.UusiutuvaEnergia);
  polttoaine.UusiutumattomatRaakaaineet = megajoulelta(rivi.UusiutumattomatRaakaaineet);
  polttoaine.UusiutuvatRaakaaineet = megajoulelta(rivi.UusiutuvatRaakaaineet);
  polttoaine.IlmastonLampeneminenCO2ekv = megajoulelta(rivi.IlmastonLampeneminenCO2ekv);
  polttoaine.VarastoitunutCO2 = megajoulelta(rivi.VarastoitunutCO2);
  polttoaine.HappamoituminenSOxekv = megajoulelta(rivi.HappamoituminenSOxekv);
  polttoaine.OksidanttienMuodostus = megajoulelta(rivi.OksidanttienMuodostus);
  return polttoaine;
}

Tietokanta Energiamuotokanta::Kirjoitettavaksi() const {
  if (!Muokattavissa()) throw std::logic_error("vakiokantaa ei muokata");
  Tietokanta kanta(polku_, Tietokanta::Tapa::Kirjoitus);
  kanta.Aja("PRAGMA busy_timeout = " + std::to_string(kOdotus_ms));
  return kanta;
}

Energiamuotorivi Energiamuotokanta::Lisaa(bool lammitys) try {
  Tietokanta kanta = Kirjoitettavaksi();
  Transaktio transaktio(kanta);
  Rivi rivi;
  Kysely suurin(kanta, "SELECT MAX(Id) FROM Energiamuoto");
  rivi.Id = suurin.Seuraava() ? static_cast<std::int32_t>(suurin.Kokonais(0)) + 1 : 1;
  suurin.Alkuun();
  rivi.Nimi = Teksti(tekstit::kUusiEnergiamuoto);
  rivi.Kuvaus = Teksti(tekstit::kEnergiamuodonKuvaus);
  rivi.Yksikko = "kWh";
  rivi.LiittyyLammitykseen = lammitys;
  std::string kysymykset = "?";
  for (std::size_t i = 1; i < std::size(kSarakkeet); ++i) kysymykset += ",?";
  Kysely lisays(kanta, "INSERT INTO Energiamuoto (" + Sarakkeet() + ") VALUES (" + kysymykset + ")");
  Sido(lisays, rivi);
  lisays.Suorita();
  transaktio.Hyvaksy();
  return rivi;
} catch (...) {
  NostaVirhe("Energiamuotokanta:Lisaa Method");
}

bool Energiamuotokanta::Tallenna(const Energiamuotorivi& rivi) try {
  Tietokanta kanta = Kirjoitettavaksi();
  Transaktio transaktio(kanta);
  if (!Kysely(kanta, "SELECT 1 FROM Energiamuoto WHERE Id = ?", rivi.Id).Seuraava()) return false;
  Kysely paivitys(kanta, "UPDATE Energiamuoto SET " + Sarakkeet(" = ?") + " WHERE Id = ?1");
  Sido(paivitys, rivi);
  paivitys.Suorita();
  transaktio.Hyvaksy();
  return true;
} catch (...) {
  NostaVirhe("Energiamuotokanta:Tallenna Method");
}

void Energiamuotokanta::Poista(std::int32_t id) try {
  Kirjoitettavaksi().Aja("DELETE FROM Energiamuoto WHERE Id = ?", id);
} catch (...) {
  NostaVirhe("Energiamuotokanta:Poista Method");
}
