// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/Kulutusluettelo.h"

#include <algorithm>
#include <stdexcept>

#include "consumers/clsSahkonKulutusryhma.h"
#include "consumers/clsVedenKulutusryhma.h"
#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "ui/Tekstivarasto.h"

namespace {

// Columns of every row, then those of its table; a row that names no group of use types is common to all.
constexpr const char* kYhteiset =
    "SELECT Id, Nimi, Yksikko, Arvo, Pienin, Suurin, Maara, Hakusanat, Lahde, Tila, CASE WHEN Kayttoryhmat = '' THEN 1 "
    "WHEN instr(';' || Kayttoryhmat || ';', ';' || (SELECT Kayttoryhma FROM Kayttotarkoitus WHERE Koodi = ?) || ';') "
    "THEN 0 ELSE 2 END, ";
constexpr int kYhteisia = 11;

void LueYhteiset(const Kysely& kysely, Luettelorivitiedot& rivi) {
  const auto teksti = [&](int sarake) { return std::string(kysely.Teksti(sarake)); };
  rivi.Id = teksti(0);
  rivi.Nimi = teksti(1);
  rivi.Yksikko = teksti(2);
  rivi.Arvo = kysely.Luku(3);
  rivi.Pienin = kysely.Luku(4);
  rivi.Suurin = kysely.Luku(5);
  rivi.Maara = teksti(6);
  rivi.Hakusanat = teksti(7);
  rivi.Lahde = teksti(8);
  rivi.Tila = teksti(9);
  rivi.kenelle = static_cast<Kenelle>(kysely.Kokonais(10));
}

template <class Rivi, class Lue>
std::vector<Rivi> LueRivit(const std::string& omat, int kayttotarkoituskoodi, Lue lue) {
  const Tietokanta kanta(Aineistotiedosto("Kulutusluettelo.mdb"));
  Kysely kysely(kanta, kYhteiset + omat + " ORDER BY rowid", kayttotarkoituskoodi);
  std::vector<Rivi> rivit;
  while (kysely.Seuraava()) {
    Rivi& rivi = rivit.emplace_back();
    LueYhteiset(kysely, rivi);
    lue(kysely, rivi);
  }
  return rivit;
}

/// A unit of a dialog's choice list and the caption of its calculation unit, which stands in the list beside it.
struct Yksikko {
  std::int16_t paikka;
  std::string yksikonTeksti;
};

Yksikko EtsiYksikko(const char* lomake, const std::string& perusteet, const std::string& yksikot,
                    const std::string& haettu) {
  const auto rivit = Valintalista(lomake, perusteet);
  const auto kohta = std::ranges::find(rivit, haettu);
  if (kohta == rivit.end()) throw std::runtime_error("yksikköä ei ole: " + haettu);
  const auto paikka = kohta - rivit.begin();
  return {static_cast<std::int16_t>(paikka), Valintalista(lomake, yksikot).at(static_cast<std::size_t>(paikka))};
}

}  // namespace

std::vector<Sahkolaite> LueSahkolaitteet(int kayttotarkoituskoodi) try {
  return LueRivit<Sahkolaite>("Haara, TuntiaVrk, VrkVuosi, Tasauskerroin, Lammoksi FROM Sahkolaite",
                              kayttotarkoituskoodi, [](const Kysely& kysely, Sahkolaite& rivi) {
                                rivi.Haara = kysely.Teksti(kYhteisia);
                                rivi.TuntiaVrk = kysely.Luku(kYhteisia + 1);
                                rivi.VrkVuosi = kysely.Luku(kYhteisia + 2);
                                rivi.Tasauskerroin = kysely.Luku(kYhteisia + 3);
                                rivi.Lammoksi = kysely.Tosi(kYhteisia + 4);
                              });
} catch (...) {
  NostaVirhe("Kulutusluettelo:LueSahkolaitteet Function");
}

std::vector<Vedenkaytto> LueVedenkaytot(int kayttotarkoituskoodi) try {
  return LueRivit<Vedenkaytto>("Laji, KertaaD, VrkVuosi, Kayttolampotila FROM Vedenkaytto", kayttotarkoituskoodi,
                               [](const Kysely& kysely, Vedenkaytto& rivi) {
                                 rivi.Haara = kysely.Teksti(kYhteisia);
                                 rivi.KertaaD = kysely.Luku(kYhteisia + 1);
                                 rivi.VrkVuosi = kysely.Luku(kYhteisia + 2);
                                 rivi.Kayttolampotila = kysely.Luku(kYhteisia + 3);
                               });
} catch (...) {
  NostaVirhe("Kulutusluettelo:LueVedenkaytot Function");
}

void TaytaRyhma(const Sahkolaite& laite, clsSahkonKulutusryhma& ryhma) try {
  const std::string tapa = laite.Tehopohjainen() ? "Teho" : "Energia";
  const Yksikko yksikko = EtsiYksikko("frmTarkennettuLaiteLaskenta", "cmbLaskentaOminaissuure" + tapa,
                                      "cmbLaskentayksikko" + tapa, laite.Yksikko);
  ryhma.KulutusRyhma = laite.Nimi;
  ryhma.LaskentatapaTehopohjainen(laite.Tehopohjainen());
  ryhma.LaskentatapaEnergiapohjainenIndex = clsSahkonKulutusryhma().LaskentatapaEnergiapohjainenIndex;
  ryhma.LaskentaperusteID = yksikko.paikka;
  ryhma.LaskentaperusteStr = laite.Yksikko;
  ryhma.LaskentaperusteNumber = laite.Arvo;
  ryhma.Laskentayksikko = yksikko.yksikonTeksti.empty() ? laite.Maara : yksikko.yksikonTeksti;
  ryhma.KayttoaikaHpD = laite.TuntiaVrk;
  ryhma.KayttoaikaDpA = laite.VrkVuosi;
  ryhma.Tasauskerroin = laite.Tasauskerroin;
  ryhma.EnergiaHyodynnetaanLammityksessa = laite.Lammoksi;
} catch (...) {
  NostaVirhe("Kulutusluettelo:TaytaRyhma Function");
}

void TaytaRyhma(const Vedenkaytto& kaytto, clsVedenKulutusryhma& ryhma) try {
  const Yksikko yksikko =
      EtsiYksikko("frmTarkennettuVesiLaskenta", "cmbLaskentaOminaissuure", "cmbLaskentayksikko", kaytto.Yksikko);
  ryhma.KulutusRyhma = kaytto.Nimi;
  ryhma.LaskentaperusteID = yksikko.paikka;
  ryhma.LaskentaperusteStr = kaytto.Yksikko;
  ryhma.LaskentaperusteNumber = kaytto.Arvo;
  ryhma.LaskentayksikonTeksti = yksikko.yksikonTeksti;
  ryhma.KayttokuvausKertaaD = kaytto.KertaaD;
  ryhma.KayttokuvausDpA = kaytto.VrkVuosi;
  ryhma.Tasauskerroin = 1;
  ryhma.VedenKayttolampotila = kaytto.Kayttolampotila;
  ryhma.PaivitaLampimanVedenOsuus();
} catch (...) {
  NostaVirhe("Kulutusluettelo:TaytaRyhma Function");
}
