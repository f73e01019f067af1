// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/vertailu/Mallirakennus.h"

#include <unistd.h>

#include <filesystem>

#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsTilat.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "kernel/Hakemistot.h"
#include "ventilation/clsIVKoneet.h"

namespace fs = std::filesystem;

namespace mittaus {

namespace {

constexpr int kToimisto = 31;
constexpr std::array<int, 4> kVuodet{1955, 1972, 1988, 2005};

void TaytaPerustiedot(clsPerustiedot& tiedot) {
  AlustaPerustiedot(tiedot);
  AlustaToteutuneetKulutukset(tiedot.ToteutuneetKulutukset);
  tiedot.KohteenNimi = "Mittauksen toimistotalo";
  const auto& koodit = clsRakennus::KayttoTarkoitusKoodit;
  tiedot.KayttoTarkoitusID =
      static_cast<std::int16_t>(std::find(koodit.begin(), koodit.end(), kToimisto) - koodit.begin());
  tiedot.ValmistumisVuosi = kVuodet.back();
  tiedot.BruttoAla = 12000;
  tiedot.Kokonaistilavuus = 42000;
  tiedot.KerrostenLukumaara = 4;
  tiedot.KohteenHenkiloMaara = 400;
  tiedot.LammTarveLukuPaikkakuntaID(4);
  for (clsToteutunutKulutus& vuosi : tiedot.ToteutuneetKulutukset) vuosi.Lampo = 1500, vuosi.Sahko = 800;
}

void LisaaEnergiamuodot(clsEnergianHankinta& hankinta) {
  for (const double osuus : {70.0, 30.0}) {
    clsEnergiamuoto& muoto = hankinta.Energiamuodot.Add(Tunniste::Uusi(clsEnergiamuoto::kLuokka.NimiSana()));
    muoto.OsuusNettotarpeesta = osuus;
    muoto.Hyotysuhde = osuus + 20;
  }
}

/// One space of each decade; what they have is repeated.
std::vector<std::unique_ptr<clsTila>> TeeMallitilat() {
  std::vector<std::unique_ptr<clsTila>> mallit;
  for (const int vuosi : kVuodet) {
    clsTilat tilat;
    LuoTilat(tilat, {.tilavuus = 360, .ala = 120, .kayttotarkoituskoodi = kToimisto, .vuosi = vuosi, .henkiloita = 4});
    mallit.push_back(tilat.Item(1).Kopioi());
  }
  return mallit;
}

/// Which structure of the generated space is the i:th of a space: 1 wall, 2 to 5 windows, 6 floor, 7 roof.
int Mallipaikka(int i) {
  constexpr std::array<int, 10> kPaikat{1, 2, 1, 6, 1, 4, 7, 1, 1, 1};
  return i % 10 == 1 ? 2 + i / 10 % 4 : kPaikat[static_cast<std::size_t>(i % 10)];
}

void LisaaRakenteet(clsTila& tila, const std::vector<std::unique_ptr<clsTila>>& mallit, int rakenteita) {
  for (int i = 0; i < rakenteita; ++i) {
    const clsTila& malli = *mallit[static_cast<std::size_t>(i) % mallit.size()];
    clsRakenne& rakenne = tila.Rakenteet.Add(Tunniste::Uusi(clsRakenne::kLuokka.NimiSana()));
    const Tunniste avain = rakenne.sKey;
    malli.Rakenteet.Item(Mallipaikka(i)).Kopioi(rakenne);
    rakenne.sKey = avain;
    rakenne.PintaAla = rakenne.PintaAla / rakenteita + i + 0.5;
    rakenne.HorisVarjostus.Varjostuskulma = 5 + i;
    if (i % 10 == 7) rakenne.TyyppiID = kPuskuritila;
  }
}

void LisaaTila(clsTilat& tilat, const std::vector<std::unique_ptr<clsTila>>& mallit, int n, int rakenteita) {
  clsTila& tila = tilat.Add(Tunniste::Uusi(clsTila::kLuokka.NimiSana()));
  const Tunniste avain = tila.sKey;
  mallit.front()->Kopioi(tila);
  tila.sKey = avain;
  tila.TilanNimi = "Toimistohuone " + std::to_string(n + 1);
  tila.Sisalampotila = 16 + n % 7;
  tila.Kokonaistilavuus = 300 + n % 50;
  tila.BruttoAla = 100 + n % 30;
  tila.PainovoimainenIlmanvaihto = n % 5 == 0;
  tila.Sahkolammitys = n % 10 == 0;
  tila.Rakenteet.Tyhjenna();
  LisaaRakenteet(tila, mallit, rakenteita);
}

void LisaaSahkoryhmat(clsSahkonKulutusryhmat& ryhmat, const clsTilat& tilat) {
  for (int i = 0; i < 10; ++i) {
    clsSahkonKulutusryhma& ryhma = ryhmat.Add(Tunniste::Uusi(clsSahkonKulutusryhma::kLuokka.NimiSana()));
    ryhma.EnergiaHyodynnetaanLammityksessa = true;
    ryhma.LaskentaperusteNumber = 8 + i;
    ryhma.LaskentayksikkoNumber = 100;
    ryhma.KayttoaikaHpD = 8;
    ryhma.KayttoaikaDpA = 250;
    if (i % 2 == 0) ryhma.LiittyyTilaansKey = tilat.Item(1 + i % tilat.Count()).sKey;
  }
}

/// Seven lines of a season: two shifts, mornings and a night over midnight, at flows and supply temperatures that
/// differ.
void TaytaJaksot(clsKayntiAjat& ajat, int kone) {
  int rivi = 0;
  for (clsKayntiAika& jakso : ajat) {
    jakso.KayntiJaksojenLkm = 5 + rivi % 3;
    jakso.Alkaa.minuutit = (rivi * 195 + kone * 7) % 1440;
    jakso.Paattyy.minuutit = (jakso.Alkaa.minuutit + 90 + rivi % 7 * 65) % 1440;
    jakso.TuloIlmavirtaProsentti = 40 + rivi % 7 * 10;
    jakso.Tsp = 17 + rivi % 7 * 0.5;
    ++rivi;
  }
}

struct Kansio {
  Kansio() : polku(AppPath() + "mittaus-" + std::to_string(getpid()) + "/") { fs::create_directories(polku); }
  ~Kansio() {
    std::error_code virhe;
    fs::remove_all(polku, virhe);
  }
  std::string polku;
};

}  // namespace

std::unique_ptr<clsRakennus> TeeMallirakennus(int tiloja, int rakenteita) {
  auto rakennus = std::make_unique<clsRakennus>();
  AsetaGlobaaliRakennus(rakennus.get());
  TaytaPerustiedot(rakennus->Perustiedot);
  rakennus->Perustiedot.OtaKayttoon(0);
  LisaaEnergiamuodot(rakennus->Perustiedot.LammonHankinta);
  const auto mallit = TeeMallitilat();
  rakennus->Tilat.Tyhjenna();
  for (int n = 0; n < tiloja; ++n) LisaaTila(rakennus->Tilat, mallit, n, rakenteita);
  LisaaSahkoryhmat(rakennus->SahkonKulutusryhmat, rakennus->Tilat);
  rakennus->PaivitaInstanssiIdLista();
  return rakennus;
}

void LisaaKoneet(clsRakennus& rakennus, int koneita) {
  for (int i = 0; i < koneita; ++i) {
    clsIVKone& kone = rakennus.IVKoneet.Add(Tunniste::Uusi(clsIVKone::kLuokka.NimiSana()));
    kone.IVPeriaateID = i % 4;
    kone.TuloIlmavirta11Teho = kone.OnTulopuhallin() ? 1 + 0.1 * (i % 10) : 0;
    kone.PoistoIlmavirta11Teho = 1.1 + 0.1 * (i % 7);
    kone.LtoHyotysuhde = kone.OnTulopuhallin() ? 55 : 0;
    kone.LiittyyTilaansKey = rakennus.Tilat.Item(2 + i * kTilojaKoneella % (rakennus.Tilat.Count() - 1)).sKey;
    kone.KayntiAikaYleistiedot.KayntiaikojenSyottotapaID = i % 2;
    kone.KayntiAikaYleistiedot.LuoJaksot(kone.SisaanpuhallusLampotila(), kone.IlmanLampeneminenPuhaltimessa);
    TaytaJaksot(kone.KayntiAikaYleistiedot, i);
  }
  rakennus.PaivitaInstanssiIdLista();
}

const std::string& Mittauskansio() {
  static const Kansio kansio;
  return kansio.polku;
}

namespace {

int Olioita(Olio& olio) {
  int maara = 1;
  for (KokoelmaPohja* alkiot : {olio.Kokoelmana(), olio.ListaItemeina()})
    for (int i = 1; alkiot && i <= alkiot->Count(); ++i) maara += Olioita(alkiot->Pohja(i));
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet())
    if (jasen.OnOlio())
      if (Olio* lapsi = jasen.olio(olio)) maara += Olioita(*lapsi);
  return maara;
}

}  // namespace

int Olioita(clsRakennus& rakennus) { return Olioita(static_cast<Olio&>(rakennus)); }

}  // namespace mittaus
