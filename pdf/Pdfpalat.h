// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QFont>
#include <QPdfWriter>
#include <string>
#include <vector>

#include "pdf/Sivutus.h"
#include "results/raportti/Raportti.h"

/// Measures and looks of a report's pages, in the units of the device.
class Sivupohja {
 public:
  explicit Sivupohja(QPdfWriter& laite) : laite_(laite) {}

  QPdfWriter& Laite() const { return laite_; }
  double mm(double millimetreja) const { return millimetreja * laite_.resolution() / 25.4; }
  double Vasen() const { return mm(20); }
  double Leveys() const { return mm(170); }
  double Oikea() const { return Vasen() + Leveys(); }
  double Yla() const { return mm(24); }
  double Ala() const { return mm(277); }
  /// A font of that many points.
  static QFont Fontti(double pt, bool lihava = false);

  static constexpr QRgb kKorostus = 0x1F5A7A, kVaalea = 0xEEF3F6, kHarmaa = 0x5F6B73, kViiva = 0xB8C4CC,
                        kTeksti = 0x1C2226;

 private:
  QPdfWriter& laite_;
};

/// An entry of the contents and of the outline.
struct Sisallysrivi {
  std::string teksti;
  int taso = 0;  ///< 0 a chapter, 1 a section
};

/// The pieces of a report's chapters, to be put on pages, and its contents.
class Pdfpalat {
 public:
  Pdfpalat(const Sivupohja& pohja, const Raportti& raportti);
  Pdfpalat(const Pdfpalat&) = delete;
  Pdfpalat& operator=(const Pdfpalat&) = delete;

  const std::vector<Pala>& Palat() const { return palat_; }
  const std::vector<Sisallysrivi>& Sisallys() const { return sisallys_; }

 private:
  void LisaaOsa(const Raportinosa& osa);
  void Lisaa(const Raporttiotsikko& otsikko);
  void Lisaa(const Raporttikappale& kappale);
  void Lisaa(const Avainluvut& luvut);
  void Lisaa(const Raporttikaaviot& kaaviot);
  void Lisaa(const Raporttitaulukko& taulukko);
  void LisaaTeksti(const std::string& teksti, const QFont& fontti, QRgb vari, double ennen, bool seuraavanKanssa);
  int KirjaaSisallykseen(std::string teksti, int taso);

  const Sivupohja& pohja_;
  std::vector<Pala> palat_;
  std::vector<Sisallysrivi> sisallys_;
};
