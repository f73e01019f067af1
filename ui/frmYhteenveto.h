// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// Yearly summary: measured use, cost and emissions of heat, electricity and water beside the calculated ones. A model
/// class fills the fields, each named "txt" and its result, and calls Laske; sums and charts are the form's own.
class frmYhteenveto : public Lomake {
 public:
  frmYhteenveto();

  /// OK; the listener closes the form.
  std::function<void()> OkKlikattu;

  std::string Rahayksikko;  // of the chart

  /// The field of a result.
  TextBox Kentta(std::string_view tulos) const { return {*this, "txt" + std::string(tulos)}; }
  /// Sums of the columns and the charts, all from the shown texts, so that the rows add up on the screen. A sum of
  /// which a part can't be computed is "---", and its chart is empty.
  void Laske();

  Label lblMitattu{*this, "lblMitattu"};
  Label lblHuomautukset{*this, "lblHuomautukset"};
  Label lblPerusteet{*this, "lblPerusteet"};
  Label lblKaavionKustannus{*this, "lblKaavionKustannus"};
  Label lblKaavionPaasto{*this, "lblKaavionPaasto"};
  TextBox txtKaavionKustannus{*this, "txtKaavionKustannus"};
  TextBox txtKaavionPaasto{*this, "txtKaavionPaasto"};
  MSChart chtKustannukset{*this, "chtKustannukset"};
  MSChart chtPaastot{*this, "chtPaastot"};
  CommandButton cmdKustannuskaavio{*this, "cmdKustannuskaavio"};
  CommandButton cmdPaastokaavio{*this, "cmdPaastokaavio"};
  CommandButton cmdOk{*this, "cmdOk"};

 private:
  void LaskeYhteenvedonSumma() const;
  void LaskeKustannuksetJaPiirra(const MSChart& kaavio) const;
  void LaskePaastotJaPiirra(const MSChart& kaavio) const;
};
