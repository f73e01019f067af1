// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "results/Taulukkokirja.h"
#include "ui/Ohjaimet.h"

// What the buttons that print or export do: a workbook is made of what the person sees and opened in the person's
// spreadsheet program, where it can be edited and printed.

/// Takes a list to a new sheet (results/Lomakesivu.h), or with `taulukko2` to the report table, the template
/// "Paataulu.xls" (results/Paataulu.h): then it lies 13 rows lower.
void VieListaTaulukkoon(const ListView& lista, bool otsikot, int rivi, int sarake, bool taulukko2);

/// Takes a dialog to a new sheet by cells of this size in twips, and the lists on it to sheets of their own.
void VieLomakeTaulukkoon(const Lomake& lomake, double leveys, double korkeus);

/// Takes the form as its kind is taken: a list as a list, a dialog as a dialog. What printing means
/// (AsetaTulostus of ui/Lomake.h).
void VieTaulukkoon(const Lomake& lomake);

/// The sheets of the form (LomakkeenSivut) with the audited object's name over each page.
std::vector<Taulukkosivu> KohteenSivut(const Lomake& lomake);

/// Writes a workbook and opens it. It goes to the folder chosen last, at first a temporary one, and is named by the
/// audited object and `mika`. A file that isn't this program's own, or has been edited, is never written over: the next
/// number is taken; where the file is open in another program, the person is asked first. When it can't be written, the
/// reason is told and another place asked for. `kirjoita` raises std::exception with the reason in Finnish.
void KirjoitaJaAvaa(std::string_view mika, const std::function<void(const std::string& tiedosto)>& kirjoita);

/// The object's name and `mika` as they can stand in a file's name: no characters that file systems refuse, at most 200
/// bytes.
std::string Taulukkotiedosto(std::string_view kohde, std::string_view mika);
