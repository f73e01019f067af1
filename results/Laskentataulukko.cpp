// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Laskentataulukko.h"

#include <algorithm>

#include "kernel/Luvut.h"

namespace {

Taulukkosolu Soluksi(std::string_view teksti, bool lukusarake) {
  const auto luku = lukusarake ? LueLuku(teksti) : std::nullopt;
  return luku ? Taulukkosolu(Taulukkoluku{*luku, KuvioTekstista(teksti)}) : std::string(teksti);
}

/// The cells in these columns of the list.
std::vector<Taulukkosolu> Soluiksi(const Luettelo& lista, const std::vector<std::string>& rivi,
                                   const std::vector<int>& sarakkeet) {
  std::vector<Taulukkosolu> solut;
  for (const int s : sarakkeet)
    solut.push_back(Soluksi(Solu(rivi, static_cast<std::size_t>(s)), lista.OnLukusarake(s)));
  return solut;
}

int Syvyys(const Luettelo& lista, int rivi) {
  int syvyys = 0;
  while ((rivi = lista.Ylempi(rivi)) != Luettelo::kEiRivia) ++syvyys;
  return syvyys;
}

std::vector<int> NakyvatSarakkeet(const std::vector<Osa>& sarakkeet) {
  std::vector<int> nakyvat;
  for (std::size_t s = 0; s < sarakkeet.size(); ++s)
    if (sarakkeet[s].Nakyva()) nakyvat.push_back(static_cast<int>(s));
  return nakyvat;
}

/// A sheet being filled with the rows of a table.
class Tayttaja {
 public:
  Tayttaja(Taulukkosivu& sivu, int sarake) : sivu_(sivu), sarake_(sarake) {}
  void Rivi(int rivi, const std::vector<Taulukkosolu>& solut, bool lihava, int sisennys = 0) {
    int sarake = sarake_;
    for (const Taulukkosolu& solu : solut) {
      sivu_.solut[{rivi, sarake}] = {solu, lihava, sarake == sarake_ ? sisennys : 0};
      ++sarake;
    }
  }

 private:
  Taulukkosivu& sivu_;
  int sarake_;
};

}  // namespace

Laskentataulukko TaulukkoLuettelosta(const ListView& lista, std::string otsikko) {
  const Luettelo& rivit = lista.Kohde().Lista();
  const std::vector<Osa>& sarakkeet = lista.Kohde().Osat();
  const std::vector<int> nakyvat = NakyvatSarakkeet(sarakkeet);
  Laskentataulukko taulukko{std::move(otsikko), {}};
  for (const int s : nakyvat) taulukko.sarakkeet.push_back(sarakkeet[static_cast<std::size_t>(s)].otsikko);
  for (const int rivi : rivit.Jarjestys()) {
    auto& solut = taulukko.rivit.emplace_back(Soluiksi(rivit, rivit.Solut()[static_cast<std::size_t>(rivi)], nakyvat));
    for (const Luettelorivi::Luku& luku : rivit.Luvut(rivi))
      if (const auto it = std::ranges::find(nakyvat, luku.sarake); it != nakyvat.end())
        solut[static_cast<std::size_t>(it - nakyvat.begin())] = Taulukkoluku{luku.arvo, luku.kuvio};
    taulukko.ulkoasut.push_back({rivit.Piirteet(rivi).lihava, Syvyys(rivit, rivi), rivit.Avain(rivi)});
  }
  if (!rivit.Summat().empty()) taulukko.summat = Soluiksi(rivit, rivit.Summat(), nakyvat);
  return taulukko;
}

Taulukkosivu Sivuksi(const Laskentataulukko& taulukko, std::string_view nimi, const Taulukonpaikka& paikka) {
  Taulukkosivu sivu{.nimi = std::string(nimi), .otsikko = taulukko.otsikko};
  Tayttaja tayttaja(sivu, paikka.sarake);
  if (paikka.otsikko) tayttaja.Rivi(1, {taulukko.otsikko}, true);
  if (paikka.otsikkorivi > 0) {
    tayttaja.Rivi(paikka.otsikkorivi, {taulukko.sarakkeet.begin(), taulukko.sarakkeet.end()}, true);
    sivu.otsikkoriveja = paikka.otsikkorivi;
    sivu.otsikkosarakkeita = paikka.sarake;
  }
  int rivi = paikka.rivi;
  for (std::size_t i = 0; i < taulukko.rivit.size(); ++i) {
    const auto ulkoasu = i < taulukko.ulkoasut.size() ? taulukko.ulkoasut[i] : Laskentataulukko::Ulkoasu();
    tayttaja.Rivi(rivi++, taulukko.rivit[i], ulkoasu.lihava, ulkoasu.sisennys);
  }
  if (!taulukko.summat.empty()) tayttaja.Rivi(rivi++, taulukko.summat, true);
  for (const std::string& huomautus : taulukko.huomautukset) tayttaja.Rivi(++rivi, {huomautus}, false);
  return sivu;
}

void TallennaLaskentataulukko(const Laskentataulukko& taulukko, std::string_view valilehti,
                              const std::string& tiedosto) {
  TallennaKirja({Sivuksi(taulukko, valilehti)}, tiedosto);
}
