// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Tietoja.h"

#include <sqlite3.h>
#include <xlsxwriter.h>
#include <zip.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QSysInfo>
#include <pugixml.hpp>

#include "kernel/Hakemistot.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmAbout.h"

namespace {

/// pugixml tells 1.13 as 1130.
std::string PugixmlVersio() {
  return std::to_string(PUGIXML_VERSION / 1000) + "." + std::to_string(PUGIXML_VERSION % 1000 / 10);
}

std::string Naytto() {
  const QScreen* naytto = QGuiApplication::primaryScreen();
  if (!naytto) return {};
  return QStringLiteral("%1 × %2 (× %3)")
      .arg(naytto->size().width())
      .arg(naytto->size().height())
      .arg(naytto->devicePixelRatio())
      .toStdString();
}

}  // namespace

Taulukko KirjastojenTiedot() {
  return {{"Qt", qVersion(), "LGPL-3.0 / GPL-3.0"},
          {"SQLite", sqlite3_libversion(), "Public domain"},
          {"pugixml", PugixmlVersio(), "MIT"},
          {"libxlsxwriter", LXW_VERSION, "BSD-2-Clause"},
          {"libzip", LIBZIP_VERSION, "BSD-3-Clause"}};
}

Taulukko JarjestelmanTiedot() {
  return {
      {Teksti(tekstit::kKayttojarjestelma),
       (QSysInfo::prettyProductName() + ", " + QSysInfo::kernelVersion()).toStdString()},
      {Teksti(tekstit::kSuoritin), QSysInfo::currentCpuArchitecture().toStdString()},
      {Teksti(tekstit::kIkkunointi), QGuiApplication::platformName().toStdString()},
      {Teksti(tekstit::kNaytto), Naytto()},
      {Teksti(tekstit::kKieliymparisto), QLocale::system().name().toStdString()},
      {Teksti(tekstit::kOhjelmanTiedostot), AppPath()},
      {Teksti(tekstit::kAsetustenPaikka), AsetusHakemisto().string()},
  };
}

void NaytaTietoja() {
  frmAbout lomake(KirjastojenTiedot(), JarjestelmanTiedot());
  lomake.KopioiKlikattu = [&lomake] {
    QGuiApplication::clipboard()->setText(QString::fromStdString(lomake.Tekstina()));
  };
  lomake.NaytaModaalisena();
}
