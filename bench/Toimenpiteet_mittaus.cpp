// SPDX-License-Identifier: GPL-3.0-or-later
// Saving measures: laid on the building, computed and taken back, against whole recalculations.
#include "bench/Mittaukset.h"
#include "bench/vertailu/Vertailulaskenta.h"
#include "building/Tasehaarukka.h"
#include "building/Yhteiset.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "measures/Muunnelmaketju.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"

namespace mittaus {

namespace {

constexpr int kToimenpiteita = 300, kJarjestettyja = 27;
constexpr double kYhdenTavoite = 0.15, kKaikenTavoite = 1.5, kBruttojenTavoite = 0.2, kJarjestelijanTavoite = 0.3;
constexpr double kMaaranKaltevuus = 1.02, kTilojenKaltevuus = 0.2, kSummienKaltevuus = 1.02;

void Lisaa(clsMuuttuneetAttribuutit& muutokset, const Olio& olio, std::string_view nimi, Laji laji, double arvo) {
  muutokset.Lisaa({nimi, olio.LuokanNimi(), laji, olio.InstanssiId, 0, arvo});
}

/// A tighter space, a lower temperature, and an insulated structure.
void MuutaTila(clsMuuttuneetAttribuutit& muutokset, const clsTila& tila) {
  const clsRakenne& rakenne = tila.Rakenteet.Item(1);
  Lisaa(muutokset, tila, "Sisalampotila", Laji::Kaksinkertainen, tila.Sisalampotila - 1);
  Lisaa(muutokset, tila, "Vuotoilmanvaihto", Laji::Kaksinkertainen, 0.05);
  Lisaa(muutokset, rakenne, "LaskeU_arvoMateriaaleista", Laji::Totuus, 0);
  Lisaa(muutokset, rakenne, "U_arvo", Laji::Kaksinkertainen, 0.12);
}

/// A building with so many measures, each on one space, one space after the other.
struct Kohde {
  Kohde(int tiloja, int rakenteita, int toimenpiteita) : rakennus(TeeMallirakennus(tiloja, rakenteita)) {
    rakennus->PaivitaInstanssiIdLista();
    rakennus->Saastotoimenpiteet.PaivitaHierarkiaLista();
    for (int i = 0; i < toimenpiteita; ++i) {
      const clsTila& tila = rakennus->Tilat.Item(1 + i % tiloja);
      MuutaTila(rakennus->Saastotoimenpiteet.Lisaa(tila.sKey)->MuuttuneetAttribuutit, tila);
    }
  }
  void MitatoiToimenpiteet() const {
    for (clsSaastotoimenpide& toimenpide : rakennus->Saastotoimenpiteet)
      toimenpide.EnnenTiedotUpToDate = toimenpide.JalkeenTiedotUpToDate = false;
  }
  std::unique_ptr<clsRakennus> rakennus;
};

Hyodykkeet LaskeKokonaan(clsRakennus& r) {
  const Tasehaarukka haarukka(r);
  return {r.VuotuinenBruttoLampoEnergia(), r.VuotuinenBruttoSahkoEnergia(),
          r.VedenKulutusryhmat.VuotuinenVedenKulutus()};
}
Hyodykkeet LaskeKokonaan(clsRakennus& r, const clsMuuttuneetAttribuutit& muutokset) {
  const Muunnelma muunnelma(r, muutokset);
  return LaskeKokonaan(r);
}

/// With all the measures in force.
Hyodykkeet LaskePaketti(clsRakennus& r) {
  Muunnelma kaikki(r);
  for (const clsSaastotoimenpide& toimenpide : r.Saastotoimenpiteet) kaikki.Liita(toimenpide.MuuttuneetAttribuutit);
  return LaskeKokonaan(r);
}

void VaadiSamat(const Hyodykkeet& oma, const Hyodykkeet& vertailu) {
  if (!(oma == vertailu)) throw std::runtime_error("the figures differ from a whole calculation");
}

/// So many recalculations by the plain program.
Ajo Kokonaan(const Vertailulaskenta& vertailu, int kertoja) {
  return [&vertailu, kertoja] {
    return Suoritinaika([&] {
      for (int i = 0; i < kertoja; ++i) Kayta(vertailu.Laske());
    });
  };
}

void YksiTila(benchmark::State& state) {
  const Kohde kohde(kTiloja, kRakenteita, 1);
  const Vertailulaskenta vertailu(*kohde.rakennus);
  const clsMuuttuneetAttribuutit& muutokset = kohde.rakennus->Saastotoimenpiteet.Item(1).MuuttuneetAttribuutit;
  Muunnelmalaskin laskin(*kohde.rakennus);
  const Hyodykkeet oikea = LaskeKokonaan(*kohde.rakennus, muutokset);
  Hyodykkeet oma;
  laskin.Perusta();
  MittaaParit(state, kYhdenTavoite, Toistettuna([&] { return Suoritinaika([&] { oma = laskin.Laske(muutokset); }); }),
              Toistettuna(Kokonaan(vertailu, 1)), [&] { VaadiSamat(oma, oikea); });
}

void KaikkiTilat(benchmark::State& state) {
  const Kohde kohde(kTiloja, kRakenteita, 0);
  clsRakennus& rakennus = *kohde.rakennus;
  const clsSahkonKulutusryhma& ryhma = rakennus.SahkonKulutusryhmat.Item(2);
  if (!ryhma.LiittyyTilaansKey.Tyhja()) return state.SkipWithError("the group belongs to a space");
  clsMuuttuneetAttribuutit muutokset;
  Lisaa(muutokset, ryhma, "KulutusryhmienLukumaara", Laji::Kaksinkertainen, 3);
  Muunnelmalaskin laskin(rakennus);
  const Hyodykkeet oikea = LaskeKokonaan(rakennus, muutokset);
  Hyodykkeet oma;
  laskin.Perusta();
  MittaaParit(
      state, kKaikenTavoite, [&] { return Suoritinaika([&] { oma = laskin.Laske(muutokset); }); },
      [&] { return Suoritinaika([&] { Kayta(LaskeKokonaan(rakennus)); }); }, [&] { VaadiSamat(oma, oikea); });
}

void Bruttosaastot(benchmark::State& state) {
  const Kohde kohde(kTiloja, kRakenteita, kToimenpiteita);
  const Vertailulaskenta vertailu(*kohde.rakennus);
  clsSaastotoimenpiteet& toimenpiteet = kohde.rakennus->Saastotoimenpiteet;
  clsSaastotoimenpide& viimeinen = toimenpiteet.Item(kToimenpiteita);
  const Hyodykkeet oikea = LaskeKokonaan(*kohde.rakennus, viimeinen.MuuttuneetAttribuutit);
  MittaaParit(
      state, kBruttojenTavoite,
      [&] {
        kohde.MitatoiToimenpiteet();
        return Suoritinaika([&] { toimenpiteet.PaivitaEnnenTiedotToimenpiteisiin(); });
      },
      Kokonaan(vertailu, kToimenpiteita), [&] { VaadiSamat(viimeinen.KulutusJalkeen(), oikea); });
}

void Jarjestelija(benchmark::State& state) {
  const Kohde kohde(kTiloja, kRakenteita, kJarjestettyja);
  clsRakennus& rakennus = *kohde.rakennus;
  const Vertailulaskenta vertailu(rakennus);
  clsToimenpiteidenJarjestelija& jarjestelija = rakennus.ToimenpiteidenJarjestelija;
  for (const clsSaastotoimenpide& toimenpide : rakennus.Saastotoimenpiteet) jarjestelija.Valitse(toimenpide.sKey, true);
  const Hyodykkeet oikea = LaskePaketti(rakennus);
  rakennus.Saastotoimenpiteet.PaivitaEnnenTiedotToimenpiteisiin();
  MittaaParit(
      state, kJarjestelijanTavoite, [&] { return Suoritinaika([&] { jarjestelija.PaivitaValitutToimenpiteet(); }); },
      Kokonaan(vertailu, kJarjestettyja), [&] { VaadiSamat(jarjestelija.LaskettuPaketti()->lopuksi, oikea); });
}

/// The slope of the time that `ajo`(size) takes.
template <class F>
void Kasvu(benchmark::State& state, const std::vector<double>& koot, double tavoite, F&& ajo) {
  constexpr int kAjoja = 11;
  std::vector<double> ajat;
  for (auto _ : state) {
    for (const double koko : koot) {
      const Ajo mitattava = ajo(static_cast<int>(koko));
      std::vector<double> kestot;
      for (int i = 0; i < kAjoja; ++i) kestot.push_back(mitattava());
      ajat.push_back(Mediaani(kestot));
    }
    state.SetIterationTime(ajat.back());
  }
  state.counters["kaltevuus"] = 1;
  state.counters["meidan_s"] = state.counters["suhde"] = Kaltevuus(koot, ajat);
  state.counters["tavoite"] = tavoite;
}

void MaaranKasvu(benchmark::State& state) {
  Kasvu(state, {10, 100, 1000}, kMaaranKaltevuus, [](int maara) -> Ajo {
    const auto kohde = std::make_shared<Kohde>(kTiloja, kKasvunRakenteita, maara);
    return [kohde] {
      kohde->MitatoiToimenpiteet();
      return Suoritinaika([&] { kohde->rakennus->Saastotoimenpiteet.PaivitaEnnenTiedotToimenpiteisiin(); });
    };
  });
}

/// One variation of a building of so many spaces, over and over.
struct Toisto {
  explicit Toisto(int tiloja) : kohde(tiloja, kKasvunRakenteita, 1), laskin(*kohde.rakennus) { laskin.Perusta(); }
  Kohde kohde;
  Muunnelmalaskin laskin;
};
Ajo Toista(const std::shared_ptr<Toisto>& toisto, const clsMuuttuneetAttribuutit& muutokset) {
  return Toistettuna([toisto, &muutokset] { return Suoritinaika([&] { Kayta(toisto->laskin.Laske(muutokset)); }); });
}

void TilojenKasvu(benchmark::State& state) {
  Kasvu(state, {10, 100, 1000}, kTilojenKaltevuus, [](int tiloja) {
    const auto toisto = std::make_shared<Toisto>(tiloja);
    return Toista(toisto, toisto->kohde.rakennus->Saastotoimenpiteet.Item(1).MuuttuneetAttribuutit);
  });
}

/// A variation that touches nothing: the sums over all spaces, and the gross figures from them.
void SummienKasvu(benchmark::State& state) {
  static const clsMuuttuneetAttribuutit tyhja;
  Kasvu(state, {10, 100, 1000, 10000}, kSummienKaltevuus,
        [](int tiloja) { return Toista(std::make_shared<Toisto>(tiloja), tyhja); });
}

void IlmoitaKasvu(const char* nimi, void (*ajo)(benchmark::State&)) {
  benchmark::RegisterBenchmark(nimi, ajo)->UseManualTime()->Iterations(1);
}

}  // namespace

void IlmoitaToimenpidemittaukset() {
  IlmoitaParit("measure on one space of 100; scalar loop over the whole building", YksiTila);
  IlmoitaParit("measure on all spaces; our whole recalculation", KaikkiTilat);
  IlmoitaParit("gross figures of 300 measures; 300 scalar loops", Bruttosaastot);
  IlmoitaParit("arranger of 27 rows; 27 scalar loops", Jarjestelija);
  IlmoitaKasvu("slope of gross figures, 10 to 1,000 measures; none", MaaranKasvu);
  IlmoitaKasvu("slope of a measure on one space, 10 to 1,000 spaces; none", TilojenKasvu);
  IlmoitaKasvu("slope of the sums alone, 10 to 10,000 spaces; none", SummienKasvu);
}

}  // namespace mittaus
