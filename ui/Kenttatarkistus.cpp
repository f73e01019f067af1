// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Kenttatarkistus.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "kernel/Kellonajat.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::uint32_t kViestivaliMs = 1000;

std::uint32_t OikeaKello() {
  const auto nyt = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(nyt).count());
}

std::uint32_t (*kello_)() = OikeaKello;
std::optional<std::uint32_t> viimeViesti_;

struct Tarkistus {
  std::string_view tyyppi, alaraja, ylaraja;
};

/// Cuts the text up to the next comma off `loput`.
std::string_view SeuraavaOsa(std::string_view& loput) {
  const auto pilkku = loput.find(',');
  const std::string_view osa = loput.substr(0, pilkku);
  loput.remove_prefix(pilkku == std::string_view::npos ? loput.size() : pilkku + 1);
  return osa;
}

Tarkistus LueTag(std::string_view tag) {
  SeuraavaOsa(tag);  // id of the tool tip
  Tarkistus tarkistus;
  for (std::string_view* osa : {&tarkistus.tyyppi, &tarkistus.alaraja, &tarkistus.ylaraja}) *osa = SeuraavaOsa(tag);
  return tarkistus;
}

std::string RajaTekstina(std::string_view raja) {
  std::string teksti(raja);
  std::ranges::replace(teksti, '.', ',');
  return teksti;
}

std::string RajatTekstina(const Tarkistus& t) {
  if (t.ylaraja.empty()) return " >= " + RajaTekstina(t.alaraja);
  if (t.alaraja.empty()) return " <= " + RajaTekstina(t.ylaraja);
  return " " + RajaTekstina(t.alaraja) + " - " + RajaTekstina(t.ylaraja);
}

void NaytaHarvakseltaan(int koodi, const std::string& lisateksti) {
  const std::uint32_t nyt = kello_();
  const bool liianPian = viimeViesti_ && nyt >= *viimeViesti_ && nyt - *viimeViesti_ <= kViestivaliMs;
  if (liianPian) return;
  viimeViesti_ = nyt;
  NaytaVirhe(koodi, lisateksti);
}

bool RajoissaTaiIlmoitus(const Tarkistus& t, double arvo) {
  const auto ala = LueLuku(t.alaraja), yla = LueLuku(t.ylaraja);
  if ((!ala || arvo >= *ala) && (!yla || arvo <= *yla)) return true;
  NaytaHarvakseltaan(virheet::kRajojenUlkopuolella, RajatTekstina(t));
  return false;
}

/// Takes the person to a field whose text doesn't do.
bool Hylkaa(Ohjain& kentta, bool valitseTeksti) {
  kentta.Kohdista();
  if (valitseTeksti) kentta.ValitseTeksti();
  return false;
}

bool KelpaaLukuna(Ohjain& kentta, const Tarkistus& t) {
  const auto arvo = LueLuku(kentta.Teksti());
  if (arvo && RajoissaTaiIlmoitus(t, *arvo)) return true;
  if (!arvo) NaytaHarvakseltaan(virheet::kEiLuku, {});
  return Hylkaa(kentta, !arvo);
}

bool KelpaaKellonaikana(Ohjain& kentta) {
  if (LueKellonaika(kentta.Teksti())) return true;
  NaytaHarvakseltaan(virheet::kEiKellonaika, {});
  return Hylkaa(kentta, true);
}

bool Kelpaa(Ohjain& kentta) {
  const Tarkistus t = LueTag(kentta.Tag());
  if (SamaNimi(t.tyyppi, "N")) return KelpaaLukuna(kentta, t);
  return !SamaNimi(t.tyyppi, "K") || KelpaaKellonaikana(kentta);
}

}  // namespace

bool TarkistaLukukentat(const Lomake& lomake) {
  return std::ranges::all_of(lomake.Ohjaimet(), [](const auto& ohjain) {
    const bool katsotaan = ohjain->Tyyppi() == Ohjaintyyppi::TextBox && ohjain->Nakyva() && ohjain->Kaytossa();
    return !katsotaan || Kelpaa(*ohjain);
  });
}

void AsetaTarkistuksenKello(std::uint32_t (*kello)()) {
  kello_ = kello ? kello : OikeaKello;
  viimeViesti_.reset();
}
