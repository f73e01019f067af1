// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <initializer_list>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "building/LisaaKopio.h"
#include "consumers/RivillinenKokoelma.h"
#include "kernel/Laskenta.h"
#include "tekstit/rakennus.h"
#include "ui/Tekstivarasto.h"

/// What a row of a consumer tree is: what may be done with it hangs on this.
enum class Rivilaji {
  Juuri,      ///< the sum of all
  Otsikko,    ///< a title that every tree has
  Kierto,     ///< the hot water circulation loop
  Nimike,     ///< a title that the person has added, directly under the root
  Siirretty,  ///< a consumption that another part of the model gives
  Ryhma       ///< a group
};

/// Groups may hang under a row of the kind.
constexpr bool OttaaRyhmia(Rivilaji laji) {
  return laji == Rivilaji::Otsikko || laji == Rivilaji::Nimike || laji == Rivilaji::Siirretty;
}

/// A row that every tree of a kind has. The root comes first.
struct Kiintearivi {
  Tunniste sKey;
  Rivilaji laji;
  int teksti;  ///< id of its caption
};

/// Tells key and figure of each row as it is after a rebuild. The tree itself stays as it is.
template <class Puu, class Rivi, class F>
void LueAjantasaisetRivit(const Puu& puu, double Rivi::*suure, F&& kasittele) {
  const auto kopio = puu.Kopioi();
  kopio->PaivitaKulutusRyhmatJaLaitteet();
  for (const Rivi& rivi : kopio->ListaItems()) kasittele(rivi.sKey.Teksti(), rivi.*suure);
}

/// Consumer groups and the rows of their tree: a group and its row have the same key. The root sums up titles, a title
/// sums up groups and rows that other parts of the model give; a group may also hang under such a row.
///
/// Rebuilding and summing take time by the number of rows.
template <class Ryhma, class Rivi>
class Kulutuspuu : public RivillinenKokoelma<Ryhma, Rivi> {
 public:
  Rivilaji Laji(const Rivi& rivi) const {
    if (!rivi.sKey.OnGuid())
      for (const Kiintearivi& kiintea : Kiinteat())
        if (kiintea.sKey == rivi.sKey) return kiintea.laji;
    if (rivi.SiirrettyToisestaModulista) return Rivilaji::Siirretty;
    return rivi.ItemTyyppi == kNimike ? Rivilaji::Nimike : Rivilaji::Ryhma;
  }
  const Tunniste& JuurenAvain() const { return Kiinteat().front().sKey; }
  /// Key of the row under which a group comes that is added at the row of that key; empty where none may come.
  Tunniste Lisayspaikka(const Tunniste& avain) const {
    const Rivi* rivi = Rivit().Etsi(avain);
    if (!rivi) return {};
    const Rivilaji laji = Laji(*rivi);
    if (laji == Rivilaji::Ryhma) return rivi->Parent;
    return OttaaRyhmia(laji) ? avain : Tunniste();
  }
  /// The rows directly under that one, in their order.
  std::vector<Rivi*> Lapset(const Tunniste& avain) const {
    std::vector<Rivi*> lapset;
    for (Rivi& rivi : Rivit())
      if (rivi.Parent == avain) lapset.push_back(&rivi);
    return lapset;
  }

