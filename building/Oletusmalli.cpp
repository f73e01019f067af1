// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Oletusmalli.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "ui/Hiljaa.h"
#include "ventilation/clsIVKoneet.h"

namespace {

bool SamaSisalto(Olio& x, Olio& y);

bool SamaArvo(const Olio& x, const Olio& y, const Jasen& jasen) {
  ArvoNakyma arvoX, arvoY;
  jasen.nayta(x, arvoX);
  jasen.nayta(y, arvoY);
  return arvoX.Lukuna() == arvoY.Lukuna() && arvoX.Teksti() == arvoY.Teksti();
}

bool SamaJasen(Olio& x, Olio& y, const Jasen& jasen) {
  if (!jasen.OnOlio()) return SamaArvo(x, y, jasen);
  Olio *osaX = jasen.olio(x), *osaY = jasen.olio(y);
  return osaX && osaY ? SamaSisalto(*osaX, *osaY) : osaX == osaY;
}

bool SamatAlkiot(KokoelmaPohja& x, KokoelmaPohja& y) {
  if (x.Count() != y.Count()) return false;
  for (int i = 1; i <= x.Count(); ++i)
    if (!SamaSisalto(x.Pohja(i), y.Pohja(i))) return false;
  return true;
}

/// Two objects of one class have the same values, and their items do in their order.
bool SamaSisalto(Olio& x, Olio& y) {
  for (const Jasen& jasen : x.LuokanTiedot().Jasenet())
    if (jasen.nimi != "InstanssiId" && jasen.nimi != "sKey" && !SamaJasen(x, y, jasen)) return false;
  return !x.Kokoelmana() || SamatAlkiot(*x.Kokoelmana(), *y.Kokoelmana());
}

}  // namespace

TilanLahtotiedot OletusmallinLahtotiedot(const clsPerustiedot& tiedot) {
  return {
      .tilavuus = tiedot.Kokonaistilavuus,
      .ala = tiedot.BruttoAla,
      .kayttotarkoituskoodi = clsRakennus::KayttoTarkoitusKoodit.at(static_cast<std::size_t>(tiedot.KayttoTarkoitusID)),
      .kylmanTilavuudenOsuus = tiedot.KylmanTilavuudenOsuus,
      .kylmanAlanOsuus = tiedot.KylmanAlanOsuus,
      .kerroksia = tiedot.KerrostenLukumaara,
      .vuosi = tiedot.ValmistumisVuosi,
      .henkiloita = tiedot.KohteenHenkiloMaara};
}

bool OnOletusmalli(clsRakennus& rakennus) {
  if (rakennus.IVKoneet.Count() > 0 || rakennus.Saastotoimenpiteet.Count() > 0) return false;
  const Hiljaisuus hiljaisuus;
  clsTilat tilat;
  LuoTilat(tilat, OletusmallinLahtotiedot(rakennus.Perustiedot));
  clsSahkonKulutusryhmat sahko;
  LuoSahkoRyhmat(sahko);
  clsVedenKulutusryhmat vesi;
  LuoVesiRyhmat(vesi);
  return SamaSisalto(rakennus.Tilat, tilat) && SamaSisalto(rakennus.SahkonKulutusryhmat, sahko) &&
         SamaSisalto(rakennus.VedenKulutusryhmat, vesi);
}
