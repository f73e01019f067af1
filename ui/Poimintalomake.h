// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// A catalogue of the program: a row is searched by everyday words and picked.
class Poimintalomake : public Lomake {
 public:
  struct Rivi {
    Luettelorivi rivi{};      ///< cells in the order of the form's columns, the name first; with a key
    std::string hakusanat{};  ///< divided by ";"
    std::string selite{};     ///< shown of the chosen row
    int ryhma = 0;            ///< heading under which it stands, from 0
  };
  /// Shows the rows under their headings, modal. The key of the row that was picked; empty when none was.
  Tunniste Poimi(std::vector<Rivi> rivit, std::vector<std::string> otsikot);
  /// The same of rows of any kind; `naytettava` tells what is shown of one. The row that was picked, or nothing.
  template <class T, class F>
  const T* PoimiRivi(const std::vector<T>& rivit, std::vector<std::string> otsikot, F naytettava) {
    std::vector<Rivi> naytettavat;
    for (const T& rivi : rivit) naytettavat.push_back(naytettava(rivi));
    const Tunniste valittu = Poimi(std::move(naytettavat), std::move(otsikot));
    for (std::size_t i = 0; i < rivit.size(); ++i)
      if (rivit_[i].rivi.avain == valittu) return &rivit[i];
    return nullptr;
  }

  TextBox txtHaku{*this, "txtHaku"};
  ListView lvwRivit{*this, "lvwRivit"};
  Label lblSelite{*this, "lblSelite"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 protected:
  explicit Poimintalomake(std::string nimi);

 private:
  void Nayta();
  const Rivi* Valittu() const;
  void RiviValittu();
  void Hyvaksy();

  std::vector<Rivi> rivit_;
  std::vector<std::string> otsikot_;
  Tunniste poimittu_;
};
