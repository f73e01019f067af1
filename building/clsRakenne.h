// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "building/Koti.h"
#include "building/clsHorisVarjostus.h"
#include "building/clsLippaVarjostus.h"
#include "kernel/Laskenta.h"
#include "kernel/Olio.h"
#include "library/Rakenneratkaisu.h"

class Rakennetietokanta;

/// What a wall, roof or floor borders on, `clsRakenne.TyyppiID`.
enum Rajoittuminen : std::int32_t { kUlkoilma, kPuskuritila, kMaa, kHuonelampoinenTila };

/// One envelope element of a space.
class clsRakenne : public Malli<clsRakenne, Alkio> {
 public:
  static const Luokka kLuokka;
  clsRakenne();

  // What a recalculation reads stands first.
  std::int32_t Rakennetyyppi = 0;  ///< kind, 0 to 7 (Rakennelaji); any other conducts nothing
  std::int32_t TyyppiID = 0;       ///< boundary of kinds 0 to 2 (enum Rajoittuminen); any other conducts nothing
  std::int32_t SuuntausID = 0;     ///< orientation (enum Suunta)
  bool LaskeU_arvoMateriaaleista = false;  ///< the U-value comes from the layers of the solution
  double PintaAla = 0;                     ///< area by outside dimensions, m²
  Omistus<Rakenneratkaisu> RakenneRatkaisu;

 private:
  double u_arvo_ = 0;
  Lippu aurinkokuormatUpToDate_;

 public:
  clsHorisVarjostus HorisVarjostus;
  clsLippaVarjostus SivuLippa;
  clsLippaVarjostus YlaLippa;
  std::string TyyppiStr;                 ///< text of the boundary
  std::string SuuntausStr;               ///< text of the orientation
  std::int32_t RakennekannanVersio = 0;  ///< version of the structure database it was made with

  /// Thermal transmittance, W/m²K: computed from the layers when LaskeU_arvoMateriaaleista is set and the solution
  /// yields a value (EN ISO 6946), else the stored one.
  double U_arvo() const;
  /// Stores a value.
  void U_arvo(double arvo) { u_arvo_ = arvo; }

  /// Name to show: the solution's, or the kind when it has none.
  std::string NaytettavaNimi() const;
  /// Takes over a copy of a solution that was picked from a library: its kind, when the library's word is known,
  /// whether the U-value comes from its layers, and its U-value when that is given and known.
  void OtaRatkaisu(const Rakenneratkaisu& ratkaisu);

  /// Takes its place in a building.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  /// Gives the materials of the layers the figures of a structure database, and takes its version for this structure's.
  void PaivitaMateriaalitVakiokannasta(Rakennetietokanta& kanta);

  /// Conduction loss of month 0 to 11, kWh, room at Tsisa °C: A × U × f × (Tsisa − Tulko) × days × 24 h / 1000, where f
  /// is 1 towards outdoors and 0.8 towards a buffer space. Not cut at zero: a month warmer than the room gives a
  /// negative loss. Towards ground: area times a table by room temperature; below 5 °C text 9212 is shown and the loss
  /// is 0.  Source: degree-hour balance of building code D5; the factor 0.8 and the table of ground losses (kWh/m² a
  /// month, for rooms above 17, above 12 and from 5 °C) as given for this method.
  double LampoHaviot(double Tsisa, int kuukausi) const;
  /// Adds the losses of all twelve months to `summa`: the same figures in one pass.
  void LisaaLampoHaviot(double Tsisa, const Kuukausitaulu& ulkolampotilat, Kuukausitaulu& summa) const;

  /// A window whose solution lets the sun through: others have no solar gain.
  bool PaastaaAuringon() const noexcept {
    return Rakennetyyppi == Rakennelaji::Ikkuna && RakenneRatkaisu && RakenneRatkaisu->OnIkkuna;
  }
  /// Solar gain of month 0 to 11, kWh. One run of the calculator serves twelve reads: reading month 11 from the cache
  /// ends its validity.  Source: prEN 832.
  double AurinkoKuorma(int kuukausi);
  /// All twelve; leaves the cache as twelve reads would.
  const Kuukausitaulu& AurinkoKuormat();
  /// Recomputes all twelve and keeps them valid.
  void PaivitaAurinkokuormat();
  void MitatoiAurinkokuormat() noexcept { aurinkokuormatUpToDate_ = false; }

 private:
  static const Jasen kJasenet[];

  void LaskeAurinkokuormat();

  Koti koti_;
  Oma<Kuukausitaulu> aurinkoKuormat_;
};
