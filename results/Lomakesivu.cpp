// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Lomakesivu.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "results/Laskentataulukko.h"
#include "ui/Kenttanimi.h"

namespace {

constexpr double kLeveys = 970, kKorkeus = 360;  // of a cell, twips
constexpr double kToimenpiteenKorkeus = 300;
constexpr int kOtsikkorivi = 1;
constexpr const char *kRastittu = "☑ ", *kRastimaton = "☐ ", *kValittu = "● ", *kValitsematon = "○ ";

/// Windows of which the lists are what is printed.
constexpr std::string_view kLuettelolomakkeet[] = {
    "frmTilaYhteenveto",     "frmIVKoneYhteenveto",           "frmSahkoLaitteet",        "frmVedenKulutus",
    "frmSaastoToimenpiteet", "frmToimenpiteidenJarjestelija", "frmSahkotariffiVertailu",
};

bool OnLuettelolomake(const Lomake& lomake) {
  return std::ranges::any_of(kLuettelolomakkeet, [&](std::string_view nimi) { return SamaNimi(nimi, lomake.Nimi()); });
}

/// The design-time type of a field's text: "n" a number.
bool OnLukukentta(const Ohjain& kentta) {
  const auto pilkku = kentta.Tag().find(',');
  return kentta.TaytettyLuku() || (pilkku != std::string::npos && SamaNimi(kentta.Tag().substr(pilkku + 1, 1), "n"));
}

/// A field's figure, in full when it is shown as it was filled; a text that is no figure as it stands.
Taulukkosolu Kentta(const Ohjain& kentta) {
  const std::string& teksti = kentta.Teksti();
  const auto luettu = OnLukukentta(kentta) ? LueLuku(teksti) : std::nullopt;
  if (!luettu) return teksti;
  const std::string kuvio = KuvioTekstista(teksti);
  const double arvo = kentta.Muuttunut() ? *luettu : kentta.TaytettyLuku().value_or(*luettu);
  return Taulukkoluku{Muotoile(arvo, kuvio) == Muotoile(*luettu, kuvio) ? arvo : *luettu, kuvio};
}

std::string Valinta(const Ohjain& valinta) {
  if (valinta.Indeksi() < 0) return valinta.Teksti();
  return valinta.Rivit()[static_cast<std::size_t>(valinta.Indeksi())].front();
}

std::string EdessaOlevaSivu(const Ohjain& sivut) {
  return sivut.Indeksi() < 0 ? std::string() : sivut.Osat()[static_cast<std::size_t>(sivut.Indeksi())].otsikko;
}

/// What the control gives to the sheet; an empty text is nothing.
Sivusolu Solu(const Ohjain& ohjain) {
  switch (ohjain.Tyyppi()) {
    case Ohjaintyyppi::TextBox:
      return {Kentta(ohjain)};
    case Ohjaintyyppi::ComboBox:
      return {Valinta(ohjain)};
    case Ohjaintyyppi::Label:
      return {ohjain.Teksti()};
    case Ohjaintyyppi::Frame:
      return {ohjain.Teksti(), true};
    case Ohjaintyyppi::TabStrip:
      return {EdessaOlevaSivu(ohjain), true};
    case Ohjaintyyppi::CheckBox:
      return {(ohjain.Valittu() ? kRastittu : kRastimaton) + ohjain.Teksti()};
    case Ohjaintyyppi::OptionButton:
      return {(ohjain.Valittu() ? kValittu : kValitsematon) + ohjain.Teksti()};
    default:
      return {};
  }
}

bool OnRasti(const Ohjain& ohjain) {
  return ohjain.Tyyppi() == Ohjaintyyppi::CheckBox || ohjain.Tyyppi() == Ohjaintyyppi::OptionButton;
}

/// Lays the controls of a form on a sheet.
class Asettelija {
 public:
  Asettelija(Taulukkosivu& sivu, double leveys, double korkeus) : sivu_(sivu), leveys_(leveys), korkeus_(korkeus) {}

