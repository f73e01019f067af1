// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tasehaarukka.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "kernel/Vertailu.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/ventilation/Koekone.h"
#include "ventilation/Ulkolampotilat.h"

namespace {

/// A machine-year computed minute by minute, with nothing taken over from one term to the next.
class Vertailuvuosi {
 public:
  Vertailuvuosi(const clsIVKone& kone, double S) : kone_(kone), S_(S) {}

  double Lampo(double q, int m, double kiinteaTsp = 0) const {
    double summa = 0;
    for (const clsKayntiAika& j : Jaksot(m)) summa += JaksonLampo(j, q, m, kiinteaTsp != 0 ? kiinteaTsp : j.Tsp);
    return summa;
  }
  double Talteen(double q, int m, double Tp) const {
    double summa = 0;
    for (const clsKayntiAika& j : Jaksot(m)) summa += JaksonLampo(j, q, m, j.Tsp) * Osuus(j.Tsp, Tp, m);
    return summa;
  }
  double Puhaltimet(int m) const {
    double summa = 0;
    for (const clsKayntiAika& j : Jaksot(m))
      for (const double P1 :
           {kone_.PuhaltimienSahkonKulutus.TuloSahkoTeho11, kone_.PuhaltimienSahkonKulutus.PoistoSahkoTeho11}) {
        clsMivSaato saato;
        saato.IlmavirranSaatotapa = kone_.PuhaltimenSaatotapaID;
        saato.VoimansiirtoID = kone_.PuhaltimenVoimansiirtoTapaID;
        saato.PaineenKorotuksenVakioOsuus = 10 * kone_.VakioPaineOsuusID();
        saato.P1 = P1;
        summa += saato.MivTehontarve(j.TuloIlmavirtaProsentti) * Minuutteja(j) / 60.0 * j.KayntiJaksojenLkm / 7 *
                 kPaivatKuukaudessa[static_cast<std::size_t>(m)];
      }
    return summa;
  }

 private:
  std::vector<clsKayntiAika> Jaksot(int m) const {
    constexpr std::array kVuosijaksot{0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3, 0};
    const clsKayntiAjat& ajat = kone_.KayntiAikaYleistiedot;
    std::vector<clsKayntiAika> jaksot;
    for (const clsKayntiAika& j : ajat)
      if (j.KayntiJaksojenLkm > 0 && j.TuloIlmavirtaProsentti > 0 &&
          j.Jakso == (ajat.KayntiaikojenSyottotapaID == 0 ? 4 : kVuosijaksot[static_cast<std::size_t>(m)]))
        jaksot.push_back(j);
    return jaksot;
  }
  static int Minuutteja(const clsKayntiAika& j) {
    int n = 0;
    for (int minuutti = 0; minuutti < 1440; ++minuutti) n += Kay(j, minuutti);
    return n;
  }
  static bool Kay(const clsKayntiAika& j, int minuutti) {
    const int a = j.Alkaa.minuutit, b = j.Paattyy.minuutit;
    return a < b ? minuutti >= a && minuutti < b : minuutti >= a || minuutti < b;
  }
  double JaksonLampo(const clsKayntiAika& j, double q, int m, double Tsp) const {
    double summa = 0;
    for (int minuutti = 0; minuutti < 1440; ++minuutti)
      if (Kay(j, minuutti))
        summa +=
            LammitysKerroin(m + 1, minuutti / 60 + 1, Tsp - j.dTPuhallin, q * j.TuloIlmavirtaProsentti / 100, S_) / 60;
    return summa * j.KayntiJaksojenLkm / 7;
  }
  double Osuus(double Tsp, double Tp, int m) const {
    if (m >= 5 && m <= 7) return kone_.LtoHyotysuhde > 5 ? 1 : 0;
    const Pysyvyys ulkoilma = Ulkolampotilat(m < 2 || m == 11 ? 0 : m < 5 ? 1 : 3);
    double tarve = 0, talteen = 0;
    for (std::size_t i = 0; i < ulkoilma.tunnit.size(); ++i) {
      const double T = ulkoilma.alin + static_cast<double>(i), w = ulkoilma.tunnit[i];
      const double d = Tsp > T ? (Tsp - T) * w : 0;
      const double Ta = T + (Tp - T) * kone_.LtoHyotysuhde / 100;
      tarve += d;
      talteen += (Ta - T) * w < d ? (Ta - T) * w : d;
    }
    return talteen / tarve;
  }

