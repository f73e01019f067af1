// SPDX-License-Identifier: GPL-3.0-or-later
// Saving measures: a page each, and the package in its order.
#include <array>
#include <utility>

#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "measures/Muutoskuvaus.h"
#include "measures/Vesiputous.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "results/Perusteet.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

struct Hyodyke {
  Tekstinumero nimi;
  const char* yksikko;
  double Hyodykkeet::*maara;
};
constexpr Hyodyke kHyodykkeet[] = {
    {tekstit::kYhteenvedonLampo, "MWh/a", &Hyodykkeet::lampo},
    {tekstit::kYhteenvedonSahko, "MWh/a", &Hyodykkeet::sahko},
    {tekstit::kYhteenvedonVesi, "m³/a", &Hyodykkeet::vesi},
};

/// What a saving of money comes from.
struct Kustannusera {
  Tekstinumero nimi;
  const char* yksikko;
  const char* hinnanYksikko;
  double (*maara)(clsSaastotoimenpide&, const Hyodykkeet&);
  double clsSaastotoimenpide::*hinta;
  double Alvprosentit::*alv;
};
using T = clsSaastotoimenpide;
constexpr Kustannusera kKustannuserat[] = {
    {tekstit::kRapLampoenergia, "MWh/a", "/MWh", [](T&, const Hyodykkeet& s) { return s.lampo; }, &T::LampoEnergiaHinta,
     &Alvprosentit::lampo},
    {tekstit::kRapLampoteho, "kW", "/kW,a", [](T& t, const Hyodykkeet&) { return t.SaastoLampoteho; },
     &T::LampoTehoHinta, &Alvprosentit::lampo},
    {tekstit::kRapSahkoenergia, "MWh/a", "/MWh", [](T&, const Hyodykkeet& s) { return s.sahko; }, &T::SahkoEnergiaHinta,
     &Alvprosentit::sahko},
    {tekstit::kRapSahkoteho, "kW", "/kW,a", [](T& t, const Hyodykkeet&) { return t.SaastoPatoTeho; },
     &T::SahkoPatoTehoHinta, &Alvprosentit::sahko},
    {tekstit::kRapLoisteho, "kVAr", "/kVAr,a", [](T& t, const Hyodykkeet&) { return t.SaastoLoisTeho; },
     &T::SahkoLoisTehoHinta, &Alvprosentit::sahko},
    {tekstit::kYhteenvedonVesi, "m³/a", "/m³", [](T&, const Hyodykkeet& s) { return s.vesi; }, &T::VesiHinta,
     &Alvprosentit::vesi},
};

Raporttitaulukko EnnenJaJalkeen(clsSaastotoimenpide& toimenpide) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapEnnenJaJalkeen),
                     .sarakkeet = {{Teksti(tekstit::kRapHyodyke), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapEnnen), "", "ennen", 1.5},
                                   {Teksti(tekstit::kRapJalkeen), "", "jalkeen", 1.5},
                                   {Teksti(tekstit::kRapSaasto), "", "saasto", 1.5},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapOsuus), "%", "osuus", 1}}};
  const Hyodykkeet ennen = toimenpide.KulutusEnnen(), jalkeen = toimenpide.KulutusJalkeen();
  const Hyodykkeet saasto = toimenpide.Saasto();
  for (const Hyodyke& h : kHyodykkeet)
    t.Lisaa({Teksti(h.nimi), Raporttiluku{ennen.*h.maara, "### ##0.00"}, Raporttiluku{jalkeen.*h.maara, "### ##0.00"},
             Raporttiluku{saasto.*h.maara, "### ##0.00", "[ennen]-[jalkeen]"}, h.yksikko,
             Raporttiluku{ennen.*h.maara != 0 ? saasto.*h.maara / (ennen.*h.maara) * 100 : 0, "0.0",
                          "IF([ennen]<>0,[saasto]/[ennen]*100,0)"}});
  return t;
}

