// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QPainter>
#include <functional>
#include <memory>
#include <vector>

/// A piece of a document that isn't divided between pages: a line of text, a row of a table, a chart. Measures are in
/// the units of the device.
struct Pala {
  using Piirto = std::function<void(QPainter&, double y)>;

  double korkeus = 0;
  double ennen = 0;  ///< room above it, not at the top of a page
  Piirto piirra{};
  bool seuraavanKanssa = false;  ///< on the same page as the next one
  bool uusiSivu = false;         ///< begins a page
  double venyy = 0;              ///< takes what is left of the page up to this height; 0: doesn't. Without room for its
                                 ///< `korkeus` it is left out
  std::function<void(QPainter&, double y, double korkeus)> piirraVenytetty{};
  std::shared_ptr<Pala> toistuva{};  ///< heading that is painted again above it at the top of a page
  int sisallys = -1;                 ///< number of the entry of the contents that it begins
};

/// Pages of pieces.
struct Sivu {
  std::vector<std::function<void(QPainter&)>> piirrot;
};
struct Sivutettu {
  std::vector<Sivu> sivut;
  std::vector<std::size_t> sisallys;  ///< page of each entry of the contents, from 0
};

/// Puts the pieces on pages, of which `yla` to `ala` is theirs, beginning at `alku` on the first one.
Sivutettu Sivuta(const std::vector<Pala>& palat, double yla, double ala);
