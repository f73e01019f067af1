// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a water consumer group.
#include "building/Muokkausistunto.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_kulutusryhma.h"
#include "tekstit/lomakkeet_tilat.h"
#include "ui/Hiljaa.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmTarkennettuVesiLaskenta.h"

namespace {

using Ryhma = clsVedenKulutusryhma;

constexpr const char* kAluksi = "##0.00";
constexpr const char* kMuutettuna = "### ##0.00";
constexpr const char* kLampotila = "0.0";
constexpr const char* kOsuus = "0";

const Sidontataulu kSidonnat{
    "frmTarkennettuVesiLaskenta",
    {
        Tekstikentta<&Ryhma::KulutusRyhma>("txtKulutusRyhmanNimi"),
        Valintakentta<&Ryhma::LaskentaperusteID, &Ryhma::LaskentaperusteStr>("cmbLaskentaOminaissuure"),
        Lukukentta<&Ryhma::LaskentaperusteNumber>("txtOminaissuureidenMaara", "0.0#####"),
        Lukukentta<&Ryhma::Laskentayksikko>("txtLaskentaYksikoidenMaara", "0.0#"),
        Tekstikentta<&Ryhma::LaskentayksikonTeksti>("txtLaskentayksikko2"),
        Lukukentta<&Ryhma::KayttokuvausKertaaD>("txtKayttomaaraTunnitVrk_ssa", "0.0"),
        Lukukentta<&Ryhma::KayttokuvausDpA>("txtKayttomaaraVrktVuodessa", "0"),
        Lukukentta<&Ryhma::Tasauskerroin>("txtTasauskerroin", "0.00"),
        Lukukentta<&Ryhma::VedenKayttolampotila>("txtVedenKayttoLampotila", kLampotila),
        Lukukentta<&Ryhma::LampimanVedenOsuus>("txtLampimanVedenOsuus", "0.0"),
    }};

/// Takes what the person has written and shows what comes of it.
void Laske(const frmTarkennettuVesiLaskenta& lomake, Ryhma& ryhma, const char* kuvio = kMuutettuna) {
  kSidonnat.Kirjoita(lomake, ryhma);
  std::optional<double> kulutus, lampo;
  if (lomake.TekijatLuettavissa()) {
    kulutus = LaskeHiljaa([&] { return ryhma.VedenKulutus(); });
    if (LueLuku(lomake.txtVedenKayttoLampotila.Teksti()))
      lampo = LaskeHiljaa([&] { return ryhma.VedenLammityksenEnergia(); });
  }
  lomake.lblMuuntokerroin.Otsikko(Muotoile(ryhma.Muuntokerroin(), "0.####"));
  lomake.NaytaTulos(lomake.txtKulutus, kulutus, kuvio);
  lomake.NaytaTulos(lomake.txtVedenLammittamisenEnergia, lampo, kuvio);
}

/// Fills with the number that is shown: what the other field tells is a rounded figure also in the model.
void NaytaPyoristettyna(const TextBox& kentta, double arvo, const char* kuvio) {
  const std::string teksti = Muotoile(arvo, kuvio);
  kentta.Kohde().Teksti(teksti, LueLuku(teksti));
}

std::string Lampotilat(const clsVedenTiedot& vesi) {
  const auto celsiusta = [](double t) { return " " + Muotoile(t, kLampotila) + " " + Teksti(tekstit::kCelsiusaste); };
  return Teksti(tekstit::kRyhmanKylmaVesi) + celsiusta(vesi.KylmanLampotila) + ", " +
         Teksti(tekstit::kRyhmanLamminVesi) + celsiusta(vesi.LamminLampotila);
}

/// False for a group that a saving measure owns: the building didn't change with it.
bool OnElavassaMallissa(const Ryhma& ryhma) { return VaadiRakennus().VedenKulutusryhmat.Etsi(ryhma.sKey) == &ryhma; }

}  // namespace

bool clsVedenKulutusryhma::NaytaKayttoliittyma() try {
  frmTarkennettuVesiLaskenta lomake;
  lomake.LaskentaMuuttui = [&] { Laske(lomake, *this); };
  lomake.LampotilaMuuttui = [&](double lampotila) {
    NaytaPyoristettyna(lomake.txtLampimanVedenOsuus, VedenTiedot.LampimanOsuus(lampotila), kOsuus);
  };
  lomake.OsuusMuuttui = [&](double osuus) {
    NaytaPyoristettyna(lomake.txtVedenKayttoLampotila, VedenTiedot.Kayttolampotila(osuus), kLampotila);
  };
  Muokkausistunto istunto(*this, lomake,
                          {.nimi = KulutusRyhma,
                           .elava = OnElavassaMallissa(*this),
                           .lue =
                               [&] {
                                 kSidonnat.Lue(lomake, *this);
                                 lomake.lblVedenTiedot.Otsikko(Lampotilat(VedenTiedot));
                                 lomake.Taytetty();
                                 Laske(lomake, *this, kAluksi);
                               },
                           .kirjoita = [&] { kSidonnat.Kirjoita(lomake, *this); },
                           .tarkista = [&] { return lomake.TunnitKelpaavat(); },
                           .tapahtuma = DataMuuttui.arvo});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("clsVedenKulutusryhma:NaytaKayttoliittyma Method");
}
