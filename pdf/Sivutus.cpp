// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Sivutus.h"

#include <algorithm>

namespace {

class Sivuttaja {
 public:
  Sivuttaja(const std::vector<Pala>& palat, double yla, double ala) : palat_(palat), yla_(yla), ala_(ala), y_(yla) {
    tulos_.sivut.emplace_back();
  }

  Sivutettu Sivuta() {
    for (std::size_t i = 0; i < palat_.size(); ++i) Aseta(i);
    return std::move(tulos_);
  }

 private:
  bool Sivunalussa() const { return y_ <= yla_; }
  double Ennen(const Pala& pala) const { return Sivunalussa() ? 0 : pala.ennen; }

  /// What has to fit with the piece on one page.
  double Sidottu(std::size_t i) const {
    double korkeus = palat_[i].korkeus;
    for (; palat_[i].seuraavanKanssa && i + 1 < palat_.size(); ++i)
      korkeus += palat_[i + 1].ennen + palat_[i + 1].korkeus;
    return korkeus;
  }

  void Aseta(std::size_t i) {
    const Pala& pala = palat_[i];
    if (pala.venyy > 0) return Venyta(pala);
    const double sidottu = Sidottu(i);
    const bool mahtuu = y_ + Ennen(pala) + (sidottu <= ala_ - yla_ ? sidottu : pala.korkeus) <= ala_;
    if (!Sivunalussa() && (pala.uusiSivu || !mahtuu)) Vaihda(pala);
    y_ += Ennen(pala);
    Piirra([&pala, y = y_](QPainter& maalain) { pala.piirra(maalain, y); });
    KirjaaSisallykseen(pala);
    y_ += pala.korkeus;
  }
  void Vaihda(const Pala& pala) {
    tulos_.sivut.emplace_back();
    y_ = yla_;
    if (!pala.toistuva) return;
    Piirra([otsikko = pala.toistuva, y = y_](QPainter& maalain) { otsikko->piirra(maalain, y); });
    y_ += pala.toistuva->korkeus;
  }
  void Venyta(const Pala& pala) {
    const double tilaa = ala_ - y_ - pala.ennen;
    if (tilaa < pala.korkeus) return;
    const double korkeus = std::min(tilaa, pala.venyy);
    Piirra([&pala, y = y_ + pala.ennen, korkeus](QPainter& maalain) { pala.piirraVenytetty(maalain, y, korkeus); });
    y_ += pala.ennen + korkeus;
  }
  void Piirra(std::function<void(QPainter&)> piirto) { tulos_.sivut.back().piirrot.push_back(std::move(piirto)); }
  void KirjaaSisallykseen(const Pala& pala) {
    if (pala.sisallys < 0) return;
    const auto paikka = static_cast<std::size_t>(pala.sisallys);
    tulos_.sisallys.resize(std::max(tulos_.sisallys.size(), paikka + 1));
    tulos_.sisallys[paikka] = tulos_.sivut.size() - 1;
  }

  const std::vector<Pala>& palat_;
  double yla_, ala_, y_;
  Sivutettu tulos_;
};

}  // namespace

Sivutettu Sivuta(const std::vector<Pala>& palat, double yla, double ala) { return Sivuttaja(palat, yla, ala).Sivuta(); }
