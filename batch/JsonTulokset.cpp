// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Tulokset.h"
#include "building/Tasehaarukka.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"

namespace {

template <class C>
struct Vuositulos {
  const char* nimi;
  double (*arvo)(C&);
};
template <class C>
struct Kuukausitulos {
  const char* nimi;
  double (*arvo)(C&, int);
};

#define VUOSI(C, nimi)                    \
  {                                       \
#nimi, [](C & o) { return o.nimi(); } \
  }
#define KUUKAUSI(C, nimi)                         \
  {                                               \
#nimi, [](C & o, int m) { return o.nimi(m); } \
  }

constexpr Vuositulos<clsRakennus> kRakennuksenVuosi[] = {
    VUOSI(clsRakennus, VuotuinenIVjalkilammitysLampo),
    VUOSI(clsRakennus, VuotuinenAurinkoKuorma),
    VUOSI(clsRakennus, VuotuisetLKVHaviot),
    VUOSI(clsRakennus, VuotuisetProsessiVesiHaviot),
    VUOSI(clsRakennus, LaskeYleisSahkoKuorma),
    VUOSI(clsRakennus, VuotuinenLampoEnergianTarveTilat),
    VUOSI(clsRakennus, VuotuisetLampoHaviot),
    VUOSI(clsRakennus, VuotuisetHyodynnetytLampoKuormat),
    VUOSI(clsRakennus, VuotuisetSaatohaviot),
    VUOSI(clsRakennus, VuotuisetLammonKonversiohaviot),
    VUOSI(clsRakennus, VuotuisetSahkoKonversiohaviot),
    VUOSI(clsRakennus, VuotuisetLaiteSahkoKonversiohaviot),
    VUOSI(clsRakennus, VuotuisetSahkoLammonKonversiohaviot),
    VUOSI(clsRakennus, VuotuinenBruttoLampoEnergia),
    VUOSI(clsRakennus, VuotuinenBruttoSahkoEnergia),
    VUOSI(clsRakennus, VuotuinenBruttoLaiteSahkoEnergia),
    VUOSI(clsRakennus, ToteutunutNormitettuLampo),
};

constexpr Kuukausitulos<clsRakennus> kRakennuksenKuukaudet[] = {
    KUUKAUSI(clsRakennus, LampoHaviotTilatKk),
    KUUKAUSI(clsRakennus, LampoEnergianTarveTilatKk),
    KUUKAUSI(clsRakennus, AurinkoKuorma),
    KUUKAUSI(clsRakennus, LampoHaviotIVKk),
    KUUKAUSI(clsRakennus, HyodynnetytLampoKuormatKk),
    KUUKAUSI(clsRakennus, LammonTuotonHaviotKk),
    KUUKAUSI(clsRakennus, LKVHaviotKk),
    KUUKAUSI(clsRakennus, ProsessiVesiHaviotKk),
};

constexpr Kuukausitulos<clsTila> kTilanKuukaudet[] = {
    KUUKAUSI(clsTila, JohtumisHaviot),
    KUUKAUSI(clsTila, IVHaviotTilassa),
    KUUKAUSI(clsTila, LampoHaviot),
    KUUKAUSI(clsTila, SahkoKuorma),
    KUUKAUSI(clsTila, HenkiloKuorma),
    KUUKAUSI(clsTila, AurinkoKuorma),
    KUUKAUSI(clsTila, IVKoneLampoKuorma),
    KUUKAUSI(clsTila, IdeaalinenHyvaksiKayttoAste),
    KUUKAUSI(clsTila, HyodynnetytLampoKuormat),
    KUUKAUSI(clsTila, LampoEnergianTarve),
};

constexpr Vuositulos<clsTila> kTilanVuosi[] = {
    VUOSI(clsTila, VuotuisetJohtumisHaviot),     VUOSI(clsTila, VuotuisetIVHaviotTilassa),
    VUOSI(clsTila, VuotuisetLampoHaviot),        VUOSI(clsTila, VuotuinenSahkoKuorma),
    VUOSI(clsTila, VuotuinenHenkiloKuorma),      VUOSI(clsTila, VuotuinenAurinkoKuorma),
    VUOSI(clsTila, VuotuinenIVKoneLampoKuorma),  VUOSI(clsTila, VuotuisetHyodynnetytLampoKuormat),
    VUOSI(clsTila, VuotuinenLampoEnergianTarve), VUOSI(clsTila, VuotuisetSaatohaviot),
};

constexpr Vuositulos<clsIVKoneet> kKoneidenVuosi[] = {
    VUOSI(clsIVKoneet, VuotuinenPuhallinSahko),
    VUOSI(clsIVKoneet, Tuloilmavirtojen11Summa),
    VUOSI(clsIVKoneet, Poistoilmavirtojen11Summa),
    VUOSI(clsIVKoneet, LammitystehonTarve),
};

constexpr Kuukausitulos<clsIVKone> kKoneenKuukaudet[] = {
    KUUKAUSI(clsIVKone, IV_LammEnergia),       KUUKAUSI(clsIVKone, LtoEnergia),
    KUUKAUSI(clsIVKone, SahkoPatterinEnergia), KUUKAUSI(clsIVKone, VesikiertoisenLampoPatterinEnergia),
    KUUKAUSI(clsIVKone, PuhallinSahko),
};

constexpr Vuositulos<clsIVKone> kKoneenVuosi[] = {
    VUOSI(clsIVKone, VuotuinenPuhallinSahko),
    VUOSI(clsIVKone, VuotuinenIVjalkilammitysLampo),
    VUOSI(clsIVKone, Sahko),
};

constexpr Vuositulos<clsPuhaltimenSahkonKulutus> kPuhaltimet[] = {
    VUOSI(clsPuhaltimenSahkonKulutus, TuloSahkoOminaisteho),
    VUOSI(clsPuhaltimenSahkonKulutus, PoistoSahkoOminaisteho),
    VUOSI(clsPuhaltimenSahkonKulutus, TuloSahkoOsaTeho),
    VUOSI(clsPuhaltimenSahkonKulutus, PoistoSahkoOsaTeho),
};
#undef VUOSI
#undef KUUKAUSI

/// Writes values, and keeps the errors of those that can't be computed.
class Arvokirjoitin {
 public:
  explicit Arvokirjoitin(JsonKirjoitin& json) : json_(json) {}

