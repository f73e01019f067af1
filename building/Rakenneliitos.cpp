// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Rakenneliitos.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "library/Rakennetyyppi.h"
#include "tekstit/lomakkeet_tilat.h"
#include "ui/Tekstivarasto.h"

namespace {

enum Sarake { kNimi, kTyyppi, kAla, kUarvo, kRajoittuu, kSuuntaus, kSarakkeita };
constexpr std::array<std::string_view, kSarakkeita> kOtsikot{"Nimi",   "Rakennetyyppi", "Pinta-ala",
                                                             "U-arvo", "Rajoittuu",     "Suuntaus"};

std::string_view Siistitty(std::string_view solu) {
  const auto alku = solu.find_first_not_of(' ');
  if (alku == solu.npos) return {};
  return solu.substr(alku, solu.find_last_not_of(' ') - alku + 1);
}

/// Column of each heading, or nothing.
using Sarakkeet = std::array<std::optional<std::size_t>, kSarakkeita>;
Sarakkeet EtsiOtsikot(const std::vector<std::string>& rivi) {
  Sarakkeet sarakkeet;
  for (std::size_t s = 0; s < rivi.size(); ++s) {
    const std::string_view otsikko = Siistitty(std::string_view(rivi[s]).substr(0, rivi[s].find('(')));
    for (std::size_t i = 0; i < kOtsikot.size(); ++i)
      if (SamaNimi(otsikko, kOtsikot[i])) sarakkeet[i] = s;
  }
  return sarakkeet;
}

struct Virheellinen : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Number of the row in a choice list; nothing for an empty cell.
std::optional<std::int32_t> Valinta(const std::vector<std::string>& valinnat, std::string_view solu) {
  if (solu.empty()) return std::nullopt;
  const auto it = std::ranges::find_if(valinnat, [&](const std::string& rivi) { return SamaNimi(rivi, solu); });
  if (it == valinnat.end()) throw Virheellinen(std::string(solu));
  return static_cast<std::int32_t>(it - valinnat.begin());
}

double EiNegatiivinen(std::string_view solu) {
  const auto luku = LueLukuTaiNolla(solu);
  if (!luku || *luku < 0) throw Virheellinen(std::string(solu));
  return *luku;
}

/// Reads the cells of a row by the choice lists of the dialog.
class Rivinlukija {
 public:
  Rivinlukija(const Sarakkeet& sarakkeet, std::optional<std::int32_t> oletus) : sarakkeet_(sarakkeet), oletus_(oletus) {
    tyypit_.erase(tyypit_.begin());  // "all"
  }

  LiitettyRakenne Lue(const std::vector<std::string>& rivi) const {
    const auto solu = [&](Sarake s) { return sarakkeet_[s] ? Siistitty(Solu(rivi, *sarakkeet_[s])) : ""; };
    return {.nimi = std::string(solu(kNimi)),
            .rakennetyyppi = Tyyppi(solu(kTyyppi)),
            .ala = EiNegatiivinen(solu(kAla)),
            .u_arvo = EiNegatiivinen(solu(kUarvo)),
            .rajoittuu = Valinta(rajoittumiset_, solu(kRajoittuu)),
            .suuntaus = Valinta(suuntaukset_, solu(kSuuntaus))};
  }

 private:
  std::int32_t Tyyppi(std::string_view solu) const {
    if (const auto sanasta = RakennetyyppiSanasta(solu)) return *sanasta;
    const auto tyyppi = solu.empty() ? oletus_ : Valinta(tyypit_, solu);
    if (!tyyppi) throw Virheellinen("");
    return *tyyppi;
  }

  Sarakkeet sarakkeet_;
  std::optional<std::int32_t> oletus_;
  std::vector<std::string> tyypit_ = Valintalista("frmRakenteet", "cmbRakennetyyppi");
  std::vector<std::string> rajoittumiset_ = Valintalista("frmRakenteet", "cmbTyyppi");
  std::vector<std::string> suuntaukset_ = Valintalista("frmRakenteet", "cmbSuuntaus");
};

}  // namespace

Rakenneliitos::Rakenneliitos(const Taulukko& rivit, std::optional<std::int32_t> oletus) {
  const Sarakkeet sarakkeet = rivit.empty() ? Sarakkeet() : EtsiOtsikot(rivit.front());
  if (std::ranges::none_of(sarakkeet, [](const auto& s) { return s.has_value(); })) {
    virhe = Teksti(tekstit::kLiitettavaIlmanOtsikkoa);
    return;
  }
  const Rivinlukija lukija(sarakkeet, oletus);
  std::size_t i = 1;
  try {
    for (; i < rivit.size(); ++i) rakenteet.push_back(lukija.Lue(rivit[i]));
  } catch (const Virheellinen& arvo) {
    rakenteet.clear();
    const std::string paikka = " " + std::to_string(i + 1) + ": ";
    virhe = *arvo.what() ? Teksti(tekstit::kLiitettavassaVirhe) + paikka + arvo.what()
                         : Teksti(tekstit::kLiitettavaIlmanTyyppia);
  }
}