  const clsIVKone& kone_;
  double S_;
};

class clsIVKoneTesti : public KoneTesti {
 protected:
  clsIVKone& LisaaToimistokone(const Tunniste& tila) {
    clsIVKone& kone = LisaaKone(tila);
    kone.IVPeriaateID = clsIVKone::TuloPoisto;
    kone.TuloIlmavirta11Teho = 2.5;
    kone.PoistoIlmavirta11Teho = 3;
    kone.SisaanpuhallusLampotila(18);
    kone.LtoHyotysuhde = 55;
    kone.PuhaltimienSahkonKulutus.TuloSahkoTeho11 = 4;
    kone.PuhaltimienSahkonKulutus.PoistoSahkoTeho11 = 3;
    Kayta(kone, Toimistoajat());
    kone.PaivitaPuhaltimienTiedot();
    return kone;
  }
  clsTila& tila = LisaaTila(3600);
};

TEST_F(clsIVKoneTesti, WholeYearAgreesWithAMinuteByMinuteSum) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  tila.Sisalampotila = 22;
  kone.KayntiAikaYleistiedot.KayntiaikojenSyottotapaID = 1;
  for (int jakso = 0; jakso < 4; ++jakso)
    Kayta(kone, {{5 - jakso, 400 + 7 * jakso, 1000}, {7, 1300, 200, 35.0 + jakso}}, jakso);
  kone.KayntiAikaYleistiedot.Item("2TokaNeljannes").Tsp = 24;
  for (const std::int32_t tapa : {1, 0}) {
    kone.KayntiAikaYleistiedot.KayntiaikojenSyottotapaID = tapa;
    const Vertailuvuosi vertailu(kone, rakennus->Perustiedot.NormVuodenLammTarveLuku);
    double jalkilammitys = 0, puhaltimet = 0;
    for (int m = 0; m < kKuukausia; ++m) {
      SCOPED_TRACE(m);
      const double talteen = vertailu.Talteen(2.5, m, 22), lampo = vertailu.Lampo(2.5, m);
      EXPECT_NEAR(kone.LtoEnergia(m), talteen, 1e-9 * talteen);
      EXPECT_NEAR(kone.IV_LammEnergia(m), lampo - talteen, 1e-9 * lampo);
      EXPECT_NEAR(kone.HaviotTilaan(22, m), vertailu.Lampo(3, m, 22) - lampo, 1e-9 * lampo);
      EXPECT_NEAR(kone.PuhallinSahko(m), vertailu.Puhaltimet(m), 1e-9 * vertailu.Puhaltimet(m));
      jalkilammitys += lampo - talteen;
      puhaltimet += vertailu.Puhaltimet(m);
    }
    EXPECT_GT(jalkilammitys, 0);
    EXPECT_NEAR(kone.VuotuinenIVjalkilammitysLampo(), jalkilammitys / 1000, 1e-9 * jalkilammitys);
    EXPECT_NEAR(kone.VuotuinenPuhallinSahko(), puhaltimet / 1000, 1e-9 * puhaltimet);
  }
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(clsIVKoneTesti, WhatTheSpaceLosesFollowsThePrinciple) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  const Vertailuvuosi vertailu(kone, rakennus->Perustiedot.NormVuodenLammTarveLuku);
  const double tulo = vertailu.Lampo(2.5, 0);
  const double odotetut[] = {vertailu.Lampo(2.5, 0, 21) - tulo, vertailu.Lampo(3, 0, 21) - tulo,
                             vertailu.Lampo(3, 0, 21), vertailu.Lampo(3, 0, 21) - tulo};
  for (std::int32_t periaate = 0; periaate < 4; ++periaate) {
    kone.IVPeriaateID = periaate;
    EXPECT_NEAR(kone.HaviotTilaan(21, 0), odotetut[periaate], 1e-8) << periaate;
  }
  kone.TuloIlmavirta11Teho = kone.PoistoIlmavirta11Teho;
  kone.SisaanpuhallusLampotila(21);
  for (int m = 0; m < kKuukausia; ++m)
    EXPECT_EQ(kone.HaviotTilaan(21, m), 0) << "room temperature in, room temperature out, equal flows";
}

TEST_F(clsIVKoneTesti, RecoveryTakesTheTemperatureOfTheSpaceServed) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  kone.PoistoLampotila = 21;
  const double tilasta = kone.LtoEnergia(0);
  tila.Sisalampotila = 24;
  EXPECT_GT(kone.LtoEnergia(0), tilasta);
  kone.LiittyyTilaansKey = "poistettu";
  EXPECT_EQ(kone.LtoEnergia(0), tilasta) << "no such space: the machine's own exhaust temperature";
  kone.LtoHyotysuhde = 0;
  EXPECT_EQ(kone.LtoEnergia(6), 0);
}