  /// Makes those rows that every tree has and this one hasn't.
  void LuoKiinteatRivit() {
    for (const Kiintearivi& kiintea : Kiinteat())
      if (!Rivit().Etsi(kiintea.sKey))
        this->LisaaRivi(kiintea.sKey, kiintea.laji == Rivilaji::Juuri ? Tunniste() : JuurenAvain(),
                        kiintea.laji == Rivilaji::Kierto ? kRyhma : kNimike, Teksti(kiintea.teksti), true);
  }
  /// A title of the person's own: the newest one stands first under the root.
  Rivi& LisaaNimike(std::string nimi) {
    return this->LisaaRivi(Tunniste::Uusi(Rivi::kLuokka.NimiSana()), JuurenAvain(), kNimike, std::move(nimi), false);
  }
  /// A group with its row, first or last under the row of that key.
  Ryhma& LisaaRyhma(const Tunniste& vanhempi, bool loppuun = false) {
    Ryhma& ryhma = LuoRyhma(Tunniste::Uusi(Ryhma::kLuokka.NimiSana()), vanhempi);
    this->LisaaRivi(ryhma.sKey, vanhempi, kRyhma, ryhma.KulutusRyhma, loppuun);
    return ryhma;
  }
  /// A copy of the group behind it, named as a copy, with a row under the same title.
  Ryhma& KopioiRyhma(const Ryhma& lahde) {
    Ryhma& kopio = LisaaKopio<Ryhma>(*this, lahde);
    kopio.KulutusRyhma = Teksti(tekstit::kKopio) + kopio.KulutusRyhma;
    this->LisaaRivi(kopio.sKey, this->ListaItem(lahde.sKey).Parent, kRyhma, kopio.KulutusRyhma, false);
    return kopio;
  }
  /// Removes the row, and the group with it if it is one. Rows below it must have been removed before.
  void PoistaRivi(const Tunniste& avain) {
    this->RemoveListaItem(avain);
    if (this->Etsi(avain)) this->Remove(avain);
  }
  /// A group can be moved at the row of that key: under another one than it is now.
  bool VoiSiirtaa(const Tunniste& ryhma, const Tunniste& kohde) const {
    const Rivi* rivi = Rivit().Etsi(ryhma);
    const Tunniste paikka = Lisayspaikka(kohde);
    return rivi && Laji(*rivi) == Rivilaji::Ryhma && !paikka.Tyhja() && !(paikka == rivi->Parent);
  }
  /// Moves a group last under the row where a group added at `kohde` would come. Does nothing where it can't be moved.
  void Siirra(const Tunniste& ryhma, const Tunniste& kohde) {
    if (!VoiSiirtaa(ryhma, kohde)) return;
    Rivi& rivi = this->ListaItem(ryhma);
    rivi.Parent = Lisayspaikka(kohde);
    this->ListaItems().SiirraLoppuun(ryhma);
    if (Ryhma* siirretty = this->Etsi(ryhma)) Siirtyi(*siirretty, rivi.Parent);
  }

 protected:
  static constexpr std::int16_t kRyhma = 0, kNimike = 1;  // ItemTyyppi

  virtual std::span<const Kiintearivi> Kiinteat() const = 0;
  /// A new group of that key for the row `vanhempi`.
  virtual Ryhma& LuoRyhma(const Tunniste& avain, const Tunniste& vanhempi) = 0;
  /// The group hangs under another row from now on.
  virtual void Siirtyi(Ryhma&, const Tunniste& /*vanhempi*/) {}
  /// Where a group goes whose row has no place in the tree, since what it hung under is gone.
  virtual Tunniste OrvonPaikka(const Tunniste& ryhma) const = 0;

  const Sailio<Rivi>& Rivit() const noexcept { return this->ListaItems(); }

  /// Gives each group one row, brought up to date by `paivita`(row, group); rows whose group is gone go.
  template <class F>
  void PaivitaRyhmienRivit(F paivita) {
    LuoKiinteatRivit();
    int avaimellisia = 0;
    for (Ryhma& ryhma : *this) {
      if (ryhma.sKey.Tyhja()) continue;
      ++avaimellisia;
      Rivi* rivi = Rivit().Etsi(ryhma.sKey);
      paivita(rivi ? *rivi : this->LisaaRivi(ryhma.sKey, {}, kRyhma, {}, true), ryhma);
    }
    const auto onRyhma = [this](const Rivi& rivi) { return Laji(rivi) == Rivilaji::Ryhma; };
    if (std::count_if(Rivit().begin(), Rivit().end(), onRyhma) != avaimellisia)
      this->ListaItems().PoistaJos([&](const Rivi& rivi) { return onRyhma(rivi) && !this->Etsi(rivi.sKey); });
  }

