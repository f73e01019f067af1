// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffi.h"

#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsTariffi::Nimi>("Nimi"),
    Arvo<&clsTariffi::Tariffityyppi>("Tariffityyppi"),
    Arvo<&clsTariffi::ALV>("ALV", "%"),
    Arvo<&clsTariffi::MaksutSisaltavatALVn>("MaksutSisaltavatALVn"),
    Arvo<&clsTariffi::Perusmaksu>("Perusmaksu", "€/a"),
    Arvo<&clsTariffi::Tehomaksu>("Tehomaksu", "€/kW,a"),
    Arvo<&clsTariffi::TehomaksunMaaraytymisperuste>("TehomaksunMaaraytymisperuste", "kW"),
    Arvo<&clsTariffi::Loistehomaksu>("Loistehomaksu", "€/kVAr,a"),
    Arvo<&clsTariffi::LoistehomaksunMaaraytymisperuste>("LoistehomaksunMaaraytymisperuste", "kVAr"),
    Arvo<&clsTariffi::Energiavero>("Energiavero", "€/MWh"),
    Arvo<&clsTariffi::EnergiaveroID>("EnergiaveroID"),
    Arvo<&clsTariffi::EnergiaveroStr>("EnergiaveroStr"),
    Arvo<&clsTariffi::MuuMaksu>("MuuMaksu", "€/a"),
    Lapsi<&clsTariffi::Energiamaksut>("Energiamaksut"),
};

constexpr int kMaksuja = 6;

}  // namespace

const Luokka clsTariffi::kLuokka{"clsTariffi", kJasenet};

clsTariffi::clsTariffi() : Nimi(Teksti(tekstit::kUusiTariffi)) {
  for (int i = 1; i <= kMaksuja; ++i)
    Energiamaksut.Add("EnergiaMaksu" + std::to_string(i)).Nimi =
        std::to_string(i) + " " + Teksti(tekstit::kEnergiamaksu);
}