  void Lisaa(const Ohjain& ohjain) {
    Sivusolu solu = Solu(ohjain);
    if (solu.sisalto == Taulukkosolu()) return;
    const Lomakepaikka paikka = ohjain.Sijainti();
    const int rivi = Osamaara(paikka.yla, korkeus_) + kOtsikkorivi + 1;
    int sarake = Osamaara(paikka.vasen, leveys_) + 1;
    while (sivu_.solut.contains({rivi, sarake})) ++sarake;
    sivu_.solut[{rivi, sarake}] = std::move(solu);
  }

 private:
  static int Osamaara(double paikka, double koko) { return std::max(0, static_cast<int>(paikka / koko)); }

  Taulukkosivu& sivu_;
  double leveys_;
  double korkeus_;
};

/// The form that the control stands on, if it is open.
const Lomake* Oma(const Ohjain& ohjain) {
  const auto it = std::ranges::find(AvoimetLomakkeet(), &ohjain.Ikkuna(), [](const Lomake* l) { return &l->Ikkuna(); });
  return it == AvoimetLomakkeet().end() ? nullptr : *it;
}

/// A sheet for each list that is seen, by the name that the list has on the form.
std::vector<Taulukkosivu> Luettelosivut(const Lomake& lomake) {
  std::vector<Taulukkosivu> sivut;
  for (const auto& ohjain : lomake.Ohjaimet()) {
    if (ohjain->Tyyppi() != Ohjaintyyppi::ListView || !lomake.Ikkuna().Nakyvissa(*ohjain)) continue;
    Taulukkosivu& sivu = sivut.emplace_back(Luettelosivu(ListView(lomake, ohjain->Nimi()), true, 1, 1));
    if (const std::string nimi = KentanNimi(lomake.Ikkuna(), *ohjain); !nimi.empty()) sivu.nimi = nimi;
  }
  return sivut;
}

}  // namespace

Taulukkosivu Lomakesivu(const Lomake& lomake, double leveys, double korkeus) {
  Taulukkosivu sivu{.nimi = lomake.Otsikko(), .otsikko = lomake.Otsikko(), .tasalevea = true};
  sivu.solut[{kOtsikkorivi, 1}] = {lomake.Otsikko(), true};
  Asettelija asettelija(sivu, leveys, korkeus);
  for (const bool rastit : {false, true})
    for (const auto& ohjain : lomake.Ohjaimet())
      if (OnRasti(*ohjain) == rastit && lomake.Ikkuna().Nakyvissa(*ohjain)) asettelija.Lisaa(*ohjain);
  return sivu;
}

Taulukkosivu Luettelosivu(const ListView& lista, bool otsikot, int rivi, int sarake) {
  const Lomake* lomake = Oma(lista.Kohde());
  const std::string nimi = lomake ? lomake->Otsikko() : std::string();
  return Sivuksi(TaulukkoLuettelosta(lista, nimi), nimi,
                 {.otsikkorivi = otsikot ? rivi : 0, .rivi = rivi + 1, .sarake = sarake, .otsikko = false});
}

std::vector<Taulukkosivu> LomakkeenSivut(const Lomake& lomake) {
  std::vector<Taulukkosivu> luettelot = Luettelosivut(lomake);
  if (OnLuettelolomake(lomake) && !luettelot.empty()) return luettelot;
  const bool toimenpide = SamaNimi(lomake.Nimi(), "frmSaastotoimenpide");
  return LomakkeenSivut(lomake, kLeveys, toimenpide ? kToimenpiteenKorkeus : kKorkeus);
}

std::vector<Taulukkosivu> LomakkeenSivut(const Lomake& lomake, double leveys, double korkeus) {
  std::vector<Taulukkosivu> sivut = Luettelosivut(lomake);
  sivut.insert(sivut.begin(), Lomakesivu(lomake, leveys, korkeus));
  return sivut;
}
