// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsKayntiAjat.h"

#include <array>
#include <limits>

#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsKayntiAjat::KayntiaikojenSyottotapaID>("KayntiaikojenSyottotapaID"),
    Arvo<&clsKayntiAjat::KayntiAikojenSyottoTapa>("KayntiAikojenSyottoTapa"),
    Arvo<&clsKayntiAjat::IvKoneenNimi>("IvKoneenNimi"),
};

constexpr std::array<const char*, 5> kVuosijaksot{"EkaNeljannes", "TokaNeljannes", "KolmasNeljannes", "NeljasNeljannes",
                                                  "KokoVuosi"};
constexpr double kPieninLto = 0.001;  // %

}  // namespace

const Luokka clsKayntiAjat::kLuokka{"clsKayntiAjat", kJasenet};

int clsKayntiAjat::MuunnaKuukausiJaksoksi(int kuukausi) noexcept {
  constexpr int kMaaliskuu = 2, kMarraskuu = 10, kKuukausiaJaksossa = 3;
  return kuukausi < kMaaliskuu || kuukausi > kMarraskuu ? 0 : (kuukausi - kMaaliskuu) / kKuukausiaJaksossa + 1;
}

Tunniste clsKayntiAjat::JaksonAvain(int rivi, int vuosijakso) {
  return std::to_string(rivi) + kVuosijaksot.at(static_cast<std::size_t>(vuosijakso));
}

void clsKayntiAjat::LuoJaksot(double Tsp, double dTPuhallin) try {
  Tyhjenna();
  for (std::int32_t vuosijakso = 0; vuosijakso <= clsKayntiAika::KokoVuosi; ++vuosijakso)
    for (int rivi = 1; rivi <= kJaksojaVuosijaksossa; ++rivi) {
      clsKayntiAika& jakso = Add(JaksonAvain(rivi, vuosijakso));
      jakso.Jakso = vuosijakso;
      jakso.Tsp = Tsp;
      jakso.dTPuhallin = dTPuhallin;
    }
} catch (...) {
  NostaVirhe("clsKayntiAjat:LuoJaksot Method");
}

/// Sum over the periods that count in the month.
template <class F>
double clsKayntiAjat::Summa(int kuukausi, std::int32_t syottotapa, F&& arvo) const {
  TarkistaKuukausi(kuukausi);
  const int vuosijakso = syottotapa == 0 ? clsKayntiAika::KokoVuosi : MuunnaKuukausiJaksoksi(kuukausi);
  double summa = 0;
  for (const clsKayntiAika& jakso : *this)
    if (jakso.Jakso == vuosijakso) summa += arvo(jakso);
  return summa;
}

double clsKayntiAjat::LammonTarvePerKuukausi(double q, int kuukausi) const try {
  return Summa(kuukausi, KayntiaikojenSyottotapaID,
               [=](const clsKayntiAika& jakso) { return jakso.KayntiJaksonLampo(q, kuukausi); });
} catch (...) {
  NostaVirhe("clsKayntiAjat:LammonTarvePerKuukausi Method");
}

double clsKayntiAjat::LammonTarvePerKuukausi(double q, int kuukausi, double lampotila) const try {
  return Summa(kuukausi, KayntiaikojenSyottotapaID,
               [=](const clsKayntiAika& jakso) { return jakso.KayntiJaksonLampo(q, kuukausi, lampotila); });
} catch (...) {
  NostaVirhe("clsKayntiAjat:LammonTarvePerKuukausi Method");
}

double clsKayntiAjat::LtoEnergiaPerKuukausi(double q, int kuukausi, double Tp, double LtoHyoty) const try {
  if (LtoHyoty <= kPieninLto) return 0;
  const int vuosijakso = MuunnaKuukausiJaksoksi(kuukausi);
  // The periods of a machine mostly have one set-point: the efficiency is computed anew only where it changes.
  double Tsp = std::numeric_limits<double>::quiet_NaN(), hyotysuhde = 0;
  const double summa = Summa(kuukausi, KayntiaikojenSyottotapaID, [&](const clsKayntiAika& jakso) {
    const double lampo = jakso.KayntiJaksonLampo(q, kuukausi);
    if (lampo == 0) return 0.0;
    if (jakso.Tsp != Tsp) {
      Tsp = jakso.Tsp;
      hyotysuhde = clsKayntiAika::LtoEnergiaHyotySuhde(Tsp, LtoHyoty, Tp, vuosijakso);
    }
    return lampo * hyotysuhde / 100;
  });
  return summa > 0 ? summa : 0;
} catch (...) {
  NostaVirhe("clsKayntiAjat:LtoEnergiaPerKuukausi Method");
}

double clsKayntiAjat::PuhallinSahkoPerKuukausi(PuhaltimenTeho& puhallin, int kuukausi) const try {
  return Summa(kuukausi, KayntiaikojenSyottotapaID, [&puhallin, kuukausi](const clsKayntiAika& jakso) {
    return jakso.KayntiJaksonPuhallinEnergia(puhallin, kuukausi);
  });
} catch (...) {
  NostaVirhe("clsKayntiAjat:PuhallinSahkoPerKuukausi Method");
}

double clsKayntiAjat::KayntiAikaPerKuukausi(int kuukausi, std::int32_t syottotapa, double ala, double yla) const try {
  return Summa(kuukausi, syottotapa, [=](const clsKayntiAika& jakso) {
    const double virta = jakso.TuloIlmavirtaProsentti;
    return ala <= virta && virta <= yla ? jakso.KuukaudenKayntiTunnit(kuukausi) : 0.0;
  });
} catch (...) {
  NostaVirhe("clsKayntiAjat:KayntiAikaPerKuukausi Method");
}
