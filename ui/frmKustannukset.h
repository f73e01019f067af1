// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Avokenttalomake.h"

/// Founding costs and yearly upkeep of the building as two trees, of which one is shown, with the chosen node's fields.
class frmKustannukset : public Avokenttalomake {
 public:
  enum Jasentely : int { Perustaminen, Hoito };
  static constexpr std::size_t kJasentelyja = 2;

  /// The fields of the chosen node of one tree.
  struct Solmukentat {
    Solmukentat(const Lomake& lomake, const std::string& sana);

    Frame kehys;
    Label lblValittu;
    ComboBox cmbTyyppi;
    TextBox txtLaskentayksikko;
    TextBox txtYksikoidenMaara;
    CheckBox chkMaaraMallista;
    TextBox txtYksikkokustannus;
    Label lblYksYksikkokustannus;
    TextBox txtKokonaiskustannus;  // read only
    TextBox txtBruttoalaa;         // read only
    Label lblMalli;                // what the model says of the node
  };

  frmKustannukset();

  std::function<void()> JasentelyValittu;
  std::function<void()> SolmuValittu;
  /// The person has changed a field of the chosen node.
  std::function<void()> SolmuMuuttui;
  std::function<void()> EhdotuksetKlikattu;
  /// The fields hold good values.
  std::function<void()> JakaumaKlikattu;

  Jasentely Valittu() const { return cmbJasentelynValinta.Indeksi() == Hoito ? Hoito : Perustaminen; }
  /// Shows the tree and the fields of the choice.
  void NaytaJasentely() const;

  ComboBox cmbJasentelynValinta{*this, "cmbJasentelynValinta"};
  std::array<ListView, kJasentelyja> puut{ListView(*this, "TreeView1"), ListView(*this, "TreeView2")};
  std::array<Solmukentat, kJasentelyja> kentat{Solmukentat(*this, "Perustamiskustannukset"),
                                               Solmukentat(*this, "Hoitokustannukset")};
  TextBox txtPerustamisetYht{*this, "txtPerustamisetYht"};  // read only
  TextBox txtHoidonNykyarvo{*this, "txtHoidonNykyarvo"};    // read only
  TextBox txtElinkaariYht{*this, "txtElinkaariYht"};        // read only
  Label lblOletukset{*this, "lblOletukset"};                // what the present value is reckoned by
  CommandButton cmdEhdotukset{*this, "cmdEhdotuksetPerustamiskustannukset"};
  CommandButton cmdJakauma{*this, "cmdJakauma"};
};
