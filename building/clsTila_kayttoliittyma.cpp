// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a space.
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmTila.h"

namespace {

/// Number fields and the members that they show.
struct Lukukentta {
  TextBox frmTila::*kentta;
  double clsTila::*luku;
  const char* kuvio;
};
constexpr Lukukentta kLukukentat[] = {
    {&frmTila::txtKokonaistilavuus, &clsTila::Kokonaistilavuus, "### ##0.##"},
    {&frmTila::txtBruttoAla, &clsTila::BruttoAla, "### ##0.##"},
    {&frmTila::txtTilanHenkilomaara, &clsTila::TilanHenkilomaara, "### ##0.##"},
    {&frmTila::txtTilanKayttoaikaHpA, &clsTila::TilanKayttoaikaHpA, "### ##0.##"},
    {&frmTila::txtSisalampotila, &clsTila::Sisalampotila, "0.0#"},
    {&frmTila::txtPainovoimainenIVMaara, &clsTila::PainovoimainenIVMaara, "0.00#"},
    {&frmTila::txtVuotoilmanvaihto, &clsTila::Vuotoilmanvaihto, "0.00#"},
    {&frmTila::txtSaatohyotysuhde, &clsTila::Saatohyotysuhde, "0.0#"},
};

struct Rastikentta {
  CheckBox frmTila::*kentta;
  bool clsTila::*lippu;
};
constexpr Rastikentta kRastikentat[] = {
    {&frmTila::chkLammitettyTila, &clsTila::LammitettyTila},
    {&frmTila::chkSahkolammitys, &clsTila::Sahkolammitys},
    {&frmTila::chkPainovoimainenIlmanvaihto, &clsTila::PainovoimainenIlmanvaihto},
};

/// What each choice sets; the last row, "other", can be changed by hand.
constexpr std::array<double, 5> kKayttotunnit{2200, 4400, 6240, 8760, 8760};  // h/a
constexpr std::array<double, 6> kSaatohyotysuhteet{85, 80, 60, 40, 20, 80};   // %; building code D5

}  // namespace

bool clsTila::NaytaKayttoliittyma() try {
  kayttoLiittyma_.arvo = std::make_shared<frmTila>();
  varalla_.arvo = Kopioi();
  LiitaTapahtumat();
  frmTila& lomake = *kayttoLiittyma_.arvo;
  if (!TilanNimi.empty()) lomake.Otsikko(TilanNimi + ": " + lomake.Otsikko());
  LueDataluokka();
  lomake.NaytaModaalisena();
  const bool hyvaksytty = !varalla_.arvo;
  varalla_.arvo.reset();
  kayttoLiittyma_.arvo.reset();
  return hyvaksytty;
} catch (...) {
  varalla_.arvo.reset();
  kayttoLiittyma_.arvo.reset();
  NostaVirhe("clsTila:NaytaKayttoliittyma Method");
}

void clsTila::LiitaTapahtumat() {
  frmTila& lomake = *kayttoLiittyma_.arvo;
  lomake.KayttoaikaValittu = [this](int rivi) { KayttoLiittyma_KayttoaikaValittu(rivi); };
  lomake.SaatotapaValittu = [this](int rivi) { KayttoLiittyma_SaatotapaValittu(rivi); };
  lomake.RakenteetKlikattu = [this] { EditoiRakenteita(); };
  lomake.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  lomake.PeruutaKlikattu = [this] { KayttoLiittyma_PeruutaKlikattu(); };
}

void clsTila::LueDataluokka() try {
  frmTila& lomake = *kayttoLiittyma_.arvo;
  lomake.txtTilanNimi.Teksti(TilanNimi);
  lomake.txtKuvausteksti.Teksti(Kuvausteksti);
  lomake.cmbTilanKayttoaika.Indeksi(TilanKayttoaikaID);
  lomake.cmbSaatotapa.Indeksi(SaatotapaID);
  for (const Lukukentta& k : kLukukentat) (lomake.*k.kentta).Luku(this->*k.luku, k.kuvio);
  for (const Rastikentta& k : kRastikentat) (lomake.*k.kentta).Valittu(this->*k.lippu);
  lomake.PaivitaKentat();
} catch (...) {
  NostaVirhe("clsTila:LueDataluokka Method");
}

