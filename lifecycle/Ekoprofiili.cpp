// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Ekoprofiili.h"

#include "building/Muokkausistunto.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "lifecycle/clsElinkaari.h"
#include "tekstit/elinkaari.h"
#include "tekstit/lomakkeet_elinkaari.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kArvo = "### ##0.##";

std::string Otsikko(std::size_t laji) {
  return Teksti(tekstit::kVaikutukset[laji]) + " " + Teksti(tekstit::kVuodessaBruttoneliolle);
}
std::string Yksikko(std::size_t laji) { return laji < 2 ? "MJ/m²" : "kg/m²"; }

/// An empty field is none.
void LueTaiTyhja(const TextBox& kentta, double& arvo) {
  if (kentta.Teksti().empty())
    arvo = 0;
  else
    LueArvo(kentta, arvo);
}
void NaytaTaiTyhja(const TextBox& kentta, double arvo) {
  if (arvo == 0)
    kentta.Teksti({});
  else
    kentta.Luku(arvo, kArvo);
}

Kaaviosarja Sarja(const std::string& nimi, double materiaalit, double energia, int pino) {
  return {nimi, {materiaalit, energia, materiaalit + energia}, pino};
}

}  // namespace

Profiiliarvot LaskeProfiili(const Vaikutuspuu& puu, double bruttoala) {
  Profiiliarvot arvot;
  if (bruttoala <= 0 || puu.Pitoaika().value_or(0) <= 0) return arvot;
  for (std::size_t i = 0; i < kVaikutuslajit.size(); ++i) {
    if (const auto& arvo = puu.Materiaalit().arvot[i]) arvot.materiaalit[i] = *arvo / bruttoala / *puu.Pitoaika();
    if (const auto& arvo = puu.Osto().vuodessa[i]) arvot.energia[i] = *arvo / bruttoala;
  }
  return arvot;
}

Ekoprofiili::Ekoprofiili(clsRakennus& rakennus) : elinkaari_(rakennus.Elinkaari), kohde_(Teksti(tekstit::kTamaKohde)) {
  const Vaikutuspuu puu = elinkaari_.Vaikutukset();
  arvot_ = LaskeProfiili(puu, rakennus.Perustiedot.BruttoAla);
  laskettavissa_ = rakennus.Perustiedot.BruttoAla > 0 && puu.Pitoaika().value_or(0) > 0;
  std::vector<std::string> lajit;
  for (const auto laji : tekstit::kVaikutukset) lajit.push_back(Teksti(laji));
  lomake_.cmbLaji.Rivit(lajit);
  lomake_.cmbLaji.Indeksi(kIlmastonLampeneminen);
  lomake_.LajiValittu = [this] { NaytaProfiili(); };
  lomake_.VertailuMuuttui = [this] { VertailuMuuttui(); };
  if (!laskettavissa_)
    lomake_.lblTiedot.Otsikko(Teksti(tekstit::kProfiiliIlmanAlaa));
  else if (const auto osuus = puu.Materiaalit().OsuusIlmanTietoja())
    lomake_.lblTiedot.Otsikko(Teksti(tekstit::kMassaaYhteensa) + " " + Muotoile(puu.Materiaalit().massa, kArvo) +
                              " kg, " + Muotoile(*osuus * 100, "0.0") + " % " + Teksti(tekstit::kMassastaIlmanTietoja) +
                              ".");
}

bool Ekoprofiili::Nayta() {
  Muokkausistunto istunto(elinkaari_, lomake_,
                          {.lue = [this] { LueDataluokka(); },
                           .kirjoita = [this] { VertailuMuuttui(); },
                           .virheenJalkeen = [this] { LueDataluokka(); }});
  return istunto.Nayta();
}

void Ekoprofiili::LueDataluokka() {
  lomake_.txtVertailunNimi.Teksti(elinkaari_.VertailunNimi);
  NaytaTaiTyhja(lomake_.txtVertailuMateriaalit, elinkaari_.VertailuMateriaalit);
  NaytaTaiTyhja(lomake_.txtVertailuEnergia, elinkaari_.VertailuEnergia);
  NaytaProfiili();
  NaytaVertailu();
}

void Ekoprofiili::VertailuMuuttui() {
  elinkaari_.VertailunNimi = lomake_.txtVertailunNimi.Teksti();
  LueTaiTyhja(lomake_.txtVertailuMateriaalit, elinkaari_.VertailuMateriaalit);
  LueTaiTyhja(lomake_.txtVertailuEnergia, elinkaari_.VertailuEnergia);
  NaytaVertailu();
}

void Ekoprofiili::NaytaProfiili() {
  const auto laji = static_cast<std::size_t>(std::max(0, lomake_.cmbLaji.Indeksi()));
  Kaaviotiedot kaavio{.otsikko = Otsikko(laji), .yksikko = Yksikko(laji)};
  std::vector<double> arvot;
  for (const auto& [nimi, arvo] : {std::pair(tekstit::kMateriaalienVaihe, arvot_.materiaalit[laji]),
                                   std::pair(tekstit::kEnergianVaihe, arvot_.energia[laji])})
    if (arvo) {
      kaavio.nimet.push_back(Teksti(nimi));
      arvot.push_back(*arvo);
    }
  if (!arvot.empty()) kaavio.sarjat.push_back({kohde_, std::move(arvot)});
  lomake_.Picture1.Kaavio(std::move(kaavio));
}

void Ekoprofiili::NaytaVertailu() {
  Kaaviotiedot kaavio{.otsikko = Otsikko(kIlmastonLampeneminen),
                      .nimet = {Teksti(tekstit::kMateriaalienVaihe), Teksti(tekstit::kEnergianVaihe),
                                Teksti(tekstit::kVaiheetYhteensa)},
                      .yksikko = Yksikko(kIlmastonLampeneminen)};
  if (laskettavissa_)
    kaavio.sarjat.push_back(Sarja(kohde_, arvot_.materiaalit[kIlmastonLampeneminen].value_or(0),
                                  arvot_.energia[kIlmastonLampeneminen].value_or(0), 0));
  if (elinkaari_.VertailuMateriaalit > 0 || elinkaari_.VertailuEnergia > 0)
    kaavio.sarjat.push_back(
        Sarja(elinkaari_.VertailunNimi.empty() ? Teksti(tekstit::kNimetonVertailu) : elinkaari_.VertailunNimi,
              elinkaari_.VertailuMateriaalit, elinkaari_.VertailuEnergia, 1));
  lomake_.Picture2.Kaavio(std::move(kaavio));
}
