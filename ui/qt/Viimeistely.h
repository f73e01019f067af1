// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QChar>
#include <QSet>

#include "ui/Lomakeikkuna.h"

/// Gives the captions of a form's buttons and of the labels of its editable fields a letter each for Alt: the first
/// free one of the caption, in the order of the form, unless another one has to be left to a shorter caption. None is
/// given twice among what can be seen at one time: pages of a tab control share letters with each other, but not with
/// what stands outside them. The answering and closing buttons have Enter and Escape instead. `varatut`: letters in
/// small case that something beside the form answers to, a menu bar.
void JaaPikakirjaimet(const Lomakeikkuna& ikkuna, const QSet<QChar>& varatut);

/// Gives each field a name for assistive technology: the captions of the labels listed in its design-time property
/// Nimio (a row and a column of a table), else of the label that is its buddy; and its tool tip as description.
void NimeaKentat(const Lomakeikkuna& ikkuna);
