// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QByteArray>
#include <QColor>
#include <QIcon>

/// The program's own pictures, ui/kuvat/<name>.svg. "currentColor" in them stands for the colour of text, so that a
/// picture suits a light and a dark theme.

/// Source of the picture with that colour of text; empty when there is no such picture.
QByteArray Vektorikuva(const QString& nimi, const QColor& teksti);

/// The picture as an icon of buttons and menus: drawn when it is shown, in the application's palette of the moment,
/// paler when disabled. Empty when there is no such picture.
QIcon Vektorikuvake(const QString& nimi);
