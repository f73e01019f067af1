// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>

#include "ui/Ohjaimet.h"

/// Puts the texts of the text store on a form: captions and tool tips by the ids in the controls' design-time Tag and
/// ToolTipText. "mkTagi" in a text becomes the currency unit. Every form runs it when it is made.
void KaannaLomake(Lomake& lomake);

/// Currency unit shown from now on, e.g. "€".
void AsetaRahayksikko(std::string yksikko);
/// The text with the unit in place of "mkTagi".
std::string RahayksikonKanssa(std::string teksti, std::string_view yksikko);
/// Lets the open forms that show amounts follow a change of the currency or of the VAT: captions that hold "mkTagi"
/// take the present unit, and RahatMuuttuivat is raised. A form that doesn't listen keeps captions and amounts together
/// as they were.
void PaivitaRahat();

/// Fills a choice list from the store's rows for this form and control. `valitseViimeinen` chooses the last row.
void TaytaValinta(const Lomake& lomake, const ComboBox& valinta, bool valitseViimeinen = false);

/// Replaces `vanha` by `uusi` in the captions of all labels of the form.
void KorvaaOtsikoissa(const Lomake& lomake, std::string_view vanha, std::string_view uusi);
/// The same in the column headers of a list.
void KorvaaSarakkeissa(const ListView& lista, std::string_view vanha, std::string_view uusi);

/// Disables the buttons cmdLisaa..., cmdKopioi... and cmdPoista... when there is a reason why objects may neither come
/// nor go, which becomes their tool tip. Without a reason the tips are the form's own again; nothing is enabled.
void LukitseMuokkausnapit(const Lomake& lomake, const std::string& syy);
