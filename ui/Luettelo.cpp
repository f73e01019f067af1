// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Luettelo.h"

#include <algorithm>
#include <utility>

#include "kernel/Luvut.h"

namespace {

std::size_t Koko(int luku) { return static_cast<std::size_t>(luku); }

}  // namespace

void Luettelorivi::LisaaLuku(double arvo, const std::string& kuvio) {
  luvut.push_back({static_cast<int>(solut.size()), arvo, kuvio});
  solut.push_back(Muotoile(arvo, kuvio));
}

bool Luettelo::SamatAvaimet(const std::vector<Luettelorivi>& rivit) const {
  return !rivit.empty() && std::ranges::equal(rivit, rivit_, [](const Luettelorivi& uusi, const Rivitieto& entinen) {
    return !uusi.avain.Tyhja() && uusi.avain == entinen.avain && uusi.ylempi == entinen.ylemmanAvain;
  });
}

std::optional<std::vector<int>> Luettelo::TaytaSolut(std::vector<Luettelorivi> rivit) {
  std::vector<int> muuttuneet;
  for (std::size_t i = 0; i < rivit.size(); ++i) {
    rivit_[i].luvut = std::move(rivit[i].luvut);
    if (rivit[i].solut == solut_[i] && rivit[i].piirteet == rivit_[i].piirteet) continue;
    muuttuneet.push_back(static_cast<int>(i));
    solut_[i] = std::move(rivit[i].solut);
    rivit_[i].piirteet = std::move(rivit[i].piirteet);
  }
  if (!muuttuneet.empty() && Jarjesta()) return std::nullopt;
  return muuttuneet;
}

std::optional<std::vector<int>> Luettelo::Tayta(std::vector<Luettelorivi> rivit) {
  sarakkeet_.clear();
  if (SamatAvaimet(rivit)) return TaytaSolut(std::move(rivit));
  const auto entiset = std::exchange(paikat_, {});
  const auto entisetRivit = std::exchange(rivit_, {});
  solut_.clear();
  rivit_.reserve(rivit.size());
  solut_.reserve(rivit.size());
  for (Luettelorivi& rivi : rivit) {
    const auto entinen = entiset.find(rivi.avain);
    const bool suljettu =
        entinen == entiset.end() ? rivi.piirteet.suljettu : entisetRivit[Koko(entinen->second)].suljettu;
    if (!rivi.avain.Tyhja()) paikat_.emplace(rivi.avain, Maara());
    rivit_.push_back({.avain = rivi.avain,
                      .ylemmanAvain = rivi.ylempi,
                      .suljettu = suljettu,
                      .piirteet = std::move(rivi.piirteet),
                      .luvut = std::move(rivi.luvut)});
    solut_.push_back(std::move(rivi.solut));
  }
  Ripusta();
  return std::nullopt;
}

void Luettelo::Tayta(Taulukko rivit) {
  std::vector<Luettelorivi> avaimettomat;
  avaimettomat.reserve(rivit.size());
  for (auto& solut : rivit) avaimettomat.push_back({.solut = std::move(solut)});
  Tayta(std::move(avaimettomat));
}

void Luettelo::Ripusta() {
  for (Rivitieto& rivi : rivit_) rivi.ylempi = Etsi(rivi.ylemmanAvain);
  KatkaiseKehat();
  Jarjesta();
}

/// Rows of a damaged file may hang under each other in a circle: one of them is put on top, so that all are seen.
void Luettelo::KatkaiseKehat() {
  std::vector<int> kierros(rivit_.size(), 0);  // in which walk the row was met
  for (int alku = 0; alku < Maara(); ++alku)
    for (int rivi = alku; rivi >= 0 && kierros[Koko(rivi)] == 0; rivi = rivit_[Koko(rivi)].ylempi) {
      kierros[Koko(rivi)] = alku + 1;
      if (const int ylempi = rivit_[Koko(rivi)].ylempi; ylempi >= 0 && kierros[Koko(ylempi)] == alku + 1)
        rivit_[Koko(rivi)].ylempi = kEiRivia;
    }
}

