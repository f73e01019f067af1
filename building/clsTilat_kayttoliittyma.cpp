// SPDX-License-Identifier: GPL-3.0-or-later
// The list of spaces.
#include "building/Kokoelmamuokkaus.h"
#include "building/Kuukausitase.h"
#include "building/Tasehaarukka.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Virheilmoitus.h"
#include "ui/frmTilaYhteenveto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr const char* kKokonaisina = "### ##0";
constexpr const char* kEiLukua = "---";
constexpr const char* kOsuus = "0.0#";  // %

// The columns behind the name: the space's own figures, and results of its year's balance.
constexpr const char* kAste = "°C";
constexpr Tulos kTilasta[] = {
    Lukutulos<&clsTila::Kokonaistilavuus>("Kokonaistilavuus", {}, "m³", kKokonaisina),
    Lukutulos<&clsTila::BruttoAla>("BruttoAla", {}, "m²", kKokonaisina),
    Lukutulos<&clsTila::TilanHenkilomaara>("TilanHenkilomaara", {}, "hlö", kKokonaisina),
    Lukutulos<&clsTila::Sisalampotila>("Sisalampotila", {}, kAste, "0.0"),
};
constexpr std::string_view kTaseesta[] = {"VuotuisetJohtumisHaviot", "VuotuisetIVHaviotTilassa",
                                          "VuotuinenAurinkoKuorma", "VuotuinenLampoEnergianTarve"};

// What pasted rows tell of spaces.
const Liitossarake kLiitossarakkeet[] = {
    Jasensarake(tekstit::kSarakeTila, "TilanNimi", tekstit::kLiitettavaPuuttuu),
    Jasensarake(tekstit::kSarakeTilavuus, "Kokonaistilavuus"),
    Jasensarake(tekstit::kSarakeBruttoala, "BruttoAla"),
    Jasensarake(tekstit::kSarakeHenkilot, "TilanHenkilomaara"),
    Jasensarake(tekstit::kSarakeLampotila, "Sisalampotila"),
};

/// The number as it is shown: what sums are taken of, so that they add up on the screen.
double Naytettyna(double arvo, const char* kuvio) { return LueLuku(Muotoile(arvo, kuvio)).value_or(0); }

/// How the demand of the space comes about: the figures of its weather zone, brought to the locality's normal year.
std::string Erittely(clsTila& tila, const clsRakennus& rakennus) {
  double summa = 0;
  const auto termi = [&](std::string_view nimi, int etumerkki) {
    const Tulos& tulos = clsTila::kLuokka.TulosNimella(nimi);
    const double arvo = tulos.Arvo({tila});
    summa += etumerkki * Naytettyna(arvo, tulos.kuvio);
    return Teksti(tulos.teksti) + " " + Muotoile(arvo, tulos.kuvio);
  };
  const Tulos& tarve = clsTila::kLuokka.TulosNimella("VuotuinenLampoEnergianTarve");
  const auto energia = [&](double arvo) {
    return " = " + Muotoile(arvo, tarve.kuvio) + " " + std::string(tarve.yksikko);
  };
  std::string teksti = tila.TilanNimi + ": " + termi("VuotuisetJohtumisHaviot", 1);
  teksti += " + " + termi("VuotuisetIVHaviotTilassa", 1);
  teksti += " − " + termi("VuotuisetHyodynnetytLampoKuormat", -1);
  teksti += energia(summa);
  if (rakennus.Saa.NormVuodenLammTarveLuku <= 0) return teksti;
  return teksti + "; " + Teksti(tekstit::kPaikkakunnanSaahanNormitettuna) + " × " +
         Muotoile(rakennus.Perustiedot.NormVuodenLammTarveLuku, kKokonaisina) + " / " +
         Muotoile(rakennus.Saa.NormVuodenLammTarveLuku, kKokonaisina) + " °Cd" + energia(tarve.Arvo({tila}));
}

