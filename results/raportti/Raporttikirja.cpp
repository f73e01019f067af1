// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/raportti/Raporttikirja.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <set>
#include <stdexcept>
#include <utility>

#include "kernel/Luvut.h"
#include "results/Taulukkokirja.h"
#include "tekstit/raportti.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::uint8_t kA4 = 9;
constexpr double kNimisarake = 42, kLukusarake = 13;                               // widths in letters
constexpr lxw_col_t kTekstinSarakkeita = 7;                                        // over which a paragraph runs
constexpr double kRivilla = kNimisarake + (kTekstinSarakkeita - 1) * kLukusarake;  // letters of a line of it
constexpr double kRivinkorkeus = 15;                                               // points
constexpr lxw_row_t kKaavionRivit = 17;
constexpr int kKaavionLeveys = 470, kKaavionKorkeus = 320;  // pixels
constexpr std::size_t kPisinTeksti = 32000;                 // letters of a cell: a workbook has room for 32 767
constexpr std::size_t kPitkaTaulukko = 40;                  // rows; headings of such a table are repeated on each page
constexpr lxw_color_t kKorostus = 0x1F5A7A, kVaalea = 0xE6EEF3, kHarmaa = 0x5F6B73, kViiva = 0xB8C4CC;
constexpr lxw_color_t kVarit[] = {0xE69F00, 0x56B4E9, 0x009E73, 0xF0E442, 0x0072B2, 0xD55E00, 0xCC79A7, 0x999999};

void Onnistui(lxw_error virhe) {
  if (virhe) throw std::runtime_error(lxw_strerror(virhe));
}

std::string Solunimi(lxw_row_t rivi, lxw_col_t sarake, bool kiintea = false) {
  char nimi[LXW_MAX_CELL_NAME_LENGTH];
  kiintea ? lxw_rowcol_to_cell_abs(nimi, rivi, sarake, 1, 1) : lxw_rowcol_to_cell(nimi, rivi, sarake);
  return nimi;
}

/// A sheet's name as references have it.
std::string Lainattu(const std::string& valilehti) {
  std::string tulos = "'";
  for (const char c : valilehti) tulos += c == '\'' ? std::string("''") : std::string(1, c);
  return tulos + "'";
}

/// Words of a formula that name cells: those that aren't functions and stand outside the brackets.
std::set<std::string> Nimet(std::string_view kaava) {
  std::set<std::string> nimet;
  int haka = 0;
  for (std::size_t i = 0; i < kaava.size();) {
    haka += (kaava[i] == '[') - (kaava[i] == ']');
    if (haka > 0 || !std::isalpha(static_cast<unsigned char>(kaava[i]))) {
      ++i;
      continue;
    }
    std::size_t loppu = i;
    while (loppu < kaava.size() && (std::isalnum(static_cast<unsigned char>(kaava[loppu])) || kaava[loppu] == '_'))
      ++loppu;
    if (loppu == kaava.size() || kaava[loppu] != '(') nimet.emplace(kaava.substr(i, loppu - i));
    i = loppu;
  }
  return nimet;
}

/// How a cell looks.
struct Ulkoasu {
  std::string kuvio{};
  bool lihava = false, otsikko = false, summa = false, oikea = false, harmaa = false;
  int sisennys = 0;
  double koko = 10;
  auto operator<=>(const Ulkoasu&) const = default;
};

/// Where a table's rows lie on its sheet.
struct Paikka {
  const Raporttitaulukko* taulukko = nullptr;
  lxw_row_t otsikkorivi = 0, ensimmainen = 0, viimeinen = 0;  // rows without sums
};

class Kirja {
 public:
  explicit Kirja(const std::string& tiedosto) : kirja_(workbook_new(tiedosto.c_str())) {}
  ~Kirja() {
    if (kirja_) lxw_workbook_free(kirja_);
  }
  Kirja(const Kirja&) = delete;
  Kirja& operator=(const Kirja&) = delete;

