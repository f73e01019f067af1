// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QTreeView>

#include "ui/qt/Luettelomalli.h"
#include "ui/qt/QtOhjain.h"
#include "ui/qt/Sarakeleveydet.h"

/// A list or a tree with columns. A click on a heading sorts it, Ctrl+C copies the selected rows (all when none is),
/// Ctrl+V gives rows to the form, Enter and a double click press it, F2 and a double click on a cell that can be
/// written in edit it, Insert and Delete ask for a new row and for the chosen one's removal, the space bar ticks its
/// box, Ctrl with the arrow up or down asks for it to change places.
class QtListView : public QtOhjain {
 public:
  QtListView(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QTreeView& lista);
  ~QtListView() override;

  bool KopioiLeikepoydalle() override;
  /// Puts the selected rows on the clipboard; all rows and the sums when none is selected.
  void KopioiValitut() const;
  /// Gives the rows that are on the clipboard to the form.
  void Liita();
  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

 protected:
  void NaytaPiirre(Piirre piirre) override;
  void PaivitaRivi(int rivi) override;

 private:
  void Asetukset();
  void Kuuntele();
  void NaytaRivit();
  void NaytaHaarat();
  void NaytaLajittelu();
  void NaytaIndeksi();
  void RiviValittu(const QModelIndex& paikka);
  void RiviaPainettu(const QModelIndex& paikka);
  bool Nappain(const QKeyEvent& tapahtuma);
  bool MuokkaaSolua();
  std::vector<int> ValitutRivit() const;

  QTreeView& lista_;
  Luettelomalli malli_;
  Sarakeleveydet leveydet_;
  bool hiljaa_ = false;  // the program is changing what the view shows
};
