// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Hakuvalinta.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>

#include "kernel/Kirjainkoko.h"

namespace {

/// How well a row fits what was written; a smaller one is better.
enum Sopivuus { Sama, Alkaa, SanaAlkaa, Sisaltaa, Sanoittain, EiSovi };

std::string Siistitty(std::string_view teksti) {
  std::string siisti;
  std::istringstream sanat(PieniksiKirjaimiksi(teksti));
  for (std::string sana; sanat >> sana;) siisti += (siisti.empty() ? "" : " ") + sana;
  return siisti;
}

Sopivuus TekstinSopivuus(std::string_view teksti, std::string_view haku) {
  if (teksti == haku) return Sama;
  Sopivuus paras = EiSovi;
  for (auto i = teksti.find(haku); i != std::string_view::npos; i = teksti.find(haku, i + 1)) {
    const bool sananAlussa = i > 0 && (teksti[i - 1] == ' ' || teksti[i - 1] == '-');
    paras = std::min(paras, i == 0 ? Alkaa : sananAlussa ? SanaAlkaa : Sisaltaa);
  }
  return paras;
}

bool OnKaikki(std::string_view teksti, const std::string& haku) {
  std::istringstream sanat(haku);
  for (std::string sana; sanat >> sana;)
    if (teksti.find(sana) == std::string_view::npos) return false;
  return true;
}

Sopivuus RivinSopivuus(const std::vector<std::string>& rivi, const std::string& haku) {
  std::string kaikki = PieniksiKirjaimiksi(std::string(Solu(rivi, 0)) + ";" + std::string(Solu(rivi, 1)));
  std::ranges::replace(kaikki, ';', '\n');
  Sopivuus paras = EiSovi;
  std::istringstream tekstit(kaikki);
  for (std::string teksti; std::getline(tekstit, teksti);) paras = std::min(paras, TekstinSopivuus(teksti, haku));
  return paras == EiSovi && OnKaikki(kaikki, haku) ? Sanoittain : paras;
}

}  // namespace

std::vector<int> EtsiValinnat(const Taulukko& rivit, std::string_view haku) {
  const std::string siisti = Siistitty(haku);
  std::vector<std::pair<Sopivuus, int>> osumat;
  for (std::size_t i = 0; i < rivit.size(); ++i) {
    const Sopivuus sopivuus = siisti.empty() ? Sama : RivinSopivuus(rivit[i], siisti);
    if (sopivuus != EiSovi) osumat.emplace_back(sopivuus, static_cast<int>(i));
  }
  std::ranges::sort(osumat);
  std::vector<int> jarjestys;
  for (const auto& [sopivuus, rivi] : osumat) jarjestys.push_back(rivi);
  return jarjestys;
}
