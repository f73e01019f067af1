// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Tyokirjapohja.h"

#include <zip.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "kernel/Luvut.h"
#include "kernel/Tiedostot.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char *kKirja = "xl/workbook.xml", *kSuhteet = "xl/_rels/workbook.xml.rels", *kTyylit = "xl/styles.xml",
                     *kLaskentajarjestys = "xl/calcChain.xml", *kTyypit = "[Content_Types].xml";
constexpr int kMaxSarake = 16384;                 // of a sheet
constexpr zip_uint64_t kSuurinOsa = 256U << 20U;  // bytes; a part that claims more is no part of a workbook

std::string VirheenSyy(zip_error_t& virhe) {
  const int jarjestelman = zip_error_system_type(&virhe) == ZIP_ET_SYS ? zip_error_code_system(&virhe) : 0;
  return jarjestelman ? Selitys({jarjestelman, std::generic_category()}) : Teksti(tekstit::kEiTyokirja);
}

/// An open package. What has been changed in it is written by Sulje.
class Paketti {
 public:
  Paketti(const std::string& tiedosto, int tapa) {
    int koodi = 0;
    zip_ = zip_open(tiedosto.c_str(), tapa, &koodi);
    if (zip_) return;
    const int syy = errno;
    zip_error_t virhe;
    zip_error_init_with_code(&virhe, koodi);
    const bool jarjestelman = zip_error_system_type(&virhe) == ZIP_ET_SYS || koodi == ZIP_ER_NOENT;
    zip_error_fini(&virhe);
    throw std::runtime_error(jarjestelman && syy ? Selitys({syy, std::generic_category()})
                                                 : Teksti(tekstit::kEiTyokirja));
  }
  ~Paketti() {
    if (zip_) zip_discard(zip_);
  }
  Paketti(const Paketti&) = delete;
  Paketti& operator=(const Paketti&) = delete;

  bool OnOsa(const std::string& nimi) const { return zip_name_locate(zip_, nimi.c_str(), 0) >= 0; }
  std::vector<std::string> Osat(std::string_view kansio) const {
    std::vector<std::string> nimet;
    for (zip_int64_t i = 0; i < zip_get_num_entries(zip_, 0); ++i)
      if (const std::string nimi = zip_get_name(zip_, static_cast<zip_uint64_t>(i), 0);
          nimi.starts_with(kansio) && nimi.ends_with(".xml"))
        nimet.push_back(nimi);
    return nimet;
  }
  pugi::xml_document Lue(const std::string& nimi) const {
    zip_stat_t tiedot;
    if (zip_stat(zip_, nimi.c_str(), 0, &tiedot) != 0 || tiedot.size > kSuurinOsa) Viallinen();
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> osa(zip_fopen(zip_, nimi.c_str(), 0), zip_fclose);
    std::string sisalto(tiedot.size, '\0');
    if (!osa || zip_fread(osa.get(), sisalto.data(), tiedot.size) != static_cast<zip_int64_t>(tiedot.size)) Viallinen();
    pugi::xml_document xml;
    constexpr unsigned kKaikki = pugi::parse_default | pugi::parse_declaration | pugi::parse_ws_pcdata;
    if (!xml.load_buffer(sisalto.data(), sisalto.size(), kKaikki)) Viallinen();
    return xml;
  }
  void Vaihda(const std::string& nimi, const pugi::xml_document& xml) {
    std::ostringstream virta;
    xml.save(virta, "", pugi::format_raw);
    const std::string& teksti = sisallot_.emplace_back(std::make_unique<std::string>(virta.str())).operator*();
    zip_source_t* lahde = zip_source_buffer(zip_, teksti.data(), teksti.size(), 0);
    const zip_int64_t paikka = zip_name_locate(zip_, nimi.c_str(), 0);
    if (!lahde || paikka < 0 || zip_file_replace(zip_, static_cast<zip_uint64_t>(paikka), lahde, 0) != 0) Kaadu();
  }
  void Poista(const std::string& nimi) {
    if (zip_delete(zip_, static_cast<zip_uint64_t>(zip_name_locate(zip_, nimi.c_str(), 0))) != 0) Kaadu();
  }
  void Sulje() {
    if (zip_close(zip_) != 0) Kaadu();
    zip_ = nullptr;
  }

 private:
  [[noreturn]] static void Viallinen() { throw std::runtime_error(Teksti(tekstit::kEiTyokirja)); }
  [[noreturn]] void Kaadu() { throw std::runtime_error(VirheenSyy(*zip_get_error(zip_))); }

