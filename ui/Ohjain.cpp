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
    {"QPlainTextEdit", "TextBox", Ohjaintyyppi::TextBox},
    {"QComboBox", "ComboBox", Ohjaintyyppi::ComboBox},
    {"QCheckBox", "CheckBox", Ohjaintyyppi::CheckBox},
    {"QRadioButton", "OptionButton", Ohjaintyyppi::OptionButton},
    {"QPushButton", "CommandButton", Ohjaintyyppi::CommandButton},
    {"QGroupBox", "Frame", Ohjaintyyppi::Frame},
    {"QTabWidget", "TabStrip", Ohjaintyyppi::TabStrip},
    {"QTreeView", "ListView", Ohjaintyyppi::ListView},
    {"Piirakka", "MSChart", Ohjaintyyppi::MSChart},
    {"Pinopalkki", "MSChart", Ohjaintyyppi::MSChart},
    {"Pylvaikko", "MSChart", Ohjaintyyppi::MSChart},
    {"Vesiputouskuva", "MSChart", Ohjaintyyppi::MSChart},
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

Osa Sarakkeeksi(std::string_view kuvaus) {
  const auto pilkku = kuvaus.find(',');
  const std::string_view tasaus = pilkku == kuvaus.npos ? std::string_view() : kuvaus.substr(pilkku + 1);
  return {.otsikko = {},
          .tag = std::string(kuvaus.substr(0, pilkku)),
          .tasaus = tasaus == "oikea"   ? Tasaus::Oikea
                    : tasaus == "keski" ? Tasaus::Keski
                                        : Tasaus::Vasen};
}

