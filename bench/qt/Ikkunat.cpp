// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/qt/Ikkunat.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QMdiArea>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "bench/Parit.h"
#include "kernel/Hakemistot.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/QtIkkuna.h"

extern char** environ;

namespace mittaus {

namespace {

/// Sees the first paint of a window or of a part of it.
class Maalaus : public QObject {
 public:
  explicit Maalaus(QWidget& ikkuna) : ikkuna_(ikkuna) { qApp->installEventFilter(this); }
  void Odota() const {
    while (!maalattu_) QApplication::processEvents();
  }

 private:
  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override {
    const auto* osa = qobject_cast<QWidget*>(kohde);
    maalattu_ = maalattu_ || (osa && osa->window() == &ikkuna_ && tapahtuma->type() == QEvent::Paint);
    return false;
  }
  QWidget& ikkuna_;
  bool maalattu_ = false;
};

/// Resident memory of this process, MB.
double KaytettyMuisti() {
  std::ifstream virta("/proc/self/smaps_rollup");
  for (std::string sana; virta >> sana;)
    if (double kilotavuja = 0; sana == "Rss:" && virta >> kilotavuja) return kilotavuja / 1024;
  throw std::runtime_error("no figure of the memory");
}

/// A sample audit that the build has made.
std::string Malliauditointi() {
  for (const auto& tiedosto : std::filesystem::directory_iterator(AppPath() + "Malliauditoinnit"))
    if (tiedosto.path().extension() == ".lvt") return tiedosto.path().string();
  throw std::runtime_error("there is no sample audit in " + AppPath());
}

}  // namespace

void Nayta(QWidget& ikkuna) {
  Maalaus maalaus(ikkuna);
  ikkuna.show();
  maalaus.Odota();
}

std::unique_ptr<QMainWindow> TeePaljasIkkuna() {
  auto ikkuna = std::make_unique<QMainWindow>();
  ikkuna->setCentralWidget(new QMdiArea);
  ikkuna->resize(814, 634);
  return ikkuna;
}

Ohjelmaikkuna::Ohjelmaikkuna() {
  SiemennaTiedostot();
  AlustaTekstit();
  AsetaQtLomakkeet(nullptr);
  ikkuna = std::make_unique<frmMain>(istunto);
  PaivitaKaynnistyksessa();
  Asetukset().HaeRekisteristä();
  AsetaRahayksikko(Asetukset().strDefaultCurrencyUnit);
}

int AjaRooli(std::string_view rooli) {
  std::unique_ptr<QMainWindow> paljas;
  std::unique_ptr<Ohjelmaikkuna> ohjelma;
  if (rooli == kPaljas)
    paljas = TeePaljasIkkuna();
  else
    ohjelma = std::make_unique<Ohjelmaikkuna>();
  Nayta(paljas ? *paljas : *ohjelma->ikkuna);
  if (rooli == kAvattu && !ohjelma->istunto.Avaa(Malliauditointi())) return 1;
  std::cout << KaytettyMuisti() << std::endl;
  return 0;
}

namespace {

/// Starts this program; what it prints goes to `putki`, its chatter nowhere.
pid_t Kaynnista(const char* rooli, int putki) {
  posix_spawn_file_actions_t toimet;
  posix_spawn_file_actions_init(&toimet);
  posix_spawn_file_actions_adddup2(&toimet, putki, STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&toimet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  std::string nimi = "/proc/self/exe", arvo = rooli;
  char* argumentit[] = {nimi.data(), arvo.data(), nullptr};
  pid_t lapsi = -1;
  const int virhe = posix_spawn(&lapsi, nimi.c_str(), &toimet, nullptr, argumentit, environ);
  posix_spawn_file_actions_destroy(&toimet);
  return virhe ? -1 : lapsi;
}

}  // namespace

Rooliajo::Rooliajo(const char* rooli) {
  int putki[2];
  if (pipe2(putki, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  std::string tulos(64, '\0');
  pid_t lapsi = -1;
  kesto = Kesto([&] {
    lapsi = Kaynnista(rooli, putki[1]);
    close(putki[1]);
    if (read(putki[0], tulos.data(), tulos.size() - 1) <= 0) tulos.clear();
  });
  close(putki[0]);
  int tila = 0;
  if (lapsi < 0 || waitpid(lapsi, &tila, 0) != lapsi || tila != 0 || tulos.empty())
    throw std::runtime_error(std::string("the role failed: ") + rooli);
  muisti = std::strtod(tulos.c_str(), nullptr);
}

}  // namespace mittaus