/// Adds a column of numbers and its sum, which temperatures have none of.
void LisaaSarake(Luettelosisalto& sisalto, const clsTilat& tilat, const Tulos& sarake) {
  double summa = 0;
  auto rivi = sisalto.rivit.begin();
  for (clsTila& tila : tilat) {
    const double arvo = sarake.Arvo({tila});
    (rivi++)->LisaaLuku(arvo, sarake.kuvio);
    summa += Naytettyna(arvo, sarake.kuvio);
  }
  sisalto.summat.push_back(sarake.yksikko == kAste ? std::string() : Muotoile(summa, sarake.kuvio));
}

void JataAuki(Luettelosisalto& sisalto) {
  for (Luettelorivi& rivi : sisalto.rivit) rivi.solut.emplace_back(kEiLukua);
  sisalto.summat.emplace_back(kEiLukua);
}

/// Rows of the list and their sums. Without the balance its figures are left open.
Luettelosisalto TilojenRivit(const clsTilat& tilat, const clsRakennus& rakennus, bool tase) {
  Luettelosisalto sisalto{{}, {Teksti(tekstit::kRakenteetYhteensa)}};
  for (clsTila& tila : tilat)
    sisalto.rivit.push_back({.solut = {tila.TilanNimi},
                             .avain = tila.sKey,
                             .piirteet = {.selite = tase ? Erittely(tila, rakennus) : std::string()}});
  for (const Tulos& sarake : kTilasta) LisaaSarake(sisalto, tilat, sarake);
  for (const std::string_view nimi : kTaseesta)
    tase ? LisaaSarake(sisalto, tilat, clsTila::kLuokka.TulosNimella(nimi)) : JataAuki(sisalto);
  return sisalto;
}

/// The list must open also over a building whose balance can't be calculated: it is where the fault is mended.
Luettelosisalto LasketutRivit(clsRakennus& rakennus, const clsTilat& tilat) {
  try {
    const Tasehaarukka haarukka(rakennus);
    return TilojenRivit(tilat, rakennus, true);
  } catch (const Virhe& virhe) {
    KerroVirhe(virhe);
    return TilojenRivit(tilat, rakennus, false);
  }
}

/// Names of the machines that would be left without a space.
std::string PoistonSeuraus(const clsRakennus& rakennus, const Tunniste& tila) {
  std::string nimet;
  for (const clsIVKone* kone : rakennus.IVKoneet.ListaaTilaanLiittyvatIVKoneet(tila))
    nimet += (nimet.empty() ? "" : ", ") + kone->KoneenTunnus;
  return nimet.empty() ? nimet : Teksti(tekstit::kKoneetJaavatIlmanTilaa) + " " + nimet;
}

/// Spaces larger than their building: one of the two was mistyped. Half a per cent is rounding.
std::string Tilavuushuomautus(const clsRakennus& rakennus, const clsTilat& tilat) {
  constexpr double kSallittu = 1.005;
  const double rakennuksen = rakennus.Perustiedot.Kokonaistilavuus;
  if (tilat.TilavuusYht() <= kSallittu * rakennuksen) return {};
  return Teksti(tekstit::kTilatYhteensa) + " " + Muotoile(tilat.TilavuusYht(), kKokonaisina) + " m³, " +
         Teksti(tekstit::kRakennusPerustietojenMukaan) + " " + Muotoile(rakennuksen, kKokonaisina) + " m³.";
}

void AlustaTila(clsTila& tila) {
  tila.TilanNimi = Teksti(tekstit::kUusiTila);
  tila.TilanKayttoaikaStr = Valintalista("frmTila", "cmbTilanKayttoaika").at(0);
  tila.SaatotapaStr = Valintalista("frmTila", "cmbSaatotapa").at(1);
}

}  // namespace

void clsTilat::NaytaKayttoliittyma() try {
  if (!kayttoLiittyma_.arvo) {
    kayttoLiittyma_.arvo = std::make_shared<frmTilaYhteenveto>();
    LiitaTapahtumat();
    tilaus_.arvo = VaadiRakennus().TilaaMuutokset([this] { ListaaTilat(); });
  }
  LueDataluokka();
  kayttoLiittyma_.arvo->Nayta();
} catch (...) {
  NostaVirhe("clsTilat:NaytaKayttoliittyma Method");
}

