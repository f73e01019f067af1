// SPDX-License-Identifier: GPL-3.0-or-later
// The basic-data dialog.
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/rakennus.h"
#include "tekstit/virheet.h"
#include "ui/Odotus.h"
#include "ui/Paaikkuna.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmNormeeraamatonKulutus.h"
#include "ui/frmPerustiedot.h"

namespace {

constexpr int kVuosia = 3;

/// Fields of a measured year in the grid, and the figures that they stand for.
struct Kulutuskentta {
  std::array<TextBox, kVuosia> frmPerustiedot::*kentat;
  double clsToteutunutKulutus::*luku;
  const char* kuvio;
};
constexpr Kulutuskentta kKulutuskentat[] = {
    {&frmPerustiedot::txtLammTarveLuku, &clsToteutunutKulutus::LammTarveLuku, "### ##0"},
    {&frmPerustiedot::txtLampo, &clsToteutunutKulutus::Lampo, "### ##0.0"},
    {&frmPerustiedot::txtSahko, &clsToteutunutKulutus::Sahko, "### ##0.0"},
    {&frmPerustiedot::txtVesi, &clsToteutunutKulutus::Vesi, "### ##0"},
};

/// Plain number fields and the members that they show.
struct Lukukentta {
  TextBox frmPerustiedot::*kentta;
  double clsPerustiedot::*luku;
  const char* kuvio;
};
constexpr Lukukentta kLukukentat[] = {
    {&frmPerustiedot::txtKokonaistilavuus, &clsPerustiedot::Kokonaistilavuus, "### ##0"},
    {&frmPerustiedot::txtKylmanTilavuudenOsuus, &clsPerustiedot::KylmanTilavuudenOsuus, "0.0"},
    {&frmPerustiedot::txtBruttoAla, &clsPerustiedot::BruttoAla, "### ##0"},
    {&frmPerustiedot::txtKylmanAlanOsuus, &clsPerustiedot::KylmanAlanOsuus, "0.0"},
    {&frmPerustiedot::txtKerrostenLukumaara, &clsPerustiedot::KerrostenLukumaara, "0.0"},
    {&frmPerustiedot::txtKohteenHenkiloMaara, &clsPerustiedot::KohteenHenkiloMaara, "### ##0"},
};

}  // namespace

bool clsPerustiedot::NaytaKayttoliityma() try {
  kayttoLiittyma_.arvo = std::make_unique<frmPerustiedot>();
  varalla_.arvo = Kopioi();
  LiitaTapahtumat();
  AsetaOtsikot();
  LueDataluokka();
  kayttoLiittyma_.arvo->NaytaModaalisena();
  kayttoLiittyma_.arvo.reset();
  varalla_.arvo.reset();
  return OletusarvotLaskettu;
} catch (...) {
  kayttoLiittyma_.arvo.reset();
  varalla_.arvo.reset();
  NostaVirhe("clsPerustiedot:NaytaKayttoliityma Method");
}

void clsPerustiedot::LiitaTapahtumat() {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  lomake.DataMuuttui = [this] { KayttoLiittyma_DataMuuttui(); };
  lomake.KulutustietoMuuttui = [this] { KayttoLiittyma_KulutustietoMuuttui(); };
  lomake.SaaPaikkakuntaMuuttui = [this](int id) { KayttoLiittyma_SaaPaikkakuntaMuuttui(id); };
  lomake.VakioOsuusKlikattu = [this] { KayttoLiittyma_VakioOsuusKlikattu(); };
  lomake.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  lomake.PeruutaKlikattu = [this] { KayttoLiittyma_PeruutaKlikattu(); };
}

void clsPerustiedot::AsetaOtsikot() {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  lomake.Otsikko(OletusarvotLaskettu ? KohteenNimi + ": " + Teksti(tekstit::kPerustiedot)
                                     : Teksti(tekstit::kPerustiedot));
  if (!OletusarvotLaskettu) PaaikkunaNyt().TyokalutKaytossa(3, false);
  lomake.lblALV.Otsikko(Asetukset().KaytaKohtTulostuksissaALVHintoja ? Teksti(tekstit::kMaksutSisaltavatAlvn)
                                                                     : Teksti(tekstit::kArvonlisaveroOtsikko) + " 0 %");
}

void clsPerustiedot::LueDataluokka() try {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  lomake.txtKohteenNimi.Teksti(KohteenNimi);
  lomake.txtPvm.Teksti(Pvm);
  lomake.cmbKayttotarkoitus.Indeksi(KayttoTarkoitusID);
  lomake.txtValmistumisVuosi.Teksti(ValmistumisVuosi ? std::to_string(ValmistumisVuosi) : "0");
  lomake.cmbPaikkakunta.Indeksi(paikkakunta_);
  lomake.txtNormVuodenLammTarveLuku.Luku(NormVuodenLammTarveLuku, "### ##0");
  for (const Lukukentta& k : kLukukentat) (lomake.*k.kentta).Luku(this->*k.luku, k.kuvio);
  LueKulutukset();
  lomake.LaskeOminaiskulutukset();
} catch (...) {
  NostaVirhe("clsPerustiedot:LueDataluokka Method");
}

void clsPerustiedot::LueKulutukset() {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  for (int i = 0; i < kVuosia; ++i) {
    const clsToteutunutKulutus* vuosi = ToteutuneetKulutukset.Vuosi(i + 1);
    if (!vuosi) continue;
    const auto n = static_cast<std::size_t>(i);
    lomake.lblVuosi[n].Otsikko(std::to_string(ToteutuneetKulutukset.KulutusTietojenViimVuosi - i));
    lomake.optVertailuvuosi[n].Valittu(vuosi == &ToteutuneetKulutukset.VertailuVuodenTiedot());
    for (const Kulutuskentta& k : kKulutuskentat) (lomake.*k.kentat)[n].Luku(vuosi->*k.luku, k.kuvio);
  }
}

