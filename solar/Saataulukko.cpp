// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Saataulukko.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "solar/Lukutiedosto.h"

namespace {

constexpr std::size_t kKenttia = 7;
constexpr std::size_t kEnsimmainenSateily = 2;  // after the month and its temperature
constexpr Ilmansuunta kSarakkeet[] = {Ilmansuunta::Vaaka, Ilmansuunta::Etela, Ilmansuunta::Ita, Ilmansuunta::Lansi,
                                      Ilmansuunta::Pohjoinen};

/// The month of a number read from the file; 0, no month, if it isn't a whole number.
int Kuukausi(double luku) {
  const double rajattu = std::clamp(luku, 0.0, 100.0);
  return rajattu == std::floor(rajattu) ? static_cast<int>(rajattu) : 0;
}

}  // namespace

Saataulukko::Saataulukko(std::string_view polku) {
  Lukutiedosto tiedosto(polku);
  std::array<bool, Kuukausiarvot::kKuukausia + 1> luettu{};
  std::array<double, kKenttia> luvut{};
  for (int rivi = 0; rivi < Kuukausiarvot::kKuukausia; ++rivi) {
    if (!tiedosto.SeuraavaRivi()) tiedosto.Hylkaa("tiedosto loppuu kesken, kuukausirivejä pitää olla 12");
    tiedosto.Luvut(luvut);
    const int kuukausi = Kuukausi(luvut[0]);
    if (!Kuukausiarvot::OnKuukausi(kuukausi)) tiedosto.Hylkaa("kuukauden pitää olla kokonaisluku 1–12");
    if (luettu[kuukausi]) tiedosto.Hylkaa("kuukausi " + std::to_string(kuukausi) + " on jo luettu");
    luettu[kuukausi] = true;
    for (std::size_t i = 0; i < std::size(kSarakkeet); ++i) {
      const double sateily = luvut[kEnsimmainenSateily + i];
      if (sateily < 0) tiedosto.Hylkaa("säteily ei voi olla negatiivinen");
      sateily_[Indeksi(kSarakkeet[i])](kuukausi) = sateily;
    }
  }
}