void clsTilat::LiitaTapahtumat() {
  frmTilaYhteenveto& lomake = *kayttoLiittyma_.arvo;
  Luettelotoimet toimet =
      Toimet(Kokoelmamuokkaus<clsTila>{.kokoelma = *this,
                                       .nimi = &clsTila::TilanNimi,
                                       .kopiointi = tekstit::kTilanKopiointi,
                                       .poisto = tekstit::kTilanPoisto,
                                       .kaytossa = tekstit::kTilaaEiVoiPoistaa,
                                       .muokkaa = [](clsTila& tila) { return tila.NaytaKayttoliittyma(); },
                                       .alusta = AlustaTila,
                                       .sarakkeet = kLiitossarakkeet,
                                       .liittaminen = tekstit::kTilojenLiittaminen},
             [this] { return LasketutRivit(VaadiRakennus(), *this); });
  toimet.poistonSeuraus = [](const Tunniste& avain) { return PoistonSeuraus(VaadiRakennus(), avain); };
  toimet.valittu = [this] { NaytaErittely(); };
  lomake.luettelo.Aseta(std::move(toimet));
  lomake.KuukausitaseKlikattu = [this] {
    NaytaKuukausitase(VaadiRakennus(), Item(kayttoLiittyma_.arvo->luettelo.Valittu()));
  };
  lomake.SahkokuormatMuuttuivat = [this] { KayttoLiittyma_SahkokuormatMuuttuivat(); };
}

void clsTilat::LueDataluokka() try {
  frmTilaYhteenveto& lomake = *kayttoLiittyma_.arvo;
  lomake.chkKaytaTotSahkoKuormia.Valittu(KaytaTotSahkoKuormia);
  lomake.txtTotSahkoKuormaPros.Luku(TotSahkoKuormaPros, kOsuus);
  TaytaLuettelo();
} catch (...) {
  NostaVirhe("clsTilat:LueDataluokka Method");
}

void clsTilat::KirjoitaDataluokka() try {
  const frmTilaYhteenveto& lomake = *kayttoLiittyma_.arvo;
  KaytaTotSahkoKuormia = lomake.chkKaytaTotSahkoKuormia.Valittu();
  LueArvo(lomake.txtTotSahkoKuormaPros, TotSahkoKuormaPros);
} catch (...) {
  NostaVirhe("clsTilat:KirjoitaDataluokka Method");
}

void clsTilat::ListaaTilat() try {
  if (kayttoLiittyma_.arvo && kayttoLiittyma_.arvo->Auki()) TaytaLuettelo();
} catch (...) {
  NostaVirhe("clsTilat:ListaaTilat Method");
}

void clsTilat::TaytaLuettelo() {
  Odotus odotus;
  frmTilaYhteenveto& lomake = *kayttoLiittyma_.arvo;
  lomake.luettelo.Nayta();
  const std::string huomautus = Tilavuushuomautus(VaadiRakennus(), *this);
  lomake.lblHuomautus.Otsikko(huomautus);
  lomake.lblHuomautus.Nakyva(!huomautus.empty());
}

void clsTilat::NaytaErittely() {
  const frmTilaYhteenveto& lomake = *kayttoLiittyma_.arvo;
  const int rivi = lomake.lvwTilat.Indeksi();
  lomake.lblErittely.Otsikko(rivi < 0 ? std::string() : lomake.lvwTilat.Kohde().Lista().Piirteet(rivi).selite);
  lomake.PaivitaKentat();
}

void clsTilat::KayttoLiittyma_SahkokuormatMuuttuivat() try {
  KirjoitaDataluokka();
  kayttoLiittyma_.arvo->txtTotSahkoKuormaPros.Luku(TotSahkoKuormaPros, kOsuus);
  VaadiRakennus().Muuttui(Teksti(tekstit::kTilojenSahkokuormat));
} catch (...) {
  NostaVirhe("clsTilat:KayttoLiittyma_SahkokuormatMuuttuivat Method");
}
