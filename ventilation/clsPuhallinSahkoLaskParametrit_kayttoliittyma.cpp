// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a fan's detailed calculation.
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "ui/Hiljaa.h"
#include "ui/frmPuhaltimenOttotehonTarkennettuLaskenta.h"
#include "ventilation/clsPuhallinSahkoLaskParametrit.h"

namespace {

using Parametrit = clsPuhallinSahkoLaskParametrit;

constexpr const char* kTeho = "### ##0.000";  // kW
constexpr const char* kEiArvoa = "---";

/// In the order of the form's fields.
struct Lukukentta {
  double Parametrit::*luku;
  const char* kuvio;
};
constexpr Lukukentta kLukukentat[] = {
    {&Parametrit::Ilmavirta, "### ##0.0##"},     {&Parametrit::PaineenKorotus, "### ##0.#"},
    {&Parametrit::PuhaltimenHyotysuhde, "0.0#"}, {&Parametrit::HihnavalityksenHyotysuhde, "0.0#"},
    {&Parametrit::MoottorinHyotysuhde, "0.0#"},  {&Parametrit::TaajuusmuuttajanHyotysuhde, "0.0#"},
};

void NaytaOttoteho(const frmPuhaltimenOttotehonTarkennettuLaskenta& lomake, const Parametrit& luonnos) {
  const auto teho = LaskeHiljaa([&] { return luonnos.Ottoteho(); });
  lomake.txtOttoteho.Teksti(teho ? Muotoile(*teho, kTeho) : kEiArvoa);
}

}  // namespace

bool clsPuhallinSahkoLaskParametrit::NaytaKayttoliittyma(const std::string& puhallin, double koneenVirta) try {
  frmPuhaltimenOttotehonTarkennettuLaskenta lomake;
  Parametrit luonnos = *this;
  bool hyvaksytty = false;
  if (luonnos.Ilmavirta == 0) luonnos.Ilmavirta = koneenVirta;
  lomake.Otsikko(puhallin + ": " + lomake.Otsikko());
  lomake.KenttaMuuttui = [&](std::size_t i) {
    if (const auto luku = LueLuku(lomake.kentat[i].Teksti())) luonnos.*kLukukentat[i].luku = *luku;
    NaytaOttoteho(lomake, luonnos);
  };
  lomake.OkKlikattu = [&] {
    hyvaksytty = true;
    lomake.Sulje();
  };
  for (std::size_t i = 0; i < lomake.kentat.size(); ++i)
    lomake.kentat[i].Luku(luonnos.*kLukukentat[i].luku, kLukukentat[i].kuvio);
  NaytaOttoteho(lomake, luonnos);
  lomake.NaytaModaalisena();
  if (hyvaksytty) *this = luonnos;
  return hyvaksytty;
} catch (...) {
  NostaVirhe("clsPuhallinSahkoLaskParametrit:NaytaKayttoliittyma Method");
}
