// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <algorithm>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "consumers/RivillinenKokoelma.h"
#include "kernel/Sormenjalki.h"

/// What Cancel of a list that stays open takes back: what was done in the list, and nothing else. While it is open,
/// other windows, undo and measures commit to the same collection. Of what the list hasn't touched their changes are
/// kept; where they have changed what the list changed before, the person is to be asked.
///
/// K is a collection with display rows. What is told apart: each item with the row of its key, each row without an
/// item, and the collection's own values, which have the empty key.
template <class K>
class Luettelovaraus {
 public:
  explicit Luettelovaraus(K& kokoelma)
      : kokoelma_(kokoelma), alussa_(kokoelma.Kopioi()), alkutila_(Tila(kokoelma)), tila_(alkutila_) {}

  /// The list has committed, or given up, a change of its own.
  void OmaMuutos() { tila_ = Tila(kokoelma_); }
  /// Somebody else has committed, perhaps to this collection.
  void MuidenMuutos() {
    const Tilat nyt = Tila(kokoelma_);
    for (const Tunniste& avain : Eroavat(tila_, nyt))
      if (Arvo(tila_, avain) == Arvo(alkutila_, avain))
        Omaksu(avain, nyt);
      else
        yhteiset_.insert(avain);
    tila_ = nyt;
  }

  /// There is something to take back.
  bool Muuttunut() const { return !Eroavat(alkutila_, tila_).empty(); }
  /// Keys of what others have changed after the list had, and what isn't as it was at first.
  std::vector<Tunniste> Yhteiset() const {
    std::vector<Tunniste> avaimet = Eroavat(alkutila_, tila_);
    std::erase_if(avaimet, [this](const Tunniste& avain) { return !yhteiset_.contains(avain); });
    return avaimet;
  }
  /// The collection as Cancel makes it.
  const K& Alussa() const { return *alussa_; }
  void Palauta() { alussa_->Kopioi(kokoelma_); }

 private:
  using AlkioSailio = Sailio<typename K::Alkioluokka>;
  using Tilat = std::unordered_map<Tunniste, std::uint64_t>;

  static Tilat Tila(K& kokoelma) {
    const clsTyyppiTiedot& tyypit = VaadiRakennus().TyyppiTiedot;
    Tilat tilat;
    for (auto& alkio : kokoelma) tilat[alkio.sKey] = Sormenjalki(alkio, tyypit);
    for (auto& rivi : kokoelma.ListaItems())
      if (rivi.OnSisaltoa()) tilat[rivi.sKey] = tilat[rivi.sKey] * 31 + Sormenjalki(rivi, tyypit);
    tilat[{}] = SormenjalkiIlmanAlkioita(kokoelma, tyypit);
    return tilat;
  }
  /// 0: there is no such thing.
  static std::uint64_t Arvo(const Tilat& tilat, const Tunniste& avain) {
    const auto tila = tilat.find(avain);
    return tila == tilat.end() ? 0 : tila->second;
  }
  static std::vector<Tunniste> Eroavat(const Tilat& ennen, const Tilat& nyt) {
    std::vector<Tunniste> avaimet;
    for (const auto& [avain, tila] : ennen)
      if (Arvo(nyt, avain) != tila) avaimet.push_back(avain);
    for (const auto& [avain, tila] : nyt)
      if (!ennen.contains(avain)) avaimet.push_back(avain);
    return avaimet;
  }

  /// The change isn't the list's to take back.
  void Omaksu(const Tunniste& avain, const Tilat& nyt) {
    if (avain.Tyhja()) {
      OmaksuOmatArvot();
    } else {
      OmaksuAlkio(static_cast<AlkioSailio&>(kokoelma_), static_cast<AlkioSailio&>(*alussa_), avain);
      OmaksuAlkio(kokoelma_.ListaItems(), alussa_->ListaItems(), avain);
    }
    if (nyt.contains(avain))
      alkutila_[avain] = nyt.at(avain);
    else
      alkutila_.erase(avain);
  }
  template <class S>
  static void OmaksuAlkio(const S& lahde, S& kohde, const Tunniste& avain) {
    const auto* uusi = lahde.Etsi(avain);
    auto* entinen = kohde.Etsi(avain);
    if (uusi)
      (entinen ? *entinen : kohde.Add(avain)) = *uusi;
    else if (entinen)
      kohde.Remove(avain);
  }
  void OmaksuOmatArvot() {
    auto& alkiot = static_cast<AlkioSailio&>(*alussa_);
    const AlkioSailio omatAlkiot = alkiot;
    const auto omatRivit = alussa_->ListaItems();
    kokoelma_.Kopioi(*alussa_);
    alkiot = omatAlkiot;
    alussa_->ListaItems() = omatRivit;
  }

  K& kokoelma_;
  std::unique_ptr<K> alussa_;
  Tilat alkutila_, tila_;
  std::unordered_set<Tunniste> yhteiset_;
};
