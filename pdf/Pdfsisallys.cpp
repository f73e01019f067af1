// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Pdfsisallys.h"

#include <QRegularExpression>
#include <map>
#include <optional>

namespace {

/// What an update has to know of a file.
struct Rakenne {
  int juuri = 0, koko = 0;   // number of the catalogue; of objects
  qint64 taulu = 0;          // where the cross-reference table begins
  QByteArray juurenSisalto;  // between << and >>
  QByteArray tiedot;         // the trailer's reference to the document's information
  std::vector<int> sivut;    // objects of the pages in their order
};

std::optional<QByteArray> Haku(const QString& teksti, const QString& lauseke) {
  const auto osuma = QRegularExpression(lauseke, QRegularExpression::DotMatchesEverythingOption).match(teksti);
  return osuma.hasMatch() ? std::optional(osuma.captured(1).toLatin1()) : std::nullopt;
}

/// Text of an object.
std::optional<QByteArray> Olio(const QString& pdf, int numero) {
  return Haku(pdf, QStringLiteral("\\n%1 0 obj\\s*<<(.*?)>>\\s*endobj").arg(numero));
}

std::optional<Rakenne> Lue(const QByteArray& pdf) {
  const QString teksti = QString::fromLatin1(pdf);
  const QString loppu = teksti.mid(teksti.lastIndexOf(QStringLiteral("trailer")));
  const auto juuri = Haku(loppu, "/Root (\\d+) 0 R"), koko = Haku(loppu, "/Size (\\d+)"),
             taulu = Haku(loppu, "startxref\\s+(\\d+)");
  if (!juuri || !koko || !taulu) return std::nullopt;
  Rakenne r{.juuri = juuri->toInt(), .koko = koko->toInt(), .taulu = taulu->toLongLong()};
  r.tiedot = Haku(loppu, "(/Info \\d+ 0 R)").value_or(QByteArray());
  const auto sisalto = Olio(teksti, r.juuri);
  if (!sisalto) return std::nullopt;
  r.juurenSisalto = *sisalto;
  const auto sivulista = Haku(QString::fromLatin1(*sisalto), "/Pages (\\d+) 0 R");
  const auto sivut = sivulista ? Olio(teksti, sivulista->toInt()) : std::nullopt;
  const auto lapset = sivut ? Haku(QString::fromLatin1(*sivut), "/Kids\\s*\\[(.*?)\\]") : std::nullopt;
  if (!lapset) return std::nullopt;
  auto viitteet = QRegularExpression(QStringLiteral("(\\d+) 0 R")).globalMatch(QString::fromLatin1(*lapset));
  while (viitteet.hasNext()) r.sivut.push_back(viitteet.next().captured(1).toInt());
  return r;
}

/// A text in UTF-16 as hexadecimal digits.
QByteArray Merkkijono(const QString& teksti) {
  QByteArray tulos("<FEFF");
  for (const QChar merkki : teksti) tulos += QByteArray::number(merkki.unicode(), 16).rightJustified(4, '0').toUpper();
  return tulos + ">";
}

/// The items of an outline as objects, numbered from `alku` on; the first one is the outline itself.
class Sisallys {
 public:
  Sisallys(const Rakenne& rakenne, const std::vector<Pdfkohta>& kohdat) : rakenne_(rakenne), kohdat_(kohdat) {
    int ylin = -1;
    for (int i = 0; i < static_cast<int>(kohdat.size()); ++i) {
      if (kohdat[static_cast<std::size_t>(i)].taso == 0) ylin = i;
      vanhemmat_.push_back(kohdat[static_cast<std::size_t>(i)].taso == 0 ? -1 : ylin);
      lapset_[vanhemmat_.back()].push_back(i);
    }
  }

