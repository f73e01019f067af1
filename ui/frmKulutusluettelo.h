// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The catalogue of typical devices or water uses: a row is searched by everyday words and picked.
class frmKulutusluettelo : public Lomake {
 public:
  frmKulutusluettelo();

  struct Rivi {
    Luettelorivi rivi{};      ///< name, kind, value, unit, what is counted, use, how sure it is; with a key
    std::string hakusanat{};  ///< divided by ";"
    std::string selite{};     ///< shown of the chosen row
    int ryhma = 0;            ///< heading under which it stands, from 0
  };
  /// Shows the rows under their headings, modal. The key of the row that was picked; empty when none was.
  Tunniste Poimi(std::vector<Rivi> rivit, std::vector<std::string> otsikot);

  TextBox txtHaku{*this, "txtHaku"};
  ListView lvwRivit{*this, "lvwRivit"};
  Label lblSelite{*this, "lblSelite"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 private:
  void Nayta();
  const Rivi* Valittu() const;
  void RiviValittu();
  void Hyvaksy();

  std::vector<Rivi> rivit_;
  std::vector<std::string> otsikot_;
  Tunniste poimittu_;
};
