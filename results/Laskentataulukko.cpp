// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Laskentataulukko.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace {

constexpr lxw_row_t kOtsikkorivi = 0, kSarakerivi = 2, kEnsimmainenRivi = 3;
constexpr double kKapeinSarake = 8, kLeveinSarake = 60;  // in letters

/// A workbook being written: one sheet.
class Kirjoittaja {
 public:
  Kirjoittaja(const std::string& tiedosto, const std::string& valilehti)
      : kirja_(workbook_new(tiedosto.c_str())),
        lihava_(workbook_add_format(kirja_)),
        luku_(workbook_add_format(kirja_)),
        sivu_(workbook_add_worksheet(kirja_, valilehti.c_str())) {
    format_set_bold(lihava_);
    format_set_num_format(luku_, "# ##0.00");
  }
  Kirjoittaja(const Kirjoittaja&) = delete;
  Kirjoittaja& operator=(const Kirjoittaja&) = delete;

  void Otsikko(lxw_row_t rivi, lxw_col_t sarake, const std::string& teksti) {
    worksheet_write_string(sivu_, rivi, sarake, teksti.c_str(), lihava_);
  }
  void Solu(lxw_row_t rivi, lxw_col_t sarake, const Taulukkosolu& solu) {
    if (const double* luku = std::get_if<double>(&solu))
      worksheet_write_number(sivu_, rivi, sarake, *luku, luku_);
    else
      worksheet_write_string(sivu_, rivi, sarake, std::get<std::string>(solu).c_str(), nullptr);
  }
  void Leveys(lxw_col_t sarake, double leveys) {
    worksheet_set_column(sivu_, sarake, sarake, std::clamp(leveys, kKapeinSarake, kLeveinSarake), nullptr);
  }
  /// Writes the file. Raises std::runtime_error with the library's reason.
  void Sulje() {
    if (const lxw_error virhe = workbook_close(kirja_)) throw std::runtime_error(lxw_strerror(virhe));
  }

 private:
  lxw_workbook* kirja_;
  lxw_format* lihava_;
  lxw_format* luku_;
  lxw_worksheet* sivu_;
};

double LevinTeksti(const Laskentataulukko& taulukko, std::size_t sarake) {
  std::size_t levein = taulukko.sarakkeet[sarake].size();
  for (const auto& rivi : taulukko.rivit)
    if (sarake < rivi.size())
      if (const auto* teksti = std::get_if<std::string>(&rivi[sarake])) levein = std::max(levein, teksti->size());
  return static_cast<double>(levein);
}

void Kirjoita(const Laskentataulukko& taulukko, const std::string& valilehti, const std::string& tiedosto) {
  Kirjoittaja kirja(tiedosto, valilehti);
  kirja.Otsikko(kOtsikkorivi, 0, taulukko.otsikko);
  for (std::size_t s = 0; s < taulukko.sarakkeet.size(); ++s) {
    kirja.Otsikko(kSarakerivi, static_cast<lxw_col_t>(s), taulukko.sarakkeet[s]);
    kirja.Leveys(static_cast<lxw_col_t>(s), LevinTeksti(taulukko, s) + 2);
  }
  for (std::size_t r = 0; r < taulukko.rivit.size(); ++r)
    for (std::size_t s = 0; s < taulukko.rivit[r].size(); ++s)
      kirja.Solu(kEnsimmainenRivi + static_cast<lxw_row_t>(r), static_cast<lxw_col_t>(s), taulukko.rivit[r][s]);
  kirja.Sulje();
}

}  // namespace

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
