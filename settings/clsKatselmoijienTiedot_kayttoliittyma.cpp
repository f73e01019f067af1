// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the building's auditors.
#include "building/Muokkausistunto.h"
#include "kernel/Virhe.h"
#include "settings/Yhteystietokentat.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "ui/frmKatselmoijienTiedot.h"

namespace {

const Sidontataulu<clsKatselmoijanTiedot> kSidonnat{
    "frmKatselmoijienTiedot", std::span(kYhteystietokentat), {kLVIkatselmoija, kSahkokatselmoija}};

void Lue(const frmKatselmoijienTiedot& lomake, const clsKatselmoijienTiedot& tiedot) {
  kSidonnat.Lue(lomake, tiedot.LVIKatselmoija, kLVIkatselmoija);
  kSidonnat.Lue(lomake, tiedot.SahkoKatselmoija, kSahkokatselmoija);
}

void Kirjoita(const frmKatselmoijienTiedot& lomake, clsKatselmoijienTiedot& tiedot) {
  kSidonnat.Kirjoita(lomake, tiedot.LVIKatselmoija, kLVIkatselmoija);
  kSidonnat.Kirjoita(lomake, tiedot.SahkoKatselmoija, kSahkokatselmoija);
}

}  // namespace

void clsKatselmoijienTiedot::NaytaKayttoliittyma() try {
  frmKatselmoijienTiedot lomake;
  lomake.HaeOmatKlikattu = [&] {
    clsKatselmoijienTiedot omat;
    omat.HaeOletukset();
    Lue(lomake, omat);
  };
  Muokkausistunto(*this, lomake, {.lue = [&] { Lue(lomake, *this); }, .kirjoita = [&] { Kirjoita(lomake, *this); }})
      .Nayta();
} catch (...) {
  NostaVirhe("clsKatselmoijienTiedot:NaytaKayttoliittyma Method");
}
