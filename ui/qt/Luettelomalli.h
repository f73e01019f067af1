// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QAbstractItemModel>
#include <QTreeView>

#include "ui/Ohjain.h"

/// The rows of a list as the toolkit's views want them. It holds nothing of its own: the view asks what it paints.
class Luettelomalli : public QAbstractItemModel {
 public:
  /// Shows the rows of `ohjain` in `nakyma`, whose font and colours it follows. Both outlive it.
  Luettelomalli(Ohjain& ohjain, QTreeView& nakyma);

  /// The place of a row; of the sums for the number of rows, of nothing for -1.
  QModelIndex Paikka(int rivi, int sarake = 0) const;
  /// The row at the place; -1 for the sums and for no place.
  int Rivi(const QModelIndex& paikka) const;

  // To be called after the change.
  void RivitVaihtuivat();
  void RiviMuuttui(int rivi);
  /// The sums have come, gone or changed.
  void SummatMuuttuivat();
  void OtsikotMuuttuivat();

  QModelIndex index(int rivi, int sarake, const QModelIndex& ylempi = {}) const override;
  QModelIndex parent(const QModelIndex& paikka) const override;
  int rowCount(const QModelIndex& ylempi = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return static_cast<int>(ohjain_.Osat().size()); }
  QVariant data(const QModelIndex& paikka, int rooli) const override;
  QVariant headerData(int sarake, Qt::Orientation suunta, int rooli) const override;
  Qt::ItemFlags flags(const QModelIndex& paikka) const override;
  bool setData(const QModelIndex& paikka, const QVariant& arvo, int rooli) override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& paikat) const override;
  bool canDropMimeData(const QMimeData* data, Qt::DropAction toimi, int rivi, int sarake,
                       const QModelIndex& ylempi) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction toimi, int rivi, int sarake,
                    const QModelIndex& ylempi) override;

 private:
  const Luettelo& Lista() const { return ohjain_.Lista(); }
  bool OnSumma(const QModelIndex& paikka) const;
  QString Teksti(const QModelIndex& paikka) const;
  Qt::Alignment Suunta(int sarake) const;
  QVariant Fontti(const QModelIndex& paikka) const;
  QVariant Vari(const QModelIndex& paikka) const;
  QVariant Merkki(const QModelIndex& paikka) const;
  QVariant Vihje(const QModelIndex& paikka) const;
  /// The tick of the row, in its first cell; nothing in others.
  std::optional<bool> Rasti(const QModelIndex& paikka) const;
  /// The row behind which a drop puts the dragged one.
  int Edellinen(int rivi, const QModelIndex& ylempi) const;
  QString Selite(const QModelIndex& paikka) const;
  bool Koskee(const QModelIndex& paikka) const;
  /// The meaning that the cell shows.
  Merkitys SolunMerkitys(const QModelIndex& paikka) const;

  Ohjain& ohjain_;
  QTreeView& nakyma_;
  int sarakkeita_;  // what the view has been told of, as below
  bool summa_ = false;
};
