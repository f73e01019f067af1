// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QTreeWidget>

#include "ui/qt/QtOhjain.h"

/// A list with columns. A click on a heading sorts it, Ctrl+C copies the selected rows (all when none is), Ctrl+V gives
/// rows to the form, Enter and a double click press it.
class QtListView : public QtOhjain {
 public:
  QtListView(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QTreeWidget& lista);

  bool KopioiLeikepoydalle() override;
  /// Puts the selected rows on the clipboard; all rows and the sums when none is selected.
  void KopioiValitut() const;
  /// Gives the rows that are on the clipboard to the form.
  void Liita();
  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

 protected:
  void NaytaPiirre(Piirre piirre) override;

 private:
  void NaytaOtsikot();
  void NaytaRivit();
  void NaytaRivi(int paikka, const std::vector<std::string>& solut);
  void NaytaIndeksi();
  void NaytaSummarivi();
  void MitoitaSarakkeet();
  void SovitaNuoli(int sarake);
  int Tarve() const;
  void KavennaNimi();
  void RiviValittu(const QTreeWidgetItem* rivi);
  bool Nappain(const QKeyEvent& tapahtuma);
  QTreeWidgetItem* RivinPaikka(int indeksi) const;
  std::vector<int> ValitutRivit() const;
  Qt::Alignment Tasaus(int sarake) const;

  QTreeWidget& lista_;
  std::vector<Qt::Alignment> tasaukset_;  // of the columns of texts, as the form file has them
  bool mitoitettu_ = false;               // later the widths are the person's
  bool summatMitoitettu_ = false;
  struct {
    int sarake = -1;
    int lisa = 0;     // what the sort arrow has widened the column by
    int nimesta = 0;  // and what of it came from the first column
  } nuoli_;
};
