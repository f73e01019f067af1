// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsIVKoneet.h"

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

constexpr Tulos kTulokset[] = {
    Vuositulos<&clsIVKoneet::VuotuinenPuhallinSahko>("VuotuinenPuhallinSahko", tekstit::kPuhaltimienSahko),
    Lukutulos<&clsIVKoneet::Tuloilmavirtojen11Summa>("Tuloilmavirtojen11Summa", tekstit::kTuloilmavirtojenSumma, "m³/s",
                                                     "### ##0.00#"),
    Lukutulos<&clsIVKoneet::Poistoilmavirtojen11Summa>("Poistoilmavirtojen11Summa", tekstit::kPoistoilmavirtojenSumma,
                                                       "m³/s", "### ##0.00#"),
    Lukutulos<&clsIVKoneet::LammitystehonTarve>("LammitystehonTarve", tekstit::kLammitystehonTarve, "kW"),
};

}  // namespace

const Luokka clsIVKoneet::kLuokka{"clsIVKoneet", kJasenet, kTulokset};

double clsIVKoneet::VuotuinenIVjalkilammitysLampo() try {
  if (VuotuinenIVjalkilammitysLampoUpToDate) return jalkilammitys_.arvo;
  double summa = 0;
  for (const clsIVKone& kone : *this) summa += kone.VuotuinenIVjalkilammitysLampo();
  return jalkilammitys_.arvo = Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsIVKoneet:VuotuinenIVjalkilammitysLampo Method");
}

double clsIVKoneet::VuotuinenPatteriSahko() const try {
  double summa = 0;
  for (const clsIVKone& kone : *this)
    if (kone.TuloilmanLammitysSahkoPatterilla) summa += kone.VuotuinenIVjalkilammitysLampo();
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsIVKoneet:VuotuinenPatteriSahko Method");
}

double clsIVKoneet::Tuloilmavirtojen11Summa() const try {
  double summa = 0;
  for (const clsIVKone& kone : *this)
    if (kone.OnTulopuhallin()) summa += kone.TuloIlmavirta11Teho;
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsIVKoneet:Tuloilmavirtojen11Summa Method");
}

double clsIVKoneet::Poistoilmavirtojen11Summa() const try {
  double summa = 0;
  for (const clsIVKone& kone : *this)
    if (kone.OnPoistopuhallin()) summa += kone.PoistoIlmavirta11Teho;
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsIVKoneet:Poistoilmavirtojen11Summa Method");
}

double clsIVKoneet::VuotuinenPuhallinSahko() const try {
  double summa = 0;
  for (const clsIVKone& kone : *this) summa += kone.VuotuinenPuhallinSahko();
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsIVKoneet:VuotuinenPuhallinSahko Method");
}

std::vector<clsIVKone*> clsIVKoneet::ListaaTilaanLiittyvatIVKoneet(const Tunniste& tila) const try {
  std::vector<clsIVKone*> liittyvat;
  for (clsIVKone& kone : *this)
    if (!tila.Tyhja() && kone.LiittyyTilaansKey == tila) liittyvat.push_back(&kone);
  return liittyvat;
} catch (...) {
  NostaVirhe("clsIVKoneet:ListaaTilaanLiittyvatIVKoneet Method");
}

KoneetTiloittain clsIVKoneet::ListaaTiloittain() const try {
  KoneetTiloittain koneet;
  for (clsIVKone& kone : *this)
    if (!kone.LiittyyTilaansKey.Tyhja()) koneet[kone.LiittyyTilaansKey].push_back(&kone);
  return koneet;
} catch (...) {
  NostaVirhe("clsIVKoneet:ListaaTiloittain Method");
}

std::vector<clsIVKone*> clsIVKoneet::ListaaTilaanLiittymattomatIVKoneet() const try {
  std::vector<clsIVKone*> liittymattomat;
  const clsTilat& tilat = Rakennus().Tilat;
  for (clsIVKone& kone : *this)
    if (!tilat.Etsi(kone.LiittyyTilaansKey)) liittymattomat.push_back(&kone);
  return liittymattomat;
} catch (...) {
  NostaVirhe("clsIVKoneet:ListaaTilaanLiittymattomatIVKoneet Method");
}