  operator lxw_workbook*() const { return kirja_; }
  lxw_format* Muoto(const Ulkoasu& ulkoasu) {
    lxw_format*& muoto = muodot_[ulkoasu];
    if (!muoto) muoto = TeeMuoto(ulkoasu);
    return muoto;
  }
  /// A sheet of a name like that.
  lxw_worksheet* Lisaa(const std::string& nimi) {
    varatut_.push_back(ValilehdenNimi(nimi, varatut_));
    lxw_worksheet* sivu = workbook_add_worksheet(kirja_, varatut_.back().c_str());
    if (!sivu) throw std::runtime_error("välilehteä " + varatut_.back() + " ei voitu tehdä");
    return sivu;
  }
  const std::string& ViimeisenNimi() const { return varatut_.back(); }
  void Sulje() { SuljeKirja(std::exchange(kirja_, nullptr)); }

 private:
  lxw_format* TeeMuoto(const Ulkoasu& u) {
    lxw_format* muoto = workbook_add_format(kirja_);
    format_set_font_size(muoto, u.koko);
    format_set_align(muoto, LXW_ALIGN_VERTICAL_TOP);
    if (!u.kuvio.empty()) format_set_num_format(muoto, TiedostonKuvio(u.kuvio).c_str());
    if (u.lihava || u.otsikko || u.summa) format_set_bold(muoto);
    if (u.harmaa) format_set_font_color(muoto, kHarmaa);
    if (u.koko > 10) format_set_font_color(muoto, kKorostus);
    if (u.oikea) format_set_align(muoto, LXW_ALIGN_RIGHT);
    if (u.sisennys) format_set_indent(muoto, static_cast<std::uint8_t>(u.sisennys));
    if (u.kuvio.empty() && u.koko <= 10) format_set_text_wrap(muoto);
    if (u.otsikko) {
      format_set_bg_color(muoto, kVaalea);
      format_set_bottom(muoto, LXW_BORDER_THIN);
      format_set_bottom_color(muoto, kKorostus);
    }
    if (u.summa) {
      format_set_top(muoto, LXW_BORDER_THIN);
      format_set_top_color(muoto, kKorostus);
    }
    return muoto;
  }

  lxw_workbook* kirja_;
  std::vector<std::string> varatut_;  // names of sheets
  std::map<Ulkoasu, lxw_format*> muodot_;
};

/// A formula of a table's cell as the workbook has it.
std::string Osoitteiksi(std::string_view kaava, const Paikka& paikka, lxw_row_t rivi) {
  std::string tulos;
  while (!kaava.empty()) {
    const auto alku = kaava.find('[');
    tulos += kaava.substr(0, alku);
    if (alku == kaava.npos) break;
    const auto loppu = kaava.find(']', alku);
    std::string_view viite = kaava.substr(alku + 1, loppu - alku - 1);
    const auto kaksoispiste = viite.find(':');
    const std::string_view mika = kaksoispiste == viite.npos ? "" : viite.substr(kaksoispiste + 1);
    const auto sarake = static_cast<lxw_col_t>(paikka.taulukko->Sarake(viite.substr(0, kaksoispiste)));
    if (mika == "kaikki")
      tulos += Solunimi(paikka.ensimmainen, sarake) + ":" + Solunimi(paikka.viimeinen, sarake);
    else if (mika == "summa")
      tulos += Solunimi(paikka.viimeinen + 1, sarake, true);
    else
      tulos += Solunimi(mika == "edellinen" ? rivi - 1 : rivi, sarake);
    kaava.remove_prefix(loppu + 1);
  }
  return "=" + tulos;
}

std::string Otsikko(const Raportinosa& osa) { return osa.numero + " " + osa.otsikko; }

/// One chapter on its sheet, from the top down.
class Valilehti {
 public:
  Valilehti(Kirja& kirja, const Raportti& raportti, const Raportinosa& osa, const std::set<std::string>& nimet)
      : kirja_(kirja), nimet_(nimet), sivu_(kirja.Lisaa(Otsikko(osa))), nimi_(kirja.ViimeisenNimi()) {
    AsetaSivu(raportti);
    Teksti(Otsikko(osa), {.lihava = true, .koko = 16});
    Teksti(raportti.kohde, {.harmaa = true});
    ++rivi_;
    KeraaPaikat(osa);
    for (const Raporttilohko& lohko : osa.lohkot) std::visit([&](const auto& l) { Kirjoita(l); }, lohko);
    if (const Paikka* pitka = PitkaTaulukko()) worksheet_repeat_rows(sivu_, pitka->otsikkorivi, pitka->otsikkorivi);
  }

