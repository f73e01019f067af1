// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

class clsSahkonKulutusryhma;
class clsVedenKulutusryhma;

/// To whose buildings a row of the catalogue belongs, in the order of showing.
enum class Kenelle { Oma, Yhteinen, Muu };

/// What is told alike of every row of the catalogue of typical devices and water uses.
struct Luettelorivitiedot {
  std::string Id;
  std::string Nimi;
  std::string Haara;    ///< title of the tree under which such groups usually hang, as data/kulutus words it
  std::string Yksikko;  ///< of the specific value; a row of the group's list of calculation bases
  double Arvo = 0;      ///< the specific value
  double Pienin = 0;    ///< usual range of it
  double Suurin = 0;
  std::string Maara;               ///< what is counted as the number of units, e.g. "oppilasta"
  std::string Hakusanat;           ///< everyday words for it, divided by ";"
  std::string Lahde;               ///< where the value comes from, in Finnish
  std::string Tila;                ///< how sure the value is (docs/reference-data.md)
  Kenelle kenelle = Kenelle::Muu;  ///< of the use type that was asked for, of every one, or of others
};

/// A device or a group of them.
struct Sahkolaite : Luettelorivitiedot {
  double TuntiaVrk = 1;  ///< h/d; 1 when the unit is energy
  double VrkVuosi = 1;   ///< d/a; 1 when the unit is energy
  double Tasauskerroin = 1;
  bool Lammoksi = false;  ///< the electricity is an internal heat gain

  bool Tehopohjainen() const { return Yksikko.starts_with("W/"); }
};

/// A use of water.
struct Vedenkaytto : Luettelorivitiedot {
  double KertaaD = 1;  ///< times or hours a day; 1 when the unit has neither
  double VrkVuosi = 1;
  double Kayttolampotila = 0;  ///< °C
};

/// The catalogue of the program, in its own order. `kayttotarkoituskoodi`: code of the use type whose rows are its own.
/// Raises error 9999 when it can't be read.
std::vector<Sahkolaite> LueSahkolaitteet(int kayttotarkoituskoodi);
std::vector<Vedenkaytto> LueVedenkaytot(int kayttotarkoituskoodi);

/// Fills a group from a row: name, unit, specific value, use and heat gain or temperature. The number of units and of
/// groups, the space, and the kind of water stay as they are. The group is an ordinary one: it doesn't remember the
/// row. The share of hot water follows the use temperature. Raises error 9999 for a unit that isn't in the choice list.
void TaytaRyhma(const Sahkolaite& laite, clsSahkonKulutusryhma& ryhma);
void TaytaRyhma(const Vedenkaytto& kaytto, clsVedenKulutusryhma& ryhma);

/// Lets the person pick a row, those of the building's use type first, and fills the group from it. True when one was
/// picked; else the group is as it was. It commits nothing (clsRakennus::Muuttui is up to the caller).
bool PoimiLuettelosta(clsSahkonKulutusryhma& ryhma);
bool PoimiLuettelosta(clsVedenKulutusryhma& ryhma);
