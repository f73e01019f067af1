// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <unordered_map>
#include <vector>

#include "kernel/Tunniste.h"
#include "ui/Tekstivarasto.h"

class clsRakennus;
class clsMuuttuneetAttribuutit;
class clsMuuttunutAttribuutti;
class clsSaastotoimenpide;
class Olio;
struct Jasen;

/// One thing that a saving measure changes, in the person's words.
struct Muutosrivi {
  Tunniste avain;          ///< of a change; taking it back takes back all that the line tells
  std::string kohde;       ///< the object, from the measure's own down: "Luokat, Ulkoseinä"
  std::string ominaisuus;  ///< "U-arvo"
  std::string ennen;       ///< the value as it is without the measure, with its unit: "0,35 W/m²K"
  std::string jalkeen;     ///< the measure's value

  /// "Luokat, Ulkoseinä: U-arvo 0,35 W/m²K → 0,17 W/m²K"
  std::string Lause() const;
};

/// Tells what saving measures change. Names and lists are read once for the life of this object.
class Muutoskuvaus {
 public:
  explicit Muutoskuvaus(clsRakennus& rakennus);

  /// The changes of the measure in their order. Those that go together (a choice and its text, the ways of calculation,
  /// a U-value and its flag) are one line; a choice whose text alone differs is none. Of an object that is gone the
  /// line has a note in place of its name, and the value that was stored.
  std::vector<Muutosrivi> Rivit(clsSaastotoimenpide& toimenpide) const;

  /// Name of what the measure concerns; "" when it is gone.
  static std::string KohteenNimi(clsSaastotoimenpide& toimenpide);

 private:
  struct Kohde {
    Olio* olio = nullptr;
    std::string nimi;
  };
  /// Changes that are told as one: the one that tells the values, and the one that has a text for them, if any.
  struct Yhdistelma {
    const clsMuuttunutAttribuutti* arvo = nullptr;
    const clsMuuttunutAttribuutti* teksti = nullptr;
  };

  const Ominaisuusteksti* Nimetty(const clsMuuttunutAttribuutti& muutos) const;
  Yhdistelma Yhdista(const clsMuuttuneetAttribuutit& muutokset, const clsMuuttunutAttribuutti& ensimmainen) const;
  Kohde EtsiKohde(clsSaastotoimenpide& toimenpide, const clsMuuttunutAttribuutti& muutos) const;
  bool EtsiOsa(Olio& olio, const clsMuuttunutAttribuutti& muutos, Kohde& loydetty) const;
  Muutosrivi Rivi(const Yhdistelma& muutokset, const Kohde& kohde) const;
  std::string Arvo(const clsMuuttunutAttribuutti& muutos, const Jasen* jasen, double luku, const std::string& teksti,
                   const std::string& valinta, const std::string& kuvio) const;
  std::string NimiAvaimella(const std::string& avain, const std::string& valinta) const;

  clsRakennus& rakennus_;
  std::unordered_map<std::string, Ominaisuusteksti> nimet_;
};
