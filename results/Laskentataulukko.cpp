// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Laskentataulukko.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <stdexcept>

#include "kernel/Luvut.h"

namespace {

constexpr lxw_row_t kOtsikkorivi = 0, kSarakerivi = 2, kEnsimmainenRivi = 3;
constexpr std::uint8_t kA4 = 9;
constexpr double kKapeinSarake = 6, kIlma = 2;  // in letters

/// A workbook being written: one sheet.
class Kirjoittaja {
 public:
  Kirjoittaja(const std::string& tiedosto, const std::string& valilehti)
      : kirja_(workbook_new(tiedosto.c_str())), sivu_(workbook_add_worksheet(kirja_, valilehti.c_str())) {
    worksheet_set_landscape(sivu_);
    worksheet_set_paper(sivu_, kA4);
    worksheet_fit_to_pages(sivu_, 1, 0);
    worksheet_repeat_rows(sivu_, kOtsikkorivi, kSarakerivi);
    worksheet_freeze_panes(sivu_, kEnsimmainenRivi, 1);
  }
  Kirjoittaja(const Kirjoittaja&) = delete;
  Kirjoittaja& operator=(const Kirjoittaja&) = delete;

  void Rivi(lxw_row_t rivi, const std::vector<Taulukkosolu>& solut, bool lihava) {
    lxw_col_t sarake = 0;
    for (const Taulukkosolu& solu : solut) Solu(rivi, sarake++, solu, lihava);
  }
  void Leveys(lxw_col_t sarake, double leveys) {
    worksheet_set_column(sivu_, sarake, sarake, std::max(leveys + kIlma, kKapeinSarake), nullptr);
  }
  /// Writes the file. Raises std::runtime_error with the library's reason.
  void Sulje() {
    if (const lxw_error virhe = workbook_close(kirja_)) throw std::runtime_error(lxw_strerror(virhe));
  }

 private:
  void Solu(lxw_row_t rivi, lxw_col_t sarake, const Taulukkosolu& solu, bool lihava) {
    if (const auto* luku = std::get_if<Taulukkoluku>(&solu))
      worksheet_write_number(sivu_, rivi, sarake, luku->arvo, Muoto(TiedostonKuvio(luku->kuvio), lihava));
    else
      worksheet_write_string(sivu_, rivi, sarake, std::get<std::string>(solu).c_str(), Muoto({}, lihava));
  }

  /// In the notation of the file the groups of thousands are told by a comma, whatever the reader's country shows.
  static std::string TiedostonKuvio(std::string kuvio) {
    if (const auto ryhmat = kuvio.find("### ##0"); ryhmat != kuvio.npos) kuvio.replace(ryhmat, 7, "#,##0");
    return kuvio;
  }

  lxw_format* Muoto(const std::string& kuvio, bool lihava) {
    if (kuvio.empty() && !lihava) return nullptr;
    lxw_format*& muoto = muodot_[{kuvio, lihava}];
    if (muoto) return muoto;
    muoto = workbook_add_format(kirja_);
    if (lihava) format_set_bold(muoto);
    if (!kuvio.empty()) format_set_num_format(muoto, kuvio.c_str());
    return muoto;
  }

