// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "ui/Kenttatarkistus.h"
#include "ui/Muokkauslomake.h"

/// What the dialogs of one consumer group have in common: a consumption that is the product of five numbers, of which
/// those that the unit has no use for are hidden and count 1.
class Kulutuslomake : public Muokkauslomake {
 public:
  /// A field or a choice that the consumption depends on was changed.
  std::function<void()> LaskentaMuuttui;

  /// All numbers that the consumption is computed from are written.
  bool TekijatLuettavissa() const;
  /// A computed figure; dashes when there is none.
  static void NaytaTulos(const TextBox& kentta, std::optional<double> arvo, const char* kuvio);

  TextBox txtKulutusRyhmanNimi{*this, "txtKulutusRyhmanNimi"};
  ComboBox cmbLaskentaOminaissuure{*this, "cmbLaskentaOminaissuure"};
  TextBox txtOminaissuureidenMaara{*this, "txtOminaissuureidenMaara"};
  TextBox txtLaskentaYksikoidenMaara{*this, "txtLaskentaYksikoidenMaara"};
  TextBox txtKayttomaaraTunnitVrk_ssa{*this, "txtKayttomaaraTunnitVrk_ssa"};  // h/d, or times a day
  TextBox txtKayttomaaraVrktVuodessa{*this, "txtKayttomaaraVrktVuodessa"};    // d/a
  TextBox txtTasauskerroin{*this, "txtTasauskerroin"};
  Label lblMuuntokerroin{*this, "lblMuuntokerroin"};
  TextBox txtKulutus{*this, "txtKulutus"};  // of one group, a year; read only

 protected:
  /// `viestit`: what is told of a factor that is missing or no number. `tunnitYks`: label of the unit of the use in a
  /// day.
  Kulutuslomake(std::string nimi, Lukuviestit viestit, std::string_view tunnitYks);
  /// Makes the field one of the factors: they are asked for when they are left and at OK.
  void LisaaTekija(const TextBox& kentta);
  /// Shows or hides the use in a day and in a year. A hidden one counts 1, and has its former number when it is shown
  /// again.
  void NaytaKaytto(bool tunnit, bool paivat);

 private:
  /// A field with its caption and unit.
  struct Kayttokentta {
    TextBox kentta;
    Label nimi, yksikko;
    std::string teksti{};  // while it is hidden
    std::optional<double> luku{};
  };
  static void NaytaKentta(Kayttokentta& kaytto, bool nakyva);
  bool TekijatKelpaavat() const;

  Lukuviestit viestit_;
  std::vector<TextBox> tekijat_;
  Kayttokentta tunnit_, paivat_;
};
