// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/LammitysTaulukko.h"

#include <array>

#include "kernel/Laskenta.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::size_t kTunteja = 24;
constexpr int kMinuuttejaTunnissa = 60;
constexpr double kAlinLampotila = 15, kYlinLampotila = 30;  // °C
constexpr double kVertailunLammitystarveluku = 4444;        // °C d

using Taulukko = std::array<std::array<std::int32_t, kTunteja>, kKuukausia>;

// The heating table of the program: kWh in a month for 1 m³/s that runs in one hour of each day, in a climate of 4444
// degree days. A row is a month, January first; a column an hour of the day, that from midnight to one o'clock first.
constexpr Taulukko kLammitysTaulukko15{{
    {907, 910, 908, 908, 908, 905, 898, 895, 883, 877, 867, 857,
     846, 838, 839, 842, 843, 850, 855, 858, 867, 876, 883, 889},
    {856, 861, 867, 876, 886, 887, 889, 893, 877, 857, 839, 813,
     785, 758, 759, 763, 766, 782, 801, 818, 824, 829, 835, 839},
    {639, 641, 646, 652, 658, 658, 655, 655, 640, 628, 613, 599,
     588, 575, 573, 572, 571, 585, 599, 612, 622, 629, 636, 639},
    {552, 561, 570, 580, 585, 563, 543, 516, 488, 453, 423, 406,
     388, 371, 366, 366, 364, 392, 423, 454, 475, 502, 524, 536},
    {289, 309, 317, 324, 334, 291, 248, 209, 173, 142, 117, 112,
     107, 102, 102, 103, 103, 116, 136, 156, 182, 209, 240, 258},
    {105, 129, 130, 129, 129, 90, 61, 39, 28, 20, 17, 15, 13, 12, 10, 11, 11, 13, 14, 16, 25, 40, 67, 89},
    {101, 112, 114, 112, 112, 85, 59, 38, 22, 11, 7, 6, 6, 7, 8, 10, 13, 16, 16, 21, 31, 50, 69, 82},
    {65, 77, 79, 83, 89, 60, 43, 28, 12, 3, 0, 0, 0, 0, 0, 0, 0, 1, 3, 11, 25, 39, 57, 65},
    {261, 273, 280, 290, 302, 277, 255, 231, 193, 155, 118, 108,
     95,  85,  91,  92,  100, 130, 159, 191, 208, 225, 238, 255},
    {446, 449, 454, 457, 462, 458, 454, 453, 424, 397, 365, 357,
     342, 331, 340, 349, 357, 379, 396, 416, 427, 441, 452, 455},
    {500, 498, 498, 497, 496, 499, 504, 506, 499, 494, 487, 480,
     474, 464, 467, 469, 476, 481, 485, 492, 493, 494, 497, 496},
    {716, 714, 711, 708, 703, 703, 702, 701, 701, 694, 692, 686,
     674, 667, 679, 691, 700, 703, 707, 711, 712, 714, 714, 714},
}};
constexpr Taulukko kLammitysTaulukko30{{
    {1465, 1468, 1466, 1466, 1466, 1463, 1456, 1453, 1441, 1435, 1425, 1415,
     1404, 1396, 1397, 1400, 1401, 1408, 1413, 1416, 1425, 1434, 1441, 1447},
    {1360, 1365, 1371, 1380, 1390, 1391, 1393, 1397, 1381, 1361, 1343, 1317,
     1289, 1262, 1263, 1267, 1270, 1286, 1305, 1322, 1328, 1333, 1339, 1343},
    {1197, 1199, 1204, 1210, 1216, 1216, 1213, 1213, 1198, 1186, 1171, 1157,
     1146, 1133, 1131, 1130, 1129, 1143, 1157, 1170, 1180, 1187, 1194, 1197},
    {1092, 1101, 1110, 1120, 1125, 1103, 1083, 1056, 1028, 993,  963,  946,
     928,  911,  906,  906,  904,  932,  963,  994,  1015, 1042, 1064, 1076},
    {846, 867, 875, 882, 892, 849, 805, 760, 715, 671, 626, 605,
     585, 563, 563, 565, 564, 597, 632, 667, 710, 748, 789, 811},
    {633, 664, 666, 666, 666, 623, 580, 535, 500, 463, 427, 408,
     389, 369, 368, 372, 371, 391, 411, 432, 479, 531, 582, 614},
    {655, 667, 668, 667, 667, 638, 608, 579, 555, 531, 504, 499,
     488, 483, 487, 493, 497, 513, 530, 545, 569, 598, 620, 635},
    {611, 626, 629, 633, 638, 603, 572, 540, 506, 470, 436, 423,
     411, 399, 405, 411, 416, 445, 476, 504, 537, 567, 599, 611},
    {801, 813, 820, 830, 842, 817, 795, 771, 733, 695, 658, 648,
     634, 621, 628, 629, 636, 670, 699, 731, 748, 765, 778, 795},
    {1004, 1007, 1012, 1015, 1020, 1016, 1012, 1011, 982, 955, 923,  915,
     900,  889,  898,  907,  915,  937,  954,  974,  985, 999, 1010, 1013},
    {1040, 1038, 1038, 1037, 1036, 1039, 1044, 1046, 1039, 1034, 1027, 1020,
     1014, 1004, 1007, 1009, 1016, 1021, 1025, 1032, 1033, 1034, 1037, 1036},
    {1274, 1272, 1269, 1266, 1261, 1261, 1260, 1259, 1259, 1252, 1250, 1244,
     1232, 1225, 1237, 1249, 1258, 1261, 1265, 1269, 1270, 1272, 1272, 1272},
}};

