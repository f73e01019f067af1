// SPDX-License-Identifier: GPL-3.0-or-later
// The window program. LUMIVIRTA_KUVA=<png> draws a picture of the main window and ends; LUMIVIRTA_AVAA=<project file>
// is then opened for it.
#include <QApplication>

#include "app/Fontit.h"
#include "app/Kuvake.h"
#include "app/Ohjelma.h"
#include "ui/qt/QtViestit.h"

int main(int argc, char** argv) {
  const std::jthread fontit = LueFontitTaustalla();
  QApplication sovellus(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lumivirta"));
  QApplication::setWindowIcon(Ohjelmakuvake());
  AsennaSuomennos();
  if (const QString kuva = qEnvironmentVariable("LUMIVIRTA_KUVA"); !kuva.isEmpty())
    return KuvaaPaaikkuna(kuva.toStdString(), qEnvironmentVariable("LUMIVIRTA_AVAA").toStdString());
  Ohjelma ohjelma;
  return QApplication::exec();
}