Raporttitaulukko Kustannukset(clsSaastotoimenpide& toimenpide, const Raporttiaineisto& aineisto) {
  const double kurssi = Asetukset().dblCurrencyConvCoeff;
  const Hyodykkeet saasto = toimenpide.Saasto();
  Raporttitaulukko t{
      .otsikko = Teksti(tekstit::kRapKustannussaasto),
      .sarakkeet = {{Teksti(tekstit::kRapKustannusera), "", "", 2.4, Summaus::Ei, false},
                    {Teksti(tekstit::kRapSaasto), "", "maara", 1.5},
                    {Teksti(tekstit::kRapYksikko), "", "", 1.1, Summaus::Ei, false},
                    {Teksti(tekstit::kRapHintaIlmanAlvia), aineisto.valuutta, "hinta", 1.5},
                    {Teksti(tekstit::kRapYksikko), "", "", 1.1, Summaus::Ei, false},
                    {Teksti(tekstit::kRapAlv), "%", "alv", 1},
                    {Teksti(tekstit::kRapKustannussaastoLyhyt), aineisto.Raha(), "kustannus", 1.6, Summaus::Luvut}}};
  for (const Kustannusera& e : kKustannuserat) {
    const double maara = e.maara(toimenpide, saasto), hinta = toimenpide.*e.hinta * kurssi, alv = aineisto.alv.*e.alv;
    if (maara == 0) continue;
    t.Lisaa({Teksti(e.nimi), Raporttiluku{maara, "### ##0.00"}, e.yksikko, Raporttiluku{hinta, "### ##0.00"},
             aineisto.valuutta + e.hinnanYksikko, Raporttiluku{alv, "0.#"},
             Raporttiluku{maara * hinta * (1 + alv / 100), "### ##0", "[maara]*[hinta]*(1+[alv]/100)"}});
  }
  if (t.OnTyhja()) return t;
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  return t;
}

void LisaaMuutokset(Raportinosa& osa, clsSaastotoimenpide& toimenpide, const Muutoskuvaus& kuvaus) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapMitaMuuttuu),
                     .sarakkeet = {{Teksti(tekstit::kRapMuutoksenKohde), "", "", 3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapOminaisuus), "", "", 3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapEnnen), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapJalkeen), "", "", 2, Summaus::Ei, false}}};
  for (const Muutosrivi& rivi : kuvaus.Rivit(toimenpide))
    t.Lisaa({rivi.kohde, rivi.ominaisuus, rivi.ennen, rivi.jalkeen});
  if (t.OnTyhja())
    osa.Kappale(Teksti(tekstit::kRapEiMuutoksia));
  else
    osa.Taulukko(std::move(t));
}

std::string Taloudenlause(const Raporttiaineisto& aineisto, clsSaastotoimenpide& toimenpide) {
  const double saasto = toimenpide.KustannusSaastoYhteensa(aineisto.alv) * Asetukset().dblCurrencyConvCoeff;
  const double investointi = toimenpide.Investointi * Asetukset().NayttoKerroin(Energialaji::Yleinen);
  const double aika = toimenpide.Takaisinmaksuaika(aineisto.alv);
  const std::string alku = Lause(tekstit::kRapToimenpidelause, {Lukuna(saasto, "### ##0", aineisto.valuutta),
                                                                Lukuna(investointi, "### ##0", aineisto.valuutta)});
  if (saasto <= 0 || aika == kEiTakaisinmaksua) return alku + " " + Teksti(tekstit::kRapEiMaksaItseaan);
  return alku + " " + Lause(tekstit::kRapMaksaaItsensa, {Muotoile(aika, "0.0")});
}

void LisaaPaastot(Raportinosa& osa, clsSaastotoimenpide& toimenpide, Muunnelmalaskin& laskin) try {
  const Ostot saasto = toimenpide.Ostosaasto(laskin);
  osa.Kappale(Lause(tekstit::kRapPaastotVahenevat, {Lukuna(saasto.paastot, "### ##0.00", "t")}));
} catch (const Virhe& virhe) {
  osa.Kappale(Lause(tekstit::kRapPaastojaEiVoituLaskea, {virhe.SyynKuvaus()}), Raporttikappale::Huomautus);
}

void LisaaToimenpide(Raportinosa& osa, const Raporttiaineisto& aineisto, clsSaastotoimenpide& toimenpide,
                     const Muutoskuvaus& kuvaus, Muunnelmalaskin& laskin) {
  osa.Kappale(toimenpide.Kuvaus);
  osa.Kappale(Taloudenlause(aineisto, toimenpide));
  LisaaMuutokset(osa, toimenpide, kuvaus);
  osa.Taulukko(EnnenJaJalkeen(toimenpide));
  Raporttitaulukko kustannukset = Kustannukset(toimenpide, aineisto);
  if (!kustannukset.OnTyhja()) osa.Taulukko(std::move(kustannukset));
  LisaaPaastot(osa, toimenpide, laskin);
  osa.Kappale(
      Lause(tekstit::kRapToimenpiteenTekija, {toimenpide.ToimenpiteenTekijanNimi, toimenpide.ToimenpiteenPaivays}),
      Raporttikappale::Huomautus);
}

