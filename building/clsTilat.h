// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "building/Muutosilmoitus.h"
#include "building/clsTila.h"

class frmTilaYhteenveto;

/// The spaces of the building.
class clsTilat : public Malli<clsTilat, Kotikokoelma<clsTila>> {
 public:
  static const Luokka kLuokka;

  double TotSahkoKuormaPros = 0;      ///< share of the measured electricity that heats the spaces, %
  bool KaytaTotSahkoKuormia = false;  ///< electric loads from the measured electricity, not from the consumer groups

  /// The kept yearly demand is valid. Setting it sets the three flags of every space to the same value: False
  /// invalidates the balance of all spaces, True declares their caches valid.
  bool VuotuinenLampoEnergianTarveUpToDate() const noexcept { return tarveUpToDate_; }
  void VuotuinenLampoEnergianTarveUpToDate(bool voimassa) noexcept;
  /// The figures of some spaces have changed: the sum no longer holds, the caches of the others do.
  void MitatoiSumma() noexcept { tarveUpToDate_ = false; }

  double TilavuusYht() const;   ///< m³
  double BruttoAlaYht() const;  ///< m²

  /// Sum of the spaces' yearly demand, MWh. Paints between spaces; doesn't set the flag: the caller does.
  double VuotuinenLampoEnergianTarve();
  double VuotuisetLampoHaviot();              ///< MWh/a
  double VuotuisetHyodynnetytLampoKuormat();  ///< MWh/a
  double VuotuisetSaatohaviot();              ///< MWh/a
  /// Demand and control losses of the spaces that are heated by electricity, MWh.
  double VuotuinenLammityssahko();
  /// Fills the solar, ventilation and conduction caches of every space.
  void PaivitaTilojenLampotaseenLahtotiedot();

  /// Opens the list of spaces, or brings it to front: not modal, one at a time. What is done there takes effect at
  /// once.
  void NaytaKayttoliittyma();
  void LueDataluokka();
  void KirjoitaDataluokka();
  /// Fills the list with the spaces and their balance of the year, if it is open.
  void ListaaTilat();

 private:
  void LiitaTapahtumat();
  void TaytaLuettelo();
  void NaytaErittely();
  void KayttoLiittyma_SahkokuormatMuuttuivat();

  void PaivitaIVHaviot(Edistyminen& edistyminen);

  Lippu tarveUpToDate_;
  Oma<double> tarve_;  // MWh/a
  Oma<std::shared_ptr<frmTilaYhteenveto>> kayttoLiittyma_;
  Oma<Muutostilaus> tilaus_;
};
