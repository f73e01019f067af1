// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "kernel/Olio.h"
#include "kernel/Tietokanta.h"

/// A prepared query with one parameter, whose columns bear the names of a class's members. A column without a member is
/// passed over, and so is an empty value: the object keeps its own then.
class Rivihaku {
 public:
  Rivihaku(const Tietokanta& kanta, const char* sql, const Luokka& luokka);

  /// Calls `tee` on each row found for `avain`; it reads the row by LueRivi. No lock is left on the database behind it.
  template <class Tee>
  void Kay(const std::string& avain, Tee tee) {
    const Palautus palautus{kysely_};
    kysely_.Sido(1, avain);
    while (kysely_.Seuraava()) tee();
  }
  /// Sets the object's members from the current row. Raises std::runtime_error for a value that isn't of the member's
  /// type.
  void LueRivi(Olio& olio);

 private:
  struct Palautus {
    Kysely& kysely;
    ~Palautus() { kysely.Alkuun(); }
  };

  Kysely kysely_;
  std::vector<const Jasen*> jasenet_;  // by column; null for a column without a member
};
