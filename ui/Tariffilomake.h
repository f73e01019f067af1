// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"
#include "ui/Muokkauslomake.h"

/// What the dialogs of tariffs have in common: the list of tariffs, beside it the fields of the chosen one, and the
/// bill of a year's consumption. Names of controls that the forms don't share are told to the constructor.
class Tariffilomake : public Muokkauslomake {
 public:
  struct Nimet {
    std::string lomake;
    std::string_view lista, kulutus, yhteensa;
  };

  /// The person has changed this field of the chosen tariff.
  std::function<void(Ohjain&)> KenttaMuuttui;
  std::function<void()> KulutusMuuttui;
  std::function<void()> LuettelostaKlikattu;

  /// Empties the fields of a tariff, whatever has been written in them.
  virtual void TyhjennaKentat() const;
  /// Whether the person can write in them.
  void KentatKaytossa(bool kaytossa) const;
  /// What has been written in fields other than this one has been read: they can be filled.
  void PaataMuokkaus(const Ohjain& muuttunut) const;

  ListView lista;
  CommandButton cmdLisaa{*this, "cmdLisaa"};
  CommandButton cmdLisaaLuettelosta{*this, "cmdLisaaLuettelosta"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdPoista{*this, "cmdPoista"};
  Luettelomuokkain luettelo{*this, {lista, cmdLisaa, {}, cmdKopioi, cmdPoista}};
  MSChart chtLasku{*this, "chtLasku"};
  TextBox TxtNimi{*this, "TxtNimi"};
  // Of the year, read only:
  TextBox txtPerusmaksuYhteensa{*this, "txtPerusmaksuYhteensa"};
  TextBox txtMuuMaksuYhteensa{*this, "txtMuuMaksuYhteensa"};
  TextBox yhteensa;
  TextBox kulutus;  // MWh/a; of water m³/a

 protected:
  explicit Tariffilomake(const Nimet& nimet);

 private:
  std::vector<Ohjain*> kentat_;  // of a tariff, those for show too
};