bool clsPerustiedot::KirjoitaKulutukset() {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  bool kelpaa = true;
  for (int i = 0; i < kVuosia; ++i) {
    clsToteutunutKulutus* vuosi = ToteutuneetKulutukset.Vuosi(i + 1);
    if (!vuosi) continue;
    const auto n = static_cast<std::size_t>(i);
    vuosi->KaytaVertailuVuotena = lomake.optVertailuvuosi[n].Valittu();
    for (const Kulutuskentta& k : kKulutuskentat) kelpaa &= LueArvo((lomake.*k.kentat)[n], vuosi->*k.luku);
  }
  return kelpaa;
}

void clsPerustiedot::KirjoitaDataluokka() try {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  KohteenNimi = lomake.txtKohteenNimi.Teksti();
  Pvm = lomake.txtPvm.Teksti();
  KayttoTarkoitusID = static_cast<std::int16_t>(std::max(0, lomake.cmbKayttotarkoitus.Indeksi()));
  Kayttotarkoitus = lomake.cmbKayttotarkoitus.Teksti();
  LueArvo(lomake.txtValmistumisVuosi, ValmistumisVuosi);
  LammTarveLukuPaikkakuntaID(std::max(0, lomake.cmbPaikkakunta.Indeksi()));
  LammTarveLukuPaikkakunta = lomake.cmbPaikkakunta.Teksti();
  for (const Lukukentta& k : kLukukentat) LueArvo(lomake.*k.kentta, this->*k.luku);
  KirjoitaKulutukset();
} catch (...) {
  NostaVirhe("clsPerustiedot:KirjoitaDataluokka Method");
}

void clsPerustiedot::KayttoLiittyma_DataMuuttui() {
  frmPerustiedot& lomake = *kayttoLiittyma_.arvo;
  if (lomake.txtKokonaistilavuus.Luku() > 0) LueArvo(lomake.txtKokonaistilavuus, Kokonaistilavuus);
  if (lomake.txtBruttoAla.Luku() > 0) LueArvo(lomake.txtBruttoAla, BruttoAla);
}

void clsPerustiedot::KayttoLiittyma_KulutustietoMuuttui() {
  KayttoLiittyma_DataMuuttui();
  if (!KirjoitaKulutukset()) NaytaVirhe(virheet::kEiLuku);
}

void clsPerustiedot::KayttoLiittyma_SaaPaikkakuntaMuuttui(int paikkakunta) {
  LammTarveLukuPaikkakuntaID(paikkakunta);
  kayttoLiittyma_.arvo->txtNormVuodenLammTarveLuku.Luku(NormVuodenLammTarveLuku, "### ##0");
}

void clsPerustiedot::KayttoLiittyma_VakioOsuusKlikattu() {
  frmNormeeraamatonKulutus().Kysy(LammKulVakioOsuus.kkOsuus, LammKulVakioOsuus.VuosiOsuus);
}

bool clsPerustiedot::VakioOsuusMahtuuKulutukseen() const {
  for (const clsToteutunutKulutus& vuosi : ToteutuneetKulutukset)
    if (vuosi.KaytaVertailuVuotena && vuosi.Lampo < LammKulVakioOsuus.VuosiOsuus) return false;
  return true;
}

void clsPerustiedot::OtaKayttoon(std::int32_t entinenPaikkakunta) try {
  const bool uusi = !OletusarvotLaskettu;
  if (paikkakunta_ != entinenPaikkakunta || uusi) SaaTietoMuuttui.arvo(paikkakunta_);
  if (uusi) {
    LaskeOletusarvotPerustietojenMukaan.arvo();
    OletusarvotLaskettu = true;
  }
  VaadiRakennus().Muuttui(Teksti(tekstit::kPerustiedot));
} catch (...) {
  NostaVirhe("clsPerustiedot:OtaKayttoon Method");
}

void clsPerustiedot::KayttoLiittyma_OkKlikattu() try {
  Odotus odotus;
  KirjoitaDataluokka();
  if (!VakioOsuusMahtuuKulutukseen()) return NaytaVirhe(virheet::kKulutusAlleVakion);
  PaaikkunaNyt().TyokalutKaytossa(3, true);
  OtaKayttoon(varalla_.arvo->paikkakunta_);
  kayttoLiittyma_.arvo->Sulje();
} catch (...) {
  varalla_.arvo->Kopioi(*this);
  NostaVirhe("clsPerustiedot:KayttoLiittyma_OkKlikattu Method");
}

void clsPerustiedot::KayttoLiittyma_PeruutaKlikattu() try {
  Odotus odotus;
  varalla_.arvo->Kopioi(*this);
  clsRakennus& rakennus = VaadiRakennus();
  rakennus.RekisteriVanheni();
  if (!OletusarvotLaskettu) {
    rakennus.ProjektiAsetukset.strCurrentProjectFile.clear();
    PaaikkunaNyt().AsetaOtsikko("");
  }
  PaaikkunaNyt().TyokalutKaytossa(2, OletusarvotLaskettu);
  kayttoLiittyma_.arvo->Sulje();
} catch (...) {
  NostaVirhe("clsPerustiedot:KayttoLiittyma_PeruutaKlikattu Method");
}