void clsTila::KirjoitaDataluokka() try {
  frmTila& lomake = *kayttoLiittyma_.arvo;
  TilanNimi = lomake.txtTilanNimi.Teksti();
  Kuvausteksti = lomake.txtKuvausteksti.Teksti();
  for (const Lukukentta& k : kLukukentat) LueArvo(lomake.*k.kentta, this->*k.luku);
  for (const Rastikentta& k : kRastikentat) this->*k.lippu = (lomake.*k.kentta).Valittu();
} catch (...) {
  NostaVirhe("clsTila:KirjoitaDataluokka Method");
}

void clsTila::EditoiRakenteita() try {
  if (!kayttoLiittyma_.arvo) return void(Rakenteet.NaytaKayttoliityma(TilanNimi, Sisalampotila));
  const frmTila& lomake = *kayttoLiittyma_.arvo;
  Rakenteet.NaytaKayttoliityma(lomake.txtTilanNimi.Teksti(),
                               LueLuku(lomake.txtSisalampotila.Teksti()).value_or(Sisalampotila));
} catch (...) {
  NostaVirhe("clsTila:EditoiRakenteita Method");
}

void clsTila::KayttoLiittyma_KayttoaikaValittu(int rivi) {
  frmTila& lomake = *kayttoLiittyma_.arvo;
  TilanKayttoaikaID = rivi;
  TilanKayttoaikaStr = lomake.cmbTilanKayttoaika.Teksti();
  TilanKayttoaikaHpA = kKayttotunnit.at(static_cast<std::size_t>(rivi));
  lomake.txtTilanKayttoaikaHpA.Luku(TilanKayttoaikaHpA, "### ##0.##");
}

void clsTila::KayttoLiittyma_SaatotapaValittu(int rivi) {
  frmTila& lomake = *kayttoLiittyma_.arvo;
  SaatotapaID = rivi;
  SaatotapaStr = lomake.cmbSaatotapa.Teksti();
  Saatohyotysuhde = kSaatohyotysuhteet.at(static_cast<std::size_t>(rivi));
  lomake.txtSaatohyotysuhde.Luku(Saatohyotysuhde, "0.0#");
}

/// False for a space that a saving measure owns: the building didn't change with it.
bool clsTila::OnElavassaMallissa() const { return VaadiRakennus().Tilat.Etsi(sKey) == this; }

void clsTila::MuutosVoimaan() {
  JohtumishaviotUpToDate(false);
  IVHaviotTilassaUpToDate(false);
  AurKuormatTilassaUpToDate(false);
  if (OnElavassaMallissa())
    VaadiRakennus().PerusmalliMuuttui();
  else
    VaadiRakennus().Tallennettu = false;
  if (DataMuuttui.arvo) DataMuuttui.arvo();
}

void clsTila::KayttoLiittyma_OkKlikattu() try {
  Odotus odotus;
  KirjoitaDataluokka();
  MuutosVoimaan();
  varalla_.arvo.reset();
  kayttoLiittyma_.arvo->Sulje();
} catch (...) {
  varalla_.arvo->Kopioi(*this);
  NostaVirhe("clsTila:KayttoLiittyma_OkKlikattu Method");
}

void clsTila::KayttoLiittyma_PeruutaKlikattu() try {
  Odotus odotus;
  varalla_.arvo->Kopioi(*this);
  if (OnElavassaMallissa()) VaadiRakennus().PaivitaInstanssiIdLista();
  kayttoLiittyma_.arvo->Sulje();
} catch (...) {
  NostaVirhe("clsTila:KayttoLiittyma_PeruutaKlikattu Method");
}