using Kuukausiluvut = std::array<std::int32_t, kKuukausia>;

/// A table with its sums from midnight to each full hour, so that a running time costs two look-ups. The months of an
/// hour stand side by side: they are always computed together.
class Kertymataulukko {
 public:
  constexpr explicit Kertymataulukko(const Taulukko& taulukko) {
    for (std::size_t h = 0; h < kTunteja; ++h)
      for (std::size_t k = 0; k < kKuukausia; ++k) {
        tunnit_[h][k] = taulukko[k][h];
        kertymat_[h + 1][k] = kertymat_[h][k] + taulukko[k][h];
      }
  }
  constexpr std::int32_t Tunti(std::size_t kuukausi, std::size_t tunti) const { return tunnit_[tunti][kuukausi]; }
  /// Sixtieths of the table's unit from one time of day to the other, over midnight when it isn't later: exact.
  Kuukausiluvut Vali(Kellonaika alkaa, Kellonaika paattyy) const {
    const auto yonYli = paattyy.minuutit > alkaa.minuutit ? 0 : kMinuuttejaTunnissa;
    const auto [a, aMin] = Tunti(alkaa);
    const auto [p, pMin] = Tunti(paattyy);
    Kuukausiluvut vali;
    for (std::size_t k = 0; k < kKuukausia; ++k)
      vali[k] = kMinuuttejaTunnissa * (kertymat_[p][k] - kertymat_[a][k]) + pMin * tunnit_[p][k] -
                aMin * tunnit_[a][k] + yonYli * kertymat_.back()[k];
    return vali;
  }

 private:
  static constexpr std::pair<std::size_t, std::int32_t> Tunti(Kellonaika aika) {
    return {static_cast<std::size_t>(aika.minuutit / kMinuuttejaTunnissa), aika.minuutit % kMinuuttejaTunnissa};
  }

  std::array<Kuukausiluvut, kTunteja> tunnit_{};
  std::array<Kuukausiluvut, kTunteja + 1> kertymat_{};
};

constexpr Kertymataulukko k15{kLammitysTaulukko15};
constexpr Kertymataulukko k30{kLammitysTaulukko30};

/// The table value at T, linear between the two set-points.
double Lampotilassa(double arvo15, double arvo30, double T) {
  return (arvo30 - arvo15) * ((T - kAlinLampotila) / (kYlinLampotila - kAlinLampotila)) + arvo15;
}

/// Shows the error of the first condition that fails.
bool Kelpaa(bool kuukausi, bool tunti, double T) {
  if (!OnLammitystaulukonLampotila(T)) return NaytaVirhe(virheet::kTuloilmanLampotilaVaara), false;
  if (!tunti) return NaytaVirhe(virheet::kTuntiVaara), false;
  if (!kuukausi) return NaytaVirhe(virheet::kKuukausiVaara), false;
  return true;
}

bool OnVuorokaudessa(Kellonaika aika) {
  return aika.minuutit >= 0 && aika.minuutit < static_cast<int>(kTunteja) * kMinuuttejaTunnissa;
}

}  // namespace

bool OnLammitystaulukonLampotila(double T) { return T >= kAlinLampotila && T <= kYlinLampotila; }

double LammitysKerroin(int kk, int h, double T, double q, double S) {
  if (!Kelpaa(kk >= 1 && kk <= kKuukausia, h >= 1 && h <= static_cast<int>(kTunteja), T)) return 0;
  const auto k = static_cast<std::size_t>(kk - 1), tunti = static_cast<std::size_t>(h - 1);
  return Lampotilassa(k15.Tunti(k, tunti), k30.Tunti(k, tunti), T) * q * S / kVertailunLammitystarveluku;
}

Kuukausitaulu LammitysKertoimet(Kellonaika alkaa, Kellonaika paattyy, double T, double q, double S) {
  Kuukausitaulu kertoimet{};
  if (!Kelpaa(true, OnVuorokaudessa(alkaa) && OnVuorokaudessa(paattyy), T)) return kertoimet;
  const Kuukausiluvut A = k15.Vali(alkaa, paattyy), B = k30.Vali(alkaa, paattyy);
  const double virta = q * S / kVertailunLammitystarveluku / kMinuuttejaTunnissa;
  for (std::size_t k = 0; k < kKuukausia; ++k) kertoimet[k] = Lampotilassa(A[k], B[k], T) * virta;
  return kertoimet;
}
