// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a fan's detailed calculation.
#include "building/Muokkausistunto.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "ui/Hiljaa.h"
#include "ui/Sidonta.h"
#include "ui/frmPuhaltimenOttotehonTarkennettuLaskenta.h"
#include "ventilation/clsPuhallinSahkoLaskParametrit.h"

namespace {

using Parametrit = clsPuhallinSahkoLaskParametrit;

constexpr const char* kTeho = "### ##0.000";  // kW
constexpr const char* kEiArvoa = "---";

const Sidontataulu kSidonnat{
    "frmPuhaltimenOttotehonTarkennettuLaskenta",
    {
        Lukukentta<&Parametrit::Ilmavirta>("txtIlmavirta", "### ##0.0##"),
        Lukukentta<&Parametrit::PaineenKorotus>("txtPaineenKorotus", "### ##0.#"),
        Lukukentta<&Parametrit::PuhaltimenHyotysuhde>("txtPuhaltimenHyotysuhde", "0.0#"),
        Lukukentta<&Parametrit::HihnavalityksenHyotysuhde>("txtHihnavalityksenHyotysuhde", "0.0#"),
        Lukukentta<&Parametrit::MoottorinHyotysuhde>("txtMoottorinHyotysuhde", "0.0#"),
        Lukukentta<&Parametrit::TaajuusmuuttajanHyotysuhde>("txtTaajuusmuuttajanHyotysuhde", "0.0#"),
    }};

void NaytaOttoteho(const frmPuhaltimenOttotehonTarkennettuLaskenta& lomake, const Parametrit& parametrit) {
  const auto teho = LaskeHiljaa([&] { return parametrit.Ottoteho(); });
  lomake.txtOttoteho.Teksti(teho ? Muotoile(*teho, kTeho) : kEiArvoa);
}

}  // namespace

bool clsPuhallinSahkoLaskParametrit::NaytaKayttoliittyma(const std::string& puhallin, double koneenVirta) try {
  frmPuhaltimenOttotehonTarkennettuLaskenta lomake;
  lomake.KenttaMuuttui = [&] {
    kSidonnat.Kirjoita(lomake, *this);
    NaytaOttoteho(lomake, *this);
  };
  Muokkausistunto istunto(*this, lomake,
                          {.nimi = puhallin,
                           .lue =
                               [&] {
                                 if (Ilmavirta == 0) Ilmavirta = koneenVirta;
                                 kSidonnat.Lue(lomake, *this);
                                 NaytaOttoteho(lomake, *this);
                               },
                           .kirjoita = [&] { kSidonnat.Kirjoita(lomake, *this); }});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("clsPuhallinSahkoLaskParametrit:NaytaKayttoliittyma Method");
}
