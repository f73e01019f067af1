// SPDX-License-Identifier: GPL-3.0-or-later
// An error at any point while a variation is laid on, computed and taken back leaves the model as it was.
#include "building/Mallivaraus.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/fault/Muistivika.h"
#include "tests/measures/Koemuunnelma.h"

namespace {

class MuunnelmavikaTesti : public Muunneltava {
 protected:
  MuunnelmavikaTesti() {
    clsSaastotoimenpiteet& toimenpiteet = rakennus->Saastotoimenpiteet;
    toimenpiteet.PaivitaHierarkiaLista();
    for (const Tunniste& solmu : {rakennus->Tilat.Item(1).sKey, rakennus->SahkonKulutusryhmat.Item(1).sKey}) {
      clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa(solmu);
      rakennus->ToimenpiteidenJarjestelija.Valitse(toimenpide.sKey, true);
    }
    clsTila& tila = rakennus->Tilat.Item(1);
    clsMuuttuneetAttribuutit& muutokset = toimenpiteet.Item(1).MuuttuneetAttribuutit;
    Lisaa(muutokset, tila, "Sisalampotila", Laji::Kaksinkertainen, 18);
    Lisaa(muutokset, tila, "Kuvausteksti", Laji::Teksti, 0, "pitkä teksti, joka ei mahdu merkkijonon omaan tilaan");
    Lisaa(muutokset, tila.Rakenteet.Item(1), "PintaAla", Laji::Kaksinkertainen, 10);
    Lisaa(muutokset, tila, "EiOle", Laji::Kaksinkertainen, 10);
    Lisaa(toimenpiteet.Item(2).MuuttuneetAttribuutit, rakennus->SahkonKulutusryhmat.Item(1), "KulutusryhmienLukumaara",
          Laji::Kaksinkertainen, 9);
  }

  /// Runs the work with each of its requests for memory failing in turn, until none is left to fail.
  template <class F>
  void KokeileJokaKohdasta(F&& tyo) {
    const std::string kuva = MallinKuva();
    int vikoja = 0;
    for (int monesko = 1;; ++monesko) {
      bool sattui = false;
      try {
        const Muistivika vika(monesko);
        tyo();
        sattui = Muistivika::Sattui();
      } catch (const std::exception&) {
        sattui = true;
        ++vikoja;
      }
      ASSERT_EQ(MallinKuva(), kuva) << "request " << monesko;
      ASSERT_FALSE(MalliVarattu());
      ASSERT_FALSE(Muunnelma::Voimassa());
      if (!sattui) break;
    }
    EXPECT_GT(vikoja, 10);
    EXPECT_EQ(rakennus->VuotuinenBruttoLampoEnergia(), perusta_);
  }

  const double perusta_ = rakennus->VuotuinenBruttoLampoEnergia();
};

TEST_F(MuunnelmavikaTesti, ComputingAMeasure) {
  for (int i = 1; i <= 2; ++i) {
    clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Item(i);
    KokeileJokaKohdasta([&] {
      toimenpide.EnnenTiedotUpToDate = toimenpide.JalkeenTiedotUpToDate = false;
      try {
        toimenpide.PaivitaKulutukset();
      } catch (...) {
        EXPECT_FALSE(toimenpide.JalkeenTiedotUpToDate);
        throw;
      }
    });
    EXPECT_NE(toimenpide.Saasto().lampo, 0);
  }
}

TEST_F(MuunnelmavikaTesti, MakingTheObjectAfter) {
  KokeileJokaKohdasta([&] { rakennus->Saastotoimenpiteet.Item(1).TeeJalkeen(); });
}

TEST_F(MuunnelmavikaTesti, ComputingThePackage) {
  rakennus->Saastotoimenpiteet.PaivitaEnnenTiedotToimenpiteisiin();
  KokeileJokaKohdasta([&] { rakennus->ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet(); });
}

}  // namespace
