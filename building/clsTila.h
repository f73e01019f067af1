// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>
#include <vector>

#include "building/clsRakenteet.h"

class Edistyminen;
class clsIVKone;

/// A space: the unit of the monthly heat balance. Steady-state degree hours with ideal utilisation: gains count in a
/// month up to that month's losses. Months are 0 to 11, monthly figures kWh, yearly ones MWh.
///
/// Machines are joined to the space by their `LiittyyTilaansKey`. Data common to the calculation (basic data, weather,
/// machines, consumer groups) is that of the building that the space belongs to (building/Koti.h). Reading writes
/// nothing but the electric load per m² and the caches that a bracket fills. Errors: 9999 with the method's literal.
class clsTila : public Malli<clsTila, Alkio> {
 public:
  static const Luokka kLuokka;
  using Koneet = std::vector<clsIVKone*>;

  std::string TilanNimi;
  double Kokonaistilavuus = 0;               ///< m³
  double BruttoAla = 1.0;                    ///< gross floor area, m²
  double TilanHenkilomaara = 0;              ///< persons present during the hours of use
  std::int32_t TilanKayttoaikaID = 0;        ///< index of the choice of hours of use
  std::string TilanKayttoaikaStr;            ///< text of that choice
  double TilanKayttoaikaHpA = 2200.0;        ///< hours of use, h/a
  double Sisalampotila = 21.0;               ///< indoor set-point, °C
  bool Sahkolammitys = false;                ///< heated electrically
  std::string Kuvausteksti;                  ///< free description
  bool LammitettyTila = true;                ///< heated
  double PainovoimainenIVMaara = 0.45;       ///< natural ventilation, 1/h
  double Vuotoilmanvaihto = 0.1;             ///< leakage, 1/h
  bool PainovoimainenIlmanvaihto = false;    ///< natural ventilation in place of machines
  std::int32_t SaatotapaID = 1;              ///< control method of the heat distribution
  std::string SaatotapaStr;                  ///< text of that choice
  double Saatohyotysuhde = 80.0;             ///< control efficiency, %; not limited
  std::int32_t RakenteidenDynamiikkaID = 0;  ///< massiveness: for show
  std::string RakenteidenDynamiikkaStr;      ///< text of that choice
  clsRakenteet Rakenteet;

  /// Takes its place in a building, and its structures with it.
  void Kotiudu(const Koti& koti);

  /// At the OK of the space's dialog.
  Oma<std::function<void()>> DataMuuttui;

  // Validity of the monthly caches. Clearing that of the solar gains makes the structures compute theirs afresh.
  bool IVHaviotTilassaUpToDate() const noexcept { return ivHaviotUpToDate_; }
  void IVHaviotTilassaUpToDate(bool voimassa) noexcept { ivHaviotUpToDate_ = voimassa; }
  bool IVKuormatTilassaUpToDate() const noexcept { return ivKuormatUpToDate_; }
  void IVKuormatTilassaUpToDate(bool voimassa) noexcept { ivKuormatUpToDate_ = voimassa; }
  bool AurKuormatTilassaUpToDate() const noexcept { return aurKuormatUpToDate_; }
  void AurKuormatTilassaUpToDate(bool voimassa) noexcept;
  bool JohtumishaviotUpToDate() const noexcept { return johtumishaviotUpToDate_; }
  void JohtumishaviotUpToDate(bool voimassa) noexcept { johtumishaviotUpToDate_ = voimassa; }
  /// All three.
  void TaseUpToDate(bool voimassa) noexcept;

