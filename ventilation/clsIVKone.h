// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>

#include "building/Koti.h"
#include "kernel/Laskenta.h"
#include "ventilation/clsKayntiAjat.h"
#include "ventilation/clsLammTehot.h"
#include "ventilation/clsLto.h"
#include "ventilation/clsPuhaltimenSahkonKulutus.h"

/// A ventilation machine: flows, temperatures, schedule, heat recovery and fans. It gives the space that it serves its
/// ventilation loss or gain, and the building its after-heating and fan electricity.
///
/// Months are 0 to 11, monthly energy is kWh, yearly MWh. A machine without a schedule gives 0. The space and the
/// locality's degree days are those of the building that the machine belongs to (building/Koti.h). Errors: 9999 with
/// the method's literal.
class clsIVKone : public Malli<clsIVKone, Alkio> {
 public:
  static const Luokka kLuokka;
  /// Running hours at any flow, h, and energies, MWh, of a year.
  struct Vuosiluvut {
    double kayntiaika, jalkilammitys, talteenotto, puhaltimet;
  };
  enum Periaate : std::int32_t { Tuloilmakone = 0, TuloilmakonePlusLTO = 1, Poistoilmakone = 2, TuloPoisto = 3 };
  clsIVKone();

  std::string KoneenTunnus;                       ///< the machine's identifier
  double TuloIlmavirta11Teho = 1.0;               ///< supply air flow at full power, m³/s
  double PoistoIlmavirta11Teho = 1.0;             ///< exhaust air flow at full power, m³/s
  double PoistoLampotila = 21.0;                  ///< exhaust air temperature when no space is joined, °C
  double IlmanLampeneminenPuhaltimessa = 1.0;     ///< K; the periods of the schedule have their own
  double LtoHyotysuhde = 0;                       ///< temperature efficiency of heat recovery, %
  bool TuloilmanLammitysSahkoPatterilla = false;  ///< the supply air is heated by an electric coil
  std::int32_t IVPeriaateID = TuloilmakonePlusLTO;
  std::string IVPeriaate;
  std::int32_t JarjestelmaTyyppiID = PuhaltimenTeho::MuuttuvaIlmavirta;  ///< PuhaltimenTeho::Jarjestelma
  std::string JarjestelmaTyyppi;
  std::int32_t PuhaltimenSaatotapaID = 5;  ///< control of the flow (IlmavirranSaatotavat)
  std::string PuhaltimenSaatotapa;
  std::int32_t PuhaltimenVoimansiirtoTapaID = 0;  ///< drive (clsVoimasiirto::Valitys)
  std::string PuhaltimenVoimansiirtoTapa;
  std::string VakioPaineOsuus = "20";
  Tunniste LiittyyTilaansKey;  ///< key of the space served; empty: none
  clsLto Lto;
  clsKayntiAjat KayntiAikaYleistiedot;
  clsPuhaltimenSahkonKulutus PuhaltimienSahkonKulutus;
  clsLammTehot LammTehot;

  /// Supply air temperature, °C. Setting it sets `Tsp` of the schedule's year-round periods as well.
  double SisaanpuhallusLampotila() const noexcept { return sisaanpuhallusLampotila_; }
  void SisaanpuhallusLampotila(double lampotila) noexcept;
  /// Share of constant pressure: row of the choice, tens of per cent. Setting it passes it to the fans.
  std::int32_t VakioPaineOsuusID() const noexcept { return vakioPaineOsuusID_; }
  void VakioPaineOsuusID(std::int32_t rivi) noexcept;

  /// Takes its place in a building.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  bool OnTulopuhallin() const noexcept { return IVPeriaateID != Poistoilmakone; }
  bool OnPoistopuhallin() const noexcept { return IVPeriaateID != Tuloilmakone; }
  /// Heat can be recovered: the machine moves both supply and exhaust air.
  bool OnTalteenotto() const noexcept { return OnTulopuhallin() && OnPoistopuhallin(); }
  /// Gives the fans their copies of the machine's flows, choices and name.
  void PaivitaPuhaltimienTiedot();
  /// The fans, their copies up to date.
  clsPuhaltimenSahkonKulutus& AjantasaisetPuhaltimet() { return PaivitaPuhaltimienTiedot(), PuhaltimienSahkonKulutus; }
  /// The same, and the name to the schedule.
  void PaivitaOsienTiedot();

  /// Temperature of the exhaust air, °C: that of the space served, or `PoistoLampotila` when none is.
  double Poistoilma() const;
  /// What the machine takes from the heat of a space at Tsisa °C: warming the exhaust flow (the supply flow of a supply
  /// machine) from outdoors to Tsisa, less warming the supply flow to the set-points. Negative: a gain of the space.
  double HaviotTilaan(double Tsisa, int kuukausi) const;
  Kuukausitaulu HaviotTilaan(double Tsisa) const;
  /// After-heating of the supply air: warming it to the set-points less recovery.
  double IV_LammEnergia(int kuukausi) const;
  Kuukausitaulu IV_LammEnergia() const;
  /// Heat recovered, from air at the temperature of the space served or at `PoistoLampotila`.
  double LtoEnergia(int kuukausi) const;
  Kuukausitaulu LtoEnergia() const;
  /// The after-heating that an electric coil gives, and that a water coil gives: one of them is 0.
  double SahkoPatterinEnergia(int kuukausi) const;
  double VesikiertoisenLampoPatterinEnergia(int kuukausi) const;
  /// Electricity of the fans. With constant flow only periods at exactly 100 % count.
  double PuhallinSahko(int kuukausi) const;
  double VuotuinenPuhallinSahko() const;
  double VuotuinenIVjalkilammitysLampo() const;
  /// Electricity of the coil and the fans, MWh/a.
  double Sahko() const;
  double LammitystehonTarve() const { return 0; }
  Vuosiluvut VuodenLuvut() const;

  /// Raised when the dialog's OK has changed what the machine needs of heat and electricity.
  Oma<std::function<void()>> LampoSahkoKulutusMuuttui;

  /// Opens the dialog of the machine, modal. OK writes the values, removes what the principle doesn't have (a flow,
  /// heat recovery) and raises the event; Cancel restores the machine with its schedule and fans. True after OK.
  bool NaytaKayttoliittyma();
  /// Sets the warming in the fan, K, also to all periods of the schedule.
  void AsetaLampeneminen(double lampeneminen) noexcept;
  /// A flow without its fan would be heated, and efficiency without exhaust air recover heat.
  void PoistaPeriaatteeseenKuulumattomat() noexcept;

 private:
  static const Jasen kJasenet[];

  bool OnElavassaMallissa() const;

  Lammitystarveluku Tarveluku() const;
  clsPuhaltimenSahkonKulutus::Valinnat PuhallinValinnat() const noexcept;
  double PuhallinSahko(PuhaltimenTeho& tulo, PuhaltimenTeho& poisto, int kuukausi) const;

  Koti koti_;
  double sisaanpuhallusLampotila_ = 16.0;
  std::int32_t vakioPaineOsuusID_ = 1;
};
