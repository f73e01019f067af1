// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Muunnelma.h"

#include <thread>

#include "building/Tasehaarukka.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelmaketju.h"
#include "tests/measures/Koemuunnelma.h"

namespace {

/// Figures of the building and of each space and machine, by object; one that can't be computed is missing.
class Luvut {
 public:
  explicit Luvut(clsRakennus& r) {
    Ota(&r, [&] { return r.VuotuinenBruttoLampoEnergia(); });
    Ota(&r, [&] { return r.VuotuinenBruttoSahkoEnergia(); });
    Ota(&r, [&] { return r.VedenKulutusryhmat.VuotuinenVedenKulutus(); });
    for (clsTila& tila : r.Tilat) {
      Ota(&tila, [&] { return tila.VuotuinenLampoEnergianTarve(); });
      Ota(&tila, [&] { return tila.VuotuisetSaatohaviot(); });
      Ota(&tila, [&] { return tila.VuotuinenAurinkoKuorma(); });
    }
    for (clsIVKone& kone : r.IVKoneet) {
      Ota(&kone, [&] { return kone.VuotuinenIVjalkilammitysLampo(); });
      Ota(&kone, [&] { return kone.VuotuinenPuhallinSahko(); });
    }
  }
  const std::vector<double>& Olion(const Olio* olio) const { return luvut_.at(olio); }
  friend bool operator==(const Luvut&, const Luvut&) = default;

