// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Toimenpideyhteenveto.h"

#include "batch/Tekstitaulu.h"
#include "batch/Toimenpidelaskenta.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsEnergianHankinta.h"
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

std::string Raha(double euroa, double kerroin) { return Muotoile(euroa * kerroin, "### ##0"); }

std::string Vuosina(double aika) {
  return aika == kEiTakaisinmaksua || aika < 0 ? Teksti(tekstit::kViiva) : Muotoile(aika, "### ##0.0");
}

Tekstitaulu Taulu(Tekstinumero otsikko) {
  const std::string& valuutta = Asetukset().strDefaultCurrencyUnit;
  return Tekstitaulu({Teksti(otsikko), Teksti(tekstit::kLampoMWh), Teksti(tekstit::kSahkoMWh), Teksti(tekstit::kVesiM3),
                      valuutta + "/a", Teksti(tekstit::kToimenpiteenInvestointi) + ", " + valuutta,
                      Teksti(tekstit::kMaksuaika) + ", a"});
}

/// The yearly saving of costs is in euros with its VAT, the investment without.
void LisaaRivi(Tekstitaulu& taulu, const std::string& nimi, const Hyodykkeet& saasto, double kustannussaasto,
               double investointi, const std::string& takaisinmaksuaika) {
  constexpr const char* kMaara = "### ##0.00";
  const clsLumivirtaAsetukset& a = Asetukset();
  taulu.Lisaa({nimi, Muotoile(saasto.lampo, kMaara), Muotoile(saasto.sahko, kMaara), Muotoile(saasto.vesi, kMaara),
               Raha(kustannussaasto, a.dblCurrencyConvCoeff), Raha(investointi, a.NayttoKerroin(Energialaji::Yleinen)),
               takaisinmaksuaika});
}

void KirjoitaYksin(std::ostream& tulos, clsRakennus& rakennus) {
  const Alvprosentit alv = Asetukset().NaytettavatAlvt();
  Tekstitaulu taulu = Taulu(tekstit::kToimenpiteetYksin);
  for (clsSaastotoimenpide& toimenpide : rakennus.Saastotoimenpiteet) try {
      LisaaRivi(taulu, toimenpide.Nimi, toimenpide.Saasto(), toimenpide.KustannusSaastoYhteensa(alv),
                toimenpide.Investointi, Vuosina(toimenpide.Takaisinmaksuaika(alv)));
    } catch (const Virhe& virhe) {
      taulu.Lisaa({toimenpide.Nimi + ": " + virhe.SyynKuvaus()});
    }
  taulu.Tulosta(tulos);
  tulos << '\n';
}

/// A measure on a supply by the supplies and tariffs of each state: its own prices can't show a change of fuel.
void LisaaTariffein(Tekstitaulu& taulu, clsSaastotoimenpide& toimenpide) try {
  const clsLumivirtaAsetukset& a = Asetukset();
  const Ostot ostot = toimenpide.Ostosaasto();
  const double saasto = ostot.hinta.lampo * a.NayttoKerroin(Energialaji::Lampo) +
                        ostot.hinta.sahko * a.NayttoKerroin(Energialaji::Sahko) +
                        ostot.hinta.vesi * a.NayttoKerroin(Energialaji::Vesi);
  const double investointi = toimenpide.Investointi * a.NayttoKerroin(Energialaji::Yleinen);
  taulu.Lisaa({toimenpide.Nimi, Raha(saasto, 1), Vuosina(Takaisinmaksuaika(investointi, saasto, {})),
               Muotoile(ostot.paastot, "### ##0.00")});
} catch (const Virhe& virhe) {
  taulu.Lisaa({toimenpide.Nimi + ": " + virhe.SyynKuvaus()});
}

void KirjoitaTariffein(std::ostream& tulos, clsRakennus& rakennus) {
  const std::string& valuutta = Asetukset().strDefaultCurrencyUnit;
  Tekstitaulu taulu(
      {Teksti(tekstit::kHankinnatTariffein), valuutta + "/a", Teksti(tekstit::kMaksuaika) + ", a", "t CO₂-ekv/a"});
  bool hankintoja = false;
  for (clsSaastotoimenpide& toimenpide : rakennus.Saastotoimenpiteet)
    if (toimenpide.MuuttuneetAttribuutit.TyypinNimi == clsEnergianHankinta::kLuokka.Nimi()) {
      hankintoja = true;
      LisaaTariffein(taulu, toimenpide);
    }
  if (!hankintoja) return;
  taulu.Tulosta(tulos);
  tulos << '\n';
}

void KirjoitaJarjestetyt(std::ostream& tulos, const clsToimenpiteidenJarjestelija& jarjestelija) {
  using Rivi = clsValittuToimenpide;
  const Alvprosentit alv = Asetukset().NaytettavatAlvt();
  Tekstitaulu taulu = Taulu(tekstit::kToimenpiteetJarjestyksessa);
  const auto lisaa = [&](const Rivi& rivi, const std::string& takaisinmaksuaika) {
    LisaaRivi(taulu, rivi.Nimi, {rivi.SaastoLampoEnergia, rivi.SaastoSahkoEnergia, rivi.SaastoVedenKulutus},
              rivi.Kustannussaasto().Yhteensa(alv), rivi.Investointi, takaisinmaksuaika);
  };
  for (const Rivi& rivi : jarjestelija.ValitutToimenpiteet)
    if (rivi.Tyyppi != Rivi::Yhteensa && rivi.TiedotUpToDate) lisaa(rivi, Vuosina(rivi.Takaisinmaksuaika));
  taulu.Viiva();
  if (const Rivi* yhteensa = jarjestelija.ValitutToimenpiteet.Etsi(clsValitutToimenpiteet::kYhteensa))
    lisaa(*yhteensa, Vuosina(jarjestelija.PaketinTakaisinmaksuaika(alv).value_or(kEiTakaisinmaksua)));
  taulu.Tulosta(tulos);
  tulos << '\n';
}

}  // namespace

void KirjoitaToimenpiteet(std::ostream& tulos, clsRakennus& rakennus) {
  if (rakennus.Saastotoimenpiteet.Count() == 0) return;
  const auto virhe = LaskeToimenpiteetUudelleen(rakennus);
  KirjoitaYksin(tulos, rakennus);
  KirjoitaTariffein(tulos, rakennus);
  if (!virhe && rakennus.ToimenpiteidenJarjestelija.ValitutToimenpiteet.Count() > 1)
    KirjoitaJarjestetyt(tulos, rakennus.ToimenpiteidenJarjestelija);
}