 private:
  void AsetaSivu(const Raportti& raportti) {
    worksheet_set_portrait(sivu_);
    worksheet_set_paper(sivu_, kA4);
    worksheet_fit_to_pages(sivu_, 1, 0);
    worksheet_gridlines(sivu_, LXW_HIDE_ALL_GRIDLINES);
    worksheet_set_column(sivu_, 0, 0, kNimisarake, nullptr);
    worksheet_set_column(sivu_, 1, 20, kLukusarake, nullptr);
    worksheet_set_header(sivu_,
                         Rajattu("&L&8" + Koodeitta(raportti.kohde) + "&R&8" + Koodeitta(raportti.otsikko)).c_str());
    worksheet_set_footer(sivu_, Rajattu("&L&8" + Koodeitta(raportti.pvm) + "&C&8&A&R&8&P/&N").c_str());
  }
  /// "&" begins a code there.
  static std::string Koodeitta(const std::string& teksti) {
    std::string tulos;
    for (const char c : teksti.substr(0, 60)) tulos += c == '&' ? std::string("&&") : std::string(1, c);
    while (!tulos.empty() && (tulos.back() & 0x80)) tulos.pop_back();  // no half of a letter
    return tulos;
  }
  static std::string Rajattu(std::string teksti) { return teksti.substr(0, 254); }

  // --- lines and cells
  void Teksti(const std::string& teksti, const Ulkoasu& ulkoasu) {
    Onnistui(worksheet_write_string(sivu_, rivi_++, 0, teksti.c_str(), kirja_.Muoto(ulkoasu)));
  }
  /// A text over the width of the page, in rows as high as it needs.
  void Palsta(std::string_view teksti, const Ulkoasu& ulkoasu) {
    while (!teksti.empty()) {
      std::size_t pituus = std::min(teksti.size(), kPisinTeksti);
      while (pituus < teksti.size() && (teksti[pituus] & 0xC0) == 0x80) --pituus;
      const std::string pala(teksti.substr(0, pituus));
      const auto merkkeja = static_cast<double>(std::ranges::count_if(pala, [](char c) { return (c & 0xC0) != 0x80; }));
      worksheet_set_row(sivu_, rivi_, std::min(409.0, std::ceil(merkkeja / (kRivilla * 1.05)) * kRivinkorkeus),
                        nullptr);
      Onnistui(
          worksheet_merge_range(sivu_, rivi_, 0, rivi_, kTekstinSarakkeita - 1, pala.c_str(), kirja_.Muoto(ulkoasu)));
      ++rivi_;
      teksti.remove_prefix(pituus);
    }
  }

  void Luku(lxw_col_t sarake, const Raporttiluku& luku, const Ulkoasu& ulkoasu, const Paikka* paikka) {
    lxw_format* muoto = kirja_.Muoto(ulkoasu);
    if (!std::isfinite(luku.arvo)) {
      Onnistui(worksheet_write_string(sivu_, rivi_, sarake, Muotoile(luku.arvo, luku.kuvio).c_str(), muoto));
    } else if (!paikka || luku.kaava.empty() || !std::ranges::includes(nimet_, Nimet(luku.kaava))) {
      Onnistui(worksheet_write_number(sivu_, rivi_, sarake, luku.arvo, muoto));
    } else {
      Onnistui(worksheet_write_formula_num(sivu_, rivi_, sarake, Osoitteiksi(luku.kaava, *paikka, rivi_).c_str(), muoto,
                                           luku.arvo));
    }
    if (!luku.nimi.empty())
      Onnistui(workbook_define_name(kirja_, luku.nimi.c_str(),
                                    ("=" + Lainattu(nimi_) + "!" + Solunimi(rivi_, sarake, true)).c_str()));
  }
  void Solu(lxw_col_t sarake, const Raporttisolu& solu, Ulkoasu ulkoasu, const Paikka* paikka) {
    if (const auto* luku = std::get_if<Raporttiluku>(&solu)) {
      ulkoasu.kuvio = luku->kuvio;
      ulkoasu.oikea = false;
      return Luku(sarake, *luku, ulkoasu, paikka);
    }
    const auto& teksti = std::get<std::string>(solu);
    if (teksti.empty())
      Onnistui(worksheet_write_blank(sivu_, rivi_, sarake, kirja_.Muoto(ulkoasu)));
    else
      Onnistui(worksheet_write_string(sivu_, rivi_, sarake, teksti.c_str(), kirja_.Muoto(ulkoasu)));
  }

