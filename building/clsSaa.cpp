// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsSaa.h"

#include <charconv>

#include "kernel/Hakemistot.h"
#include "kernel/Tekstitiedosto.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "solar/Aurinkotaulukot.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsSaa::Nimi>("Nimi"),
    Arvo<&clsSaa::LammMitoitusUlkolampotila>("LammMitoitusUlkolampotila", "°C"),
    Arvo<&clsSaa::NormVuodenLammTarveLuku>("NormVuodenLammTarveLuku", "K·d"),
    Arvo<&clsSaa::SaaFileNimi>("SaaFileNimi"),
};

constexpr Tulos kTulokset[] = {
    Tekstitulos<&clsSaa::Nimi>("Nimi", tekstit::kSaanNimi),
    Lukutulos<&clsSaa::LammMitoitusUlkolampotila>("LammMitoitusUlkolampotila", tekstit::kSaanMitoitusUlkolampotila, "°C",
                                                  "0.0"),
    Lukutulos<&clsSaa::NormVuodenLammTarveLuku>("NormVuodenLammTarveLuku", tekstit::kVyohykkeenTarveluku, "°Cd",
                                                "### ##0"),
    Kuukausitulos<&clsSaa::Keskilampotila>("Keskilampotila", tekstit::kUlkoilmanKeskilampotila, "°C", "0.0"),
    Kuukausitaulukko<&clsSaa::AuringonSateily>("AuringonSateily", kSuuntia, tekstit::kAuringonSateily, "kWh/m²", "0.0"),
};

constexpr double kMJperkWh = 3.6;

/// Zone file of each locality: Hanko, Helsinki, Ivalo, ... Vaasa.
constexpr std::array<int, 16> kVyohykkeet{1, 1, 4, 3, 3, 3, 3, 2, 2, 1, 3, 1, 4, 2, 1, 2};

/// Where the fields of a month's line go after month number and temperature.
constexpr std::array<Suunta, kSuuntia> kSarakkeidenSuunnat{kVaakasuora, kEtela, kIta, kLansi, kPohjoinen};

// Lines of a zone file, from 1.
constexpr std::size_t kEkaKuukausirivi = 2, kNimirivi = 17, kMitoitusrivi = 20, kTarvelukurivi = 23;

/// The leading number of a line ("-26 °C" gives -26); 0 when there is none.
double AlkuLuku(std::string_view rivi) {
  rivi.remove_prefix(std::min(rivi.find_first_not_of(" \t"), rivi.size()));
  if (rivi.starts_with('+')) rivi.remove_prefix(1);
  double arvo = 0;
  std::from_chars(rivi.data(), rivi.data() + rivi.size(), arvo, std::chars_format::fixed);
  return arvo;
}

class Rivinlukija {
 public:
  Rivinlukija(const std::string& polku) : polku_(polku), rivit_(LueRivit(polku)) {}

  const std::string& Rivi(std::size_t numero) const {
    if (numero > rivit_.size()) Hylkaa(numero, "rivi puuttuu");
    return rivit_[numero - 1];
  }
  /// The seven comma-separated numbers of a month's line.
  std::array<double, 7> Luvut(std::size_t numero) const {
    std::array<double, 7> luvut{};
    std::string_view loput = Rivi(numero);
    for (double& luku : luvut) {
      const std::size_t pilkku = loput.find(',');
      luku = Kentta(loput.substr(0, pilkku), numero);
      loput.remove_prefix(pilkku == std::string_view::npos ? loput.size() : pilkku + 1);
    }
    return luvut;
  }
  [[noreturn]] void Hylkaa(std::size_t numero, const char* syy) const {
    throw std::runtime_error("Säätiedosto " + polku_ + ", rivi " + std::to_string(numero) + ": " + syy + ".");
  }

 private:
  double Kentta(std::string_view kentta, std::size_t numero) const {
    kentta.remove_prefix(std::min(kentta.find_first_not_of(" \t"), kentta.size()));
    kentta = kentta.substr(0, kentta.find_last_not_of(" \t") + 1);
    double arvo = 0;
    const auto [loppu, virhe] = std::from_chars(kentta.data(), kentta.data() + kentta.size(), arvo);
    if (virhe != std::errc() || loppu != kentta.data() + kentta.size() || !std::isfinite(arvo))
      Hylkaa(numero, "odotettiin seitsemää lukua pilkuilla erotettuina");
    return arvo;
  }

  std::string polku_;
  std::vector<std::string> rivit_;
};

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
  const Rivinlukija lukija(AppPath() + tiedosto);
  for (std::size_t i = 0; i < kKuukausia; ++i) {
    const auto luvut = lukija.Luvut(kEkaKuukausirivi + i);
    const double kuukausi = luvut[0];
    if (!(kuukausi >= 1 && kuukausi <= kKuukausia)) lukija.Hylkaa(kEkaKuukausirivi + i, "kuukausi ei ole väliltä 1-12");
    const auto k = static_cast<std::size_t>(kuukausi) - 1;
    taulut_.arvo.lampotila[k] = luvut[1];
    for (std::size_t s = 0; s < kSuuntia; ++s)
      taulut_.arvo.sateily[k][kSarakkeidenSuunnat[s]] = luvut[s + 2] / kMJperkWh;
  }
  Nimi = lukija.Rivi(kNimirivi);
  LammMitoitusUlkolampotila = AlkuLuku(lukija.Rivi(kMitoitusrivi));
  NormVuodenLammTarveLuku = AlkuLuku(lukija.Rivi(kTarvelukurivi));
} catch (...) {
  NostaVirhe("clsSaa:LueSaaTiedosto Method");
}
