// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsIVKone.h"

#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsIVKone::KoneenTunnus>("KoneenTunnus"),
    Arvo<&clsIVKone::TuloIlmavirta11Teho>("TuloIlmavirta11Teho", "m³/s"),
    Arvo<&clsIVKone::PoistoIlmavirta11Teho>("PoistoIlmavirta11Teho", "m³/s"),
    Arvo<&clsIVKone::SisaanpuhallusLampotila>("SisaanpuhallusLampotila", "°C"),
    Arvo<&clsIVKone::PoistoLampotila>("PoistoLampotila", "°C"),
    Arvo<&clsIVKone::IlmanLampeneminenPuhaltimessa>("IlmanLampeneminenPuhaltimessa", "K"),
    Arvo<&clsIVKone::LtoHyotysuhde>("LtoHyotysuhde", "%"),
    Arvo<&clsIVKone::TuloilmanLammitysSahkoPatterilla>("TuloilmanLammitysSahkoPatterilla"),
    Arvo<&clsIVKone::IVPeriaateID>("IVPeriaateID"),
    Arvo<&clsIVKone::IVPeriaate>("IVPeriaate"),
    Arvo<&clsIVKone::JarjestelmaTyyppiID>("JarjestelmaTyyppiID"),
    Arvo<&clsIVKone::JarjestelmaTyyppi>("JarjestelmaTyyppi"),
    Arvo<&clsIVKone::PuhaltimenSaatotapaID>("PuhaltimenSaatotapaID"),
    Arvo<&clsIVKone::PuhaltimenSaatotapa>("PuhaltimenSaatotapa"),
    Arvo<&clsIVKone::PuhaltimenVoimansiirtoTapaID>("PuhaltimenVoimansiirtoTapaID"),
    Arvo<&clsIVKone::PuhaltimenVoimansiirtoTapa>("PuhaltimenVoimansiirtoTapa"),
    Arvo<&clsIVKone::VakioPaineOsuusID>("VakioPaineOsuusID"),
    Arvo<&clsIVKone::VakioPaineOsuus>("VakioPaineOsuus"),
    Arvo<&clsIVKone::LiittyyTilaansKey>("LiittyyTilaansKey"),
};

constexpr int kUusiKoneTekstinro = 9129;

}  // namespace

const Luokka clsIVKone::kLuokka{"clsIVKone", kJasenet};

clsIVKone::clsIVKone() : KoneenTunnus(Teksti(kUusiKoneTekstinro)) {}
