// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/malliauditoinnit/Taulukko.h"

#include <sstream>
#include <stdexcept>

#include "kernel/Luvut.h"
#include "kernel/Tekstitiedosto.h"

std::vector<std::string> Kentat(const std::string& rivi, char erotin) {
  std::vector<std::string> kentat;
  std::istringstream lahde(rivi);
  for (std::string kentta; std::getline(lahde, kentta, erotin);) kentat.push_back(kentta);
  return kentat;
}

namespace {

/// The cells of a line; one in quotes may hold commas.
std::vector<std::string> Solut(const std::string& rivi) {
  std::vector<std::string> solut(1);
  bool lainauksessa = false;
  for (const char merkki : rivi)
    if (merkki == '"')
      lainauksessa = !lainauksessa;
    else if (merkki == ',' && !lainauksessa)
      solut.emplace_back();
    else
      solut.back() += merkki;
  return solut;
}

}  // namespace

std::vector<Rivi> LueTaulukko(const std::string& polku) {
  const auto rivit = LueRivit(polku);
  const auto otsikot = Solut(rivit.at(0));
  std::vector<Rivi> taulukko;
  for (std::size_t i = 1; i < rivit.size(); ++i) {
    const auto kentat = Solut(rivit[i]);
    Rivi& rivi = taulukko.emplace_back();
    for (std::size_t k = 0; k < otsikot.size(); ++k) rivi[otsikot[k]] = kentat.at(k);
  }
  return taulukko;
}

double Luku(const Rivi& rivi, const std::string& sarake) {
  const auto luku = LueLuku(rivi.at(sarake));
  if (!luku) throw std::runtime_error(rivi.at("Tunnus") + ", " + sarake + ": ei ole luku");
  return *luku;
}

std::int32_t Kokonaisluku(const Rivi& rivi, const std::string& sarake) {
  return PyoristaKokonaisluvuksi(Luku(rivi, sarake));
}