  // --- blocks
  void Kirjoita(const Raporttiotsikko& otsikko) {
    ++rivi_;
    Teksti(otsikko.teksti, {.lihava = true, .koko = 13});
  }
  void Kirjoita(const Raporttikappale& kappale) {
    Palsta(kappale.teksti, {.harmaa = kappale.tyyli == Raporttikappale::Huomautus});
  }
  void Kirjoita(const Avainluvut& luvut) {
    for (const Avainluku& luku : luvut.luvut) {
      Solu(0, luku.otsikko, {}, nullptr);
      Solu(1, Raporttiluku{luku.arvo, luku.kuvio}, {.lihava = true}, nullptr);
      Solu(2, luku.yksikko, {}, nullptr);
      if (!luku.lisatieto.empty()) Solu(3, luku.lisatieto, {.kuvio = "@", .harmaa = true}, nullptr);
      ++rivi_;
    }
    ++rivi_;
  }
  void Kirjoita(const Raporttitaulukko& taulukko) {
    if (!taulukko.otsikko.empty()) Palsta(taulukko.otsikko, {.lihava = true});
    Paikka& paikka = paikat_[seuraava_++];
    Otsikkorivi(taulukko, paikka);
    for (const Raporttirivi& rivi : taulukko.rivit) Rivi(taulukko, rivi, paikka);
    if (!taulukko.huomautus.empty()) Palsta(taulukko.huomautus, {.harmaa = true});
    ++rivi_;
  }
  void Otsikkorivi(const Raporttitaulukko& taulukko, Paikka& paikka) {
    paikka.otsikkorivi = rivi_;
    paikka.ensimmainen = rivi_ + 1;
    const auto summia = std::ranges::count(taulukko.rivit, Rivilajike::Summa, &Raporttirivi::lajike);
    paikka.viimeinen = rivi_ + static_cast<lxw_row_t>(taulukko.rivit.size() - static_cast<std::size_t>(summia));
    worksheet_set_row(sivu_, rivi_, 2 * kRivinkorkeus + 2, nullptr);
    for (std::size_t i = 0; i < taulukko.sarakkeet.size(); ++i) {
      const Raporttisarake& s = taulukko.sarakkeet[i];
      Solu(static_cast<lxw_col_t>(i), s.yksikko.empty() ? s.otsikko : s.otsikko + "\n" + s.yksikko,
           {.otsikko = true, .oikea = s.lukuja}, nullptr);
    }
    ++rivi_;
  }
  void Rivi(const Raporttitaulukko& taulukko, const Raporttirivi& rivi, const Paikka& paikka) {
    const Ulkoasu pohja{.lihava = rivi.lajike == Rivilajike::Valiotsikko, .summa = rivi.lajike == Rivilajike::Summa};
    for (std::size_t i = 0; i < rivi.solut.size(); ++i) {
      Ulkoasu ulkoasu = pohja;
      if (i == 0) ulkoasu.sisennys = rivi.sisennys;
      ulkoasu.oikea = i > 0 && taulukko.sarakkeet.at(i).lukuja;
      Solu(static_cast<lxw_col_t>(i), rivi.solut[i], ulkoasu, &paikka);
    }
    ++rivi_;
  }

