// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "ui/Muokkauslomake.h"

/// What goes to the object's report: its chapters, ticked, and what the auditor writes in it. The buttons make it as a
/// workbook or a PDF of what stands in the dialog; OK keeps the choices with the object.
class frmRaportti : public Muokkauslomake {
 public:
  frmRaportti();

  struct Osa {
    std::string nimi;  ///< by which the caller knows it
    std::string otsikko;
    bool mukana = true;
  };
  /// Fills the list of chapters.
  void NaytaOsat(std::vector<Osa> osat);
  const std::vector<Osa>& Osat() const { return osat_; }

  std::function<void()> TaulukkoKlikattu;
  std::function<void()> PdfKlikattu;

  ListView lvwOsat{*this, "lvwOsat"};
  TextBox txtNykytila{*this, "txtNykytila"};
  TextBox txtSuositus{*this, "txtSuositus"};
  CommandButton cmdTaulukko{*this, "cmdTaulukko"};
  CommandButton cmdPdf{*this, "cmdPdf"};

 private:
  void TaytaLista();

  std::vector<Osa> osat_;
};
