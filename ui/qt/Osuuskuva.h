// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/qt/Kaaviokuva.h"

/// A chart of what something consists of: parts with their names and values, told in the legend. Values that aren't
/// above 0 have no part in the picture.
class Osuuskuva : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;

 protected:
  QStringList Luvut() const override;
  QStringList Nimet() const override;
  /// Sum of the parts that the picture has.
  double Summa() const;
};
