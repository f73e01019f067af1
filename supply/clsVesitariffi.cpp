// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsVesitariffi.h"

#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
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

}  // namespace

const Luokka clsVesitariffi::kLuokka{"clsVesitariffi", kJasenet};

clsVesitariffi::clsVesitariffi()
    : Nimi(Teksti(tekstit::kUusiTariffi)),
      ALV(Asetukset().dblVesiALV),
      MaksutSisaltavatALVn(Asetukset().KaytaKohtTulostuksissaALVHintoja) {
  Energiamaksut.Add("Maksu1").Kulutusosuus = 100.0;
  Energiamaksut.Add("Maksu2");
}
