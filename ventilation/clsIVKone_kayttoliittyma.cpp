// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a machine.
#include "building/Muokkausistunto.h"
#include "building/Tilavalinta.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "ui/Hiljaa.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmIlmanvaihtokone.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr const char* kEnergia = "### ##0.00";
constexpr const char* kHyotysuhde = "0.0#";
constexpr const char* kLampotila = "0.0#";

std::int32_t KoneenTila(const clsIVKone& kone) { return TilanRivi(kone.LiittyyTilaansKey); }
void AsetaTila(clsIVKone& kone, std::int32_t rivi) { kone.LiittyyTilaansKey = RivinTila(rivi); }
double Sisaanpuhallus(const clsIVKone& kone) { return kone.SisaanpuhallusLampotila(); }
double Lampeneminen(const clsIVKone& kone) { return kone.IlmanLampeneminenPuhaltimessa; }
std::int32_t VakioPaineOsuus(const clsIVKone& kone) { return kone.VakioPaineOsuusID(); }
void AsetaVakioPaineOsuus(clsIVKone& kone, std::int32_t rivi) { kone.VakioPaineOsuusID(rivi); }

// These two are set also in the schedule, only when they change: the periods may have ones of their own.

void AsetaSisaanpuhallus(clsIVKone& kone, double lampotila) {
  if (lampotila != kone.SisaanpuhallusLampotila()) kone.SisaanpuhallusLampotila(lampotila);
}

void AsetaLampeneminen(clsIVKone& kone, double lampeneminen) {
  if (lampeneminen != kone.IlmanLampeneminenPuhaltimessa) kone.AsetaLampeneminen(lampeneminen);
}

const Sidontataulu kSidonnat{
    "frmIlmanvaihtokone",
    {
        Tekstikentta<&clsIVKone::KoneenTunnus>("txtKoneenTunnus"),
        Valintakentta<Funktiot<KoneenTila, AsetaTila>>("cmbLiittyyTilaan"),
        Valintakentta<&clsIVKone::IVPeriaateID, &clsIVKone::IVPeriaate>("cmbIVPeriaate"),
        Lukukentta<&clsIVKone::TuloIlmavirta11Teho>("txtTuloIlmavirta11Teho", "0.00#"),
        Lukukentta<&clsIVKone::PoistoIlmavirta11Teho>("txtPoistoIlmavirta11Teho", "0.00#"),
        Lukukentta<Funktiot<Sisaanpuhallus, AsetaSisaanpuhallus>>("txtSisaanpuhallusLampotila", kLampotila),
        Lukukentta<&clsIVKone::PoistoLampotila>("txtPoistoLampotila", kLampotila),
        Lukukentta<Funktiot<Lampeneminen, AsetaLampeneminen>>("txtIlmanLampeneminenPuhaltimessa", kLampotila),
        Lukukentta<&clsIVKone::LtoHyotysuhde>("txtLtoHyotysuhde", kHyotysuhde),
        Rastikentta<&clsIVKone::TuloilmanLammitysSahkoPatterilla>("chkTuloilmanLammitysSahkoPatterilla"),
        Valintakentta<&clsIVKone::JarjestelmaTyyppiID, &clsIVKone::JarjestelmaTyyppi>("cmbJarjestelmaTyyppi"),
        Valintakentta<&clsIVKone::PuhaltimenVoimansiirtoTapaID, &clsIVKone::PuhaltimenVoimansiirtoTapa>(
            "cmbPuhaltimenVoimansiirtoTapa"),
        Valintakentta<&clsIVKone::PuhaltimenSaatotapaID, &clsIVKone::PuhaltimenSaatotapa>("cmbPuhaltimenSaatotapa"),
        Valintakentta<Funktiot<VakioPaineOsuus, AsetaVakioPaineOsuus>, &clsIVKone::VakioPaineOsuus>(
            "cmbVakioPaineOsuus"),
    }};

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

/// The exhaust air of a machine with a space is as warm as the space; the machine's own figure waits behind.
void NaytaPoistolampotila(const frmIlmanvaihtokone& lomake, double oma) {
  const TextBox& kentta = lomake.txtPoistoLampotila;
  LueArvo(kentta, oma);
  const int rivi = lomake.cmbLiittyyTilaan.Indeksi();
  const double naytettava = rivi > 0 ? VaadiRakennus().Tilat.Item(rivi).Sisalampotila : oma;
  kentta.Kohde().Teksti(Muotoile(naytettava, kLampotila), oma);
}

