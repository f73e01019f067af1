// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Environmental impact over the building's life: the tree, the chosen node's figures and its raw materials. For show.
class frmElinkaarenYmparistoVaikutukset : public Muokkauslomake {
 public:
  frmElinkaarenYmparistoVaikutukset();

  /// The fields of one kind of impact.
  struct Laji {
    Laji(const Lomake& lomake, const std::string& sana, const char* yksikko);
    TextBox txt;          // for a calculation unit
    Label lblYksikko;     // its unit
    TextBox txtYhteensa;  // over the period
    Label lblIlman;       // share of the mass that has no value
  };

  std::function<void()> SolmuValittu;
  /// The fields hold good values.
  std::function<void()> ProfiiliKlikattu;

  ListView TreeView1{*this, "TreeView1"};
  std::array<Laji, 9> lajit{Laji(*this, "UusiutumatonEnergia", "lblMJkg1"),
                            Laji(*this, "UusiutuvaEnergia", "lblMJkg2"),
                            Laji(*this, "UusiutumattomatRaakaaineet", "lblKgkg1"),
                            Laji(*this, "UusiutuvatRaakaaineet", "lblKgkg2"),
                            Laji(*this, "IlmastonLampeneminenCO2ekv", "lblGmatkg1"),
                            Laji(*this, "VarastoitunutCO2", "lblgmatkg2"),
                            Laji(*this, "HappamoituminenSoxekv", "lblGmatkg3"),
                            Laji(*this, "OksidanttienMuodostus", "lblGmatkg4"),
                            Laji(*this, "Particle", "lblGmatkg5")};
  TextBox txtLaskentayksikko{*this, "txtLaskentayksikko"};
  TextBox txtYksikoidenMaara{*this, "txtYksikoidenMaara"};
  Label lblTiedot{*this, "lblTiedot"};        // mass, and of how much nothing is known
  Label lblEsimerkki{*this, "lblEsimerkki"};  // heads rows that aren't the building's
  ListView lvwRaakaaineet{*this, "lvwRaakaaineet"};
  CommandButton Command1{*this, "Command1"};
};
