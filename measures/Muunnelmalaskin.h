// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "building/clsRakennus.h"
#include "measures/Hyodykkeet.h"
#include "measures/Muunnelma.h"

/// What the energy and the water of a year cost and emit.
struct Ostot {
  Hyodykkeet hinta;    ///< €/a without VAT: energy at the mean prices of the supplies, and their yearly fees
  double paastot = 0;  ///< global warming of bought heat and electricity, t/a of CO2 equivalent

  friend Ostot operator-(const Ostot& a, const Ostot& b) noexcept { return {a.hinta - b.hinta, a.paastot - b.paastot}; }
};

/// Computes gross figures of variations of a building, the one that the windows show or any other, and of these only
/// what they reach: of every space and machine it keeps the figures of the building as it stands (the base), taken in
/// one bracket and anew when the building's objects or committed values have changed. Sums run over all spaces and
/// machines in their order, so that each figure is that of a whole calculation to the last bit.
///
/// Figures: heat and electricity MWh/a, water m³/a. Errors: those of the calculation; the building is then as it was.
class Muunnelmalaskin {
 public:
  explicit Muunnelmalaskin(clsRakennus& rakennus) noexcept : rakennus_(rakennus) {}
  Muunnelmalaskin(const Muunnelmalaskin&) = delete;
  Muunnelmalaskin& operator=(const Muunnelmalaskin&) = delete;

  clsRakennus& Rakennus() const noexcept { return rakennus_; }
  /// Gross figures of the building as it stands.
  const Hyodykkeet& Perusta();
  /// What the building as it stands costs and emits at these gross figures.
  Ostot PerustanOstot(const Hyodykkeet& brutto);
  /// Gross figures under the variation, which is laid on the building and taken back.
  Hyodykkeet Laske(const clsMuuttuneetAttribuutit& muuttuneet);
  /// Share of the gains of a space that its heating makes use of, control losses off: of all spaces with the empty key.
  /// 0 when there are no gains.
  double Hyotyosuus(const Tunniste& tila);

 private:
  friend class Muunnelmaketju;
  struct Tilaluvut {
    double tarve, saatohaviot, sahko;  // the last: both, if heated by electricity
  };
  struct Koneluvut {
    double jalkilammitys, patteri, puhaltimet;
  };
  struct Hyoty {
    double hyodynnetyt, kuormat;
  };
  /// Figures of objects of one class by their order, and what they were before a variation.
  template <class Olio, class Luvut>
  struct Luvusto {
    std::vector<Luvut> luvut;
    std::unordered_map<const Olio*, std::size_t> paikat;
    std::vector<std::pair<std::size_t, Luvut>> entiset;

    void Tyhjenna();
    void Lisaa(const Olio& olio, const Luvut& uudet);
    void Vaihda(const Olio& olio, const Luvut& uudet);
    void Palauta() noexcept;
  };

  static Tilaluvut Lue(clsTila& tila);
  static Koneluvut Lue(const clsIVKone& kone);
  clsRakennus& PerustaLuettuna();
  void LuePerusta();
  std::vector<Hyoty> LueHyodyt() const;
  void PalautaPerusta() noexcept;
  void LaskeUudelleen(const Muunnelma::Ulottuvuus& ulottuvuus);
  Energiasummat Summat() const;
  Hyodykkeet Brutto() const;
  Ostot LaskeOstot(const Hyodykkeet& brutto) const;

  clsRakennus& rakennus_;
  bool voimassa_ = false;
  std::uint64_t vaihe_ = 0;  // of the building when the base was taken
  Hyodykkeet perusta_;
  Luvusto<clsTila, Tilaluvut> tilat_;
  Luvusto<clsIVKone, Koneluvut> koneet_;
  std::optional<std::vector<Hyoty>> hyodyt_;  // by space, when asked for
};
