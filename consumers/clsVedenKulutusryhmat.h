// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "consumers/Kulutuspuu.h"
#include "consumers/clsVedenKulutusryhma.h"
#include "consumers/clsVesiListaItem.h"

class Vesiluettelo;

/// The water consumer groups of the building, the rows of their tree, and the hot water circulation loop.
class clsVedenKulutusryhmat : public Malli<clsVedenKulutusryhmat, Kulutuspuu<clsVedenKulutusryhma, clsVesiListaItem>> {
 public:
  static const Luokka kLuokka;
  clsVedenKulutusryhmat();

  clsVedenTiedot LKVTiedot;            ///< domestic water
  clsVedenTiedot ProsessiVedenTiedot;  ///< process water
  double LKVKiertoKayttoAika = 8760;   ///< use time of the loop, h/a
  double LKVKiertoJaahtyma = 5.0;      ///< difference of flow and return temperatures, K
  double LKVKiertoVirtaama = 0;        ///< flow of the loop, dm³/s

  using Sailio::Add;
  /// Adds a group of the kind, with that kind's temperatures; its use temperature is the cold water's.
  clsVedenKulutusryhma& Add(const Tunniste& sKey, std::int16_t KulutusRyhmaTyyppi);
  /// Adds a row to the tree: right behind its parent, so that the newest child of a title stands first, or at the end.
  clsVesiListaItem& AddListaItem(const Tunniste& sKey, const Tunniste& Parent, std::int16_t ItemTyyppi,
                                 std::string NimiTeksti, bool loppuun = false);
  /// Temperatures of the kind of water.
  const clsVedenTiedot& Tiedot(std::int16_t KulutusRyhmaTyyppi) const noexcept;

  /// Brings the rows up to date: water, hot water and heat of the groups, the loop's loss, and sums from the leaves.
  /// Each group then has the present temperatures of its kind. A group whose title is gone hangs under its kind's.
  void PaivitaKulutusRyhmatJaLaitteet();
  /// Key of the node of the measure tree that the group belongs to, by its kind.
  static Tunniste ToimenpiteidenSolmu(const clsVedenKulutusryhma& ryhma);
  /// The temperatures have changed: every group gets those of its kind, and its share of hot water follows its use
  /// temperature in whole per cents (0 where hot and cold are the same). Gives the groups whose share isn't between 0
  /// and 100 %; they keep it.
  std::vector<const clsVedenKulutusryhma*> VesitiedotMuuttuivat();
  /// Gives every group, whatever its kind, the temperatures and the heating of domestic water.
  void PaivitaVedenTiedotKulutusryhmiin();
  /// Temperatures aren't refused.
  static bool TarkistaLKVLampotilat() { return true; }
  static bool TarkistaProsessiVedenLampotilat() { return true; }
  /// The rows that the figures of the building divide into: domestic water, process water and the loop.
  std::vector<clsVesiListaItem*> PaaRivit() const;
  /// Water of the rows below the titles, m³/a: of every group once.
  double RivienVedenKulutus() const;

  /// Water of all groups, of the domestic ones (their hot water included), of the process ones; m³/a.
  double VuotuinenVedenKulutus() const;
  double VuotuinenKvKulutus() const;
  double VuotuinenKylmanProsessivedenKulutus() const;
  /// Hot water of the domestic and of the process groups, m³/a.
  double VuotuinenLkvKulutus() const;
  double VuotuinenLampimanProsessivedenKulutus() const;
  /// Heat of domestic water with the loop's loss, and of process water; MWh/a.
  double VuotuinenLkvLammityksenEnergia() const;
  double VuotuinenProsessivedenLammityksenEnergia() const;
  /// The same if that water is heated by electricity, else 0; MWh/a.
  double VuotuinenLkvSahkoLammityksenEnergia() const;
  double VuotuinenProsessivedenSahkoLammityksenEnergia() const;
  /// Loss of the circulation loop, kWh/a: cooling × flow × 4.19 kJ/(kg·K) × use time.
  double LKVKiertopiirinHavio() const;

  /// Opens the list, or brings it to front: not modal, one at a time. What is done there takes effect at once; its
  /// Cancel takes that back.
  void NaytaKayttoliittyma();
  /// Fills the open list and chooses the row of that key, the first one for an empty key.
  void LueDataluokka(const Tunniste& sKey = {});

 protected:
  std::span<const Kiintearivi> Kiinteat() const override;
  clsVedenKulutusryhma& LuoRyhma(const Tunniste& avain, const Tunniste& vanhempi) override;
  void Siirtyi(clsVedenKulutusryhma& ryhma, const Tunniste& vanhempi) override;
  Tunniste OrvonPaikka(const Tunniste& ryhma) const override;

 private:
  Oma<std::shared_ptr<Vesiluettelo>> luettelo_;
};
