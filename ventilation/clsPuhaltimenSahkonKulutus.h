// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ventilation/PuhaltimenTeho.h"
#include "ventilation/clsPuhallinSahkoLaskParametrit.h"

/// Electric powers of a machine's two fans. Flows, choices and name are copies of the machine's, written when its
/// dialog is accepted and when the object is saved; a calculation of the machine gives its own and doesn't read them.
/// Errors: 9999 with the method's literal.
class clsPuhaltimenSahkonKulutus : public Malli<clsPuhaltimenSahkonKulutus> {
 public:
  static const Luokka kLuokka;
  enum TiedonLaatu : std::int32_t { Laskettu = 0, Annettu = 1 };

  double TuloSahkoTeho11 = 0;      ///< electric power at full flow, kW
  double PoistoSahkoTeho11 = 0;    ///< kW
  double Teho11Prosentti = 100;    ///< flow at which the full powers hold, %
  double OsaTehoProsentti = 50;    ///< flow of the part powers, %
  double TuloIlmavirta11Teho = 0;  ///< m³/s
  double PoistoIlmavirta11Teho = 0;
  std::int32_t Teho11TiedonLaatuIDTulo = Laskettu;  ///< quality of the full powers (enum TiedonLaatu)
  std::int32_t Teho11TiedonLaatuIDPoisto = Laskettu;
  std::int32_t OsaTehoTiedonLaatuIDTulo = Laskettu;  ///< quality of the part powers
  std::int32_t OsaTehoTiedonLaatuIDPoisto = Laskettu;
  std::int32_t VakioPaineOsuusID = 0;             ///< share of constant pressure, tens of per cent
  std::int32_t PuhaltimenVoimansiirtoTapaID = 0;  ///< drive (clsVoimasiirto::Valitys)
  std::int32_t PuhaltimenSaatotapaID = 0;         ///< control of the flow (IlmavirranSaatotavat)
  std::int32_t JarjestelmaTyyppiID = 0;           ///< PuhaltimenTeho::Jarjestelma
  std::int32_t IVPeriaateID = 0;                  ///< principle of the machine
  std::string PuhaltimenSaatotapa;
  std::string KoneenTunnus;
  clsPuhallinSahkoLaskParametrit TuloPuhParam, PoistoPuhParam;

  /// Specific fan power, kW/(m³/s), of supply and exhaust; 0 without flow.
  double TuloSahkoOminaisteho() const;
  double PoistoSahkoOminaisteho() const;
  /// Power at the flow `OsaTehoProsentti`, kW: calculated by the system type, or the stored value when that was given.
  double TuloSahkoOsaTeho() const;
  double PoistoSahkoOsaTeho() const;
  void TuloSahkoOsaTeho(double teho) noexcept { tuloSahkoOsaTeho_ = teho; }
  void PoistoSahkoOsaTeho(double teho) noexcept { poistoSahkoOsaTeho_ = teho; }
  /// The stored part powers, whatever their quality, kW.
  double TallennettuTuloSahkoOsaTeho() const noexcept { return tuloSahkoOsaTeho_; }
  double TallennettuPoistoSahkoOsaTeho() const noexcept { return poistoSahkoOsaTeho_; }

  /// The machine's choices on which the power of its fans depends.
  struct Valinnat {
    std::int32_t jarjestelma, saatotapa, voimansiirto, vakiopaine;
  };
  /// The fans' power at any flow.
  PuhaltimenTeho Tulopuhallin(const Valinnat& koneen) const { return Puhallin(TuloSahkoTeho11, koneen); }
  PuhaltimenTeho Poistopuhallin(const Valinnat& koneen) const { return Puhallin(PoistoSahkoTeho11, koneen); }
  /// The same with the copies.
  PuhaltimenTeho Tulopuhallin() const { return Tulopuhallin(Kopioidut()); }
  PuhaltimenTeho Poistopuhallin() const { return Poistopuhallin(Kopioidut()); }

  bool OnTulopuhallin() const noexcept;
  bool OnPoistopuhallin() const noexcept;

  /// Opens the dialog of the two fans, modal; the machine's copies must be up to date. OK leaves what was written,
  /// Cancel restores the object. True after OK.
  bool NaytaKayttoliittyma();

 private:
  Valinnat Kopioidut() const noexcept {
    return {JarjestelmaTyyppiID, PuhaltimenSaatotapaID, PuhaltimenVoimansiirtoTapaID, VakioPaineOsuusID};
  }
  PuhaltimenTeho Puhallin(double taysteho, const Valinnat& koneen) const;

  double tuloSahkoOsaTeho_ = 0, poistoSahkoOsaTeho_ = 0;
};
