// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Asettelu.h"

#include <algorithm>
#include <pugixml.hpp>
#include <string_view>
#include <vector>

namespace {

constexpr int kTwipseja = 15;                                     // in a pixel
constexpr int kVali = 6, kReuna = 9, kOtsikko = 20, kSivut = 30;  // pixels; the last: captions of a frame, of pages

struct Koko {
  int leveys = 0;
  int korkeus = 0;
};

struct Laji {
  std::string_view luokka;
  Koko koko;
};
/// The usual size of a control, in pixels.
constexpr Laji kLajit[] = {
    {"QLabel", {140, 24}},     {"QLineEdit", {115, 24}},    {"QComboBox", {160, 24}},
    {"QCheckBox", {200, 24}},  {"QRadioButton", {150, 24}}, {"QPushButton", {100, 24}},
    {"QTreeView", {480, 180}}, {"Kuvapinta", {120, 120}},   {"QPlainTextEdit", {480, 90}},
};
constexpr Koko kKaavio{480, 240};

/// A thing in a layout and its cell.
struct Ruutu {
  pugi::xml_node sisalto;
  int rivi;
  int sarake;
  int riveja;
  int sarakkeita;
};

bool On(const pugi::xml_node& solmu, std::string_view nimi) { return solmu.name() == nimi; }
std::string_view Luokka(const pugi::xml_node& solmu) { return solmu.attribute("class").value(); }

/// What the layout holds; in a row or a column each thing has the next cell.
std::vector<Ruutu> Ruudut(const pugi::xml_node& asettelu) {
  std::vector<Ruutu> ruudut;
  int i = 0;
  for (const pugi::xml_node item : asettelu.children("item")) {
    const pugi::xml_node sisalto = item.find_child([](const pugi::xml_node& n) { return !On(n, "property"); });
    const bool jono = Luokka(asettelu) == "QHBoxLayout", pino = Luokka(asettelu) == "QVBoxLayout";
    ruudut.push_back({sisalto, pino ? i : item.attribute("row").as_int(), jono ? i : item.attribute("column").as_int(),
                      item.attribute("rowspan").as_int(1), item.attribute("colspan").as_int(1)});
    ++i;
  }
  return ruudut;
}

Koko Mittaa(const pugi::xml_node& solmu);

/// Widths of the columns or heights of the rows. What takes several gets its want from the last of them.
std::vector<int> Jaot(const std::vector<Ruutu>& ruudut, int Ruutu::*paikka, int Ruutu::*maara, int Koko::*mitta) {
  std::vector<int> jaot;
  for (const Ruutu& r : ruudut) jaot.resize(std::max(jaot.size(), static_cast<std::size_t>(r.*paikka + r.*maara)));
  for (const bool useita : {false, true})
    for (const Ruutu& r : ruudut) {
      if ((r.*maara > 1) != useita) continue;
      const auto viimeinen = static_cast<std::size_t>(r.*paikka + r.*maara - 1);
      int muut = 0;
      for (auto i = static_cast<std::size_t>(r.*paikka); i < viimeinen; ++i) muut += jaot[i] + kVali;
      jaot[viimeinen] = std::max(jaot[viimeinen], Mittaa(r.sisalto).*mitta - muut);
    }
  return jaot;
}

struct Jako {
  explicit Jako(const std::vector<Ruutu>& ruudut)
      : leveydet(Jaot(ruudut, &Ruutu::sarake, &Ruutu::sarakkeita, &Koko::leveys)),
        korkeudet(Jaot(ruudut, &Ruutu::rivi, &Ruutu::riveja, &Koko::korkeus)) {}
  static int Alku(const std::vector<int>& jaot, std::size_t i) {
    int alku = 0;
    for (std::size_t j = 0; j < i; ++j) alku += jaot[j] + kVali;
    return alku;
  }
  Koko Yhteensa() const { return {Alku(leveydet, leveydet.size()), Alku(korkeudet, korkeudet.size())}; }

  std::vector<int> leveydet;
  std::vector<int> korkeudet;
};

/// The room at the left and the top of a widget before what it holds.
Koko Alku(const pugi::xml_node& widget) {
  return {kReuna, kReuna + (Luokka(widget) == "QGroupBox" ? kOtsikko : Luokka(widget) == "QTabWidget" ? kSivut : 0)};
}

/// What a widget holds: a layout, or pages one upon another.
auto Sisallot(const pugi::xml_node& widget) {
  return widget.children(Luokka(widget) == "QTabWidget" ? "widget" : "layout");
}

Koko MittaaWidget(const pugi::xml_node& widget) {
  Koko koko;
  for (const pugi::xml_node sisalto : Sisallot(widget)) {
    const Koko osa = Mittaa(sisalto);
    koko = {std::max(koko.leveys, osa.leveys), std::max(koko.korkeus, osa.korkeus)};
  }
  if (koko.korkeus > 0) {
    const Koko alku = Alku(widget);
    return {koko.leveys + alku.leveys + kReuna, koko.korkeus + alku.korkeus + kReuna};
  }
  const auto laji = std::ranges::find(kLajit, Luokka(widget), &Laji::luokka);
  return laji == std::end(kLajit) ? kKaavio : laji->koko;
}

Koko Mittaa(const pugi::xml_node& solmu) {
  if (On(solmu, "widget")) return MittaaWidget(solmu);
  return On(solmu, "layout") ? Jako(Ruudut(solmu)).Yhteensa() : Koko();
}

/// Tells the place of each control in the thing that has its corner at x, y.
void Sijoita(const pugi::xml_node& solmu, int x, int y, std::map<std::string, Lomakepaikka>& paikat) {
  if (On(solmu, "widget")) {
    paikat[solmu.attribute("name").value()] = {.vasen = x * double{kTwipseja}, .yla = y * double{kTwipseja}};
    const Koko alku = Alku(solmu);
    for (const pugi::xml_node sisalto : Sisallot(solmu)) Sijoita(sisalto, x + alku.leveys, y + alku.korkeus, paikat);
    return;
  }
  const std::vector<Ruutu> ruudut = Ruudut(solmu);
  const Jako jako(ruudut);
  for (const Ruutu& r : ruudut)
    Sijoita(r.sisalto, x + Jako::Alku(jako.leveydet, static_cast<std::size_t>(r.sarake)),
            y + Jako::Alku(jako.korkeudet, static_cast<std::size_t>(r.rivi)), paikat);
}

}  // namespace

Asettelu::Asettelu(const pugi::xml_node& juuri) { Sijoita(juuri, 0, 0, paikat_); }

Lomakepaikka Asettelu::operator[](const std::string& nimi) const {
  const auto it = paikat_.find(nimi);
  return it == paikat_.end() ? Lomakepaikka() : it->second;
}
