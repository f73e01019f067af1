// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Luettelomalli.h"

#include <QIcon>
#include <QMimeData>
#include <QStyle>
#include <utility>

namespace {

constexpr auto kTyyppi = "application/x-lumivirta-rivi";

QString Q(std::string_view teksti) { return QString::fromUtf8(teksti.data(), static_cast<qsizetype>(teksti.size())); }

std::size_t Koko(int luku) { return static_cast<std::size_t>(luku); }

/// How a meaning is shown on a light and on a dark ground.
struct Ulkoasu {
  QColor vaalealla, tummalla;
  QStyle::StandardPixmap merkki;
};

/// Contrast of at least 4.5 : 1 against white and against a dark theme's ground (#2d2d2d).
const Ulkoasu& MerkityksenUlkoasu(Merkitys merkitys) {
  static const Ulkoasu huomio{QColor(0x8a5300), QColor(0xffbf5e), QStyle::SP_MessageBoxWarning};
  static const Ulkoasu vanhentunut{QColor(0xb3261e), QColor(0xff9a90), QStyle::SP_BrowserReload};
  return merkitys == Merkitys::Huomio ? huomio : vanhentunut;
}

}  // namespace

Luettelomalli::Luettelomalli(Ohjain& ohjain, QTreeView& nakyma)
    : ohjain_(ohjain), nakyma_(nakyma), sarakkeita_(columnCount()) {}

QModelIndex Luettelomalli::Paikka(int rivi, int sarake) const {
  if (rivi < 0 || rivi > Lista().Maara()) return {};
  const int paikka =
      rivi == Lista().Maara() ? static_cast<int>(Lista().Alemmat(Luettelo::kEiRivia).size()) : Lista().Paikka(rivi);
  return createIndex(paikka, sarake, static_cast<quintptr>(rivi));
}

int Luettelomalli::Rivi(const QModelIndex& paikka) const {
  const auto rivi = static_cast<int>(paikka.internalId());
  return paikka.isValid() && rivi < Lista().Maara() ? rivi : -1;
}

bool Luettelomalli::OnSumma(const QModelIndex& paikka) const { return paikka.isValid() && Rivi(paikka) < 0; }

void Luettelomalli::RivitVaihtuivat() {
  beginResetModel();
  summa_ = !Lista().Summat().empty();
  endResetModel();
}

void Luettelomalli::RiviMuuttui(int rivi) { emit dataChanged(Paikka(rivi, 0), Paikka(rivi, columnCount() - 1)); }

void Luettelomalli::SummatMuuttuivat() {
  const int paikka = static_cast<int>(Lista().Alemmat(Luettelo::kEiRivia).size());
  const bool on = !Lista().Summat().empty();
  if (on && summa_) return RiviMuuttui(Lista().Maara());
  if (on == summa_) return;
  if (on)
    beginInsertRows({}, paikka, paikka);
  else
    beginRemoveRows({}, paikka, paikka);
  summa_ = on;
  if (on)
    endInsertRows();
  else
    endRemoveRows();
}

void Luettelomalli::OtsikotMuuttuivat() {
  const int ennen = std::exchange(sarakkeita_, columnCount());
  if (ennen != sarakkeita_) return RivitVaihtuivat();
  if (ennen > 0) emit headerDataChanged(Qt::Horizontal, 0, ennen - 1);
}

QModelIndex Luettelomalli::index(int rivi, int sarake, const QModelIndex& ylempi) const {
  if (OnSumma(ylempi) || rivi < 0 || sarake < 0 || rivi >= rowCount(ylempi)) return {};
  const std::vector<int>& rivit = Lista().Alemmat(Rivi(ylempi));
  const int numero = Koko(rivi) < rivit.size() ? rivit[Koko(rivi)] : Lista().Maara();
  return createIndex(rivi, sarake, static_cast<quintptr>(numero));
}

QModelIndex Luettelomalli::parent(const QModelIndex& paikka) const {
  const int rivi = Rivi(paikka);
  return rivi < 0 ? QModelIndex() : Paikka(Lista().Ylempi(rivi));
}

