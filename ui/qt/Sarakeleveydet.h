// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QList>
#include <QTreeView>

class Luettelo;
class Ohjain;

/// The widths of a list's columns: each as its contents and heading need; the first one of texts, which holds the
/// names, takes what is left over or gives what is lacking. A list whose columns tell their shares of its width
/// (Osa::leveys) gives them that, or what their contents need, and scrolls. When the person has dragged a border, the
/// widths are the person's.
class Sarakeleveydet : public QObject {
 public:
  Sarakeleveydet(QTreeView& nakyma, const Ohjain& ohjain);

  /// After the rows have changed: measures all.
  void Mittaa();
  /// After the cells of a row (the number of rows: of the sums) have changed.
  void MittaaRivi(int rivi);
  /// After the columns have changed. Others shown than before, the widths are shared out anew.
  void Sarakkeet();
  /// Shares out the room; also after a change of the sorting, whose arrow takes room.
  void Jaa();
  bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

 private:
  void MittaaSarake(int sarake);
  int LevennaKatkottuja(int vara);
  bool JaaOsuuksin();
  void JaaTarpeen();
  int SolunLeveys(int rivi, int sarake) const;
  int OtsikonLeveys(int sarake) const;
  int Nimisarake() const;
  int Tarve(int sarake) const;

  QTreeView& nakyma_;
  const Ohjain& ohjain_;
  const Luettelo& lista_;
  QList<int> sisallot_;  // widths of the contents, pixels
  bool omat_ = false;    // the person's
  bool jaetaan_ = false;
};
