// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Riviperuste.h"

#include <optional>

#include "building/clsRakennus.h"
#include "building/clsTila.h"
#include "consumers/clsSahkonKulutusryhma.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "supply/clsEnergianHankinta.h"
#include "tekstit/lomakkeet_jarjestelija.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKone.h"

namespace {

using Rivi = clsValittuToimenpide;

/// How far the object of a measure reaches.
struct Piiri {
  Tunniste kohde;                  // identity; empty of a floating measure
  std::optional<Tunniste> tila{};  // key of its space; empty: of all spaces
  bool hankinta = false;
};

template <class T>
const T* Tyyppina(const Olio& olio) {
  return &olio.LuokanTiedot() == &T::kLuokka ? static_cast<const T*>(&olio) : nullptr;
}

std::optional<Piiri> ToimenpiteenPiiri(clsRakennus& rakennus, const clsSaastotoimenpide& toimenpide) {
  if (toimenpide.Kelluva()) return Piiri{};
  const clsMuuttuneetAttribuutit& muutokset = toimenpide.MuuttuneetAttribuutit;
  const Olio* kohde = rakennus.HaeInstanssi(muutokset.TyypinNimi, muutokset.LiittyyInstanssiin).olio;
  if (!kohde) return std::nullopt;
  Piiri piiri{.kohde = kohde->InstanssiId};
  if (const auto* tila = Tyyppina<clsTila>(*kohde)) piiri.tila = tila->sKey;
  if (const auto* kone = Tyyppina<clsIVKone>(*kohde)) piiri.tila = kone->LiittyyTilaansKey;
  if (const auto* ryhma = Tyyppina<clsSahkonKulutusryhma>(*kohde)) piiri.tila = ryhma->LiittyyTilaansKey;
  piiri.hankinta = Tyyppina<clsEnergianHankinta>(*kohde);
  return piiri;
}

/// Why the upper one of two attached rows bears upon the lower one; nothing when it doesn't.
std::optional<Tekstinumero> Syy(const Piiri& ylempi, const Piiri& alempi) {
  if (ylempi.kohde == alempi.kohde) return tekstit::kPerusteSamaKohde;
  if (ylempi.hankinta) return tekstit::kPerusteHankinta;
  if (!ylempi.tila || !alempi.tila) return std::nullopt;
  if (ylempi.tila->Tyhja() || alempi.tila->Tyhja()) return tekstit::kPerusteKokoRakennus;
  if (*ylempi.tila == *alempi.tila) return tekstit::kPerusteSamaTila;
  return std::nullopt;
}

std::string Luetelma(Tekstinumero otsikko, const std::string& nimet) {
  return nimet.empty() ? std::string() : Teksti(otsikko) + nimet;
}

std::string Ylemmat(clsRakennus& rakennus, const Rivi& rivi, const Piiri& oma) {
  std::string varassa, kelluvat;
  for (const Rivi& ylempi : rakennus.ToimenpiteidenJarjestelija.ValitutToimenpiteet) {
    if (&ylempi == &rivi) break;
    const clsSaastotoimenpide* toimenpide = rakennus.Saastotoimenpiteet.Etsi(ylempi.ToimenpidesKey);
    const auto piiri = toimenpide ? ToimenpiteenPiiri(rakennus, *toimenpide) : std::nullopt;
    if (!piiri) continue;
    if (toimenpide->Kelluva())
      kelluvat += "\n– " + ylempi.Nimi;
    else if (const auto syy = Syy(*piiri, oma); syy && !oma.hankinta)
      varassa += "\n– " + ylempi.Nimi + " (" + Teksti(*syy) + ")";
  }
  std::string peruste = oma.hankinta      ? Teksti(tekstit::kRakentuuKaikkiin)
                        : varassa.empty() ? Teksti(tekstit::kRakentuuPerustapaukseen)
                                          : Luetelma(tekstit::kRakentuuNaihin, varassa);
  if (!kelluvat.empty()) peruste += "\n" + Luetelma(tekstit::kYllaKelluvia, kelluvat);
  return peruste;
}

}  // namespace

std::string Riviperuste(clsRakennus& rakennus, const Rivi& rivi) {
  if (rivi.Tyyppi == Rivi::Yhteensa) return {};
  if (rivi.Tyyppi == Rivi::Tariffi) return Teksti(tekstit::kRiviOnTariffi);
  const clsSaastotoimenpide* toimenpide = rakennus.Saastotoimenpiteet.Etsi(rivi.ToimenpidesKey);
  if (!toimenpide) return Teksti(tekstit::kRivinToimenpidePoistettu);
  if (toimenpide->Kelluva()) return Teksti(tekstit::kRiviKelluu);
  const auto oma = ToimenpiteenPiiri(rakennus, *toimenpide);
  return oma ? Ylemmat(rakennus, rivi, *oma) : std::string();
}
