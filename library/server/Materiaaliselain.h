// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "library/server/Materiaalimuokkain.h"
#include "library/server/Selain.h"
#include "library/server/frmMateriaalikirjasto.h"

/// Browses the materials: own ones can be made, edited and removed, standard ones copied, either picked.
class Materiaaliselain : public Selain {
 public:
  Materiaaliselain(Selaimenavaus avaus, std::function<void(const Materiaali&)> valittu);

  void Nayta() override;
  bool Yrita() override { return !muokkain_ || muokkain_->Yrita(); }

 private:
  void Kuuntele();
  void Paivita();
  void TaytaRyhmat();
  std::vector<Ohjain*> Ehdot() const;
  void Suodata();
  void NaytaMateriaali();
  /// The chosen material, or nothing.
  const Kirjastomateriaali* Valittu() const;
  void Valitse(const std::string& id);
  void Muokkaa(Kirjastomateriaali materiaali);
  bool LisaaOmaan(Kirjastomateriaali& materiaali);
  bool SuljeMuokkain();
  void KayttoLiittyma_Valitse();
  void KayttoLiittyma_Uusi();
  void KayttoLiittyma_Muokkaa();
  void KayttoLiittyma_Kopioi();
  void KayttoLiittyma_Poista();
  void KayttoLiittyma_Sulje();

  Selaimenavaus avaus_;
  std::function<void(const Materiaali&)> valittu_;
  std::vector<const Kirjastomateriaali*> naytetyt_;  // by row
  frmMateriaalikirjasto KayttoLiittyma;
  std::unique_ptr<Materiaalimuokkain> muokkain_;
  Muutoskuuntelija kuuntelija_{[this] { Paivita(); }};
};
