// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <unordered_map>
#include <vector>

#include "building/Muutosilmoitus.h"
#include "kernel/Kokoelma.h"
#include "kernel/Laskenta.h"
#include "ventilation/clsIVKone.h"

class frmIVKoneYhteenveto;

/// Machines by the key of the space that they serve, in the collection's order.
using KoneetTiloittain = std::unordered_map<Tunniste, std::vector<clsIVKone*>>;

/// The ventilation machines of the building. Errors: 9999 with the method's literal.
class clsIVKoneet : public Malli<clsIVKoneet, Kotikokoelma<clsIVKone>> {
 public:
  static const Luokka kLuokka;

  /// While set, the yearly after-heating keeps its last value.
  Lippu VuotuinenIVjalkilammitysLampoUpToDate;

  /// After-heating of the supply air of all machines, MWh/a.
  double VuotuinenIVjalkilammitysLampo();
  /// The part of it that electric coils give, MWh/a.
  double VuotuinenPatteriSahko() const;
  /// Supply and exhaust air flows at full power of the machines that have that fan, m³/s.
  double Tuloilmavirtojen11Summa() const;
  double Poistoilmavirtojen11Summa() const;
  /// Electricity of all fans, MWh/a.
  double VuotuinenPuhallinSahko() const;
  double LammitystehonTarve() const { return 0; }
  /// The machines that serve the space of that key; none for an empty key.
  std::vector<clsIVKone*> ListaaTilaanLiittyvatIVKoneet(const Tunniste& tila) const;
  /// The same for all spaces in one pass over the machines.
  KoneetTiloittain ListaaTiloittain() const;
  /// The machines that serve no space: they have no key of one, or one that no space of the building has.
  std::vector<clsIVKone*> ListaaTilaanLiittymattomatIVKoneet() const;

  /// Opens the list of machines, or brings it to front: not modal, one at a time. What is done there takes effect at
  /// once.
  void NaytaKayttoliittyma();
  void LueDataluokka();
  /// Opens the dialog of the machine and takes its change into use. True after OK.
  bool Muokkaa(clsIVKone& kone);
  /// Fills the list with the machines and their energy of the year, if it is open.
  void ListaaKoneet();

 private:
  void LiitaTapahtumat();
  void IVKone_LampoSahkoKulutusMuuttui();

  Oma<double> jalkilammitys_;
  Oma<std::shared_ptr<frmIVKoneYhteenveto>> kayttoLiittyma_;
  Oma<Muutostilaus> tilaus_;
};