Raporttitaulukko Pakettitaulukko(const Raporttiaineisto& aineisto) {
  Raporttitaulukko t{
      .otsikko = Teksti(tekstit::kRapPakettiJarjestyksessa),
      .tunnus = "Paketti",
      .sarakkeet = {{Teksti(tekstit::kRapToimenpide), "", "", 4.4, Summaus::Ei, false},
                    {Teksti(tekstit::kYhteenvedonLampo), "MWh/a", "lampo", 1.4, Summaus::Luvut},
                    {Teksti(tekstit::kYhteenvedonSahko), "MWh/a", "sahko", 1.4, Summaus::Luvut},
                    {Teksti(tekstit::kYhteenvedonVesi), "m³/a", "vesi", 1.4, Summaus::Luvut},
                    {Teksti(tekstit::kRapKustannussaastoLyhyt), aineisto.Raha(), "kustannus", 1.6, Summaus::Luvut},
                    {Teksti(tekstit::kRapInvestointi), aineisto.valuutta, "investointi", 1.7, Summaus::Luvut},
                    {Teksti(tekstit::kRapTakaisinmaksu), "a", "aika", 1.6},
                    {Teksti(tekstit::kRapKertyma), aineisto.Raha(), "kertyma", 1.6}}};
  double kertyma = 0;
  for (std::size_t i = 0; i < aineisto.ehdotukset.size(); ++i) {
    const Ehdotus& e = aineisto.ehdotukset[i];
    kertyma += e.kustannussaasto;
    t.Lisaa({std::to_string(i + 1) + ". " + e.nimi, Raporttiluku{e.saasto.lampo, "### ##0.0"},
             Raporttiluku{e.saasto.sahko, "### ##0.0"}, Raporttiluku{e.saasto.vesi, "### ##0"},
             Raporttiluku{e.kustannussaasto, "### ##0"}, Raporttiluku{e.investointi, "### ##0"},
             Takaisinmaksusolu(e.takaisinmaksu),
             Raporttiluku{kertyma, "### ##0", i == 0 ? "[kustannus]" : "[kertyma:edellinen]+[kustannus]"}});
  }
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  t.rivit.back().solut[t.Sarake("aika")] = Takaisinmaksusolu(aineisto.yhteensa.takaisinmaksu);
  t.huomautus = Teksti(tekstit::kRapPaketinSelitys);
  return t;
}

}  // namespace

void raportti::Toimenpiteet(Raportinosa& osa, Raporttiaineisto& aineisto) {
  if (!aineisto.toimenpidevika.empty())
    return osa.Kappale(Lause(tekstit::kRapToimenpiteitaEiVoituLaskea, {aineisto.toimenpidevika}));
  if (aineisto.toimenpiteet.empty()) return osa.Kappale(Teksti(tekstit::kRapEiToimenpiteita));
  osa.Kappale(Teksti(tekstit::kRapToimenpiteidenJohdanto));
  const Muutoskuvaus kuvaus(aineisto.rakennus);
  Muunnelmalaskin laskin(aineisto.rakennus);
  bool ensimmainen = true;
  for (clsSaastotoimenpide* toimenpide : aineisto.toimenpiteet) {
    osa.Otsikko(toimenpide->Nimi, !std::exchange(ensimmainen, false));
    try {
      LisaaToimenpide(osa, aineisto, *toimenpide, kuvaus, laskin);
    } catch (const Virhe& virhe) {
      osa.Kappale(Lause(tekstit::kRapToimenpidettaEiVoituLaskea, {virhe.SyynKuvaus()}));
    }
  }
}

void raportti::Paketti(Raportinosa& osa, Raporttiaineisto& aineisto) {
  if (!aineisto.toimenpidevika.empty())
    return osa.Kappale(Lause(tekstit::kRapToimenpiteitaEiVoituLaskea, {aineisto.toimenpidevika}));
  if (!aineisto.paketti) return osa.Kappale(Teksti(tekstit::kRapEiPakettia));
  osa.Kappale(Teksti(tekstit::kRapPaketinJohdanto));
  osa.Taulukko(Pakettitaulukko(aineisto));
  const double korkeus = 40 + 9.0 * static_cast<double>(aineisto.ehdotukset.size());
  for (const auto suure : {Vesiputoussuure::Kustannus, Vesiputoussuure::Lampo}) {
    Kaaviotiedot putous = Vesiputous(aineisto.rakennus, suure);
    if (putous.nimet.empty()) continue;
    osa.Kaavio({Kaaviolaji::Vesiputous,
                std::move(putous),
                suure == Vesiputoussuure::Kustannus ? "Paketti" : "",
                {"kustannus"}},
               std::min(korkeus, 110.0));
  }
}
