// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Lampoyhteenveto.h"

#include "building/clsRakennus.h"
#include "kernel/Tulos.h"
#include "tekstit/lomakkeet_yhteenveto.h"
#include "tekstit/tulokset.h"
#include "ui/Hiljaa.h"

namespace {

double Vedet(clsRakennus& r) { return r.VuotuisetLKVHaviot() + r.VuotuisetProsessiVesiHaviot(); }

double Laskettu(clsRakennus& r) {
  return r.VuotuinenLampoEnergianTarveTilat() + r.VuotuinenIVjalkilammitysLampo() + Vedet(r) + r.MuuLampo;
}

double Toteutunut(clsRakennus& r) {
  const Hiljaisuus hiljaisuus;
  return r.ToteutunutNormitettuLampo();
}

double Haviot(clsRakennus& r) { return r.VuotuisetSaatohaviot() + r.VuotuisetLammonKonversiohaviot(); }

constexpr Tulos kTulokset[] = {
    Vuositulos<&clsRakennus::VuotuinenLampoEnergianTarveTilat>("txtTilojenLammitys", tekstit::kTilojenLammitys),
    Vuositulos<&clsRakennus::VuotuinenIVjalkilammitysLampo>("txtIlmanvaihtokoneet", tekstit::kKoneidenJalkilammitys),
    Vuositulos<&clsRakennus::VuotuisetLKVHaviot>("txtKayttoVedenLammitys", tekstit::kKayttovedenLammitys),
    Vuositulos<&clsRakennus::VuotuisetProsessiVesiHaviot>("txtProsessiVedenLammitys", tekstit::kProsessivedenLammitys),
    Vuositulos<[](clsRakennus& r) { return Vedet(r); }>("txtVedenLammitysYht", tekstit::kVedenLammitysYhteensa),
    Vuositulos<&clsRakennus::MuuLampo>("txtMuuLampo", tekstit::kMuuLampoYhteensa),
    Vuositulos<[](clsRakennus& r) { return Laskettu(r); }>("txtYhteensa", tekstit::kLaskettuKulutus),
    Vuositulos<[](clsRakennus& r) { return Toteutunut(r); }>("txtToteutunutKulutus", tekstit::kMitattuNormitettu),
    Vuositulos<[](clsRakennus& r) { return Toteutunut(r) - Laskettu(r); }>("txtHaviot",
                                                                           tekstit::kMitattuVahennettynaLasketulla),
    Vuositulos<&clsRakennus::VuotuisetSaatohaviot>("txtSaatoHaviot", tekstit::kSaatohaviot),
    Vuositulos<&clsRakennus::VuotuisetLammonKonversiohaviot>("txtLammonTuotonHaviot", tekstit::kLammontuotannonHaviot),
    Vuositulos<[](clsRakennus& r) { return Haviot(r); }>("txtHaviotYhteensa", tekstit::kHaviotYhteensa),
};

}  // namespace

std::span<const Tulos> LampoyhteenvedonTulokset() noexcept { return kTulokset; }
