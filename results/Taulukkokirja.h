// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

struct lxw_workbook;

/// A number of a sheet and the pattern by which it is shown (kernel/Luvut.h).
struct Taulukkoluku {
  double arvo = 0;
  std::string kuvio;

  bool operator==(const Taulukkoluku&) const = default;
};
/// Contents of a cell: text or number. A text is a text also when it begins with "=".
using Taulukkosolu = std::variant<std::string, Taulukkoluku>;

/// A cell and how it is shown.
struct Sivusolu {
  Taulukkosolu sisalto;
  bool lihava = false;
  int sisennys = 0;  ///< steps in from the left edge
};

/// A sheet of a workbook. Rows and columns count from 1.
struct Taulukkosivu {
  std::string nimi;                                 ///< any text: the file gets what fits (ValilehdenNimi)
  std::string otsikko;                              ///< over each page on paper
  std::map<std::pair<int, int>, Sivusolu> solut{};  ///< by row and column
  int otsikkoriveja = 0;                            ///< the first rows, frozen on the screen and repeated on paper
  int otsikkosarakkeita = 0;                        ///< the first columns, frozen on the screen
  bool tasalevea = false;  ///< columns of one width, where a text may reach over the empty cells beside it

  int Riveja() const { return solut.empty() ? 0 : solut.rbegin()->first.first; }
};

/// Writes the sheets to a workbook (.xlsx) whose pages are as page set-up tells (settings/Sivuasetukset.h), one page
/// wide. The file is written whole or not at all. Raises std::runtime_error with the reason in Finnish.
void TallennaKirja(const std::vector<Taulukkosivu>& sivut, const std::string& tiedosto);

/// Writes the file of the library's workbook and frees it. Raises std::runtime_error with the reason in Finnish.
void SuljeKirja(lxw_workbook* kirja);

/// Lets `kirjoita` write a file beside the one wanted and puts it in that one's place: whole or not at all. Raises what
/// it raises, and std::runtime_error with the reason in Finnish when the file can't be replaced.
void KirjoitaKokonaan(const std::string& tiedosto, const std::function<void(const std::string& uusi)>& kirjoita);

/// Widths of the columns, in letters, the first column first: as wide as the contents need.
std::vector<double> Sarakeleveydet(const Taulukkosivu& sivu);
/// The cell as it is shown.
std::string SolunTeksti(const Taulukkosolu& solu);
/// A pattern of kernel/Luvut.h in the notation of the file, where a comma tells the groups of thousands whatever the
/// reader's country shows.
std::string TiedostonKuvio(std::string kuvio);
/// The pattern by which the number is shown as in the text.
std::string KuvioTekstista(std::string_view teksti);

/// What a sheet of the workbook can be called: at most 31 letters, none of []:*?/\, no apostrophe at either end.
/// Different from the names in `varatut` whatever the case of letters.
std::string ValilehdenNimi(std::string_view nimi, const std::vector<std::string>& varatut);
