// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/raportti/Raportti.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "kernel/Luvut.h"
#include "ui/Tekstivarasto.h"

namespace {

/// Decimals of a pattern.
std::size_t Desimaaleja(const std::string& kuvio) {
  const auto piste = kuvio.find('.');
  return piste == kuvio.npos ? 0 : kuvio.size() - piste - 1;
}

/// The sum of a column's numbers, and the formula that gives it.
Raporttiluku Summa(const std::vector<Raporttirivi>& rivit, std::size_t paikka, const Raporttisarake& sarake) {
  const bool naytetyt = sarake.summaus == Summaus::Naytetyt;
  Raporttiluku summa;
  bool ensimmainen = true;
  for (const Raporttirivi& rivi : rivit) {
    if (rivi.lajike != Rivilajike::Tavallinen || paikka >= rivi.solut.size()) continue;
    const auto* luku = std::get_if<Raporttiluku>(&rivi.solut[paikka]);
    if (!luku) continue;
    if (std::exchange(ensimmainen, false)) summa.kuvio = luku->kuvio;
    summa.arvo += naytetyt ? LueLukuTaiNolla(Muotoile(luku->arvo, luku->kuvio)).value_or(0) : luku->arvo;
  }
  const std::string alue = "[" + sarake.tunnus + ":kaikki]";
  summa.kaava = naytetyt ? "SUMPRODUCT(ROUND(" + alue + "," + std::to_string(Desimaaleja(summa.kuvio)) + "))"
                         : "SUM(" + alue + ")";
  return summa;
}

}  // namespace

Raporttirivi& Raporttitaulukko::Lisaa(std::vector<Raporttisolu> solut, int sisennys) {
  return rivit.emplace_back(Raporttirivi{std::move(solut), Rivilajike::Tavallinen, sisennys});
}

void Raporttitaulukko::LisaaValiotsikko(std::string nimi) {
  rivit.push_back({{std::move(nimi)}, Rivilajike::Valiotsikko});
}

void Raporttitaulukko::LisaaSummat(std::string nimi) {
  std::vector<Raporttisolu> solut{std::move(nimi)};
  for (std::size_t i = 1; i < sarakkeet.size(); ++i)
    solut.push_back(sarakkeet[i].summaus == Summaus::Ei ? Raporttisolu(std::string())
                                                        : Raporttisolu(Summa(rivit, i, sarakkeet[i])));
  rivit.push_back({std::move(solut), Rivilajike::Summa});
}

std::size_t Raporttitaulukko::Sarake(std::string_view haettu) const {
  const auto paikka = std::ranges::find(sarakkeet, haettu, &Raporttisarake::tunnus);
  if (paikka == sarakkeet.end()) throw std::out_of_range("taulukossa ei ole saraketta " + std::string(haettu));
  return static_cast<std::size_t>(paikka - sarakkeet.begin());
}

void Raportinosa::Kappale(const std::string& teksti, Raporttikappale::Tyyli tyyli) {
  std::istringstream rivit(teksti);
  for (std::string rivi; std::getline(rivit, rivi);) {
    if (rivi.ends_with('\r')) rivi.pop_back();
    if (rivi.find_first_not_of(' ') != rivi.npos) lohkot.push_back(Raporttikappale{rivi, tyyli});
  }
}

std::string Lause(int teksti, const std::vector<std::string>& osat) {
  const std::string malli = Teksti(teksti);
  std::string lause;
  for (std::size_t i = 0; i < malli.size(); ++i) {
    const std::size_t osa = malli[i] == '%' && i + 1 < malli.size() ? static_cast<std::size_t>(malli[i + 1] - '1') : 9;
    if (osa < osat.size()) {
      lause += osat[osa];
      ++i;
    } else {
      lause += malli[i];
    }
  }
  return lause;
}

std::string Lukuna(double arvo, std::string_view kuvio, std::string_view yksikko) {
  std::string teksti = Muotoile(arvo, kuvio);
  if (!yksikko.empty()) teksti.append(" ").append(yksikko);
  return teksti;
}
