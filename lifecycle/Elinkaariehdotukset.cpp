// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Elinkaariehdotukset.h"

#include <algorithm>

#include "kernel/Hakemistot.h"
#include "kernel/Luvut.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_elinkaari.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmElinkaariehdotukset.h"

namespace {

constexpr const char* kLuku = "### ##0.##";
constexpr const char* kTaulut[] = {"Oletusarvo", "Kayttoika", "Yksikkohinta"};
constexpr std::pair<std::string_view, Tekstinumero> kOletusryhmat[] = {
    {"Pitoaika", tekstit::kOletusarvoryhmat[0]}, {"Korkokanta", tekstit::kOletusarvoryhmat[1]},
    {"Lampo", tekstit::kOletusarvoryhmat[2]},    {"Sahko", tekstit::kOletusarvoryhmat[3]},
    {"Vesi", tekstit::kOletusarvoryhmat[4]},
};

/// The group as a heading. Groups of defaults are words of the program, others are shown as they stand.
std::string Ryhmaotsikko(const std::string& ryhma) {
  for (const auto& [sana, teksti] : kOletusryhmat)
    if (ryhma == sana) return Teksti(teksti);
  return ryhma;
}

Poimintalomake::Rivi Naytettava(const Elinkaariehdotus& ehdotus) {
  Poimintalomake::Rivi rivi;
  rivi.rivi.avain = ehdotus.Id;
  rivi.rivi.solut = {ehdotus.Nimi};
  for (const double luku : {ehdotus.Arvo, ehdotus.Pienin, ehdotus.Suurin}) rivi.rivi.LisaaLuku(luku, kLuku);
  rivi.rivi.solut.push_back(ehdotus.Yksikko);
  rivi.rivi.solut.push_back(ehdotus.Tila);
  rivi.rivi.piirteet.selite = ehdotus.Lahde;
  rivi.hakusanat = ehdotus.Ryhma;
  rivi.selite = ehdotus.Nimi + ": " + Muotoile(ehdotus.Arvo, kLuku) + " " + ehdotus.Yksikko + ". " +
                Teksti(tekstit::kEhdotuksenLahde) + " " + ehdotus.Lahde + " (" + ehdotus.Tila + ").";
  return rivi;
}

}  // namespace

std::vector<Elinkaariehdotus> LueEhdotukset(Ehdotuslaji laji) try {
  const Tietokanta kanta(Aineistotiedosto("Elinkaariehdotukset.mdb"));
  Kysely kysely(kanta, std::string("SELECT Id, Ryhma, Nimi, Arvo, Pienin, Suurin, Yksikko, Lahde, Tila FROM ") +
                           kTaulut[static_cast<std::size_t>(laji)] + " ORDER BY rowid");
  std::vector<Elinkaariehdotus> ehdotukset;
  while (kysely.Seuraava()) {
    const auto teksti = [&](int sarake) { return std::string(kysely.Teksti(sarake)); };
    ehdotukset.push_back({teksti(0), teksti(1), teksti(2), kysely.Luku(3), kysely.Luku(4), kysely.Luku(5), teksti(6),
                          teksti(7), teksti(8)});
  }
  return ehdotukset;
} catch (...) {
  NostaVirhe("Elinkaariehdotukset:LueEhdotukset Function");
}

std::optional<Elinkaariehdotus> PoimiEhdotus(Ehdotuslaji laji) try {
  const std::vector<Elinkaariehdotus> ehdotukset = LueEhdotukset(laji);
  std::vector<std::string> otsikot;
  const auto naytettava = [&](const Elinkaariehdotus& ehdotus) {
    Poimintalomake::Rivi rivi = Naytettava(ehdotus);
    rivi.ryhma = static_cast<int>(std::ranges::find(otsikot, Ryhmaotsikko(ehdotus.Ryhma)) - otsikot.begin());
    return rivi;
  };
  for (const Elinkaariehdotus& ehdotus : ehdotukset)
    if (std::string otsikko = Ryhmaotsikko(ehdotus.Ryhma); std::ranges::find(otsikot, otsikko) == otsikot.end())
      otsikot.push_back(std::move(otsikko));
  const Elinkaariehdotus* poimittu = frmElinkaariehdotukset().PoimiRivi(ehdotukset, otsikot, naytettava);
  return poimittu ? std::optional(*poimittu) : std::nullopt;
} catch (...) {
  NostaVirhe("Elinkaariehdotukset:PoimiEhdotus Function");
}
