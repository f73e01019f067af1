// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include "building/Koti.h"

#include "consumers/Kulutuspuu.h"
#include "consumers/clsSahkoListaItem.h"
#include "consumers/clsSahkonKulutusryhma.h"

class Sahkoluettelo;

/// The electricity consumer groups of the building and the rows of their tree.
class clsSahkonKulutusryhmat
    : public Malli<clsSahkonKulutusryhmat, Kulutuspuu<clsSahkonKulutusryhma, clsSahkoListaItem>> {
 public:
  static const Luokka kLuokka;
  /// Takes its place in a building.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  /// Adds a row to the tree: right behind its parent, so that the newest child of a title stands first, or at the end.
  clsSahkoListaItem& AddListaItem(const Tunniste& sKey, const Tunniste& Parent, std::int16_t ItemTyyppi,
                                  std::string NimiTeksti, double Vuosikulutus = 0, bool loppuun = false);

  /// Brings the rows up to date: groups, what spaces, machines and electrically heated waters of the building use, and
  /// sums from the leaves. A heated space's row has its demand alone, without control losses;
  /// LammitysSahkonVuosikulutus has both. A group whose title is gone hangs under building services.
  void PaivitaKulutusRyhmatJaLaitteet();
  /// Key of the node of the measure tree that the group belongs to: lighting, building services or other electricity,
  /// the first of them above its row; other electricity when there is none.
  Tunniste ToimenpiteidenSolmu(const Tunniste& ryhma) const;

  /// All electricity: devices and heating, MWh/a.
  double Vuosikulutus() const;
  /// Electricity of the groups and of the machines' fans, MWh/a.
  double SahkoLaitteidenVuosikulutus() const { return SahkoLaitteidenVuosikulutus(VuotuinenPuhallinSahko()); }
  double SahkoLaitteidenVuosikulutus(double puhaltimet) const;
  /// Fans of all machines of the building, MWh/a; 0 when the groups belong to none.
  double VuotuinenPuhallinSahko() const;
  /// Electricity that goes into heat, MWh/a: electrically heated spaces with their control losses, electric coils of
  /// the machines, electric heating of domestic and process water, all of the building that the groups belong to.
  double LammitysSahkonVuosikulutus() const;
  /// The same with that of the spaces and that of the coils given, MWh/a.
  double LammitysSahkonVuosikulutus(double tilat, double patterit) const;
  /// Internal heat gain of a space, kWh per month: a twelfth of the yearly consumption of the groups that stand in it
  /// and whose energy is used for heating. The same in every month.
  double TilanSahkoKuorma(const Tunniste& sKey) const;
  /// The same for the groups that belong to no space.
  double TiloihinLiittymatonSahkoKuorma() const { return TilanSahkoKuorma({}); }

  /// Opens the list, or brings it to front: not modal, one at a time. What is done there takes effect at once; its
  /// Cancel takes that back.
  void NaytaKayttoliittyma();
  /// Fills the open list and chooses the row of that key, the first one for an empty key.
  void LueDataluokka(const Tunniste& sKey = {});

 protected:
  std::span<const Kiintearivi> Kiinteat() const override;
  clsSahkonKulutusryhma& LuoRyhma(const Tunniste& avain, const Tunniste&) override { return Add(avain); }
  Tunniste OrvonPaikka(const Tunniste&) const override;

 private:
  std::vector<Siirrettava> Siirrettavat() const;

  Koti koti_;
  Oma<std::shared_ptr<Sahkoluettelo>> luettelo_;
};
