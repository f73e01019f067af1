// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Varjostustaulukko.h"

#include <algorithm>

#include "solar/Lukutiedosto.h"

namespace {

constexpr double kEtelaisin = 60, kPohjoisin = 65;               // latitudes of the program's localities
constexpr std::size_t kSarake[kIlmansuuntia] = {2, 1, 0, 1, 0};  // by orientation; a horizontal surface asks for none

/// The value at x of the line through points with rising places; outside them that of the outermost one.
template <class Alkio, class Arvo>
inline double Interpoloi(const std::vector<Alkio>& pisteet, double Alkio::*paikka, double x, Arvo arvo) {
  const Alkio* yla = pisteet.data();
  const Alkio* const loppu = yla + pisteet.size();
  while (yla != loppu && yla->*paikka <= x) ++yla;
  if (yla == pisteet.data()) return arvo(*yla);
  const Alkio& ala = yla[-1];
  const double alku = arvo(ala);
  if (yla == loppu || ala.*paikka == x) return alku;
  return alku + (x - ala.*paikka) / (yla->*paikka - ala.*paikka) * (arvo(*yla) - alku);
}

/// Where the point x stands, or would stand, among rising points.
template <class Alkio>
typename std::vector<Alkio>::iterator Paikka(std::vector<Alkio>& pisteet, double Alkio::*paikka, double x) {
  return std::find_if(pisteet.begin(), pisteet.end(), [&](const Alkio& p) { return p.*paikka >= x; });
}

bool Valilla(double luku, double ala, double yla) { return luku >= ala && luku <= yla; }

}  // namespace

Varjostustaulukko::Varjostustaulukko(std::string_view polku) {
  Lukutiedosto tiedosto(polku);
  while (tiedosto.SeuraavaRivi())
    if (!tiedosto.OnTyhja()) LisaaRivi(tiedosto);
  TarkistaKokonaisuus(tiedosto);
}

void Varjostustaulukko::TarkistaKokonaisuus(const Lukutiedosto& tiedosto) const {
  if (kayrat_.empty()) tiedosto.Hylkaa("taulukossa ei ole yhtään riviä");
  const auto samatKulmat = [this](const Kayra& kayra) {
    return std::ranges::equal(kayra.pisteet, kayrat_.front().pisteet, {}, &Piste::kulma, &Piste::kulma);
  };
  if (!std::ranges::all_of(kayrat_, samatKulmat)) tiedosto.Hylkaa("jokaisella leveysasteella pitää olla samat kulmat");
  if (kayrat_.front().leveysaste > kEtelaisin || kayrat_.back().leveysaste < kPohjoisin)
    tiedosto.Hylkaa("taulukon pitää kattaa leveysasteet 60–65");
}

void Varjostustaulukko::LisaaRivi(const Lukutiedosto& tiedosto) {
  std::array<double, 2 + kSarakkeita> luvut{};
  tiedosto.Luvut(luvut);
  const auto [leveysaste, kulma, etela, itaLansi, pohjoinen] = luvut;
  if (!Valilla(leveysaste, -90, 90)) tiedosto.Hylkaa("leveysasteen pitää olla välillä -90–90");
  if (!Valilla(kulma, 0, 90)) tiedosto.Hylkaa("varjostuskulman pitää olla välillä 0–90");
  for (const double kerroin : {etela, itaLansi, pohjoinen})
    if (!Valilla(kerroin, 0, 1)) tiedosto.Hylkaa("varjostuskertoimen pitää olla välillä 0–1");

  auto kayra = Paikka(kayrat_, &Kayra::leveysaste, leveysaste);
  if (kayra == kayrat_.end() || kayra->leveysaste != leveysaste) kayra = kayrat_.insert(kayra, {leveysaste, {}});
  const auto piste = Paikka(kayra->pisteet, &Piste::kulma, kulma);
  if (piste != kayra->pisteet.end() && piste->kulma == kulma) tiedosto.Hylkaa("sama leveysaste ja kulma on jo luettu");
  kayra->pisteet.insert(piste, {kulma, {etela, itaLansi, pohjoinen}});
}

double Varjostustaulukko::Kerroin(double leveysaste, double kulma, Ilmansuunta suunta) const {
  if (suunta == Ilmansuunta::Vaaka) return 1.0;
  const std::size_t sarake = kSarake[Indeksi(suunta)];
  return Interpoloi(kayrat_, &Kayra::leveysaste, leveysaste, [=](const Kayra& kayra) {
    return Interpoloi(kayra.pisteet, &Piste::kulma, kulma, [=](const Piste& piste) { return piste.kertoimet[sarake]; });
  });
}
