// SPDX-License-Identifier: GPL-3.0-or-later
// RakKirjSrv: the structure and material library as a process of its own, started by the program.
//   RakKirjSrv --koti <data directory>
#include <QApplication>
#include <QCommandLineParser>
#include <iostream>

#include "kernel/Virhe.h"
#include "library/server/Palvelin.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/QtIkkuna.h"
#include "ui/qt/QtOhje.h"
#include "ui/qt/QtViestit.h"

namespace {

/// Ends at once when another server serves the directory. Raises error 9999 when there is no place for the socket.
int Aja() {
  Palvelin palvelin(PalvelimenPaikka(AppPath()));
  if (!palvelin.Kuuntele()) return 0;
  AsennaSuomennos();
  AlustaTekstit();
  const QtViestit viestit;
  const QtOhje ohje;  // the guide in a window of this process
  AsetaQtLomakkeet(nullptr);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication sovellus(argc, argv);
  QApplication::setApplicationName(QStringLiteral("RakKirjSrv"));
  QApplication::setQuitOnLastWindowClosed(false);
  QCommandLineParser komentorivi;
  const QCommandLineOption koti(QStringLiteral("koti"), QString(), QStringLiteral("hakemisto"));
  komentorivi.addOption(koti);
  komentorivi.process(sovellus);
  if (komentorivi.isSet(koti)) AsetaAppPath(komentorivi.value(koti).toStdString());
  try {
    return Aja();
  } catch (const std::exception& virhe) {
    std::cerr << SyynKuvaus(virhe) << '\n';
    return 1;
  }
}
