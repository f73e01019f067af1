// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpide.h"

#include "kernel/Paivamaara.h"
#include "settings/clsLumivirtaAsetukset.h"

namespace {

constexpr double kSallittuMuutos = 0.1;  // MWh/a or m³/a

/// The object before: stored with the measure when the measure owns it, else as a reference to the live object.
constexpr Jasen EnnenJasen() {
  Jasen j{"Ennen", Laji::Olio, {}};
  j.olio = [](Olio& o) -> Olio* { return static_cast<clsSaastotoimenpide&>(o).KelluvaEnnen.get(); };
  j.luo = [](Olio& o) -> Olio& {
    auto& toimenpide = static_cast<clsSaastotoimenpide&>(o);
    return toimenpide.KelluvaEnnen.Luo(toimenpide.MuuttuneetAttribuutit.TyypinNimi);
  };
  j.viittaus = true;
  return j;
}

}  // namespace

constexpr Jasen clsSaastotoimenpide::kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsSaastotoimenpide::MuuttuneetAttribuutit>("MuuttuneetAttribuutit"),
    Ominaisuus<clsSaastotoimenpide, [](const clsSaastotoimenpide& o) { return o.LampoEnergiaEnnen(); },
               [](clsSaastotoimenpide& o, double arvo) { o.LampoEnergiaEnnen(arvo); },
               &clsSaastotoimenpide::lampoEnnen_>("LampoEnergiaEnnen", "MWh/a"),
    Arvo<&clsSaastotoimenpide::LampoEnergiaJalkeen>("LampoEnergiaJalkeen", "MWh/a"),
    Ominaisuus<clsSaastotoimenpide, [](const clsSaastotoimenpide& o) { return o.SahkoEnergiaEnnen(); },
               [](clsSaastotoimenpide& o, double arvo) { o.SahkoEnergiaEnnen(arvo); },
               &clsSaastotoimenpide::sahkoEnnen_>("SahkoEnergiaEnnen", "MWh/a"),
    Arvo<&clsSaastotoimenpide::SahkoEnergiaJalkeen>("SahkoEnergiaJalkeen", "MWh/a"),
    Ominaisuus<clsSaastotoimenpide, [](const clsSaastotoimenpide& o) { return o.VedenkulutusEnnen(); },
               [](clsSaastotoimenpide& o, double arvo) { o.VedenkulutusEnnen(arvo); },
               &clsSaastotoimenpide::vesiEnnen_>("VedenkulutusEnnen", "m³/a"),
    Arvo<&clsSaastotoimenpide::VedenkulutusJalkeen>("VedenkulutusJalkeen", "m³/a"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsSaastotoimenpide::JalkeenTiedotUpToDate>("JalkeenTiedotUpToDate"),
    Arvo<&clsSaastotoimenpide::EnnenTiedotUpToDate>("EnnenTiedotUpToDate"),
    Arvo<&clsSaastotoimenpide::SahkoLoisTehoHinta>("SahkoLoisTehoHinta", "€/kVAr"),
    Arvo<&clsSaastotoimenpide::SahkoPatoTehoHinta>("SahkoPatoTehoHinta", "€/kW"),
    Arvo<&clsSaastotoimenpide::LampoTehoHinta>("LampoTehoHinta", "€/kW"),
    Arvo<&clsSaastotoimenpide::VesiHinta>("VesiHinta", "€/m³"),
    Arvo<&clsSaastotoimenpide::SahkoEnergiaHinta>("SahkoEnergiaHinta", "€/MWh"),
    Arvo<&clsSaastotoimenpide::LampoEnergiaHinta>("LampoEnergiaHinta", "€/MWh"),
    Arvo<&clsSaastotoimenpide::SaastoLoisTeho>("SaastoLoisTeho", "kVAr"),
    Arvo<&clsSaastotoimenpide::SaastoPatoTeho>("SaastoPatoTeho", "kW"),
    Arvo<&clsSaastotoimenpide::SaastoLampoteho>("SaastoLampoteho", "kW"),
    Arvo<&clsSaastotoimenpide::Investointi>("Investointi", "€"),
    Arvo<&clsSaastotoimenpide::Kuvaus>("Kuvaus"),
    Arvo<&clsSaastotoimenpide::Nimi>("Nimi"),
    Arvo<&clsSaastotoimenpide::ToimenpiteenPaivays>("ToimenpiteenPaivays"),
    Arvo<&clsSaastotoimenpide::ToimenpiteenTekijanNimi>("ToimenpiteenTekijanNimi"),
    EnnenJasen(),
};

const Luokka clsSaastotoimenpide::kLuokka{"clsSaastotoimenpide", kJasenet, Luokka::Osallistuu::EiRekisteriin};

clsSaastotoimenpide::clsSaastotoimenpide()
    : ToimenpiteenPaivays(TamaPaiva()),
      ToimenpiteenTekijanNimi("In Excel: '" + Asetukset().strCurrentUserRealName + "', In login: '" +
                              Asetukset().strCurrentUserName + "'") {}

void clsSaastotoimenpide::AsetaEnnen(double& tieto, double arvo) noexcept {
  if (arvo < tieto - kSallittuMuutos || arvo > tieto + kSallittuMuutos)
    EnnenTiedotUpToDate = JalkeenTiedotUpToDate = false;
  tieto = arvo;
}
