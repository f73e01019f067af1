// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Asetusavaimet.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

#include "kernel/Hakemistot.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"

namespace {

constexpr double kMiljoona = 1000000.0;

bool OnOlemassa(const std::string& tiedosto) {
  std::error_code virhe;
  return std::filesystem::exists(tiedosto, virhe);
}

double LueTaiOletus(Avain avain) {
  return LueLuku(HaeAsetus(avain)).value_or(LueLukuTaiNolla(AsetuksenRivi(avain).oletus).value_or(0));
}

}  // namespace

std::string OletusAsetus(Avain avain) {
  const auto& rivi = AsetuksenRivi(avain);
  return (rivi.laji == AsetusLaji::DatanTiedosto ? AppPath() : "") + std::string(rivi.oletus);
}

std::string HaeAsetus(Avain avain) {
  const auto& rivi = AsetuksenRivi(avain);
  const std::string oletus = OletusAsetus(avain);
  std::string arvo = HaeAsetus(rivi.osio, rivi.avain, oletus);
  return rivi.laji == AsetusLaji::DatanTiedosto && !OnOlemassa(arvo) ? Aineistotiedosto(rivi.oletus) : arvo;
}

void TallennaAsetus(Avain avain, std::string_view arvo) {
  TallennaAsetus(AsetuksenRivi(avain).osio, AsetuksenRivi(avain).avain, arvo);
}

Asetus AsetuksenArvo(Avain avain, std::string arvo) {
  const auto& rivi = AsetuksenRivi(avain);
  return {std::string(rivi.osio), std::string(rivi.avain), std::move(arvo)};
}

double HaeMiljoonasosat(Avain avain) { return LueTaiOletus(avain) / kMiljoona; }

bool HaeTotuus(Avain avain) {
  constexpr std::array<std::string_view, 4> kTosi = {"-1", "1", "True", "Tosi"};
  const std::string arvo = HaeAsetus(avain);
  return std::any_of(kTosi.begin(), kTosi.end(), [&arvo](std::string_view tosi) { return SamaNimi(arvo, tosi); });
}

std::int32_t HaeKokonaisluku(Avain avain) {
  const double arvo = LueTaiOletus(avain);
  const bool mahtuu = std::fabs(arvo) <= std::numeric_limits<std::int32_t>::max();
  return PyoristaKokonaisluvuksi(mahtuu ? arvo : LueLukuTaiNolla(AsetuksenRivi(avain).oletus).value_or(0));
}

std::string MiljoonasosinaTekstina(double arvo) { return Muotoile(arvo * kMiljoona, "0"); }

std::string TotuusTekstina(bool arvo) { return arvo ? "-1" : "0"; }
