// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsPerustiedot.h"

#include "kernel/Paivamaara.h"
#include "kernel/Tulos.h"

namespace {

/// Degree days of the localities' normal years, Hanko to Vaasa, K·d.
constexpr std::array<double, 16> kLammitystarveluvut{4098, 4366, 6448, 5230, 5053, 5523, 5068, 4629,
                                                     4734, 4036, 5291, 4400, 6434, 4719, 4255, 4730};

constexpr Tulos kTulokset[] = {
    Osatulos<&clsPerustiedot::LammonHankinta>("LammonHankinta"),
    Osatulos<&clsPerustiedot::SahkonHankinta>("SahkonHankinta"),
    Osatulos<&clsPerustiedot::VedenHankinta>("VedenHankinta"),
};

}  // namespace

constexpr Jasen clsPerustiedot::kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsPerustiedot::KohteenNimi>("KohteenNimi"),
    Arvo<&clsPerustiedot::Pvm>("Pvm"),
    Arvo<&clsPerustiedot::Kayttotarkoitus>("Kayttotarkoitus"),
    Arvo<&clsPerustiedot::KayttoTarkoitusID>("KayttoTarkoitusID"),
    Arvo<&clsPerustiedot::ValmistumisVuosi>("ValmistumisVuosi", Suure().Rajat(0, 2100).Tavallisesti(1700, 2100)),
    Arvo<&clsPerustiedot::Kokonaistilavuus>("Kokonaistilavuus", Suure("m³").Rajat(0).Tavallisesti(50, 2000000)),
    Arvo<&clsPerustiedot::KylmanTilavuudenOsuus>("KylmanTilavuudenOsuus", Suure("%").Rajat(0, 100)),
    Arvo<&clsPerustiedot::BruttoAla>("BruttoAla", Suure("m²").Rajat(0).Tavallisesti(20, 500000)),
    Arvo<&clsPerustiedot::KylmanAlanOsuus>("KylmanAlanOsuus", Suure("%").Rajat(0, 100)),
    Arvo<&clsPerustiedot::KerrostenLukumaara>("KerrostenLukumaara", Suure().Rajat(0, 200).Tavallisesti(1, 40)),
    Arvo<&clsPerustiedot::KohteenHenkiloMaara>("KohteenHenkiloMaara", Suure("hlö").Rajat(0).Tavallisesti(0, 50000)),
    Arvo<&clsPerustiedot::LammTarveLukuPaikkakunta>("LammTarveLukuPaikkakunta"),
    Ominaisuus<clsPerustiedot, [](const clsPerustiedot& p) { return p.LammTarveLukuPaikkakuntaID(); },
               [](clsPerustiedot& p, std::int32_t v) { p.LammTarveLukuPaikkakuntaID(v); },
               &clsPerustiedot::paikkakunta_>("LammTarveLukuPaikkakuntaID"),
    Arvo<&clsPerustiedot::NormVuodenLammTarveLuku>("NormVuodenLammTarveLuku", Suure("°Cd").Tavallisesti(2500, 9000)),
    Lapsi<&clsPerustiedot::ToteutuneetKulutukset>("ToteutuneetKulutukset"),
    Lapsi<&clsPerustiedot::LammKulVakioOsuus>("LammKulVakioOsuus"),
    Lapsi<&clsPerustiedot::LammonHankinta>("LammonHankinta"),
    Lapsi<&clsPerustiedot::SahkonHankinta>("SahkonHankinta"),
    Lapsi<&clsPerustiedot::VedenHankinta>("VedenHankinta"),
    Arvo<&clsPerustiedot::OletusarvotLaskettu>("OletusarvotLaskettu"),
};

const Luokka clsPerustiedot::kLuokka{"clsPerustiedot", kJasenet, kTulokset};

clsPerustiedot::clsPerustiedot() : Pvm(TamaPaiva()) {}

clsPerustiedot::clsPerustiedot(const clsPerustiedot&) = default;
clsPerustiedot& clsPerustiedot::operator=(const clsPerustiedot&) = default;

double clsPerustiedot::NormitettuLampo(const clsToteutunutKulutus& vuosi) const noexcept {
  const double vakio = LammKulVakioOsuus.VuosiOsuus;
  if (vuosi.LammTarveLuku <= 0) return 0;
  return (vuosi.Lampo - vakio) * NormVuodenLammTarveLuku / vuosi.LammTarveLuku + vakio;
}

void clsPerustiedot::LammTarveLukuPaikkakuntaID(std::int32_t paikkakunta) {
  paikkakunta_ = paikkakunta;
  const auto indeksi = static_cast<std::size_t>(paikkakunta);
  if (paikkakunta >= 0 && indeksi < kLammitystarveluvut.size()) NormVuodenLammTarveLuku = kLammitystarveluvut[indeksi];
}

void clsPerustiedot::Kotiudu(const Koti& koti) {
  for (clsEnergianHankinta* hankinta : {&LammonHankinta, &SahkonHankinta, &VedenHankinta})
    hankinta->Energiamuodot.Kotiudu(koti);
}
