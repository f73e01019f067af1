// SPDX-License-Identifier: GPL-3.0-or-later
// What the sample audits give: the same as before, the same as an independent program, the same as the guide says.
#include <cmath>
#include <fstream>
#include <map>
#include <set>

#include "batch/Kohdelaskenta.h"
#include "batch/Toimenpidelaskenta.h"
#include "bench/vertailu/Mallirakennus.h"
#include "bench/vertailu/Vertailulaskenta.h"
#include "building/Hankintalaskelma.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "kernel/Sha256.h"
#include "kernel/Tulos.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/batch/Malliauditoinnit.h"
#include "tests/tuki/Lahdekoodi.h"

namespace {

namespace fs = std::filesystem;

/// tests/batch/mallitulokset.csv: comments that log the updates, a heading, then building, result and value.
struct Talletetut {
  Talletetut() {
    std::ifstream tiedosto(Lahdekoodi("tests/batch/mallitulokset.csv"));
    for (std::string rivi; std::getline(tiedosto, rivi);) {
      if (rivi.starts_with("# ")) {
        paivitys = rivi;
      } else {
        rivit += rivi + "\n";
        const auto eka = rivi.find(','), toka = rivi.rfind(',');
        arvot[rivi.substr(0, toka)] = rivi.substr(toka + 1);
        kohteet.insert(rivi.substr(0, eka));
      }
    }
  }
  std::string paivitys, rivit;
  std::map<std::string, std::string> arvot;
  std::set<std::string> kohteet;
};

/// What each measure saves of cost, €/a without VAT, and what the package saves and costs.
std::map<std::string, double> Toimenpideluvut(clsRakennus& rakennus) {
  std::map<std::string, double> luvut;
  for (clsSaastotoimenpide& toimenpide : rakennus.Saastotoimenpiteet)
    luvut[toimenpide.Nimi] = toimenpide.KustannusSaastoYhteensa({});
  if (luvut.empty()) return luvut;
  rakennus.ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
  const clsValittuToimenpide& paketti = rakennus.ToimenpiteidenJarjestelija.ValitutToimenpiteet.Item(1);
  luvut["Paketin SaastoLampoEnergia"] = paketti.SaastoLampoEnergia;
  luvut["Paketin SaastoSahkoEnergia"] = paketti.SaastoSahkoEnergia;
  luvut["Paketin SaastoVedenKulutus"] = paketti.SaastoVedenKulutus;
  luvut["Paketin Investointi"] = paketti.Investointi;
  luvut["Paketin Kustannussaasto"] = paketti.Kustannussaasto().Yhteensa({});
  return luvut;
}

using MallituloksetTesti = MalliauditointiTesti;

TEST_F(MallituloksetTesti, AResultChangesOnlyForAReasonWrittenDown) {
  const Talletetut talletetut;
  EXPECT_EQ(talletetut.kohteet.size(), 11u) << "ten buildings and the heading";
  // "# date sum reason": the sum is that of the rows, so that they change only by the tool, which asks for the reason.
  EXPECT_EQ(talletetut.paivitys.substr(13, 16), Sha256(talletetut.rivit).substr(0, 16))
      << "update by tools/paivita_mallitulokset \"reason\"";
  for (const fs::path& tiedosto : Tiedostot()) {
    const auto rakennus = Avaa(tiedosto);
    const Tasehaarukka haarukka(*rakennus);
    for (const Tulos& tulos : clsRakennus::kLuokka.Tulokset()) {
      if (tulos.laji != Tuloslaji::Vuosi && tulos.laji != Tuloslaji::Luku) continue;
      const std::string avain = tiedosto.stem().string() + "," + std::string(tulos.nimi);
      const auto talletettu = talletetut.arvot.find(avain);
      ASSERT_NE(talletettu, talletetut.arvot.end()) << avain;
      const double odotettu = LueLuku(talletettu->second).value_or(NAN), arvo = tulos.Arvo({*rakennus});
      EXPECT_NEAR(arvo, odotettu, 1e-9 * std::abs(odotettu)) << avain;
    }
    for (const auto& [nimi, arvo] : Toimenpideluvut(*rakennus)) {
      const std::string avain = tiedosto.stem().string() + "," + nimi;
      const auto talletettu = talletetut.arvot.find(avain);
      ASSERT_NE(talletettu, talletetut.arvot.end()) << avain;
      const double odotettu = LueLuku(talletettu->second).value_or(NAN);
      EXPECT_NEAR(arvo, odotettu, 1e-6 + 1e-9 * std::abs(odotettu)) << avain;
    }
  }
}

TEST_F(MallituloksetTesti, MeasuresOfTheSamplesPayBackAndTheirPackageIsTheSumOfItsSteps) {
  std::set<std::string> kohteita, ilman;
  for (const fs::path& tiedosto : Tiedostot()) {
    const auto rakennus = Avaa(tiedosto);
    if (rakennus->Saastotoimenpiteet.Count() == 0) {
      ilman.insert(tiedosto.stem().string());
      continue;
    }
    EXPECT_TRUE(rakennus->Saastotoimenpiteet.Count() >= 5 && rakennus->Saastotoimenpiteet.Count() <= 8) << tiedosto;
    for (clsSaastotoimenpide& toimenpide : rakennus->Saastotoimenpiteet) {
      const double aika = toimenpide.Takaisinmaksuaika({});
      EXPECT_TRUE(aika >= 1 && aika <= 60) << tiedosto << toimenpide.Nimi << ": " << aika;
      EXPECT_GT(toimenpide.Kuvaus.size(), 60u) << toimenpide.Nimi;
      kohteita.insert(toimenpide.MuuttuneetAttribuutit.TyypinNimi + (toimenpide.Kelluva() ? " oma" : ""));
    }
    clsToimenpiteidenJarjestelija& jarjestelija = rakennus->ToimenpiteidenJarjestelija;
    jarjestelija.PaivitaValitutToimenpiteet();
    const clsValittuToimenpide &yhteensa = jarjestelija.ValitutToimenpiteet.Item(1),
                               &eka = jarjestelija.ValitutToimenpiteet.Item(2);
    const Hyodykkeet yksin = rakennus->Saastotoimenpiteet.Item(eka.ToimenpidesKey).Saasto(),
                     paketti = jarjestelija.LaskettuPaketti()->ennen - jarjestelija.LaskettuPaketti()->lopuksi;
    const auto vertaa = [&](const clsValittuToimenpide& rivi, const Hyodykkeet& saasto) {
      EXPECT_NEAR(rivi.SaastoLampoEnergia, saasto.lampo, 1e-9) << tiedosto << rivi.Nimi;
      EXPECT_NEAR(rivi.SaastoSahkoEnergia, saasto.sahko, 1e-9) << tiedosto << rivi.Nimi;
      EXPECT_NEAR(rivi.SaastoVedenKulutus, saasto.vesi, 1e-9) << tiedosto << rivi.Nimi;
    };
    vertaa(eka, yksin);
    vertaa(yhteensa, paketti);
  }
  EXPECT_EQ(ilman, std::set<std::string>{"K05 Päiväkoti 2005"}) << "measures can be tried there";
  EXPECT_EQ(kohteita, (std::set<std::string>{"clsEnergianHankinta", "clsIVKone", "clsSahkonKulutusryhma",
                                             "clsSahkonKulutusryhma oma", "clsTila", "clsVedenKulutusryhma",
                                             "clsVedenKulutusryhma oma"}));
}

TEST_F(MallituloksetTesti, AMeasureOfEachSampleCarriedOutGivesItsFigures) {
  const Koehakemisto kansio;
  for (const fs::path& tiedosto : Tiedostot()) {
    const auto alku = Avaa(tiedosto);
    for (clsSaastotoimenpide& toimenpide : alku->Saastotoimenpiteet) {
      if (toimenpide.Kelluva()) continue;
      const std::string uusi = (kansio / (toimenpide.sKey.Teksti() + ".lvt")).string();
      VieToimenpide(tiedosto.string(), toimenpide.Nimi, uusi);
      const Hyodykkeet odotettu = toimenpide.KulutusJalkeen();
      const auto toteutettu = Avaa(uusi);
      EXPECT_EQ(toteutettu->VuotuinenBruttoLampoEnergia(), odotettu.lampo) << tiedosto << toimenpide.Nimi;
      EXPECT_EQ(toteutettu->VuotuinenBruttoSahkoEnergia(), odotettu.sahko) << tiedosto << toimenpide.Nimi;
      EXPECT_EQ(toteutettu->VedenKulutusryhmat.VuotuinenVedenKulutus(), odotettu.vesi) << tiedosto << toimenpide.Nimi;
    }
  }
}

TEST_F(MallituloksetTesti, SuppliesOfTheSamplesCoverTheirDemandAtAPriceOfTheirTime) {
  for (const fs::path& tiedosto : Tiedostot()) {
    const auto rakennus = Avaa(tiedosto);
    // € without VAT for a MWh, for a m³ of water
    for (const auto& [laji, ala, yla] : {std::tuple{clsEnergianHankinta::Lampo, 20.0, 65.0},
                                         {clsEnergianHankinta::Sahko, 65.0, 120.0},
                                         {clsEnergianHankinta::Vesi, 2.6, 3.5}}) {
      const Hankintalaskelma laskelma = LaskeHankinta(*rakennus, laji);
      double ostettu = 0;
      for (const Hankintalaskelma::Muoto& muoto : laskelma.muodot) ostettu += muoto.ostettu;
      EXPECT_NEAR(ostettu, laskelma.brutto, 1e-9 * laskelma.brutto) << tiedosto << laji;
      const double hinta = laskelma.kustannus / laskelma.brutto;
      EXPECT_TRUE(ala <= hinta && hinta <= yla) << tiedosto << " " << laji << ": " << hinta;
    }
  }
}

/// The model's figures against those of loops over plain arrays, which read the tables by themselves.
void VertaaRiippumattomaan(clsRakennus& rakennus, const std::string& nimi) {
  const mittaus::Vertailulaskenta::Tulos toinen = mittaus::Vertailulaskenta(rakennus).Laske();
  const Tasehaarukka haarukka(rakennus);
  const auto vertaa = [&](const char* tulos, double vertailu) {
    const double oma = clsRakennus::kLuokka.TulosNimella(tulos).Arvo({rakennus});
    EXPECT_NEAR(oma, vertailu, 1e-12 * std::abs(vertailu)) << nimi << " " << tulos;
  };
  vertaa("VuotuinenLampoEnergianTarveTilat", toinen.lampoenergianTarve);
  vertaa("VuotuisetLampoHaviot", toinen.haviot);
  vertaa("VuotuisetSaatohaviot", toinen.saatohaviot);
  vertaa("VuotuisetLammonKonversiohaviot", toinen.konversiohaviot);
  vertaa("VuotuinenIVjalkilammitysLampo", toinen.jalkilammitys);
}

TEST_F(MallituloksetTesti, TheIndependentCalculationGetsTheSameFigures) {
  for (const fs::path& tiedosto : Tiedostot()) VertaaRiippumattomaan(*Avaa(tiedosto), tiedosto.stem().string());
  // every kind of structure, schedule, machine and heat supply
  const auto rakennus = mittaus::TeeMallirakennus(12, 30);
  mittaus::LisaaKoneet(*rakennus, 8);
  VertaaRiippumattomaan(*rakennus, "mallirakennus");
}

std::string Sivu(const std::string& nimi) {
  std::ifstream tiedosto(Lahdekoodi("docs/opas/" + nimi));
  return {std::istreambuf_iterator(tiedosto), {}};
}

/// The guide's page has the number, as it is shown.
void OppaassaOn(const std::string& sivu, double luku, const char* kuvio) {
  EXPECT_NE(Sivu(sivu).find(Muotoile(luku, kuvio)), std::string::npos) << sivu << ": " << Muotoile(luku, kuvio);
}

TEST_F(MallituloksetTesti, TheGuidesExampleHasTheSampleAuditsFigures) {
  constexpr double kVakioOsuus = 48;  // MWh/a
  const auto rakennus = Avaa(Tiedostot().front());
  const auto tarkista = [&] {
    // The summary adds what it shows.
    const auto naytetty = [](double mwh) { return LueLuku(Muotoile(mwh, "0.00")).value(); };
    const double osat[] = {naytetty(rakennus->VuotuinenLampoEnergianTarveTilat()),
                           naytetty(rakennus->VuotuinenIVjalkilammitysLampo()),
                           naytetty(rakennus->VuotuisetLKVHaviot())};
    const double laskettu = osat[0] + osat[1] + osat[2];
    const double mitattu = naytetty(rakennus->ToteutunutNormitettuLampo());
    for (const double luku : {osat[0], osat[1], osat[2], laskettu, mitattu, mitattu - laskettu}) {
      OppaassaOn("tyonkulku.md", luku, "### ##0");
      OppaassaOn("lampoyhteenveto.md", luku, "### ##0.00");
    }
  };
  tarkista();
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = kVakioOsuus;
  tarkista();
}

/// A row of the guide's tables of measures, amounts in euros with VAT.
std::string Toimenpiderivi(const std::string& nimi, const Hyodykkeet& saasto, double kustannussaasto,
                           double investointi, double takaisinmaksuaika) {
  const auto luku = [](double arvo, const char* kuvio) { return " | " + Muotoile(arvo, kuvio); };
  const double veroineen = investointi * (1 + Asetukset().NaytettavatAlvt().yleinen / 100);
  return "| " + nimi + luku(saasto.lampo, "0.0") + luku(saasto.sahko, "0.0") + luku(saasto.vesi, "### ##0") +
         luku(kustannussaasto, "### ##0") + luku(veroineen, "### ##0") + luku(takaisinmaksuaika, "0.0") + " |\n";
}

TEST_F(MallituloksetTesti, TheGuidesPackageIsThatOfTheSampleSchool) {
  const std::string opas = Sivu("esimerkkipaketti.md");
  const auto rakennus = Avaa(Tiedostot().front());
  const Alvprosentit alv = Asetukset().NaytettavatAlvt();
  std::string yksin, jarjestyksessa, yhteensa;
  for (clsSaastotoimenpide& toimenpide : rakennus->Saastotoimenpiteet)
    yksin += Toimenpiderivi(toimenpide.Nimi, toimenpide.Saasto(), toimenpide.KustannusSaastoYhteensa(alv),
                            toimenpide.Investointi, toimenpide.Takaisinmaksuaika(alv));
  clsToimenpiteidenJarjestelija& jarjestelija = rakennus->ToimenpiteidenJarjestelija;
  jarjestelija.PaivitaValitutToimenpiteet();
  for (const clsValittuToimenpide& rivi : jarjestelija.ValitutToimenpiteet) {
    const Hyodykkeet saasto{rivi.SaastoLampoEnergia, rivi.SaastoSahkoEnergia, rivi.SaastoVedenKulutus};
    if (rivi.Tyyppi == clsValittuToimenpide::Yhteensa)
      yhteensa = Toimenpiderivi("**" + rivi.Nimi + "**", saasto, rivi.KustannusSaastoYhteensa, rivi.Investointi,
                                jarjestelija.PaketinTakaisinmaksuaika(alv).value_or(0));
    else
      jarjestyksessa +=
          Toimenpiderivi(rivi.Nimi, saasto, rivi.KustannusSaastoYhteensa, rivi.Investointi, rivi.Takaisinmaksuaika);
  }
  EXPECT_NE(opas.find(yksin), std::string::npos) << yksin;
  EXPECT_NE(opas.find(jarjestyksessa + yhteensa), std::string::npos) << jarjestyksessa << yhteensa;
}

/// A measure of a sample audit, alone and, 0 for one outside the package, in its order.
struct Esimerkki {
  Esimerkki(clsRakennus& rakennus, const std::string& nimi) {
    for (clsSaastotoimenpide& ehdokas : rakennus.Saastotoimenpiteet)
      if (ehdokas.Nimi == nimi) toimenpide = &ehdokas;
    rakennus.ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
    for (const clsValittuToimenpide& rivi : rakennus.ToimenpiteidenJarjestelija.ValitutToimenpiteet)
      if (rivi.ToimenpidesKey == toimenpide->sKey) netto = rivi.SaastoLampoEnergia;
  }
  clsSaastotoimenpide* toimenpide = nullptr;
  double netto = 0;
};

TEST_F(MallituloksetTesti, TheGuideTellsOfOrderAndOfTariffsWithTheSamplesFigures) {
  const auto tiedostot = Tiedostot();
  const auto kohde = [&](std::size_t numero) { return Avaa(tiedostot[numero - 1]); };
  {
    const auto koulu = kohde(1);
    const Esimerkki talteenotto(*koulu, "Lämmöntalteenotto ilmanvaihtoon");
    OppaassaOn("toimenpiteet.md", talteenotto.toimenpide->Saasto().lampo, "0.0");
    OppaassaOn("toimenpiteet.md", talteenotto.netto, "0.0");
    double brutot = 0;
    for (const clsValittuToimenpide& rivi : koulu->ToimenpiteidenJarjestelija.ValitutToimenpiteet)
      if (rivi.Tyyppi == clsValittuToimenpide::Toimenpide)
        brutot += koulu->Saastotoimenpiteet.Item(rivi.ToimenpidesKey).Saasto().lampo;
    OppaassaOn("toimenpiteet.md", brutot, "0.0");
    OppaassaOn("toimenpiteet.md", koulu->ToimenpiteidenJarjestelija.ValitutToimenpiteet.Item(1).SaastoLampoEnergia,
               "0.0");
  }
  for (const auto& [numero, nimi] : {std::pair{6u, "Kondensoiva kaasukattila"}, {7u, "Yläpohjan puhallusvilla"}}) {
    const auto rakennus = kohde(numero);
    const Esimerkki esimerkki(*rakennus, nimi);
    OppaassaOn("toimenpiteet.md", esimerkki.toimenpide->Saasto().lampo, "0.0");
    OppaassaOn("toimenpiteet.md", esimerkki.netto, "0.0");
  }
  for (const auto& [numero, nimi] :
       {std::pair{3u, "Maalämpöpumppu öljykattilan tilalle"}, {10u, "Maalämpö kaukolämmön tilalle"}}) {
    const auto rakennus = kohde(numero);
    clsSaastotoimenpide& pumppu = *Esimerkki(*rakennus, nimi).toimenpide;
    OppaassaOn("toimenpiteet.md", pumppu.KustannusSaastoYhteensa({}), "### ##0");
    OppaassaOn("toimenpiteet.md", std::abs(pumppu.Ostosaasto().hinta.Yhteensa()), "### ##0");
  }
}

/// The computed figure of a sample audit over its measured one, with the guide's table of them: "| K01 ... | 92 % |".
struct Suhde {
  const char* mika;
  double laskettu, mitattu, pienin, suurin;
};

TEST_F(MallituloksetTesti, TheSampleAuditsExplainWhatWasMeasured) {
  const std::string opas = Sivu("malliauditoinnit.md");
  for (const fs::path& tiedosto : Tiedostot()) {
    const auto rakennus = Avaa(tiedosto);
    const Tasehaarukka haarukka(*rakennus);
    const clsToteutunutKulutus& mitattu = rakennus->Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
    const double lampo = rakennus->VuotuinenLampoEnergianTarveTilat() + rakennus->VuotuinenIVjalkilammitysLampo() +
                         rakennus->VuotuisetLKVHaviot() + rakennus->VuotuisetProsessiVesiHaviot();
    std::string rivi = "| " + tiedosto.stem().string();
    for (const Suhde& suhde :
         {Suhde{"heat", lampo, rakennus->ToteutunutNormitettuLampo(), 0.7, 1.05},
          Suhde{"electricity", rakennus->SahkonKulutusryhmat.Vuosikulutus(), mitattu.Sahko, 0.85, 1.15},
          Suhde{"water", rakennus->VedenKulutusryhmat.VuotuinenVedenKulutus(), mitattu.Vesi, 0.85, 1.15}}) {
      EXPECT_GT(suhde.laskettu, suhde.pienin * suhde.mitattu) << tiedosto.stem() << " " << suhde.mika;
      EXPECT_LT(suhde.laskettu, suhde.suurin * suhde.mitattu) << tiedosto.stem() << " " << suhde.mika;
      rivi += " | " + Muotoile(100 * suhde.laskettu / suhde.mitattu, "0") + " %";
    }
    EXPECT_NE(opas.find(rivi + " |"), std::string::npos) << rivi << " |";
  }
}

TEST_F(MallituloksetTesti, TheGuidesTableOfPackagesIsThatOfTheSamples) {
  const std::string opas = Sivu("malliauditoinnit.md");
  for (const fs::path& tiedosto : Tiedostot()) {
    const auto rakennus = Avaa(tiedosto);
    const int toimenpiteita = rakennus->Saastotoimenpiteet.Count();
    if (toimenpiteita == 0) continue;
    clsToimenpiteidenJarjestelija& jarjestelija = rakennus->ToimenpiteidenJarjestelija;
    jarjestelija.PaivitaValitutToimenpiteet();
    const Hyodykkeet &ennen = jarjestelija.LaskettuPaketti()->ennen, &lopuksi = jarjestelija.LaskettuPaketti()->lopuksi;
    const auto paketissa =
        std::ranges::count(jarjestelija.ValitutToimenpiteet, std::int32_t{clsValittuToimenpide::Toimenpide},
                           &clsValittuToimenpide::Tyyppi);
    const auto aika = jarjestelija.PaketinTakaisinmaksuaika(Asetukset().NaytettavatAlvt());
    const std::string rivi =
        "| " + tiedosto.stem().string() + " | " + std::to_string(toimenpiteita) + " | " + std::to_string(paketissa) +
        " | " + Muotoile(100 * (1 - lopuksi.lampo / ennen.lampo), "0") + " % | " +
        Muotoile(100 * (1 - lopuksi.sahko / ennen.sahko), "0") + " % | " + Muotoile(aika.value_or(0), "0.0") + " |";
    EXPECT_NE(opas.find(rivi), std::string::npos) << rivi;
  }
}

}  // namespace
