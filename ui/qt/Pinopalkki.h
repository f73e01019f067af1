// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "ui/qt/Osuuskuva.h"

/// What something consists of as one stacked bar, the first part on top, its legend at the side in the same order. What
/// is missing from the whole (`Kaaviotiedot::taysi`) stays open at the bottom; a whole that the parts exceed is marked
/// by a line. The part under the pointer is outlined and tells its value and share.
class Pinopalkki : public Osuuskuva {
 public:
  using Osuuskuva::Osuuskuva;
  QSize sizeHint() const override;
  /// "Name: value unit (share %)" of the part at the point; "" when there is none.
  QString Seloste(const QPointF& kohta) const override;

 protected:
  void Piirra(QPainter& maalain) const override;

 private:
  QRectF Palkki() const;
  /// What fills the bar.
  double Koko() const;
  /// The bar's parts; an empty one for a value that has none.
  std::vector<QRectF> Osat() const;
  void PiirraOsat(QPainter& maalain) const;
};
