// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "kernel/Kokoelma.h"

class clsRakennus;

/// The building that a part of the model belongs to. From it spaces, structures, machines and consumers get what they
/// share: basic data, weather, each other. So any building can be calculated, several side by side on threads of their
/// own.
///
/// 1. A building gives its home to its collections when it is made, a collection to every item that comes to it.
/// 2. Assignment doesn't move: what is copied over a part leaves the part where it is.
/// 3. A copy that stands in no building (a dialog's reserve, a measure's object) has the home of its source.
/// 4. When the building is gone, those that are left have none: asking raises std::logic_error.
class Koti {
 public:
  Koti() = default;
  explicit Koti(clsRakennus& rakennus) : osoite_(std::make_shared<Osoite>(&rakennus)) {}
  Koti(const Koti&) = default;
  Koti& operator=(const Koti& toinen) {
    if (!osoite_) osoite_ = toinen.osoite_;
    return *this;
  }

  void Muuta(const Koti& uusi) { osoite_ = uusi.osoite_; }
  /// To be called by the building when it goes.
  void Havia() noexcept { *osoite_ = nullptr; }
  /// The building, or nothing.
  clsRakennus* Etsi() const noexcept { return osoite_ ? *osoite_ : nullptr; }
  /// The building. Raises std::logic_error when there is none.
  clsRakennus& Rakennus() const;

 private:
  using Osoite = clsRakennus*;
  std::shared_ptr<Osoite> osoite_;
};

/// A collection whose items know their building: T has `Kotiudu(const Koti&)`.
template <class T>
class Kotikokoelma : public Kokoelma<T> {
 public:
  /// Gives the home to the collection and its items.
  void Kotiudu(const Koti& koti) {
    koti_.Muuta(koti);
    for (T& alkio : *this) alkio.Kotiudu(koti_);
  }

 protected:
  clsRakennus& Rakennus() const { return koti_.Rakennus(); }
  void Saapui(T& alkio) override { alkio.Kotiudu(koti_); }

 private:
  Koti koti_;
};
