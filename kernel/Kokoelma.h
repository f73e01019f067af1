// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <unordered_map>
#include <vector>

#include "kernel/Olio.h"

/// A collection as the generic mechanisms see it.
class KokoelmaPohja {
 public:
  virtual ~KokoelmaPohja() = default;
  virtual int Count() const noexcept = 0;
  /// Item at a position from 1.
  virtual Alkio& Pohja(int paikka) = 0;
  /// Item of that key, or nothing.
  virtual Alkio* EtsiPohja(const Tunniste& avain) = 0;
  /// Adds at the end; a key that is already in use raises std::invalid_argument.
  virtual Alkio& LisaaPohja(const Tunniste& avain) = 0;
  /// Removes all items.
  virtual void Tyhjenna() = 0;
  virtual const Luokka& AlkionLuokka() const noexcept = 0;
};

/// Ordered, keyed items of one class. Positions count from 1; keys compare without regard to case; an item added with
/// an empty key has none. A missing key or position raises std::out_of_range, a doubled key std::invalid_argument.
template <class T>
class Sailio : public KokoelmaPohja {
 public:
  Sailio() = default;
  Sailio(const Sailio& toinen) {
    alkiot_.reserve(toinen.alkiot_.size());
    for (const auto& alkio : toinen.alkiot_) alkiot_.push_back(std::make_unique<T>(*alkio));
  }
  /// Deep copy: items are matched by key and reused, missing ones made, surplus ones removed; order follows the source.
  Sailio& operator=(const Sailio& toinen) {
    if (this != &toinen) SamatAvaimet(toinen) ? KopioiPaikoittain(toinen) : KopioiAvaimittain(toinen);
    return *this;
  }

  T& Add(const Tunniste& avain = {}) { return Lisaa(alkiot_.size(), avain); }
  /// Adds right behind the item `edellinen`, or at the end if there is no such item.
  T& LisaaJalkeen(const Tunniste& edellinen, const Tunniste& avain) {
    for (std::size_t i = 0; i < alkiot_.size(); ++i)
      if (alkiot_[i]->sKey == edellinen) return Lisaa(i + 1, avain);
    return Add(avain);
  }
  T& Item(int paikka) const { return *alkiot_[Indeksi(paikka)]; }
  T& Item(const Tunniste& avain) const {
    if (T* alkio = Etsi(avain)) return *alkio;
    throw std::out_of_range("avainta ei ole: " + avain.Teksti());
  }
  T* Etsi(const Tunniste& avain) const {
    if (avain.Tyhja()) return nullptr;
    if (alkiot_.size() > kPieni) return EtsiHakemistosta(avain);
    for (const auto& alkio : alkiot_)
      if (alkio->sKey == avain) return alkio.get();
    return nullptr;
  }
  int Count() const noexcept override { return static_cast<int>(alkiot_.size()); }
  void Remove(int paikka) {
    alkiot_.erase(alkiot_.begin() + static_cast<std::ptrdiff_t>(Indeksi(paikka)));
    hakemisto_.reset();
  }
  void Remove(const Tunniste& avain) {
    const T* poistettava = &Item(avain);
    for (std::size_t i = 0; i < alkiot_.size(); ++i)
      if (alkiot_[i].get() == poistettava) return Remove(static_cast<int>(i) + 1);
  }
  /// Removes the items for which `poistetaan` is true, in one pass.
  template <class F>
  void PoistaJos(F poistetaan) {
    std::erase_if(alkiot_, [&](const std::unique_ptr<T>& alkio) {
      if (!poistetaan(*alkio)) return false;
      if (hakemisto_) hakemisto_->erase(alkio->sKey);
      return true;
    });
  }
  /// Puts the item behind all others.
  void SiirraLoppuun(const Tunniste& avain) {
    const T* siirrettava = &Item(avain);
    const auto on = [&](const std::unique_ptr<T>& alkio) { return alkio.get() == siirrettava; };
    const auto paikka = std::find_if(alkiot_.begin(), alkiot_.end(), on);
    std::rotate(paikka, paikka + 1, alkiot_.end());
  }
  void Tyhjenna() override {
    alkiot_.clear();
    hakemisto_.reset();
  }