TEST_F(clsIVKoneTesti, FansByPrincipleAndSystem) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  kone.JarjestelmaTyyppiID = PuhaltimenTeho::Vakioilmavirta;
  Kayta(kone, {{7, 0, 0, 100}, {7, 0, 0, 99}});
  const double tehot[] = {4, 7, 3, 7};
  for (std::int32_t periaate = 0; periaate < 4; ++periaate) {
    kone.IVPeriaateID = periaate;
    EXPECT_DOUBLE_EQ(kone.PuhallinSahko(0), tehot[periaate] * 744) << "only the period at exactly full flow counts";
  }
  kone.JarjestelmaTyyppiID = PuhaltimenTeho::Kaksinopeus;
  Kayta(kone, {{7, 0, 12 * 60, 100}, {7, 12 * 60, 0, 50}});
  kone.PaivitaPuhaltimienTiedot();
  EXPECT_DOUBLE_EQ(kone.PuhallinSahko(0), 7 * 372 + 372 * (kone.PuhaltimienSahkonKulutus.TuloSahkoOsaTeho() +
                                                           kone.PuhaltimienSahkonKulutus.PoistoSahkoOsaTeho()));
  kone.TuloIlmavirta11Teho = kone.PoistoIlmavirta11Teho = 0;
  EXPECT_EQ(kone.PuhallinSahko(0), 0);
}

TEST_F(clsIVKoneTesti, ElectricityOfCoilAndFansReachesTheBuilding) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  const clsSahkonKulutusryhmat& ryhmat = rakennus->SahkonKulutusryhmat;
  EXPECT_GT(kone.VuotuinenPuhallinSahko(), 0);
  EXPECT_EQ(kone.SahkoPatterinEnergia(0), 0);
  EXPECT_EQ(kone.VesikiertoisenLampoPatterinEnergia(0), kone.IV_LammEnergia(0));
  EXPECT_EQ(kone.Sahko(), kone.VuotuinenPuhallinSahko());
  EXPECT_EQ(ryhmat.SahkoLaitteidenVuosikulutus(), kone.VuotuinenPuhallinSahko());
  EXPECT_EQ(ryhmat.LammitysSahkonVuosikulutus(), 0);
  kone.TuloilmanLammitysSahkoPatterilla = true;
  EXPECT_EQ(kone.VesikiertoisenLampoPatterinEnergia(0), 0);
  EXPECT_EQ(ryhmat.LammitysSahkonVuosikulutus(), kone.VuotuinenIVjalkilammitysLampo());
  EXPECT_DOUBLE_EQ(kone.Sahko(), ryhmat.Vuosikulutus());
}

TEST_F(clsIVKoneTesti, SpacesCountTheirMachinesAsLossesAndGains) {
  LisaaRakenne(tila, Rakennelaji::Ulkoseina, 200, 0.4);
  clsTila& toinen = LisaaTila(3600);
  const double vuoto = tila.IVHaviotTilassa(0);
  clsIVKone& kylma = LisaaToimistokone(tila.sKey);
  clsIVKone& lammin = LisaaToimistokone(tila.sKey);
  lammin.SisaanpuhallusLampotila(28);
  lammin.PoistoIlmavirta11Teho = 2.5;
  ASSERT_LT(lammin.HaviotTilaan(21, 0), 0);
  EXPECT_NEAR(tila.IVHaviotTilassa(0), vuoto + kylma.HaviotTilaan(21, 0), 1e-9);
  EXPECT_NEAR(tila.IVKoneLampoKuorma(0), -lammin.HaviotTilaan(21, 0), 1e-9);
  EXPECT_EQ(toinen.IVHaviotTilassa(0), vuoto) << "machines of another space";
  const double tarve = tila.VuotuinenLampoEnergianTarve();
  double kuorma = 0;
  {
    const Tasehaarukka haarukka(*rakennus);
    EXPECT_EQ(tila.VuotuinenLampoEnergianTarve(), tarve) << "in the bracket and alone";
    kuorma = tila.VuotuinenIVKoneLampoKuorma();
  }
  EXPECT_GT(kuorma, 0);
  rakennus->IVKoneet.Remove(2);
  EXPECT_EQ(tila.VuotuinenIVKoneLampoKuorma(), 0) << "no stale gain after the bracket";
  tila.PainovoimainenIlmanvaihto = true;
  EXPECT_NEAR(tila.IVHaviotTilassa(0), vuoto * tila.PainovoimainenIVMaara / tila.Vuotoilmanvaihto, 1e-9);
}

