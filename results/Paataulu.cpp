// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Paataulu.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Hakemistot.h"
#include "kernel/Luvut.h"
#include "measures/clsValitutToimenpiteet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr const char* kTiedosto = "Paataulu.xls";
constexpr int kSiirtyma = 13;  // rows, from the list's own place
constexpr int kLaskentasarake = 57;

double Vuosikustannus(double kulutus, const clsEnergianHankinta& hankinta, Energialaji laji) {
  return (kulutus * hankinta.Energiamuodot.Keskihinta() + hankinta.Energiamuodot.Vuosimaksut()) *
         Asetukset().NayttoKerroin(laji);
}

std::int32_t Vertailuvuosi(const clsToteutuneetKulutukset& kulutukset) {
  for (int i = 1; i <= kulutukset.Count(); ++i)
    if (const auto* vuosi = kulutukset.Vuosi(i); vuosi && vuosi->KaytaVertailuVuotena)
      return kulutukset.KulutusTietojenViimVuosi - (i - 1);
  return 0;
}

/// What the list shows, as a number when it is one.
Taulukkosolu Naytetty(const Taulukkosolu& solu) {
  if (std::holds_alternative<std::string>(solu)) return solu;
  return Taulukkoluku{LueLuku(SolunTeksti(solu)).value_or(0), {}};
}

}  // namespace

std::unique_ptr<Tyokirjapohja> AvaaPaataulu() try {
  return std::make_unique<Tyokirjapohja>(AppPath() + kTiedosto);
} catch (const std::exception& virhe) {
  Ilmoita(Teksti(tekstit::kPaataulunVirhe) + virhe.what(), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  return nullptr;
}

void KirjoitaPerustiedot(Tyokirjapohja& pohja, clsRakennus& rakennus) {
  const clsPerustiedot& tiedot = rakennus.Perustiedot;
  const clsToteutunutKulutus& vuosi = tiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
  const auto luku = [&](const char* nimi, int rivi, double arvo) {
    pohja.Kirjoita(pohja.Nimetty(nimi, {rivi, kLaskentasarake}), Taulukkoluku{arvo, {}});
  };
  const double lampo = rakennus.ToteutunutNormitettuLampo();
  luku("Vertailuvuosi", 6, Vertailuvuosi(tiedot.ToteutuneetKulutukset));
  luku("Lampo", 8, lampo);
  luku("Sahko", 11, vuosi.Sahko);
  luku("Vesi", 14, vuosi.Vesi);
  luku("LampoKustannus", 9, Vuosikustannus(lampo, tiedot.LammonHankinta, Energialaji::Lampo));
  luku("SahkoKustannus", 12, Vuosikustannus(vuosi.Sahko, tiedot.SahkonHankinta, Energialaji::Sahko));
  luku("VesiKustannus", 15, Vuosikustannus(vuosi.Vesi, tiedot.VedenHankinta, Energialaji::Vesi));
  pohja.Kirjoita(pohja.Nimetty("KohteenNimi", {9, 3}), tiedot.KohteenNimi);
  pohja.Kirjoita(pohja.Nimetty("Kokonaistilavuus", {11, 3}), Taulukkoluku{tiedot.Kokonaistilavuus, {}});
  pohja.Kirjoita(pohja.Nimetty("Kayttotarkoitus", {12, 3}), tiedot.Kayttotarkoitus);
}

bool KirjoitaToimenpiteet(Tyokirjapohja& pohja, const Laskentataulukko& taulukko, bool otsikot, int rivi, int sarake) {
  const auto nurkka = pohja.Nimetty("Toimenpiteet", {1 + kSiirtyma, 1});
  int paikka = nurkka.first + rivi - 1;
  const int alku = nurkka.second + sarake - 1;
  bool tilaa = true;
  const auto kirjoita = [&](const std::vector<Taulukkosolu>& solut, bool lihava) {
    int s = alku;
    for (const Taulukkosolu& solu : solut) {
      tilaa = tilaa && !pohja.OnKaava({paikka, s});
      pohja.Kirjoita({paikka, s++}, Naytetty(solu), lihava);
    }
    ++paikka;
  };
  if (otsikot) kirjoita({taulukko.sarakkeet.begin(), taulukko.sarakkeet.end()}, true);
  if (!otsikot) ++paikka;
  for (std::size_t i = 0; i < taulukko.rivit.size(); ++i) {
    const Laskentataulukko::Ulkoasu ulkoasu =
        i < taulukko.ulkoasut.size() ? taulukko.ulkoasut[i] : Laskentataulukko::Ulkoasu();
    if (ulkoasu.avain != clsValitutToimenpiteet::kYhteensa) kirjoita(taulukko.rivit[i], ulkoasu.lihava);
  }
  if (!tilaa) Ilmoita(Teksti(tekstit::kPohjassaEiTilaa), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  return tilaa;
}
