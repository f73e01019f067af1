// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsKayntiAika.h"

#include <algorithm>

#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ventilation/LammitysTaulukko.h"
#include "ventilation/PuhaltimenTeho.h"
#include "ventilation/Ulkolampotilat.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsKayntiAika::Jakso>("Jakso"),
    Arvo<&clsKayntiAika::KayntiJaksojenLkm>("KayntiJaksojenLkm", Suure("1/vko").Rajat(0).Tavallisesti(0, 28)),
    Arvo<&clsKayntiAika::Alkaa>("Alkaa"),
    Arvo<&clsKayntiAika::Paattyy>("Paattyy"),
    Arvo<&clsKayntiAika::TuloIlmavirtaProsentti>("TuloIlmavirtaProsentti", Suure("%").Rajat(0).Tavallisesti(0, 100)),
    Arvo<&clsKayntiAika::Tsp>("Tsp", Suure("°C").Rajat(-50, 60).Tavallisesti(15, 30)),
    Arvo<&clsKayntiAika::dTPuhallin>("dTPuhallin", Suure("K").Rajat(0, 30).Tavallisesti(0, 5)),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Lukutulos<&clsKayntiAika::KayntiTunnit>("KayntiTunnit", tekstit::kKaynninPituus, "h"),
};

constexpr int kMinuuttejaVuorokaudessa = 1440;
constexpr double kMinuuttejaTunnissa = 60, kTuntejaVuorokaudessa = 24, kTuntejaViikossa = 168, kPaiviaViikossa = 7;
constexpr double kKesanLtoRaja = 5;  // %

/// Error 1015 with its cause: which temperature, and what the fan leaves of it.
void KerroLampotilasta(clsKayntiAika::Kohdelampotila lampotila, double lampeneminen) {
  NaytaVirhe(virheet::kTuloilmanLampotilaVaara,
             Teksti(lampotila.tilan ? tekstit::kKoneenTilanLampotila : tekstit::kKoneenTuloilma) + " " +
                 Muotoile(lampotila.C, "0.0") + " °C, " + Teksti(tekstit::kKoneenLampeneminen) + " " +
                 Muotoile(lampeneminen, "0.0") + " °C");
}

}  // namespace

const Luokka clsKayntiAika::kLuokka{"clsKayntiAika", kJasenet, kTulokset};

double clsKayntiAika::KayntiTunnit() const {
  int minuutit = Paattyy.minuutit - Alkaa.minuutit;
  if (minuutit <= 0) minuutit += kMinuuttejaVuorokaudessa;
  if (minuutit < 0) return Ilmoita("Yksittäinen käyntiaikaero pienempi kuin nolla!"), 0;
  if (minuutit > kMinuuttejaVuorokaudessa) return Ilmoita("Yksittäinen käyntiaikaero suurempi kuin 1 vrk!"), 0;
  return minuutit / kMinuuttejaTunnissa;
}

double clsKayntiAika::KuukaudenKayntiTunnit(int kuukausi) const try {
  const int paivia = kPaivatKuukaudessa[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
  return paivia * kTuntejaVuorokaudessa * KayntiJaksojenLkm * KayntiTunnit() / kTuntejaViikossa;
} catch (...) {
  NostaVirhe("clsKayntiAika:KuukaudenKayntiTunnit Method");
}

double clsKayntiAika::VuodenKayntiTunnit() const try {
  double summa = 0;
  for (int kuukausi = 0; kuukausi < kKuukausia; ++kuukausi)
    if (KuuluuKuukauteen(kuukausi)) summa += KuukaudenKayntiTunnit(kuukausi);
  return summa;
} catch (...) {
  NostaVirhe("clsKayntiAika:VuodenKayntiTunnit Method");
}

bool clsKayntiAika::LampotilatTaulukossa() const {
  return OnLammitystaulukonLampotila(Tsp) && OnLammitystaulukonLampotila(Tsp - dTPuhallin);
}

void clsKayntiAika::KopioiKaynti(const clsKayntiAika& lahde) {
  KayntiJaksojenLkm = lahde.KayntiJaksojenLkm;
  Alkaa = lahde.Alkaa;
  Paattyy = lahde.Paattyy;
  TuloIlmavirtaProsentti = lahde.TuloIlmavirtaProsentti;
  Tsp = lahde.Tsp;
  dTPuhallin = lahde.dTPuhallin;
}

Kuukausitaulu clsKayntiAika::KayntiJaksonLampo(double q, Kohdelampotila lampotila, Lammitystarveluku S) const try {
  if (TuloIlmavirtaProsentti <= 0 || KayntiJaksojenLkm == 0) return {};
  const double T = lampotila.C - dTPuhallin;
  if (!OnLammitystaulukonLampotila(T)) return KerroLampotilasta(lampotila, dTPuhallin), Kuukausitaulu{};
  const double virta = TuloIlmavirtaProsentti * q / 100;
  return LammitysKertoimet(Alkaa, Paattyy, T, virta * KayntiJaksojenLkm / kPaiviaViikossa, S.Kd);
} catch (...) {
  Ilmoita("Yksittäisen käyntiajan. Lämpönergialaskennassa tuli virhe!", {}, Vakavuus::Virhe);
  return {};
}

double clsKayntiAika::KayntiJaksonLampo(double q, int kuukausi, Lammitystarveluku S) const {
  return KayntiJaksonLampo(q, OmaLampotila(), S)[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
}

double clsKayntiAika::LtoEnergiaHyotySuhde(double Tsp, double LtoHyoty, double Tp, int jakso) try {
  if (!OnLammitystaulukonLampotila(Tsp)) return KerroLampotilasta({Tsp}, 0), 0;
  if (jakso == KolmasNeljannes) return LtoHyoty > kKesanLtoRaja ? 100 : 0;
  const Pysyvyys ulkoilma = Ulkolampotilat(jakso);
  if (ulkoilma.tunnit.empty()) return NaytaVirhe(virheet::kJaksoTuntematon), 0;
  double tarve = 0, talteen = 0;
  int T = ulkoilma.alin;
  for (const double tunnit : ulkoilma.tunnit) {
    const double d = std::max(0.0, (Tsp - T) * tunnit);
    tarve += d;
    talteen += std::min((Tp - T) * LtoHyoty / 100 * tunnit, d);
    ++T;
  }
  return Jaa(talteen, tarve) * 100;
} catch (...) {
  NostaVirhe("clsKayntiAika:LtoEnergiaHyotySuhde Method");
}

double clsKayntiAika::KayntiJaksonPuhallinEnergia(PuhaltimenTeho& puhallin, int kuukausi) const try {
  if (TuloIlmavirtaProsentti <= 0 || KayntiJaksojenLkm <= 0) return 0;
  return puhallin.Teho(TuloIlmavirtaProsentti) * KuukaudenKayntiTunnit(kuukausi);
} catch (...) {
  NostaVirhe("clsKayntiAika:KayntiJaksonPuhallinEnergia Method");
}
