// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Running times of a ventilation machine: the seasons in use, and below them the seven lines of the chosen one.
class frmIlmanvaihtokoneenKayntiajat : public Muokkauslomake {
 public:
  static constexpr int kRiveja = 7;

  struct Rivi {
    Rivi(const Lomake& lomake, const std::string& numero);
    std::array<TextBox, 6> kentat;  // runs a week, hh:mm, hh:mm, %, °C, K
    TextBox tunnit;                 // h a day, read only
    CommandButton cmdTunteina;
  };

  frmIlmanvaihtokoneenKayntiajat();

  std::function<void()> KopioiMuihinKlikattu;
  /// Another way of entering, or another season, was chosen. The lines of the former one hold good values.
  std::function<void()> SyottotapaValittu;
  std::function<void()> JaksoValittu;
  /// A field of the line (from 0) was edited, or left with a good value.
  std::function<void(std::size_t)> KenttaMuuttui;
  std::function<void(std::size_t)> KenttaJatetty;
  /// The line's times are to be given as hours.
  std::function<void(std::size_t)> TunteinaKlikattu;

  /// Shows the way of entering, or that row of the seasons, as chosen.
  void ValitseSyottotapa(int tapa);
  void ValitseJakso(int rivi);

  ComboBox cmbKayntiAikojenSyottoTapa{*this, "cmbKayntiAikojenSyottoTapa"};
  CommandButton cmdKopioiMuihin{*this, "cmdKopioiMuihin"};
  ListView lvwJaksot{*this, "lvwJaksot"};
  MSChart chtViikko{*this, "chtViikko"};
  Frame fraRivit{*this, "fraRivit"};
  std::vector<Rivi> rivit;
  Label lblHuomautus{*this, "lblHuomautus"};

 private:
  void KuunteleRivia(std::size_t rivi);

  int syottotapa_ = 0;
  int jakso_ = 0;
};
