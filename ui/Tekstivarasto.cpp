// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tekstivarasto.h"

#include <array>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Viestit.h"

namespace {

std::string g_kielitunnus;
std::unordered_map<int, std::string> g_tekstit;

std::string VarastonPolku(const std::string& tiedosto = {}) {
  return tiedosto.empty() ? Aineistotiedosto("StrVarasto.mdb") : tiedosto;
}

Tietokanta AvaaVarasto(const std::string& tiedosto = {}) { return Tietokanta(VarastonPolku(tiedosto)); }

/// A column or table name for an SQL text. Brackets, since a quoted unknown name would be taken for a text.
std::string Nimi(const std::string& nimi) {
  if (nimi.empty() || nimi.find_first_of("[]") != std::string::npos)
    throw std::runtime_error("Sarakkeen nimi: " + nimi);
  return "[" + nimi + "]";
}

std::optional<std::string> EnsimmainenKieli(const Tietokanta& varasto) {
  Kysely kysely(varasto, "SELECT Kielitunnus FROM Kieli ");
  if (!kysely.Seuraava()) return std::nullopt;
  return std::string(kysely.Teksti(0));
}

/// The language column: as read at start, else read now. Remembers nothing: threads ask for texts side by side.
std::string Kielisarake(const Tietokanta& varasto) {
  return Nimi(g_kielitunnus.empty() ? EnsimmainenKieli(varasto).value_or("") : g_kielitunnus);
}

/// Nothing when the store, somebody's own of an older program, has no such column.
std::optional<int> SarakkeenPaikka(const Kysely& kysely, std::string_view nimi) {
  for (int i = 0; i < kysely.Sarakkeita(); ++i)
    if (kysely.SarakkeenNimi(i) == nimi) return i;
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
std::optional<Viesti> EtsiViesti(int koodi) try {
  const auto varasto = AvaaVarasto();
  Kysely kysely(varasto,
                "SELECT " + Kielisarake(varasto) + ", ErrorLevel FROM Errortaulu WHERE ErrorCode = ? ORDER BY Id ");
  kysely.Sido(1, koodi);
  if (!kysely.Seuraava()) return std::nullopt;
  auto [otsikko, vakavuus] = TasonOtsake(static_cast<int>(kysely.Kokonais(1)));
  return Viesti{std::string(kysely.Teksti(0)), std::move(otsikko), vakavuus};
} catch (const std::exception&) {
  return std::nullopt;
}

Viesti HaeViesti(int koodi) {
  return EtsiViesti(koodi).value_or(Viesti{"Virhe " + std::to_string(koodi), {}, Vakavuus::Virhe});
}

std::unordered_map<int, std::string> LueTekstit(const std::string& tiedosto, const std::string& kieli,
                                                const std::string& taulu) {
  const auto varasto = AvaaVarasto(tiedosto);
  Kysely kysely(varasto, "SELECT " + Nimi(kieli) + ", Id FROM " + Nimi(taulu) + " ORDER BY Id ");
  std::unordered_map<int, std::string> tekstit;
  while (kysely.Seuraava()) tekstit.emplace(static_cast<int>(kysely.Kokonais(1)), kysely.Teksti(0));
  return tekstit;
}

/// The texts of a choice: told one by one, or as the list of a form's control.
std::vector<std::string> LueValinnat(const std::string& teksti) {
  if (const auto piste = teksti.find('.'); teksti.starts_with("frm") && piste != std::string::npos)
    return Valintalista(teksti.substr(0, piste), teksti.substr(piste + 1));
  std::vector<std::string> valinnat;
  for (std::istringstream virta(teksti); std::getline(virta, valinnat.emplace_back(), ';');) {
  }
  valinnat.pop_back();
  return valinnat;
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

std::string TekstiLuvulla(int id, std::size_t luku) {
  std::string teksti = Teksti(id);
  if (const auto paikka = teksti.find('#'); paikka != std::string::npos)
    teksti.replace(paikka, 1, std::to_string(luku));
  return teksti;
}

void NaytaVirhe(int koodi, std::string_view lisateksti) {
  Viesti viesti = HaeViesti(koodi);
  viesti.teksti.append(" ").append(lisateksti);
  Ilmoita(std::move(viesti));
}

std::string Viestiteksti(int koodi) { return HaeViesti(koodi).teksti; }

bool KysyPoisto(std::string_view nimi, std::string_view seuraus) {
  std::string teksti = Teksti(tekstit::kPoistetaankoRivi);
  for (const std::string_view osa : {nimi, seuraus})
    if (!osa.empty()) teksti.append("\n\n").append(osa);
  const Viesti kysymys{std::move(teksti), Teksti(tekstit::kPoistonVahvistus), Vakavuus::Kysymys, Napit::KyllaEi,
                       Vastaus::Ei};
  return ViestitNyt().Nayta(kysymys) == Vastaus::Kylla;
}

Taulukko HaettavaValintalista(std::string_view lomake, std::string_view valinta) try {
  const auto varasto = AvaaVarasto();
  Kysely kysely(varasto, "SELECT " + Kielisarake(varasto) +
                             ", * FROM Combotaulu WHERE frmName = ? COLLATE NOCASE AND cmbName = ? COLLATE "
                             "NOCASE ORDER BY Id ");
  kysely.Sido(1, lomake);
  kysely.Sido(2, valinta);
  const auto sanat = SarakkeenPaikka(kysely, "Hakusanat");
  Taulukko rivit;
  while (kysely.Seuraava()) {
    rivit.push_back({std::string(kysely.Teksti(0))});
    if (sanat && !kysely.Teksti(*sanat).empty()) rivit.back().emplace_back(kysely.Teksti(*sanat));
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

std::unordered_map<std::string, Ominaisuusteksti> Ominaisuustekstit() try {
  const auto varasto = AvaaVarasto();
  Kysely kysely(varasto, "SELECT Luokka, Ominaisuus, " + Kielisarake(varasto) + ", Kuvio, Valinnat FROM Ominaisuus");
  std::unordered_map<std::string, Ominaisuusteksti> tekstit;
  while (kysely.Seuraava())
    tekstit.emplace(std::string(kysely.Teksti(0)) + "." + std::string(kysely.Teksti(1)),
                    Ominaisuusteksti{std::string(kysely.Teksti(2)), std::string(kysely.Teksti(3)),
                                     LueValinnat(std::string(kysely.Teksti(4)))});
  return tekstit;
} catch (...) {
  NostaVirhe("modTekstivarasto:Ominaisuustekstit Method");
}

int Ohjeaihe(std::string_view lomake, int indeksi) try {
  constexpr std::array kSarakkeet = {"HelpID", "HelpID2", "HelpID3"};
  if (indeksi < 0 || indeksi >= static_cast<int>(kSarakkeet.size())) return 0;
  const auto varasto = AvaaVarasto();
  Kysely kysely(varasto, "SELECT * FROM HelppiIDt WHERE Formi = ? COLLATE NOCASE");
  kysely.Sido(1, lomake);
  const auto sarake = SarakkeenPaikka(kysely, kSarakkeet[static_cast<std::size_t>(indeksi)]);
  return sarake && kysely.Seuraava() ? static_cast<int>(kysely.Kokonais(*sarake)) : 0;
} catch (...) {
  NostaVirhe("modTekstivarasto:Ohjeaihe Method");
}