  zip_t* zip_;
  std::vector<std::unique_ptr<std::string>> sisallot_;  // read when the package is closed
};

std::string Sarakekirjaimet(int sarake) {
  std::string kirjaimet;
  for (; sarake > 0; sarake = (sarake - 1) / 26)
    kirjaimet.insert(kirjaimet.begin(), static_cast<char>('A' + (sarake - 1) % 26));
  return kirjaimet;
}

std::string Osoite(Tyokirjapohja::Paikka paikka) {
  return Sarakekirjaimet(paikka.second) + std::to_string(paikka.first);
}

/// Row and column of "BE8" or "$BE$8"; 0 where it has none.
Tyokirjapohja::Paikka Osoitteesta(std::string_view osoite) {
  Tyokirjapohja::Paikka paikka{0, 0};
  for (const char c : osoite) {
    if (c >= 'A' && c <= 'Z') paikka.second = std::min(paikka.second * 26 + (c - 'A' + 1), kMaxSarake);
    if (c >= '0' && c <= '9') paikka.first = paikka.first * 10 + (c - '0');
    if (c == ':') break;
  }
  return paikka;
}

void KaikillaAlla(const pugi::xml_node& solmu, std::string_view nimi, const std::function<void(pugi::xml_node)>& tee) {
  std::vector<pugi::xml_node> loydot;
  for (const pugi::xml_node lapsi : solmu.children())
    if (lapsi.name() == nimi)
      loydot.push_back(lapsi);
    else
      KaikillaAlla(lapsi, nimi, tee);
  for (const pugi::xml_node& loyto : loydot) tee(loyto);
}

/// Cells with a formula lose what the formula gave last.
void PoistaTulokset(const pugi::xml_node& solut) {
  for (const pugi::xml_node rivi : solut.children("row"))
    for (pugi::xml_node solu : rivi.children("c")) {
      if (!solu.child("f")) continue;
      solu.remove_child("v");
      solu.remove_attribute("t");
    }
}

void PoistaMuistetut(pugi::xml_document& kaavio) {
  for (const char* muisti : {"c:numCache", "c:strCache"})
    KaikillaAlla(kaavio, muisti, [](pugi::xml_node n) { n.parent().remove_child(n); });
}

/// The order in which formulas were computed is another matter of the past; a workbook does without it.
void PoistaLaskentajarjestys(Paketti& paketti) {
  if (!paketti.OnOsa(kLaskentajarjestys)) return;
  pugi::xml_document suhteet = paketti.Lue(kSuhteet), tyypit = paketti.Lue(kTyypit);
  KaikillaAlla(suhteet, "Relationship", [](pugi::xml_node n) {
    if (std::string_view(n.attribute("Type").value()).ends_with("/calcChain")) n.parent().remove_child(n);
  });
  KaikillaAlla(tyypit, "Override", [](pugi::xml_node n) {
    if (std::string_view(n.attribute("PartName").value()) == "/" + std::string(kLaskentajarjestys))
      n.parent().remove_child(n);
  });
  paketti.Vaihda(kSuhteet, suhteet);
  paketti.Vaihda(kTyypit, tyypit);
  paketti.Poista(kLaskentajarjestys);
}

/// The name of a sheet from a reference: 'Vuosi ''24' or Vuosi.
std::string Lehti(std::string_view viite) {
  if (!viite.starts_with('\'') || viite.size() < 2) return std::string(viite);
  std::string nimi;
  for (std::size_t i = 1; i + 1 < viite.size(); ++i) {
    nimi += viite[i];
    if (viite[i] == '\'') ++i;
  }
  return nimi;
}

/// The name of a part from its relation: "worksheets/sheet1.xml" or "/xl/worksheets/sheet1.xml".
std::string Osannimi(std::string_view kohde) {
  return kohde.starts_with('/') ? std::string(kohde.substr(1)) : "xl/" + std::string(kohde);
}

/// A new child at the place of its number: before the first one with a greater one.
pugi::xml_node Lisaa(pugi::xml_node isa, const char* nimi, const std::function<bool(pugi::xml_node)>& suurempi) {
  for (const pugi::xml_node lapsi : isa.children(nimi))
    if (suurempi(lapsi)) return isa.insert_child_before(nimi, lapsi);
  return isa.append_child(nimi);
}

}  // namespace

