// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "measures/Muunnelmalaskin.h"

/// Variations laid upon one another for one scope, one at a time of a calculator: each is computed with all those
/// before it in force. Errors: 9999; whatever has been laid on is taken back at the end of the scope.
class Muunnelmaketju {
 public:
  explicit Muunnelmaketju(Muunnelmalaskin& laskin);
  ~Muunnelmaketju();
  Muunnelmaketju(const Muunnelmaketju&) = delete;
  Muunnelmaketju& operator=(const Muunnelmaketju&) = delete;

  /// Gross figures with the list in force, too.
  Hyodykkeet Liita(const clsMuuttuneetAttribuutit& muuttuneet);
  /// What the building costs and emits in its present state at these gross figures.
  Ostot LaskeOstot(const Hyodykkeet& brutto) const { return laskin_.LaskeOstot(brutto); }
  const std::vector<Muunnelma::Ohitettu>& Ohitetut() const noexcept { return muunnelma_.Ohitetut(); }

 private:
  Muunnelmalaskin& laskin_;
  Muunnelma muunnelma_;
};
