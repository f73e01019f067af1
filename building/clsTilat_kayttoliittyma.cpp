// SPDX-License-Identifier: GPL-3.0-or-later
// The list of spaces.
#include "building/Kuukausitase.h"
#include "building/LisaaKopio.h"
#include "building/Tasehaarukka.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmTilaYhteenveto.h"

namespace {

constexpr const char* kEiLukua = "---";

/// A column of the list behind the name. `taseesta`: a figure of the year's balance, not of the space itself.
struct Sarake {
  double (*arvo)(clsTila&);
  const char* kuvio;
  bool summataan;
  bool taseesta;
};
constexpr Sarake kSarakkeet[] = {
    {[](clsTila& t) { return t.Kokonaistilavuus; }, "### ##0", true, false},
    {[](clsTila& t) { return t.BruttoAla; }, "### ##0", true, false},
    {[](clsTila& t) { return t.TilanHenkilomaara; }, "### ##0", true, false},
    {[](clsTila& t) { return t.Sisalampotila; }, "0.0", false, false},
    {[](clsTila& t) { return t.VuotuisetJohtumisHaviot(); }, "### ##0.00", true, true},
    {[](clsTila& t) { return t.VuotuisetIVHaviotTilassa(); }, "### ##0.00", true, true},
    {[](clsTila& t) { return t.VuotuinenAurinkoKuorma(); }, "### ##0.00", true, true},
    {[](clsTila& t) { return t.VuotuinenLampoEnergianTarve(); }, "### ##0.00", true, true},
};

/// Rows of the list and their sums. Without the balance its figures are left open.
Luettelosisalto TilojenRivit(const clsTilat& tilat, bool tase) {
  Luettelosisalto sisalto{{}, {Teksti(tekstit::kRakenteetYhteensa)}};
  for (const clsTila& tila : tilat) sisalto.rivit.push_back({{tila.TilanNimi}, tila.sKey});
  for (const Sarake& sarake : kSarakkeet) {
    const bool tunnetaan = tase || !sarake.taseesta;
    double summa = 0;
    std::size_t i = 0;
    for (clsTila& tila : tilat) {
      const double arvo = tunnetaan ? sarake.arvo(tila) : 0;
      summa += arvo;
      sisalto.rivit[i++].solut.push_back(tunnetaan ? Muotoile(arvo, sarake.kuvio) : kEiLukua);
    }
    sisalto.summat.push_back(!sarake.summataan ? "" : tunnetaan ? Muotoile(summa, sarake.kuvio) : kEiLukua);
  }
  return sisalto;
}

/// The list must open also over a building whose balance can't be calculated: it is where the fault is mended.
Luettelosisalto LasketutRivit(clsRakennus& rakennus, const clsTilat& tilat) {
  try {
    const Tasehaarukka haarukka(rakennus);
    return TilojenRivit(tilat, true);
  } catch (const Virhe& virhe) {
    Ilmoita(virhe.Kuvaus() + "\n" + virhe.Lahde(), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    return TilojenRivit(tilat, false);
  }
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
  lomake.LisaaKlikattu = [this] { KayttoLiittyma_LisaaKlikattu(); };
  lomake.MuokkaaKlikattu = [this] { KayttoLiittyma_MuokkaaKlikattu(); };
  lomake.KopioiKlikattu = [this] { KayttoLiittyma_KopioiKlikattu(); };
  lomake.PoistaKlikattu = [this] { KayttoLiittyma_PoistaKlikattu(); };
  lomake.KuukausitaseKlikattu = [this] { NaytaKuukausitase(VaadiRakennus(), ValittuTila()); };
  lomake.SahkokuormatMuuttuivat = [this] { KayttoLiittyma_SahkokuormatMuuttuivat(); };
}

void clsTilat::LueDataluokka() try {
  frmTilaYhteenveto& lomake = *kayttoLiittyma_.arvo;
  lomake.chkKaytaTotSahkoKuormia.Valittu(KaytaTotSahkoKuormia);
  lomake.txtTotSahkoKuormaPros.Luku(TotSahkoKuormaPros, "0.0#");
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
  kayttoLiittyma_.arvo->lvwTilat.Tayta(LasketutRivit(VaadiRakennus(), *this));
  PaivitaNapit();
}

void clsTilat::PaivitaNapit() { kayttoLiittyma_.arvo->PaivitaNapit(VaadiRakennus().Saastotoimenpiteet.Count() > 0); }

clsTila& clsTilat::ValittuTila() const { return Item(kayttoLiittyma_.arvo->lvwTilat.Valittu()); }

void clsTilat::LuetteloMuuttui(int toiminto, const Tunniste& valittava) {
  VaadiRakennus().Muuttui(Teksti(toiminto));
  kayttoLiittyma_.arvo->lvwTilat.Valitse(valittava);
  PaivitaNapit();
}

void clsTilat::KayttoLiittyma_LisaaKlikattu() try {
  const Tunniste avain = Tunniste::Uusi(clsTila::kLuokka.NimiSana());
  clsTila& tila = Add(avain);
  tila.TilanNimi = Teksti(tekstit::kUusiTila);
  tila.TilanKayttoaikaStr = Valintalista("frmTila", "cmbTilanKayttoaika").at(0);
  tila.SaatotapaStr = Valintalista("frmTila", "cmbSaatotapa").at(1);
  if (tila.NaytaKayttoliittyma()) {
    kayttoLiittyma_.arvo->lvwTilat.Valitse(avain);
    return PaivitaNapit();
  }
  Remove(avain);
  VaadiRakennus().RekisteriVanheni();
} catch (...) {
  NostaVirhe("clsTilat:KayttoLiittyma_LisaaKlikattu Method");
}

void clsTilat::KayttoLiittyma_MuokkaaKlikattu() try { ValittuTila().NaytaKayttoliittyma(); } catch (...) {
  NostaVirhe("clsTilat:KayttoLiittyma_MuokkaaKlikattu Method");
}

void clsTilat::KayttoLiittyma_KopioiKlikattu() try {
  clsTila& kopio = LisaaKopio(*this, ValittuTila());
  kopio.TilanNimi = Teksti(tekstit::kKopio) + kopio.TilanNimi;
  LuetteloMuuttui(tekstit::kTilanKopiointi, kopio.sKey);
} catch (...) {
  NostaVirhe("clsTilat:KayttoLiittyma_KopioiKlikattu Method");
}

void clsTilat::KayttoLiittyma_PoistaKlikattu() try {
  clsTila& tila = ValittuTila();
  if (const std::string nimet = ViittaavatToimenpiteet(tila); !nimet.empty())
    return Ilmoita(Teksti(tekstit::kTilaaEiVoiPoistaa) + " " + nimet, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  if (!KysyPoisto()) return;
  Remove(Tunniste(tila.sKey));
  LuetteloMuuttui(tekstit::kTilanPoisto, {});
} catch (...) {
  NostaVirhe("clsTilat:KayttoLiittyma_PoistaKlikattu Method");
}

void clsTilat::KayttoLiittyma_SahkokuormatMuuttuivat() try {
  KirjoitaDataluokka();
  VaadiRakennus().Muuttui(Teksti(tekstit::kTilojenSahkokuormat));
  LueDataluokka();
} catch (...) {
  NostaVirhe("clsTilat:KayttoLiittyma_SahkokuormatMuuttuivat Method");
}