Tyokirjapohja::Tyokirjapohja(std::string tiedosto) : tiedosto_(std::move(tiedosto)) {
  const Paketti paketti(tiedosto_, ZIP_RDONLY);
  kirja_ = paketti.Lue(kKirja);
  const pugi::xml_node ensimmainen = kirja_.child("workbook").child("sheets").child("sheet");
  sivunNimi_ = ensimmainen.attribute("name").value();
  const pugi::xml_document suhteet = paketti.Lue(kSuhteet);
  const pugi::xml_node suhde =
      suhteet.child("Relationships").find_child_by_attribute("Id", ensimmainen.attribute("r:id").value());
  sivunOsa_ = Osannimi(suhde.attribute("Target").value());
  sivu_ = paketti.Lue(sivunOsa_);
  tyylit_ = paketti.Lue(kTyylit);
  if (!sivu_.child("worksheet").child("sheetData")) throw std::runtime_error(Teksti(tekstit::kEiTyokirja));
  NumeroiSolut();
}

/// The numbers of rows and cells may be left out of a file; the size told of the sheet doesn't hold once it is filled.
void Tyokirjapohja::NumeroiSolut() {
  pugi::xml_node lehti = sivu_.child("worksheet");
  lehti.remove_child("dimension");
  int rivinumero = 0;
  for (pugi::xml_node rivi : lehti.child("sheetData").children("row")) {
    rivinumero = rivi.attribute("r").as_int(rivinumero + 1);
    rivi.remove_attribute("spans");
    if (!rivi.attribute("r")) rivi.prepend_attribute("r") = rivinumero;
    int sarake = 0;
    for (pugi::xml_node solu : rivi.children("c")) {
      sarake = solu.attribute("r") ? Osoitteesta(solu.attribute("r").value()).second : sarake + 1;
      if (!solu.attribute("r")) solu.prepend_attribute("r") = Osoite({rivinumero, sarake}).c_str();
    }
  }
}

Tyokirjapohja::Paikka Tyokirjapohja::Nimetty(const std::string& nimi, Paikka muuten) const {
  const std::string_view viite =
      kirja_.child("workbook").child("definedNames").find_child_by_attribute("name", nimi.c_str()).text().get();
  const auto huuto = viite.rfind('!');
  if (huuto == viite.npos) return muuten;
  const Paikka paikka = Osoitteesta(viite.substr(huuto + 1));
  return Lehti(viite.substr(0, huuto)) == sivunNimi_ && paikka.first > 0 && paikka.second > 0 ? paikka : muuten;
}

pugi::xml_node Tyokirjapohja::Loyda(Paikka paikka) const {
  const std::string osoite = Osoite(paikka);
  return sivu_.child("worksheet")
      .child("sheetData")
      .find_child_by_attribute("row", "r", std::to_string(paikka.first).c_str())
      .find_child_by_attribute("c", "r", osoite.c_str());
}

pugi::xml_node Tyokirjapohja::Solu(Paikka paikka) {
  if (pugi::xml_node vanha = Loyda(paikka)) return vanha;
  pugi::xml_node solut = sivu_.child("worksheet").child("sheetData");
  pugi::xml_node rivi = solut.find_child_by_attribute("row", "r", std::to_string(paikka.first).c_str());
  if (!rivi) {
    rivi = Lisaa(solut, "row", [&](pugi::xml_node n) { return n.attribute("r").as_int() > paikka.first; });
    rivi.append_attribute("r") = paikka.first;
  }
  pugi::xml_node solu =
      Lisaa(rivi, "c", [&](pugi::xml_node n) { return Osoitteesta(n.attribute("r").value()).second > paikka.second; });
  solu.append_attribute("r") = Osoite(paikka).c_str();
  return solu;
}

bool Tyokirjapohja::OnKaava(Paikka paikka) const { return Loyda(paikka).child("f"); }

