// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Texts of the library windows that no form file names: ids of the text store.
namespace kirjastotekstit {
enum : int {
  kKaikkiKirjastot = 5160,
  kOmaKirjasto,
  kVakiokirjasto,
  kKaikki,
  kLahde,
  kRakenteita,
  kMateriaaleja,
  kVersio,
  kUusiRakenne,
  kUusiMateriaali,
  kKopio,
  kOmaaEiLueta,
  kVakiotaEiLueta,
  kTallennettu,
  kEiTallennettu,
  kRakennePoistettu,
  kMateriaaliPoistettu,
  kPoistettuOtsikko,
  kMateriaaliKaytossa,
  kRakenneJoPoistettu,
  kMateriaaliJoPoistettu,
  kHylataanko,
  kTiedostosuodatin,
  kTuoOtsikko,
  kVieOtsikko,
  kViety,
  kTuotujaRakenteita,
  kTuotujaMateriaaleja,
  kEnnestaan,
  kUarvo,
  kUarvonYksikko,
  kEiUarvoa,
  kKylla,
  kEi,
  kAnnettu,
  kTuontiEpaonnistui,
  kVientiEpaonnistui,
  kPoistoEpaonnistui,
  // In lists.
  kOma = 5260,
  kVakio,
};
}  // namespace kirjastotekstit
