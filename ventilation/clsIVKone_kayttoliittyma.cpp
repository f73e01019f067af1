// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a machine.
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "ui/Hiljaa.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmIlmanvaihtokone.h"

namespace {

constexpr const char* kEnergia = "### ##0.00";
constexpr const char* kHyotysuhde = "0.0#";

/// Number fields and the members that they show.
struct Lukukentta {
  TextBox frmIlmanvaihtokone::*kentta;
  double clsIVKone::*luku;
  const char* kuvio;
};
constexpr Lukukentta kLukukentat[] = {
    {&frmIlmanvaihtokone::txtTuloIlmavirta11Teho, &clsIVKone::TuloIlmavirta11Teho, "0.00#"},
    {&frmIlmanvaihtokone::txtPoistoIlmavirta11Teho, &clsIVKone::PoistoIlmavirta11Teho, "0.00#"},
    {&frmIlmanvaihtokone::txtPoistoLampotila, &clsIVKone::PoistoLampotila, "0.0#"},
    {&frmIlmanvaihtokone::txtLtoHyotysuhde, &clsIVKone::LtoHyotysuhde, kHyotysuhde},
};

/// Choices and the members that hold the row and its text.
struct Valintakentta {
  ComboBox frmIlmanvaihtokone::*kentta;
  std::int32_t clsIVKone::*rivi;
  std::string clsIVKone::*teksti;
};
constexpr Valintakentta kValintakentat[] = {
    {&frmIlmanvaihtokone::cmbIVPeriaate, &clsIVKone::IVPeriaateID, &clsIVKone::IVPeriaate},
    {&frmIlmanvaihtokone::cmbJarjestelmaTyyppi, &clsIVKone::JarjestelmaTyyppiID, &clsIVKone::JarjestelmaTyyppi},
    {&frmIlmanvaihtokone::cmbPuhaltimenVoimansiirtoTapa, &clsIVKone::PuhaltimenVoimansiirtoTapaID,
     &clsIVKone::PuhaltimenVoimansiirtoTapa},
    {&frmIlmanvaihtokone::cmbPuhaltimenSaatotapa, &clsIVKone::PuhaltimenSaatotapaID, &clsIVKone::PuhaltimenSaatotapa},
};

/// A row that the list doesn't have, from a foreign file, stays until another one is chosen.
void LueValinta(const ComboBox& valinta, std::int32_t& rivi, std::string& teksti) {
  if (valinta.Indeksi() < 0) return;
  rivi = valinta.Indeksi();
  teksti = valinta.Teksti();
}

struct Vuosikentta {
  TextBox frmIlmanvaihtokone::*kentta;
  double clsIVKone::Vuosiluvut::*luku;
  const char* kuvio;
};
constexpr Vuosikentta kVuosikentat[] = {
    {&frmIlmanvaihtokone::txtKayntiaika, &clsIVKone::Vuosiluvut::kayntiaika, "### ##0"},
    {&frmIlmanvaihtokone::txtJalkilammitys, &clsIVKone::Vuosiluvut::jalkilammitys, kEnergia},
    {&frmIlmanvaihtokone::txtPuhallinSahko, &clsIVKone::Vuosiluvut::puhaltimet, kEnergia},
    {&frmIlmanvaihtokone::txtLtoEnergia, &clsIVKone::Vuosiluvut::talteenotto, kEnergia},
};

/// Row of the choice of spaces: 0 none, or a key that no space has.
int TilanRivi(const clsTilat& tilat, const Tunniste& avain) {
  int rivi = 0;
  for (const clsTila& tila : tilat) {
    ++rivi;
    if (tila.sKey == avain) return rivi;
  }
  return 0;
}

}  // namespace

bool clsIVKone::NaytaKayttoliittyma() try {
  kayttoLiittyma_.arvo = std::make_shared<frmIlmanvaihtokone>();
  varalla_.arvo = Kopioi();
  LiitaTapahtumat();
  frmIlmanvaihtokone& lomake = *kayttoLiittyma_.arvo;
  if (!KoneenTunnus.empty()) lomake.Otsikko(KoneenTunnus + ": " + lomake.Otsikko());
  LueDataluokka();
  lomake.NaytaModaalisena();
  const bool hyvaksytty = !varalla_.arvo;
  SuljeKayttoliittyma();
  return hyvaksytty;
} catch (...) {
  SuljeKayttoliittyma();
  NostaVirhe("clsIVKone:NaytaKayttoliittyma Method");
}

