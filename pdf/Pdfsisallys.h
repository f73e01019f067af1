// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

/// A heading of a document and its page, from 0.
struct Pdfkohta {
  QString teksti;
  int taso = 0;  ///< 0 a chapter, 1 a section of the chapter before it
  int sivu = 0;
};

/// The PDF with an outline (ISO 32000-1, 12.3.3) and Finnish as its language, added as an update at its end, since Qt's
/// writer makes none. A file that isn't as that writer makes them is given back as it is.
QByteArray LisaaPdfsisallys(const QByteArray& pdf, const std::vector<Pdfkohta>& kohdat);
