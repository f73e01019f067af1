// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "kernel/Hakemistot.h"
#include "tests/tuki/Koenaytto.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/QtViestit.h"

/// Tests that need real widgets.
int main(int argc, char** argv) {
  AsetaKoenaytto();
  QApplication sovellus(argc, argv);
  AsennaSuomennos();
  AlustaTekstit();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
