// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "ui/frmIlmanvaihtokoneenKayntiajat.h"
#include "ventilation/clsKayntiAjat.h"

/// The dialog of a machine's running times while it is open. The schedule is edited live: a field reaches its period at
/// each edit that can be read, so that hours, list and picture follow. Cancel copies back what was.
class Kayntiaikamuokkaus {
 public:
  explicit Kayntiaikamuokkaus(clsKayntiAjat& ajat);

  /// Shows the dialog. True after OK.
  bool Nayta();

 private:
  void LiitaTapahtumat();
  void NaytaSyottotapa();
  std::string SyottotavanNimi() const;
  /// The seasons of the way of entering, the first one chosen.
  void NaytaJaksot();
  /// The chosen season's lines to the fields.
  void LueDataluokka();
  void LueRivi(std::size_t rivi);
  /// What is computed from the lines of the chosen season.
  void NaytaTulokset();
  void NaytaTunnit();
  void NaytaSummat();
  void NaytaViikko();
  void NaytaHuomautukset();

  int Vuosijakso() const { return jaksot_[static_cast<std::size_t>(KayttoLiittyma.lvwJaksot.Indeksi())]; }
  std::string JaksonNimi() const;
  clsKayntiAika& Jakso(std::size_t rivi) const;

  void KayttoLiittyma_SyottotapaValittu();
  void KayttoLiittyma_KenttaMuuttui(std::size_t rivi);
  void KayttoLiittyma_KenttaJatetty(std::size_t rivi);
  void KayttoLiittyma_TunteinaKlikattu(std::size_t rivi);
  void KayttoLiittyma_KopioiMuihinKlikattu();

  clsKayntiAjat& ajat_;
  frmIlmanvaihtokoneenKayntiajat KayttoLiittyma;
  std::vector<int> jaksot_;  // seasons in the list
};
