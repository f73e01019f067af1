// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cctype>
#include <cmath>
#include <numeric>

#include "tests/tuki/Koetaulukko.h"

/// Computes the formulas of a workbook from its cells: what a spreadsheet program would show. Knows the four
/// operations, comparisons, SUM, SUMPRODUCT, ROUND and IF, cells, ranges and defined names.
class Koelaskin {
 public:
  explicit Koelaskin(const Koetaulukko& kirja) : kirja_(kirja) {}

  /// Raises std::runtime_error for what it doesn't know.
  double Laske(const Koesivu& sivu, const std::string& kaava) const {
    Lukija lukija{*this, sivu, kaava};
    const double tulos = lukija.Vertailu().at(0);
    if (lukija.i != kaava.size()) throw std::runtime_error("kaavaa ei ymmärretä: " + kaava);
    return tulos;
  }

 private:
  using Arvot = std::vector<double>;  // one of a cell, all of a range

  struct Lukija {
    const Koelaskin& laskin;
    const Koesivu& sivu;
    std::string_view s;
    std::size_t i = 0;

    bool Ohita(std::string_view merkki) {
      if (s.substr(i, merkki.size()) != merkki) return false;
      i += merkki.size();
      return true;
    }
    Arvot Vertailu() {
      const Arvot vasen = Summa();
      if (Ohita("<>")) return {static_cast<double>(vasen.at(0) != Summa().at(0))};
      if (Ohita(">")) return {static_cast<double>(vasen.at(0) > Summa().at(0))};
      if (Ohita("<")) return {static_cast<double>(vasen.at(0) < Summa().at(0))};
      return vasen;
    }
    Arvot Summa() {
      Arvot arvo = Tulo();
      while (true)
        if (Ohita("+"))
          arvo.at(0) += Tulo().at(0);
        else if (Ohita("-"))
          arvo.at(0) -= Tulo().at(0);
        else
          return arvo;
    }
    Arvot Tulo() {
      Arvot arvo = Tekija();
      while (true)
        if (Ohita("*"))
          arvo.at(0) *= Tekija().at(0);
        else if (Ohita("/"))
          arvo.at(0) /= Tekija().at(0);
        else
          return arvo;
    }
    Arvot Tekija() {
      if (Ohita("-")) return {-Tekija().at(0)};
      if (Ohita("(")) {
        const Arvot arvo = Vertailu();
        if (!Ohita(")")) throw std::runtime_error("sulku puuttuu");
        return arvo;
      }
      const std::size_t alku = i;
      while (i < s.size() &&
             (std::isalnum(static_cast<unsigned char>(s[i])) || s[i] == '.' || s[i] == '_' || s[i] == '$'))
        ++i;
      const std::string sana(s.substr(alku, i - alku));
      if (sana.empty()) throw std::runtime_error("kaavaa ei ymmärretä: " + std::string(s));
      if (std::isdigit(static_cast<unsigned char>(sana[0]))) return {std::stod(sana)};
      if (Ohita("(")) return Funktio(sana);
      if (Ohita(":")) {
        const std::size_t loppu = i;
        while (i < s.size() && std::isalnum(static_cast<unsigned char>(s[i]))) ++i;
        return Alue(sana, std::string(s.substr(loppu, i - loppu)));
      }
      return {Viite(sana)};
    }
    Arvot Funktio(const std::string& nimi) {
      std::vector<Arvot> parametrit;
      do parametrit.push_back(Vertailu());
      while (Ohita(","));
      if (!Ohita(")")) throw std::runtime_error("sulku puuttuu");
      if (nimi == "SUM" || nimi == "SUMPRODUCT")
        return {std::accumulate(parametrit.at(0).begin(), parametrit.at(0).end(), 0.0)};
      if (nimi == "IF") return parametrit.at(parametrit.at(0).at(0) != 0 ? 1 : 2);
      if (nimi != "ROUND") throw std::runtime_error("tuntematon funktio " + nimi);
      const double kerroin = std::pow(10, parametrit.at(1).at(0));
      for (double& arvo : parametrit[0]) arvo = std::round(arvo * kerroin * (1 + 1e-15)) / kerroin;
      return parametrit[0];
    }
    Arvot Alue(const std::string& eka, const std::string& vika) const {
      const auto a = Koetaulukko::Osoite(eka), b = Koetaulukko::Osoite(vika);
      Arvot arvot;
      for (int r = a.first; r <= b.first; ++r)
        for (int c = a.second; c <= b.second; ++c)
          if (const Koesolu solu = sivu.Solu(r, c); solu.luku) arvot.push_back(*solu.luku);
      return arvot;
    }
    double Viite(const std::string& sana) const {
      const auto nimi = laskin.kirja_.Nimet().find(sana);
      if (nimi == laskin.kirja_.Nimet().end()) {
        const auto [r, c] = Koetaulukko::Osoite(sana);
        return sivu.Solu(r, c).luku.value_or(0);
      }
      const auto huuto = nimi->second.rfind('!');
      std::string kohde;
      for (std::size_t j = 0; j < huuto; ++j)  // an apostrophe of the name is doubled
        if (nimi->second[j] != '\'' || (j > 0 && j + 1 < huuto && nimi->second[++j] == '\'')) kohde += nimi->second[j];
      const auto [r, c] = Koetaulukko::Osoite(nimi->second.substr(huuto + 1));
      return laskin.kirja_.Sivu(kohde).Solu(r, c).luku.value();
    }
  };

  const Koetaulukko& kirja_;
};
