// SPDX-License-Identifier: GPL-3.0-or-later
// Measures of the varied school, with supplies and tariffs, and its arranger.
#pragma once
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/measures/Koemuunnelma.h"

class ToimenpiteetTesti : public Muunneltava {
 protected:
  ToimenpiteetTesti() {
    const Tunniste tariffi = Tariffi(clsTariffi::LampoTariffi, 60, 12, 0);
    rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).MyyntiTariffiSkey = tariffi;
    rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).OsuusNettotarpeesta = 100;
    rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).Tyyppi = clsEnergianHankinta::Lampo;
    clsEnergiamuoto& sahko = rakennus->Perustiedot.SahkonHankinta.LisaaMuoto();
    sahko.MyyntiTariffiSkey = Tariffi(clsTariffi::SahkoMyyntiTariffi, 100, 5, 3);
    sahko.OsuusNettotarpeesta = 100;
    rakennus->SahkonKulutusryhmat.PaivitaKulutusRyhmatJaLaitteet();
    toimenpiteet.PaivitaHierarkiaLista();
    rakennus->PaivitaInstanssiIdLista();
  }
  Tunniste Tariffi(clsTariffi::Laji laji, double hinta, double teho, double loisteho) {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Maksu(1).Hinta = hinta;
    tariffi.Maksu(1).Kulutusosuus = 100;
    tariffi.Tehomaksu = teho;
    tariffi.Loistehomaksu = loisteho;
    return tariffi.sKey;
  }
  clsTila& Tila(int i) { return rakennus->Tilat.Item(i); }
  Hyodykkeet Kokonaan(clsRakennus& r) {
    return {r.VuotuinenBruttoLampoEnergia(), r.VuotuinenBruttoSahkoEnergia(),
            r.VedenKulutusryhmat.VuotuinenVedenKulutus()};
  }
  template <class T, class F>
  clsSaastotoimenpide& Toimenpide(const Tunniste& solmu, F&& muuta) {
    clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa(solmu);
    const auto jalkeen = toimenpide.TeeJalkeen();
    muuta(static_cast<T&>(*jalkeen));
    toimenpide.PaivitaMuuttuneetAttribuutit(*jalkeen);
    return toimenpide;
  }

  clsSaastotoimenpiteet& toimenpiteet = rakennus->Saastotoimenpiteet;
};

class JarjestelijaTesti : public ToimenpiteetTesti {
 protected:
  using Rivi = clsValittuToimenpide;
  clsToimenpiteidenJarjestelija& jarjestelija = rakennus->ToimenpiteidenJarjestelija;
  const clsValitutToimenpiteet& rivit = jarjestelija.ValitutToimenpiteet;

  clsSaastotoimenpide& lampotila = Toimenpide<clsTila>(Tila(1).sKey, [](clsTila& t) { t.Sisalampotila -= 1; });
  clsSaastotoimenpide& eristys = Toimenpide<clsTila>(Tila(1).sKey, [](clsTila& t) {
    clsRakenne& rakenne = t.Rakenteet.Item(1);
    rakenne.LaskeU_arvoMateriaaleista = false;
    rakenne.U_arvo(0.1);
  });
  clsSaastotoimenpide& kone =
      Toimenpide<clsIVKone>(rakennus->IVKoneet.Item(1).sKey, [](clsIVKone& k) { k.LtoHyotysuhde = 70; });
  clsSaastotoimenpide& kelluva = *toimenpiteet.Lisaa("sKeySahko");

  JarjestelijaTesti() {
    auto& ennen = static_cast<clsSahkonKulutusryhma&>(*kelluva.Ennen());
    ennen.LaskentaperusteNumber = 1000, ennen.LaskentayksikkoNumber = 2;
    ennen.KayttoaikaHpD = 10, ennen.KayttoaikaDpA = 250, ennen.EnergiaHyodynnetaanLammityksessa = true;
    const auto jalkeen = kelluva.TeeJalkeen();
    static_cast<clsSahkonKulutusryhma&>(*jalkeen).KayttoaikaHpD = 4;
    kelluva.PaivitaMuuttuneetAttribuutit(*jalkeen);
    kelluva.Investointi = 700;
    kone.SaastoPatoTeho = 3;
    kone.Investointi = 20000;
  }
  static Hyodykkeet Saasto(const Rivi& rivi) {
    return {rivi.SaastoLampoEnergia, rivi.SaastoSahkoEnergia, rivi.SaastoVedenKulutus};
  }
  const Rivi& Rivilla(const clsSaastotoimenpide& toimenpide) const {
    for (const Rivi& rivi : rivit)
      if (rivi.ToimenpidesKey == toimenpide.sKey) return rivi;
    throw std::logic_error("no such row");
  }
};
