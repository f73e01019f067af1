// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-pdf: the audit report of a project file as a PDF, without a display. lumivirta-laske starts it.
#include <QApplication>
#include <iostream>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "pdf/Pdfraportti.h"
#include "results/raportti/Raportinosat.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/KerataanViestit.h"
#include "ui/Tekstivarasto.h"

int main(int argc, char** argv) try {
  if (argc != 3) return std::cerr << "Käyttö: lumivirta-pdf KOHDE.lvt RAPORTTI.pdf\n", 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // no desktop is missed here
  const QApplication ohjelma(argc, argv);
  AlustaTekstit();
  Asetukset().HaeRekisteristä();
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  rakennus.Hae(argv[1]);
  KirjoitaPdfraportti(TeeRaportti(rakennus), argv[2]);
  return 0;
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-pdf: " << argv[1] << ": " << SyynKuvaus(virhe) << '\n';
  return 1;
}
