// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Lomakeikkuna.h"

/// Gives the captions of a form's buttons and of the labels of its editable fields a letter each for Alt, the first
/// free one of the caption in the order of the form; none is given twice. The answering and closing buttons have Enter
/// and Escape instead.
void JaaPikakirjaimet(const Lomakeikkuna& ikkuna);

/// Gives each field a name for assistive technology: the captions of the labels listed in its design-time property
/// Nimio (a row and a column of a table), else of the label that is its buddy; and its tool tip as description.
void NimeaKentat(const Lomakeikkuna& ikkuna);
