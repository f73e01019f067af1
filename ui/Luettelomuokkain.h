// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "ui/Ohjaimet.h"

/// What the objects of a list do when the person edits them. Keys are those of the list's rows. The functions that
/// change the model also commit and redraw, in their own way: the list is filled from there by Luettelomuokkain::Nayta.
/// Those with {} may be left out.
struct Luettelotoimet {
  std::function<Luettelosisalto()> sisalto;
  std::function<std::string(const Tunniste&)> nimi;
  /// Makes an object and lets the person fill it. Its key; empty when the person gave up.
  std::function<Tunniste()> lisaa;
  /// Opens the object's dialog; left out where its fields stand beside the list.
  std::function<void(const Tunniste&)> muokkaa{};
  /// The key of a copy that stands behind its source; left out with its button.
  std::function<Tunniste(const Tunniste&)> kopioi{};
  std::function<void(const Tunniste&)> poista;
  /// Hangs a row under another one; where that may be done.
  std::function<void(const Tunniste& rivi, const Tunniste& ylempi)> siirra{};
  std::function<bool(const Tunniste& rivi, const Tunniste& ylempi)> saaSiirtaa{};
  /// Rows of a sheet as objects. The key of the last one; empty when none was made.
  std::function<Tunniste(const Taulukko&)> liita{};
  /// Enter or a double click on a row; editing when left out.
  std::function<void(const Tunniste&)> paina{};
  /// The list is shown anew after whatever the person has done in it, also after an error: for a list in a dialog,
  /// whose changes nobody commits yet.
  bool naytaUudelleen = false;
  /// The choice or the rows have changed: for what hangs on them beside the buttons of the editor.
  std::function<void()> valittu{};

  // Reasons in the person's language why something can't be done; empty: it can.
  std::function<std::string()> lukko{};       ///< none may come or go
  std::function<std::string()> lisayseste{};  ///< none may be added now
  std::function<std::string(const Tunniste&)> poistoeste{};
  /// What else happens when the object is removed; empty: nothing.
  std::function<std::string(const Tunniste&)> poistonSeuraus{};
  /// The object may be edited and removed; all when left out.
  std::function<bool(const Tunniste&)> muokattavissa{};
  /// The object may be copied; all when left out.
  std::function<bool(const Tunniste&)> kopioitavissa{};
  /// Takes what the person has written beside the list before another object is turned to. False, after telling why,
  /// when it isn't good: the present row stays.
  std::function<bool()> otaKentat{};
};

/// A list whose objects the person adds, edits, copies, removes, pastes and drags: by the four buttons, by Insert,
/// Enter, Delete and Ctrl+V. Sums, the chosen row, what can be done when, and the reasons why not are the same in all
/// of them.
class Luettelomuokkain {
 public:
  struct Ohjaimet {
    ListView lista;
    CommandButton lisaa;
    std::optional<CommandButton> muokkaa;
    std::optional<CommandButton> kopioi;
    CommandButton poista;
  };

  Luettelomuokkain(const Lomake& lomake, Ohjaimet ohjaimet);
  Luettelomuokkain(const Luettelomuokkain&) = delete;
  Luettelomuokkain& operator=(const Luettelomuokkain&) = delete;

  void Aseta(Luettelotoimet toimet);
  /// Fills the list. The chosen row stays chosen.
  void Nayta();
  /// Chooses the row of that key, the first one when there is no such.
  void Valitse(const Tunniste& avain);
  Tunniste Valittu() const { return ohjaimet_.lista.Valittu(); }
  /// Enables what can be done to the present row.
  void PaivitaNapit() const;

 private:
  void Kuuntele();
  void RiviVaihtui();
  void Lisaa();
  void Muokkaa();
  void Kopioi();
  void Poista();
  void Liita(const Taulukko& rivit);
  template <class F>
  auto Tee(F toimi);
  bool OtaKentat() const { return !toimet_.otaKentat || toimet_.otaKentat(); }
  bool Muokattavissa() const { return Sallittu(toimet_.muokattavissa); }
  bool Kopioitavissa() const { return Sallittu(toimet_.kopioitavissa); }
  bool Sallittu(const std::function<bool(const Tunniste&)>& ehto) const;
  /// Tells the reason, if there is one.
  bool Estetty(const std::string& syy) const;

  const Lomake& lomake_;
  Ohjaimet ohjaimet_;
  Luettelotoimet toimet_;
  std::string lisaysvihje_;  // the button's own tip
  Tunniste naytetty_;        // key of the row that the fields beside the list show
};
