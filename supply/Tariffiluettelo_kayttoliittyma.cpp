// SPDX-License-Identifier: GPL-3.0-or-later
// Picking a tariff from the catalogue.
#include "kernel/Luetteleminen.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/Tariffiluettelo.h"
#include "tekstit/lomakkeet_kulutus.h"
#include "tekstit/lomakkeet_tariffit.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmTariffiluettelo.h"

namespace {

constexpr const char* kHinta = "### ##0.00";
constexpr const char* kLuku = "### ##0.##";
constexpr double kProsentti = 100;

/// Amounts of the catalogue in the display currency.
double Naytettava(double euroa) { return euroa * Asetukset().dblCurrencyConvCoeff; }
std::string Rahana(double euroa, const char* yksikko) {
  return Muotoile(Naytettava(euroa), kHinta) + " " + Asetukset().strDefaultCurrencyUnit + yksikko;
}

void LisaaPeruste(std::string& teksti, Tekstinumero nimi, double peruste, const char* yksikko) {
  if (peruste != 0) LisaaLuetteloon(teksti, Teksti(nimi) + " " + Muotoile(peruste, kLuku) + " " + yksikko);
}

/// Prices of the row one by one, and what is assumed of it.
std::string Erittely(const Tariffirivi& rivi) {
  std::string teksti;
  for (const Tariffirivi::Maksu& maksu : rivi.Maksut)
    LisaaLuetteloon(teksti,
                    maksu.Nimi + " " + Rahana(maksu.Hinta, "/MWh") +
                        (maksu.Kulutusosuus == kProsentti ? "" : " (" + Muotoile(maksu.Kulutusosuus, kLuku) + " %)"));
  LisaaPeruste(teksti, tekstit::kOletettuTeho, rivi.TehomaksunMaaraytymisperuste, "kW");
  LisaaPeruste(teksti, tekstit::kOletettuLoisteho, rivi.LoistehomaksunMaaraytymisperuste, "kVAr");
  if (rivi.Energiavero != 0)
    LisaaLuetteloon(teksti, Teksti(tekstit::kRivinEnergiavero) + " " + Rahana(rivi.Energiavero, "/MWh"));
  if (rivi.Veroluokka != 0) teksti += ". " + Teksti(tekstit::kSahkoveronLuokka) + " " + std::to_string(rivi.Veroluokka);
  return teksti;
}

std::string Erittely(const Vesitariffirivi& rivi) {
  return Teksti(tekstit::kRivinPuhdasVesi) + " " + Rahana(rivi.PuhdasVesi, "/m³") + ", " +
         Teksti(tekstit::kRivinJatevesi) + " " + Rahana(rivi.Jatevesi, "/m³");
}

double Yksikkohinta(const Tariffirivi& rivi) { return rivi.Keskihinta(); }
double Yksikkohinta(const Vesitariffirivi& rivi) { return rivi.PuhdasVesi + rivi.Jatevesi; }
const char* Yksikko(const Tariffirivi&) { return "/MWh"; }
const char* Yksikko(const Vesitariffirivi&) { return "/m³"; }
double Tehomaksu(const Tariffirivi& rivi) { return rivi.Tehomaksu; }
double Tehomaksu(const Vesitariffirivi&) { return 0; }

template <class Rivi>
Poimintalomake::Rivi NaytettavaRivi(const Rivi& rivi) {
  Poimintalomake::Rivi naytettava;
  Luettelorivi& solut = naytettava.rivi;
  solut.avain = std::to_string(rivi.Id);
  solut.solut = {rivi.Nimi};
  solut.LisaaLuku(Naytettava(Yksikkohinta(rivi)), kHinta);
  solut.solut.push_back(Asetukset().strDefaultCurrencyUnit + Yksikko(rivi));
  solut.LisaaLuku(Naytettava(Tehomaksu(rivi)), kHinta);
  solut.LisaaLuku(Naytettava(rivi.Perusmaksu), kHinta);
  solut.LisaaLuku(rivi.Hintavuosi, "0");
  solut.solut.push_back(rivi.Tila);
  solut.piirteet.selite = rivi.Lahde;
  naytettava.selite = rivi.Nimi + ": " + Erittely(rivi) + ". " + Teksti(tekstit::kLuvunLahde) + " " + rivi.Lahde +
                      " (" + rivi.Tila + ").";
  return naytettava;
}

/// Fills the tariff from the row that the person picks.
template <class Rivi, class Tariffi>
bool Poimi(const std::vector<Rivi>& rivit, Tariffi& tariffi) {
  const Rivi* rivi = frmTariffiluettelo().PoimiRivi(rivit, {Teksti(tekstit::kHinnatIlmanVeroa)}, NaytettavaRivi<Rivi>);
  if (rivi) TaytaTariffi(*rivi, tariffi);
  return rivi;
}

}  // namespace

bool PoimiLuettelosta(clsTariffi& tariffi) try {
  return Poimi(LueTariffit(static_cast<clsTariffi::Laji>(tariffi.Tariffityyppi)), tariffi);
} catch (...) {
  NostaVirhe("Tariffiluettelo:PoimiLuettelosta Function");
}

bool PoimiLuettelosta(clsVesitariffi& tariffi) try { return Poimi(LueVesitariffit(), tariffi); } catch (...) {
  NostaVirhe("Tariffiluettelo:PoimiLuettelosta Function");
}
