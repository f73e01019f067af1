// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "kernel/Olio.h"

class clsRakennus;

/// A yearly total of the building, and what of it falls to a cubic metre of its volume and to a square metre of its
/// area.
struct Yhteismaara {
  double yhteensa = 0;
  double kuutiolle = 0;  ///< the figures whose names end in 1
  double neliolle = 0;   ///< those in 2
  std::string vika;      ///< why it can't be computed; it is then not a number
};

/// The yearly summary of a building: what it used in the comparison year, what that costs and emits by the present
/// supplies, and beside it the same of the use that the model gives.
///
/// Energies MWh/a, water m³/a, emissions of CO2 equivalent t/a. Money in the display currency a year, with VAT when
/// amounts are shown with it. Computed whenever it is shown: never saved, and no part of the building.
class clsYhteenveto : public Malli<clsYhteenveto> {
 public:
  static const Luokka kLuokka;

  double Neliot = 0;   ///< gross floor area, m²; to be given before the totals
  double Kuutiot = 0;  ///< total volume, m³; likewise

  // Measured: the comparison year's use, heat normalised. Emissions are the supply's factor per net MWh times the use;
  // those of water are 0.
  Yhteismaara YhtLammitysenergiaKulutus, YhtLammitysenergiaKustannus, YhtLammitysenergiaCO2paasto;
  Yhteismaara YhtSahkoKulutus, YhtSahkoKustannus, YhtSahkoCO2Paasto;
  Yhteismaara YhtVesiKulutus, YhtVesiKustannus, YhtVesiCO2Paasto;
  // Calculated: the gross use of the model, its cost, and the emissions of what is bought for it form by form.
  Yhteismaara LaskettuLammitysenergiaKulutus, LaskettuLammitysenergiaKustannus, LaskettuLammitysenergiaCO2Paasto;
  Yhteismaara LaskettuSahkoKulutus, LaskettuSahkoKustannus, LaskettuSahkoCO2Paasto;
  Yhteismaara LaskettuVesiKulutus, LaskettuVesiKustannus, LaskettuVesiCO2Paasto;

  /// What the person should know of the figures: no comparison year, a supply without prices, an area of 0, what can't
  /// be computed and why. Whole sentences.
  std::vector<std::string> Huomautukset;
  /// The measured year, 0 when there is no comparison year.
  int Vertailuvuosi = 0;

  /// Gives a total its value and its specific figures theirs. The one whose volume or area isn't above 0 keeps its
  /// former value.
  void Aseta(Yhteismaara& maara, double arvo) const;
  /// Computes all figures. One that can't be computed doesn't stop the others. Shows what the normalisation of the
  /// measured heat has to tell. Error 9999 with the method's literal.
  void LueDataluokka(clsRakennus& rakennus);

 private:
  void LueMitatut(clsRakennus& rakennus);
  void LueLasketut(clsRakennus& rakennus);
  void KeraaHuomautukset(const clsRakennus& rakennus);
};
