// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "building/Kuukausitase.h"
#include "measures/Kustannussaastot.h"
#include "measures/Muunnelmalaskin.h"
#include "results/clsYhteenveto.h"
#include "results/raportti/Raportti.h"
#include "settings/Alvprosentit.h"

class clsRakennus;
class clsSaastotoimenpide;

/// A measure as a report proposes it. Energies MWh/a, water m³/a; money in the display currency, with VAT when amounts
/// are shown with it.
struct Ehdotus {
  std::string nimi;
  Hyodykkeet saasto;
  Hyodykkeet rahaa;            ///< what it saves of the year's cost of each
  double kustannussaasto = 0;  ///< of them all
  double investointi = 0;
  std::optional<double> takaisinmaksu;  ///< years; nothing when nothing is saved
};

/// What the chapters of a report are made from: a building and the figures of it that several chapters tell, computed
/// once. A figure that can't be computed leaves its reason.
class Raporttiaineisto {
 public:
  explicit Raporttiaineisto(clsRakennus& rakennus);
  Raporttiaineisto(const Raporttiaineisto&) = delete;
  Raporttiaineisto& operator=(const Raporttiaineisto&) = delete;

  clsRakennus& rakennus;
  clsYhteenveto yhteenveto;
  Kuukausitase tase;
  std::string valuutta;                              ///< of the amounts
  Alvprosentit alv;                                  ///< that costs bear
  std::string toimenpidevika{};                      ///< why measures can't be computed; empty: they are
  std::vector<Ehdotus> ehdotukset{};                 ///< those of the package in its order, or all measures alone
  Ehdotus yhteensa{};                                ///< their totals
  bool paketti = false;                              ///< they are a package: each one's saving is what is left for it
  std::vector<clsSaastotoimenpide*> toimenpiteet{};  ///< all, in the order of their tree

  /// Share of the year's use that `saasto` is, %, by measured figures, or calculated where nothing was measured.
  Hyodykkeet Osuudet(const Hyodykkeet& saasto) const;
  /// Of the year's costs, %.
  double KustannustenOsuus(double saasto) const;
  double Kustannukset() const;
  double Paastot() const;
  /// The year of the measured figures, "2023"; a dash when there is none.
  std::string Vuosi() const;
  /// The unit of money with an ending: "€/a".
  std::string Raha(const char* loppu = "/a") const { return valuutta + loppu; }

 private:
  void LaskeToimenpiteet();
  Ehdotus Ehdota(clsSaastotoimenpide& toimenpide) const;
  Hyodykkeet Rahana(const Kustannussaastot& saastot) const;
  void KeraaPaketti();
};

/// A year's figure, or 0 where it can't be computed.
double Luku(const Yhteismaara& maara);
/// Payback as a cell: a number of years by the columns `investointi` and `kustannus` of its row, or a dash.
Raporttisolu Takaisinmaksusolu(const std::optional<double>& vuosia);
