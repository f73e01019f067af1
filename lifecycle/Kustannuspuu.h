// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "lifecycle/Elinkaarihierarkia.h"
#include "lifecycle/Investointilaskelma.h"
#include "lifecycle/clsElinkaarisolmu.h"

class clsRakennus;

/// The tree of founding costs or of yearly upkeep of a building, with what each node costs. Amounts are in euros
/// without VAT; upkeep €/a.
///
/// A node with nodes below is their sum unless it has an amount of its own. The fees of heat, water and electricity
/// come from the model's gross use and the supplies' tariffs unless they are overridden. A node of which nothing is
/// known costs nothing that could be told, which isn't the same as 0.
class Kustannuspuu {
 public:
  enum class Laji { Perustaminen, Hoito };
  /// What a cost rises by.
  enum class Nousu { Ei, Lampo, Sahko, Vesi };
  struct Solmu : Hierarkiasolmu {
    Nousu nousu = Nousu::Ei;
    std::int32_t tyyppi = clsElinkaarisolmu::OmaArvo;
    std::int32_t omaTyyppi = clsElinkaarisolmu::OmaArvo;  ///< type without an entry
    bool syotetty = false;                                ///< the person has made an entry
    std::string laskentayksikko;
    bool maaraMallista = false;        ///< the number of units is the model's
    std::optional<double> mallinArvo;  ///< yearly cost by the model
    std::optional<double> maara;       ///< number of units
    std::optional<double> yksikkokustannus;
    std::optional<double> kustannus;

    /// The person's own cost stands in place of the model's.
    bool OhittaaMallin() const { return mallinArvo && tyyppi != clsElinkaarisolmu::Mallista; }
  };

  /// Errors: 9999 when a supply's fees can't be computed.
  Kustannuspuu(clsRakennus& rakennus, Laji laji);

  /// Reckons anew with these entries; what the model says stays.
  void Laske(const clsElinkaarisolmut& syotetyt);

  const std::vector<Solmu>& Solmut() const noexcept { return solmut_; }
  /// The node, or nothing.
  const Solmu* Etsi(const Tunniste& avain) const;
  /// The root's cost.
  std::optional<double> Yhteensa() const { return solmut_.front().kustannus; }
  /// Present value of all yearly costs over the period, each with its rise; nothing when nothing is known.
  std::optional<double> Nykyarvo(const Elinkaarioletukset& oletukset) const;

 private:
  Solmu* Solmuksi(std::string_view avain);
  void OtaHankinta(clsRakennus& rakennus);
  static void OtaOmat(Solmu& solmu);
  static void OtaSyotetty(Solmu& solmu, const clsElinkaarisolmu& syotetty);
  void LaskeKustannukset();
  std::optional<double> Nykyarvo(const Solmu& solmu, const Elinkaarioletukset& oletukset) const;

  std::vector<Solmu> solmut_;  // each after its parent
};
