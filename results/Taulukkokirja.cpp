// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Taulukkokirja.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <system_error>
#include <tuple>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "kernel/Tiedostot.h"
#include "settings/Sivuasetukset.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kKapeinSarake = 6, kTavallinenSarake = 8.43, kIlma = 2;  // in letters
constexpr double kMillimetrejaTuumassa = 25.4;
constexpr std::size_t kNimenPituus = 31;  // of a sheet, in UTF-16 units
constexpr std::string_view kKielletyt = "[]:*?/\\";
constexpr const char* kSivunumero = "&R&P / &N";

/// Papers by their number in the file.
struct Paperi {
  std::string_view nimi;
  std::uint8_t numero;
};
constexpr Paperi kPaperit[] = {{"Letter", 1}, {"A3", 8}, {"A4", 9}, {"A5", 11}};
constexpr std::uint8_t kA4 = 9;

std::uint8_t Paperinumero(std::string_view nimi) {
  const auto paperi = std::ranges::find_if(kPaperit, [&](const Paperi& p) { return SamaNimi(p.nimi, nimi); });
  return paperi == std::end(kPaperit) ? kA4 : paperi->numero;
}

bool AloittaaMerkin(char c) { return (c & 0xC0) != 0x80; }

/// Letters of a text.
std::size_t Pituus(std::string_view teksti) {
  return static_cast<std::size_t>(std::ranges::count_if(teksti, AloittaaMerkin));
}

/// The start of the text in at most so many UTF-16 units.
std::string_view Alkuosa(std::string_view teksti, std::size_t enintaan) {
  std::size_t maara = 0;
  for (std::size_t i = 0; i < teksti.size(); ++i) {
    if (!AloittaaMerkin(teksti[i])) continue;
    maara += static_cast<unsigned char>(teksti[i]) >= 0xF0 ? 2 : 1;
    if (maara > enintaan) return teksti.substr(0, i);
  }
  return teksti;
}

std::string Siistitty(std::string_view nimi) {
  std::string tulos;
  for (const char c : nimi)
    tulos += static_cast<unsigned char>(c) < ' ' || kKielletyt.find(c) != kKielletyt.npos ? ' ' : c;
  const auto turha = [](char c) { return c == ' ' || c == '\''; };
  tulos = Alkuosa(tulos, kNimenPituus);
  while (!tulos.empty() && turha(tulos.back())) tulos.pop_back();
  tulos.erase(tulos.begin(), std::ranges::find_if_not(tulos, turha));
  return tulos.empty() ? Teksti(tekstit::kTaulukko) : tulos;
}

/// In a header of a page "&" begins a code.
std::string Ylatunniste(const std::string& otsikko) {
  constexpr std::size_t kEnintaan = 200;  // of the file's 255, with room for doubled marks
  std::string tulos = "&L";
  for (const char c : Alkuosa(otsikko, kEnintaan)) tulos += c == '&' ? std::string("&&") : std::string(1, c);
  return Pituus(tulos) > kEnintaan ? std::string() : tulos;
}

/// A workbook being written.
class Kirjoittaja {
 public:
  explicit Kirjoittaja(const std::string& tiedosto)
      : sivuasetukset_(HaeSivuasetukset()), kirja_(workbook_new(tiedosto.c_str())) {}
  Kirjoittaja(const Kirjoittaja&) = delete;
  Kirjoittaja& operator=(const Kirjoittaja&) = delete;

  void Sivu(const Taulukkosivu& sivu) {
    nimet_.push_back(ValilehdenNimi(sivu.nimi, nimet_));
    lxw_worksheet* lehti = workbook_add_worksheet(kirja_, nimet_.back().c_str());
    Paperille(sivu, lehti);
    Leveydet(sivu, lehti);
    for (const auto& [paikka, solu] : sivu.solut)
      Solu(lehti, static_cast<lxw_row_t>(paikka.first - 1), static_cast<lxw_col_t>(paikka.second - 1), solu);
  }

  void Sulje() { SuljeKirja(kirja_); }

