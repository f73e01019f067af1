// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsSahkoTariffienVertailu.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Tulos.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsSahkoTariffienVertailu::TotEnergia>("TotEnergia", "MWh/a"),
    Arvo<&clsSahkoTariffienVertailu::TotHuippuTeho>("TotHuippuTeho", "kW"),
    Arvo<&clsSahkoTariffienVertailu::TotLoisteho>("TotLoisteho", "kVAr"),
    Arvo<&clsSahkoTariffienVertailu::BruttoAla>("BruttoAla", "m²"),
    Arvo<&clsSahkoTariffienVertailu::KaytaVertailussaALVHintoja>("KaytaVertailussaALVHintoja"),
    Lapsi<&clsSahkoTariffienVertailu::Tapaukset>("Tapaukset"),
};

using Vertailu = clsSahkoTariffienVertailu;

double Ala(const Tuloskohde& kohde) { return kohde.Omistaja<clsRakennus>().Perustiedot.BruttoAla; }
const clsTariffit& Tariffit(const Tuloskohde& kohde) { return kohde.Omistaja<clsRakennus>().Tariffit; }

constexpr Tulos kTulokset[] = {
    Lukutulos<[](const Vertailu& v, const Tuloskohde& k) { return v.OmSahkoEnergia(Ala(k)); }>(
        "OmSahkoEnergia", tekstit::kVertailunOminaisenergia, "kWh/m²,a"),
    Lukutulos<[](const Vertailu& v, const Tuloskohde& k) { return v.OmSahkoTeho(Ala(k)); }>(
        "OmSahkoTeho", tekstit::kVertailunOminaisteho, "W/m²"),
    Tekstitulos<[](const Vertailu& v, const Tuloskohde& k) {
      return v.Tapaukset.HalvinTariffisKey(Tariffit(k)).Teksti();
    }>("HalvinTariffisKey"),
    Tekstitulos<[](const Vertailu& v, const Tuloskohde& k) {
      return v.Tapaukset.KalleinTariffisKey(Tariffit(k)).Teksti();
    }>("KalleinTariffisKey"),
    Kokoelmatulos<&Vertailu::Tapaukset>("Tapaukset"),
};

}  // namespace

const Luokka clsSahkoTariffienVertailu::kLuokka{"clsSahkoTariffienVertailu", kJasenet, kTulokset};

clsSahkoTariffienVertailu::clsSahkoTariffienVertailu()
    : KaytaVertailussaALVHintoja(Asetukset().KaytaKohtTulostuksissaALVHintoja) {}

clsTariffiVertailuTapaus clsSahkoTariffienVertailu::Tapaus(const Tunniste& myynti, const Tunniste& siirto) const {
  clsTariffiVertailuTapaus tapaus;
  tapaus.MyyntiTariffiSkey = myynti;
  tapaus.SiirtoTariffiSkey = siirto;
  tapaus.TotEnergia = TotEnergia;
  tapaus.TotHuippuTeho = TotHuippuTeho;
  tapaus.TotLoisteho = TotLoisteho;
  return tapaus;
}

double clsSahkoTariffienVertailu::NayttoKerroin() const {
  return Tariffikerroin(Asetukset().dblSahkoALV, KaytaVertailussaALVHintoja);
}
