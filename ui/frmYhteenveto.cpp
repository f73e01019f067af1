// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmYhteenveto.h"

#include <array>
#include <cmath>
#include <numeric>

#include "kernel/Luvut.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_yhteenveto.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmJakaumaGraafi.h"

namespace {

constexpr const char* kSumma = "# ### ##0.00";
constexpr const char* kKaavionSumma = "# ### ##0";

/// Results of heat, electricity and water that are added up, and the field of their sum.
struct Summa {
  const char* summa;
  std::array<const char*, 3> osat;
};
constexpr Summa kKustannus{"SummaKustannus", {"YhtLammitysenergiaKustannus", "YhtSahkoKustannus", "YhtVesiKustannus"}};
constexpr Summa kPaasto{"SummaCO2Paasto", {"YhtLammitysenergiaCO2paasto", "YhtSahkoCO2Paasto", "YhtVesiCO2Paasto"}};
constexpr Summa kSummat[] = {
    kKustannus,
    {"SummaOminaiskustannus1",
     {"TunLammitysenergiaOminaiskustannus1", "TunSahkoenergiaOminaiskustannus1", "TunVesiOminaiskustannus1"}},
    {"SummaOminaiskustannus2",
     {"TunLammitysenergiaOminaiskustannus2", "TunSahkoenergiaOminaiskustannus2", "TunVesiOminaiskustannus2"}},
    kPaasto,
    {"SummaOminaisCO2Paasto1", {"TunLammitysenergiaCO2Paasto1", "TunSahkoenergiaCO2Paasto1", "TunVesiCO2Paasto1"}},
    {"SummaOminaisCO2Paasto2", {"TunLammitysenergiaCO2Paasto2", "TunSahkoenergiaCO2Paasto2", "TunVesiCO2Paasto2"}},
    {"SummaLaskettuKustannus", {"LaskettuLammitysenergiaKustannus", "LaskettuSahkoKustannus", "LaskettuVesiKustannus"}},
    {"SummaLaskettuCO2Paasto", {"LaskettuLammitysenergiaCO2Paasto", "LaskettuSahkoCO2Paasto", "LaskettuVesiCO2Paasto"}},
};

/// The shown numbers, an empty field as 0; one that can't be computed isn't a number.
std::vector<double> Osat(const frmYhteenveto& lomake, const Summa& summa) {
  std::vector<double> osat;
  for (const char* osa : summa.osat) osat.push_back(LueLukuTaiNolla(lomake.Kentta(osa).Teksti()).value_or(NAN));
  return osat;
}

double Yhteensa(const std::vector<double>& osat) { return std::accumulate(osat.begin(), osat.end(), 0.0); }

/// The pie of the three and their sum; `virhe` is told when they can't be read.
void Piirra(const frmYhteenveto& lomake, const Summa& jaettava, const MSChart& kaavio, const TextBox& summa,
            Kaaviotiedot tiedot, Tekstinumero virhe) {
  std::vector<double> osat = Osat(lomake, jaettava);
  const double yhteensa = Yhteensa(osat);
  summa.Luku(yhteensa, kKaavionSumma);
  if (std::isfinite(yhteensa)) {
    for (const Tekstinumero nimi : tekstit::kJakaumanOsat) tiedot.nimet.push_back(Teksti(nimi));
    tiedot.arvot = std::move(osat);
  } else {
    Ilmoita(Teksti(virhe), {}, Vakavuus::Varoitus);
  }
  kaavio.Kaavio(std::move(tiedot));
}

void NaytaSuurena(const MSChart& kaavio) {
  const Kaaviotiedot& tiedot = kaavio.Kaavio();
  frmJakaumaGraafi().NaytaJakauma(tiedot.otsikko, tiedot.nimet, tiedot.arvot, tiedot.yksikko);
}

}  // namespace

frmYhteenveto::frmYhteenveto() : Lomake("frmYhteenveto") {
  cmdKustannuskaavio.KunKlikataan([this] { NaytaSuurena(chtKustannukset); });
  cmdPaastokaavio.KunKlikataan([this] { NaytaSuurena(chtPaastot); });
  cmdOk.Nostaa(OkKlikattu);
}

void frmYhteenveto::Laske() {
  LaskeKustannuksetJaPiirra(chtKustannukset);
  LaskePaastotJaPiirra(chtPaastot);
  LaskeYhteenvedonSumma();
  cmdKustannuskaavio.Kaytossa(!chtKustannukset.Kaavio().arvot.empty());
  cmdPaastokaavio.Kaytossa(!chtPaastot.Kaavio().arvot.empty());
}

void frmYhteenveto::LaskeYhteenvedonSumma() const {
  for (const Summa& summa : kSummat) Kentta(summa.summa).Luku(Yhteensa(Osat(*this, summa)), kSumma);
}

void frmYhteenveto::LaskeKustannuksetJaPiirra(const MSChart& kaavio) const {
  Piirra(*this, kKustannus, kaavio, txtKaavionKustannus,
         {.otsikko = Teksti(tekstit::kKustannustenJakauma), .nimet = {}, .yksikko = Rahayksikko + "/a"},
         tekstit::kKustannuksiaEiVoiLaskea);
}

void frmYhteenveto::LaskePaastotJaPiirra(const MSChart& kaavio) const {
  Piirra(*this, kPaasto, kaavio, txtKaavionPaasto,
         {.otsikko = Teksti(tekstit::kPaastojenJakauma), .nimet = {}, .yksikko = "t/a"}, tekstit::kPaastojaEiVoiLaskea);
}
