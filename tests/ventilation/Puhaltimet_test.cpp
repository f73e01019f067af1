// SPDX-License-Identifier: GPL-3.0-or-later
// Drives, motors, control of variable flow and powers of fans. Golden figures: the formulas in a spreadsheet.
#include "tests/ventilation/Koekone.h"
#include "ventilation/clsKaksiNopOikosulkuMoottori.h"
#include "ventilation/clsOikosulkuMoottori.h"

namespace {

constexpr double kTarkkuus = 1e-9;

class Puhaltimet : public RakennusTesti {
 protected:
  std::size_t Viesteja() const { return viestit.Naytetyt().size(); }
  static clsMivSaato Saato(std::int32_t tapa, std::int32_t osuus, std::int32_t voimansiirto, double P1,
                           double virta = 100) {
    clsMivSaato saato;
    saato.IlmavirranSaatotapa = tapa;
    saato.PaineenKorotuksenVakioOsuus = osuus;
    saato.VoimansiirtoID = voimansiirto;
    saato.P1 = P1;
    saato.IlmavirtaPros = virta;
    return saato;
  }
  static PuhaltimenTeho Kaksinopeus(double P1, std::int32_t voimansiirto) {
    return {PuhaltimenTeho::Kaksinopeus, Saato(0, 0, voimansiirto, P1)};
  }
};

TEST_F(Puhaltimet, EfficiencyOfDrives) {
  const auto hyotysuhde = [](std::int32_t tapa, double P4) { return clsVoimasiirto{tapa, P4}.Hyotysuhde(); };
  EXPECT_NEAR(hyotysuhde(0, 10), 94.84206807439524, kTarkkuus);
  EXPECT_NEAR(hyotysuhde(1, 10), 97.69077552789821, kTarkkuus);
  EXPECT_EQ(hyotysuhde(2, 0.01), 100) << "direct drive";
  for (const std::int32_t tapa : {0, 1, 2}) EXPECT_EQ(hyotysuhde(tapa, 0), 100);
  EXPECT_EQ(Viesteja(), 0u);
  EXPECT_EQ(hyotysuhde(3, 1), 0);
  EXPECT_EQ(Viesteja(), 1u) << "error 1045";
  EXPECT_DOUBLE_EQ((clsVoimasiirto{0, 1e-12}.Moottoriteho()), 1e-10) << "at least 1 % is divided by";
}

TEST_F(Puhaltimet, EfficiencyOfMotors) {
  clsOikosulkuMoottori moottori{10};
  EXPECT_NEAR(moottori.HyotySuhde11Teho(), 87.59189142777261, kTarkkuus);
  EXPECT_EQ(moottori.HyotySuhde12Teho(4), moottori.HyotySuhde11Teho()) << "at 40 % of the nominal power";
  EXPECT_NEAR(moottori.HyotySuhde12Teho(3.9999999), moottori.HyotySuhde11Teho() - 2.325814637, 1e-6) << "just below";
  EXPECT_EQ(moottori.HyotySuhde12Teho(0), 100);
  moottori.P3N = 0;
  EXPECT_EQ(moottori.HyotySuhde11Teho(), 100);
  EXPECT_THROW(moottori.HyotySuhde12Teho(1), std::exception);
  clsKaksiNopOikosulkuMoottori kaksinopeuksinen{10};
  EXPECT_NEAR(kaksinopeuksinen.HyotySuhde11Teho(), 85.58525204866487, kTarkkuus);
  EXPECT_NEAR(kaksinopeuksinen.HyotySuhde12Teho(), 70.17714347643748, kTarkkuus);
  kaksinopeuksinen.P3N = 0;
  EXPECT_EQ(kaksinopeuksinen.HyotySuhde12Teho(), 0);
  EXPECT_THROW(kaksinopeuksinen.HyotySuhde11Teho(), std::exception);
}

TEST_F(Puhaltimet, FitsAreTakenByTensAndNotInterpolated) {
  clsMivSaato saato;
  const auto kertoimet = [&](double x, std::int32_t tapa, std::int32_t osuus) {
    saato.AsetaSovitteenKertoimet(x, tapa, osuus);
    return std::array{saato.ma2, saato.ma1, saato.ma0};
  };
  EXPECT_EQ(kertoimet(50, Kuristus1nop, 40), (std::array{-0.5415, 1.1685, 0.3854}));
  EXPECT_EQ(kertoimet(70, Kuristus2nop, 29), (std::array{0.0, 0.2136, 0.2917}));
  EXPECT_EQ(kertoimet(70.1, Kuristus2nop, 29), (std::array{-1.5, 2.73, -0.233}));
  EXPECT_EQ(kertoimet(71, Johtosiipi2nop, 30), (std::array{1.4756, -1.5103, 1.0332}));
  EXPECT_EQ(kertoimet(50, Taajuusmuuttaja, 9), kertoimet(50, Taajuusmuuttaja, -5));
  EXPECT_EQ(kertoimet(50, Taajuusmuuttaja, 250), (std::array{0.1509, 0.72, 0.1314}));
  EXPECT_EQ(kertoimet(50, 6, 10), (std::array{0.0, 0.0, 0.0}));
}

/// Every fit is that of a fan: its power at full flow is about 1, it takes less the less it blows, and the neighbouring
/// rows of the share of constant pressure differ little. A mistyped figure would stand out.
TEST_F(Puhaltimet, FitsAreSmooth) {
  const auto teho = [](double x, std::int32_t tapa, std::int32_t osuus) {
    const Sovite s = MivSovite(x, tapa, osuus).value();
    return s.ma2 * x * x / 10000 + s.ma1 * x / 100 + s.ma0;
  };
  for (std::int32_t tapa = Kuristus1nop; tapa <= Taajuusmuuttaja; ++tapa)
    for (std::int32_t osuus = 0; osuus <= 100; osuus += 10) {
      SCOPED_TRACE("control " + std::to_string(tapa) + ", share " + std::to_string(osuus));
      EXPECT_NEAR(teho(100, tapa, osuus), 1, 0.025);
      for (double x = 30; x <= 100; x += 2.5) {
        EXPECT_GT(teho(x, tapa, osuus), 0);
        if (x > 40) {
          EXPECT_GE(teho(x, tapa, osuus), teho(x - 2.5, tapa, osuus) - 0.01) << x;
        }
        if (osuus > 0) {
          EXPECT_NEAR(teho(x, tapa, osuus), teho(x, tapa, osuus - 10), 0.06) << x;
        }
      }
    }
}

TEST_F(Puhaltimet, IterationReturnsThePowerThatItWasGiven) {
  for (std::int32_t tapa = Kuristus1nop; tapa <= Taajuusmuuttaja; ++tapa)
    for (const std::int32_t voimansiirto : {0, 1, 2})
      for (const double virta : {100.0, 85.0, 65.0, 30.0})
        for (const double P1 : {0.3, 3.0, 30.0}) {
          clsMivSaato saato = Saato(tapa, 30, voimansiirto, P1, virta);
          EXPECT_NEAR(saato.MivTehontarve(virta), P1, 1e-6 * P1) << tapa << ' ' << voimansiirto << ' ' << virta;
        }
}

TEST_F(Puhaltimet, PowerOfVariableFlow) {
  const auto teho = [](clsMivSaato saato, double x) { return saato.MivTehontarve(x); };
  EXPECT_NEAR(teho(Saato(Taajuusmuuttaja, 10, 2, 10), 50), 2.145668379649364, kTarkkuus);
  EXPECT_NEAR(teho(Saato(Kuristus1nop, 0, 1, 4), 60), 3.523940575319877, kTarkkuus);
  EXPECT_NEAR(teho(Saato(Kuristus2nop, 20, 0, 4), 70), 2.478580827263416, kTarkkuus);
  EXPECT_NEAR(teho(Saato(Kuristus2nop, 20, 0, 4), 70.1), 3.7876476497240614, kTarkkuus) << "full speed";
  EXPECT_NEAR(teho(Saato(Johtosiipi2nop, 100, 1, 4, 80), 50), 2.989315222450681, kTarkkuus);
  EXPECT_NEAR(teho(Saato(Johtosiipi1nop, 0, 0, 4), 30), 1.4554750057018242, kTarkkuus);
  clsMivSaato siipikulma = Saato(Siipikulma, 50, 0, 2, 60);
  siipikulma.P3N = 5.5;
  EXPECT_NEAR(teho(siipikulma, 100), 3.0702974867926054, kTarkkuus) << "the motor is known";
  EXPECT_EQ(Viesteja(), 0u);
}

TEST_F(Puhaltimet, OutOfRangeIsToldAndGivesZero) {
  for (const double x : {29.9, 100.1}) EXPECT_EQ(Saato(5, 10, 0, 1).MivTehontarve(x), 0);
  EXPECT_EQ(Saato(5, 10, 0, 1, 20).MivTehontarve(50), 0);
  EXPECT_EQ(Viesteja(), 3u);
  EXPECT_EQ(viestit.Naytetyt()[2].teksti,
            "MIV-puhaltimen osatehon tulee olla välillä 30 - 100 %. Ole hyvä ja korjaa arvo!");
  EXPECT_EQ(Saato(5, 10, 0, 0).MivTehontarve(50), 0);
  EXPECT_EQ(Saato(6, 10, 0, 1).MivTehontarve(50), 0) << "an unknown control method";
  EXPECT_EQ(Viesteja(), 3u);
  EXPECT_EQ(Saato(5, 10, 9, 1).MivTehontarve(50), 0);
  EXPECT_EQ(Viesteja(), 4u) << "an unknown drive: error 1045, once";
  clsMivSaato moottori = Saato(1, 10, 0, 1);
  moottori.P3N = -1;
  EXPECT_EQ(moottori.MivTehontarve(80), 0) << "no error leaves the class";
}

TEST_F(Puhaltimet, PartPowerOfTwoSpeeds) {
  EXPECT_NEAR(Kaksinopeus(5, 0).KaksiNopPuhaltimenOsateho(50), 1.0325331621107765, kTarkkuus);
  EXPECT_NEAR(Kaksinopeus(5, 2).KaksiNopPuhaltimenOsateho(66), 2.2219625492806094, kTarkkuus);
  EXPECT_EQ(Kaksinopeus(0.05, 1).KaksiNopPuhaltimenOsateho(60), 0.05) << "at most the full power";
  EXPECT_EQ(Kaksinopeus(0, 0).KaksiNopPuhaltimenOsateho(50), 0);
  EXPECT_EQ(Viesteja(), 0u);
  for (const double x : {32.9, 66.1}) EXPECT_EQ(Kaksinopeus(5, 0).KaksiNopPuhaltimenOsateho(x), 0);
  EXPECT_EQ(Kaksinopeus(5, 7).KaksiNopPuhaltimenOsateho(50), 0);
  EXPECT_EQ(Viesteja(), 3u);
  EXPECT_EQ(Kaksinopeus(5, 7).Teho(100), 5) << "full speed needs no drive";
}

TEST_F(Puhaltimet, PowersOfAMachinesFans) {
  clsPuhaltimenSahkonKulutus puhaltimet;
  puhaltimet.TuloSahkoTeho11 = 10;
  puhaltimet.PoistoSahkoTeho11 = 5;
  puhaltimet.VakioPaineOsuusID = 1;
  puhaltimet.PuhaltimenSaatotapaID = Taajuusmuuttaja;
  puhaltimet.PuhaltimenVoimansiirtoTapaID = clsVoimasiirto::SuoraVeto;
  EXPECT_EQ(puhaltimet.TuloSahkoOminaisteho(), 0) << "no flow";
  puhaltimet.TuloIlmavirta11Teho = 4;
  puhaltimet.PoistoIlmavirta11Teho = 4;
  EXPECT_EQ(puhaltimet.TuloSahkoOminaisteho(), 2.5);
  EXPECT_EQ(puhaltimet.TuloSahkoOsaTeho(), 10) << "constant flow has no part power of its own";

  puhaltimet.JarjestelmaTyyppiID = PuhaltimenTeho::MuuttuvaIlmavirta;
  EXPECT_NEAR(puhaltimet.TuloSahkoOminaisteho(), 2.5, 1e-6);
  EXPECT_NEAR(puhaltimet.TuloSahkoOsaTeho(), 2.145668379649364, kTarkkuus);
  puhaltimet.Teho11Prosentti = 80;
  EXPECT_GT(puhaltimet.TuloSahkoOminaisteho(), 2.5) << "the power holds for 80 % of the flow";

  puhaltimet.JarjestelmaTyyppiID = PuhaltimenTeho::Kaksinopeus;
  puhaltimet.PuhaltimenVoimansiirtoTapaID = clsVoimasiirto::Kiilahihna;
  EXPECT_NEAR(puhaltimet.PoistoSahkoOsaTeho(), 1.0325331621107765, kTarkkuus);
}

}  // namespace
