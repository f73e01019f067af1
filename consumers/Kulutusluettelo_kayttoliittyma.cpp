// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "consumers/Kulutusluettelo.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_kulutus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmKulutusluettelo.h"

namespace {

constexpr const char* kLuku = "### ##0.###";

int Kayttotarkoituskoodi() {
  return clsRakennus::KayttoTarkoitusKoodit.at(static_cast<std::size_t>(VaadiRakennus().Perustiedot.KayttoTarkoitusID));
}

/// "8 h/d, 250 d/a, kerroin 0,8"; nothing of what the unit has no use for.
std::string Kaytto(const Sahkolaite& laite) {
  if (!laite.Tehopohjainen()) return {};
  std::string teksti = Muotoile(laite.TuntiaVrk, kLuku) + " h/d, " + Muotoile(laite.VrkVuosi, kLuku) + " d/a";
  if (laite.Tasauskerroin != 1) teksti += ", " + Teksti(tekstit::kKerroin) + " " + Muotoile(laite.Tasauskerroin, kLuku);
  return teksti;
}

std::string Kaytto(const Vedenkaytto& kaytto) {
  return Muotoile(kaytto.KertaaD, kLuku) + " × " + Muotoile(kaytto.VrkVuosi, kLuku) + " d/a, " +
         Muotoile(kaytto.Kayttolampotila, kLuku) + " °C";
}

std::string Tarkennus(const Sahkolaite& laite) {
  return Teksti(laite.Lammoksi ? tekstit::kLammittaaTiloja : tekstit::kEiLammitaTiloja);
}

std::string Tarkennus(const Vedenkaytto&) { return {}; }

/// Usual range, what the row does to the heat balance, and the source.
std::string Selite(const Luettelorivitiedot& rivi, const std::string& tarkennus) {
  std::string teksti = rivi.Nimi + ": " + Teksti(tekstit::kTavallisesti) + " " + Muotoile(rivi.Pienin, kLuku) + "–" +
                       Muotoile(rivi.Suurin, kLuku) + " " + rivi.Yksikko + ".";
  if (!tarkennus.empty()) teksti += " " + tarkennus;
  return teksti + " " + Teksti(tekstit::kLuvunLahde) + " " + rivi.Lahde + " (" + rivi.Tila + ").";
}

template <class Rivi>
frmKulutusluettelo::Rivi Naytettava(const Rivi& rivi) {
  frmKulutusluettelo::Rivi naytettava;
  Luettelorivi& solut = naytettava.rivi;
  solut.avain = rivi.Id;
  solut.solut = {rivi.Nimi, rivi.Haara};
  solut.LisaaLuku(rivi.Arvo, kLuku);
  for (const std::string& teksti : {rivi.Yksikko, rivi.Maara, Kaytto(rivi), rivi.Tila}) solut.solut.push_back(teksti);
  naytettava.hakusanat = rivi.Hakusanat;
  solut.piirteet.selite = rivi.Lahde;
  naytettava.selite = Selite(rivi, Tarkennus(rivi));
  naytettava.ryhma = static_cast<int>(rivi.kenelle);
  return naytettava;
}

/// Headings of the groups of rows, in the order of Kenelle.
std::vector<std::string> Otsikot() {
  return {VaadiRakennus().Perustiedot.Kayttotarkoitus, Teksti(tekstit::kKaikilleYhteiset),
          Teksti(tekstit::kMuidenKayttotarkoitusten)};
}

}  // namespace

bool PoimiLuettelosta(clsSahkonKulutusryhma& ryhma) try {
  const auto laitteet = LueSahkolaitteet(Kayttotarkoituskoodi());
  const Sahkolaite* laite = frmKulutusluettelo().PoimiRivi(laitteet, Otsikot(), Naytettava<Sahkolaite>);
  if (laite) TaytaRyhma(*laite, ryhma);
  return laite;
} catch (...) {
  NostaVirhe("Kulutusluettelo:PoimiLuettelosta Function");
}

bool PoimiLuettelosta(clsVedenKulutusryhma& ryhma) try {
  const auto kaytot = LueVedenkaytot(Kayttotarkoituskoodi());
  const Vedenkaytto* kaytto = frmKulutusluettelo().PoimiRivi(kaytot, Otsikot(), Naytettava<Vedenkaytto>);
  if (kaytto) TaytaRyhma(*kaytto, ryhma);
  return kaytto;
} catch (...) {
  NostaVirhe("Kulutusluettelo:PoimiLuettelosta Function");
}
