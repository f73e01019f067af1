// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/qt/Osuuskuva.h"

/// A pie with its title above and its legend at the side.
class Piirakka : public Osuuskuva {
 public:
  using Osuuskuva::Osuuskuva;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void Piirra(QPainter& maalain) const override;

 private:
  QSize Koko(int riveja) const;
  void PiirraSiivut(QPainter& maalain, const QRectF& ympyra) const;
};
