// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <initializer_list>

#include "checks/Tarkistukset.h"
#include "kernel/Olio.h"

/// The object under its names from the building down; one without a name is told to have none.
Havainnonkohde Kohde(const Olio& olio, std::initializer_list<std::string_view> nimet);

/// One check over one building: where it puts what it finds.
class Tarkistusajo {
 public:
  using Arvot = std::vector<std::string>;

  Tarkistusajo(clsRakennus& rakennus, const Tarkistus& tarkistus, std::vector<Havainto>& havainnot)
      : rakennus(rakennus), tarkistus_(tarkistus), havainnot_(havainnot) {}

  clsRakennus& rakennus;

  /// The building as a whole, by its basic data.
  Havainnonkohde Rakennuskohde() const;
  /// Adds a finding. `ohjain`: where it is mended, when it isn't the check's own control of the form.
  void Loytyi(Havainnonkohde kohde, const Arvot& arvot = {}, std::string_view ohjain = {});
  /// Adds one of the whole building.
  void LoytyiRakennuksesta(const Arvot& arvot = {}, std::string_view ohjain = {}) {
    Loytyi(Rakennuskohde(), arvot, ohjain);
  }
  /// Adds that the check could not be done.
  void EiOnnistunut(const std::exception& virhe);

 private:
  const Tarkistus& tarkistus_;
  std::vector<Havainto>& havainnot_;
};

// The checks of each part of a building.
std::span<const Tarkistus> Perustietotarkistukset();
std::span<const Tarkistus> Tilatarkistukset();
std::span<const Tarkistus> Konetarkistukset();
std::span<const Tarkistus> Kulutustarkistukset();
std::span<const Tarkistus> Hankintatarkistukset();
std::span<const Tarkistus> Tulostarkistukset();
