// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsVesitariffi.h"

#include "kernel/Laskenta.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsVesitariffi::Nimi>("Nimi"),
    Arvo<&clsVesitariffi::ALV>("ALV", "%"),
    Arvo<&clsVesitariffi::MaksutSisaltavatALVn>("MaksutSisaltavatALVn"),
    Arvo<&clsVesitariffi::Perusmaksu>("Perusmaksu", "€/a"),
    Arvo<&clsVesitariffi::MuuMaksu>("MuuMaksu", "€/a"),
    Arvo<&clsVesitariffi::Vesivirtamaksu>("Vesivirtamaksu"),
    Arvo<&clsVesitariffi::VesivirtamaksunMaaraytymisperuste>("VesivirtamaksunMaaraytymisperuste"),
    Arvo<&clsVesitariffi::VesiVero>("VesiVero"),
    Arvo<&clsVesitariffi::VesiveroStr>("VesiveroStr"),
    Arvo<&clsVesitariffi::VesiveroID>("VesiveroID"),
    Lapsi<&clsVesitariffi::Energiamaksut>("Energiamaksut"),
};

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&clsVesitariffi::Nimi>("Nimi"),
    Lukutulos<&clsVesitariffi::Keskihinta>("Keskihinta", tekstit::kTariffinKeskihinta, "€/m³"),
    Vuositulos<&clsVesitariffi::VuosimaksutYht>("VuosimaksutYht", tekstit::kVuosimaksut, "€/a"),
};

}  // namespace

const Luokka clsVesitariffi::kLuokka{"clsVesitariffi", kJasenet, kTulokset};

clsVesitariffi::clsVesitariffi()
    : Nimi(Teksti(tekstit::kUusiTariffi)),
      ALV(Asetukset().dblVesiALV),
      MaksutSisaltavatALVn(Asetukset().KaytaKohtTulostuksissaALVHintoja) {
  TaydennaMaksut();
}

void clsVesitariffi::TaydennaMaksut() try {
  if (!Energiamaksut.Etsi("Maksu1")) Energiamaksut.Add("Maksu1").Kulutusosuus = 100.0;
  if (!Energiamaksut.Etsi("Maksu2")) Energiamaksut.Add("Maksu2");
} catch (...) {
  NostaVirhe("clsVesitariffi:TaydennaMaksut Method");
}

double clsVesitariffi::Keskihinta() const try { return Aarellinen(Energiamaksut.Keskihinta()); } catch (...) {
  NostaVirhe("clsVesitariffi:Keskihinta Method");
}

double clsVesitariffi::VuosimaksutYht() const try {
  return Aarellinen(MuuMaksu + Perusmaksu + VesivirtamaksunMaaraytymisperuste * Vesivirtamaksu);
} catch (...) {
  NostaVirhe("clsVesitariffi:VuosimaksutYht Method");
}

Vuosilasku clsVesitariffi::Lasku(double vesi) const try {
  return {.energia = Aarellinen(Keskihinta() * vesi), .perus = Perusmaksu, .muu = VuosimaksutYht() - Perusmaksu};
} catch (...) {
  NostaVirhe("clsVesitariffi:Lasku Method");
}
