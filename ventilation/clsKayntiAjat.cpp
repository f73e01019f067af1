// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsKayntiAjat.h"

#include <algorithm>
#include <array>
#include <optional>

#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsKayntiAjat::KayntiaikojenSyottotapaID>("KayntiaikojenSyottotapaID"),
    Arvo<&clsKayntiAjat::KayntiAikojenSyottoTapa>("KayntiAikojenSyottoTapa"),
    Kopio<&clsKayntiAjat::IvKoneenNimi>("IvKoneenNimi"),
};

constexpr std::array<const char*, 5> kVuosijaksot{"EkaNeljannes", "TokaNeljannes", "KolmasNeljannes", "NeljasNeljannes",
                                                  "KokoVuosi"};
constexpr double kPieninLto = 0.001;  // %

/// The period's heat times the efficiency of recovery, which is that of the season in which the heat is needed.
Kuukausitaulu JaksonLto(const clsKayntiAika& jakso, double q, double Tp, double LtoHyoty, Lammitystarveluku S) {
  Kuukausitaulu lampo = jakso.KayntiJaksonLampo(q, jakso.OmaLampotila(), S);
  std::array<std::optional<double>, clsKayntiAika::KokoVuosi> hyotysuhteet;
  for (int kuukausi = 0; kuukausi < kKuukausia; ++kuukausi) {
    const auto m = static_cast<std::size_t>(kuukausi);
    if (lampo[m] == 0 || !jakso.KuuluuKuukauteen(kuukausi)) continue;
    const int vuosijakso = clsKayntiAjat::MuunnaKuukausiJaksoksi(kuukausi);
    auto& hyotysuhde = hyotysuhteet[static_cast<std::size_t>(vuosijakso)];
    if (!hyotysuhde) hyotysuhde = clsKayntiAika::LtoEnergiaHyotySuhde(jakso.Tsp, LtoHyoty, Tp, vuosijakso);
    lampo[m] = lampo[m] * *hyotysuhde / 100;
  }
  return lampo;
}

}  // namespace

const Luokka clsKayntiAjat::kLuokka{"clsKayntiAjat", kJasenet};

Tunniste clsKayntiAjat::JaksonAvain(int rivi, int vuosijakso) {
  return std::to_string(rivi) + kVuosijaksot.at(static_cast<std::size_t>(vuosijakso));
}

Kayntisumma& Kayntisumma::operator+=(const Kayntisumma& toinen) noexcept {
  riveja += toinen.riveja;
  tunnit += toinen.tunnit;
  virtatunnit += toinen.virtatunnit;
  return *this;
}

void clsKayntiAjat::LuoJaksot(double Tsp, double dTPuhallin) try {
  Tyhjenna();
  TaydennaJaksot(Tsp, dTPuhallin);
} catch (...) {
  NostaVirhe("clsKayntiAjat:LuoJaksot Method");
}

bool clsKayntiAjat::TaydennaJaksot(double Tsp, double dTPuhallin) try {
  const int ennen = Count();
  for (std::int32_t vuosijakso = 0; vuosijakso <= clsKayntiAika::KokoVuosi; ++vuosijakso)
    for (int rivi = 1; rivi <= kJaksojaVuosijaksossa; ++rivi) {
      const Tunniste avain = JaksonAvain(rivi, vuosijakso);
      if (Etsi(avain)) continue;
      clsKayntiAika& jakso = Add(avain);
      jakso.Jakso = vuosijakso;
      jakso.Tsp = Tsp;
      jakso.dTPuhallin = dTPuhallin;
    }
  return Count() > ennen;
} catch (...) {
  NostaVirhe("clsKayntiAjat:TaydennaJaksot Method");
}

Kayntisumma clsKayntiAjat::Vuosijaksolta(int vuosijakso) const try {
  Kayntisumma summa;
  for (const clsKayntiAika& jakso : *this) {
    if (jakso.Jakso != vuosijakso || !jakso.Kaytossa()) continue;
    const double tunnit = jakso.VuodenKayntiTunnit();
    summa += {1, tunnit, tunnit * jakso.TuloIlmavirtaProsentti};
  }
  return summa;
} catch (...) {
  NostaVirhe("clsKayntiAjat:Vuosijaksolta Method");
}

void clsKayntiAjat::KayttoLiittyma_KopioiMuihinKlikattu() try {
  for (int rivi = 1; rivi <= kJaksojaVuosijaksossa; ++rivi) {
    const clsKayntiAika* lahde = Etsi(JaksonAvain(rivi, clsKayntiAika::EkaNeljannes));
    for (int vuosijakso = clsKayntiAika::TokaNeljannes; vuosijakso <= clsKayntiAika::NeljasNeljannes; ++vuosijakso)
      if (clsKayntiAika* kohde = Etsi(JaksonAvain(rivi, vuosijakso)); lahde && kohde) kohde->KopioiKaynti(*lahde);
  }
} catch (...) {
  NostaVirhe("clsKayntiAjat:KayttoLiittyma_KopioiMuihinKlikattu Method");
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

/// Sums by month over the periods that count, each in the months of its season. `arvot` gives a period's months.
template <class F>
Kuukausitaulu clsKayntiAjat::Kuukausisummat(F&& arvot) const {
  Kuukausitaulu summat{};
  for (const clsKayntiAika& jakso : *this) {
    if ((jakso.Jakso == clsKayntiAika::KokoVuosi) != Vuosittainen()) continue;
    const Kuukausitaulu jaksonArvot = arvot(jakso);
    for (int m = 0; m < kKuukausia; ++m)
      if (jakso.KuuluuKuukauteen(m)) summat[static_cast<std::size_t>(m)] += jaksonArvot[static_cast<std::size_t>(m)];
  }
  return summat;
}

Kuukausitaulu clsKayntiAjat::LammonTarve(double q, Lammitystarveluku S) const try {
  return Kuukausisummat(
      [=](const clsKayntiAika& jakso) { return jakso.KayntiJaksonLampo(q, jakso.OmaLampotila(), S); });
} catch (...) {
  NostaVirhe("clsKayntiAjat:LammonTarve Method");
}

Kuukausitaulu clsKayntiAjat::LammonTarveTilaan(double q, double Tsisa, Lammitystarveluku S) const try {
  return Kuukausisummat([=](const clsKayntiAika& jakso) { return jakso.KayntiJaksonLampo(q, {Tsisa, true}, S); });
} catch (...) {
  NostaVirhe("clsKayntiAjat:LammonTarveTilaan Method");
}

double clsKayntiAjat::LammonTarvePerKuukausi(double q, int kuukausi, Lammitystarveluku S) const try {
  return LammonTarve(q, S)[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
} catch (...) {
  NostaVirhe("clsKayntiAjat:LammonTarvePerKuukausi Method");
}

Kuukausitaulu clsKayntiAjat::LtoEnergia(double q, double Tp, double LtoHyoty, Lammitystarveluku S) const try {
  if (LtoHyoty <= kPieninLto) return {};
  Kuukausitaulu summat =
      Kuukausisummat([=](const clsKayntiAika& jakso) { return JaksonLto(jakso, q, Tp, LtoHyoty, S); });
  for (double& summa : summat) summa = std::max(summa, 0.0);
  return summat;
} catch (...) {
  NostaVirhe("clsKayntiAjat:LtoEnergia Method");
}

double clsKayntiAjat::LtoEnergiaPerKuukausi(double q, int kuukausi, double Tp, double LtoHyoty,
                                            Lammitystarveluku S) const try {
  return LtoEnergia(q, Tp, LtoHyoty, S)[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
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