  lxw_workbook* kirja_;
  lxw_worksheet* sivu_;
  std::map<std::pair<std::string, bool>, lxw_format*> muodot_;
};

/// Letters of the cell as it is shown.
std::size_t Pituus(const Taulukkosolu& solu) {
  const auto* luku = std::get_if<Taulukkoluku>(&solu);
  const std::string teksti = luku ? Muotoile(luku->arvo, luku->kuvio) : std::get<std::string>(solu);
  return static_cast<std::size_t>(std::ranges::count_if(teksti, [](char c) { return (c & 0xC0) != 0x80; }));
}

double LevinTeksti(const Laskentataulukko& taulukko, std::size_t sarake) {
  std::size_t levein = Pituus(taulukko.sarakkeet[sarake]);
  for (const auto& rivi : taulukko.rivit)
    if (sarake < rivi.size()) levein = std::max(levein, Pituus(rivi[sarake]));
  if (sarake < taulukko.summat.size()) levein = std::max(levein, Pituus(taulukko.summat[sarake]));
  return static_cast<double>(levein);
}

void Kirjoita(const Laskentataulukko& taulukko, const std::string& valilehti, const std::string& tiedosto) {
  Kirjoittaja kirja(tiedosto, valilehti);
  kirja.Rivi(kOtsikkorivi, {taulukko.otsikko}, true);
  kirja.Rivi(kSarakerivi, {taulukko.sarakkeet.begin(), taulukko.sarakkeet.end()}, true);
  for (std::size_t s = 0; s < taulukko.sarakkeet.size(); ++s)
    kirja.Leveys(static_cast<lxw_col_t>(s), LevinTeksti(taulukko, s));
  lxw_row_t paikka = kEnsimmainenRivi;
  for (const auto& rivi : taulukko.rivit) kirja.Rivi(paikka++, rivi, false);
  if (!taulukko.summat.empty()) kirja.Rivi(paikka++, taulukko.summat, true);
  for (const std::string& huomautus : taulukko.huomautukset) kirja.Rivi(++paikka, {huomautus}, false);
  kirja.Sulje();
}

/// The pattern of a number with as many decimals as the text shows.
std::string KuvioTekstista(std::string_view teksti) {
  const auto pilkku = teksti.find(',');
  return pilkku == teksti.npos ? "### ##0" : "### ##0." + std::string(teksti.size() - pilkku - 1, '0');
}

Taulukkosolu Soluksi(std::string_view teksti, bool lukusarake) {
  const auto luku = lukusarake ? LueLuku(teksti) : std::nullopt;
  return luku ? Taulukkosolu(Taulukkoluku{*luku, KuvioTekstista(teksti)}) : std::string(teksti);
}

std::vector<Taulukkosolu> Soluiksi(const Luettelo& lista, const std::vector<std::string>& rivi,
                                   std::size_t sarakkeita) {
  std::vector<Taulukkosolu> solut;
  for (std::size_t s = 0; s < sarakkeita; ++s)
    solut.push_back(Soluksi(Solu(rivi, s), lista.OnLukusarake(static_cast<int>(s))));
  return solut;
}

}  // namespace

Laskentataulukko TaulukkoLuettelosta(const ListView& lista, std::string otsikko) {
  const Luettelo& rivit = lista.Kohde().Lista();
  const std::vector<Osa>& sarakkeet = lista.Kohde().Osat();
  Laskentataulukko taulukko{std::move(otsikko), {}};
  for (const Osa& sarake : sarakkeet) taulukko.sarakkeet.push_back(sarake.otsikko);
  for (const int rivi : rivit.Jarjestys()) {
    auto& solut =
        taulukko.rivit.emplace_back(Soluiksi(rivit, rivit.Solut()[static_cast<std::size_t>(rivi)], sarakkeet.size()));
    for (const Luettelorivi::Luku& luku : rivit.Luvut(rivi))
      solut.at(static_cast<std::size_t>(luku.sarake)) = Taulukkoluku{luku.arvo, luku.kuvio};
  }
  if (!rivit.Summat().empty()) taulukko.summat = Soluiksi(rivit, rivit.Summat(), sarakkeet.size());
  return taulukko;
}

void TallennaLaskentataulukko(const Laskentataulukko& taulukko, std::string_view valilehti,
                              const std::string& tiedosto) try {
  const std::string uusi = tiedosto + ".uusi";
  try {
    Kirjoita(taulukko, std::string(valilehti), uusi);
    std::filesystem::rename(uusi, tiedosto);
  } catch (...) {
    std::remove(uusi.c_str());
    throw;
  }
} catch (const std::filesystem::filesystem_error& virhe) {
  throw std::runtime_error(virhe.code().message());
}
