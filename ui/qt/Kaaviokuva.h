// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QPointF>
#include <QStringList>
#include <QWidget>

#include "ui/Ohjain.h"

/// A chart painted in the palette's text colour on its base colour. Parts bear the number of their legend row, so that
/// colour alone doesn't tell them apart.
class Kaaviokuva : public QWidget {
 public:
  explicit Kaaviokuva(QWidget* vanhempi = nullptr);

  virtual void AsetaKaavio(const Kaaviotiedot& kaavio);
  /// Picture of the widget and its figures as text.
  void KopioiLeikepoydalle();
  /// Paints the chart on another device, a page of a report, in black on white. `alue` is in the painter's units, of
  /// which a screen's pixel takes `mittakaava`. For a chart that no window shows: its size and colours change.
  void Tulosta(QPainter& maalain, const QRectF& alue, double mittakaava);
  /// Writes the picture in the format that the file's extension tells. False when it can't be written.
  bool TallennaKuva(const std::string& tiedosto);
  QSize minimumSizeHint() const override { return sizeHint(); }
  /// What lies at the point, as the tool tip tells it; "" when nothing does.
  virtual QString Seloste(const QPointF&) const { return {}; }

 protected:
  /// Paints the whole chart in the widget's size, font and colours.
  virtual void Piirra(QPainter& maalain) const = 0;
  void paintEvent(QPaintEvent* tapahtuma) override;
  void mouseMoveEvent(QMouseEvent* tapahtuma) override;
  void leaveEvent(QEvent* tapahtuma) override;
  /// Where the pointer is; outside the widget when it isn't over it.
  const QPointF& Osoitin() const { return osoitin_; }

  const Kaaviotiedot& Tiedot() const { return kaavio_; }
  /// The figures as lines of cells with a tab between, and the names of the legend.
  virtual QStringList Luvut() const = 0;
  virtual QStringList Nimet() const = 0;

  static QString Teksti(const std::string& teksti) { return QString::fromStdString(teksti); }
  /// Colour of a legend row; clear of its neighbours also for the colour-blind.
  static QColor Vari(std::size_t i);
  static QString Numero(std::size_t i) { return QString::number(i + 1); }
  static QFont Lihava(QFont fontti);

  int SelitteenLeveys() const;
  /// Background and title; leaves the text colour and the plain font set.
  void PiirraPohja(QPainter& maalain) const;
  void PiirraSelite(QPainter& maalain, const QRect& alue) const;
  /// Mark of a legend row: a box in its colour with its number.
  virtual void PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const;

 private:
  Kaaviotiedot kaavio_;
  QPointF osoitin_{-1, -1};
};
