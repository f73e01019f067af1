// SPDX-License-Identifier: GPL-3.0-or-later
// A building for the tests of the model: global for the life of the fixture, messages collected, dialogs scripted,
// weather of the built data (zone I, Helsinki).
#pragma once
#include <gtest/gtest.h>

#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tests/tuki/Koeviestit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ui/Ikkunaton.h"
#include "ui/Tekstivarasto.h"

inline constexpr int kHelsinki = 1, kTampere = 13, kKuopio = 6;

class RakennusTesti : public testing::Test {
 protected:
  RakennusTesti() {
    AlustaTekstit();
    Asetukset().HaeRekisteristä();
    rakennus = std::make_unique<clsRakennus>();
    AsetaGlobaaliRakennus(rakennus.get());
    rakennus->Perustiedot.LammTarveLukuPaikkakuntaID(kHelsinki);
    rakennus->Perustiedot.BruttoAla = 1000;
    rakennus->Saa.AsetaSaaPaikkakunta(kHelsinki);
  }
  /// The building's forms go before what shows them, which a derived fixture may hold.
  void TearDown() override { rakennus.reset(); }

  clsTila& LisaaTila(double tilavuus = 0, double ala = 100) {
    clsTila& tila = rakennus->Tilat.Add(Tunniste::Uusi(clsTila::kLuokka.NimiSana()));
    tila.Kokonaistilavuus = tilavuus;
    tila.BruttoAla = ala;
    return tila;
  }
  static clsRakenne& LisaaRakenne(clsTila& tila, std::int32_t tyyppi, double ala, double u) {
    clsRakenne& rakenne = tila.Rakenteet.Add(Tunniste::Uusi(clsRakenne::kLuokka.NimiSana()));
    rakenne.Rakennetyyppi = tyyppi;
    rakenne.PintaAla = ala;
    rakenne.U_arvo(u);
    return rakenne;
  }
  static clsRakenne& LisaaIkkuna(clsTila& tila, double ala, int suunta) {
    clsRakenne& ikkuna = LisaaRakenne(tila, Rakennelaji::Ikkuna, ala, 1.8);
    ikkuna.SuuntausID = suunta;
    Rakenneratkaisu& ratkaisu = ikkuna.RakenneRatkaisu.Luo();
    ratkaisu.OnIkkuna = true;
    ratkaisu.Aurinkoenergianlapaisy = 70;
    ratkaisu.Karmikerroin = 75;
    ratkaisu.Verhokerroin = 75;
    return ikkuna;
  }
  /// The generated model of a school of 4 200 m² and 17 500 m³ in Tampere, three storeys, of 1965.
  void LuoKoulu() {
    clsPerustiedot& tiedot = rakennus->Perustiedot;
    AlustaPerustiedot(tiedot);
    if (tiedot.ToteutuneetKulutukset.Count() == 0) AlustaToteutuneetKulutukset(tiedot.ToteutuneetKulutukset);
    tiedot.KohteenNimi = "Koulu";
    tiedot.KayttoTarkoitusID = 20;  // code 51
    tiedot.BruttoAla = 4200;
    tiedot.Kokonaistilavuus = 17500;
    tiedot.KerrostenLukumaara = 3;
    tiedot.KohteenHenkiloMaara = 420;
    tiedot.ValmistumisVuosi = 1965;
    tiedot.LammTarveLukuPaikkakuntaID(kTampere);
    tiedot.OtaKayttoon(0);
  }

  /// How many attributes of the space and of what is below it differ from a copy made before.
  int Muutoksia(clsTila& tila, clsTila& ennen) const {
    clsMuuttuneetAttribuutit muutokset;
    VertaileOliot(tila, ennen, muutokset, rakennus->TyyppiTiedot);
    return muutokset.Count();
  }

  Koeviestit viestit;
  Ikkunattomat ikkunat{Lahdekoodi("ui/forms")};
  std::unique_ptr<clsRakennus> rakennus;
};
