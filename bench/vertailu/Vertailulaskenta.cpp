// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/vertailu/Vertailulaskenta.h"

#include <fstream>
#include <sstream>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "kernel/Hakemistot.h"
#include "ventilation/LammitysTaulukko.h"
#include "ventilation/Ulkolampotilat.h"
#include "ventilation/clsIVKoneet.h"

namespace mittaus {

namespace {

constexpr int kPaivat[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

std::vector<std::vector<double>> LueLuvut(const std::string& tiedosto, std::size_t riveja) {
  std::ifstream virta(AppPath() + tiedosto);
  std::string rivi;
  std::getline(virta, rivi);
  std::vector<std::vector<double>> luvut;
  while (luvut.size() < riveja && std::getline(virta, rivi)) {
    std::istringstream kentat(rivi);
    std::vector<double>& uusi = luvut.emplace_back();
    for (std::string kentta; std::getline(kentat, kentta, ',');) uusi.push_back(std::stod(kentta));
  }
  return luvut;
}

/// The tables are full grids in rising order.
Vertailulaskenta::Varjostus LueVarjostus(const std::string& tiedosto) {
  Vertailulaskenta::Varjostus v;
  for (const auto& rivi : LueLuvut(tiedosto, 1000)) {
    if (v.leveysasteet.empty() || v.leveysasteet.back() != rivi[0]) v.leveysasteet.push_back(rivi[0]);
    if (v.leveysasteet.size() == 1) v.kulmat.push_back(rivi[1]);
    v.kertoimet.push_back({rivi[2], rivi[3], rivi[4]});
  }
  return v;
}

/// Index of the interval that x lies in, and how far.
std::pair<std::size_t, double> Vali(const std::vector<double>& paikat, double x) {
  if (x <= paikat.front()) return {0, 0};
  if (x >= paikat.back()) return {paikat.size() - 2, 1};
  std::size_t i = 0;
  while (paikat[i + 1] < x) ++i;
  return {i, (x - paikat[i]) / (paikat[i + 1] - paikat[i])};
}

double Rajattu(double arvo, double ala, double yla) { return arvo < ala ? ala : arvo > yla ? yla : arvo; }

Vertailulaskenta::Kerros Poimi(const clsRakennekerros& k) {
  Vertailulaskenta::Kerros kerros{};
  kerros.paksuus = double{k.Paksuus} / 1000;
  kerros.lambda = k.Materiaali.Lambda;
  kerros.lambda2 = k.Lisamateriaali.Lambda;
  kerros.osuus2 = k.Yhtenainen ? 0 : Rajattu(double{k.LisamateriaalinOsuus} / 100, 0, 1);
  kerros.vastus = k.Lammonvastus;
  kerros.jaettu = kerros.osuus2 > 0 && kerros.osuus2 < 1;
  return kerros;
}

Vertailulaskenta::Rakenne Poimi(const clsRakenne& r) {
  Vertailulaskenta::Rakenne rakenne{};
  rakenne.laji = r.Rakennetyyppi;
  rakenne.rajoittuu = r.TyyppiID;
  rakenne.suunta = r.SuuntausID;
  rakenne.ala = r.PintaAla;
  rakenne.u = r.U_arvo();
  rakenne.horisontti = r.HorisVarjostus.Varjostuskulma;
  rakenne.lippa = r.YlaLippa.Varjostuskulma;
  rakenne.sivu = r.SivuLippa.Varjostuskulma;
  return rakenne;
}

void PoimiRatkaisu(const Rakenneratkaisu& ratkaisu, Vertailulaskenta::Rakenne& rakenne) {
  constexpr double kRsi[] = {0.13F, 0.10F, 0.17F, 0.13F, 0.13F, 0.13F, 0.13F, 0.13F};
  constexpr double kRse[] = {0.04F, 0.04F, 0.04F, 0.04F, 0.04F, 0.13F, 0.13F, 0.13F};
  const bool annettu = ratkaisu.PintavastusSisa > 0 || ratkaisu.PintavastusUlko > 0;
  rakenne.rsi = annettu ? double{ratkaisu.PintavastusSisa} : kRsi[rakenne.laji];
  rakenne.rse = annettu ? double{ratkaisu.PintavastusUlko} : kRse[rakenne.laji];
  rakenne.laskeAurinko = ratkaisu.OnIkkuna && rakenne.laji == 3;
  rakenne.lapaisy = double{ratkaisu.Aurinkoenergianlapaisy} / 100;
  rakenne.karmi = double{ratkaisu.Karmikerroin} / 100;
  rakenne.verho = double{ratkaisu.Verhokerroin} / 100;
}

}  // namespace

double Vertailulaskenta::Varjostus::Kerroin(double leveysaste, double kulma, int suunta) const {
  constexpr std::size_t kSarake[] = {2, 1, 0, 1};
  if (suunta > 3) return 1;
  const std::size_t s = kSarake[suunta];
  const auto [i, x] = Vali(leveysasteet, leveysaste);
  const auto [j, y] = Vali(kulmat, kulma);
  const auto* ala = &kertoimet[i * kulmat.size() + j];
  const auto* yla = ala + kulmat.size();
  const double a = ala[0][s] + y * (ala[1][s] - ala[0][s]);
  const double b = yla[0][s] + y * (yla[1][s] - yla[0][s]);
  return a + x * (b - a);
}

Vertailulaskenta::Vertailulaskenta(clsRakennus& rakennus) {
  constexpr double kLeveysasteet[16] = {60, 60, 65, 63, 62, 63, 63, 61, 61, 60, 65, 61, 65, 61, 60, 62};
  const clsPerustiedot& tiedot = rakennus.Perustiedot;
  leveysaste_ = kLeveysasteet[tiedot.LammTarveLukuPaikkakuntaID()];
  tarvelukujenSuhde_ = tiedot.NormVuodenLammTarveLuku / rakennus.Saa.NormVuodenLammTarveLuku;
  bruttoala_ = tiedot.BruttoAla;
  for (const auto& rivi : LueLuvut(rakennus.Saa.SaaFileNimi, 12)) {
    const auto k = static_cast<std::size_t>(rivi[0]) - 1;
    ulkolampotila_[k] = rivi[1];
    sateily_[4][k] = rivi[2], sateily_[2][k] = rivi[3], sateily_[1][k] = rivi[4];
    sateily_[3][k] = rivi[5], sateily_[0][k] = rivi[6];
  }
  fh_ = LueVarjostus("CenFh_Table.txt");
  fo_ = LueVarjostus("CenFo_Table.txt");
  ff_ = LueVarjostus("CenFf_Table.txt");
  for (const clsEnergiamuoto& muoto : tiedot.LammonHankinta.Energiamuodot)
    energiamuodot_.push_back({muoto.OsuusNettotarpeesta / 100, muoto.Hyotysuhde / 100});
  for (const clsSahkonKulutusryhma& ryhma : rakennus.SahkonKulutusryhmat)
    if (ryhma.LiittyyTilaansKey.Tyhja() && ryhma.EnergiaHyodynnetaanLammityksessa)
      yleiskulutus_ += ryhma.Vuosikulutus() * 1000;
  for (const clsTila& t : rakennus.Tilat) {
    Tila tila{t.Kokonaistilavuus,  t.BruttoAla,
              t.TilanHenkilomaara, t.TilanKayttoaikaHpA,
              t.Sisalampotila,     t.PainovoimainenIlmanvaihto ? t.PainovoimainenIVMaara : t.Vuotoilmanvaihto,
              t.Saatohyotysuhde,   0,
              rakenteet_.size(),   0};
    for (const clsSahkonKulutusryhma& ryhma : rakennus.SahkonKulutusryhmat)
      if (ryhma.LiittyyTilaansKey == t.sKey && ryhma.EnergiaHyodynnetaanLammityksessa)
        tila.ryhmienKulutus += ryhma.Vuosikulutus() * 1000;
    for (const clsRakenne& r : t.Rakenteet) {
      Rakenne rakenne = Poimi(r);
      rakenne.kerrostenAlku = kerrokset_.size();
      if (r.RakenneRatkaisu) {
        PoimiRatkaisu(*r.RakenneRatkaisu, rakenne);
        for (const clsRakennekerros& k : r.RakenneRatkaisu->Kerrokset)
          if (k.UArvoon && (k.Lammonvastus > 0 || (k.Paksuus > 0 && k.Materiaali.Lambda > 0)))
            kerrokset_.push_back(Poimi(k));
      }
      rakenne.kerrostenLoppu = kerrokset_.size();
      rakenne.laskeU = r.LaskeU_arvoMateriaaleista && rakenne.kerrostenLoppu > rakenne.kerrostenAlku;
      rakenteet_.push_back(rakenne);
    }
    tila.rakenteidenLoppu = rakenteet_.size();
    tilat_.push_back(tila);
  }
  PoimiKoneet(rakennus);
}

void Vertailulaskenta::PoimiKoneet(clsRakennus& rakennus) {
  constexpr double kTaulukonTarveluku = 4444;
  tarveluku_ = rakennus.Perustiedot.NormVuodenLammTarveLuku;
  for (int kk = 0; kk < 12; ++kk)
    for (int tunti = 0; tunti < 24; ++tunti) {
      lammitys15_[kk][tunti] = LammitysKerroin(kk + 1, tunti + 1, 15, 1, kTaulukonTarveluku);
      lammitys30_[kk][tunti] = LammitysKerroin(kk + 1, tunti + 1, 30, 1, kTaulukonTarveluku);
    }
  for (const int vuosijakso : {0, 1, 3}) {
    const Pysyvyys pysyvyys = Ulkolampotilat(vuosijakso);
    alimmat_[static_cast<std::size_t>(vuosijakso)] = pysyvyys.alin;
    pysyvyydet_[static_cast<std::size_t>(vuosijakso)].assign(pysyvyys.tunnit.begin(), pysyvyys.tunnit.end());
  }
  std::unordered_map<Tunniste, std::size_t> paikat;
  for (const clsTila& tila : rakennus.Tilat) paikat.emplace(tila.sKey, paikat.size());
  tilojenKoneet_.resize(tilat_.size());
  for (const clsIVKone& k : rakennus.IVKoneet) {
    const std::size_t tila = paikat.at(k.LiittyyTilaansKey);
    Kone kone{k.IVPeriaateID != 2,        k.IVPeriaateID != 0,     k.KayntiAikaYleistiedot.Vuosittainen(),
              k.TuloIlmavirta11Teho,      k.PoistoIlmavirta11Teho, k.LtoHyotysuhde,
              tilat_[tila].sisalampotila, jaksot_.size(),          0};
    for (const clsKayntiAika& j : k.KayntiAikaYleistiedot)
      jaksot_.push_back({j.Jakso, j.KayntiJaksojenLkm, j.Alkaa.minuutit, j.Paattyy.minuutit, j.TuloIlmavirtaProsentti,
                         j.Tsp, j.dTPuhallin});
    kone.jaksojenLoppu = jaksot_.size();
    if (!rakennus.Tilat.Item(static_cast<int>(tila) + 1).PainovoimainenIlmanvaihto)
      tilojenKoneet_[tila].push_back(koneet_.size());
    koneet_.push_back(kone);
  }
}

/// Energy of an hour (1 to 24) of every day of the month, kWh.
double Vertailulaskenta::Kerroin(int kk, int tunti, double T, double q) const {
  const double A = lammitys15_[kk][tunti - 1], B = lammitys30_[kk][tunti - 1];
  return ((B - A) / 15 * (T - 15) + A) * q * tarveluku_ / 4444;
}

/// Hour by hour: the part hours at both ends and the whole ones between them.
double Vertailulaskenta::JaksonLampo(const Kayntijakso& j, double q, int kk, double Tsp) const {
  const double T = Tsp - j.dT, Q = j.prosentti * q / 100, viikosta = j.lkm / 7.0;
  const int hA = j.alkaa / 60 + 1, mA = j.alkaa % 60, hL = j.paattyy / 60 + 1, mL = j.paattyy % 60;
  if (hA == hL && mL > mA) return Kerroin(kk, hA, T, Q) * (mL - mA) / 60 * viikosta;
  double summa = Kerroin(kk, hA, T, Q) * (60 - mA) / 60;
  if (hA < hL) {
    for (int h = hA + 1; h <= hL - 1; ++h) summa += Kerroin(kk, h, T, Q);
  } else {
    for (int h = hA + 1; h <= 24; ++h) summa += Kerroin(kk, h, T, Q);
    for (int h = 1; h <= hL - 1; ++h) summa += Kerroin(kk, h, T, Q);
  }
  return (summa + Kerroin(kk, hL, T, Q) * mL / 60) * viikosta;
}

double Vertailulaskenta::Hyotysuhde(double Tsp, double lto, double Tp, int vuosijakso) const {
  if (vuosijakso == 2) return lto > 5 ? 100 : 0;
  double tarve = 0, talteen = 0;
  double T = alimmat_[static_cast<std::size_t>(vuosijakso)];
  for (const double tunnit : pysyvyydet_[static_cast<std::size_t>(vuosijakso)]) {
    const double d = std::max(0.0, (Tsp - T) * tunnit), Ta = T + (Tp - T) * lto / 100;
    tarve += d;
    talteen += std::min((Ta - T) * tunnit, d);
    T += 1;
  }
  return talteen / tarve * 100;
}

template <class F>
void Vertailulaskenta::Jaksoittain(const Kone& kone, int kk, F&& laske) const {
  const int vuosijakso = kk < 2 || kk > 10 ? 0 : (kk - 2) / 3 + 1;
  for (std::size_t i = kone.jaksojenAlku; i < kone.jaksojenLoppu; ++i)
    if (jaksot_[i].vuosijakso == (kone.vuosittainen ? 4 : vuosijakso)) laske(jaksot_[i], vuosijakso);
}

double Vertailulaskenta::Jalkilammitys() const {
  double summa = 0;
  for (const Kone& kone : koneet_)
    for (int kk = 0; kk < 12; ++kk)
      Jaksoittain(kone, kk, [&](const Kayntijakso& j, int vuosijakso) {
        const double lampo = JaksonLampo(j, kone.tulovirta, kk, j.Tsp);
        const double talteen = kone.lto > 0.001 ? Hyotysuhde(j.Tsp, kone.lto, kone.Tp, vuosijakso) / 100 : 0;
        summa += lampo - lampo * talteen;
      });
  return summa / 1000;
}

/// EN ISO 6946, combined method: the mean of the limits, the upper one over every combination of the materials of the
/// inhomogeneous layers.
double Vertailulaskenta::U(const Rakenne& r) const {
  double alaraja = r.rsi + r.rse;
  int jaettuja = 0;
  for (std::size_t k = r.kerrostenAlku; k < r.kerrostenLoppu; ++k) {
    const Kerros& kerros = kerrokset_[k];
    const double R1 = kerros.vastus > 0 ? kerros.vastus : kerros.paksuus / kerros.lambda;
    if (!kerros.jaettu) {
      alaraja += R1;
      continue;
    }
    const double R2 = kerros.lambda2 > 0 ? kerros.paksuus / kerros.lambda2 : 0;
    if (R1 > 0 && R2 > 0) alaraja += 1 / ((1 - kerros.osuus2) / R1 + kerros.osuus2 / R2);
    ++jaettuja;
  }
  if (jaettuja == 0) return 1 / alaraja;
  double lapaisy = 0;
  for (int yhdistelma = 0; yhdistelma < 1 << jaettuja; ++yhdistelma) {
    double R = r.rsi + r.rse, osuus = 1;
    int n = 0;
    for (std::size_t k = r.kerrostenAlku; k < r.kerrostenLoppu; ++k) {
      const Kerros& kerros = kerrokset_[k];
      const bool toinen = kerros.jaettu && (yhdistelma >> n++ & 1);
      if (toinen)
        R += kerros.lambda2 > 0 ? kerros.paksuus / kerros.lambda2 : 0;
      else
        R += kerros.vastus > 0 ? kerros.vastus : kerros.paksuus / kerros.lambda;
      if (kerros.jaettu) osuus *= toinen ? kerros.osuus2 : 1 - kerros.osuus2;
    }
    lapaisy += osuus / R;
  }
  return 1 / ((1 / lapaisy + alaraja) / 2);
}

/// prEN 832: radiation × effective collecting area, kWh.
std::array<double, 12> Vertailulaskenta::Aurinko(const Rakenne& r) const {
  const double fh = fh_.Kerroin(leveysaste_, r.horisontti, r.suunta);
  const double fo = fo_.Kerroin(leveysaste_, r.lippa, r.suunta);
  const double ff = ff_.Kerroin(leveysaste_, r.sivu, r.suunta);
  std::array<double, 12> energia;
  for (std::size_t m = 0; m < 12; ++m)
    energia[m] = sateily_[static_cast<std::size_t>(r.suunta)][m] * r.ala * 0.9 * r.lapaisy * r.karmi * r.verho * fh *
                 fo * ff / 3.6;
  return energia;
}

Vertailulaskenta::Tulos Vertailulaskenta::Laske() const {
  constexpr double kMaa[3][12] = {{2, 2.5, 3, 3, 3, 2.5, 2, 1, 0.5, 0.5, 1, 2},
                                  {1.4, 1.8, 2.2, 2.2, 2.2, 1.8, 1.4, 0.8, 0.3, 0.3, 0.8, 1.4},
                                  {0.8, 1.1, 1.3, 1.3, 1.3, 1.1, 0.8, 0.3, 0, 0, 0.3, 0.5}};
  Tulos tulos;
  tulos.jalkilammitys = Jalkilammitys();
  for (const Tila& tila : tilat_) {
    double johtuminen[12] = {}, aurinko[12] = {};
    for (std::size_t i = tila.rakenteidenAlku; i < tila.rakenteidenLoppu; ++i) {
      const Rakenne& r = rakenteet_[i];
      const bool rajapinta = r.laji <= 2;
      if (r.laji == 3 || r.laji == 4 || (rajapinta && r.rajoittuu <= 1)) {
        const double u = r.laskeU ? U(r) : r.u;
        const double WperK = r.ala * u * (rajapinta && r.rajoittuu == 1 ? 0.8 : 1.0);
        for (int m = 0; m < 12; ++m)
          johtuminen[m] +=
              (tila.sisalampotila - ulkolampotila_[static_cast<std::size_t>(m)]) * WperK * kPaivat[m] * 24 / 1000;
      } else if (rajapinta && r.rajoittuu == 2 && tila.sisalampotila >= 5) {
        const double* maa = kMaa[tila.sisalampotila > 17 ? 0 : tila.sisalampotila > 12 ? 1 : 2];
        for (int m = 0; m < 12; ++m) johtuminen[m] += r.ala * maa[m];
      }
      if (!r.laskeAurinko) continue;
      const std::array<double, 12> energia = Aurinko(r);
      for (int m = 0; m < 12; ++m) aurinko[m] += energia[static_cast<std::size_t>(m)];
    }

    const double virta = tila.tilavuus * tila.ilmanvaihto / 3600;
    const double sahko = tila.ala * (tila.ryhmienKulutus / 12 / tila.ala + yleiskulutus_ / 12 / bruttoala_);
    const double henkilot = tila.henkiloita * 95.3454545454548 * tila.kayttoaika / 1000 / 12;
    double koneidenHaviot[12] = {}, koneidenKuormat[12] = {};
    for (const std::size_t k : tilojenKoneet_[static_cast<std::size_t>(&tila - tilat_.data())]) {
      const Kone& kone = koneet_[k];
      for (int m = 0; m < 12; ++m) {
        double havio = 0;
        Jaksoittain(kone, m, [&](const Kayntijakso& j, int) {
          havio += JaksonLampo(j, kone.poisto ? kone.poistovirta : kone.tulovirta, m, tila.sisalampotila);
          if (kone.tulo) havio -= JaksonLampo(j, kone.tulovirta, m, j.Tsp);
        });
        (havio > 0 ? koneidenHaviot : koneidenKuormat)[m] += std::abs(havio);
      }
    }
    double tarve = 0, haviot = 0, hyodynnetyt = 0;
    for (int m = 0; m < 12; ++m) {
      const double ulko = ulkolampotila_[static_cast<std::size_t>(m)];
      const double L =
          johtuminen[m] + virta * 1.2 * 1.006 * (tila.sisalampotila - ulko) * kPaivat[m] * 24 + koneidenHaviot[m];
      const double G = sahko + aurinko[m] + henkilot + koneidenKuormat[m];
      const double aste = G <= 0 ? 0 : L / G > 1 ? 1 : L / G;
      tarve += L - G * aste;
      haviot += L;
      hyodynnetyt += G * aste;
      tulos.aurinko += aurinko[m] / 1000;
    }
    tulos.lampoenergianTarve += tarve * tarvelukujenSuhde_ / 1000;
    tulos.haviot += haviot / 1000;
    tulos.saatohaviot += (100 - tila.saatohyotysuhde) * (hyodynnetyt / 1000) / 100;
  }
  for (const auto& [osuus, hyotysuhde] : energiamuodot_)
    if (hyotysuhde != 0)
      tulos.konversiohaviot += (1 / hyotysuhde - 1) * ((tulos.jalkilammitys + tulos.lampoenergianTarve) * osuus);
  return tulos;
}

}  // namespace mittaus
