// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmOptions.h"

#include <algorithm>

#include "kernel/Luvut.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

struct Verokentat {
  TextBox frmOptions::*naytetty;
  TextBox frmOptions::*tarkka;
};
constexpr Verokentat kVerot[] = {
    {&frmOptions::txtVeroluokka1, &frmOptions::txtVeroluokka1Tarkennettu},
    {&frmOptions::txtVeroluokka2, &frmOptions::txtVeroluokka2Tarkennettu},
};

/// The button lets the person choose the file of the field.
void Selaa(const CommandButton& nappi, const TextBox& kentta) {
  nappi.KunKlikataan([&kentta] {
    if (const auto tiedosto =
            ViestitNyt().KysyAvattavaTiedosto(Teksti(tekstit::kValitseTietokanta), Teksti(tekstit::kTietokannat)))
      kentta.Teksti(*tiedosto);
  });
}

}  // namespace

frmOptions::frmOptions() : Muokkauslomake("frmOptions") {
  for (const std::size_t luokka : {0u, 1u}) KuunteleVeroa(luokka);
  cmbValuutta.KunMuuttuu([this] { Nosta(ValuuttaMuuttui, cmbValuutta.Indeksi()); });
  Selaa(cmdSelaaVakiokanta, txtVakiokanta);
  Selaa(cmdSelaaKayttajakohtainen, txtKayttajakohtainen);
  Selaa(cmdSelaaEnergia_Vakiokanta, txtEnergia_Vakiokanta);
  Selaa(cmdSelaaEnergia_Kayttajakohtainen, txtEnergia_Kayttajakohtainen);
}

void frmOptions::KuunteleVeroa(std::size_t luokka) {
  const TextBox naytetty = this->*kVerot[luokka].naytetty, tarkka = this->*kVerot[luokka].tarkka;
  naytetty.KunMuuttuu([naytetty, tarkka] { tarkka.Teksti(naytetty.Teksti()); });
}

std::string frmOptions::Tarkkana(double arvo) {
  std::string teksti = LyhinMuoto(arvo);
  std::ranges::replace(teksti, '.', ',');
  return teksti;
}

void frmOptions::AsetaVero(std::size_t luokka, double vero) {
  (this->*kVerot[luokka].naytetty).Luku(vero, "## ##0.00");
  (this->*kVerot[luokka].tarkka).Teksti(Tarkkana(vero));
}

std::optional<double> frmOptions::Vero(std::size_t luokka) const {
  return LueLuku((this->*kVerot[luokka].tarkka).Teksti());
}

void frmOptions::NaytaRahayksikko(std::string_view yksikko) {
  for (const Label& otsikko : {lblVeroYksikko1, lblVeroYksikko2})
    otsikko.Otsikko(RahayksikonKanssa(Teksti(tekstit::kRahaaMWh), yksikko));
}
