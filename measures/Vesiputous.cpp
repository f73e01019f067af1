// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Vesiputous.h"

#include <algorithm>

#include "building/clsRakennus.h"
#include "measures/Kustannussaastot.h"
#include "measures/Toimenpidesarakkeet.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_jarjestelija.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"

namespace {

using Rivi = clsValittuToimenpide;

struct Suuretiedot {
  const char* yksikko;
  double Hyodykkeet::*maara;  // nothing for costs
  double Rivi::*saasto;
};

/// In the order of Vesiputoussuure.
constexpr Suuretiedot kSuureet[] = {
    {"MWh/a", &Hyodykkeet::lampo, &Rivi::SaastoLampoEnergia},
    {"MWh/a", &Hyodykkeet::sahko, &Rivi::SaastoSahkoEnergia},
    {"m³/a", &Hyodykkeet::vesi, &Rivi::SaastoVedenKulutus},
    {"mkTagi/a", nullptr, nullptr},
};

enum Sarja { kTasot, kAskeleet, kKelluvat, kTariffit, kSarjoja };
constexpr Tekstinumero kSarjojenNimet[kSarjoja] = {tekstit::kVesiputousTasot, tekstit::kVesiputousAskeleet,
                                                   tekstit::kVesiputousKelluvat, tekstit::kVesiputousTariffit};

/// Adds rows to the series and leaves out those that stay empty.
class Kokoaja {
 public:
  Kokoaja(std::string otsikko, const char* yksikko) {
    kaavio_.otsikko = std::move(otsikko);
    kaavio_.yksikko = RahayksikonKanssa(yksikko, Asetukset().strDefaultCurrencyUnit);
    for (const Tekstinumero nimi : kSarjojenNimet) kaavio_.sarjat.push_back({.nimi = Teksti(nimi)});
  }
  void Lisaa(std::string nimi, Sarja sarja, double arvo) {
    kaavio_.nimet.push_back(std::move(nimi));
    for (std::size_t s = 0; s < kaavio_.sarjat.size(); ++s)
      kaavio_.sarjat[s].arvot.push_back(s == static_cast<std::size_t>(sarja) ? arvo : 0);
  }
  Kaaviotiedot Valmis() && {
    const auto tyhja = [](const Kaaviosarja& sarja) {
      return std::ranges::all_of(sarja.arvot, [](double arvo) { return arvo == 0; });
    };
    kaavio_.sarjat.erase(std::remove_if(kaavio_.sarjat.begin() + 1, kaavio_.sarjat.end(), tyhja), kaavio_.sarjat.end());
    return std::move(kaavio_);
  }

 private:
  Kaaviotiedot kaavio_;
};

/// As the list's column of the whole saving has it.
double SaastoNaytettyna(const Rivi& rivi) {
  const int sarake = Toimenpidesarake("KeySaastoMKYht");
  for (const auto& luku : ToimenpiderivinSolut(JarjestelijanRivi(rivi)).luvut)
    if (luku.sarake == sarake) return luku.arvo;
  return 0;
}

Sarja RivinSarja(const clsRakennus& rakennus, const Rivi& rivi) {
  if (rivi.Tyyppi == Rivi::Tariffi) return kTariffit;
  const clsSaastotoimenpide* toimenpide = rakennus.Saastotoimenpiteet.Etsi(rivi.ToimenpidesKey);
  return toimenpide && toimenpide->Kelluva() ? kKelluvat : kAskeleet;
}

}  // namespace

Kaaviotiedot Vesiputous(const clsRakennus& rakennus, Vesiputoussuure suure) {
  const auto& jarjestelija = rakennus.ToimenpiteidenJarjestelija;
  const Suuretiedot& tiedot = kSuureet[static_cast<int>(suure)];
  Kokoaja kuva(Valintalista("frmToimenpiteidenJarjestelija", "cmbSuure").at(static_cast<std::size_t>(suure)),
               tiedot.yksikko);
  const auto& paketti = jarjestelija.LaskettuPaketti();
  if (!paketti) return std::move(kuva).Valmis();
  const bool hinnatta = !tiedot.maara && !paketti->ostot;
  double taso = tiedot.maara ? paketti->ennen.*tiedot.maara : hinnatta ? 0 : NaytettyHinta(paketti->ostot->hinta);
  kuva.Lisaa(Teksti(hinnatta ? tekstit::kVesiputousHinnatta : tekstit::kVesiputousPerusta), kTasot, taso);
  for (const Rivi& rivi : jarjestelija.ValitutToimenpiteet) {
    if (!rivi.TiedotUpToDate || rivi.Tyyppi == Rivi::Yhteensa || (tiedot.maara && rivi.Tyyppi == Rivi::Tariffi))
      continue;
    const double saasto = tiedot.saasto ? rivi.*tiedot.saasto : SaastoNaytettyna(rivi);
    kuva.Lisaa(rivi.Nimi, RivinSarja(rakennus, rivi), -saasto);
    taso -= saasto;
  }
  kuva.Lisaa(Teksti(tekstit::kVesiputousTulos), kTasot, tiedot.maara ? paketti->lopuksi.*tiedot.maara : taso);
  return std::move(kuva).Valmis();
}