  /// A row that another part of the model gives.
  struct Siirrettava {
    Tunniste sKey;
    std::string nimi;
    double kulutus;  ///< MWh/a
  };
  /// Puts the rows in place of the former ones of that kind, last under `vanhempi`. What was closed stays closed.
  void VaihdaSiirretyt(const std::vector<Siirrettava>& siirrettavat, const Tunniste& vanhempi) {
    std::unordered_set<Tunniste> suljetut;
    this->ListaItems().PoistaJos([&](const Rivi& rivi) {
      const bool siirretty = Laji(rivi) == Rivilaji::Siirretty;
      if (siirretty && rivi.Collapsed) suljetut.insert(rivi.sKey);
      return siirretty;
    });
    for (const Siirrettava& siirrettava : siirrettavat) {
      Rivi& rivi = this->LisaaRivi(siirrettava.sKey, vanhempi, kNimike, siirrettava.nimi, true);
      rivi.SiirrettyToisestaModulista = true;
      rivi.Vuosikulutus = siirrettava.kulutus;
      rivi.Collapsed = suljetut.contains(rivi.sKey);
    }
  }

  /// Hangs every row where its kind may hang, and sums the figures up from the leaves: a row with rows under it has
  /// their sum, a title without any 0. Raises std::overflow_error if a total isn't finite.
  void RipustaJaSummaa(std::initializer_list<double Rivi::*> suureet) {
    std::vector<Kohta> kohdat = Ripusta();
    std::vector<Kohta*> lehdista;  // children before what they hang under
    lehdista.reserve(kohdat.size());
    for (Kohta& kohta : kohdat) {
      if (kohta.lapsia == 0) lehdista.push_back(&kohta);
      const bool summaa = kohta.lapsia > 0 || kohta.laji == Rivilaji::Otsikko || kohta.laji == Rivilaji::Nimike;
      for (const auto suure : suureet)
        if (summaa) kohta.rivi->*suure = 0;
    }
    for (std::size_t i = 0; i < lehdista.size(); ++i) {
      Kohta* ylempi = lehdista[i]->ylempi;
      if (!ylempi) continue;
      for (const auto suure : suureet) ylempi->rivi->*suure += lehdista[i]->rivi->*suure;
      if (--ylempi->lapsia == 0) lehdista.push_back(ylempi);
    }
    for (const auto suure : suureet) Aarellinen(this->ListaItem(JuurenAvain()).*suure);
  }

 private:
  struct Kohta {
    Rivi* rivi;
    Rivilaji laji;
    Kohta* ylempi = nullptr;
    int lapsia = 0;
  };

  /// The rows and what each hangs under, after those that hang amiss have been mended.
  std::vector<Kohta> Ripusta() const {
    std::vector<Kohta> kohdat;
    kohdat.reserve(static_cast<std::size_t>(Rivit().Count()));
    std::unordered_map<Tunniste, Kohta*> ylemmat;
    for (Rivi& rivi : Rivit()) {
      kohdat.push_back({&rivi, Laji(rivi)});
      Kohta& kohta = kohdat.back();
      if (OttaaRyhmia(kohta.laji) || kohta.laji == Rivilaji::Juuri) ylemmat.emplace(rivi.sKey, &kohta);
    }
    Kohta* juuri = ylemmat.at(JuurenAvain());
    for (Kohta& kohta : kohdat) {
      if (kohta.laji == Rivilaji::Ryhma || kohta.laji == Rivilaji::Siirretty) {
        auto ylempi = ylemmat.find(kohta.rivi->Parent);
        if (ylempi == ylemmat.end() || ylempi->second == juuri)
          ylempi = ylemmat.find(kohta.rivi->Parent = OrvonPaikka(kohta.rivi->sKey));
        kohta.ylempi = ylempi->second;
      } else if (&kohta != juuri) {
        kohta.rivi->Parent = JuurenAvain();
        kohta.ylempi = juuri;
      }
      if (kohta.ylempi) ++kohta.ylempi->lapsia;
    }
    return kohdat;
  }
};
