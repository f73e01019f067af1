// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the building's auditors.
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmKatselmoijienTiedot.h"

namespace {

using Kentat = std::array<TextBox, clsKatselmoijanTiedot::kKenttia>;

void Lue(const clsKatselmoijanTiedot& tiedot, const Kentat& kentat) {
  for (std::size_t i = 0; i < kentat.size(); ++i) kentat[i].Teksti(tiedot.*clsKatselmoijanTiedot::Kentta(i));
}

void Kirjoita(const Kentat& kentat, clsKatselmoijanTiedot& tiedot) {
  for (std::size_t i = 0; i < kentat.size(); ++i) tiedot.*clsKatselmoijanTiedot::Kentta(i) = kentat[i].Teksti();
}

}  // namespace

void clsKatselmoijienTiedot::NaytaKayttoliittyma() try {
  frmKatselmoijienTiedot lomake;
  lomake.HaeOmatKlikattu = [&lomake] {
    clsKatselmoijienTiedot omat;
    omat.HaeOletukset();
    omat.LueDataluokka(lomake);
  };
  lomake.OkKlikattu = [this, &lomake] {
    KirjoitaDataluokka(lomake);
    VaadiRakennus().Muuttui(Teksti(tekstit::kKatselmoijienTiedot));
    lomake.Sulje();
  };
  lomake.PeruutaKlikattu = [&lomake] { lomake.Sulje(); };
  LueDataluokka(lomake);
  lomake.NaytaModaalisena();
} catch (...) {
  NostaVirhe("clsKatselmoijienTiedot:NaytaKayttoliittyma Method");
}

void clsKatselmoijienTiedot::LueDataluokka(frmKatselmoijienTiedot& lomake) const {
  Lue(LVIKatselmoija, lomake.txtLVI);
  Lue(SahkoKatselmoija, lomake.txtSah);
}

void clsKatselmoijienTiedot::KirjoitaDataluokka(const frmKatselmoijienTiedot& lomake) {
  Kirjoita(lomake.txtLVI, LVIKatselmoija);
  Kirjoita(lomake.txtSah, SahkoKatselmoija);
}
