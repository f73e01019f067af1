// SPDX-License-Identifier: GPL-3.0-or-later
// The calculator's dialog.
#include "building/Muokkausistunto.h"
#include "kernel/Virhe.h"
#include "ui/Sidonta.h"
#include "ui/frmLTOhyotylaskenta.h"
#include "ventilation/clsLto.h"

namespace {

constexpr double kProsenttia = 100;

const Sidontataulu kSidonnat{"frmLTOhyotylaskenta",
                             {
                                 Lukukentta<&clsLto::Tu>("txtTu", "0.0#"),
                                 Lukukentta<&clsLto::Tp>("txtTp", "0.0#"),
                                 Lukukentta<&clsLto::Tlto>("txtTlto", "0.0#"),
                             }};

}  // namespace

bool clsLto::NaytaKayttoliittyma() try {
  frmLTOhyotylaskenta lomake;
  const auto nayta = [&] { lomake.txtLtoHyotysuhde.Luku(LtoHyotysuhde(Tp) * kProsenttia, "0.0"); };
  lomake.DataMuuttui = [&] {
    kSidonnat.Kirjoita(lomake, *this);
    nayta();
  };
  Muokkausistunto istunto(*this, lomake,
                          {.lue =
                               [&] {
                                 kSidonnat.Lue(lomake, *this);
                                 nayta();
                               },
                           .kirjoita = [&] { kSidonnat.Kirjoita(lomake, *this); },
                           .tapahtuma = [&] { Nosta(LtoHyotysuhdeMuuttui.arvo, LtoHyotysuhde(Tp) * kProsenttia); }});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("clsLto:NaytaKayttoliittyma Method");
}
