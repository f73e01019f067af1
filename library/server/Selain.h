// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/server/Kirjastot.h"
#include "ui/Ohjaimet.h"

/// What a browsing window is opened with.
struct Selaimenavaus {
  Kirjastot kirjastot;
  bool valinta = false;              ///< opened for picking one entry
  std::string alku{};                ///< kind of structure or name of material to begin at
  std::function<void()> Suljettu{};  ///< the window was closed, with or without a pick; the last one
  int vuosi = 0;                     ///< of the building's completion, whose structures come to view; 0: not known
  std::string suodatin{};            ///< conditions to begin with, as Suodatettu told them; empty: none
  std::function<void(const std::string&)> Suodatettu{};  ///< the conditions are these now
};

/// A window that browses one kind of entries of both libraries.
class Selain {
 public:
  virtual ~Selain() = default;
  virtual void Nayta() = 0;
  /// Tries once more what its editing window couldn't store. True when nothing is waiting.
  virtual bool Yrita() = 0;
};

/// Tells once, in a message, which library can't be read.
void KerroViat(const Kirjastot& kirjastot);
/// Runs what writes to the user's library; false after a message when it fails. `epaonnistui`: text of the message.
bool KirjoitaKirjastoon(int epaonnistui, const std::function<void()>& kirjoita);
/// The rows of the choice list of libraries, and what the chosen one lets through.
std::vector<std::string> Kirjastorivit();
std::optional<Kirjasto> ValittuKirjasto(const ComboBox& valinta);
/// Word for the library in a list.
std::string KirjastonLyhenne(Kirjasto kirjasto);
/// Fills a list of conditions, the first row letting all through, and keeps the chosen row if it is still there.
void TaytaEhdot(const ComboBox& valinta, const std::vector<std::string>& rivit);
/// What the conditions hold, a line for each, for opening the window again with the same.
std::string EhtojenTeksti(const std::vector<Ohjain*>& ehdot);
void PalautaEhdot(const std::vector<Ohjain*>& ehdot, const std::string& teksti);
/// Insert and Delete in the list press the buttons.
void LiitaNappaimet(const ListView& lista, const CommandButton& uusi, const CommandButton& poista);
/// The chosen condition; empty for the first row.
std::string ValittuEhto(const ComboBox& valinta);
