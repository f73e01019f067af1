// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "results/Taulukkokirja.h"
#include "ui/Ohjaimet.h"

/// A dialog as a sheet: its caption, in bold on the first row, and below it the texts and figures that the person sees,
/// each about where it stands in the dialog. A cell is `leveys` by `korkeus` twips of the dialog; what would fall on a
/// cell in use takes the next free one of the row. Captions of frames are bold. Figures keep the full value that stands
/// behind the shown one. What is ticked comes last, where the cells are free. Buttons, charts and pictures are left
/// out. The lists of the dialog are Luettelosivu.
Taulukkosivu Lomakesivu(const Lomake& lomake, double leveys, double korkeus);

/// A list as a sheet: headings in bold on the row `rivi` if `otsikot`, rows from the next row on, from the column
/// `sarake` on. Rows that are bold in the list and the sums are bold.
Taulukkosivu Luettelosivu(const ListView& lista, bool otsikot, int rivi, int sarake);

/// The sheets of which a form's workbook is made: of a window of lists, a sheet for each; of any other form, the dialog
/// and a sheet for each list on it.
std::vector<Taulukkosivu> LomakkeenSivut(const Lomake& lomake);
/// The same for a dialog with cells of another size.
std::vector<Taulukkosivu> LomakkeenSivut(const Lomake& lomake, double leveys, double korkeus);
