// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Ikkunakoko.h"

#include <QRegularExpression>

#include "kernel/Asetusvarasto.h"

namespace {

constexpr const char* kOsio = "Ikkunakoot";

/// "640x480"; an invalid size for any other text.
QSize LueKoko(const QString& lomake) {
  static const QRegularExpression kuvio(QStringLiteral(R"(^(\d{1,5})x(\d{1,5})$)"));
  const auto osuma = kuvio.match(QString::fromStdString(HaeAsetus(kOsio, lomake.toStdString(), "")));
  return osuma.hasMatch() ? QSize(osuma.captured(1).toInt(), osuma.captured(2).toInt()) : QSize();
}

}  // namespace

void Ikkunakoko::Aloita(QWidget& kehys, const QString& lomake, const QSize& enintaan) {
  lomake_ = lomake;
  if (const QSize koko = LueKoko(lomake); koko.isValid())
    kehys.resize(koko.expandedTo(kehys.minimumSizeHint()).boundedTo(enintaan));
  alussa_ = kehys.size();
}

/// Remembering is a convenience: a store that can't be written is no matter here.
void Ikkunakoko::Lopeta(const QWidget& kehys) try {
  if (!alussa_.isValid() || kehys.isMinimized() || kehys.isMaximized() || kehys.size() == alussa_) return;
  TallennaAsetus(kOsio, lomake_.toStdString(), std::to_string(kehys.width()) + "x" + std::to_string(kehys.height()));
} catch (const std::exception&) {
}
