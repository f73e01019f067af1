// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QScrollArea>

/// What a form shows above its button row. Asks for the room of its contents, but can be made smaller and scrolls then,
/// so that a form fits on any screen. The control that gets the focus is scrolled into view.
class Vieritysalue : public QScrollArea {
 public:
  Vieritysalue();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
};

/// Puts the rows of the form's layout, all but the last one, its buttons, into an area that scrolls.
void VieritaLomaketta(QWidget& juuri);

/// The size of a window that asks for `koko` on a screen with the room `tila`: what is left without room gets a scroll
/// bar, and the other direction the width of the bar.
QSize Mahtuva(const QSize& koko, const QSize& tila);
