// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergianHankinta.h"

#include <array>

#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsEnergianHankinta::Nimi>("Nimi"),
    Arvo<&clsEnergianHankinta::Kuvaus>("Kuvaus"),
    Arvo<&clsEnergianHankinta::Kayttotarkoitus>("Kayttotarkoitus"),
    Lapsi<&clsEnergianHankinta::Energiamuodot>("Energiamuodot"),
};

/// A figure of the forms together.
template <double (clsEnergiamuodot::*Hae)() const>
constexpr Tulos Yhteistulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  return Lukutulos<[](const clsEnergianHankinta& h) { return (h.Energiamuodot.*Hae)(); }>(nimi, teksti, yksikko);
}

constexpr Tulos kTulokset[] = {
    Yhteistulos<&clsEnergiamuodot::Keskihinta>("Keskihinta", tekstit::kHankinnanKeskihinta, "€/MWh"),
    Yhteistulos<&clsEnergiamuodot::Vuosimaksut>("Vuosimaksut", tekstit::kVuosimaksut, "€/a"),
    Yhteistulos<&clsEnergiamuodot::TehoKeskihinta>("TehoKeskihinta", tekstit::kTehonKeskihinta, "€/kW,a"),
    Yhteistulos<&clsEnergiamuodot::LoisTehoKeskihinta>("LoisTehoKeskihinta", tekstit::kLoistehonKeskihinta, "€/kVAr,a"),
    Yhteistulos<&clsEnergiamuodot::IlmastonLampeneminenCO2ekv>("IlmastonLampeneminenCO2ekv",
                                                               tekstit::kHankinnanPaastokerroin, "kg/MWh"),
    Kokoelmatulos<[](clsEnergianHankinta& h) -> clsEnergiamuodot& { return h.Energiamuodot; }>("Energiamuodot"),
};

constexpr std::array kUusiMuoto{tekstit::kUusiLampomuoto, tekstit::kUusiSahkomuoto, tekstit::kUusiVesimuoto};

}  // namespace

const Luokka clsEnergianHankinta::kLuokka{"clsEnergianHankinta", kJasenet, kTulokset};

clsEnergiamuoto& clsEnergianHankinta::LisaaMuoto() try {
  clsEnergiamuoto& muoto = Energiamuodot.Add(Tunniste::Uusi(clsEnergiamuoto::kLuokka.NimiSana()));
  muoto.Nimi = Teksti(kUusiMuoto.at(static_cast<std::size_t>(Kayttotarkoitus)));
  muoto.Tyyppi = Kayttotarkoitus;
  muoto.OnVakiokannasta = Kayttotarkoitus != Vesi;
  return muoto;
} catch (...) {
  NostaVirhe("clsEnergianHankinta:LisaaMuoto Method");
}
