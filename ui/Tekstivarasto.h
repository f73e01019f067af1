// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ui/Taulukko.h"

/// The store of all user-visible texts, choice lists, messages and help topics: the database "StrVarasto.mdb" in
/// AppPath, one text column per language. The texts are read once at start; messages, lists and topics when they are
/// used. What is read at start is to be read before the first thread is made; after that any thread may ask.

/// Reads the language of the store and the texts of that language: the first thing that a program does.
void AlustaTekstit();

/// The language of the store, which is the name of its text column, and remembers it. The file is the default store
/// when its name is empty. A missing file, or none with a language, gives "" and shows error 1040.
std::string HaeKielitunnus(const std::string& tiedosto = {});
/// Fills the text collection from the columns `kieli` and Id of the table, in place of what was there. A null text is
/// the empty text. A failure shows error 1040 and leaves the collection empty.
void LataaTekstit(const std::string& tiedosto, const std::string& kieli,
                  const std::string& taulu = "LumivirtaResurssit");
/// The text of the number; "[String <id> is missing]" when there is none.
std::string Teksti(int id);
/// The text with the number in the place of '#'.
std::string TekstiLuvulla(int id, std::size_t luku);

/// Shows a row of the message table, about the object that is being calculated (ui/Laskentakohde.h): its text, a blank
/// and `lisateksti`, titled by its level (1 error, 2 notice). Names of objects in `lisateksti` would make each a kind
/// of message of its own. Without the store or the row the message is "Virhe <code> <lisateksti>". Never raises.
void NaytaVirhe(int koodi, std::string_view lisateksti = {});
/// The text of a row of the message table, for a message of another's making; "Virhe <code>" without it. Never raises.
std::string Viestiteksti(int koodi);
/// The question before something is removed; No is the default. True = Yes. `nimi`: what is removed; `seuraus`: what
/// else happens, if anything.
bool KysyPoisto(std::string_view nimi, std::string_view seuraus = {});

/// The rows of a choice list, in order, by form and control name (letter case ignored). Raises when the store can't be
/// read.
std::vector<std::string> Valintalista(std::string_view lomake, std::string_view valinta);
/// The same rows as cells: the name, and everyday words by which it is found, divided by ";", where it has any.
Taulukko HaettavaValintalista(std::string_view lomake, std::string_view valinta);
/// A member of a model class as a person knows it: its name, how a number is shown (kernel/Luvut.h), and the texts of a
/// choice by its number, if it is one.
struct Ominaisuusteksti {
  std::string nimi;
  std::string kuvio;
  std::vector<std::string> valinnat;
};
/// The members that have a name, by "class.member". Raises when the store can't be read.
std::unordered_map<std::string, Ominaisuusteksti> Ominaisuustekstit();
/// The help topic of a form: index 0, 1 or 2 for its first to third topic; 0 when it has none.
int Ohjeaihe(std::string_view lomake, int indeksi);
