// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/KerataanViestit.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

template <class T>
T Otettu(std::deque<T>& jono, T oletus) {
  if (jono.empty()) return oletus;
  T arvo = std::move(jono.front());
  jono.pop_front();
  return arvo;
}

Vastaus VarovainenVastaus(const Viesti& viesti) {
  if (OnVastaus(viesti.napit, viesti.oletus)) return viesti.oletus;
  return viesti.napit == Napit::Ok ? Vastaus::Ok : Vastaus::Ei;
}

Viesti Kysymys(std::string_view teksti, std::string_view otsikko) {
  return {std::string(teksti), std::string(otsikko), Vakavuus::Kysymys};
}

}  // namespace

Vastaus KerataanViestit::Nayta(const Viesti& viesti) {
  naytetyt_.push_back(viesti);
  const Vastaus vastaus = Otettu(vastaukset_, VarovainenVastaus(viesti));
  if (!OnVastaus(viesti.napit, vastaus))
    throw std::logic_error("Viestissä ei ole vastauksen painiketta: " + viesti.teksti);
  return vastaus;
}

std::optional<std::string> KerataanViestit::KysyTeksti(std::string_view kehote, std::string_view otsikko,
                                                       std::string_view) {
  naytetyt_.push_back(Kysymys(kehote, otsikko));
  return Otettu<std::optional<std::string>>(tekstit_, std::nullopt);
}

std::optional<std::string> KerataanViestit::KysyAvattavaTiedosto(std::string_view otsikko, std::string_view suodatin) {
  naytetyt_.push_back(Kysymys(suodatin, otsikko));
  return Otettu<std::optional<std::string>>(tiedostot_, std::nullopt);
}

std::optional<std::string> KerataanViestit::KysyTallennettavaTiedosto(std::string_view otsikko,
                                                                      std::string_view suodatin, std::string_view) {
  return KysyAvattavaTiedosto(otsikko, suodatin);
}

bool KerataanViestit::AvaaTiedosto(const std::string& tiedosto) {
  if (avaaja_) avatut_.push_back(tiedosto);
  return avaaja_;
}

void KerataanViestit::AsetaPaneeli(std::string teksti) {
  paneeli_ = std::move(teksti);
  paneelit_.push_back(paneeli_);
}

int KerataanViestit::Esiintymia(std::string_view osa) const {
  return static_cast<int>(std::count_if(naytetyt_.begin(), naytetyt_.end(), [osa](const Viesti& viesti) {
    return viesti.teksti.find(osa) != std::string::npos;
  }));
}