 private:
  template <class F>
  void Ota(const Olio* olio, F&& laske) {
    std::vector<double>& luvut = luvut_[olio];
    try {
      luvut.push_back(laske());
    } catch (const Virhe&) {
    }
  }
  std::map<const Olio*, std::vector<double>> luvut_;
};

class MuunnelmaTesti : public Muunneltava {
 protected:
  /// Every object that a change can name.
  std::vector<Olio*> RekisterinOliot() {
    std::vector<Olio*> oliot;
    Kierra(*rakennus, [&](Olio& olio) {
      if (rakennus->HaeInstanssi(olio.LuokanNimi(), olio.InstanssiId).olio == &olio) oliot.push_back(&olio);
    });
    return oliot;
  }
  /// One to four random changes, possible ones and others.
  void Arvo(Arpa& arpa, const std::vector<Olio*>& oliot, clsMuuttuneetAttribuutit& lista) const {
    constexpr double kArvot[] = {0, 1, -1, 2, 4, 0.5, 1e-9, 16, 21, 35, 60, 100, 400, 32767, 40000, 1e12, -3e9, 1e300};
    const int maara = arpa.Kokonaisluku(1, 4);
    for (int i = 0; i < maara; ++i) {
      const Olio& olio = *oliot[arpa() % oliot.size()];
      const auto jasenet = olio.LuokanTiedot().Jasenet();
      const Jasen& jasen = jasenet[arpa() % jasenet.size()];
      Lisaa(lista, olio, jasen.nimi, jasen.OnOlio() ? Laji::Kaksinkertainen : jasen.laji,
            kArvot[arpa() % std::size(kArvot)],
            arpa() % 2 ? rakennus->Tilat.Item(arpa.Kokonaisluku(1, 3)).sKey.Teksti() : "åäö \"1,5\"");
    }
  }
};

TEST_F(MuunnelmaTesti, WritesFieldsRawAndPutsThemBack) {
  clsIVKone& kone = rakennus->IVKoneet.Item(1);
  clsRakenne& seina = rakennus->Tilat.Item(1).Rakenteet.Item(1);
  seina.LaskeU_arvoMateriaaleista = true;
  kone.SisaanpuhallusLampotila(17);
  kone.KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp = 20;
  clsMuuttuneetAttribuutit lista;
  Lisaa(lista, kone, "SisaanpuhallusLampotila", Laji::Kaksinkertainen, 19);
  Lisaa(lista, kone, "SisaanpuhallusLampotila", Laji::Kaksinkertainen, 22);
  Lisaa(lista, seina, "U_arvo", Laji::Kaksinkertainen, 0.11);
  Lisaa(lista, seina, "LaskeU_arvoMateriaaleista", Laji::Totuus, 0);
  const std::string kuva = Kuva(*rakennus);
  const double u = seina.U_arvo();
  {
    const Muunnelma muunnelma(*rakennus, lista);
    EXPECT_TRUE(muunnelma.Ohitetut().empty());
    EXPECT_EQ(kone.SisaanpuhallusLampotila(), 22);
    EXPECT_EQ(kone.KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp, 20) << "the periods have rows of their own";
    EXPECT_EQ(seina.U_arvo(), 0.11);
    EXPECT_TRUE(MalliVarattu());
  }
  EXPECT_FALSE(MalliVarattu());
  EXPECT_EQ(seina.U_arvo(), u);
  EXPECT_EQ(Kuva(*rakennus), kuva);
  rakennus->LiitaSaastoToimenpide(lista);
  EXPECT_EQ(kone.SisaanpuhallusLampotila(), 22) << "for good";
  EXPECT_EQ(kone.KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp, 20);
}

TEST_F(MuunnelmaTesti, PassesOverAndNamesWhatCantBeWritten) {
  clsTila& tila = rakennus->Tilat.Item(1);
  const Tunniste avain = tila.sKey;
  clsMuuttuneetAttribuutit lista;
  Lisaa(lista, tila, "Sisalampotila", Laji::Kaksinkertainen, 19);
  Lisaa(lista, tila, "EiOle", Laji::Kaksinkertainen, 1);
  Lisaa(lista, tila, "sKey", Laji::Teksti, 0, "sKeyUusi");
  Lisaa(lista, tila, "InstanssiId", Laji::Teksti, 0, "clsTila 1");
  Lisaa(lista, tila, "Rakenteet", Laji::Teksti, 0, "x");
  Lisaa(lista, rakennus->SahkonKulutusryhmat.Item(1), "LaskentaperusteID", Laji::Lyhyt, 70000);
  Lisaa(lista, rakennus->SahkonKulutusryhmat.Item(1), "LaskentaperusteID", Laji::Pitka, 70000);
  Lisaa(lista, tila, "SaatotapaID", Laji::Pitka, 3e9);
  Lisaa(lista, tila, "BruttoAla", Laji::Teksti, 0, "suuri");
  Lisaa(lista, tila, "BruttoAla", static_cast<Laji>(13), 5);
  Lisaa(lista, tila, "BruttoAla", Laji::Kaksinkertainen, 5).TietoTyyppi = 256 + 5;
  Lisaa(lista, tila, "BruttoAla", Laji::Kaksinkertainen, 5).InstanssiId = "clsTila 2";
  Lisaa(lista, tila, "Kokonaistilavuus", Laji::Kaksinkertainen, 700);
  const std::string kuva = Kuva(*rakennus);
  {
    const Muunnelma muunnelma(*rakennus, lista);
    EXPECT_EQ(muunnelma.Ohitetut().size(), 11u);
    EXPECT_EQ(muunnelma.Ohitetut().front().nimi, "clsTila.EiOle");
    EXPECT_EQ(muunnelma.Ohitetut().front().rivi, 2);
    const auto tuntemattomat = std::ranges::count_if(
        muunnelma.Ohitetut(), [](const Muunnelma::Ohitettu& o) { return o.tuntematonTyyppi != 0; });
    EXPECT_EQ(tuntemattomat, 2) << "kinds 13 and 261";
    EXPECT_EQ(tila.Sisalampotila, 19) << "what stands before and behind them is written";
    EXPECT_EQ(tila.Kokonaistilavuus, 700);
    EXPECT_EQ(rakennus->Tilat.Etsi(avain), &tila);
  }
  EXPECT_EQ(Kuva(*rakennus), kuva);
}

TEST_F(MuunnelmaTesti, ListsLieOnEachOther) {
  clsTila& tila = rakennus->Tilat.Item(1);
  clsMuuttuneetAttribuutit alempi, ylempi;
  Lisaa(alempi, tila, "Sisalampotila", Laji::Kaksinkertainen, 19);
  Lisaa(alempi, tila, "Vuotoilmanvaihto", Laji::Kaksinkertainen, 0.05);
  Lisaa(ylempi, tila, "Sisalampotila", Laji::Kaksinkertainen, 18);
  const std::string kuva = Kuva(*rakennus);
  const double alku = rakennus->VuotuinenLampoEnergianTarveTilat();
  {
    Muunnelma muunnelma(*rakennus, alempi);
    const double yhden = rakennus->VuotuinenLampoEnergianTarveTilat();
    muunnelma.Liita(ylempi);
    const double molempien = rakennus->VuotuinenLampoEnergianTarveTilat();
    EXPECT_LT(yhden, alku);
    EXPECT_LT(molempien, yhden);
  }
  EXPECT_EQ(Kuva(*rakennus), kuva);
  EXPECT_EQ(rakennus->VuotuinenLampoEnergianTarveTilat(), alku);
}

/// Gross figures; nothing when they can't be computed.
template <class F>
std::optional<Hyodykkeet> Yrita(F&& laske) {
  try {
    return laske();
  } catch (const Virhe&) {
    return std::nullopt;
  }
}
std::optional<Hyodykkeet> Kokonaan(clsRakennus& r) {
  return Yrita([&r] {
    return Hyodykkeet{r.VuotuinenBruttoLampoEnergia(), r.VuotuinenBruttoSahkoEnergia(),
                      r.VedenKulutusryhmat.VuotuinenVedenKulutus()};
  });
}

/// The law: whatever is varied, and whatever is read meanwhile, the building is then what it was; and the figures of
/// the spaces and machines that a variation doesn't name are the same under it; and what is computed of it from those
/// that it does name is what the whole calculation gives, to the last bit.
TEST_F(MuunnelmaTesti, RandomVariationsLeaveNoTrace) {
  Arpa arpa;
  const std::vector<Olio*> oliot = RekisterinOliot();
  Muunnelmalaskin laskin(*rakennus);
  const std::string kuva = Kuva(*rakennus);
  const Luvut alku(*rakennus);
  int kirjoitettuja = 0, ennallaan = 0, laskettuja = 0;
  for (int kierros = 0; kierros < 300; ++kierros) {
    clsMuuttuneetAttribuutit lista;
    Arvo(arpa, oliot, lista);
    const auto osista = Yrita([&] { return laskin.Laske(lista); });
    ASSERT_EQ(Kuva(*rakennus), kuva) << "round " << kierros;
    {
      const Muunnelma muunnelma(*rakennus, lista);
      kirjoitettuja += lista.Count() - static_cast<int>(muunnelma.Ohitetut().size());
      const std::string alla = Kuva(*rakennus);
      const Luvut nyt(*rakennus);
      EXPECT_EQ(Kuva(*rakennus), alla) << "reading writes nothing";
      EXPECT_EQ(osista, Kokonaan(*rakennus)) << "round " << kierros;
      laskettuja += osista.has_value();
      const Muunnelma::Ulottuvuus& ulottuvuus = muunnelma.Viimeisin();
      for (clsTila& tila : rakennus->Tilat)
        if (!ulottuvuus.Sisaltaa(tila)) {
          EXPECT_EQ(nyt.Olion(&tila), alku.Olion(&tila));
          ++ennallaan;
        }
      for (clsIVKone& kone : rakennus->IVKoneet)
        if (!ulottuvuus.Sisaltaa(kone)) {
          EXPECT_EQ(nyt.Olion(&kone), alku.Olion(&kone));
          ++ennallaan;
        }
    }
    ASSERT_EQ(Kuva(*rakennus), kuva) << "round " << kierros;
    ASSERT_TRUE(Luvut(*rakennus) == alku) << "round " << kierros;
  }
  EXPECT_GT(kirjoitettuja, 300);
  EXPECT_GT(ennallaan, 300);
  EXPECT_GT(laskettuja, 200);
}

TEST_F(MuunnelmaTesti, EachListOfAChainIsComputedWithThoseBelowItInForce) {
  Arpa arpa;
  const std::vector<Olio*> oliot = RekisterinOliot();
  Muunnelmalaskin laskin(*rakennus);
  const Hyodykkeet perusta = laskin.Perusta();
  const std::string kuva = Kuva(*rakennus);
  for (int kierros = 0; kierros < 20; ++kierros) {
    std::vector<clsMuuttuneetAttribuutit> listat(5);
    for (clsMuuttuneetAttribuutit& lista : listat) Arvo(arpa, oliot, lista);
    std::vector<std::optional<Hyodykkeet>> osista;
    {
      Muunnelmaketju ketju(laskin);
      for (const clsMuuttuneetAttribuutit& lista : listat) {
        osista.push_back(Yrita([&] { return ketju.Liita(lista); }));
        if (!osista.back()) break;  // an error ends the chain
      }
    }
    ASSERT_EQ(Kuva(*rakennus), kuva);
    Muunnelma muunnelma(*rakennus);
    for (std::size_t i = 0; i < osista.size(); ++i) {
      muunnelma.Liita(listat[i]);
      EXPECT_EQ(osista[i], Kokonaan(*rakennus)) << "round " << kierros << ", list " << i;
    }
  }
  EXPECT_EQ(laskin.Perusta(), perusta);
  EXPECT_EQ(laskin.Laske({}), perusta) << "no change saves exactly nothing";
}

TEST_F(MuunnelmaTesti, TheBaseIsTakenAnewAfterACommit) {
  Muunnelmalaskin laskin(*rakennus);
  clsTila& tila = rakennus->Tilat.Item(1);
  const double ennen = laskin.Perusta().lampo;
  const double osuus = laskin.Hyotyosuus(tila.sKey);
  tila.Sisalampotila += 1;
  tila.TilanHenkilomaara += 100;
  rakennus->Muuttui("Tila");
  EXPECT_NE(laskin.Perusta().lampo, ennen);
  EXPECT_NE(laskin.Hyotyosuus(tila.sKey), osuus);
  EXPECT_EQ(laskin.Perusta().lampo, rakennus->VuotuinenBruttoLampoEnergia());
  const auto kopio = rakennus->Kopioi();
  clsMuuttuneetAttribuutit lista;
  Lisaa(lista, tila, "Sisalampotila", Laji::Kaksinkertainen, 19);
  const Hyodykkeet muunneltuna = laskin.Laske(lista);
  EXPECT_EQ(Muunnelmalaskin(*kopio).Laske(lista), muunneltuna) << "any building can be varied";
  rakennus->LiitaSaastoToimenpide(lista);
  EXPECT_EQ(laskin.Perusta(), muunneltuna);
}

TEST_F(MuunnelmaTesti, CopiesAreVariedSideBySide) {
  constexpr int kSaikeita = 3, kKierroksia = 20;
  std::vector<clsMuuttuneetAttribuutit> listat(kKierroksia);
  Muunnelmalaskin laskin(*rakennus);
  std::vector<Hyodykkeet> oikeat;
  for (int i = 0; i < kKierroksia; ++i) {
    Lisaa(listat[i], rakennus->Tilat.Item(1 + i % 3), "Sisalampotila", Laji::Kaksinkertainen, 15 + i * 0.5);
    Lisaa(listat[i], rakennus->SahkonKulutusryhmat.Item(1), "KulutusryhmienLukumaara", Laji::Kaksinkertainen, i);
    oikeat.push_back(laskin.Laske(listat[i]));
  }
  std::vector<std::unique_ptr<clsRakennus>> kopiot;
  for (int i = 0; i < kSaikeita; ++i) kopiot.push_back(rakennus->Kopioi());
  std::vector<std::vector<Hyodykkeet>> tulokset(kSaikeita);
  {
    std::vector<std::jthread> saikeet;
    for (int i = 0; i < kSaikeita; ++i)
      saikeet.emplace_back([&, i] {
        Muunnelmalaskin oma(*kopiot[i]);
        for (const clsMuuttuneetAttribuutit& lista : listat) tulokset[i].push_back(oma.Laske(lista));
      });
  }
  for (const auto& tulos : tulokset) EXPECT_EQ(tulos, oikeat);
}

}  // namespace
