// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsValittuToimenpide.h"

#include "kernel/Tulos.h"
#include "tekstit/tulokset.h"

namespace {

/// The figures are computed; those of a tariff's change are given when the row is made and stay.
constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Kopio<&clsValittuToimenpide::TiedotUpToDate>("TiedotUpToDate"),
    Kopio<&clsValittuToimenpide::SaastoPatoTeho>("SaastoPatoTeho", "kW"),
    Kopio<&clsValittuToimenpide::SaastoLoisTeho>("SaastoLoisTeho", "kVAr"),
    Kopio<&clsValittuToimenpide::SaastoLampoteho>("SaastoLampoteho", "kW"),
    Kopio<&clsValittuToimenpide::Investointi>("Investointi", "€"),
    Kopio<&clsValittuToimenpide::Takaisinmaksuaika>("Takaisinmaksuaika", "a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoYhteensa>("KustannusSaastoYhteensa", "€/a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoVesi>("KustannusSaastoVesi", "€/a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoSahkoLoisTeho>("KustannusSaastoSahkoLoisTeho", "€/a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoSahkoPatoTeho>("KustannusSaastoSahkoPatoTeho", "€/a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoSahkoEnergia>("KustannusSaastoSahkoEnergia", "€/a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoLampoTeho>("KustannusSaastoLampoTeho", "€/a"),
    Kopio<&clsValittuToimenpide::KustannusSaastoLampoEnergia>("KustannusSaastoLampoEnergia", "€/a"),
    Kopio<&clsValittuToimenpide::SaastoVedenKulutus>("SaastoVedenKulutus", "m³/a"),
    Kopio<&clsValittuToimenpide::SaastoSahkoEnergia>("SaastoSahkoEnergia", "MWh/a"),
    Kopio<&clsValittuToimenpide::SaastoLampoEnergia>("SaastoLampoEnergia", "MWh/a"),
    Arvo<&clsValittuToimenpide::Tyyppi>("Tyyppi"),
    Arvo<&clsValittuToimenpide::ToimenpidesKey>("ToimenpidesKey"),
    Arvo<&clsValittuToimenpide::JalkeensKey>("JalkeensKey"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsValittuToimenpide::Nimi>("Nimi"),
};

using Rivi = clsValittuToimenpide;

/// A figure of the row, which must have been computed.
template <double Rivi::*Suure>
constexpr Tulos Rivitulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko,
                          const char* kuvio = "### ##0.00") {
  return Lukutulos<[](const Rivi& r) { return r.Laskettu().*Suure; }>(nimi, teksti, yksikko, kuvio);
}

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<[](const Rivi& r) { return r.ToimenpidesKey.Teksti(); }>("ToimenpidesKey"),
    Lukutulos<&Rivi::Tyyppi>("Tyyppi", tekstit::kRivinLaji, "", "0"),
    Tekstitulos<&Rivi::Nimi>("Nimi"),
    Rivitulos<&Rivi::KustannusSaastoLampoEnergia>("KustannusSaastoLampoEnergia", tekstit::kLampoEnergianKustannussaasto,
                                                  "€/a"),
    Rivitulos<&Rivi::KustannusSaastoLampoTeho>("KustannusSaastoLampoTeho", tekstit::kLampotehonKustannussaasto, "€/a"),
    Rivitulos<&Rivi::KustannusSaastoSahkoEnergia>("KustannusSaastoSahkoEnergia", tekstit::kSahkoEnergianKustannussaasto,
                                                  "€/a"),
    Rivitulos<&Rivi::KustannusSaastoSahkoPatoTeho>("KustannusSaastoSahkoPatoTeho", tekstit::kSahkotehonKustannussaasto,
                                                   "€/a"),
    Rivitulos<&Rivi::KustannusSaastoSahkoLoisTeho>("KustannusSaastoSahkoLoisTeho", tekstit::kLoistehonKustannussaasto,
                                                   "€/a"),
    Rivitulos<&Rivi::KustannusSaastoVesi>("KustannusSaastoVesi", tekstit::kVedenKustannussaasto, "€/a"),
    Rivitulos<&Rivi::KustannusSaastoYhteensa>("KustannusSaastoYhteensa", tekstit::kKustannussaastoYhteensa, "€/a"),
    Rivitulos<&Rivi::Takaisinmaksuaika>("Takaisinmaksuaika", tekstit::kToimenpiteenTakaisinmaksuaika, "a", "### ##0.0"),
    Rivitulos<&Rivi::Investointi>("Investointi", tekstit::kToimenpiteenInvestointi, "€"),
    Rivitulos<&Rivi::SaastoLampoEnergia>("SaastoLampoEnergia", tekstit::kLampoEnergianSaasto, "MWh/a"),
    Rivitulos<&Rivi::SaastoSahkoEnergia>("SaastoSahkoEnergia", tekstit::kSahkoEnergianSaasto, "MWh/a"),
    Rivitulos<&Rivi::SaastoVedenKulutus>("SaastoVedenKulutus", tekstit::kVedenSaasto, "m³/a"),
    Rivitulos<&Rivi::SaastoLampoteho>("SaastoLampoteho", tekstit::kLampotehonSaasto, "kW"),
    Rivitulos<&Rivi::SaastoPatoTeho>("SaastoPatoTeho", tekstit::kSahkotehonSaasto, "kW"),
    Rivitulos<&Rivi::SaastoLoisTeho>("SaastoLoisTeho", tekstit::kLoistehonSaasto, "kVAr"),
};

}  // namespace

const Luokka clsValittuToimenpide::kLuokka{"clsValittuToimenpide", kJasenet, Luokka::Osallistuu::EiRekisteriin,
                                           kTulokset};

Kustannussaastot clsValittuToimenpide::Kustannussaasto() const noexcept {
  return {.lampoEnergia = KustannusSaastoLampoEnergia,
          .lampoTeho = KustannusSaastoLampoTeho,
          .sahkoEnergia = KustannusSaastoSahkoEnergia,
          .sahkoPatoTeho = KustannusSaastoSahkoPatoTeho,
          .sahkoLoisTeho = KustannusSaastoSahkoLoisTeho,
          .vesi = KustannusSaastoVesi};
}

void clsValittuToimenpide::AsetaKustannukset(const Kustannussaastot& saastot) noexcept {
  KustannusSaastoLampoEnergia = saastot.lampoEnergia;
  KustannusSaastoLampoTeho = saastot.lampoTeho;
  KustannusSaastoSahkoEnergia = saastot.sahkoEnergia;
  KustannusSaastoSahkoPatoTeho = saastot.sahkoPatoTeho;
  KustannusSaastoSahkoLoisTeho = saastot.sahkoLoisTeho;
  KustannusSaastoVesi = saastot.vesi;
}

const clsValittuToimenpide& clsValittuToimenpide::Laskettu() const {
  if (!TiedotUpToDate) throw std::logic_error("järjestelijän riviä ei ole laskettu: " + Nimi);
  return *this;
}
