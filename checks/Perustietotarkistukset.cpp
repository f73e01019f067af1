// SPDX-License-Identifier: GPL-3.0-or-later
// Basic data: size of the building, measured years.
#include <algorithm>
#include <cmath>

#include "building/Lammitystarveluvut.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "checks/Tarkistusajo.h"
#include "checks/Tarkistusrajat.h"
#include "kernel/Luvut.h"
#include "tekstit/tarkistukset.h"

namespace {

namespace raja = tarkistusraja;
constexpr double kProsentti = 100;
constexpr const char* kKokonainen = "### ##0";

/// A measured year and where it stands in the form, the newest on row 0.
struct Mittausvuosi {
  const clsToteutunutKulutus& tiedot;
  int vuosi;
  Havainnonkohde kohde;
  int rivi;
};

template <class F>
void Vuosittain(Tarkistusajo& ajo, F&& tarkista) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  const clsToteutuneetKulutukset& kulutukset = tiedot.ToteutuneetKulutukset;
  for (int i = 0; i < kulutukset.Count(); ++i)
    if (const clsToteutunutKulutus* vuosi = kulutukset.Vuosi(i + 1)) {
      const int luku = kulutukset.KulutusTietojenViimVuosi - i;
      tarkista(Mittausvuosi{*vuosi, luku, Kohde(*vuosi, {tiedot.KohteenNimi, std::to_string(luku)}), i});
    }
}

/// The control of a measured year's degree days.
std::string_view TarveluvunOhjain(const Mittausvuosi& vuosi) {
  constexpr std::string_view kOhjaimet[] = {"txtLammTarveLuku1", "txtLammTarveLuku2", "txtLammTarveLuku3"};
  return kOhjaimet[std::min<std::size_t>(static_cast<std::size_t>(vuosi.rivi), std::size(kOhjaimet) - 1)];
}

void KokoPuuttuu(Tarkistusajo& ajo) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  if (tiedot.BruttoAla <= 0 || tiedot.Kokonaistilavuus <= 0)
    ajo.LoytyiRakennuksesta({Muotoile(tiedot.BruttoAla, kKokonainen), Muotoile(tiedot.Kokonaistilavuus, kKokonainen)},
                            tiedot.BruttoAla <= 0 ? "txtBruttoAla" : "txtKokonaistilavuus");
}

void KerroskorkeusPoikkeaa(Tarkistusajo& ajo) {
  const double ala = ajo.rakennus.Perustiedot.BruttoAla, tilavuus = ajo.rakennus.Perustiedot.Kokonaistilavuus;
  if (ala <= 0 || tilavuus <= 0) return;
  const double korkeus = tilavuus / ala;
  if (korkeus < raja::kMatalinKerros || korkeus > raja::kKorkeinKerros)
    ajo.LoytyiRakennuksesta({Muotoile(tilavuus, kKokonainen), Muotoile(ala, kKokonainen), Muotoile(korkeus, "0.0")});
}

/// The sum of the spaces lies between the heated part of the building and the whole of it, but for the allowance.
void VertaaTiloihin(Tarkistusajo& ajo, double tiloissa, double rakennuksessa, double kylmaProsentti) {
  if (ajo.rakennus.Tilat.Count() == 0 || tiloissa <= 0 || rakennuksessa <= 0) return;
  const double lammin = rakennuksessa * (1 - kylmaProsentti / kProsentti);
  if (tiloissa < lammin * (1 - raja::kPoikkeamaTiloissa) || tiloissa > rakennuksessa * (1 + raja::kPoikkeamaTiloissa))
    ajo.LoytyiRakennuksesta(
        {Muotoile(tiloissa, kKokonainen), Muotoile(rakennuksessa, kKokonainen), Muotoile(lammin, kKokonainen)});
}
void TilojenAlaPoikkeaa(Tarkistusajo& ajo) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  VertaaTiloihin(ajo, ajo.rakennus.Tilat.BruttoAlaYht(), tiedot.BruttoAla, tiedot.KylmanAlanOsuus);
}
void TilojenTilavuusPoikkeaa(Tarkistusajo& ajo) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  VertaaTiloihin(ajo, ajo.rakennus.Tilat.TilavuusYht(), tiedot.Kokonaistilavuus, tiedot.KylmanTilavuudenOsuus);
}

void VertailuvuosiPuuttuu(Tarkistusajo& ajo) {
  if (ajo.rakennus.Perustiedot.ToteutuneetKulutukset.Vertailuvuosi() == 0) ajo.LoytyiRakennuksesta();
}

void TarvelukuPuuttuu(Tarkistusajo& ajo) {
  Vuosittain(ajo, [&](const Mittausvuosi& vuosi) {
    if (vuosi.tiedot.Lampo > 0 && vuosi.tiedot.LammTarveLuku <= 0)
      ajo.Loytyi(vuosi.kohde, {std::to_string(vuosi.vuosi)}, TarveluvunOhjain(vuosi));
  });
}

