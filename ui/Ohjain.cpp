// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Ohjain.h"

#include <algorithm>
#include <utility>

#include "ui/Komento.h"
#include "ui/Lomakeikkuna.h"

namespace {

struct Tyyppirivi {
  std::string_view luokka;  // widget class of a form file
  std::string_view nimi;
  Ohjaintyyppi tyyppi;
};

constexpr Tyyppirivi kTyypit[] = {
    {"QLabel", "Label", Ohjaintyyppi::Label},
    {"QLineEdit", "TextBox", Ohjaintyyppi::TextBox},
    {"QComboBox", "ComboBox", Ohjaintyyppi::ComboBox},
    {"QCheckBox", "CheckBox", Ohjaintyyppi::CheckBox},
    {"QRadioButton", "OptionButton", Ohjaintyyppi::OptionButton},
    {"QPushButton", "CommandButton", Ohjaintyyppi::CommandButton},
    {"QGroupBox", "Frame", Ohjaintyyppi::Frame},
    {"QTabWidget", "TabStrip", Ohjaintyyppi::TabStrip},
    {"QTreeWidget", "ListView", Ohjaintyyppi::ListView},
    {"Piirakka", "MSChart", Ohjaintyyppi::MSChart},
    {"Pylvaikko", "MSChart", Ohjaintyyppi::MSChart},
    {"Lampotilakuva", "MSChart", Ohjaintyyppi::MSChart},
    {"Viikkokuva", "MSChart", Ohjaintyyppi::MSChart},
    {"Kayrakuva", "MSChart", Ohjaintyyppi::MSChart},
    {"Kuvapinta", "Image", Ohjaintyyppi::Image},
};

}  // namespace

std::string_view TyypinNimi(Ohjaintyyppi tyyppi) {
  for (const Tyyppirivi& rivi : kTyypit)
    if (rivi.tyyppi == tyyppi) return rivi.nimi;
  return {};
}

bool TyyppiLuokasta(std::string_view luokka, Ohjaintyyppi& tyyppi) {
  for (const Tyyppirivi& rivi : kTyypit) {
    if (rivi.luokka != luokka) continue;
    tyyppi = rivi.tyyppi;
    return true;
  }
  return false;
}

Ohjain::Ohjain(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus)
    : ikkuna_(ikkuna), kuvaus_(std::move(kuvaus)), teksti_(kuvaus_.teksti), taytetty_(teksti_) {
  if (Tyyppi() == Ohjaintyyppi::TabStrip && !kuvaus_.osat.empty()) indeksi_ = 0;
}

void Ohjain::Paivita(Piirre) {}

void Ohjain::Teksti(std::string teksti, std::optional<double> luku) {
  taytetty_ = std::move(teksti);
  taytettyLuku_ = luku;
  odottaa_ = muokataan_;
  if (odottaa_) return;
  teksti_ = taytetty_;
  Paivita(Piirre::Teksti);
}

bool Ohjain::Muuttunut() const { return odottaa_ || teksti_ != taytetty_; }

void Ohjain::Vihje(std::string vihje) {
  vihje_ = std::move(vihje);
  Paivita(Piirre::Vihje);
}

void Ohjain::Kaytossa(bool kaytossa) {
  kuvaus_.kaytossa = kaytossa;
  Paivita(Piirre::Kaytossa);
}

void Ohjain::Nakyva(bool nakyva) {
  kuvaus_.nakyva = nakyva;
  Paivita(Piirre::Nakyva);
}

void Ohjain::Valittu(bool valittu) {
  valittu_ = valittu;
  if (valittu && Tyyppi() == Ohjaintyyppi::OptionButton) TyhjennaMuutRyhmassa();
  Paivita(Piirre::Valittu);
}

void Ohjain::TyhjennaMuutRyhmassa() {
  for (const auto& muu : ikkuna_.Ohjaimet())
    if (muu.get() != this && muu->Tyyppi() == Ohjaintyyppi::OptionButton && muu->Sailio() == Sailio() && muu->Valittu())
      muu->Valittu(false);
}