/// The style with a bold font; added to the styles when first asked.
std::string Tyokirjapohja::LihavaTyyli(const std::string& tyyli) {
  std::string& lihava = lihavat_[tyyli];
  if (!lihava.empty()) return lihava;
  pugi::xml_node fontit = tyylit_.child("styleSheet").child("fonts"),
                 xft = tyylit_.child("styleSheet").child("cellXfs");
  const auto n = [](pugi::xml_node joukko, int paikka) {
    auto it = joukko.children().begin();
    for (int i = 0; i < paikka && it != joukko.children().end(); ++i) ++it;
    return it == joukko.children().end() ? pugi::xml_node() : *it;
  };
  const auto lisaa = [](pugi::xml_node joukko, const pugi::xml_node& malli) {
    pugi::xml_node uusi = joukko.append_copy(malli);
    const auto maara = std::distance(joukko.children().begin(), joukko.children().end());
    joukko.attribute("count") = static_cast<int>(maara);
    return std::pair(uusi, static_cast<int>(maara) - 1);
  };
  const pugi::xml_node xf = n(xft, tyyli.empty() ? 0 : std::atoi(tyyli.c_str()));
  const pugi::xml_node fontti = n(fontit, xf.attribute("fontId").as_int());
  if (!xf || !fontti || fontti.child("b")) return lihava = tyyli.empty() ? "0" : tyyli;
  auto [uusiFontti, fontinNumero] = lisaa(fontit, fontti);
  uusiFontti.prepend_child("b");
  auto [uusiXf, xfnNumero] = lisaa(xft, xf);
  uusiXf.attribute("fontId") = fontinNumero;
  if (!uusiXf.attribute("applyFont")) uusiXf.append_attribute("applyFont");
  uusiXf.attribute("applyFont") = 1;
  return lihava = std::to_string(xfnNumero);
}

void Tyokirjapohja::Kirjoita(Paikka paikka, const Taulukkosolu& sisalto, bool lihava) {
  pugi::xml_node solu = Solu(paikka);
  solu.remove_children();
  solu.remove_attribute("t");
  if (lihava) {
    const std::string tyyli = LihavaTyyli(solu.attribute("s").value());
    if (!solu.attribute("s")) solu.append_attribute("s");
    solu.attribute("s") = tyyli.c_str();
  }
  if (const auto* luku = std::get_if<Taulukkoluku>(&sisalto)) {
    solu.append_child("v").text() = LyhinMuoto(luku->arvo).c_str();
    return;
  }
  const std::string& teksti = std::get<std::string>(sisalto);
  if (teksti.empty()) return;
  solu.append_attribute("t") = "inlineStr";
  pugi::xml_node t = solu.append_child("is").append_child("t");
  t.append_attribute("xml:space") = "preserve";
  t.text() = teksti.c_str();
}

void Tyokirjapohja::PyydaLaskemaanAvattaessa() {
  pugi::xml_node kirja = kirja_.child("workbook"), laskenta = kirja.child("calcPr");
  if (!laskenta) {
    const pugi::xml_node nimet = kirja.child("definedNames");
    laskenta = kirja.insert_child_after("calcPr", nimet ? nimet : kirja.child("sheets"));
  }
  if (!laskenta.attribute("fullCalcOnLoad")) laskenta.append_attribute("fullCalcOnLoad");
  laskenta.attribute("fullCalcOnLoad") = 1;
}

void Tyokirjapohja::Tallenna(const std::string& tiedosto) {
  PoistaTulokset(sivu_.child("worksheet").child("sheetData"));
  PyydaLaskemaanAvattaessa();
  const std::string uusi = tiedosto + ".uusi";
  try {
    std::filesystem::copy_file(tiedosto_, uusi, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::permissions(uusi, std::filesystem::perms::owner_write, std::filesystem::perm_options::add);
    Paketti paketti(uusi, 0);
    paketti.Vaihda(sivunOsa_, sivu_);
    paketti.Vaihda(kKirja, kirja_);
    paketti.Vaihda(kTyylit, tyylit_);
    for (const std::string& osa : paketti.Osat("xl/worksheets/")) {
      if (osa == sivunOsa_) continue;
      const pugi::xml_document muu = paketti.Lue(osa);
      PoistaTulokset(muu.child("worksheet").child("sheetData"));
      paketti.Vaihda(osa, muu);
    }
    for (const std::string& osa : paketti.Osat("xl/charts/")) {
      pugi::xml_document kaavio = paketti.Lue(osa);
      PoistaMuistetut(kaavio);
      paketti.Vaihda(osa, kaavio);
    }
    PoistaLaskentajarjestys(paketti);
    paketti.Sulje();
    std::filesystem::rename(uusi, tiedosto);
  } catch (const std::filesystem::filesystem_error& virhe) {
    std::remove(uusi.c_str());
    throw std::runtime_error(Selitys(virhe.code()));
  } catch (...) {
    std::remove(uusi.c_str());
    throw;
  }
}
