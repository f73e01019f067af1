// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"

/// A keyed collection that keeps a second list beside its items: the rows of its display tree. A row bears its parent's
/// key in `Parent`, its kind in `ItemTyyppi` and its caption in `NimiTeksti`; the parent of the root row is empty.
template <class T, class Rivi>
class RivillinenKokoelma : public Kokoelma<T> {
 public:
  using Alkioluokka = T;
  using Riviluokka = Rivi;

  KokoelmaPohja* ListaItemeina() noexcept override { return &listaItemit_; }

  Rivi& ListaItem(int paikka) const { return listaItemit_.Item(paikka); }
  Rivi& ListaItem(const Tunniste& sKey) const { return listaItemit_.Item(sKey); }
  int CountListaItems() const noexcept { return listaItemit_.Count(); }
  void RemoveListaItem(int paikka) { listaItemit_.Remove(paikka); }
  void RemoveListaItem(const Tunniste& sKey) { listaItemit_.Remove(sKey); }
  const Sailio<Rivi>& ListaItems() const noexcept { return listaItemit_; }
  Sailio<Rivi>& ListaItems() noexcept { return listaItemit_; }
  /// Removes the items and the rows.
  void Tyhjenna() override {
    Kokoelma<T>::Tyhjenna();
    listaItemit_.Tyhjenna();
  }

 protected:
  /// Makes a row, with the empty key one without a key: right behind its parent row, so that the newest child stands
  /// first, or at the end if `loppuun`, if it has no key or parent, or if the parent has no row.
  Rivi& LisaaRivi(const Tunniste& sKey, const Tunniste& Parent, decltype(Rivi::ItemTyyppi) ItemTyyppi,
                  std::string NimiTeksti, bool loppuun) {
    const bool vanhemmanJalkeen = !loppuun && !sKey.Tyhja() && !Parent.Tyhja();
    Rivi& rivi = vanhemmanJalkeen ? listaItemit_.LisaaJalkeen(Parent, sKey) : listaItemit_.Add(sKey);
    rivi.Parent = Parent;
    rivi.ItemTyyppi = ItemTyyppi;
    rivi.NimiTeksti = std::move(NimiTeksti);
    return rivi;
  }

 private:
  Sailio<Rivi> listaItemit_;
};
