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

void LueSaarivit(std::string_view polku, const std::function<void(const Saarivi&)>& kasittele) {
  Lukutiedosto tiedosto(polku);
  std::array<bool, Kuukausiarvot::kKuukausia + 1> luettu{};
  std::array<double, kKenttia> luvut{};
  for (int rivi = 0; rivi < Kuukausiarvot::kKuukausia; ++rivi) {
    if (!tiedosto.SeuraavaRivi()) tiedosto.Hylkaa("tiedosto loppuu kesken, kuukausirivejä pitää olla 12");
    tiedosto.Luvut(luvut);
    Saarivi saa{Kuukausi(luvut[0]), luvut[1], {}};
    if (!Kuukausiarvot::OnKuukausi(saa.kuukausi)) tiedosto.Hylkaa("kuukauden pitää olla kokonaisluku 1–12");
    if (luettu[saa.kuukausi]) tiedosto.Hylkaa("kuukausi " + std::to_string(saa.kuukausi) + " on jo luettu");
    luettu[saa.kuukausi] = true;
    for (std::size_t i = 0; i < std::size(kSarakkeet); ++i) {
      const double sateily = luvut[kEnsimmainenSateily + i];
      if (sateily < 0) tiedosto.Hylkaa("säteily ei voi olla negatiivinen");
      saa.sateily[Indeksi(kSarakkeet[i])] = sateily;
    }
    kasittele(saa);
  }
}

Saataulukko::Saataulukko(std::string_view polku) {
  LueSaarivit(polku, [this](const Saarivi& rivi) {
    for (std::size_t suunta = 0; suunta < kIlmansuuntia; ++suunta)
      sateily_[suunta](rivi.kuukausi) = rivi.sateily[suunta];
  });
}
