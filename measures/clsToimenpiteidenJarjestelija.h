// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <optional>

#include "building/Koti.h"
#include "kernel/Laskenta.h"
#include "measures/Muunnelmalaskin.h"
#include "measures/clsValitutToimenpiteet.h"

class Jarjestelijamuokkaus;
class clsSaastotoimenpide;
class clsTariffiVertailuTapaus;

/// The arranger: an ordered list of measures, each computed with all those above it in force, so that the last one's
/// figures after are those of the whole package. Investments and power savings are those of the measures. Errors: 9999
/// with the method's literal.
class clsToimenpiteidenJarjestelija : public Malli<clsToimenpiteidenJarjestelija> {
 public:
  static const Luokka kLuokka;
  /// Takes its place in a building.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  clsValitutToimenpiteet ValitutToimenpiteet;
  std::string NaytaToimenpiteetStr = "sKeyKokoKohde";  ///< node whose measures the upper list shows
  std::int32_t NaytaToimenpiteetID = 0;                ///< its index in the list of filters
  std::string TaulukonNakymaStr;                       ///< name of the column view
  std::int32_t TaulukonNakymaTyyppiID = 0;             ///< column view, 0 to 3

  /// What the ticked measures give together, as last computed.
  struct Paketti {
    Hyodykkeet ennen;    ///< gross figures of the base
    Hyodykkeet lopuksi;  ///< those with the whole package in force
    /// What the base costs and emits by its supplies and tariffs; nothing when tariffs or fuels don't give it.
    std::optional<Ostot> ostot;
    /// What the package saves of them, each state by its own supplies and tariffs.
    std::optional<Ostot> saasto;
  };

  /// Computes the rows from the top and the totals. Measures are brought to the present base first. A row whose measure
  /// is gone stays stale and is told of. The building is as it was, also after an error.
  void PaivitaValitutToimenpiteet();
  /// Nothing before that, and where there is neither a measure nor a row.
  const std::optional<Paketti>& LaskettuPaketti() const noexcept { return paketti_.arvo; }
  /// Payback of the whole list in years, tariff rows included; nothing when nothing is saved.
  std::optional<double> PaketinTakaisinmaksuaika(const Alvprosentit& alv) const;
  /// Every figure that rests on the building is stale.
  void Vanhenna() noexcept;
  /// Some row or the totals aren't of the present building and order.
  bool Vanhentunut() const;

  // Each of these makes those rows stale that have others above them than when they were computed, and the totals.

  /// Ticks a measure: its row comes to the end, stale; or unticks it: its rows go.
  void Valitse(const Tunniste& toimenpide, bool valittu);
  /// Removes the row; that of a measure takes the tick away.
  void PoistaRivi(const Tunniste& rivi);
  void PoistaToimenpiteenRivit(const Tunniste& toimenpide);
  /// The row can change places with the one above or below it: the totals stay first.
  bool VoiSiirtaaYlos(const Tunniste& rivi) const;
  bool VoiSiirtaaAlas(const Tunniste& rivi) const;
  /// Moves the row by one. It is stale then and has another key, which is given. Errors also: no such place.
  Tunniste SiirraYlos(const Tunniste& rivi);
  Tunniste SiirraAlas(const Tunniste& rivi);
  /// Puts the row right behind the row `edellinen`, as the two above.
  Tunniste SiirraJalkeen(const Tunniste& rivi, const Tunniste& edellinen);
  /// Adds a change of electricity tariffs: what the case saves against the reference. It needs no computing.
  clsValittuToimenpide& LisaaTariffirivi(const clsTariffiVertailuTapaus& tapaus, const clsTariffiVertailuTapaus& viite);

  /// Opens the arranger of the global building with all rows computed, or brings it to front.
  void NaytaKayttoliittyma();

 private:
  class Laskenta;
  int Paikka(const Tunniste& rivi) const;
  std::string LaskeRivit();
  void PaivitaYhteensa();
  void Muuttui(int ensimmainen, int viimeinen);

  Koti koti_;
  Oma<std::optional<Paketti>> paketti_;
  Oma<std::shared_ptr<Jarjestelijamuokkaus>> kayttoLiittyma_;
};
