// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <gtest/gtest.h>
#include <zip.h>

#include <map>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A package (.xlsx) read back as it stands in the file.
class Koepaketti {
 public:
  explicit Koepaketti(const std::string& tiedosto)
      : zip_(zip_open(tiedosto.c_str(), ZIP_RDONLY, nullptr), zip_discard) {
    if (!zip_) throw std::runtime_error(tiedosto + " ei ole paketti");
  }
  /// A part, e.g. "xl/workbook.xml". Raises std::runtime_error when there is none.
  std::string Osa(const std::string& nimi) const {
    zip_stat_t tiedot;
    if (zip_stat(zip_.get(), nimi.c_str(), 0, &tiedot) != 0) throw std::runtime_error("paketissa ei ole osaa " + nimi);
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> osa(zip_fopen(zip_.get(), nimi.c_str(), 0), zip_fclose);
    std::string sisalto(tiedot.size, '\0');
    if (!osa || zip_fread(osa.get(), sisalto.data(), tiedot.size) != static_cast<zip_int64_t>(tiedot.size))
      throw std::runtime_error("osaa ei voi lukea: " + nimi);
    return sisalto;
  }
  bool OnOsa(const std::string& nimi) const { return zip_name_locate(zip_.get(), nimi.c_str(), 0) >= 0; }
  std::vector<std::string> Osat() const {
    std::vector<std::string> nimet;
    for (zip_int64_t i = 0; i < zip_get_num_entries(zip_.get(), 0); ++i)
      nimet.emplace_back(zip_get_name(zip_.get(), static_cast<zip_uint64_t>(i), 0));
    return nimet;
  }
  pugi::xml_document Xml(const std::string& nimi) const {
    pugi::xml_document asiakirja;
    const std::string sisalto = Osa(nimi);
    if (!asiakirja.load_buffer(sisalto.data(), sisalto.size())) throw std::runtime_error("osa ei ole XML:ää: " + nimi);
    return asiakirja;
  }

 private:
  std::unique_ptr<zip_t, void (*)(zip_t*)> zip_;
};

/// A cell as a spreadsheet program would find it.
struct Koesolu {
  std::string teksti{};          ///< of a text cell
  std::optional<double> luku{};  ///< of a number cell, or the stored result of a formula
  std::string kaava{};           ///< without "="
  std::string muoto{};           ///< the number's format code; "" general
  bool lihava = false;
};

/// A sheet of a workbook. Rows of the file that don't ascend, or cells of a row, are a fault.
class Koesivu {
 public:
  Koesivu(std::string nimi, pugi::xml_document xml, std::map<std::pair<int, int>, Koesolu> solut)
      : nimi_(std::move(nimi)), xml_(std::move(xml)), solut_(std::move(solut)) {}

  const std::string& Nimi() const { return nimi_; }
  /// By row and column from 1; an empty cell when there is none.
  Koesolu Solu(int rivi, int sarake) const {
    const auto it = solut_.find({rivi, sarake});
    return it == solut_.end() ? Koesolu() : it->second;
  }
  std::string Teksti(int rivi, int sarake) const { return Solu(rivi, sarake).teksti; }
  /// A cell that is no number fails the test.
  double Luku(int rivi, int sarake) const {
    const auto luku = Solu(rivi, sarake).luku;
    EXPECT_TRUE(luku) << nimi_ << ": solussa " << rivi << ", " << sarake << " ei ole lukua vaan "
                      << Teksti(rivi, sarake);
    return luku.value_or(0);
  }
  /// Row and column of the first cell with the text; 0, 0 when there is none.
  std::pair<int, int> Etsi(std::string_view teksti) const {
    for (const auto& [paikka, solu] : solut_)
      if (solu.teksti == teksti) return paikka;
    return {};
  }
  int Riveja() const { return solut_.empty() ? 0 : solut_.rbegin()->first.first; }
  const std::map<std::pair<int, int>, Koesolu>& Solut() const { return solut_; }
  pugi::xml_node Xml() const { return xml_.child("worksheet"); }

 private:
  std::string nimi_;
  pugi::xml_document xml_;
  std::map<std::pair<int, int>, Koesolu> solut_;
};

/// A workbook read back: its sheets in their order, with texts, full numbers, formats and formulas.
class Koetaulukko {
 public:
  explicit Koetaulukko(const std::string& tiedosto) : paketti_(tiedosto) {
    const pugi::xml_document kirja = paketti_.Xml("xl/workbook.xml"),
                             suhteet = paketti_.Xml("xl/_rels/workbook.xml.rels");
    LueTekstit();
    LueMuodot();
    for (const pugi::xml_node sivu : kirja.child("workbook").child("sheets").children("sheet")) {
      const pugi::xml_node suhde =
          suhteet.child("Relationships").find_child_by_attribute("Id", sivu.attribute("r:id").value());
      pugi::xml_document xml = paketti_.Xml("xl/" + std::string(suhde.attribute("Target").value()));
      auto solut = LueSolut(xml);
      sivut_.emplace_back(sivu.attribute("name").value(), std::move(xml), std::move(solut));
    }
    for (const pugi::xml_node nimi : kirja.child("workbook").child("definedNames").children("definedName"))
      nimet_[nimi.attribute("name").value()] = nimi.text().get();
  }

