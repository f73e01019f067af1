// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <optional>
#include <string>

#include "ui/frmIVKoneenPuhaltimienSahkonKaytto.h"
#include "ventilation/clsPuhaltimenSahkonKulutus.h"

/// The dialog of a machine's fans while it is open. The fans are edited live: a field reaches them at each edit that
/// can be read, so that the computed powers and the curve follow. Cancel copies back what was.
class Puhallinmuokkaus {
 public:
  explicit Puhallinmuokkaus(clsPuhaltimenSahkonKulutus& kulutus);

  /// Shows the dialog. True after OK.
  bool Nayta();

 private:
  using Puoli = frmIVKoneenPuhaltimienSahkonKaytto::Puoli;

  void LiitaTapahtumat();
  void LueDataluokka();
  /// What is computed: specific powers, part powers, the curve.
  void NaytaTulokset();
  void NaytaPuhaltimenTulokset(Puoli puoli);
  void NaytaKayra();
  void NaytaHuomautus();
  void PaivitaKentat();
  /// A fan whose part power can't be calculated at the flow given.
  std::optional<Puoli> Laskematon() const;
  /// False, told, with the focus in the field of the part flow, when one can't.
  bool OsatehotLaskettavissa();

  bool OnPuhallin(Puoli puoli) const;
  bool OnOsavirta() const;
  std::optional<double> Osateho(Puoli puoli) const;

  void KayttoLiittyma_IlmavirtaMuuttui();
  void KayttoLiittyma_TaysiTehoMuuttui(Puoli puoli);
  void KayttoLiittyma_TaydenTehonLaatuValittu(Puoli puoli);
  void KayttoLiittyma_TarkennettuKlikattu(Puoli puoli);
  void KayttoLiittyma_OsaTehoMuuttui(Puoli puoli);
  void KayttoLiittyma_OsaTehonLaatuValittu(Puoli puoli);

  clsPuhaltimenSahkonKulutus& kulutus_;
  frmIVKoneenPuhaltimienSahkonKaytto KayttoLiittyma;
};