/// Figures of the machine that OK would make, with what the calculation complains of in words beside them.
void NaytaVuosi(const frmIlmanvaihtokone& lomake, const clsIVKone& muokattava) {
  const Hiljaisuus hiljaisuus;
  try {
    const auto kone = muokattava.Kopioi();
    kSidonnat.Kirjoita(lomake, *kone);
    kone->PoistaPeriaatteeseenKuulumattomat();
    const clsIVKone::Vuosiluvut luvut = kone->VuodenLuvut();
    for (const Vuosikentta& k : kVuosikentat) (lomake.*k.kentta).Luku(luvut.*k.luku, k.kuvio);
    lomake.lblHuomautus.Otsikko(hiljaisuus.EnsimmainenViesti());
  } catch (const Virhe& virhe) {
    for (const Vuosikentta& k : kVuosikentat) (lomake.*k.kentta).Teksti(Teksti(tekstit::kViiva));
    lomake.lblHuomautus.Otsikko(virhe.Kuvaus());
  }
}

/// Lets the calculator fill the efficiency.
void LaskeHyotysuhde(const frmIlmanvaihtokone& lomake, clsIVKone& kone) {
  kone.Lto.LtoHyotysuhdeMuuttui.arvo = [&](double hyotysuhde) {
    kone.LtoHyotysuhde = hyotysuhde;
    lomake.txtLtoHyotysuhde.Kohde().PaataMuokkaus();
    lomake.txtLtoHyotysuhde.Luku(hyotysuhde, kHyotysuhde);
  };
  const bool hyvaksytty = kone.Lto.NaytaKayttoliittyma();
  kone.Lto.LtoHyotysuhdeMuuttui.arvo = nullptr;
  if (hyvaksytty) NaytaVuosi(lomake, kone);
}

/// Opens the dialog of the schedule or of the fans over what the form now has.
template <class T>
void MuokkaaOsaa(const frmIlmanvaihtokone& lomake, clsIVKone& kone, T& osa) {
  kSidonnat.Kirjoita(lomake, kone);
  kone.PaivitaOsienTiedot();
  if (osa.NaytaKayttoliittyma()) NaytaVuosi(lomake, kone);
}

}  // namespace

bool clsIVKone::NaytaKayttoliittyma() try {
  frmIlmanvaihtokone lomake;
  lomake.DataMuuttui = [&] {
    NaytaPoistolampotila(lomake, PoistoLampotila);
    NaytaVuosi(lomake, *this);
  };
  lomake.LtoKlikattu = [&] { LaskeHyotysuhde(lomake, *this); };
  lomake.KayntiajatKlikattu = [&] { MuokkaaOsaa(lomake, *this, KayntiAikaYleistiedot); };
  lomake.PuhaltimetKlikattu = [&] { MuokkaaOsaa(lomake, *this, PuhaltimienSahkonKulutus); };
  Muokkausistunto istunto(*this, lomake,
                          {.nimi = KoneenTunnus,
                           .elava = OnElavassaMallissa(),
                           .lue =
                               [&] {
                                 lomake.Tilat(TilojenNimet());
                                 kSidonnat.Lue(lomake, *this);
                                 NaytaPoistolampotila(lomake, PoistoLampotila);
                                 lomake.PaivitaKentat();
                                 NaytaVuosi(lomake, *this);
                               },
                           .kirjoita = [&] { kSidonnat.Kirjoita(lomake, *this); },
                           .voimaan =
                               [&] {
                                 PoistaPeriaatteeseenKuulumattomat();
                                 PaivitaOsienTiedot();
                               },
                           .tapahtuma = LampoSahkoKulutusMuuttui.arvo});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("clsIVKone:NaytaKayttoliittyma Method");
}

/// False for a machine that a saving measure owns: the building didn't change with it.
bool clsIVKone::OnElavassaMallissa() const { return VaadiRakennus().IVKoneet.Etsi(sKey) == this; }
