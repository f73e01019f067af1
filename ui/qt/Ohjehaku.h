// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QHash>
#include <QStringList>
#include <functional>
#include <vector>

#include "ui/Ohjeluettelo.h"
#include "ui/Perusmuodot.h"

/// Search of the user's guide. A word is found as it is written, also as a part of a longer one, and in any inflected
/// form of it and of the compounds that have it: "katto" finds "yläkaton".
class Ohjehaku {
 public:
  struct Osuma {
    QString sivu, otsikko;
    QString ote;   ///< what stands around the first word
    QString sana;  ///< the first word in the form that the page has it
  };

  /// The pages of the list; `lue` gives the HTML of one. They are read when the first search needs them.
  Ohjehaku(const Ohjeluettelo& luettelo, std::function<std::string(const QString& sivu)> lue);

  /// The pages that have all words of the search, those with the words in their title first.
  std::vector<Osuma> Hae(const QString& haku);

 private:
  struct Sivu {
    QString sivu, otsikko, teksti;
  };
  void LueSivut();
  const QStringList& Muodot(const QString& sana);
  QString Loyda(const QString& teksti, const QString& sana);
  bool OnKaikki(const QString& teksti, const QStringList& sanat);

  const Ohjeluettelo& luettelo_;
  std::function<std::string(const QString& sivu)> lue_;
  std::vector<Sivu> sivut_;
  Perusmuodot perusmuodot_;
  QHash<QString, QStringList> muodot_;
};
