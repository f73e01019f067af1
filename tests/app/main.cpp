// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "app/Kuvake.h"
#include "ui/qt/QtViestit.h"

/// Tests that need real widgets: the platform is "offscreen" unless the caller sets another.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication sovellus(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(Ohjelmakuvake());
  AsennaSuomennos();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