  // --- charts
  void Kirjoita(const Raporttikaaviot& kaaviot) {
    int x = 0;
    for (const Raporttikaavio& kaavio : kaaviot.kaaviot) {
      lxw_chart* piirros = Piirros(kaavio);
      if (!piirros) continue;
      lxw_chart_options asetukset{};
      asetukset.x_offset = x;
      asetukset.x_scale = kKaavionLeveys / 480.0;  // 480 by 288 is the library's own size
      asetukset.y_scale = kKaavionKorkeus / 288.0;
      Onnistui(worksheet_insert_chart_opt(sivu_, rivi_, 0, piirros, &asetukset));
      x += kKaavionLeveys + 10;
    }
    if (x > 0) rivi_ += kKaavionRivit;
  }
  lxw_chart* Piirros(const Raporttikaavio& kaavio) const {
    const auto paikka = std::ranges::find_if(
        paikat_, [&](const Paikka& p) { return !kaavio.taulukko.empty() && p.taulukko->tunnus == kaavio.taulukko; });
    // The table has to stand above its chart: its rows are known then.
    if (paikka == paikat_.end() || paikka->viimeinen < paikka->ensimmainen) return nullptr;
    lxw_chart* piirros = workbook_add_chart(kirja_, static_cast<std::uint8_t>(Laji(kaavio)));
    for (std::size_t i = 0; i < kaavio.sarjat.size(); ++i) LisaaSarja(piirros, kaavio, *paikka, i);
    chart_title_set_name(piirros, kaavio.tiedot.otsikko.c_str());
    lxw_chart_font otsikko{};
    otsikko.size = 11;
    otsikko.bold = LXW_TRUE;
    chart_title_set_name_font(piirros, &otsikko);
    if (kaavio.laji == Kaaviolaji::Piirakka) return piirros;
    chart_axis_set_name(piirros->y_axis, kaavio.tiedot.yksikko.c_str());
    chart_legend_set_position(piirros, LXW_CHART_LEGEND_BOTTOM);
    if (kaavio.laji == Kaaviolaji::Vesiputous) chart_legend_set_position(piirros, LXW_CHART_LEGEND_NONE);
    return piirros;
  }
  static lxw_chart_type Laji(const Raporttikaavio& kaavio) {
    switch (kaavio.laji) {
      case Kaaviolaji::Piirakka:
        return LXW_CHART_PIE;
      case Kaaviolaji::Kayrat:
        return LXW_CHART_LINE;
      case Kaaviolaji::Vesiputous:
        return LXW_CHART_COLUMN_STACKED;
      default:
        return LXW_CHART_COLUMN;
    }
  }
  void LisaaSarja(lxw_chart* piirros, const Raporttikaavio& kaavio, const Paikka& paikka, std::size_t i) const {
    const auto sarake = static_cast<lxw_col_t>(paikka.taulukko->Sarake(kaavio.sarjat[i]));
    lxw_chart_series* sarja = chart_add_series(piirros, Alue(paikka, 0).c_str(), Alue(paikka, sarake).c_str());
    chart_series_set_name(sarja, paikka.taulukko->sarakkeet[sarake].otsikko.c_str());
    lxw_chart_fill tayte{};
    tayte.color = kVarit[(i + 4) % std::size(kVarit)];

    if (kaavio.laji == Kaaviolaji::Piirakka)
      VaritaSiivut(sarja, paikka);
    else
      chart_series_set_fill(sarja, &tayte);
  }
  static void VaritaSiivut(lxw_chart_series* sarja, const Paikka& paikka) {
    const std::size_t maara = paikka.viimeinen - paikka.ensimmainen + 1;
    std::vector<lxw_chart_fill> taytteet(maara);
    std::vector<lxw_chart_point> siivut(maara);
    std::vector<lxw_chart_point*> osoittimet;
    for (std::size_t i = 0; i < maara; ++i) {
      taytteet[i].color = kVarit[i % std::size(kVarit)];
      siivut[i].fill = &taytteet[i];
      osoittimet.push_back(&siivut[i]);
    }
    osoittimet.push_back(nullptr);
    chart_series_set_points(sarja, osoittimet.data());
    chart_series_set_labels(sarja);
    chart_series_set_labels_options(sarja, LXW_FALSE, LXW_FALSE, LXW_FALSE);
    chart_series_set_labels_percentage(sarja);
  }
  std::string Alue(const Paikka& paikka, lxw_col_t sarake) const {
    return "=" + Lainattu(nimi_) + "!" + Solunimi(paikka.ensimmainen, sarake, true) + ":" +
           Solunimi(paikka.viimeinen, sarake, true);
  }

