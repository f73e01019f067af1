// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "building/LisaaKopio.h"
#include "building/Muokkausistunto.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "ui/Liittaminen.h"
#include "ui/Luettelomuokkain.h"
#include "ui/Tekstivarasto.h"

/// How the person edits a collection of the building in a list: an item added is committed by its own dialog, a copy,
/// a removal and pasted rows here; in a list that stands in a dialog, by that dialog. Texts are told by their numbers.
template <class T>
struct Kokoelmamuokkaus {
  Kokoelma<T>& kokoelma;
  std::string T::*nimi;
  Tekstinumero kopiointi{};  ///< names of the commands, as undo tells them; none in a dialog
  Tekstinumero poisto{};
  Tekstinumero kaytossa{};             ///< an item can't be removed, since measures refer to it
  std::function<bool(T&)> muokkaa;     ///< opens the item's dialog; true when it was accepted
  std::function<void(T&)> alusta{};    ///< fills a new item
  std::function<void(T&)> kopioitu{};  ///< finishes a copy
  bool avaaKopio = false;              ///< a copy opens its dialog, and stays when that is accepted
  // Rows of a sheet can be pasted where there are columns.
  std::span<const Liitossarake> sarakkeet{};
  Tekstinumero liittaminen{};
  std::function<void(T&)> liitetty{};  ///< finishes an item of a pasted row

  /// The key of the item that was accepted; empty when the person gave up.
  Tunniste Lisaa() const try { return MuokkaaUutta(Uusi()); } catch (...) {
    NostaVirhe("Kokoelmamuokkaus:Lisaa Method");
  }

  /// The key of the last item that the rows made; empty when they made none.
  Tunniste Liita(const Taulukko& rivit) const try {
    const auto avaimet = LiitaRivit(
        rivit, sarakkeet,
        {.luo = [this]() -> Alkio& { return Uusi(); }, .poista = [this](const Tunniste& avain) { Hylkaa(avain); }});
    if (avaimet.empty()) return {};
    for (const Tunniste& avain : avaimet) Nosta(liitetty, kokoelma.Item(avain));
    Kirjaa(liittaminen);
    return avaimet.back();
  } catch (...) {
    NostaVirhe("Kokoelmamuokkaus:Liita Method");
  }

  Tunniste Kopioi(const T& lahde) const try {
    T& kopio = LisaaKopio(kokoelma, lahde);
    kopio.*nimi = Teksti(tekstit::kKopio) + kopio.*nimi;
    Nosta(kopioitu, kopio);
    if (avaaKopio) return MuokkaaUutta(kopio);
    Kirjaa(kopiointi);
    return kopio.sKey;
  } catch (...) {
    NostaVirhe("Kokoelmamuokkaus:Kopioi Method");
  }

  void Poista(const Tunniste& avain) const try {
    kokoelma.Remove(avain);
    Kirjaa(poisto);
  } catch (...) {
    NostaVirhe("Kokoelmamuokkaus:Poista Method");
  }

  std::string Poistoeste(T& olio) const {
    const std::string nimet = ViittaavatToimenpiteet(olio);
    return nimet.empty() ? nimet : Teksti(kaytossa) + " " + nimet;
  }

 private:
  static void Kirjaa(Tekstinumero komento) {
    if (Muokkausistunto::Auki())
      VaadiRakennus().RekisteriVanheni();
    else
      VaadiRakennus().Muuttui(Teksti(komento));
  }
  /// Lets the person fill the new item, which is gone when it isn't accepted.
  Tunniste MuokkaaUutta(T& uusi) const {
    const Tunniste avain = uusi.sKey;
    try {
      if (muokkaa(uusi)) return avain;
    } catch (...) {
      Hylkaa(avain);
      throw;
    }
    Hylkaa(avain);
    return {};
  }
  T& Uusi() const {
    const Tunniste avain = Tunniste::Uusi(T::kLuokka.NimiSana());
    T& uusi = kokoelma.Add(avain);
    try {
      Nosta(alusta, uusi);
    } catch (...) {
      Hylkaa(avain);
      throw;
    }
    return uusi;
  }
  /// It was never there.
  void Hylkaa(const Tunniste& avain) const {
    kokoelma.Remove(avain);
    VaadiRakennus().RekisteriVanheni();
  }
};

/// The same for a list editor; the collection must live as long as the list.
template <class T>
Luettelotoimet Toimet(Kokoelmamuokkaus<T> muokkaus, std::function<Luettelosisalto()> sisalto) {
  const auto m = std::make_shared<const Kokoelmamuokkaus<T>>(std::move(muokkaus));
  Luettelotoimet toimet{.sisalto = std::move(sisalto),
                        .nimi = [m](const Tunniste& avain) { return m->kokoelma.Item(avain).*m->nimi; },
                        .lisaa = [m] { return m->Lisaa(); },
                        .muokkaa = [m](const Tunniste& avain) { m->muokkaa(m->kokoelma.Item(avain)); },
                        .kopioi = [m](const Tunniste& avain) { return m->Kopioi(m->kokoelma.Item(avain)); },
                        .poista = [m](const Tunniste& avain) { m->Poista(avain); },
                        .lukko = Muokkauslukko,
                        .poistoeste = [m](const Tunniste& avain) { return m->Poistoeste(m->kokoelma.Item(avain)); }};
  if (!m->sarakkeet.empty()) toimet.liita = [m](const Taulukko& rivit) { return m->Liita(rivit); };
  return toimet;
}
