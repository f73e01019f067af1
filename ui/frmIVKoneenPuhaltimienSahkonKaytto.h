// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Electric powers of a machine's supply and exhaust fan.
class frmIVKoneenPuhaltimienSahkonKaytto : public Muokkauslomake {
 public:
  enum Puoli : std::size_t { kTulo, kPoisto, kPuolia };
  /// Rows of the choices of quality.
  enum Tiedonlaatu { kLaskettu, kAnnettu };

  struct Puhallin {
    Puhallin(const Lomake& lomake, const std::string& puoli);
    TextBox txtIlmavirta11Teho;  // m³/s, read only
    TextBox txtSahkoTeho11;      // kW
    ComboBox cmbTeho11TiedonLaatu;
    CommandButton cmdTarkennettu;
    TextBox txtOminaisteho;   // kW/(m³/s), read only
    TextBox txtSahkoOsaTeho;  // kW
    ComboBox cmbOsaTehoTiedonLaatu;
  };

  /// What the machine leaves to the person.
  struct Tilanne {
    std::array<bool, kPuolia> onPuhallin{};
    bool osavirta = false;  ///< the fans run at part flow too
    bool muuttuva = false;  ///< at any flow
  };

  frmIVKoneenPuhaltimienSahkonKaytto();

  /// The flow of the full powers, or that of the part powers, was edited.
  std::function<void()> IlmavirtaMuuttui;
  // Edits and choices of one fan.
  std::function<void(Puoli)> TaysiTehoMuuttui;
  std::function<void(Puoli)> TaydenTehonLaatuValittu;
  std::function<void(Puoli)> TarkennettuKlikattu;
  std::function<void(Puoli)> OsaTehoMuuttui;
  std::function<void(Puoli)> OsaTehonLaatuValittu;

  /// Enables the fields of the fans that there are; that of a part power is the listener's, since it may have none.
  void PaivitaKentat(const Tilanne& tilanne);

  std::array<Puhallin, kPuolia> puhaltimet{Puhallin(*this, "Tulo"), Puhallin(*this, "Poisto")};
  TextBox txtTeho11Prosentti{*this, "txtTeho11Prosentti"};    // %
  TextBox txtOsaTehoProsentti{*this, "txtOsaTehoProsentti"};  // %
  MSChart chtOsateho{*this, "chtOsateho"};
  Label lblHuomautus{*this, "lblHuomautus"};

 private:
  void Kuuntele(Puoli puoli);
};
