// SPDX-License-Identifier: GPL-3.0-or-later
// Spaces and their structures.
#include <algorithm>
#include <array>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "checks/Tarkistusajo.h"
#include "checks/Tarkistusrajat.h"
#include "kernel/Luvut.h"
#include "tekstit/tarkistukset.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

namespace raja = tarkistusraja;
constexpr const char* kAla = "### ##0.#";
constexpr const char* kU = "0.00#";

Havainnonkohde Tilakohde(const clsTila& tila) { return Kohde(tila, {tila.TilanNimi}); }

template <class F>
void Rakenteittain(Tarkistusajo& ajo, F&& tarkista) {
  for (const clsTila& tila : ajo.rakennus.Tilat)
    for (const clsRakenne& rakenne : tila.Rakenteet)
      if (rakenne.PintaAla > 0)
        tarkista(rakenne, [&] { return Kohde(rakenne, {tila.TilanNimi, rakenne.NaytettavaNimi()}); });
}

bool OnLasia(const clsRakenne& rakenne) {
  return rakenne.Rakennetyyppi == Rakennelaji::Ikkuna || rakenne.Rakennetyyppi == Rakennelaji::Ovi;
}
/// A wall, roof or floor that heat goes through.
bool OnVaippaa(const clsRakenne& rakenne) {
  return rakenne.Rakennetyyppi >= Rakennelaji::Ulkoseina && rakenne.Rakennetyyppi <= Rakennelaji::Alapohja &&
         rakenne.TyyppiID >= kUlkoilma && rakenne.TyyppiID <= kMaa;
}

void TilojaEiOle(Tarkistusajo& ajo) {
  if (ajo.rakennus.Tilat.Count() == 0) ajo.LoytyiRakennuksesta();
}

void TilanKokoPuuttuu(Tarkistusajo& ajo) {
  for (const clsTila& tila : ajo.rakennus.Tilat)
    if (tila.BruttoAla <= 0 || tila.Kokonaistilavuus <= 0)
      ajo.Loytyi(Tilakohde(tila), {Muotoile(tila.BruttoAla, kAla), Muotoile(tila.Kokonaistilavuus, kAla)},
                 tila.BruttoAla <= 0 ? "txtBruttoAla" : "txtKokonaistilavuus");
}

void TilanKorkeusPoikkeaa(Tarkistusajo& ajo) {
  for (const clsTila& tila : ajo.rakennus.Tilat) {
    if (tila.BruttoAla <= 0 || tila.Kokonaistilavuus <= 0) continue;
    const double korkeus = tila.Kokonaistilavuus / tila.BruttoAla;
    if (korkeus < raja::kMatalinKerros || korkeus > raja::kKorkeinKerros)
      ajo.Loytyi(Tilakohde(tila),
                 {Muotoile(tila.Kokonaistilavuus, kAla), Muotoile(tila.BruttoAla, kAla), Muotoile(korkeus, "0.0")});
  }
}

void SisalampotilaPoikkeaa(Tarkistusajo& ajo) {
  for (const clsTila& tila : ajo.rakennus.Tilat)
    if (tila.LammitettyTila && (tila.Sisalampotila < raja::kKylminTila || tila.Sisalampotila > raja::kLamminTila))
      ajo.Loytyi(Tilakohde(tila), {Muotoile(tila.Sisalampotila, "0.#")});
}

void SaatohyotysuhdeMahdoton(Tarkistusajo& ajo) {
  for (const clsTila& tila : ajo.rakennus.Tilat)
    if (tila.Saatohyotysuhde <= 0 || tila.Saatohyotysuhde > 100)
      ajo.Loytyi(Tilakohde(tila), {Muotoile(tila.Saatohyotysuhde, "0.#")});
}

void TilaIlmanIlmanvaihtoa(Tarkistusajo& ajo) {
  const KoneetTiloittain koneet = ajo.rakennus.IVKoneet.ListaaTiloittain();
  for (const clsTila& tila : ajo.rakennus.Tilat)
    if (tila.LammitettyTila && !tila.PainovoimainenIlmanvaihto && !koneet.contains(tila.sKey))
      ajo.Loytyi(Tilakohde(tila), {Muotoile(tila.Vuotoilmanvaihto, "0.0#")});
}