 private:
  void Paperille(const Taulukkosivu& sivu, lxw_worksheet* lehti) const {
    sivuasetukset_.vaaka ? worksheet_set_landscape(lehti) : worksheet_set_portrait(lehti);
    worksheet_set_paper(lehti, Paperinumero(sivuasetukset_.paperi));
    worksheet_set_margins(lehti, Tuumina(sivuasetukset_.vasen), Tuumina(sivuasetukset_.oikea),
                          Tuumina(sivuasetukset_.yla), Tuumina(sivuasetukset_.ala));
    worksheet_fit_to_pages(lehti, 1, 0);
    if (const std::string tunniste = Ylatunniste(sivu.otsikko); !sivu.otsikko.empty() && !tunniste.empty())
      worksheet_set_header(lehti, tunniste.c_str());
    worksheet_set_footer(lehti, kSivunumero);
    if (sivu.otsikkoriveja == 0) return;
    const auto rivit = static_cast<lxw_row_t>(sivu.otsikkoriveja);
    worksheet_repeat_rows(lehti, 0, rivit - 1);
    worksheet_freeze_panes(lehti, rivit, static_cast<lxw_col_t>(sivu.otsikkosarakkeita));
  }

  static double Tuumina(double millimetreja) { return millimetreja / kMillimetrejaTuumassa; }

  static void Leveydet(const Taulukkosivu& sivu, lxw_worksheet* lehti) {
    lxw_col_t sarake = 0;
    for (const double leveys : Sarakeleveydet(sivu)) {
      worksheet_set_column(lehti, sarake, sarake, leveys, nullptr);
      ++sarake;
    }
  }

  void Solu(lxw_worksheet* lehti, lxw_row_t rivi, lxw_col_t sarake, const Sivusolu& solu) {
    if (const auto* luku = std::get_if<Taulukkoluku>(&solu.sisalto))
      worksheet_write_number(lehti, rivi, sarake, luku->arvo, Muoto(TiedostonKuvio(luku->kuvio), solu));
    else
      worksheet_write_string(lehti, rivi, sarake, std::get<std::string>(solu.sisalto).c_str(), Muoto({}, solu));
  }

  lxw_format* Muoto(const std::string& kuvio, const Sivusolu& solu) {
    if (kuvio.empty() && !solu.lihava && solu.sisennys == 0) return nullptr;
    lxw_format*& muoto = muodot_[{kuvio, solu.lihava, solu.sisennys}];
    if (muoto) return muoto;
    muoto = workbook_add_format(kirja_);
    if (solu.lihava) format_set_bold(muoto);
    if (solu.sisennys > 0) format_set_indent(muoto, static_cast<std::uint8_t>(std::min(solu.sisennys, 15)));
    if (!kuvio.empty()) format_set_num_format(muoto, kuvio.c_str());
    return muoto;
  }

  Sivuasetukset sivuasetukset_;
  lxw_workbook* kirja_;
  std::vector<std::string> nimet_;
  std::map<std::tuple<std::string, bool, int>, lxw_format*> muodot_;
};

void Kirjoita(const std::vector<Taulukkosivu>& sivut, const std::string& tiedosto) {
  Kirjoittaja kirja(tiedosto);
  for (const Taulukkosivu& sivu : sivut) kirja.Sivu(sivu);
  kirja.Sulje();
}

/// A cell alone on its row (a title, a note) widens no column.
bool YksinRivillaan(const Taulukkosivu& sivu, int rivi) {
  const auto alku = sivu.solut.lower_bound({rivi, 0}), loppu = sivu.solut.lower_bound({rivi + 1, 0});
  return std::next(alku) == loppu;
}

/// The widest cell of each column.
std::vector<double> Sisallon(const Taulukkosivu& sivu) {
  std::vector<double> leveydet;
  for (const auto& [paikka, solu] : sivu.solut) {
    const auto sarake = static_cast<std::size_t>(paikka.second);
    leveydet.resize(std::max(leveydet.size(), sarake), kKapeinSarake);
    if (sivu.solut.size() > 1 && YksinRivillaan(sivu, paikka.first)) continue;
    const auto pituus = static_cast<double>(Pituus(SolunTeksti(solu.sisalto))) + solu.sisennys;
    leveydet[sarake - 1] = std::max(leveydet[sarake - 1], pituus + kIlma);
  }
  return leveydet;
}

