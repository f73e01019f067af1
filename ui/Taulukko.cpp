// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Taulukko.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"

namespace {

bool OnTyhja(std::string_view solu) { return solu.empty() || solu == "---"; }

bool OnNumero(char32_t merkki) { return merkki >= U'0' && merkki <= U'9'; }

/// Code points of a UTF-8 text; a stray byte stands for itself.
std::u32string Merkit(std::string_view teksti) {
  std::u32string merkit;
  for (std::size_t i = 0; i < teksti.size(); ++i) {
    const auto tavu = static_cast<unsigned char>(teksti[i]);
    const int jatkoa = tavu >= 0xF0 ? 3 : tavu >= 0xE0 ? 2 : tavu >= 0xC0 ? 1 : 0;
    char32_t merkki = jatkoa ? tavu & (0x3Fu >> jatkoa) : tavu;
    for (int n = 0; n < jatkoa && i + 1 < teksti.size(); ++n)
      merkki = merkki << 6 | (static_cast<unsigned char>(teksti[++i]) & 0x3Fu);
    merkit.push_back(merkki);
  }
  return merkit;
}

/// Letters that the Finnish alphabet files under another one, in small letters; å, ä and ö stand behind z.
struct Sija {
  std::u32string_view kirjaimet;
  char32_t paikka;
};
constexpr Sija kSijat[] = {{U"áàâã", U'a'},  {U"çčČ", U'c'},    {U"éèêë", U'e'},  {U"íìîï", U'i'}, {U"ñ", U'n'},
                           {U"óòôõ", U'o'},  {U"šŠ", U's'},     {U"úùû", U'u'},   {U"üý", U'y'},   {U"žŽ", U'z'},
                           {U"å", U'z' + 1}, {U"äæ", U'z' + 2}, {U"öø", U'z' + 3}};

char32_t AakkosPaikka(char32_t merkki) {
  if (merkki < 0x80) return merkki;
  for (const Sija& sija : kSijat)
    if (sija.kirjaimet.find(merkki) != std::u32string_view::npos) return sija.paikka;
  return merkki;
}

/// What is compared in place of the text. A number in it counts by its length first, so that it sorts by value.
std::u32string Aakkosavain(std::string_view teksti) {
  const std::u32string merkit = Merkit(PieniksiKirjaimiksi(teksti));
  std::u32string avain;
  for (std::size_t i = 0; i < merkit.size();) {
    if (!OnNumero(merkit[i])) {
      avain.push_back(AakkosPaikka(merkit[i++]));
      continue;
    }
    while (i + 1 < merkit.size() && merkit[i] == U'0' && OnNumero(merkit[i + 1])) ++i;
    const std::size_t alku = i;
    while (i < merkit.size() && OnNumero(merkit[i])) ++i;
    avain.push_back(U'0');
    avain.push_back(static_cast<char32_t>(i - alku));
    avain.append(merkit, alku, i - alku);
  }
  return avain;
}

double Lukuarvo(std::string_view solu) { return LueLuku(solu).value_or(-std::numeric_limits<double>::infinity()); }

template <class F>
std::vector<int> JarjestaAvaimilla(const Taulukko& rivit, std::size_t sarake, bool laskeva, F&& avain) {
  std::vector<decltype(avain(std::string_view()))> avaimet;
  for (const auto& rivi : rivit) avaimet.push_back(avain(Solu(rivi, sarake)));
  std::vector<int> jarjestys(rivit.size());
  std::iota(jarjestys.begin(), jarjestys.end(), 0);
  std::ranges::stable_sort(jarjestys, [&](int x, int y) {
    if (laskeva) std::swap(x, y);
    return avaimet[static_cast<std::size_t>(x)] < avaimet[static_cast<std::size_t>(y)];
  });
  return jarjestys;
}

std::string Siistitty(std::string solu, bool luku) {
  std::ranges::replace_if(
      solu, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  if (luku) std::erase(solu, ' ');
  return solu;
}

/// Puts a clipboard text together cell by cell.
class Kokoaja {
 public:
  void Lisaa(char merkki) { solu_.push_back(merkki); }
  bool SoluTyhja() const { return solu_.empty(); }
  void PaataSolu() { rivi_.push_back(std::exchange(solu_, {})); }
  void PaataRivi() {
    PaataSolu();
    if (std::ranges::any_of(rivi_, [](const std::string& s) { return s.find_first_not_of(' ') != s.npos; }))
      rivit_.push_back(std::move(rivi_));
    rivi_.clear();
  }
  Taulukko Rivit() && { return std::move(rivit_); }

 private:
  std::string solu_;
  std::vector<std::string> rivi_;
  Taulukko rivit_;
};

/// Reads a quoted cell from behind its opening mark; gives the place of the closing one.
std::size_t LueLainaus(std::string_view teksti, std::size_t i, Kokoaja& kokoaja) {
  for (; i < teksti.size(); ++i) {
    if (teksti[i] == '"' && teksti.substr(i + 1, 1) != "\"") return i;
    if (teksti[i] == '"') ++i;
    kokoaja.Lisaa(teksti[i]);
  }
  return i;
}

}  // namespace

std::string_view Solu(const std::vector<std::string>& rivi, std::size_t sarake) {
  return sarake < rivi.size() ? std::string_view(rivi[sarake]) : std::string_view();
}

Sarakesisalto::Sarakesisalto(const Taulukko& rivit, std::size_t sarake) {
  for (const auto& rivi : rivit) Laske(Solu(rivi, sarake), 1);
}

void Sarakesisalto::Vaihda(std::string_view entinen, std::string_view uusi) {
  Laske(entinen, -1);
  Laske(uusi, 1);
}

void Sarakesisalto::Laske(std::string_view solu, int maara) {
  if (!OnTyhja(solu)) (LueLuku(solu) ? lukuja_ : muita_) += maara;
}

std::vector<int> Jarjestyksessa(const Taulukko& rivit, int sarake, bool laskeva) {
  if (sarake < 0) return JarjestaAvaimilla(rivit, 0, false, [](std::string_view) { return 0; });
  const auto s = static_cast<std::size_t>(sarake);
  return Sarakesisalto(rivit, s).OnLukuja() ? JarjestaAvaimilla(rivit, s, laskeva, Lukuarvo)
                                            : JarjestaAvaimilla(rivit, s, laskeva, Aakkosavain);
}

std::string TaulukkoTekstina(const Taulukko& rivit) {
  const Taulukko luvut(rivit.begin() + (rivit.empty() ? 0 : 1), rivit.end());  // below the headings
  std::vector<Sarakesisalto> sarakkeet;
  std::string teksti;
  for (const auto& rivi : rivit)
    for (std::size_t s = 0; s < rivi.size(); ++s) {
      while (sarakkeet.size() <= s) sarakkeet.emplace_back(luvut, sarakkeet.size());
      teksti += Siistitty(rivi[s], sarakkeet[s].OnLukuja() && LueLuku(rivi[s]));
      teksti += s + 1 < rivi.size() ? '\t' : '\n';
    }
  return teksti;
}

Taulukko TaulukkoTekstista(std::string_view teksti) {
  Kokoaja kokoaja;
  for (std::size_t i = 0; i < teksti.size(); ++i) {
    const char merkki = teksti[i];
    if (merkki == '"' && kokoaja.SoluTyhja())
      i = LueLainaus(teksti, i + 1, kokoaja);
    else if (merkki == '\t')
      kokoaja.PaataSolu();
    else if (merkki == '\n')
      kokoaja.PaataRivi();
    else if (merkki != '\r')
      kokoaja.Lisaa(merkki);
  }
  kokoaja.PaataRivi();
  return std::move(kokoaja).Rivit();
}