int Ohjain::RajattuIndeksi(int indeksi) const {
  const std::size_t maara = Tyyppi() == Ohjaintyyppi::TabStrip ? Osat().size() : rivit_.size();
  return indeksi >= 0 && static_cast<std::size_t>(indeksi) < maara ? indeksi : -1;
}

void Ohjain::Rivit(Taulukko rivit) {
  rivit_ = std::move(rivit);
  indeksi_ = -1;
  jarjestys_ = Jarjestyksessa(rivit_, lajittelu_.sarake, lajittelu_.laskeva);
  Paivita(Piirre::Rivit);
}

void Ohjain::Rivi(int indeksi, std::vector<std::string> solut) {
  rivit_.at(static_cast<std::size_t>(indeksi)) = std::move(solut);
  Paivita(Piirre::Rivit);
}

void Ohjain::Summarivi(std::vector<std::string> solut) {
  summarivi_ = std::move(solut);
  Paivita(Piirre::Rivit);
}

std::string Ohjain::RivitTekstina(const std::vector<int>& rivit) const {
  Taulukko tulos(1);
  for (const Osa& sarake : Osat()) tulos.front().push_back(sarake.otsikko);
  for (const int rivi : jarjestys_)
    if (rivit.empty() || std::ranges::find(rivit, rivi) != rivit.end())
      tulos.push_back(rivit_[static_cast<std::size_t>(rivi)]);
  if (rivit.empty() && !summarivi_.empty()) tulos.push_back(summarivi_);
  return TaulukkoTekstina(tulos);
}

void Ohjain::Indeksi(int indeksi) {
  indeksi_ = RajattuIndeksi(indeksi);
  Paivita(Piirre::Indeksi);
}

void Ohjain::Osat(std::vector<Osa> osat) {
  kuvaus_.osat = std::move(osat);
  Paivita(Piirre::Osat);
}

void Ohjain::Kaavio(Kaaviotiedot kaavio) {
  kaavio_ = std::move(kaavio);
  Paivita(Piirre::Kaavio);
}

void Ohjain::Kuva(std::string nimi) {
  kuva_ = std::move(nimi);
  Paivita(Piirre::Kuva);
}

void Ohjain::Nosta(const std::function<void()>& tapahtuma) {
  // A copy runs: the listener may replace the function.
  if (const std::function<void()> ajettava = tapahtuma) SuoritaKomento(ajettava);
}

void Ohjain::KayttajaKirjoittaa(std::string teksti) {
  teksti_ = std::move(teksti);
  muokataan_ = true;
  Nosta(Muuttui);
}

void Ohjain::KayttajaValitsee(int indeksi) {
  indeksi = RajattuIndeksi(indeksi);
  if (indeksi == indeksi_) return;
  indeksi_ = indeksi;
  Nosta(Muuttui);
}

void Ohjain::KayttajaPainaa() {
  if (Tyyppi() == Ohjaintyyppi::OptionButton) Valittu(true);
  if (Tyyppi() == Ohjaintyyppi::CheckBox) Valittu(!Valittu());
  Nosta(Klikattu);
}

void Ohjain::KayttajaLajittelee(int sarake) {
  lajittelu_ = {sarake, lajittelu_.sarake == sarake && !lajittelu_.laskeva};
  jarjestys_ = Jarjestyksessa(rivit_, lajittelu_.sarake, lajittelu_.laskeva);
  Paivita(Piirre::Rivit);
}

void Ohjain::KayttajaLiittaa(std::string_view leikepoyta) {
  if (Liitetty) Nosta([this, rivit = TaulukkoTekstista(leikepoyta)] { Liitetty(rivit); });
}

void Ohjain::KayttajaPoistuu() {
  Nosta(Poistuttu);
  muokataan_ = false;
  if (odottaa_) Teksti(taytetty_, taytettyLuku_);
}