TEST_F(clsIVKoneTesti, ACopySharesNothing) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  kone.KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp = 23;
  const auto kopio = kone.Kopioi();
  const double ennen = kone.VuotuinenIVjalkilammitysLampo(), sahko = kone.Sahko();
  EXPECT_EQ(kopio->VuotuinenIVjalkilammitysLampo(), ennen);
  kopio->KayntiAikaYleistiedot.Item("1KokoVuosi").KayntiJaksojenLkm = 1;
  kopio->PuhaltimienSahkonKulutus.TuloSahkoTeho11 = 9;
  EXPECT_EQ(kone.VuotuinenIVjalkilammitysLampo(), ennen);
  EXPECT_EQ(kone.Sahko(), sahko);
  kone.Kopioi(*kopio);
  EXPECT_EQ(kopio->KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp, 23) << "the copy doesn't run the setters";
  EXPECT_EQ(kopio->Sahko(), sahko);
}

TEST_F(clsIVKoneTesti, AMachineComesBackFromItsFile) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  kone.Lto.Tlto = 6.5;
  kone.LammTehot.JalkilammitysTeho = 40;
  kone.KayntiAikaYleistiedot.Item("2KokoVuosi").Tsp = 20.5;
  kone.PuhaltimienSahkonKulutus.PoistoPuhParam.PaineenKorotus = 450;
  const double jalkilammitys = kone.VuotuinenIVjalkilammitysLampo(), sahko = kone.Sahko();
  const Koehakemisto hakemisto;
  const std::string tiedosto = (hakemisto / "Kone.lvt").string();
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  clsRakennus luettu;
  AsetaGlobaaliRakennus(&luettu);
  luettu.Hae(tiedosto);
  ASSERT_EQ(luettu.IVKoneet.Count(), 1);
  clsIVKone& oma = luettu.IVKoneet.Item(1);
  Muutoslista ero;
  VertaileOliot(oma, kone, ero, luettu.TyyppiTiedot);
  EXPECT_TRUE(ero.muutokset.empty());
  EXPECT_EQ(oma.VuotuinenIVjalkilammitysLampo(), jalkilammitys) << "to the last bit";
  EXPECT_EQ(oma.Sahko(), sahko);
}

TEST_F(clsIVKoneTesti, AVariationReachesTheMachineItsScheduleAndItsFans) {
  clsIVKone& kone = LisaaToimistokone(tila.sKey);
  rakennus->PaivitaInstanssiIdLista();
  const double ennen = rakennus->VuotuinenIVjalkilammitysLampo(), sahko = kone.VuotuinenPuhallinSahko();
  clsMuuttuneetAttribuutit muuttuneet;
  const auto muuta = [&](Olio& olio, const char* nimi, int tyyppi, double arvo) {
    clsMuuttunutAttribuutti& muuttunut = muuttuneet.Add(nimi);
    muuttunut.clsTypeName = olio.LuokanNimi();
    muuttunut.InstanssiId = olio.InstanssiId;
    muuttunut.AttribuutinNimi = nimi;
    muuttunut.TietoTyyppi = tyyppi;
    muuttunut.ArvoJalkeen = arvo;
  };
  muuta(kone.KayntiAikaYleistiedot.Item("3KokoVuosi"), "Tsp", 5, 17);
  muuta(kone, "VakioPaineOsuusID", 3, 4);
  muuta(kone.KayntiAikaYleistiedot.Item("1KokoVuosi"), "Alkaa", 7, 7.5 / 24);
  rakennus->LiitaSaastoToimenpide(muuttuneet);
  EXPECT_EQ(kone.KayntiAikaYleistiedot.Item("3KokoVuosi").Tsp, 17);
  EXPECT_NE(kone.VuotuinenPuhallinSahko(), sahko) << "the fans run by the machine's choice, not by their copy of it";
  EXPECT_EQ(kone.KayntiAikaYleistiedot.Item("1KokoVuosi").Alkaa.minuutit, 7 * 60 + 30);
  EXPECT_LT(rakennus->VuotuinenIVjalkilammitysLampo(), ennen);
}

}  // namespace
