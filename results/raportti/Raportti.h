// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ui/Ohjain.h"

/// A report as a document: what stands in it, not how it is drawn. Chapters are made by the builders of
/// results/raportti/Raportinosat.h; the workbook (results/raportti/Raporttikirja.h) and the PDF (pdf/Pdfraportti.h) are
/// written from it. Texts are plain UTF-8 with ordinary blanks and hyphens: typography is the writer's.
///
/// A formula tells a number by other cells, in the notation of workbook files: "[lampo]*1000/BruttoAla". In brackets
/// stands a column of the same table by its `tunnus`: "[x]" its cell in the same row, "[x:edellinen]" in the row above,
/// "[x:kaikki]" its rows without sums, "[x:summa]" its cell in the sums. Other words are names that cells of the report
/// have (`Raporttiluku::nimi`). The value is stored beside the formula.
struct Raporttiluku {
  double arvo = 0;
  std::string kuvio = "### ##0";  ///< how it is shown (kernel/Luvut.h)
  std::string kaava{};            ///< empty: the number itself
  std::string nimi{};             ///< name of the cell for formulas, one in the report; empty: none
};
/// A cell: text, or a number. "" is an empty cell.
using Raporttisolu = std::variant<std::string, Raporttiluku>;

/// How the sum of a column comes about.
enum class Summaus {
  Ei,        ///< there is none
  Luvut,     ///< the numbers in full
  Naytetyt,  ///< the numbers as they are shown, so that the column adds up on paper
};

struct Raporttisarake {
  std::string otsikko;
  std::string yksikko{};  ///< under the heading; empty: none
  std::string tunnus{};   ///< name for formulas; empty: none knows it
  double leveys = 1;      ///< share of the table's width, relative to the other columns
  Summaus summaus = Summaus::Ei;
  bool lukuja = true;  ///< numbers: stand at the right edge
};

enum class Rivilajike {
  Tavallinen,
  Valiotsikko,  ///< names the rows that follow
  Summa
};
struct Raporttirivi {
  std::vector<Raporttisolu> solut;
  Rivilajike lajike = Rivilajike::Tavallinen;
  int sisennys = 0;  ///< of the first cell, in steps
};

struct Raporttitaulukko {
  std::string otsikko{};  ///< above the table; empty: none
  std::string tunnus{};   ///< name by which a chart knows it; empty: none does
  std::vector<Raporttisarake> sarakkeet{};
  std::vector<Raporttirivi> rivit{};
  std::string huomautus{};  ///< below the table; empty: none

  Raporttirivi& Lisaa(std::vector<Raporttisolu> solut, int sisennys = 0);
  void LisaaValiotsikko(std::string nimi);
  /// Adds the row of sums of what stands above, by each column's `summaus`, with formulas.
  void LisaaSummat(std::string nimi);
  /// Place of the column of that `tunnus`. Raises std::out_of_range when there is none.
  std::size_t Sarake(std::string_view tunnus) const;
  /// Rows that sums are taken of: all but titles and sums.
  bool OnTyhja() const { return rivit.empty(); }
};

/// A paragraph.
struct Raporttikappale {
  enum Tyyli { Leipa, Huomautus, Ingressi };
  std::string teksti;
  Tyyli tyyli = Leipa;
};
/// A heading of a section.
struct Raporttiotsikko {
  std::string teksti;
  bool uusiSivu = false;  ///< begins a page
};

/// A figure that is told large, with its unit and what it is.
struct Avainluku {
  std::string otsikko;
  double arvo = 0;
  std::string kuvio = "### ##0";
  std::string yksikko{};
  std::string lisatieto{};  ///< a short line below; empty: none
};
struct Avainluvut {
  std::vector<Avainluku> luvut;
};

/// The painters of charts.
enum class Kaaviolaji { Piirakka, Pylvaikko, Kayrat, Leikkaus, Viikko, Vesiputous };

/// A chart. In a workbook it is a chart of the columns `sarjat` of the table `taulukko` of the same chapter, by its
/// first column; without a table it isn't there.
struct Raporttikaavio {
  Kaaviolaji laji = Kaaviolaji::Piirakka;
  Kaaviotiedot tiedot;
  std::string taulukko{};
  std::vector<std::string> sarjat{};
};
/// Charts side by side.
struct Raporttikaaviot {
  std::vector<Raporttikaavio> kaaviot;
  double korkeus = 60;        ///< mm on paper
  bool tayttaaSivun = false;  ///< it takes what is left of the page, and is left out where that is less than `korkeus`
};

using Raporttilohko = std::variant<Raporttiotsikko, Raporttikappale, Raporttitaulukko, Avainluvut, Raporttikaaviot>;

/// A chapter.
struct Raportinosa {
  std::string nimi;      ///< of its row in the table of chapters
  std::string otsikko;   ///< without number
  std::string numero{};  ///< "3", of an appendix "A"
  std::vector<Raporttilohko> lohkot{};

  void Otsikko(std::string teksti, bool uusiSivu = false) {
    lohkot.push_back(Raporttiotsikko{std::move(teksti), uusiSivu});
  }
  /// A paragraph; an empty text adds nothing. Lines of a text typed by the person are paragraphs of their own.
  void Kappale(const std::string& teksti, Raporttikappale::Tyyli tyyli = Raporttikappale::Leipa);
  void Taulukko(Raporttitaulukko taulukko) { lohkot.push_back(std::move(taulukko)); }
  void Luvut(std::vector<Avainluku> luvut) { lohkot.push_back(Avainluvut{std::move(luvut)}); }
  void Kaavio(Raporttikaavio kaavio, double korkeus = 60) { Kaaviot({std::move(kaavio)}, korkeus); }
  void Kaaviot(std::vector<Raporttikaavio> kaaviot, double korkeus = 60, bool tayttaaSivun = false) {
    lohkot.push_back(Raporttikaaviot{std::move(kaaviot), korkeus, tayttaaSivun});
  }
};

struct Raportti {
  std::string otsikko;                    ///< "Energiakatselmus"
  std::string kohde;                      ///< name of the object
  std::string alaotsikko;                 ///< what the object is, on the cover
  std::string pvm;                        ///< of the audit
  std::string tekija;                     ///< who made it; may be empty
  std::string ohjelma;                    ///< program and version
  std::vector<std::string> kansirivit{};  ///< lines of the cover below the title
  std::vector<Raportinosa> osat{};
};

/// The text of that number with "%1" to "%9" replaced by the parts.
std::string Lause(int teksti, const std::vector<std::string>& osat);
/// A number as it stands in a sentence: by its pattern, with its unit if it has one.
std::string Lukuna(double arvo, std::string_view kuvio, std::string_view yksikko = {});
