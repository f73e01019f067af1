// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Osoitin.h"

#include <QCursor>
#include <QGuiApplication>

NormaaliOsoitin::NormaaliOsoitin() {
  for (; QGuiApplication::overrideCursor(); ++tiimalaseja_) QGuiApplication::restoreOverrideCursor();
}

NormaaliOsoitin::~NormaaliOsoitin() {
  for (; tiimalaseja_ > 0; --tiimalaseja_) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}
