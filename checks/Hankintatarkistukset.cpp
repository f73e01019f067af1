// SPDX-License-Identifier: GPL-3.0-or-later
// Supplies, their energy forms and tariffs.
#include <vector>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "checks/Tarkistusajo.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/tarkistukset.h"

namespace {

constexpr const char* kOsuus = "0.##";

/// A supply, and how much the building uses of it, MWh/a or m³/a.
struct Hankinta {
  clsEnergianHankinta clsPerustiedot::*hankinta;
  double (*kaytto)(clsRakennus&);
};
constexpr Hankinta kHankinnat[] = {
    {&clsPerustiedot::LammonHankinta, [](clsRakennus& r) { return r.VuotuinenBruttoLampoEnergia(); }},
    {&clsPerustiedot::SahkonHankinta, [](clsRakennus& r) { return r.SahkonKulutusryhmat.Vuosikulutus(); }},
    {&clsPerustiedot::VedenHankinta, [](clsRakennus& r) { return r.VedenKulutusryhmat.VuotuinenVedenKulutus(); }},
};

Havainnonkohde Hankintakohde(const clsEnergianHankinta& hankinta) { return Kohde(hankinta, {hankinta.Nimi}); }

/// The forms that something is bought in.
template <class F>
void Muodoittain(Tarkistusajo& ajo, F&& tarkista) {
  for (const Hankinta& h : kHankinnat) {
    const clsEnergianHankinta& hankinta = ajo.rakennus.Perustiedot.*h.hankinta;
    for (const clsEnergiamuoto& muoto : hankinta.Energiamuodot)
      if (muoto.OsuusNettotarpeesta > 0) tarkista(muoto, [&] { return Kohde(muoto, {hankinta.Nimi, muoto.Nimi}); });
  }
}

void EnergiamuotoPuuttuu(Tarkistusajo& ajo) {
  for (const Hankinta& h : kHankinnat) {
    const clsEnergianHankinta& hankinta = ajo.rakennus.Perustiedot.*h.hankinta;
    if (hankinta.Energiamuodot.Count() == 0 && h.kaytto(ajo.rakennus) > 0) ajo.Loytyi(Hankintakohde(hankinta));
  }
}

void OsuudetEivatTayta(Tarkistusajo& ajo) {
  for (const Hankinta& h : kHankinnat) {
    const clsEnergianHankinta& hankinta = ajo.rakennus.Perustiedot.*h.hankinta;
    const double summa = hankinta.Energiamuodot.OsuuksienSumma();
    if (hankinta.Energiamuodot.Count() > 0 && !clsEnergiamuodot::OnTaysi(summa))
      ajo.Loytyi(Hankintakohde(hankinta), {Muotoile(summa, kOsuus)});
  }
}

void HyotysuhdeNolla(Tarkistusajo& ajo) {
  Muodoittain(ajo, [&](const clsEnergiamuoto& muoto, const auto& kohde) {
    if (muoto.Tyyppi != clsEnergianHankinta::Vesi && muoto.Hyotysuhde <= 0)
      ajo.Loytyi(kohde(), {Muotoile(muoto.OsuusNettotarpeesta, kOsuus)});
  });
}

/// What is asked of a tariff of either kind.
struct Tariffihinta {
  std::string nimi;
  double keskihinta, vuosimaksut, osuudet;
};
struct MuodonTariffit {
  std::vector<Tariffihinta> tariffit;
  bool poistuneita = false;  ///< the form names one that the building doesn't have
};

template <class C>
void LisaaTariffi(const C& tariffit, const Tunniste& avain, MuodonTariffit& muodon) {
  const auto* tariffi = tariffit.Etsi(avain);
  if (!tariffi) return void(muodon.poistuneita = true);
  muodon.tariffit.push_back(
      {tariffi->Nimi, tariffi->Keskihinta(), tariffi->VuosimaksutYht(), tariffi->Energiamaksut.OsuuksienSumma()});
}

MuodonTariffit Tariffit(const clsRakennus& rakennus, const clsEnergiamuoto& muoto) {
  MuodonTariffit muodon;
  for (const Tunniste* avain : {&muoto.MyyntiTariffiSkey, &muoto.SiirtoTariffiSkey}) {
    if (avain->Tyhja()) continue;
    if (muoto.Tyyppi == clsEnergianHankinta::Vesi)
      LisaaTariffi(rakennus.Vesitariffit, *avain, muodon);
    else
      LisaaTariffi(rakennus.Tariffit, *avain, muodon);
  }
  return muodon;
}

void TariffiPuuttuu(Tarkistusajo& ajo) {
  Muodoittain(ajo, [&](const clsEnergiamuoto& muoto, const auto& kohde) {
    if (muoto.MyyntiTariffiSkey.Tyhja() && muoto.SiirtoTariffiSkey.Tyhja()) ajo.Loytyi(kohde());
  });
}

void TariffiPoistettu(Tarkistusajo& ajo) {
  Muodoittain(ajo, [&](const clsEnergiamuoto& muoto, const auto& kohde) {
    if (Tariffit(ajo.rakennus, muoto).poistuneita) ajo.Loytyi(kohde());
  });
}

void TariffinHintaPuuttuu(Tarkistusajo& ajo) {
  Muodoittain(ajo, [&](const clsEnergiamuoto& muoto, const auto& kohde) {
    for (const Tariffihinta& tariffi : Tariffit(ajo.rakennus, muoto).tariffit)
      if (tariffi.keskihinta == 0 && tariffi.vuosimaksut == 0) ajo.Loytyi(kohde(), {tariffi.nimi});
  });
}

void TariffinOsuudetEivatTayta(Tarkistusajo& ajo) {
  Muodoittain(ajo, [&](const clsEnergiamuoto& muoto, const auto& kohde) {
    if (muoto.Tyyppi == clsEnergianHankinta::Vesi) return;  // clean and waste water have shares of their own
    for (const Tariffihinta& tariffi : Tariffit(ajo.rakennus, muoto).tariffit)
      if (tariffi.osuudet != 0 && !clsEnergiamaksut::OnTaysi(tariffi.osuudet))
        ajo.Loytyi(kohde(), {tariffi.nimi, Muotoile(tariffi.osuudet, kOsuus)});
  });
}

}  // namespace

