// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <string>
#include <vector>

class clsRakennus;

namespace mittaus {

/// The heat balance of a building as a plain program over arrays: no objects, no caches, no error handling, formulas in
/// the order in which one would write them down. It is the yardstick of the recalculation's time, and an independent
/// second opinion on its figures: it reads the climate and shading tables by itself and shares no code with the model.
struct Vertailulaskenta {
  explicit Vertailulaskenta(clsRakennus& rakennus);

  /// The figures of the heat summary that rest on the balance, MWh/a.
  struct Tulos {
    double lampoenergianTarve = 0;
    double haviot = 0;
    double saatohaviot = 0;
    double konversiohaviot = 0;
    double jalkilammitys = 0;
    double aurinko = 0;  ///< solar gains, for comparison only
  };
  Tulos Laske() const;
  /// After-heating of all machines, MWh/a: the demand of each running period hour by hour from the heating tables, less
  /// recovery by the outdoor temperatures of the season.
  double Jalkilammitys() const;

  struct Tila {
    double tilavuus, ala, henkiloita, kayttoaika, sisalampotila, ilmanvaihto, saatohyotysuhde, ryhmienKulutus;
    std::size_t rakenteidenAlku, rakenteidenLoppu;
  };
  struct Rakenne {
    int laji, rajoittuu, suunta;
    bool laskeU, laskeAurinko;
    double ala, u, rsi, rse, lapaisy, karmi, verho, horisontti, lippa, sivu;
    std::size_t kerrostenAlku, kerrostenLoppu;
  };
  struct Kerros {
    double paksuus, lambda, lambda2, osuus2, vastus;
    bool jaettu;
  };
  struct Kayntijakso {
    int vuosijakso, lkm, alkaa, paattyy;  // minutes from midnight
    double prosentti, Tsp, dT;
  };
  struct Kone {
    bool tulo, poisto, vuosittainen;
    double tulovirta, poistovirta, lto, Tp;
    std::size_t jaksojenAlku, jaksojenLoppu;
  };
  struct Varjostus {
    std::vector<double> leveysasteet, kulmat;
    std::vector<std::array<double, 3>> kertoimet;  // by latitude, then angle: south, east and west, north
    double Kerroin(double leveysaste, double kulma, int suunta) const;
  };

 private:
  double U(const Rakenne& r) const;
  std::array<double, 12> Aurinko(const Rakenne& r) const;
  void PoimiKoneet(clsRakennus& rakennus);
  double Kerroin(int kk, int tunti, double T, double q) const;
  double JaksonLampo(const Kayntijakso& j, double q, int kk, double Tsp) const;
  double Hyotysuhde(double Tsp, double lto, double Tp, int vuosijakso) const;
  template <class F>
  void Jaksoittain(const Kone& kone, int kk, F&& laske) const;

  std::vector<Tila> tilat_;
  std::vector<Rakenne> rakenteet_;
  std::vector<Kerros> kerrokset_;
  std::vector<Kone> koneet_;
  std::vector<Kayntijakso> jaksot_;
  std::vector<std::vector<std::size_t>> tilojenKoneet_;
  double lammitys15_[12][24] = {}, lammitys30_[12][24] = {};  // kWh for 1 m³/s, by month and hour
  std::array<std::vector<double>, 4> pysyvyydet_;             // hours, by season
  std::array<int, 4> alimmat_{};                              // °C of the first
  double tarveluku_ = 0;                                      // degree days of the locality
  std::array<double, 12> ulkolampotila_{};
  std::array<std::array<double, 12>, 5> sateily_{};  // by orientation, MJ/m²
  Varjostus fh_, fo_, ff_;
  double leveysaste_ = 60, tarvelukujenSuhde_ = 1, yleiskulutus_ = 0, bruttoala_ = 1;
  std::vector<std::array<double, 2>> energiamuodot_;  // share, efficiency
};

}  // namespace mittaus
