// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsValittuToimenpide.h"

#include "kernel/Tulos.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsValittuToimenpide::TiedotUpToDate>("TiedotUpToDate"),
    Arvo<&clsValittuToimenpide::SaastoPatoTeho>("SaastoPatoTeho", "kW"),
    Arvo<&clsValittuToimenpide::SaastoLoisTeho>("SaastoLoisTeho", "kVAr"),
    Arvo<&clsValittuToimenpide::SaastoLampoteho>("SaastoLampoteho", "kW"),
    Arvo<&clsValittuToimenpide::Investointi>("Investointi", "€"),
    Arvo<&clsValittuToimenpide::Takaisinmaksuaika>("Takaisinmaksuaika", "a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoYhteensa>("KustannusSaastoYhteensa", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoVesi>("KustannusSaastoVesi", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoSahkoLoisTeho>("KustannusSaastoSahkoLoisTeho", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoSahkoPatoTeho>("KustannusSaastoSahkoPatoTeho", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoSahkoEnergia>("KustannusSaastoSahkoEnergia", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoLampoTeho>("KustannusSaastoLampoTeho", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoLampoEnergia>("KustannusSaastoLampoEnergia", "€/a"),
    Arvo<&clsValittuToimenpide::SaastoVedenKulutus>("SaastoVedenKulutus", "m³/a"),
    Arvo<&clsValittuToimenpide::SaastoSahkoEnergia>("SaastoSahkoEnergia", "MWh/a"),
    Arvo<&clsValittuToimenpide::SaastoLampoEnergia>("SaastoLampoEnergia", "MWh/a"),
    Arvo<&clsValittuToimenpide::Tyyppi>("Tyyppi"),
    Arvo<&clsValittuToimenpide::ToimenpidesKey>("ToimenpidesKey"),
    Arvo<&clsValittuToimenpide::JalkeensKey>("JalkeensKey"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsValittuToimenpide::Nimi>("Nimi"),
};

using Rivi = clsValittuToimenpide;

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<[](const Rivi& r) { return r.ToimenpidesKey.Teksti(); }>("ToimenpidesKey"),
    Lukutulos<&Rivi::Tyyppi>("Tyyppi", tekstit::kRivinLaji, "", "0"),
    Tekstitulos<&Rivi::Nimi>("Nimi"),
    Lukutulos<&Rivi::KustannusSaastoLampoEnergia>("KustannusSaastoLampoEnergia", tekstit::kLampoEnergianKustannussaasto,
                                                  "€/a"),
    Lukutulos<&Rivi::KustannusSaastoLampoTeho>("KustannusSaastoLampoTeho", tekstit::kLampotehonKustannussaasto, "€/a"),
    Lukutulos<&Rivi::KustannusSaastoSahkoEnergia>("KustannusSaastoSahkoEnergia", tekstit::kSahkoEnergianKustannussaasto,
                                                  "€/a"),
    Lukutulos<&Rivi::KustannusSaastoSahkoPatoTeho>("KustannusSaastoSahkoPatoTeho", tekstit::kSahkotehonKustannussaasto,
                                                   "€/a"),
    Lukutulos<&Rivi::KustannusSaastoSahkoLoisTeho>("KustannusSaastoSahkoLoisTeho", tekstit::kLoistehonKustannussaasto,
                                                   "€/a"),
    Lukutulos<&Rivi::KustannusSaastoVesi>("KustannusSaastoVesi", tekstit::kVedenKustannussaasto, "€/a"),
    Lukutulos<&Rivi::KustannusSaastoYhteensa>("KustannusSaastoYhteensa", tekstit::kKustannussaastoYhteensa, "€/a"),
    Lukutulos<&Rivi::Takaisinmaksuaika>("Takaisinmaksuaika", tekstit::kToimenpiteenTakaisinmaksuaika, "a", "### ##0.0"),
    Lukutulos<&Rivi::Investointi>("Investointi", tekstit::kToimenpiteenInvestointi, "€"),
    Lukutulos<&Rivi::SaastoLampoEnergia>("SaastoLampoEnergia", tekstit::kLampoEnergianSaasto, "MWh/a"),
    Lukutulos<&Rivi::SaastoSahkoEnergia>("SaastoSahkoEnergia", tekstit::kSahkoEnergianSaasto, "MWh/a"),
    Lukutulos<&Rivi::SaastoVedenKulutus>("SaastoVedenKulutus", tekstit::kVedenSaasto, "m³/a"),
    Lukutulos<&Rivi::SaastoLampoteho>("SaastoLampoteho", tekstit::kLampotehonSaasto, "kW"),
    Lukutulos<&Rivi::SaastoPatoTeho>("SaastoPatoTeho", tekstit::kSahkotehonSaasto, "kW"),
    Lukutulos<&Rivi::SaastoLoisTeho>("SaastoLoisTeho", tekstit::kLoistehonSaasto, "kVAr"),
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
