// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

#include "kernel/Hakemistot.h"
#include "library/Kirjastopaikka.h"
#include "library/server/Asiakas.h"

/// The server process: takes the programs that connect, and ends when the last one has gone.
///
/// 1. Whoever holds the lock file is the server of its data directory; a second one ends at once.
/// 2. A program that goes, or dies, takes its windows along; their edits are stored already. What couldn't be stored is
///    tried for half a minute, whoever comes and goes meanwhile.
/// 3. With no program the process ends, though a question may be open.
class Palvelin : public QObject {
 public:
  explicit Palvelin(Kirjastopaikka paikka);

  /// False when another server runs or the socket can't be made.
  bool Kuuntele();

 private:
  void OtaAsiakkaat();
  void Poistui(Asiakas& asiakas);
  void Siivoa();
  void YritaTallennuksia();

  Kirjastopaikka paikka_;
  std::optional<Lukitus> lukko_;
  QLocalServer kuuntelija_;
  std::vector<std::unique_ptr<Asiakas>> asiakkaat_;
  struct Poistunut {
    std::unique_ptr<Asiakas> asiakas;
    QDeadlineTimer takaraja;
  };
  std::vector<Poistunut> poistuneet_;  // until no command runs and all of theirs is stored
  QTimer siivous_;
  QTimer tallennus_;
};