  const std::vector<Koesivu>& Sivut() const { return sivut_; }
  /// Raises std::out_of_range.
  const Koesivu& Sivu(std::size_t i = 0) const { return sivut_.at(i); }
  const Koesivu& Sivu(std::string_view nimi) const {
    for (const Koesivu& sivu : sivut_)
      if (sivu.Nimi() == nimi) return sivu;
    throw std::out_of_range("taulukossa ei ole sivua " + std::string(nimi));
  }
  /// Defined names and what they refer to.
  const std::map<std::string, std::string>& Nimet() const { return nimet_; }
  const Koepaketti& Paketti() const { return paketti_; }

  /// Row and column, from 1, of an address such as "$BE$8".
  static std::pair<int, int> Osoite(std::string_view osoite) {
    int rivi = 0, sarake = 0;
    for (const char c : osoite) {
      if (c >= 'A' && c <= 'Z') sarake = sarake * 26 + (c - 'A' + 1);
      if (c >= '0' && c <= '9') rivi = rivi * 10 + (c - '0');
    }
    return {rivi, sarake};
  }

 private:
  struct Muoto {
    std::string kuvio;
    bool lihava = false;
  };

  static std::string Palat(const pugi::xml_node& si) {
    std::string teksti = si.child("t").text().get();
    for (const pugi::xml_node pala : si.children("r")) teksti += pala.child("t").text().get();
    return teksti;
  }
  void LueTekstit() {
    if (!paketti_.OnOsa("xl/sharedStrings.xml")) return;
    const pugi::xml_document xml = paketti_.Xml("xl/sharedStrings.xml");
    for (const pugi::xml_node si : xml.child("sst").children("si")) tekstit_.push_back(Palat(si));
  }
  void LueMuodot() {
    const pugi::xml_document xml = paketti_.Xml("xl/styles.xml");
    const pugi::xml_node tyylit = xml.child("styleSheet");
    std::map<int, std::string> kuviot{{1, "0"}, {2, "0.00"}, {3, "#,##0"}, {4, "#,##0.00"}, {9, "0%"}, {10, "0.00%"}};
    for (const pugi::xml_node n : tyylit.child("numFmts").children("numFmt"))
      kuviot[n.attribute("numFmtId").as_int()] = n.attribute("formatCode").value();
    std::vector<bool> lihavat;
    for (const pugi::xml_node fontti : tyylit.child("fonts").children("font")) lihavat.push_back(fontti.child("b"));
    for (const pugi::xml_node xf : tyylit.child("cellXfs").children("xf"))
      muodot_.push_back({kuviot[xf.attribute("numFmtId").as_int()], lihavat.at(xf.attribute("fontId").as_uint())});
  }
  Koesolu LueSolu(const pugi::xml_node& c) const {
    const std::string_view laji = c.attribute("t").value();
    const Muoto muoto = muodot_.empty() ? Muoto() : muodot_.at(c.attribute("s").as_uint());
    Koesolu solu{.kaava = c.child("f").text().get(), .muoto = muoto.kuvio, .lihava = muoto.lihava};
    if (laji == "s")
      solu.teksti = tekstit_.at(c.child("v").text().as_uint());
    else if (laji == "inlineStr")
      solu.teksti = Palat(c.child("is"));
    else if (laji == "str")
      solu.teksti = c.child("v").text().get();
    else if (c.child("v"))
      solu.luku = c.child("v").text().as_double();
    return solu;
  }
  std::map<std::pair<int, int>, Koesolu> LueSolut(const pugi::xml_document& xml) const {
    std::map<std::pair<int, int>, Koesolu> solut;
    std::pair<int, int> edellinen{};
    for (const pugi::xml_node rivi : xml.child("worksheet").child("sheetData").children("row"))
      for (const pugi::xml_node c : rivi.children("c")) {
        const auto paikka = Osoite(c.attribute("r").value());
        EXPECT_LT(edellinen, paikka) << "solut eivät ole järjestyksessä";
        EXPECT_EQ(paikka.first, rivi.attribute("r").as_int());
        solut[edellinen = paikka] = LueSolu(c);
      }
    return solut;
  }

  Koepaketti paketti_;
  std::vector<std::string> tekstit_;
  std::vector<Muoto> muodot_;
  std::vector<Koesivu> sivut_;
  std::map<std::string, std::string> nimet_;
};
