// SPDX-License-Identifier: GPL-3.0-or-later
// Dialogs of life-cycle costs and environmental impact.
#include <algorithm>

#include "building/Muokkausistunto.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "lifecycle/Ekoprofiili.h"
#include "lifecycle/Elinkaariehdotukset.h"
#include "lifecycle/Kustannusmuokkaus.h"
#include "lifecycle/Vaikutusikkuna.h"
#include "lifecycle/clsElinkaari.h"
#include "tekstit/lomakkeet_elinkaari.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmKustannusLaskennanOletusarvot.h"

namespace {

using Oletuslomake = frmKustannusLaskennanOletusarvot;

/// A default and its field, by the group of its proposals.
struct Oletus {
  std::string_view ryhma;
  TextBox Oletuslomake::*kentta;
  double (*hae)(const clsElinkaari&);
  bool (*lue)(const TextBox&, clsElinkaari&);
  const char* kuvio;
};
template <auto Jasen>
constexpr Oletus Oletuskentta(std::string_view ryhma, TextBox Oletuslomake::*kentta, const char* kuvio) {
  return {ryhma, kentta, [](const clsElinkaari& e) { return static_cast<double>(e.*Jasen); },
          [](const TextBox& k, clsElinkaari& e) { return LueArvo(k, e.*Jasen); }, kuvio};
}
constexpr Oletus kOletukset[] = {
    Oletuskentta<&clsElinkaari::Pitoaika>("Pitoaika", &Oletuslomake::Text1, "0"),
    Oletuskentta<&clsElinkaari::Korkokanta>("Korkokanta", &Oletuslomake::Text2, "0.0#"),
    Oletuskentta<&clsElinkaari::LammonHinnannousu>("Lampo", &Oletuslomake::Text3, "0.0#"),
    Oletuskentta<&clsElinkaari::SahkonHinnannousu>("Sahko", &Oletuslomake::Text4, "0.0#"),
    Oletuskentta<&clsElinkaari::VedenHinnannousu>("Vesi", &Oletuslomake::Text5, "0.0#"),
};

void Nayta(const Oletuslomake& lomake, const clsElinkaari& elinkaari) {
  for (const Oletus& oletus : kOletukset)
    if (elinkaari.OletuksetAnnettu)
      (lomake.*oletus.kentta).Luku(oletus.hae(elinkaari), oletus.kuvio);
    else
      (lomake.*oletus.kentta).Teksti({});
}

/// All fields or none; with some missing, takes the person to the first of them and gives false.
bool Ota(const Oletuslomake& lomake, clsElinkaari& elinkaari) {
  const auto tyhja = [&](const Oletus& oletus) { return (lomake.*oletus.kentta).Teksti().empty(); };
  elinkaari.OletuksetAnnettu = !std::ranges::all_of(kOletukset, tyhja);
  if (!elinkaari.OletuksetAnnettu) return true;
  if (const auto puuttuva = std::ranges::find_if(kOletukset, tyhja); puuttuva != std::end(kOletukset)) {
    HylkaaKentta((lomake.*(puuttuva->kentta)).Kohde(), Teksti(tekstit::kOletusPuuttuu));
    return false;
  }
  for (const Oletus& oletus : kOletukset) oletus.lue(lomake.*oletus.kentta, elinkaari);
  return true;
}

void OtaEhdotus(const Oletuslomake& lomake) {
  const auto ehdotus = PoimiEhdotus(Ehdotuslaji::Oletusarvo);
  if (!ehdotus) return;
  for (const Oletus& oletus : kOletukset)
    if (ehdotus->Ryhma == oletus.ryhma) (lomake.*oletus.kentta).Luku(ehdotus->Arvo, oletus.kuvio);
}

}  // namespace

void clsElinkaari::NaytaOletusarvot() try {
  Oletuslomake lomake;
  lomake.EhdotuksetKlikattu = [&] { OtaEhdotus(lomake); };
  Muokkausistunto istunto(*this, lomake,
                          {.lue = [&] { Nayta(lomake, *this); }, .tarkista = [&] { return Ota(lomake, *this); }});
  istunto.Nayta();
} catch (...) {
  NostaVirhe("clsElinkaari:NaytaOletusarvot Method");
}

void clsElinkaari::NaytaKustannukset() try { Kustannusmuokkaus(koti_.Rakennus()).Nayta(); } catch (...) {
  NostaVirhe("clsElinkaari:NaytaKustannukset Method");
}

void clsElinkaari::NaytaYmparistovaikutukset() try { Vaikutusikkuna(koti_.Rakennus()).Nayta(); } catch (...) {
  NostaVirhe("clsElinkaari:NaytaYmparistovaikutukset Method");
}

void clsElinkaari::NaytaEkoprofiili() try { Ekoprofiili(koti_.Rakennus()).Nayta(); } catch (...) {
  NostaVirhe("clsElinkaari:NaytaEkoprofiili Method");
}
