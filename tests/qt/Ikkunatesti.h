// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QWidget>

#include "ui/Lomake.h"
#include "ui/qt/QtIkkuna.h"

/// The forms of the test are real windows.
class Ikkunatesti : public testing::Test {
 protected:
  Ikkunatesti() { AsetaQtLomakkeet(nullptr); }
  ~Ikkunatesti() override { AsetaLomakesovitin(nullptr); }
};

inline QWidget& Juuri(const Lomake& lomake) { return *static_cast<QtIkkuna&>(lomake.Ikkuna()).Juuri(); }

template <class W>
W& Etsi(const Lomake& lomake, const char* nimi) {
  return *Juuri(lomake).findChild<W*>(nimi);
}

/// Leaves a picture of the window for a person to look at in the folder $LUMIVIRTA_KUVAT, if there is one.
inline void TallennaKuva(QWidget& ikkuna, const QString& nimi) {
  QCoreApplication::processEvents();
  const QString kansio = qEnvironmentVariable("LUMIVIRTA_KUVAT");
  if (kansio.isEmpty()) return;
  QDir().mkpath(kansio);
  EXPECT_TRUE(ikkuna.grab().save(kansio + '/' + nimi + ".png"));
}
inline void TallennaKuva(const Lomake& lomake, const QString& lisa = {}) {
  TallennaKuva(*Juuri(lomake).window(), QString::fromStdString(lomake.Nimi()) + lisa);
}
