// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <map>
#include <optional>
#include <string>

#include "library/Rakennekirjasto.h"

class clsEnergianHankinta;
class clsPerustiedot;
class clsRakenne;
class clsSaastotoimenpiteet;
class clsSahkonKulutusryhmat;
class clsTila;
class clsTilat;
class clsToimenpiteidenJarjestelija;
class clsToteutuneetKulutukset;
class clsVedenKulutusryhmat;

// Starting values of a new object, and the first complete model made from its basic data: one space with seven
// structures, the trees of electricity and water consumers and the tree of measures.

void AlustaPerustiedot(clsPerustiedot& perustiedot);
void AlustaLammonHankinta(clsEnergianHankinta& hankinta);
void AlustaSahkonHankinta(clsEnergianHankinta& hankinta);
void AlustaVedenHankinta(clsEnergianHankinta& hankinta);
/// Three rows "Tot 1" (newest) to "Tot 3"; the newest is the comparison year.
void AlustaToteutuneetKulutukset(clsToteutuneetKulutukset& kulutukset);

/// What the space is made from.
struct TilanLahtotiedot {
  double tilavuus = 0;               ///< m³, heated or not
  double ala = 0;                    ///< m²
  int kayttotarkoituskoodi = 0;      ///< code of the use type
  double kylmanTilavuudenOsuus = 0;  ///< %
  double kylmanAlanOsuus = 0;        ///< %
  double kerroksia = 1;
  int vuosi = 0;  ///< of completion
  double henkiloita = 0;
};

/// Adds one space, the whole heated building, with its structures.
void LuoTilat(clsTilat& tilat, const TilanLahtotiedot& tiedot);
void LuoTilanRakenteet(clsTila& tila, const TilanLahtotiedot& tiedot);
/// Before a first model is made: tells which structure library can't be read. When a default solution would be missing
/// from the model for that, the person decides. False when the model isn't wanted so.
bool VahvistaRakennekirjasto(const TilanLahtotiedot& tiedot);

/// One structure of the space.
struct RakenteenLahtotiedot {
  std::string nimi;            ///< given to a structure without a solution of its own name
  std::int32_t rakennetyyppi;  ///< kind, 0 to 7
  std::int32_t suuntaus;       ///< direction, 0 to 4
  double ala;                  ///< m²
  double u_arvo;               ///< W/m²K, if the library gives none
  std::string kirjastoId;      ///< identifier in the structure library; empty: no solution
};
/// Fills a structure; `kirjasto` may be nothing when no solution is named.
void LuoRakenne(clsRakenne& rakenne, const RakenteenLahtotiedot& tiedot, Rakennekirjasto* kirjasto);

/// What a structure of its kind borders on at first.
void AsetaOletusrajoittuminen(clsRakenne& rakenne);

/// Values of a row by the name of its column.
using Oletusarvorivi = std::map<std::string, std::string, std::less<>>;
/// The default row of a use-type code and a year of completion; `tila` 0 structural solutions, 1 consumption figures of
/// structures. Nothing, with text 9164 or 9163, when there is no row or more than one.
std::optional<Oletusarvorivi> HaeOletusarvot(int kayttotarkoituskoodi, int vuosi, int tila);

void LuoSahkoRyhmat(clsSahkonKulutusryhmat& ryhmat);
void LuoVesiRyhmat(clsVedenKulutusryhmat& ryhmat);
void LuoToimenpideLista(clsSaastotoimenpiteet& toimenpiteet);
void LuoValitutToimenpiteet(clsToimenpiteidenJarjestelija& jarjestelija);

/// Outer wall area of a space, m², from floor area, volume and storeys. `muoto` 0 square, 1 rectangle of sides 1 : r,
/// 2 to 4 plans with wings of proportion r; any other has no perimeter. Error 1022 for no storeys and 1023 for no
/// proportion, and 0. Raises 9999 for a space without area.
double LaskeUlkoseinaAla(const clsTila& tila, int muoto, double r, double kerroksia);