  template <class F>
  void Luku(std::string_view nimi, F&& arvo) {
    json_.Avain(nimi);
    Yrita([&] { json_.Arvo(static_cast<double>(arvo())); });
  }
  template <class F>
  void Kuukaudet(std::string_view nimi, F&& arvo) {
    json_.Avain(nimi);
    Yrita([&] {
      Kuukausitaulu luvut{};
      for (int m = 0; m < kKuukausia; ++m) luvut[static_cast<std::size_t>(m)] = arvo(m);
      json_.Luvut(luvut);
    });
  }
  template <class C, std::size_t N>
  void Vuositulokset(C& olio, const Vuositulos<C> (&tulokset)[N]) {
    for (const auto& tulos : tulokset) Luku(tulos.nimi, [&] { return tulos.arvo(olio); });
  }
  template <class C, std::size_t N>
  void Kuukausitulokset(C& olio, const Kuukausitulos<C> (&tulokset)[N]) {
    for (const auto& tulos : tulokset) Kuukaudet(tulos.nimi, [&](int m) { return tulos.arvo(olio, m); });
  }
  void Teksti(std::string_view nimi, std::string_view teksti) {
    json_.Avain(nimi);
    json_.Arvo(teksti);
  }
  void LisaaVirhe(const std::exception& virhe) {
    const auto* nostettu = dynamic_cast<const Virhe*>(&virhe);
    virheet_.push_back((nostettu ? nostettu->Lahde() + ": " : std::string()) + SyynKuvaus(virhe));
  }
  const std::vector<std::string>& Virheet() const { return virheet_; }

 private:
  /// The value is computed before anything of it is written.
  template <class F>
  void Yrita(F&& kirjoita) {
    try {
      kirjoita();
    } catch (const std::exception& virhe) {
      LisaaVirhe(virhe);
      json_.Tyhja();
    }
  }

