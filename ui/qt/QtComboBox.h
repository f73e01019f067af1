// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QComboBox>

#include "ui/qt/QtOhjain.h"

class Hakutaydennys;

/// Choice list. One whose rows have search words (a second cell) can be written in: what is written is looked for among
/// names and words, the hits are listed below, Enter takes the best one or the one that the arrows have reached, Esc
/// and leaving the field bring the chosen row's name back.
class QtComboBox : public QtOhjain {
 public:
  QtComboBox(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QComboBox& lista);

  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

 protected:
  void NaytaPiirre(Piirre piirre) override;

 private:
  void NaytaRivit();
  void TeeHaettavaksi();
  bool Haettava() const { return taydennys_ != nullptr; }
  bool Kirjoitettu() const;
  void ValitseParas();
  void PalautaTeksti();
  bool KasitteleHaku(QEvent& tapahtuma);

  QComboBox& lista_;
  Hakutaydennys* taydennys_ = nullptr;  // the list's child, once it has search words
};
