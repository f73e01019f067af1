// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergianHankinta.h"

#include <array>

#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "supply/Energiamuotokanta.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

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

/// The version of the standard fuel database; 0 when it can't be read, which is told where it is needed.
std::int32_t VakiokannanVersio() {
  try {
    return Energiamuotokanta(Energiamuotokanta::Laji::Vakio).Versio();
  } catch (const Virhe&) {
    return 0;
  }
}

}  // namespace

const Luokka clsEnergianHankinta::kLuokka{"clsEnergianHankinta", kJasenet, kTulokset};

clsEnergiamuoto& clsEnergianHankinta::LisaaMuoto() try {
  clsEnergiamuoto& muoto = Energiamuodot.Add(Tunniste::Uusi(clsEnergiamuoto::kLuokka.NimiSana()));
  AlustaMuoto(muoto);
  return muoto;
} catch (...) {
  NostaVirhe("clsEnergianHankinta:LisaaMuoto Method");
}

void clsEnergianHankinta::AlustaMuoto(clsEnergiamuoto& muoto) const {
  muoto.Nimi = Teksti(kUusiMuoto.at(static_cast<std::size_t>(Kayttotarkoitus)));
  muoto.Tyyppi = Kayttotarkoitus;
  muoto.OnVakiokannasta = Kayttotarkoitus != Vesi;
  if (muoto.OnVakiokannasta) muoto.EnergiaMuotokannanVersio = VakiokannanVersio();
}

std::vector<clsEnergiamuoto*> clsEnergianHankinta::VakiokannanMuodot() const {
  std::vector<clsEnergiamuoto*> muodot;
  for (clsEnergiamuoto& muoto : Energiamuodot) {
    if (muoto.Tyyppi == Vesi) break;
    if (muoto.OnVakiokannasta && muoto.IdEmuotoKannassa != 0) muodot.push_back(&muoto);
  }
  return muodot;
}

std::vector<std::string> clsEnergianHankinta::PaivitaEMuodotVakiokannasta(Energiamuotokanta& kanta) try {
  std::vector<std::string> puuttuvat;
  const auto muodot = VakiokannanMuodot();
  if (muodot.empty()) return puuttuvat;
  const std::int32_t versio = kanta.Versio();
  if (versio == -1) Ilmoita(Teksti(tekstit::kMuotojenVersioLukematta), Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  for (clsEnergiamuoto* muoto : muodot) {
    if (const auto rivi = kanta.Hae(muoto->IdEmuotoKannassa))
      muoto->Paivita(kanta.Muoto(*rivi));
    else
      puuttuvat.push_back(muoto->Nimi);
    if (versio != -1) muoto->EnergiaMuotokannanVersio = versio;
  }
  return puuttuvat;
} catch (...) {
  NostaVirhe("clsEnergianHankinta:PaivitaEMuodotVakiokannasta Method");
}
