// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "library/server/Rakennemuokkain.h"
#include "library/server/Selain.h"
#include "library/server/frmRakennekirjasto.h"

/// Browses the structures: own ones can be made, edited and removed, standard ones copied, either picked.
class Rakenneselain : public Selain {
 public:
  Rakenneselain(Selaimenavaus avaus, std::function<void(const Rakenneratkaisu&)> valittu);

  void Nayta() override;
  bool Yrita() override { return !muokkain_ || muokkain_->Yrita(); }

 private:
  void Kuuntele();
  void Paivita();
  void TaytaAikakaudet();
  std::vector<Ohjain*> Ehdot() const;
  void Suodata();
  void NaytaRakenne();
  /// The chosen structure, or nothing.
  const Kirjastorakenne* Valittu() const;
  void Valitse(const std::string& id);
  /// The first one shown that is typical of the building's year; empty when there is none.
  std::string AikakaudenRakenne() const;
  void Muokkaa(Kirjastorakenne rakenne);
  bool LisaaOmaan(Kirjastorakenne& rakenne);
  bool SuljeMuokkain();
  void KayttoLiittyma_Valitse();
  void KayttoLiittyma_Uusi();
  void KayttoLiittyma_Muokkaa();
  void KayttoLiittyma_Kopioi();
  void KayttoLiittyma_Poista();
  void KayttoLiittyma_Tuo();
  void KayttoLiittyma_Vie();
  void KayttoLiittyma_Sulje();

  Selaimenavaus avaus_;
  std::function<void(const Rakenneratkaisu&)> valittu_;
  std::vector<const Kirjastorakenne*> naytetyt_;  // by row
  frmRakennekirjasto KayttoLiittyma;
  std::unique_ptr<Rakennemuokkain> muokkain_;
  Muutoskuuntelija kuuntelija_{[this] { Paivita(); }};
};