  /// Conduction loss through the structures, kWh.
  double JohtumisHaviot(int kuukausi) const;
  /// Loss by machines and by leakage or natural ventilation, kWh: machines' losses +
  /// q × 1.2 kg/m³ × 1.006 kJ/(kg·K) × (Tsisa − Tulko) × days × 24 h, q = volume × n / 3600 m³/s. Not cut at zero.
  double IVHaviotTilassa(int kuukausi) const;
  /// The part of IVHaviotTilassa that isn't the machines': leakage or natural ventilation, kWh.
  double Vuotoilma(int kuukausi) const;
  double LampoHaviot(int kuukausi) const;
  /// Internal gain from electricity, kWh: the same in every month.
  double SahkoKuorma(int kuukausi) const;
  /// Heat of persons, kWh: persons × 95.35 W × hours of use, the year's heat spread evenly over the months.
  /// Source of the heat of one person: as given for this method.
  double HenkiloKuorma(int kuukausi) const;
  /// Solar gain of the windows, kWh.
  double AurinkoKuorma(int kuukausi) const;
  /// Gain from machines that blow in air warmer than the room, kWh.
  double IVKoneLampoKuorma(int kuukausi) const;
  /// Losses / gains, at most 1; 0 when there are no gains; negative with negative losses.
  double IdeaalinenHyvaksiKayttoAste(int kuukausi) const;
  double HyodynnetytLampoKuormat(int kuukausi) const;
  double LampoEnergianTarve(int kuukausi);

  double VuotuisetJohtumisHaviot() const;
  double VuotuisetIVHaviotTilassa() const;
  double VuotuisetLampoHaviot() const;
  double VuotuinenSahkoKuorma();
  double VuotuinenHenkiloKuorma() const;
  double VuotuinenAurinkoKuorma() const;
  double VuotuinenIVKoneLampoKuorma() const;
  double VuotuisetHyodynnetytLampoKuormat();
  /// Heat demand of the year, MWh, scaled by the locality's degree days / the zone's. 0 with error 1044 when the
  /// weather has none.
  double VuotuinenLampoEnergianTarve();
  /// Utilised gains that the control of heat distribution fails to save, MWh.  Source: building code D5.
  double VuotuisetSaatohaviot();

  /// Electric load per m² from the consumer groups, or from the measured electricity. With an area of 0 or less error
  /// 1029 is shown and the load stays as it was.
  void PaivitaSahkoOmKuorma();
  void PaivitaIVHaviotTilassa();
  /// The same with the machines of this space given, so that many spaces take one pass over the machines.
  void PaivitaIVHaviotTilassa(const Koneet& koneet, Edistyminen& edistyminen);
  void PaivitaIVKuormatTilassa();
  void PaivitaAurKuormatTilassa();
  void PaivitaJohtumishaviot();

  /// Opens the dialog of the space, modal. OK writes the values and tells so by DataMuuttui; Cancel restores the space
  /// with its structures. True after OK.
  bool NaytaKayttoliittyma();
  /// Opens the dialog of the structures.
  void EditoiRakenteita();

 private:
  /// What a month's balance rests on, kWh.
  struct Tase {
    double haviot, kuormat, hyvaksikayttoaste;
  };
  /// What the machines take from the space and give it, kWh by month.
  struct IVTase {
    Kuukausitaulu haviot{}, kuormat{};
  };
  Tase KuukaudenTase(int kuukausi) const;
  double KuukaudenTarve(int kuukausi) const;
  Koneet LiittyvatKoneet() const;
  void LisaaKone(const clsIVKone& kone, IVTase& tase) const;
  IVTase Koneista() const;
  void LaskeIVHaviot(const Koneet& koneet, Edistyminen& edistyminen);
  template <class F>
  static double Vuosisumma(F&& kuukausiarvo);
  bool OnElavassaMallissa() const;

  Koti koti_;
  double sahkoOmKuorma_ = 3.57856132909155;  // kWh/m² in a month
  Lippu ivHaviotUpToDate_, ivKuormatUpToDate_, aurKuormatUpToDate_, johtumishaviotUpToDate_;
  Oma<Kuukausitaulu> ivHaviot_, ivKuormat_, aurKuormat_, johtumishaviot_;  // kWh
};
