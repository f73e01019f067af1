// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Toimenpideinvestointi.h"

#include <algorithm>

#include "measures/Muunnelmalaskin.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/Alvprosentit.h"
#include "supply/clsEnergianHankinta.h"

namespace {

double AlvKerroin(double prosentti) noexcept { return 1 + prosentti / 100; }

Hyodykkeet Alvineen(const Hyodykkeet& hinta, const Alvprosentit& alv) noexcept {
  return {hinta.lampo * AlvKerroin(alv.lampo), hinta.sahko * AlvKerroin(alv.sahko), hinta.vesi * AlvKerroin(alv.vesi)};
}

Hyodykkeet Hyodykkeittain(const Kustannussaastot& s) noexcept {
  return {s.lampoEnergia + s.lampoTeho, s.sahkoEnergia + s.sahkoPatoTeho + s.sahkoLoisTeho, s.vesi};
}

bool KoskeeHankintaa(const clsSaastotoimenpide& toimenpide) {
  return toimenpide.MuuttuneetAttribuutit.TyypinNimi == clsEnergianHankinta::kLuokka.Nimi();
}

Hankinta Hankittava(double hinta, double kayttoika, const Alvprosentit& alv) {
  return {hinta * AlvKerroin(alv.yleinen), kayttoika};
}

}  // namespace

Elinkaariluvut LaskeElinkaariluvut(const std::optional<Investointi>& investointi,
                                   const std::optional<Elinkaarioletukset>& oletukset) {
  constexpr double kProsentti = 100;
  if (!investointi || !oletukset) return {};
  const Investointilaskelma laskelma(*investointi, *oletukset);
  Elinkaariluvut luvut{.nettonykyarvo = laskelma.Nettonykyarvo(),
                       .takaisinmaksuaika = laskelma.DiskontattuTakaisinmaksuaika(),
                       .energianHinta = laskelma.SaastetynEnergianHinta()};
  if (const auto korko = laskelma.SisainenKorko()) luvut.sisainenKorko = *korko * kProsentti;
  return luvut;
}

Investointi ToimenpiteenInvestointi(clsSaastotoimenpide& toimenpide, const Alvprosentit& alv) {
  const Hyodykkeet saasto = toimenpide.Saasto();
  const Hyodykkeet hinta =
      KoskeeHankintaa(toimenpide) ? toimenpide.Ostosaasto().hinta : Hyodykkeittain(toimenpide.Kustannussaasto(saasto));
  return {.hankinnat = {Hankittava(toimenpide.Investointi, toimenpide.TekninenKayttoika, alv)},
          .saasto = Alvineen(hinta, alv),
          .energia = saasto.lampo + saasto.sahko};
}

std::optional<Investointi> RivinInvestointi(const clsValittuToimenpide& rivi, const clsSaastotoimenpiteet& toimenpiteet,
                                            const Alvprosentit& alv) {
  if (!rivi.TiedotUpToDate) return std::nullopt;
  const clsSaastotoimenpide* toimenpide = toimenpiteet.Etsi(rivi.ToimenpidesKey);
  return Investointi{.hankinnat = {Hankittava(rivi.Investointi, toimenpide ? toimenpide->TekninenKayttoika : 0, alv)},
                     .saasto = Alvineen(Hyodykkeittain(rivi.Kustannussaasto()), alv),
                     .energia = rivi.SaastoLampoEnergia + rivi.SaastoSahkoEnergia};
}

std::optional<Investointi> PaketinInvestointi(const clsToimenpiteidenJarjestelija& jarjestelija,
                                              const clsSaastotoimenpiteet& toimenpiteet, const Alvprosentit& alv) {
  Investointi paketti;
  Hyodykkeet riveittain, tariffirivit;
  bool hankintaa = false;
  for (const clsValittuToimenpide& rivi : jarjestelija.ValitutToimenpiteet) {
    if (rivi.Tyyppi == clsValittuToimenpide::Yhteensa) continue;
    if (!rivi.TiedotUpToDate) return std::nullopt;
    const clsSaastotoimenpide* toimenpide = toimenpiteet.Etsi(rivi.ToimenpidesKey);
    hankintaa = hankintaa || (toimenpide && KoskeeHankintaa(*toimenpide));
    paketti.hankinnat.push_back(Hankittava(rivi.Investointi, toimenpide ? toimenpide->TekninenKayttoika : 0, alv));
    paketti.energia += rivi.SaastoLampoEnergia + rivi.SaastoSahkoEnergia;
    (rivi.Tyyppi == clsValittuToimenpide::Tariffi ? tariffirivit : riveittain) +=
        Hyodykkeittain(rivi.Kustannussaasto());
  }
  if (hankintaa) {
    const auto& laskettu = jarjestelija.LaskettuPaketti();
    if (!laskettu || !laskettu->saasto) return std::nullopt;
    riveittain = laskettu->saasto->hinta;
  }
  if (paketti.hankinnat.empty()) return std::nullopt;
  riveittain += tariffirivit;
  paketti.saasto = Alvineen(riveittain, alv);
  return paketti;
}