bool Luettelo::Jarjesta() {
  ylimmat_.clear();
  for (Rivitieto& rivi : rivit_) rivi.alemmat.clear();
  bool siirtyi = false;
  for (const int rivi : Jarjestyksessa(solut_, lajittelu_.sarake, lajittelu_.laskeva)) {
    Rivitieto& tieto = rivit_[Koko(rivi)];
    std::vector<int>& vieressa = tieto.ylempi < 0 ? ylimmat_ : rivit_[Koko(tieto.ylempi)].alemmat;
    const int paikka = std::exchange(tieto.paikka, static_cast<int>(vieressa.size()));
    siirtyi = siirtyi || paikka != tieto.paikka;
    vieressa.push_back(rivi);
  }
  return siirtyi;
}

void Luettelo::Rivi(int rivi, std::vector<std::string> solut) {
  std::vector<std::string>& kohde = solut_.at(Koko(rivi));
  for (std::size_t s = 0; s < sarakkeet_.size(); ++s) sarakkeet_[s].Vaihda(Solu(kohde, s), Solu(solut, s));
  kohde = std::move(solut);
  rivit_[Koko(rivi)].luvut.clear();
}

void Luettelo::Vaihda(int rivi, Luettelorivi uusi) {
  Rivi(rivi, std::move(uusi.solut));
  rivit_[Koko(rivi)].piirteet = std::move(uusi.piirteet);
  rivit_[Koko(rivi)].luvut = std::move(uusi.luvut);
}

int Luettelo::Etsi(const Tunniste& avain) const {
  const auto paikka = avain.Tyhja() ? paikat_.end() : paikat_.find(avain);
  return paikka == paikat_.end() ? kEiRivia : paikka->second;
}

bool Luettelo::Nakyvissa(int rivi) const {
  for (int ylempi = Ylempi(rivi); ylempi >= 0; ylempi = Ylempi(ylempi))
    if (Suljettu(ylempi)) return false;
  return true;
}

std::vector<int> Luettelo::Kulje(bool suljetutkin) const {
  std::vector<int> jarjestys, jaljella(ylimmat_.rbegin(), ylimmat_.rend());
  while (!jaljella.empty()) {
    const int rivi = jaljella.back();
    jaljella.pop_back();
    jarjestys.push_back(rivi);
    const std::vector<int>& alemmat = Alemmat(rivi);
    if (suljetutkin || !Suljettu(rivi)) jaljella.insert(jaljella.end(), alemmat.rbegin(), alemmat.rend());
  }
  return jarjestys;
}

void Luettelo::Lajittele(int sarake) {
  if (lajittelu_.sarake != sarake)
    lajittelu_ = {sarake};
  else if (!lajittelu_.laskeva)
    lajittelu_.laskeva = true;
  else
    lajittelu_ = {};
  Jarjesta();
}

bool Luettelo::OnLukusarake(int sarake) const {
  while (sarakkeet_.size() <= Koko(sarake)) sarakkeet_.emplace_back(solut_, sarakkeet_.size());
  return sarakkeet_[Koko(sarake)].OnLukuja();
}

bool Luettelo::Muokattava(int rivi, int sarake) const {
  return rivi >= 0 && rivi < Maara() &&
         std::ranges::find(Piirteet(rivi).muokattavat, sarake) != Piirteet(rivi).muokattavat.end();
}

std::string Luettelo::Tekstina(std::vector<std::string> otsikot, const std::vector<int>& sarakkeet,
                               const std::vector<int>& rivit) const {
  const auto poimitut = [&](const std::vector<std::string>& solut) {
    std::vector<std::string> tulos;
    for (const int sarake : sarakkeet)
      if (Koko(sarake) < solut.size()) tulos.push_back(solut[Koko(sarake)]);
    return tulos;
  };
  std::vector<char> mukana(rivit_.size(), rivit.empty());
  for (const int rivi : rivit) mukana.at(Koko(rivi)) = 1;
  Taulukko tulos{std::move(otsikot)};
  for (const int rivi : Jarjestys())
    if (mukana[Koko(rivi)]) tulos.push_back(poimitut(solut_[Koko(rivi)]));
  if (rivit.empty() && !summat_.empty()) tulos.push_back(poimitut(summat_));
  return TaulukkoTekstina(tulos);
}