void TarvelukuEsitaytetty(Tarkistusajo& ajo) {
  Vuosittain(ajo, [&](const Mittausvuosi& vuosi) {
    if (vuosi.tiedot.Lampo > 0 && vuosi.tiedot.LammTarveLuku == kLammitystarvelukuAluksi)
      ajo.Loytyi(vuosi.kohde, {std::to_string(vuosi.vuosi), Muotoile(kLammitystarvelukuAluksi, kKokonainen)},
                 TarveluvunOhjain(vuosi));
  });
}

void TarvelukuPoikkeaa(Tarkistusajo& ajo) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  Vuosittain(ajo, [&](const Mittausvuosi& vuosi) {
    const double annettu = vuosi.tiedot.LammTarveLuku;
    if (!vuosi.tiedot.KaytaVertailuVuotena || annettu <= 0 || annettu == kLammitystarvelukuAluksi) return;
    const auto taulukossa = HaeLammitystarveluku(tiedot.LammTarveLukuPaikkakuntaID(), vuosi.vuosi);
    if (taulukossa && std::abs(annettu - taulukossa->luku) > raja::kTarveluvunPoikkeama * taulukossa->luku)
      ajo.Loytyi(vuosi.kohde,
                 {std::to_string(vuosi.vuosi), Muotoile(annettu, kKokonainen), tiedot.LammTarveLukuPaikkakunta,
                  Muotoile(taulukossa->luku, kKokonainen), taulukossa->lahde},
                 TarveluvunOhjain(vuosi));
  });
}

void VakioOsuusSuuri(Tarkistusajo& ajo) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  const double lampo = tiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Lampo;
  if (lampo > 0 && tiedot.LammKulVakioOsuus.VuosiOsuus > lampo)
    ajo.LoytyiRakennuksesta({Muotoile(tiedot.LammKulVakioOsuus.VuosiOsuus, "### ##0.0"), Muotoile(lampo, "### ##0.0")});
}

}  // namespace

std::span<const Tarkistus> Perustietotarkistukset() {
  using enum Tarkistustaso;
  static constexpr std::string_view kLomake = "frmPerustiedot";
  static constexpr Tarkistus kRivit[] = {
      {"KokoPuuttuu",
       Puute,
       tekstit::kKokoPuuttuu,
       tekstit::kKokoPuuttuuTeksti,
       {kLomake, "txtBruttoAla"},
       KokoPuuttuu},
      {"KerroskorkeusPoikkeaa",
       Epatodennakoinen,
       tekstit::kKerroskorkeusPoikkeaa,
       tekstit::kKerroskorkeusPoikkeaaTeksti,
       {kLomake, "txtKokonaistilavuus"},
       KerroskorkeusPoikkeaa},
      {"TilojenAlaPoikkeaa",
       Ristiriita,
       tekstit::kTilojenAlaPoikkeaa,
       tekstit::kTilojenAlaPoikkeaaTeksti,
       {kLomake, "txtBruttoAla"},
       TilojenAlaPoikkeaa},
      {"TilojenTilavuusPoikkeaa",
       Ristiriita,
       tekstit::kTilojenTilavuusPoikkeaa,
       tekstit::kTilojenTilavuusPoikkeaaTeksti,
       {kLomake, "txtKokonaistilavuus"},
       TilojenTilavuusPoikkeaa},
      {"VertailuvuosiPuuttuu",
       Puute,
       tekstit::kVertailuvuosiPuuttuu,
       tekstit::kVertailuvuosiPuuttuuTeksti,
       {kLomake, "optVertailuvuosi1"},
       VertailuvuosiPuuttuu},
      {"TarvelukuPuuttuu",
       Puute,
       tekstit::kTarvelukuPuuttuu,
       tekstit::kTarvelukuPuuttuuTeksti,
       {kLomake, "txtLammTarveLuku1"},
       TarvelukuPuuttuu},
      {"TarvelukuEsitaytetty",
       Puute,
       tekstit::kTarvelukuEsitaytetty,
       tekstit::kTarvelukuEsitaytettyTeksti,
       {kLomake, "txtLammTarveLuku1"},
       TarvelukuEsitaytetty},
      {"TarvelukuPoikkeaa",
       Epatodennakoinen,
       tekstit::kTarvelukuPoikkeaa,
       tekstit::kTarvelukuPoikkeaaTeksti,
       {kLomake, "txtLammTarveLuku1"},
       TarvelukuPoikkeaa},
      {"VakioOsuusSuuri",
       Ristiriita,
       tekstit::kVakioOsuusSuuri,
       tekstit::kVakioOsuusSuuriTeksti,
       {kLomake, "cmdVakioOsuus"},
       VakioOsuusSuuri},
  };
  return kRivit;
}