  class Iteraattori {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;
    Iteraattori() = default;
    explicit Iteraattori(const std::unique_ptr<T>* p) : p_(p) {}
    T& operator*() const { return **p_; }
    T* operator->() const { return p_->get(); }
    Iteraattori& operator++() { return ++p_, *this; }
    Iteraattori operator++(int) { return Iteraattori(p_++); }
    friend bool operator==(Iteraattori x, Iteraattori y) { return x.p_ == y.p_; }

   private:
    const std::unique_ptr<T>* p_ = nullptr;
  };
  Iteraattori begin() const { return Iteraattori(alkiot_.data()); }
  Iteraattori end() const { return Iteraattori(alkiot_.data() + alkiot_.size()); }

  Alkio& Pohja(int paikka) override { return Item(paikka); }
  Alkio* EtsiPohja(const Tunniste& avain) override { return Etsi(avain); }
  Alkio& LisaaPohja(const Tunniste& avain) override { return Add(avain); }
  const Luokka& AlkionLuokka() const noexcept override { return T::kLuokka; }

 protected:
  /// An item has come to stand in this collection: added, or made by an assignment.
  virtual void Saapui(T&) {}

 private:
  static constexpr std::size_t kPieni = 16;  // up to here a scan beats an index
  using Hakemisto = std::unordered_map<Tunniste, T*>;

  std::size_t Indeksi(int paikka) const {
    if (paikka < 1 || paikka > Count()) throw std::out_of_range("kokoelmassa ei ole alkiota " + std::to_string(paikka));
    return static_cast<std::size_t>(paikka) - 1;
  }

  T& Lisaa(std::size_t indeksi, const Tunniste& avain) {
    if (Etsi(avain)) throw std::invalid_argument("avain on jo käytössä: " + avain.Teksti());
    auto uusi = std::make_unique<T>();
    uusi->sKey = avain;
    T& alkio = *uusi;
    alkiot_.insert(alkiot_.begin() + static_cast<std::ptrdiff_t>(indeksi), std::move(uusi));
    if (hakemisto_ && !avain.Tyhja()) hakemisto_->emplace(avain, &alkio);
    Saapui(alkio);
    return alkio;
  }

  T* EtsiHakemistosta(const Tunniste& avain) const {
    if (!hakemisto_) RakennaHakemisto();
    auto it = hakemisto_->find(avain);
    return it == hakemisto_->end() ? nullptr : it->second;
  }

  void RakennaHakemisto() const {
    hakemisto_ = std::make_unique<Hakemisto>();
    hakemisto_->reserve(alkiot_.size());
    for (const auto& alkio : alkiot_)
      if (!alkio->sKey.Tyhja()) hakemisto_->emplace(alkio->sKey, alkio.get());
  }

  bool SamatAvaimet(const Sailio& toinen) const {
    if (alkiot_.size() != toinen.alkiot_.size()) return false;
    for (std::size_t i = 0; i < alkiot_.size(); ++i)
      if (!(alkiot_[i]->sKey == toinen.alkiot_[i]->sKey)) return false;
    return true;
  }

  void KopioiPaikoittain(const Sailio& toinen) {
    for (std::size_t i = 0; i < alkiot_.size(); ++i) *alkiot_[i] = *toinen.alkiot_[i];
  }

  void KopioiAvaimittain(const Sailio& toinen) {
    std::unordered_map<Tunniste, std::unique_ptr<T>> vanhat;
    for (auto& alkio : alkiot_) vanhat.emplace(alkio->sKey, std::move(alkio));
    Sailio::Tyhjenna();  // the items alone: an heir may empty more
    alkiot_.reserve(toinen.alkiot_.size());
    for (const auto& lahde : toinen.alkiot_) {
      const auto it = lahde->sKey.Tyhja() ? vanhat.end() : vanhat.find(lahde->sKey);
      if (it == vanhat.end() || !it->second) {
        alkiot_.push_back(std::make_unique<T>(*lahde));
        Saapui(*alkiot_.back());
      } else {
        *it->second = *lahde;
        alkiot_.push_back(std::move(it->second));
      }
    }
  }

  std::vector<std::unique_ptr<T>> alkiot_;
  mutable std::unique_ptr<Hakemisto> hakemisto_;
};

/// A collection that is an object of the model: bears `InstanssiId`, has a row of its own in the project file.
template <class T>
class Kokoelma : public Olio, public Sailio<T> {
 public:
  KokoelmaPohja* Kokoelmana() noexcept override { return this; }
};