void VaipanOsaPuuttuu(Tarkistusajo& ajo) {
  constexpr std::array kOsat{Rakennelaji::Ulkoseina, Rakennelaji::Ylapohja, Rakennelaji::Alapohja};
  std::array<bool, kOsat.size()> on{};
  Rakenteittain(ajo, [&](const clsRakenne& rakenne, const auto&) {
    if (OnVaippaa(rakenne)) on.at(static_cast<std::size_t>(rakenne.Rakennetyyppi)) = true;
  });
  if (ajo.rakennus.Tilat.Count() == 0) return;
  std::string puuttuvat;
  for (std::size_t i = 0; i < kOsat.size(); ++i)
    if (!on.at(i)) puuttuvat += (puuttuvat.empty() ? "" : ", ") + Teksti(tekstit::kVaipanOsat.at(i));
  if (!puuttuvat.empty()) ajo.Loytyi(Tilakohde(ajo.rakennus.Tilat.Item(1)), {puuttuvat});
}

void UArvoPuuttuu(Tarkistusajo& ajo) {
  Rakenteittain(ajo, [&](const clsRakenne& rakenne, const auto& kohde) {
    if ((OnLasia(rakenne) || OnVaippaa(rakenne)) && rakenne.U_arvo() <= 0)
      ajo.Loytyi(kohde(), {Muotoile(rakenne.PintaAla, kAla)});
  });
}

void UArvoPoikkeaa(Tarkistusajo& ajo) {
  Rakenteittain(ajo, [&](const clsRakenne& rakenne, const auto& kohde) {
    const double u = rakenne.U_arvo();
    if (u <= 0 || (!OnLasia(rakenne) && !OnVaippaa(rakenne))) return;
    const double pienin = OnLasia(rakenne) ? raja::kPieninIkkunanU : raja::kPieninU;
    const double suurin = OnLasia(rakenne)           ? raja::kSuurinIkkunanU
                          : rakenne.TyyppiID == kMaa ? raja::kSuuriMaanvarainenU
                                                     : raja::kSuurinU;
    if (u < pienin || u > suurin)
      ajo.Loytyi(kohde(), {Muotoile(u, kU), Muotoile(pienin, "0.0#"), Muotoile(suurin, "0.0#")});
  });
}

void IkkunaIlmanRatkaisua(Tarkistusajo& ajo) {
  Rakenteittain(ajo, [&](const clsRakenne& rakenne, const auto& kohde) {
    if (rakenne.Rakennetyyppi == Rakennelaji::Ikkuna && !rakenne.PaastaaAuringon())
      ajo.Loytyi(kohde(), {Muotoile(rakenne.PintaAla, kAla)});
  });
}

void IkkunaLapaisematon(Tarkistusajo& ajo) {
  Rakenteittain(ajo, [&](const clsRakenne& rakenne, const auto& kohde) {
    if (!rakenne.PaastaaAuringon()) return;
    const Rakenneratkaisu& r = *rakenne.RakenneRatkaisu;
    if (r.Aurinkoenergianlapaisy <= 0 || r.Karmikerroin <= 0 || r.Verhokerroin <= 0)
      ajo.Loytyi(kohde(), {},
                 r.Aurinkoenergianlapaisy <= 0 ? "txtAurinkoenergianlapaisy"
                 : r.Karmikerroin <= 0         ? "txtKarmikerroin"
                                               : "txtVerhokerroin");
  });
}

void PohjaSuurempiKuinTila(Tarkistusajo& ajo) {
  for (const clsTila& tila : ajo.rakennus.Tilat) {
    if (tila.BruttoAla <= 0) continue;
    const double alapohja = tila.Rakenteet.AlapohjienAla(), ylapohja = tila.Rakenteet.YlaPohjienAla();
    if (alapohja > raja::kSuurinAlapohja * tila.BruttoAla || ylapohja > raja::kSuurinYlapohja * tila.BruttoAla)
      ajo.Loytyi(Tilakohde(tila), {Muotoile(alapohja, kAla), Muotoile(ylapohja, kAla), Muotoile(tila.BruttoAla, kAla)});
  }
}

}  // namespace

