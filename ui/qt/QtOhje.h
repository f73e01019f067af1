// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QObject>
#include <memory>

#include "ui/Ohje.h"

class Ohjeikkuna;

/// The user's guide in a window of its own, made when it is first asked for. F1 opens it, in any window of the program.
/// Sets itself as what shows the guide for its life; needs the QApplication.
class QtOhje : public QObject, public Ohjenaytto {
 public:
  QtOhje();
  ~QtOhje() override;

  void Avaa(int aihe) override;
  void AvaaHaku() override;
  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

 private:
  Ohjeikkuna* Ikkuna();

  std::unique_ptr<Ohjeikkuna> ikkuna_;
};
