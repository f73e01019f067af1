// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QWidget>

#include "ui/Ohjain.h"

/// A pie with its title above and its legend at the side, painted in the palette's text colour on its base colour. Each
/// slice bears the number of its legend row, so that colour alone doesn't tell the slices apart. Values that aren't
/// above 0 have no slice.
class Piirakka : public QWidget {
 public:
  explicit Piirakka(QWidget* vanhempi = nullptr);

  void AsetaKaavio(const Kaaviotiedot& kaavio);
  /// Picture of the widget and its figures as text.
  void KopioiLeikepoydalle();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* tapahtuma) override;

 private:
  int SelitteenLeveys() const;
  void PiirraSiivut(QPainter& maalain, const QRectF& ympyra) const;
  void PiirraSelite(QPainter& maalain, const QRect& alue) const;

  Kaaviotiedot kaavio_;
};
