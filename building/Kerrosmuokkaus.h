// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <optional>

#include "library/Ilmakerrokset.h"
#include "library/Rakenneratkaisu.h"
#include "ui/Rakennekirjastolinkki.h"
#include "ui/frmRakennekerroksenMuokkaaminen.h"

/// The dialog of one layer while it is open. It works on a solution of its own, so that the U-value of the whole
/// structure can be shown as the layer changes.
class Kerrosmuokkaus {
 public:
  /// `paikka`: the layer's place from 1; behind the last one a new layer.
  Kerrosmuokkaus(Rakenneratkaisu ratkaisu, int paikka);

  /// Shows the dialog, modal. True after OK: `Ratkaisu` holds the edited layer.
  bool Nayta();
  const Rakenneratkaisu& Ratkaisu() const { return ratkaisu_; }

 private:
  void LiitaTapahtumat();
  void LueDataluokka();
  void KirjoitaDataluokka();
  void KirjoitaAine(Materiaali& aine, std::string_view sana);
  void NaytaTulokset();
  void EhdotaIlmaraonVastusta();
  void Hae(const Materiaali& nykyinen, std::function<void(const Materiaali&)> valittu);
  void NaytaAine(const frmRakennekerroksenMuokkaaminen::Aine& kentat, const Materiaali& aine, std::string_view sana);
  void OtaPaamateriaali(const Materiaali& materiaali);
  void OtaLisamateriaali(const Materiaali& materiaali);
  void RakenneKayttoliittyma_PaamateriaaliHakuun();
  void RakenneKayttoliittyma_LisamateriaaliHakuun();
  void KayttoLiittyma_DataMuuttui();

  Rakenneratkaisu ratkaisu_;
  clsRakennekerros& kerros_;
  frmRakennekerroksenMuokkaaminen KayttoLiittyma;
  std::optional<Ilmakerrokset> ilma_;  // the main material was picked and is air
  std::unique_ptr<Rakennekirjastopyynto> haku_;
};
