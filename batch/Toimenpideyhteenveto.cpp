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
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

std::string Raha(double euroa, double kerroin) { return Muotoile(euroa * kerroin, "### ##0"); }

std::string Vuosina(double aika) {
  return aika == kEiTakaisinmaksua ? Teksti(tekstit::kViiva) : Muotoile(aika, "### ##0.0");
}

Tekstitaulu Taulu(Tekstinumero otsikko) {
  const std::string& valuutta = Asetukset().strDefaultCurrencyUnit;
  return Tekstitaulu({Teksti(otsikko), Teksti(tekstit::kLampoMWh), Teksti(tekstit::kSahkoMWh), Teksti(tekstit::kVesiM3),
                      valuutta + "/a", Teksti(tekstit::kToimenpiteenInvestointi) + ", " + valuutta,
                      Teksti(tekstit::kToimenpiteenTakaisinmaksuaika) + ", a"});
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
  if (!virhe && rakennus.ToimenpiteidenJarjestelija.ValitutToimenpiteet.Count() > 1)
    KirjoitaJarjestetyt(tulos, rakennus.ToimenpiteidenJarjestelija);
}