Ohjain::Ohjain(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus)
    : ikkuna_(ikkuna), kuvaus_(std::move(kuvaus)), teksti_(kuvaus_.teksti), taytetty_(teksti_) {
  if (Tyyppi() == Ohjaintyyppi::TabStrip && !kuvaus_.osat.empty()) indeksi_ = taytettyIndeksi_ = 0;
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

bool Ohjain::Muuttunut() const {
  return odottaa_ || teksti_ != taytetty_ || indeksi_ != taytettyIndeksi_ || valittu_ != taytettyValinta_;
}

void Ohjain::Vihje(std::string vihje) {
  vihje_ = std::move(vihje);
  Paivita(Piirre::Vihje);
}

void Ohjain::Kaytossa(bool kaytossa) {
  kuvaus_.kaytossa = kaytossa;
  Paivita(Piirre::Kaytossa);
}

void Ohjain::Lukittu(bool lukittu) {
  kuvaus_.lukittu = lukittu;
  Paivita(Piirre::Lukittu);
}

void Ohjain::Nakyva(bool nakyva) {
  kuvaus_.nakyva = nakyva;
  Paivita(Piirre::Nakyva);
}

void Ohjain::Valittu(bool valittu) {
  AsetaValittu(valittu);
  taytettyValinta_ = valittu;
}

void Ohjain::Korostettu(bool korostettu) {
  korostettu_ = korostettu;
  Paivita(Piirre::Korostus);
}

void Ohjain::AsetaValittu(bool valittu) {
  valittu_ = valittu;
  if (valittu && Tyyppi() == Ohjaintyyppi::OptionButton) TyhjennaMuutRyhmassa();
  Paivita(Piirre::Valittu);
}

void Ohjain::TyhjennaMuutRyhmassa() {
  for (const auto& muu : ikkuna_.Ohjaimet())
    if (muu.get() != this && muu->Tyyppi() == Ohjaintyyppi::OptionButton && muu->Sailio() == Sailio() && muu->Valittu())
      muu->AsetaValittu(false);
}

int Ohjain::RajattuIndeksi(int indeksi) const {
  const std::size_t maara = Tyyppi() == Ohjaintyyppi::TabStrip ? Osat().size() : Rivit().size();
  return indeksi >= 0 && static_cast<std::size_t>(indeksi) < maara ? indeksi : -1;
}

void Ohjain::Rivit(Taulukko rivit) {
  lista_.Tayta(std::move(rivit));
  indeksi_ = taytettyIndeksi_ = -1;
  Paivita(Piirre::Rivit);
}

void Ohjain::Tayta(Luettelosisalto sisalto) {
  const Tunniste valittu = lista_.Avain(indeksi_);
  const std::vector<int> ennen = lista_.Nakyvat();
  const auto paikka = std::ranges::find(ennen, indeksi_) - ennen.begin();
  const auto muuttuneet = lista_.Tayta(std::move(sisalto.rivit));
  lista_.Summat(std::move(sisalto.summat));
  if (!muuttuneet) {
    const std::vector<int> nyt = lista_.Nakyvat();
    indeksi_ = lista_.Etsi(valittu);
    if (indeksi_ < 0 && !nyt.empty() && !lista_.Avain(nyt.front()).Tyhja())
      indeksi_ = nyt[valittu.Tyhja() ? 0 : std::min(static_cast<std::size_t>(paikka), nyt.size() - 1)];
    return Paivita(Piirre::Rivit);
  }
  for (const int rivi : *muuttuneet) PaivitaRivi(rivi);
  Paivita(Piirre::Summat);
}

void Ohjain::Rivi(int indeksi, std::vector<std::string> solut) {
  lista_.Rivi(indeksi, std::move(solut));
  PaivitaRivi(indeksi);
}

void Ohjain::Vaihda(int indeksi, Luettelorivi rivi) {
  lista_.Vaihda(indeksi, std::move(rivi));
  PaivitaRivi(indeksi);
}

void Ohjain::Summarivi(std::vector<std::string> solut) {
  lista_.Summat(std::move(solut));
  Paivita(Piirre::Summat);
}

std::string Ohjain::RivitTekstina(const std::vector<int>& rivit) const {
  std::vector<std::string> otsikot;
  std::vector<int> sarakkeet;
  for (std::size_t s = 0; s < Osat().size(); ++s) {
    if (!Osat()[s].Nakyva()) continue;
    otsikot.push_back(Osat()[s].otsikko);
    sarakkeet.push_back(static_cast<int>(s));
  }
  return lista_.Tekstina(std::move(otsikot), sarakkeet, rivit);
}

void Ohjain::Indeksi(int indeksi) {
  indeksi_ = taytettyIndeksi_ = RajattuIndeksi(indeksi);
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
  if (Tyyppi() == Ohjaintyyppi::OptionButton) AsetaValittu(true);
  if (Tyyppi() == Ohjaintyyppi::CheckBox) AsetaValittu(!Valittu());
  Nosta(Klikattu);
}

void Ohjain::KayttajaLajittelee(int sarake) {
  if (OtsikkoaPainettu) return Nosta([this, sarake] { OtsikkoaPainettu(sarake); });
  lista_.Lajittele(sarake);
  Paivita(Piirre::Rivit);
}

void Ohjain::KayttajaLiittaa(std::string_view leikepoyta) {
  if (Liitetty) Nosta([this, rivit = TaulukkoTekstista(leikepoyta)] { Liitetty(rivit); });
}

void Ohjain::KayttajaPoistaa() {
  if (indeksi_ >= 0) Nosta(Poistettava);
}

void Ohjain::KayttajaAvaa(int rivi, bool auki) {
  lista_.Suljettu(rivi, !auki);
  Paivita(Piirre::Avattu);
  Nosta(HaaraAvattu);
}

void Ohjain::KayttajaMuokkaa(int rivi, int sarake, const std::string& teksti) {
  if (Muokattu && lista_.Muokattava(rivi, sarake)) Nosta([&] { Muokattu(rivi, sarake, teksti); });
}

bool Ohjain::VoiSiirtaa(int rivi, int ylempi) const {
  if (rivi < 0 || rivi >= lista_.Maara() || !SaaSiirtaa || !lista_.Piirteet(rivi).siirrettava) return false;
  for (int y = ylempi; y >= 0; y = lista_.Ylempi(y))
    if (y == rivi) return false;
  return ylempi != lista_.Ylempi(rivi) && SaaSiirtaa(rivi, ylempi);
}

void Ohjain::KayttajaSiirtaa(int rivi, int ylempi) {
  if (VoiSiirtaa(rivi, ylempi)) Nosta([&] { Siirretty(rivi, ylempi); });
}

bool Ohjain::VoiJarjestaa(int rivi, int edellinen) const {
  if (rivi < 0 || rivi >= lista_.Maara() || edellinen >= lista_.Maara() || lista_.Lajiteltu().sarake >= 0) return false;
  return lista_.Piirteet(rivi).siirrettava && edellinen != rivi && edellinen != rivi - 1 && SaaJarjestaa &&
         SaaJarjestaa(rivi, edellinen);
}

void Ohjain::KayttajaJarjestaa(int rivi, int edellinen) {
  if (VoiJarjestaa(rivi, edellinen)) Nosta([&] { Jarjestetty(rivi, edellinen); });
}

void Ohjain::KayttajaJarjestaa(bool ylos) {
  if (indeksi_ > 0 || !ylos) KayttajaJarjestaa(indeksi_, ylos ? indeksi_ - 2 : indeksi_ + 1);
}

void Ohjain::KayttajaRastittaa(int rivi) {
  if (rivi >= 0 && lista_.Piirteet(rivi).rasti && Rastitettu)
    Nosta([&, rasti = !*lista_.Piirteet(rivi).rasti] { Rastitettu(rivi, rasti); });
}

void Ohjain::KayttajaPoistuu() {
  Nosta(Poistuttu);
  muokataan_ = false;
  if (odottaa_) Teksti(taytetty_, taytettyLuku_);
}
