// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Kirjastosanoma.h"

#include "kernel/Luvut.h"

namespace {

constexpr std::string_view kRatkaisu = "Rakenneratkaisu";
constexpr std::string_view kKerros = "Kerros";
constexpr std::string_view kMateriaali = "Materiaali";
constexpr std::string_view kAvain = "sKey";

void LisaaSuojattuna(std::string& rivi, std::string_view teksti) {
  for (const char c : teksti) {
    if (c == '\\')
      rivi += "\\\\";
    else if (c == '\n')
      rivi += "\\n";
    else
      rivi += c;
  }
}

std::string Suojaamatta(std::string_view rivi) {
  std::string teksti;
  for (std::size_t i = 0; i < rivi.size(); ++i) {
    if (rivi[i] != '\\' || i + 1 == rivi.size())
      teksti += rivi[i];
    else
      teksti += rivi[++i] == 'n' ? '\n' : rivi[i];
  }
  return teksti;
}

void LisaaRivi(std::string& sanoma, const Olio& olio, const Jasen& jasen) {
  ArvoNakyma arvo;
  jasen.nayta(olio, arvo);
  sanoma.append(jasen.nimi).append(1, '\t');
  if (arvo.OmaMuoto() == ArvoNakyma::Muoto::Teksti)
    LisaaSuojattuna(sanoma, arvo.Teksti());
  else
    sanoma += LyhinMuoto(arvo.Lukuna());
  sanoma += '\n';
}

void LisaaOlio(std::string& sanoma, std::string_view otsikko, const Olio& olio, std::string_view vain = {}) {
  sanoma.append(otsikko).append(1, '\n');
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet())
    if (!jasen.OnOlio() && jasen.nimi != kAvain && jasen.nimi.starts_with(vain)) LisaaRivi(sanoma, olio, jasen);
}

/// Takes the first line off.
std::string_view OtaRivi(std::string_view& sanoma) {
  const auto loppu = sanoma.find('\n');
  const std::string_view rivi = sanoma.substr(0, loppu);
  sanoma.remove_prefix(loppu == std::string_view::npos ? sanoma.size() : loppu + 1);
  return rivi;
}

/// False when the value can't be the member's.
bool LueRivi(Olio& olio, std::string_view rivi) {
  const auto vali = rivi.find('\t');
  if (vali == std::string_view::npos) return false;
  const Jasen* jasen = olio.LuokanTiedot().Etsi(rivi.substr(0, vali));
  if (!jasen || !jasen->kirjoita) return true;
  const std::string teksti = Suojaamatta(rivi.substr(vali + 1));
  ArvoNakyma arvo;
  arvo.Aseta(std::string_view(teksti));
  return jasen->kirjoita(olio, arvo);
}

}  // namespace

std::string Sanomaksi(const Rakenneratkaisu& ratkaisu) {
  std::string sanoma;
  LisaaOlio(sanoma, kRatkaisu, ratkaisu);
  for (const clsRakennekerros& kerros : ratkaisu.Kerrokset) LisaaOlio(sanoma, kKerros, kerros);
  return sanoma;
}

std::string Sanomaksi(const Materiaali& materiaali) {
  clsRakennekerros kerros;
  kerros.Materiaali = materiaali;
  std::string sanoma;
  LisaaOlio(sanoma, kMateriaali, kerros, kMateriaali);
  return sanoma;
}

std::optional<Rakenneratkaisu> RatkaisuSanomasta(std::string_view sanoma) {
  if (OtaRivi(sanoma) != kRatkaisu) return std::nullopt;
  Rakenneratkaisu ratkaisu;
  Olio* olio = &ratkaisu;
  while (!sanoma.empty()) {
    const std::string_view rivi = OtaRivi(sanoma);
    if (rivi == kKerros)
      olio = &ratkaisu.Kerrokset.LisaaKerros();
    else if (!LueRivi(*olio, rivi))
      return std::nullopt;
  }
  return ratkaisu;
}

std::optional<Materiaali> MateriaaliSanomasta(std::string_view sanoma) {
  if (OtaRivi(sanoma) != kMateriaali) return std::nullopt;
  clsRakennekerros kerros;
  while (!sanoma.empty())
    if (!LueRivi(kerros, OtaRivi(sanoma))) return std::nullopt;
  return kerros.Materiaali;
}
