// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"
#include "ui/Muokkauslomake.h"

/// The structures of a space: their list, and below it the data, the layers and the shading of the chosen one.
class frmRakenteet : public Muokkauslomake {
 public:
  /// Pages of the window shading.
  enum Varjostus { kYlalippa, kSivulippa, kHorisontti };
  /// Item value of the first row of the kinds shown: all of them. The other rows stand for the kinds 0 to 7.
  static constexpr std::int32_t kKaikki = 99;

  /// What the chosen structure leaves to the person.
  struct Tilanne {
    bool valittu = false;    ///< a structure is chosen
    bool ikkuna = false;     ///< it is a window: direction, solar factors and shading
    bool rajoittuu = false;  ///< it borders on something: wall, roof or floor
    bool kerroksia = false;  ///< it has layers, which tell its thickness and mass
  };

  frmRakenteet();

  /// Other kinds are to be shown. The fields hold good values.
  std::function<void()> NaytettavatValittu;
  /// A solution from the library is wanted for the chosen structure.
  std::function<void()> HaeKirjastostaKlikattu;
  std::function<void()> UarvonLahdeKlikattu;
  /// What the structure borders on was chosen.
  std::function<void()> RajoittuminenValittu;
  /// A surface resistance was edited.
  std::function<void()> PintavastusMuuttui;
  /// A type of shading was chosen.
  std::function<void(Varjostus)> VarjostusValittu;
  std::function<void()> RakKerLisaa;
  // These four with a layer chosen in the list.
  std::function<void()> RakKerMuokkaa;
  std::function<void()> RakKerKopioi;
  std::function<void()> RakKerPoista;
  std::function<void()> RakKerSiirraSisaanPain;

  /// Kind shown, 0 to 7, or kKaikki.
  std::int32_t Naytettavat() const;
  void Naytettavat(std::int32_t rakennetyyppi);
  /// Enables what stands beside the list.
  void PaivitaKentat(const Tilanne& tilanne);

  ComboBox cmbRakennetyyppi{*this, "cmbRakennetyyppi"};
  ListView lvwRakenteet{*this, "lvwRakenteet"};
  CommandButton cmdLisaaRakenne{*this, "cmdLisaaRakenne"};
  CommandButton cmdKopioiRakenne{*this, "cmdKopioiRakenne"};
  CommandButton cmdPoistaRakenne{*this, "cmdPoistaRakenne"};
  Luettelomuokkain luettelo{*this, {lvwRakenteet, cmdLisaaRakenne, {}, cmdKopioiRakenne, cmdPoistaRakenne}};
  CommandButton cmdHaeKirjastosta{*this, "cmdHaeKirjastosta"};
  Label lblHaku{*this, "lblHaku"};  // the structure for which the library is open
  TabStrip tabRakenne{*this, "tabRakenne"};

  TextBox txtNimi{*this, "txtNimi"};
  TextBox txtKuvaus{*this, "txtKuvaus"};
  Label lblRakennetyypinNimi{*this, "lblRakennetyypinNimi"};
  ComboBox cmbTyyppi{*this, "cmbTyyppi"};
  TextBox txtRakenneala{*this, "txtRakenneala"};  // m²
  Label lblSuuntaus{*this, "lblSuuntaus"};
  ComboBox cmbSuuntaus{*this, "cmbSuuntaus"};
  TextBox txtUarvo{*this, "txtUarvo"};  // W/m²K
  CheckBox chkLaskeUarvoMateriaaleista{*this, "chkLaskeUarvoMateriaaleista"};
  TextBox txtPaksuus{*this, "txtPaksuus"};                      // mm
  TextBox txtKerrostenMassaYht{*this, "txtKerrostenMassaYht"};  // kg/m²
  TextBox txtPintavastusSisa{*this, "txtPintavastusSisa"};      // m²K/W
  TextBox txtPintavastusUlko{*this, "txtPintavastusUlko"};      // m²K/W
  TextBox txtPistemaiset{*this, "txtPistemaiset"};
  TextBox txtPistemaisetWpK{*this, "txtPistemaisetWpK"};  // W/K
  TextBox txtViivamaiset{*this, "txtViivamaiset"};
  TextBox txtViivamaisetWpK{*this, "txtViivamaisetWpK"};  // W/K
  TextBox txtRw{*this, "txtRw"};                          // dB
  TextBox txtPaloluokka{*this, "txtPaloluokka"};

  ListView lvwKerrokset{*this, "lvwKerrokset"};
  CommandButton cmdRakKerLisaa{*this, "cmdRakKerLisaa"};
  CommandButton cmdRakKerMuokkaa{*this, "cmdRakKerMuokkaa"};
  CommandButton cmdRakKerKopioi{*this, "cmdRakKerKopioi"};
  CommandButton cmdRakKerPoista{*this, "cmdRakKerPoista"};
  CommandButton cmdRakKerSiirraSisaanPain{*this, "cmdRakKerSiirraSisaanPain"};
  TextBox txtKerrostenUarvo{*this, "txtKerrostenUarvo"};  // W/m²K, read only
  MSChart chtLampotilat{*this, "chtLampotilat"};

  TextBox txtAurinkoenergianlapaisy{*this, "txtAurinkoenergianlapaisy"};      // %
  TextBox txtKarmikerroin{*this, "txtKarmikerroin"};                          // %
  TextBox txtVerhokerroin{*this, "txtVerhokerroin"};                          // %
  TextBox txtKokonaisvarjostuskerroin{*this, "txtKokonaisvarjostuskerroin"};  // %
  ComboBox cmbYlalipanTyyppi{*this, "cmbYlalipanTyyppi"};
  TextBox txtYlalipanVarjostuskulma{*this, "txtYlalipanVarjostuskulma"};  // degrees
  ComboBox cmbSivulipanTyyppi{*this, "cmbSivulipanTyyppi"};
  TextBox txtSivulipanVarjostuskulma{*this, "txtSivulipanVarjostuskulma"};  // degrees
  ComboBox cmbHorisVarjTyyppi{*this, "cmbHorisVarjTyyppi"};
  TextBox txtYmparistonVarjostuskulma{*this, "txtYmparistonVarjostuskulma"};  // degrees

 private:
  void KuunteleLuetteloa();
  void KuunteleRakennetta();
  void KuunteleKerroksia();
  void PaivitaKerrosnapit();

  Tilanne tilanne_;
  int naytettavatRivi_ = 0;
};
