// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Ladonta.h"

#include <QStringList>
#include <algorithm>
#include <array>

namespace {

constexpr QChar kOhuke(0x202F), kSitova(0x00A0), kMiinus(0x2212);
constexpr std::array kYksikot = {"%",  "°",  "€",  "MWh", "kWh", "m²",   "m³", "dm³",
                                 "kg", "kW", "W/", "t",   "h",   "kVAr", "K",  "a"};

/// A group of exactly three digits begins there.
bool OnRyhma(const QString& s, qsizetype i) {
  const auto numero = [&](qsizetype j) { return j < s.size() && s[j].isDigit(); };
  return numero(i) && numero(i + 1) && numero(i + 2) && !numero(i + 3);
}

/// A unit begins there and ends with its word.
bool OnYksikko(const QString& s, qsizetype i) {
  return std::ranges::any_of(kYksikot, [&](const char* yksikko) {
    const QString y = QString::fromUtf8(yksikko);
    if (QStringView(s).mid(i, y.size()) != y) return false;
    const qsizetype loppu = i + y.size();
    return loppu == s.size() || !s[loppu].isLetterOrNumber();
  });
}

}  // namespace

QString Ladottu(const std::string& teksti) {
  QString s = QString::fromStdString(teksti);
  for (qsizetype i = 0; i < s.size(); ++i) {
    const bool numeroEnnen = i > 0 && (s[i - 1].isDigit());
    if (s[i] == ' ' && numeroEnnen) {
      if (OnRyhma(s, i + 1))
        s[i] = kOhuke;
      else if (OnYksikko(s, i + 1))
        s[i] = kSitova;
    } else if (s[i] == '-' && i + 1 < s.size() && s[i + 1].isDigit() &&
               (i == 0 || s[i - 1].isSpace() || s[i - 1] == '(')) {
      s[i] = kMiinus;
    }
  }
  return s;
}
