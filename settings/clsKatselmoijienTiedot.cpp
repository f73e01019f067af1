// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsKatselmoijienTiedot.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsKatselmoijienTiedot::LVIKatselmoija>("LVIKatselmoija"),
    Lapsi<&clsKatselmoijienTiedot::SahkoKatselmoija>("SahkoKatselmoija"),
};

}  // namespace

const Luokka clsKatselmoijienTiedot::kLuokka{"clsKatselmoijienTiedot", kJasenet};

void clsKatselmoijienTiedot::HaeOletukset() {
  LVIKatselmoija.HaeOletukset(Avain::LVI0);
  SahkoKatselmoija.HaeOletukset(Avain::Sah0);
}
