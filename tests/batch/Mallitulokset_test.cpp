// SPDX-License-Identifier: GPL-3.0-or-later
// What the sample audits give: the same as before, the same as an independent program, the same as the guide says.
#include <cmath>
#include <fstream>
#include <map>
#include <set>

#include "batch/Kohdelaskenta.h"
#include "bench/vertailu/Mallirakennus.h"
#include "bench/vertailu/Vertailulaskenta.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "kernel/Luvut.h"
#include "kernel/Sha256.h"
#include "kernel/Tulos.h"
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

/// The guide's page has the number, as it is shown.
void OppaassaOn(const std::string& sivu, double mwh, const char* kuvio) {
  std::ifstream tiedosto(Lahdekoodi("docs/opas/" + sivu));
  const std::string teksti{std::istreambuf_iterator(tiedosto), {}};
  EXPECT_NE(teksti.find(Muotoile(mwh, kuvio)), std::string::npos) << sivu << ": " << Muotoile(mwh, kuvio);
}

TEST_F(MallituloksetTesti, TheGuidesExampleHasTheSampleAuditsFigures) {
  const auto rakennus = Avaa(Tiedostot().front());
  const auto tarkista = [&] {
    const double tilat = rakennus->VuotuinenLampoEnergianTarveTilat();
    const double ilmanvaihto = rakennus->VuotuinenIVjalkilammitysLampo();
    const double laskettu = tilat + ilmanvaihto + rakennus->MuuLampo;
    const double mitattu = rakennus->ToteutunutNormitettuLampo();
    for (const double luku : {tilat, ilmanvaihto, laskettu, mitattu, mitattu - laskettu}) {
      OppaassaOn("tyonkulku.md", luku, "### ##0");
      OppaassaOn("lampoyhteenveto.md", luku, "### ##0.00");
    }
  };
  tarkista();
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = 96;
  rakennus->MuuLampo = 96;
  tarkista();
}

}  // namespace