  JsonKirjoitin& json_;
  std::vector<std::string> virheet_;
};

void KirjoitaSaa(JsonKirjoitin& json, Arvokirjoitin& arvot, const clsSaa& saa) {
  json.Avain("Saa");
  json.AlaOlio();
  arvot.Teksti("Nimi", saa.Nimi);
  arvot.Luku("LammMitoitusUlkolampotila", [&] { return saa.LammMitoitusUlkolampotila; });
  arvot.Luku("NormVuodenLammTarveLuku", [&] { return saa.NormVuodenLammTarveLuku; });
  arvot.Kuukaudet("Keskilampotila", [&](int m) { return saa.Keskilampotila(m); });
  json.Avain("AuringonSateily");
  json.AlaTaulukko();
  for (int m = 0; m < kKuukausia; ++m) {
    std::array<double, kSuuntia> sateily{};
    for (int suunta = 0; suunta < kSuuntia; ++suunta)
      sateily[static_cast<std::size_t>(suunta)] = saa.AuringonSateily(m, suunta);
    json.Luvut(sateily);
  }
  json.LopetaTaulukko();
  json.LopetaOlio();
}

void KirjoitaRakenne(JsonKirjoitin& json, Arvokirjoitin& arvot, const clsTila& tila, clsRakenne& rakenne) {
  json.AlaOlio();
  arvot.Teksti("sKey", rakenne.sKey.Teksti());
  arvot.Luku("U_arvo", [&] { return rakenne.U_arvo(); });
  arvot.Kuukaudet("LampoHaviot", [&](int m) { return rakenne.LampoHaviot(tila.Sisalampotila, m); });
  arvot.Kuukaudet("AurinkoKuorma", [&](int m) { return rakenne.AurinkoKuorma(m); });
  json.LopetaOlio();
}

void KirjoitaTila(JsonKirjoitin& json, Arvokirjoitin& arvot, clsTila& tila) {
  json.AlaOlio();
  arvot.Teksti("sKey", tila.sKey.Teksti());
  arvot.Teksti("TilanNimi", tila.TilanNimi);
  arvot.Kuukausitulokset(tila, kTilanKuukaudet);
  arvot.Vuositulokset(tila, kTilanVuosi);
  json.Avain("Rakenteet");
  json.AlaTaulukko();
  for (clsRakenne& rakenne : tila.Rakenteet) KirjoitaRakenne(json, arvot, tila, rakenne);
  json.LopetaTaulukko();
  json.LopetaOlio();
}

void KirjoitaKayntiajat(JsonKirjoitin& json, Arvokirjoitin& arvot, const clsKayntiAjat& ajat) {
  json.Avain("KayntiAjat");
  json.AlaTaulukko();
  for (const clsKayntiAika& aika : ajat) {
    json.AlaOlio();
    arvot.Teksti("sKey", aika.sKey.Teksti());
    arvot.Luku("KayntiTunnit", [&] { return aika.KayntiTunnit(); });
    json.LopetaOlio();
  }
  json.LopetaTaulukko();
}

void KirjoitaKone(JsonKirjoitin& json, Arvokirjoitin& arvot, const clsTilat& tilat, clsIVKone& kone) {
  const clsTila* tila = tilat.Etsi(kone.LiittyyTilaansKey);
  const double Tsisa = tila ? tila->Sisalampotila : kone.PoistoLampotila;
  kone.PaivitaPuhaltimienTiedot();
  json.AlaOlio();
  arvot.Teksti("sKey", kone.sKey.Teksti());
  arvot.Teksti("KoneenTunnus", kone.KoneenTunnus);
  arvot.Kuukausitulokset(kone, kKoneenKuukaudet);
  arvot.Kuukaudet("HaviotTilaan", [&](int m) { return kone.HaviotTilaan(Tsisa, m); });
  arvot.Vuositulokset(kone, kKoneenVuosi);
  arvot.Vuositulokset(kone.PuhaltimienSahkonKulutus, kPuhaltimet);
  json.Avain("Lto");
  json.AlaOlio();
  arvot.Luku("LtoHyotysuhde", [&] { return kone.Lto.LtoHyotysuhde(kone.Lto.Tp); });
  json.LopetaOlio();
  KirjoitaKayntiajat(json, arvot, kone.KayntiAikaYleistiedot);
  json.LopetaOlio();
}

void KirjoitaViestit(JsonKirjoitin& json, const Arvokirjoitin& arvot, const KerataanViestit& viestit) {
  json.Avain("Viestit");
  json.AlaTaulukko();
  for (const Viesti& viesti : viestit.Naytetyt()) json.Arvo(viesti.teksti);
  for (const std::string& virhe : arvot.Virheet()) json.Arvo(virhe);
  json.LopetaTaulukko();
}

/// One calculation for all results; without it each that can be computed is, one by one.
std::unique_ptr<Tasehaarukka> AvaaHaarukka(clsRakennus& rakennus, Arvokirjoitin& arvot) {
  try {
    return std::make_unique<Tasehaarukka>(rakennus);
  } catch (const std::exception& virhe) {
    arvot.LisaaVirhe(virhe);
    return nullptr;
  }
}

}  // namespace

void KirjoitaJson(JsonKirjoitin& json, const std::string& tiedosto, clsRakennus& rakennus,
                  const KerataanViestit& viestit) {
  Arvokirjoitin arvot(json);
  const auto haarukka = AvaaHaarukka(rakennus, arvot);
  json.AlaOlio();
  arvot.Teksti("Tiedosto", tiedosto);
  KirjoitaSaa(json, arvot, rakennus.Saa);
  json.Avain("Rakennus");
  json.AlaOlio();
  arvot.Vuositulokset(rakennus, kRakennuksenVuosi);
  arvot.Kuukausitulokset(rakennus, kRakennuksenKuukaudet);
  arvot.Vuositulokset(rakennus.IVKoneet, kKoneidenVuosi);
  json.LopetaOlio();
  json.Avain("Tilat");
  json.AlaTaulukko();
  for (clsTila& tila : rakennus.Tilat) KirjoitaTila(json, arvot, tila);
  json.LopetaTaulukko();
  json.Avain("IVKoneet");
  json.AlaTaulukko();
  for (clsIVKone& kone : rakennus.IVKoneet) KirjoitaKone(json, arvot, rakennus.Tilat, kone);
  json.LopetaTaulukko();
  KirjoitaViestit(json, arvot, viestit);
  json.LopetaOlio();
}
