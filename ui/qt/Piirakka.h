// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/qt/Kaaviokuva.h"

/// A pie with its title above and its legend, names and values, at the side. Values that aren't above 0 have no slice.
class Piirakka : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* tapahtuma) override;
  QStringList Luvut() const override;
  QStringList Nimet() const override;

 private:
  void PiirraSiivut(QPainter& maalain, const QRectF& ympyra) const;
};