  void KeraaPaikat(const Raportinosa& osa) {
    for (const Raporttilohko& lohko : osa.lohkot)
      if (const auto* taulukko = std::get_if<Raporttitaulukko>(&lohko)) paikat_.push_back({.taulukko = taulukko});
  }
  const Paikka* PitkaTaulukko() const {
    const auto pisin = std::ranges::max_element(paikat_, {}, [](const Paikka& p) { return p.taulukko->rivit.size(); });
    return pisin != paikat_.end() && pisin->taulukko->rivit.size() > kPitkaTaulukko ? &*pisin : nullptr;
  }

  Kirja& kirja_;
  const std::set<std::string>& nimet_;  // that cells of the report have
  lxw_worksheet* sivu_;
  std::string nimi_;
  lxw_row_t rivi_ = 0;
  std::vector<Paikka> paikat_;
  std::size_t seuraava_ = 0;  // table
};

/// The first sheet: what the report is, and its chapters with links to their sheets.
void KirjoitaKansi(Kirja& kirja, lxw_worksheet* sivu, const Raportti& raportti,
                   const std::vector<std::string>& valilehdet) {
  worksheet_set_paper(sivu, kA4);
  worksheet_fit_to_pages(sivu, 1, 0);
  worksheet_gridlines(sivu, LXW_HIDE_ALL_GRIDLINES);
  worksheet_set_column(sivu, 0, 0, 80, nullptr);
  lxw_row_t rivi = 0;
  const auto kirjoita = [&](const std::string& teksti, const Ulkoasu& ulkoasu) {
    Onnistui(worksheet_write_string(sivu, rivi++, 0, teksti.c_str(), kirja.Muoto(ulkoasu)));
  };
  kirjoita(raportti.otsikko, {.harmaa = true});
  kirjoita(raportti.kohde, {.lihava = true, .koko = 20});
  kirjoita(raportti.alaotsikko, {});
  for (const std::string& kansirivi : raportti.kansirivit) kirjoita(kansirivi, {.harmaa = true});
  ++rivi;
  for (std::size_t i = 0; i < valilehdet.size(); ++i)
    Onnistui(worksheet_write_url_opt(sivu, rivi++, 0, ("internal:" + Lainattu(valilehdet[i]) + "!A1").c_str(), nullptr,
                                     Otsikko(raportti.osat[i]).c_str(), nullptr));
}

std::set<std::string> SolujenNimet(const Raportti& raportti) {
  std::set<std::string> nimet;
  for (const Raportinosa& osa : raportti.osat)
    for (const Raporttilohko& lohko : osa.lohkot)
      if (const auto* taulukko = std::get_if<Raporttitaulukko>(&lohko))
        for (const Raporttirivi& rivi : taulukko->rivit)
          for (const Raporttisolu& solu : rivi.solut)
            if (const auto* luku = std::get_if<Raporttiluku>(&solu); luku && !luku->nimi.empty())
              nimet.insert(luku->nimi);
  return nimet;
}

void Kirjoita(const Raportti& raportti, const std::string& tiedosto) {
  Kirja kirja(tiedosto);
  std::string otsikko = raportti.otsikko + ": " + raportti.kohde, tekija = raportti.tekija, ohjelma = raportti.ohjelma;
  lxw_doc_properties tiedot{};
  tiedot.title = otsikko.data();
  tiedot.author = tekija.data();
  tiedot.comments = ohjelma.data();
  Onnistui(workbook_set_properties(kirja, &tiedot));
  lxw_worksheet* kansi = kirja.Lisaa(Teksti(tekstit::kRaportinSisallys));
  const std::set<std::string> nimet = SolujenNimet(raportti);
  std::vector<std::string> valilehdet;
  for (const Raportinosa& osa : raportti.osat) {
    Valilehti(kirja, raportti, osa, nimet);
    valilehdet.push_back(kirja.ViimeisenNimi());
  }
  KirjoitaKansi(kirja, kansi, raportti, valilehdet);
  kirja.Sulje();
}

}  // namespace

void KirjoitaRaporttikirja(const Raportti& raportti, const std::string& tiedosto) {
  KirjoitaKokonaan(tiedosto, [&](const std::string& uusi) { Kirjoita(raportti, uusi); });
}