/// Opens the dialog of the schedule or of the fans over what the form now has.
template <class T>
void clsIVKone::MuokkaaOsaa(T& osa) try {
  KirjoitaDataluokka();
  PaivitaOsienTiedot();
  if (osa.NaytaKayttoliittyma()) NaytaVuosi();
} catch (...) {
  NostaVirhe("clsIVKone:MuokkaaOsaa Method");
}

void clsIVKone::LiitaTapahtumat() {
  frmIlmanvaihtokone& lomake = *kayttoLiittyma_.arvo;
  lomake.DataMuuttui = [this] { NaytaVuosi(); };
  lomake.LtoKlikattu = [this] { KayttoLiittyma_LtoKlikattu(); };
  lomake.KayntiajatKlikattu = [this] { MuokkaaOsaa(KayntiAikaYleistiedot); };
  lomake.PuhaltimetKlikattu = [this] { MuokkaaOsaa(PuhaltimienSahkonKulutus); };
  lomake.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  lomake.PeruutaKlikattu = [this] { KayttoLiittyma_PeruutaKlikattu(); };
}

void clsIVKone::SuljeKayttoliittyma() {
  varalla_.arvo.reset();
  kayttoLiittyma_.arvo.reset();
}

void clsIVKone::LueDataluokka() try {
  frmIlmanvaihtokone& lomake = *kayttoLiittyma_.arvo;
  const clsTilat& tilat = VaadiRakennus().Tilat;
  std::vector<std::string> nimet;
  for (const clsTila& tila : tilat) nimet.push_back(tila.TilanNimi);
  lomake.Tilat(nimet, TilanRivi(tilat, LiittyyTilaansKey));
  lomake.txtKoneenTunnus.Teksti(KoneenTunnus);
  for (const Lukukentta& k : kLukukentat) (lomake.*k.kentta).Luku(this->*k.luku, k.kuvio);
  lomake.txtSisaanpuhallusLampotila.Luku(sisaanpuhallusLampotila_, "0.0#");
  lomake.txtIlmanLampeneminenPuhaltimessa.Luku(IlmanLampeneminenPuhaltimessa, "0.0#");
  lomake.chkTuloilmanLammitysSahkoPatterilla.Valittu(TuloilmanLammitysSahkoPatterilla);
  for (const Valintakentta& k : kValintakentat) (lomake.*k.kentta).Indeksi(this->*k.rivi);
  lomake.cmbVakioPaineOsuus.Indeksi(vakioPaineOsuusID_);
  lomake.PaivitaKentat();
  NaytaVuosi();
} catch (...) {
  NostaVirhe("clsIVKone:LueDataluokka Method");
}

void clsIVKone::KirjoitaDataluokka() try { LueLomakkeelta(*this); } catch (...) {
  NostaVirhe("clsIVKone:KirjoitaDataluokka Method");
}

/// Takes the form's values into the machine. Temperatures that have their counterparts in the schedule are set there
/// only when they change: the periods may have ones of their own.
void clsIVKone::LueLomakkeelta(clsIVKone& kone) const {
  const frmIlmanvaihtokone& lomake = *kayttoLiittyma_.arvo;
  kone.KoneenTunnus = lomake.txtKoneenTunnus.Teksti();
  const int tilanRivi = lomake.cmbLiittyyTilaan.Indeksi();
  kone.LiittyyTilaansKey = tilanRivi > 0 ? VaadiRakennus().Tilat.Item(tilanRivi).sKey : Tunniste();
  for (const Lukukentta& k : kLukukentat) LueArvo(lomake.*k.kentta, kone.*k.luku);
  double lampotila = kone.sisaanpuhallusLampotila_, lampeneminen = kone.IlmanLampeneminenPuhaltimessa;
  LueArvo(lomake.txtSisaanpuhallusLampotila, lampotila);
  LueArvo(lomake.txtIlmanLampeneminenPuhaltimessa, lampeneminen);
  if (lampotila != kone.sisaanpuhallusLampotila_) kone.SisaanpuhallusLampotila(lampotila);
  if (lampeneminen != kone.IlmanLampeneminenPuhaltimessa) kone.AsetaLampeneminen(lampeneminen);
  kone.TuloilmanLammitysSahkoPatterilla = lomake.chkTuloilmanLammitysSahkoPatterilla.Valittu();
  for (const Valintakentta& k : kValintakentat) LueValinta(lomake.*k.kentta, kone.*k.rivi, kone.*k.teksti);
  std::int32_t osuus = kone.vakioPaineOsuusID_;
  LueValinta(lomake.cmbVakioPaineOsuus, osuus, kone.VakioPaineOsuus);
  kone.VakioPaineOsuusID(osuus);
}

