// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <vector>

#include "lifecycle/Kustannuspuu.h"
#include "ui/frmKustannukset.h"

class clsElinkaari;

/// The dialog of life-cycle costs while it is open. The building's entries follow what is written; what the model says
/// was computed at opening.
class Kustannusmuokkaus {
 public:
  /// Errors: those of the trees.
  explicit Kustannusmuokkaus(clsRakennus& rakennus);

  /// Shows the dialog, modal. True after OK.
  bool Nayta();

 private:
  using Solmu = Kustannuspuu::Solmu;

  void LueDataluokka();
  void NaytaPuu();
  void NaytaSolmu();
  void NaytaTyypit(const Solmu& solmu);
  void NaytaKustannus(const Solmu& solmu);
  void NaytaYhteensa();
  void SolmuMuuttui();
  void KirjoitaSolmu(const Solmu& solmu);
  void OtaHintaehdotus();
  void NaytaJakauma();

  frmKustannukset::Jasentely Paikka() const { return lomake_.Valittu(); }
  const frmKustannukset::Solmukentat& Kentat() const { return lomake_.kentat[Paikka()]; }
  const ListView& Lista() const { return lomake_.puut[Paikka()]; }
  Kustannuspuu& Puu() { return puut_[Paikka()]; }
  clsElinkaarisolmut& Syotetyt();
  const Solmu* Valittu() { return Puu().Etsi(Lista().Valittu()); }

  clsRakennus& rakennus_;
  clsElinkaari& elinkaari_;
  std::array<Kustannuspuu, frmKustannukset::kJasentelyja> puut_;
  std::vector<std::int32_t> tyypit_;  // rows of the choice of type
  frmKustannukset lomake_;
};