int Luettelomalli::rowCount(const QModelIndex& ylempi) const {
  if (OnSumma(ylempi) || ylempi.column() > 0) return 0;
  const auto rivit = static_cast<int>(Lista().Alemmat(Rivi(ylempi)).size());
  return ylempi.isValid() || !summa_ ? rivit : rivit + 1;
}

QString Luettelomalli::Teksti(const QModelIndex& paikka) const {
  const auto& solut = OnSumma(paikka) ? Lista().Summat() : Lista().Solut()[Koko(Rivi(paikka))];
  return Q(Solu(solut, Koko(paikka.column())));
}

Qt::Alignment Luettelomalli::Suunta(int sarake) const {
  const Tasaus tasaus = Lista().OnLukusarake(sarake) ? Tasaus::Oikea : ohjain_.Osat()[Koko(sarake)].tasaus;
  return Qt::AlignVCenter | (tasaus == Tasaus::Oikea   ? Qt::AlignRight
                             : tasaus == Tasaus::Keski ? Qt::AlignHCenter
                                                       : Qt::AlignLeft);
}

QVariant Luettelomalli::Fontti(const QModelIndex& paikka) const {
  if (!OnSumma(paikka) && !Lista().Piirteet(Rivi(paikka)).lihava) return {};
  QFont lihava = nakyma_.font();
  lihava.setBold(true);
  return lihava;
}

Merkitys Luettelomalli::SolunMerkitys(const QModelIndex& paikka) const {
  return Koskee(paikka) ? Lista().Piirteet(Rivi(paikka)).merkitys : Merkitys::Tavallinen;
}

/// Whether the meaning and the explanation of the row concern the cell.
bool Luettelomalli::Koskee(const QModelIndex& paikka) const {
  if (OnSumma(paikka)) return false;
  const int merkitty = Lista().Piirteet(Rivi(paikka)).merkitty;
  return merkitty == Rivipiirteet::kKokoRivi || merkitty == paikka.column();
}

/// The sums can't be chosen, which would grey them.
QVariant Luettelomalli::Vari(const QModelIndex& paikka) const {
  if (OnSumma(paikka)) return nakyma_.palette().brush(QPalette::Active, QPalette::Text);
  const Merkitys merkitys = SolunMerkitys(paikka);
  if (merkitys == Merkitys::Tavallinen) return {};
  const bool tumma = nakyma_.palette().color(QPalette::Base).lightness() < 128;
  const Ulkoasu& ulkoasu = MerkityksenUlkoasu(merkitys);
  return QBrush(tumma ? ulkoasu.tummalla : ulkoasu.vaalealla);
}

QVariant Luettelomalli::Merkki(const QModelIndex& paikka) const {
  const Merkitys merkitys = SolunMerkitys(paikka);
  if (merkitys == Merkitys::Tavallinen) return {};
  const int sarake = Lista().Piirteet(Rivi(paikka)).merkitty;
  if (paikka.column() != std::max(sarake, 0)) return {};
  return nakyma_.style()->standardIcon(MerkityksenUlkoasu(merkitys).merkki);
}

QString Luettelomalli::Selite(const QModelIndex& paikka) const {
  return Koskee(paikka) ? Q(Lista().Piirteet(Rivi(paikka)).selite) : QString();
}

QVariant Luettelomalli::Vihje(const QModelIndex& paikka) const {
  const QString selite = Selite(paikka);
  return selite.isEmpty() ? Teksti(paikka) : selite;
}

std::optional<bool> Luettelomalli::Rasti(const QModelIndex& paikka) const {
  return paikka.column() == 0 && Rivi(paikka) >= 0 ? Lista().Piirteet(Rivi(paikka)).rasti : std::nullopt;
}

QVariant Luettelomalli::data(const QModelIndex& paikka, int rooli) const {
  if (!paikka.isValid()) return {};
  switch (rooli) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return Teksti(paikka);
    case Qt::ToolTipRole:
      return Vihje(paikka);
    case Qt::AccessibleDescriptionRole:
      return Selite(paikka);
    case Qt::TextAlignmentRole:
      return QVariant(Suunta(paikka.column()));
    case Qt::FontRole:
      return Fontti(paikka);
    case Qt::ForegroundRole:
      return Vari(paikka);
    case Qt::DecorationRole:
      return Merkki(paikka);
    case Qt::CheckStateRole:
      if (const auto rasti = Rasti(paikka)) return *rasti ? Qt::Checked : Qt::Unchecked;
      return {};
    default:
      return {};
  }
}

