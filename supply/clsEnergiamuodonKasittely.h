// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/Energiamuotokanta.h"
#include "ui/frmEmuo3.h"

/// The dialog of the fuel databases. The standard one is only looked at; rows of the user's own are added, edited and
/// removed, each change on the disk at once, whatever closes the dialog. A database that can't be read is told of and
/// shows no rows; the other one can still be chosen.
class clsEnergiamuodonKasittely {
 public:
  using Kanta = Energiamuotokanta::Laji;
  /// A row, and the database that it stands in.
  struct Rivivalinta {
    Kanta kanta = Kanta::Vakio;
    Energiamuotorivi rivi{};
  };

  clsEnergiamuodonKasittely();

  /// Shows the databases; nothing is picked.
  void Selaa(bool lammitys);
  /// Lets the person pick a row, beginning at the row of that Id. Nothing after Cancel.
  std::optional<Rivivalinta> Poimi(bool lammitys, Kanta kanta, std::int32_t id);

 private:
  void Nayta(bool lammitys, Kanta kanta, std::int32_t id, bool poiminta);
  bool Lammitys() const { return naytetty_.lammitys; }
  bool Muokattavissa() const { return kanta_ && kanta_->Muokattavissa(); }

  /// Opens the chosen database and shows the row of that Id.
  void AvaaKanta(std::int32_t id);
  /// Reads the rows anew and shows the one of that Id.
  void LueRivit(std::int32_t id);
  Luettelosisalto Rivit() const;
  const Energiamuotorivi* Valittu() const;
  void NaytaValittu();
  void NaytaKentissa(const Energiamuotorivi& rivi);
  void PaivitaTallennus() const;

  void KantaVaihtui();
  void HakuMuuttui();
  /// Asks what is done with what the person has written. False when the person goes back to it.
  bool OtaKentat();
  bool Tallenna();
  Tunniste Lisaa();
  Tunniste Kopioi(const Energiamuotorivi& lahde);
  void Hyvaksy();

  struct Naytetty {
    Kanta kanta = Kanta::Vakio;
    bool lammitys = true;
  };

  frmEmuo3 lomake_;
  std::optional<Energiamuotokanta> kanta_;
  std::vector<Energiamuotorivi> rivit_;
  Naytetty naytetty_;
  Energiamuotorivi muokattava_;  // as the fields were filled
  bool poiminta_ = false;
  std::optional<Rivivalinta> poimittu_;
};
