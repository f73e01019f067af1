// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kernel/Olio.h"
#include "ui/Taulukko.h"

enum Tekstinumero : int;

/// Rows of a sheet pasted in a list as new objects: all of them, or none. A list tells its columns once,
///
///   const Liitossarake kLiitossarakkeet[] = {
///       Jasensarake(tekstit::kSarakeTila, "TilanNimi", tekstit::kLiitettavaPuuttuu),
///       Jasensarake(tekstit::kSarakeTilavuus, "Kokonaistilavuus"),
///       Valintasarake(tekstit::kSarakeSaatotapa, "SaatotapaID", "SaatotapaStr", "frmTila", "cmbSaatotapa")};
///
/// and LiitaRivit does the rest: it finds the columns by the headings of the first row, makes an object for each other
/// row, sets the cells in the order of the table, and tells of every cell that doesn't do. The headings are best those
/// of the list, so that its own copied rows can be pasted back. A collection of the building takes the columns in
/// building/Kokoelmamuokkaus.h, a list editor of another kind in its `liita`.

/// What became of a cell: empty texts when it was set.
struct Solutulos {
  std::string hylkays{};       ///< why it can't be set, to be read behind the name of the column
  bool epatavallinen = false;  ///< set, but most likely a slip of the keys
};

/// A column that pasted rows may have. Its cells come trimmed and not empty; an empty one leaves the new object's
/// value.
struct Liitossarake {
  Tekstinumero otsikko;  ///< heading; a unit in parentheses and letter case aside
  std::function<Solutulos(Olio&, std::string_view solu)> aseta;
  Tekstinumero puuttuu{};  ///< what is told of a row without a value; 0: it may be left out
};

/// A member by its name in the member table, a text or a number: its range holds, its property's code runs.
Liitossarake Jasensarake(Tekstinumero otsikko, std::string_view jasen, Tekstinumero puuttuu = {});
/// The word of a choice list of a form: the member `rivi` takes its place from 0, `sana` its text (empty: no member).
Liitossarake Valintasarake(Tekstinumero otsikko, std::string_view rivi, std::string_view sana, std::string_view lomake,
                           std::string_view valinta, Tekstinumero puuttuu = {});

/// The place of the word in the list, from 0, letter case aside; -1 when it isn't there.
int SananPaikka(std::span<const std::string> sanat, std::string_view sana);
/// The refusal of a word that a list doesn't have.
Solutulos EiValinta(std::span<const std::string> sanat);

struct Liitostoimet {
  /// Makes an object for a row, with the values of a new one. It stays where it is until the pasting ends.
  std::function<Alkio&()> luo;
  /// Takes away one that was made.
  std::function<void(const Tunniste&)> poista;
};

/// The keys of the new objects; none when something was refused, which the person was told, or when there were no rows.
/// A row of sums at the end, as a list copies it, is passed over. After an error nothing is left behind either.
std::vector<Tunniste> LiitaRivit(const Taulukko& rivit, std::span<const Liitossarake> sarakkeet,
                                 const Liitostoimet& toimet);