QVariant Luettelomalli::headerData(int sarake, Qt::Orientation suunta, int rooli) const {
  if (suunta != Qt::Horizontal || sarake < 0 || sarake >= columnCount()) return {};
  const Osa& osa = ohjain_.Osat()[Koko(sarake)];
  if (rooli == Qt::DisplayRole) return Q(osa.otsikko);
  if (rooli == Qt::ToolTipRole && !osa.vihje.empty()) return Q(osa.vihje);
  if (rooli == Qt::TextAlignmentRole) return QVariant(Suunta(sarake));
  return {};
}

Qt::ItemFlags Luettelomalli::flags(const QModelIndex& paikka) const {
  const int rivi = Rivi(paikka);
  if (rivi < 0) return paikka.isValid() ? Qt::NoItemFlags : Qt::ItemIsDropEnabled;
  Qt::ItemFlags liput = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
  if (Lista().Muokattava(rivi, paikka.column())) liput |= Qt::ItemIsEditable;
  if (Lista().Piirteet(rivi).siirrettava) liput |= Qt::ItemIsDragEnabled;
  if (Rasti(paikka)) liput |= Qt::ItemIsUserCheckable;
  if (ohjain_.SaaSiirtaa) liput |= Qt::ItemIsDropEnabled;
  return liput;
}

bool Luettelomalli::setData(const QModelIndex& paikka, const QVariant& arvo, int rooli) {
  if (rooli == Qt::CheckStateRole && Rasti(paikka)) {
    ohjain_.KayttajaRastittaa(Rivi(paikka));
    return true;
  }
  if (rooli != Qt::EditRole || arvo.toString() == Teksti(paikka)) return false;
  ohjain_.KayttajaMuokkaa(Rivi(paikka), paikka.column(), arvo.toString().toStdString());
  return true;
}

QStringList Luettelomalli::mimeTypes() const { return {kTyyppi}; }

/// One row is dragged at a time: the one that was taken hold of.
QMimeData* Luettelomalli::mimeData(const QModelIndexList&) const {
  auto* data = new QMimeData;
  data->setData(kTyyppi, QByteArray::number(Rivi(nakyma_.currentIndex())));
  return data;
}

int Luettelomalli::Edellinen(int rivi, const QModelIndex& ylempi) const {
  if (ylempi.isValid()) return Rivi(ylempi);
  return rivi < 0 || rivi > Lista().Maara() ? Lista().Maara() - 1 : rivi - 1;
}

/// In a tree a row dropped between others goes under the same one as they.
bool Luettelomalli::canDropMimeData(const QMimeData* data, Qt::DropAction, int rivi, int,
                                    const QModelIndex& ylempi) const {
  if (!data->hasFormat(kTyyppi) || OnSumma(ylempi)) return false;
  const int siirrettava = data->data(kTyyppi).toInt();
  return ohjain_.SaaJarjestaa ? ohjain_.VoiJarjestaa(siirrettava, Edellinen(rivi, ylempi))
                              : ohjain_.VoiSiirtaa(siirrettava, Rivi(ylempi));
}

/// The listener fills the list anew: it is called when the toolkit has ended the drag.
bool Luettelomalli::dropMimeData(const QMimeData* data, Qt::DropAction toimi, int rivi, int sarake,
                                 const QModelIndex& ylempi) {
  if (!canDropMimeData(data, toimi, rivi, sarake, ylempi)) return false;
  const int siirrettava = data->data(kTyyppi).toInt(), kohde = Rivi(ylempi), edellinen = Edellinen(rivi, ylempi);
  const auto siirra = [this, siirrettava, kohde, edellinen] {
    ohjain_.SaaJarjestaa ? ohjain_.KayttajaJarjestaa(siirrettava, edellinen)
                         : ohjain_.KayttajaSiirtaa(siirrettava, kohde);
  };
  QMetaObject::invokeMethod(this, siirra, Qt::QueuedConnection);
  return true;
}
