// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <vector>

#include "library/Kirjastotietue.h"
#include "library/Rakennetietokanta.h"

/// The structure library: the user's own database before the standard one. Each is opened by itself; one that can't be
/// read, from the start or at a look-up, is left aside and told of by Viat(), and the other one serves alone.
class Rakennekirjasto {
 public:
  struct Vika {
    Kirjasto kirjasto;
    std::string kuvaus;  ///< the file and the cause
  };

  Rakennekirjasto(const std::string& kayttajanKanta, const std::string& vakiokanta);

  /// The solution of that identifier from the user's database, else from the standard one, else nothing.
  std::optional<Rakenneratkaisu> Hae(const std::string& id);
  /// What couldn't be read so far.
  const std::vector<Vika>& Viat() const { return viat_; }

 private:
  struct Osa {
    Kirjasto kirjasto;
    std::string polku;
    std::optional<Rakennetietokanta> kanta{};
  };
  /// Runs on the database; a failure leaves it aside.
  template <class Tee>
  void Yrita(Osa& osa, Tee tee);

  std::array<Osa, 2> osat_;
  std::vector<Vika> viat_;
};