/// Sets the warming in the fan, K, also to all periods of the schedule.
void clsIVKone::AsetaLampeneminen(double lampeneminen) {
  IlmanLampeneminenPuhaltimessa = lampeneminen;
  for (clsKayntiAika& jakso : KayntiAikaYleistiedot) jakso.dTPuhallin = lampeneminen;
}

/// A flow without its fan would be heated, and efficiency without exhaust air recover heat.
void clsIVKone::PoistaPeriaatteeseenKuulumattomat() {
  if (!OnTulopuhallin()) TuloIlmavirta11Teho = 0;
  if (!OnPoistopuhallin()) PoistoIlmavirta11Teho = 0;
  if (!OnTalteenotto()) LtoHyotysuhde = 0;
}

/// Figures of the machine that OK would make, with what the calculation complains of in words beside them.
void clsIVKone::NaytaVuosi() {
  const frmIlmanvaihtokone& lomake = *kayttoLiittyma_.arvo;
  const Hiljaisuus hiljaisuus;
  try {
    const auto kone = Kopioi();
    LueLomakkeelta(*kone);
    kone->PoistaPeriaatteeseenKuulumattomat();
    const Vuosiluvut luvut = kone->VuodenLuvut();
    for (const Vuosikentta& k : kVuosikentat) (lomake.*k.kentta).Luku(luvut.*k.luku, k.kuvio);
    lomake.lblHuomautus.Otsikko(hiljaisuus.EnsimmainenViesti());
  } catch (const Virhe& virhe) {
    for (const Vuosikentta& k : kVuosikentat) (lomake.*k.kentta).Teksti(Teksti(tekstit::kViiva));
    lomake.lblHuomautus.Otsikko(virhe.Kuvaus());
  }
}

/// False for a machine that a saving measure owns: the building didn't change with it.
bool clsIVKone::OnElavassaMallissa() const { return VaadiRakennus().IVKoneet.Etsi(sKey) == this; }

void clsIVKone::KayttoLiittyma_LtoKlikattu() try {
  Lto.LtoHyotysuhdeMuuttui.arvo = [this](double hyotysuhde) {
    const TextBox& kentta = kayttoLiittyma_.arvo->txtLtoHyotysuhde;
    LtoHyotysuhde = hyotysuhde;
    kentta.Kohde().PaataMuokkaus();
    kentta.Luku(hyotysuhde, kHyotysuhde);
  };
  if (Lto.NaytaKayttoliittyma()) NaytaVuosi();
} catch (...) {
  NostaVirhe("clsIVKone:KayttoLiittyma_LtoKlikattu Method");
}

void clsIVKone::KayttoLiittyma_OkKlikattu() try {
  Odotus odotus;
  KirjoitaDataluokka();
  PoistaPeriaatteeseenKuulumattomat();
  PaivitaOsienTiedot();
  VaadiRakennus().IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate = false;
  VaadiRakennus().Tallennettu = false;
  varalla_.arvo.reset();
  kayttoLiittyma_.arvo->Sulje();
  if (LampoSahkoKulutusMuuttui.arvo) LampoSahkoKulutusMuuttui.arvo();
} catch (...) {
  if (varalla_.arvo) varalla_.arvo->Kopioi(*this);
  NostaVirhe("clsIVKone:KayttoLiittyma_OkKlikattu Method");
}

void clsIVKone::KayttoLiittyma_PeruutaKlikattu() try {
  Odotus odotus;
  varalla_.arvo->Kopioi(*this);
  if (OnElavassaMallissa()) VaadiRakennus().RekisteriVanheni();
  kayttoLiittyma_.arvo->Sulje();
} catch (...) {
  NostaVirhe("clsIVKone:KayttoLiittyma_PeruutaKlikattu Method");
}