  int Numero(int kohta) const { return rakenne_.koko + 1 + kohta; }  // -1 is the outline
  QByteArray Olio(int i) const {
    if (i < 0) return "/Type /Outlines" + Lapset(-1, true);
    const Pdfkohta& kohta = kohdat_[static_cast<std::size_t>(i)];
    const std::vector<int>& sisarukset = lapset_.at(vanhemmat_[static_cast<std::size_t>(i)]);
    const auto paikka = std::find(sisarukset.begin(), sisarukset.end(), i);
    QByteArray olio = "/Title " + Merkkijono(kohta.teksti) + " /Parent " +
                      Viite(Numero(vanhemmat_[static_cast<std::size_t>(i)])) + " /Dest [" +
                      Viite(rakenne_.sivut[static_cast<std::size_t>(kohta.sivu)]) + " /Fit]";
    if (paikka != sisarukset.begin()) olio += " /Prev " + Viite(Numero(*(paikka - 1)));
    if (paikka + 1 != sisarukset.end()) olio += " /Next " + Viite(Numero(*(paikka + 1)));
    return olio + Lapset(i, false);
  }

 private:
  static QByteArray Viite(int olio) { return QByteArray::number(olio) + " 0 R"; }
  /// A closed branch has a negative count.
  QByteArray Lapset(int kohta, bool auki) const {
    const auto lapset = lapset_.find(kohta);
    if (lapset == lapset_.end()) return {};
    const int maara = static_cast<int>(lapset->second.size());
    return " /First " + Viite(Numero(lapset->second.front())) + " /Last " + Viite(Numero(lapset->second.back())) +
           " /Count " + QByteArray::number(auki ? maara : -maara);
  }

  const Rakenne& rakenne_;
  const std::vector<Pdfkohta>& kohdat_;
  std::vector<int> vanhemmat_;
  std::map<int, std::vector<int>> lapset_;
};

/// Objects written behind a file, with the table of where they are.
class Paivitys {
 public:
  explicit Paivitys(const QByteArray& pdf) : pdf_(pdf) {
    if (!pdf_.endsWith('\n')) pdf_ += '\n';
  }
  void Lisaa(int numero, const QByteArray& sisalto) {
    paikat_[numero] = pdf_.size();
    pdf_ += QByteArray::number(numero) + " 0 obj\n<<" + sisalto + ">>\nendobj\n";
  }
  QByteArray Paata(const Rakenne& r) {
    const qint64 taulu = pdf_.size();
    pdf_ += "xref\n";
    for (const auto& [numero, paikka] : paikat_)
      pdf_ += QByteArray::number(numero) + " 1\n" + QByteArray::number(paikka).rightJustified(10, '0') + " 00000 n \n";
    pdf_ += "trailer\n<<\n/Size " + QByteArray::number(paikat_.rbegin()->first + 1) + "\n/Root " +
            QByteArray::number(r.juuri) + " 0 R\n" + r.tiedot + "\n/Prev " + QByteArray::number(r.taulu) +
            "\n>>\nstartxref\n" + QByteArray::number(taulu) + "\n%%EOF\n";
    return pdf_;
  }

 private:
  QByteArray pdf_;
  std::map<int, qint64> paikat_;
};

}  // namespace

QByteArray LisaaPdfsisallys(const QByteArray& pdf, const std::vector<Pdfkohta>& kohdat) {
  const auto rakenne = Lue(pdf);
  if (!rakenne || kohdat.empty()) return pdf;
  for (const Pdfkohta& kohta : kohdat)
    if (kohta.sivu >= static_cast<int>(rakenne->sivut.size())) return pdf;
  const Sisallys sisallys(*rakenne, kohdat);
  Paivitys paivitys(pdf);
  paivitys.Lisaa(rakenne->juuri, rakenne->juurenSisalto + "\n/Outlines " + QByteArray::number(sisallys.Numero(-1)) +
                                     " 0 R\n/PageMode /UseOutlines\n/Lang (fi-FI)\n");
  for (int i = -1; i < static_cast<int>(kohdat.size()); ++i) paivitys.Lisaa(sisallys.Numero(i), sisallys.Olio(i));
  return paivitys.Paata(*rakenne);
}
