// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QWidget>

/// Place and size of the main window in the settings store, in twips: a 96 dpi pixel is 15.

/// Puts the window where it was at the last closing. A place outside all screens is ignored.
void PalautaPaikka(QWidget& ikkuna);
/// Stores the window's place; of a maximised one that of its normal size, of a minimised one nothing.
void TallennaPaikka(const QWidget& ikkuna);