std::span<const Tarkistus> Hankintatarkistukset() {
  using enum Tarkistustaso;
  static constexpr std::string_view kLomake = "frmEnHankKoostEnergiamuodoista";
  static constexpr Hyppykohde kTariffi{kLomake, "cmdMyyntiTariffi"};
  static constexpr Tarkistus kRivit[] = {
      {"EnergiamuotoPuuttuu",
       Puute,
       tekstit::kEnergiamuotoPuuttuu,
       tekstit::kEnergiamuotoPuuttuuTeksti,
       {kLomake, "cmdLisaa"},
       EnergiamuotoPuuttuu},
      {"OsuudetEivatTayta",
       Ristiriita,
       tekstit::kOsuudetEivatTayta,
       tekstit::kOsuudetEivatTaytaTeksti,
       {kLomake, "lvwEnergiamuodot"},
       OsuudetEivatTayta},
      {"HyotysuhdeNolla",
       Puute,
       tekstit::kHyotysuhdeNolla,
       tekstit::kHyotysuhdeNollaTeksti,
       {"frmEnergiamuoto", "txtHyotysuhde"},
       HyotysuhdeNolla},
      {"TariffiPuuttuu", Puute, tekstit::kTariffiPuuttuu, tekstit::kTariffiPuuttuuTeksti, kTariffi, TariffiPuuttuu},
      {"TariffiPoistettu", Ristiriita, tekstit::kTariffiPoistettu, tekstit::kTariffiPoistettuTeksti, kTariffi,
       TariffiPoistettu},
      {"TariffinHintaPuuttuu", Puute, tekstit::kTariffinHintaPuuttuu, tekstit::kTariffinHintaPuuttuuTeksti, kTariffi,
       TariffinHintaPuuttuu},
      {"TariffinOsuudetEivatTayta", Ristiriita, tekstit::kTariffinOsuudetEivatTayta,
       tekstit::kTariffinOsuudetEivatTaytaTeksti, kTariffi, TariffinOsuudetEivatTayta},
  };
  return kRivit;
}
