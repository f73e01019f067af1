// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// One layer of a structure: a material, or two that share its area.
class frmRakennekerroksenMuokkaaminen : public Muokkauslomake {
 public:
  /// Name and figures of a material.
  struct Aine {
    Aine(const Lomake& lomake, const std::string& alku)
        : nimi(lomake, alku + "Nimi"),
          lambda(lomake, alku + "Lambda"),
          tiheys(lomake, alku + "Tiheys"),
          ominaislampo(lomake, alku + "Ominaislampo") {}
    TextBox nimi;
    TextBox lambda;        // W/mK
    TextBox tiheys;        // kg/m³
    TextBox ominaislampo;  // kJ/kgK
  };

  frmRakennekerroksenMuokkaaminen();

  /// A material from the library is wanted.
  std::function<void()> PaamateriaaliHakuun;
  std::function<void()> LisamateriaaliHakuun;
  /// Any field was edited or a box was clicked: the resistance of the layer may differ.
  std::function<void()> DataMuuttui;

  /// Enables the second material of a layer that isn't homogeneous. To be called after the form has been filled.
  void PaivitaKentat();

  TextBox txtKerroksenNimi{*this, "txtKerroksenNimi"};
  TextBox txtPaksuus{*this, "txtPaksuus"};  // mm
  CheckBox chkUArvoon{*this, "chkUArvoon"};
  CheckBox chkHomogeeninen{*this, "chkHomogeeninen"};
  Aine paamateriaali{*this, "txtPaamateriaalin"};
  CommandButton cmdHaePaamateriaali{*this, "cmdHaePaamateriaali"};
  Aine lisamateriaali{*this, "txtLisamateriaalin"};
  CommandButton cmdHaeLisamateriaali{*this, "cmdHaeLisamateriaali"};
  TextBox txtLisamateriaalinOsuus{*this, "txtLisamateriaalinOsuus"};  // %
  TextBox txtLammonvastus{*this, "txtLammonvastus"};                  // m²K/W
  TextBox txtKerroksenVastus{*this, "txtKerroksenVastus"};            // m²K/W, read only
  TextBox txtRakenteenUarvo{*this, "txtRakenteenUarvo"};              // W/m²K, read only
};
