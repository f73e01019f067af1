// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the library server. Started with --koti, this program is itself a server whose person follows the script in
// the environment variable KIRJASTOKOE; started with --asiakas, a program that opens the library and waits to be
// killed.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QApplication>
#include <QFile>
#include <QTimer>
#include <iostream>

#include "library/server/Palvelin.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/Kirjastoyhteys.h"
#include "ui/qt/QtIkkuna.h"
#include "ui/qt/QtViestit.h"

namespace {

void Paina(const char* nappi) {
  for (const char* nimi : {"frmRakennekirjasto", "frmMateriaalikirjasto"})
    if (Lomake* lomake = AvoinLomake(nimi)) lomake->Etsi(nappi).KayttajaPainaa();
}

bool OnIkkuna() { return AvoinLomake("frmRakennekirjasto") || AvoinLomake("frmMateriaalikirjasto"); }

/// Dies when a window is open; only once, when a file is given to remember it by.
void Kuole(const QString& muisti) {
  static bool kuolee = false;
  if (kuolee) return;
  if (QFile::exists(muisti)) return Paina("cmdOk");
  kuolee = true;
  if (!muisti.isEmpty()) QFile(muisti).open(QIODevice::WriteOnly);
  AvoinLomake("frmRakennekirjasto")->Etsi("txtUenintaan").KayttajaKirjoittaa("1");
  QTimer::singleShot(200, [] { raise(SIGKILL); });  // the program has heard of the condition
}

void Nayttele(const QString& kasikirjoitus) {
  if (!OnIkkuna()) return;
  const QString teko = kasikirjoitus.section(':', 0, 0);
  if (teko == "valitse") Paina("cmdOk");
  if (teko == "sulje") Paina("cmdPeruuta");
  if (teko == "kuole") Kuole(kasikirjoitus.section(':', 1));
}

/// Stands still until somebody lets it go on; tells its process in a file.
void Jumita(const std::string& koti) {
  KirjoitaTiedosto(koti + "/jumissa", std::to_string(getpid()));
  raise(SIGSTOP);
}

int AjaPalvelin(const std::string& koti) {
  AsetaAppPath(koti);
  const QString kasikirjoitus = qEnvironmentVariable("KIRJASTOKOE");
  Palvelin palvelin(PalvelimenPaikka(AppPath()));
  if (!palvelin.Kuuntele()) return 0;
  if (kasikirjoitus == "jumita") Jumita(koti);
  AlustaTekstit();
  const QtViestit viestit;
  AsetaQtLomakkeet(nullptr);
  QTimer henkilo;
  QObject::connect(&henkilo, &QTimer::timeout, [&] { Nayttele(kasikirjoitus); });
  henkilo.start(50);
  QApplication::setQuitOnLastWindowClosed(false);
  return QApplication::exec();
}

int AjaAsiakas(const std::string& koti) {
  Kirjastoyhteys yhteys({koti, Kirjastopalvelinohjelma(), [&] { return koti + "/Rakennekirjasto/Tietokanta.mdb"; },
                         [&] { return koti + "/Rakennekirjasto/Tietokanta_perus.mdb"; }});
  yhteys.NaytaRakennekirjasto();
  QTimer kysely;
  QObject::connect(&kysely, &QTimer::timeout, [&] {
    if (yhteys.Prosessi() != 0) std::cout << yhteys.Prosessi() << std::endl, kysely.stop();
  });
  kysely.start(20);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication sovellus(argc, argv);
  if (argc == 3 && argv[1] == std::string("--koti")) return AjaPalvelin(argv[2]);
  if (argc == 3 && argv[1] == std::string("--asiakas")) return AjaAsiakas(argv[2]);
  AlustaTekstit();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