std::span<const Tarkistus> Tilatarkistukset() {
  using enum Tarkistustaso;
  static constexpr std::string_view kTila = "frmTila", kRakenteet = "frmRakenteet";
  static constexpr Tarkistus kRivit[] = {
      {"TilojaEiOle",
       Puute,
       tekstit::kTilojaEiOle,
       tekstit::kTilojaEiOleTeksti,
       {"frmTilaYhteenveto", "cmdLisaaTila"},
       TilojaEiOle},
      {"TilanKokoPuuttuu",
       Puute,
       tekstit::kTilanKokoPuuttuu,
       tekstit::kTilanKokoPuuttuuTeksti,
       {kTila, "txtBruttoAla"},
       TilanKokoPuuttuu},
      {"TilanKorkeusPoikkeaa",
       Epatodennakoinen,
       tekstit::kTilanKorkeusPoikkeaa,
       tekstit::kTilanKorkeusPoikkeaaTeksti,
       {kTila, "txtKokonaistilavuus"},
       TilanKorkeusPoikkeaa},
      {"SisalampotilaPoikkeaa",
       Epatodennakoinen,
       tekstit::kSisalampotilaPoikkeaa,
       tekstit::kSisalampotilaPoikkeaaTeksti,
       {kTila, "txtSisalampotila"},
       SisalampotilaPoikkeaa},
      {"SaatohyotysuhdeMahdoton",
       Ristiriita,
       tekstit::kSaatohyotysuhdeMahdoton,
       tekstit::kSaatohyotysuhdeMahdotonTeksti,
       {kTila, "txtSaatohyotysuhde"},
       SaatohyotysuhdeMahdoton},
      {"TilaIlmanIlmanvaihtoa",
       Epatodennakoinen,
       tekstit::kTilaIlmanIlmanvaihtoa,
       tekstit::kTilaIlmanIlmanvaihtoaTeksti,
       {kTila, "chkPainovoimainenIlmanvaihto"},
       TilaIlmanIlmanvaihtoa},
      {"VaipanOsaPuuttuu",
       Puute,
       tekstit::kVaipanOsaPuuttuu,
       tekstit::kVaipanOsaPuuttuuTeksti,
       {kTila, "cmdRakenteet"},
       VaipanOsaPuuttuu},
      {"UArvoPuuttuu",
       Puute,
       tekstit::kUArvoPuuttuu,
       tekstit::kUArvoPuuttuuTeksti,
       {kRakenteet, "txtUarvo"},
       UArvoPuuttuu},
      {"UArvoPoikkeaa",
       Epatodennakoinen,
       tekstit::kUArvoPoikkeaa,
       tekstit::kUArvoPoikkeaaTeksti,
       {kRakenteet, "txtUarvo"},
       UArvoPoikkeaa},
      {"IkkunaIlmanRatkaisua",
       Puute,
       tekstit::kIkkunaIlmanRatkaisua,
       tekstit::kIkkunaIlmanRatkaisuaTeksti,
       {kRakenteet, "cmdHaeKirjastosta"},
       IkkunaIlmanRatkaisua},
      {"IkkunaLapaisematon",
       Epatodennakoinen,
       tekstit::kIkkunaLapaisematon,
       tekstit::kIkkunaLapaisematonTeksti,
       {kRakenteet, "txtAurinkoenergianlapaisy"},
       IkkunaLapaisematon},
      {"PohjaSuurempiKuinTila",
       Ristiriita,
       tekstit::kPohjaSuurempiKuinTila,
       tekstit::kPohjaSuurempiKuinTilaTeksti,
       {kTila, "txtBruttoAla"},
       PohjaSuurempiKuinTila},
  };
  return kRivit;
}
