// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <string>

#include "kernel/Laskenta.h"

class clsRakennus;
class clsTila;
struct Kaaviotiedot;

/// Terms of the monthly heat balance, in the order in which they are shown.
enum class Tasetermi {
  Johtuminen,          ///< conduction loss
  Ilmanvaihtokoneet,   ///< loss by machines
  Vuotoilma,           ///< loss by leakage or natural ventilation
  Haviot,              ///< sum of the losses
  Sahko,               ///< gain from electricity
  Henkilot,            ///< gain from persons
  Aurinko,             ///< gain from the sun
  IVKuormat,           ///< gain from machines that blow in air warmer than the room
  Kuormat,             ///< sum of the gains
  Hyvaksikayttoaste,   ///< utilised gains / gains, a ratio
  HyodynnetytKuormat,  ///< utilised gains
  Tarve,               ///< losses − utilised gains
};
inline constexpr std::size_t kTasetermeja = 12;

/// The heat balance of a space, or of the building as the sum of its spaces: kWh in each month, not normalised.
struct Kuukausitase {
  std::array<Kuukausitaulu, kTasetermeja> termit{};
  double paikkakunta = 0;  ///< degree days of the building's locality, °Cd
  double vyohyke = 0;      ///< degree days of the weather zone that the months are computed with, °Cd

  Kuukausitaulu& operator[](Tasetermi termi) { return termit[static_cast<std::size_t>(termi)]; }
  const Kuukausitaulu& operator[](Tasetermi termi) const { return termit[static_cast<std::size_t>(termi)]; }
  /// Sum of the months, kWh; for the ratio the year's utilised gains / gains.
  double Vuosi(Tasetermi termi) const;
  /// Demand of the year at the building's locality, MWh: the months' sum × locality / zone; 0 when the zone has no
  /// degree days.
  double NormitettuTarve() const;
};

/// The balance as the spaces compute it, inside a Tasehaarukka. Errors: 9999 of the calculation.
Kuukausitase LaskeKuukausitase(clsRakennus& rakennus);
Kuukausitase LaskeKuukausitase(clsRakennus& rakennus, clsTila& tila);

/// The balance as a chart: losses and gains in columns of their own, the demand as a line.
Kaaviotiedot TaseenKaavio(const Kuukausitase& tase, const std::string& otsikko);

/// Shows the balance of the whole building, or of one of its spaces, as a table and a chart; returns when it is closed.
void NaytaKuukausitase(clsRakennus& rakennus);
void NaytaKuukausitase(clsRakennus& rakennus, clsTila& tila);
