// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "app/Kuvake.h"
#include "tests/tuki/Koenaytto.h"
#include "ui/qt/QtViestit.h"

/// Tests that need real widgets.
int main(int argc, char** argv) {
  AsetaKoenaytto();
  QApplication sovellus(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(Ohjelmakuvake());
  AsennaSuomennos();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
