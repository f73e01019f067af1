// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsSaa.h"

#include <charconv>

#include "kernel/Hakemistot.h"
#include "kernel/Tekstitiedosto.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "solar/Aurinkotaulukot.h"
#include "solar/Saataulukko.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsSaa::Nimi>("Nimi"),
    Arvo<&clsSaa::LammMitoitusUlkolampotila>("LammMitoitusUlkolampotila", "°C"),
    Arvo<&clsSaa::NormVuodenLammTarveLuku>("NormVuodenLammTarveLuku", "°Cd"),
    Arvo<&clsSaa::SaaFileNimi>("SaaFileNimi"),
};

constexpr Tulos kTulokset[] = {
    Tekstitulos<&clsSaa::Nimi>("Nimi", tekstit::kSaanNimi),
    Lukutulos<&clsSaa::LammMitoitusUlkolampotila>("LammMitoitusUlkolampotila", tekstit::kSaanMitoitusUlkolampotila,
                                                  "°C", "0.0"),
    Lukutulos<&clsSaa::NormVuodenLammTarveLuku>("NormVuodenLammTarveLuku", tekstit::kVyohykkeenTarveluku, "°Cd",
                                                "### ##0"),
    Kuukausitulos<&clsSaa::Keskilampotila>("Keskilampotila", tekstit::kUlkoilmanKeskilampotila, "°C", "0.0"),
    Kuukausitaulukko<&clsSaa::AuringonSateily>("AuringonSateily", kSuuntia, tekstit::kAuringonSateily, "kWh/m²", "0.0"),
};

constexpr double kMJperkWh = 3.6;

/// Zone file of each locality: Hanko, Helsinki, Ivalo, ... Vaasa.
constexpr std::array<int, 16> kVyohykkeet{1, 1, 4, 3, 3, 3, 3, 2, 2, 1, 3, 1, 4, 2, 1, 2};

/// Direction of each orientation of the zone file's reader.
constexpr std::pair<Suunta, Ilmansuunta> kSuunnat[] = {{kPohjoinen, Ilmansuunta::Pohjoinen},
                                                       {kIta, Ilmansuunta::Ita},
                                                       {kEtela, Ilmansuunta::Etela},
                                                       {kLansi, Ilmansuunta::Lansi},
                                                       {kVaakasuora, Ilmansuunta::Vaaka}};

// Lines of a zone file, from 1.
constexpr std::size_t kNimirivi = 17, kMitoitusrivi = 20, kTarvelukurivi = 23;

/// The leading number of a line ("-26 °C" gives -26); 0 when there is none.
double AlkuLuku(std::string_view rivi) {
  rivi.remove_prefix(std::min(rivi.find_first_not_of(" \t"), rivi.size()));
  if (rivi.starts_with('+')) rivi.remove_prefix(1);
  double arvo = 0;
  std::from_chars(rivi.data(), rivi.data() + rivi.size(), arvo, std::chars_format::fixed);
  return arvo;
}

/// A line of the zone file, from 1, behind the months.
const std::string& Rivi(const std::vector<std::string>& rivit, std::size_t numero, const std::string& polku) {
  if (numero > rivit.size())
    throw std::runtime_error("Säätiedosto " + polku + ", rivi " + std::to_string(numero) + ": rivi puuttuu.");
  return rivit[numero - 1];
}

}  // namespace

const Luokka clsSaa::kLuokka{"clsSaa", kJasenet, Luokka::Osallistuu::EiRekisteriin, kTulokset};

double clsSaa::AuringonSateily(int kuukausi, int suunta) const {
  if (suunta < 0 || suunta >= kSuuntia) throw std::out_of_range("suunta ei ole väliltä 0-4");
  return taulut_.arvo.sateily[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))][static_cast<std::size_t>(suunta)];
}

void clsSaa::AsetaSaaPaikkakunta(int paikkakunta) try {
  if (paikkakunta < 0 || paikkakunta >= static_cast<int>(kVyohykkeet.size())) return;
  const int vyohyke = kVyohykkeet[static_cast<std::size_t>(paikkakunta)];
  LueSaaTiedosto("SaaVyohyke" + std::to_string(vyohyke) + ".txt");
} catch (...) {
  NostaVirhe("clsSaa:AsetaSaaPaikkakunta Method");
}

void clsSaa::LueSaaTiedosto(const std::string& tiedosto) try {
  SaaFileNimi = tiedosto;
  TyhjennaAurinkotaulukot();
  const std::string polku = Aineistotiedosto(tiedosto);
  LueSaarivit(polku, [this](const Saarivi& rivi) {
    const auto kuukausi = static_cast<std::size_t>(rivi.kuukausi) - 1;
    taulut_.arvo.lampotila[kuukausi] = rivi.lampotila;
    for (const auto& [suunta, ilmansuunta] : kSuunnat)
      taulut_.arvo.sateily[kuukausi][suunta] = rivi.sateily[Indeksi(ilmansuunta)] / kMJperkWh;
  });
  const std::vector<std::string> rivit = LueRivit(polku);
  Nimi = Rivi(rivit, kNimirivi, polku);
  LammMitoitusUlkolampotila = AlkuLuku(Rivi(rivit, kMitoitusrivi, polku));
  NormVuodenLammTarveLuku = AlkuLuku(Rivi(rivit, kTarvelukurivi, polku));
} catch (...) {
  NostaVirhe("clsSaa:LueSaaTiedosto Method");
}
