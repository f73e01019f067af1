// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffi.h"

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

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&clsTariffi::Nimi>("Nimi"),
    Lukutulos<[](const clsTariffi& t) { return static_cast<double>(t.Tariffityyppi); }>(
        "Tariffityyppi", tekstit::kTariffinLaji, "", "0"),
    Lukutulos<&clsTariffi::Keskihinta>("Keskihinta", tekstit::kTariffinKeskihinta, "€/MWh"),
    Vuositulos<&clsTariffi::VuotuisetLoistehomaksut>("VuotuisetLoistehomaksut", tekstit::kLoistehomaksut, "€/a"),
    Vuositulos<&clsTariffi::VuotuisetPatotehomaksut>("VuotuisetPatotehomaksut", tekstit::kPatotehomaksut, "€/a"),
    Vuositulos<&clsTariffi::VuosimaksutYht>("VuosimaksutYht", tekstit::kVuosimaksut, "€/a"),
};

}  // namespace

const Luokka clsTariffi::kLuokka{"clsTariffi", kJasenet, kTulokset};

clsTariffi::clsTariffi() : Nimi(Teksti(tekstit::kUusiTariffi)) { TaydennaMaksut(); }

void clsTariffi::TaydennaMaksut() try {
  for (int i = 1; i <= kMaksuja; ++i)
    if (!Energiamaksut.Etsi(MaksunAvain(i)))
      Energiamaksut.Add(MaksunAvain(i)).Nimi = std::to_string(i) + " " + Teksti(tekstit::kEnergiamaksu);
} catch (...) {
  NostaVirhe("clsTariffi:TaydennaMaksut Method");
}

double clsTariffi::Keskihinta() const try { return Aarellinen(Energiamaksut.Keskihinta() + Energiavero); } catch (...) {
  NostaVirhe("clsTariffi:Keskihinta Method");
}

double clsTariffi::VuotuisetLoistehomaksut() const try {
  return Aarellinen(LoistehomaksunMaaraytymisperuste * Loistehomaksu);
} catch (...) {
  NostaVirhe("clsTariffi:VuotuisetLoistehomaksut Method");
}

double clsTariffi::VuotuisetPatotehomaksut() const try {
  return Aarellinen(TehomaksunMaaraytymisperuste * Tehomaksu);
} catch (...) {
  NostaVirhe("clsTariffi:VuotuisetPatotehomaksut Method");
}

double clsTariffi::VuosimaksutYht() const try {
  return Aarellinen(MuuMaksu + Perusmaksu + VuotuisetLoistehomaksut() + VuotuisetPatotehomaksut());
} catch (...) {
  NostaVirhe("clsTariffi:VuosimaksutYht Method");
}

Vuosilasku clsTariffi::Lasku(double energia) const try {
  return {.energia = Aarellinen(Energiamaksut.Keskihinta() * energia),
          .teho = VuotuisetPatotehomaksut(),
          .loisteho = VuotuisetLoistehomaksut(),
          .perus = Perusmaksu,
          .muu = MuuMaksu,
          .vero = Energiavero * energia};
} catch (...) {
  NostaVirhe("clsTariffi:Lasku Method");
}

std::optional<double> clsTariffi::LuokanVero(std::int16_t veroluokka) {
  switch (veroluokka) {
    case Luokka2:
      return Asetukset().dblSahkoVeroluokka2;
    case Luokka1:
      return Asetukset().dblSahkoVeroluokka1;
    default:
      return std::nullopt;
  }
}
