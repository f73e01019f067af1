// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a space.
#include "building/Muokkausistunto.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "ui/Sidonta.h"
#include "ui/frmTila.h"

namespace {

constexpr const char* kKayttotunnitKuvio = "### ##0.##";
constexpr const char* kHyotysuhdeKuvio = "0.0#";

const Sidontataulu kSidonnat{
    "frmTila",
    {
        Tekstikentta<&clsTila::TilanNimi>("txtTilanNimi"),
        Tekstikentta<&clsTila::Kuvausteksti>("txtKuvausteksti"),
        Lukukentta<&clsTila::Kokonaistilavuus>("txtKokonaistilavuus", "### ##0.##"),
        Lukukentta<&clsTila::BruttoAla>("txtBruttoAla", "### ##0.##"),
        Lukukentta<&clsTila::TilanHenkilomaara>("txtTilanHenkilomaara", "### ##0.##"),
        Lukukentta<&clsTila::Sisalampotila>("txtSisalampotila", "0.0#"),
        Rastikentta<&clsTila::LammitettyTila>("chkLammitettyTila"),
        Rastikentta<&clsTila::Sahkolammitys>("chkSahkolammitys"),
        Valintakentta<&clsTila::TilanKayttoaikaID, &clsTila::TilanKayttoaikaStr>("cmbTilanKayttoaika"),
        Lukukentta<&clsTila::TilanKayttoaikaHpA>("txtTilanKayttoaikaHpA", kKayttotunnitKuvio),
        Rastikentta<&clsTila::PainovoimainenIlmanvaihto>("chkPainovoimainenIlmanvaihto"),
        Lukukentta<&clsTila::PainovoimainenIVMaara>("txtPainovoimainenIVMaara", "0.00#"),
        Lukukentta<&clsTila::Vuotoilmanvaihto>("txtVuotoilmanvaihto", "0.00#"),
        Valintakentta<&clsTila::SaatotapaID, &clsTila::SaatotapaStr>("cmbSaatotapa"),
        Lukukentta<&clsTila::Saatohyotysuhde>("txtSaatohyotysuhde", kHyotysuhdeKuvio),
    }};

/// What each choice sets; the last row, "other", can be changed by hand.
constexpr std::array<double, 5> kKayttotunnit{2200, 4400, 6240, 8760, 8760};  // h/a
constexpr std::array<double, 6> kSaatohyotysuhteet{85, 80, 60, 40, 20, 80};   // %; building code D5

}  // namespace

bool clsTila::NaytaKayttoliittyma() try {
  frmTila lomake;
  lomake.KayttoaikaValittu = [&](int rivi) {
    lomake.txtTilanKayttoaikaHpA.Luku(kKayttotunnit.at(static_cast<std::size_t>(rivi)), kKayttotunnitKuvio);
  };
  lomake.SaatotapaValittu = [&](int rivi) {
    lomake.txtSaatohyotysuhde.Luku(kSaatohyotysuhteet.at(static_cast<std::size_t>(rivi)), kHyotysuhdeKuvio);
  };
  lomake.RakenteetKlikattu = [&] {
    Rakenteet.NaytaKayttoliityma(lomake.txtTilanNimi.Teksti(),
                                 LueLuku(lomake.txtSisalampotila.Teksti()).value_or(Sisalampotila));
  };
  Muokkausistunto istunto(*this, lomake,
                          {.nimi = TilanNimi,
                           .elava = OnElavassaMallissa(),
                           .lue =
                               [&] {
                                 kSidonnat.Lue(lomake, *this);
                                 lomake.PaivitaKentat();
                               },
                           .kirjoita = [&] { kSidonnat.Kirjoita(lomake, *this); },
                           .voimaan =
                               [&] {
                                 JohtumishaviotUpToDate(false);
                                 IVHaviotTilassaUpToDate(false);
                                 AurKuormatTilassaUpToDate(false);
                               },
                           .tapahtuma = DataMuuttui.arvo});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("clsTila:NaytaKayttoliittyma Method");
}

void clsTila::EditoiRakenteita() try { Rakenteet.NaytaKayttoliityma(TilanNimi, Sisalampotila); } catch (...) {
  NostaVirhe("clsTila:EditoiRakenteita Method");
}

/// False for a space that a saving measure owns: the building didn't change with it.
bool clsTila::OnElavassaMallissa() const { return VaadiRakennus().Tilat.Etsi(sKey) == this; }