/// Columns of the usual width; one becomes wider when a cell has no room up to the next one of its row.
std::vector<double> Tasaiset(const Taulukkosivu& sivu) {
  std::vector<double> leveydet;
  for (const auto& [paikka, solu] : sivu.solut)
    leveydet.resize(std::max(leveydet.size(), static_cast<std::size_t>(paikka.second)), kTavallinenSarake);
  for (auto it = sivu.solut.begin(); it != sivu.solut.end(); ++it) {
    const auto& [rivi, sarake] = it->first;
    const auto seuraava = std::next(it);
    const bool luku = std::holds_alternative<Taulukkoluku>(it->second.sisalto);
    const bool viimeinen = seuraava == sivu.solut.end() || seuraava->first.first != rivi;
    if (viimeinen && !luku) continue;
    const auto alku = leveydet.begin() + (sarake - 1);
    const auto loppu = luku ? alku + 1 : leveydet.begin() + (seuraava->first.second - 1);
    double tila = 0;
    for (auto s = alku; s != loppu; ++s) tila += *s;
    *alku += std::max(0.0, static_cast<double>(Pituus(SolunTeksti(it->second.sisalto))) + kIlma - tila);
  }
  return leveydet;
}

}  // namespace

void TallennaKirja(const std::vector<Taulukkosivu>& sivut, const std::string& tiedosto) {
  KirjoitaKokonaan(tiedosto, [&](const std::string& uusi) { Kirjoita(sivut, uusi); });
}

void SuljeKirja(lxw_workbook* kirja) {
  errno = 0;
  const lxw_error virhe = workbook_close(kirja);
  if (virhe == LXW_NO_ERROR) return;
  const int syy = errno;
  throw std::runtime_error(syy ? Selitys({syy, std::generic_category()}) : lxw_strerror(virhe));
}

void KirjoitaKokonaan(const std::string& tiedosto, const std::function<void(const std::string& uusi)>& kirjoita) try {
  const std::string uusi = tiedosto + ".uusi";
  try {
    kirjoita(uusi);
    std::filesystem::rename(uusi, tiedosto);
  } catch (...) {
    std::remove(uusi.c_str());
    throw;
  }
} catch (const std::filesystem::filesystem_error& virhe) {
  throw std::runtime_error(Selitys(virhe.code()));
}

std::vector<double> Sarakeleveydet(const Taulukkosivu& sivu) {
  return sivu.tasalevea ? Tasaiset(sivu) : Sisallon(sivu);
}

std::string SolunTeksti(const Taulukkosolu& solu) {
  const auto* luku = std::get_if<Taulukkoluku>(&solu);
  return luku ? Muotoile(luku->arvo, luku->kuvio) : std::get<std::string>(solu);
}

std::string TiedostonKuvio(std::string kuvio) {
  if (const auto ryhmat = kuvio.find("### ##0"); ryhmat != kuvio.npos) kuvio.replace(ryhmat, 7, "#,##0");
  return kuvio;
}

std::string KuvioTekstista(std::string_view teksti) {
  constexpr std::size_t kTuhansia = 4;  // digits
  const auto pilkku = teksti.find_first_of(",.");
  const std::string_view kokonaiset = teksti.substr(0, pilkku);
  const auto numeroita = std::ranges::count_if(kokonaiset, [](char c) { return c >= '0' && c <= '9'; });
  const bool ryhmitta = static_cast<std::size_t>(numeroita) >= kTuhansia &&
                        std::ranges::all_of(kokonaiset, [](char c) { return c >= '+' && c <= '9'; });
  const std::string kuvio = ryhmitta ? "0" : "### ##0";
  return pilkku == teksti.npos ? kuvio : kuvio + "." + std::string(teksti.size() - pilkku - 1, '0');
}

std::string ValilehdenNimi(std::string_view nimi, const std::vector<std::string>& varatut) {
  const std::string siistitty = Siistitty(nimi);
  const auto vapaa = [&](const std::string& ehdotus) {
    return std::ranges::none_of(varatut, [&](const std::string& varattu) { return SamaNimi(varattu, ehdotus); });
  };
  std::string ehdotus = siistitty;
  for (int i = 2; !vapaa(ehdotus); ++i) {
    const std::string numero = " " + std::to_string(i);
    ehdotus = std::string(Alkuosa(siistitty, kNimenPituus - numero.size())) + numero;
  }
  return ehdotus;
}
