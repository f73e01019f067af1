// SPDX-License-Identifier: GPL-3.0-or-later
// The calculator's dialog.
#include "kernel/Virhe.h"
#include "ui/Odotus.h"
#include "ui/frmLTOhyotylaskenta.h"
#include "ventilation/clsLto.h"

namespace {

struct Lukukentta {
  TextBox frmLTOhyotylaskenta::*kentta;
  double clsLto::*lampotila;
};
constexpr Lukukentta kLukukentat[] = {
    {&frmLTOhyotylaskenta::txtTu, &clsLto::Tu},
    {&frmLTOhyotylaskenta::txtTp, &clsLto::Tp},
    {&frmLTOhyotylaskenta::txtTlto, &clsLto::Tlto},
};
constexpr double kProsenttia = 100;

}  // namespace

bool clsLto::NaytaKayttoliittyma() try {
  kayttoLiittyma_.arvo = std::make_shared<frmLTOhyotylaskenta>();
  muokattava_.arvo = Kopioi();
  frmLTOhyotylaskenta& lomake = *kayttoLiittyma_.arvo;
  lomake.DataMuuttui = [this] { KayttoLiittyma_DataMuuttui(); };
  lomake.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  lomake.PeruutaKlikattu = [&lomake] { lomake.Sulje(); };
  LueDataluokka();
  lomake.NaytaModaalisena();
  const bool hyvaksytty = !muokattava_.arvo;
  muokattava_.arvo.reset();
  kayttoLiittyma_.arvo.reset();
  if (hyvaksytty && LtoHyotysuhdeMuuttui.arvo) LtoHyotysuhdeMuuttui.arvo(LtoHyotysuhde(Tp) * kProsenttia);
  return hyvaksytty;
} catch (...) {
  muokattava_.arvo.reset();
  kayttoLiittyma_.arvo.reset();
  NostaVirhe("clsLto:NaytaKayttoliittyma Method");
}

void clsLto::LueDataluokka() try {
  for (const Lukukentta& k : kLukukentat)
    (*kayttoLiittyma_.arvo.*k.kentta).Luku((*muokattava_.arvo).*k.lampotila, "0.0#");
  NaytaHyotysuhde();
} catch (...) {
  NostaVirhe("clsLto:LueDataluokka Method");
}

void clsLto::KirjoitaDataluokka() try {
  for (const Lukukentta& k : kLukukentat) LueArvo(*kayttoLiittyma_.arvo.*k.kentta, (*muokattava_.arvo).*k.lampotila);
} catch (...) {
  NostaVirhe("clsLto:KirjoitaDataluokka Method");
}

void clsLto::NaytaHyotysuhde() {
  clsLto& lto = *muokattava_.arvo;
  kayttoLiittyma_.arvo->txtLtoHyotysuhde.Luku(lto.LtoHyotysuhde(lto.Tp) * kProsenttia, "0.0");
}

void clsLto::KayttoLiittyma_DataMuuttui() try {
  KirjoitaDataluokka();
  NaytaHyotysuhde();
} catch (...) {
  NostaVirhe("clsLto:KayttoLiittyma_DataMuuttui Method");
}

void clsLto::KayttoLiittyma_OkKlikattu() try {
  Odotus odotus;
  KirjoitaDataluokka();
  muokattava_.arvo->Kopioi(*this);
  muokattava_.arvo.reset();
  kayttoLiittyma_.arvo->Sulje();
} catch (...) {
  NostaVirhe("clsLto:KayttoLiittyma_OkKlikattu Method");
}
