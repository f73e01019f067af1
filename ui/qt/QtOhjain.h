// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "ui/Ohjain.h"

/// A control shown by a widget. Derived classes map the traits of their type.
class QtOhjain : public QObject, public Ohjain {
 public:
  QtOhjain(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QWidget* widget);

  QWidget* Widget() const { return widget_; }
  Lomakepaikka Sijainti() const override;
  /// Letter underlined in the caption, which the control answers to with Alt; a null one for none.
  virtual void AsetaPikakirjain(QChar) {}

 protected:
  void Paivita(Piirre piirre) final;
  /// Called only while the widget lives.
  virtual void NaytaPiirre(Piirre) {}

 private:
  void Kohdista();

  QPointer<QWidget> widget_;
};

/// The control of a widget, or nothing when the widget is none.
std::unique_ptr<QtOhjain> TeeOhjain(Lomakeikkuna& ikkuna, QWidget& widget);
