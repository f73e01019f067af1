// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>

#include "building/Koti.h"
#include "kernel/Laskenta.h"
#include "measures/Hyodykkeet.h"
#include "measures/KelluvaRyhma.h"
#include "measures/Kustannussaastot.h"
#include "measures/clsMuuttuneetAttribuutit.h"

class Muunnelmalaskin;
struct Ostot;

/// A saving measure: a variation of the live model (attached), or of a consumer group of its own (floating), with
/// prices and the yearly figures before and after. Amounts are in euros without VAT, energies MWh/a, water m³/a.
///
/// The building is the one that the measure's list belongs to. Computing lays the variation on it for a moment
/// (measures/Muunnelma.h); afterwards the building is as it was, also after an error. Errors: 9999 with the method's
/// literal.
class clsSaastotoimenpide : public Malli<clsSaastotoimenpide, Alkio> {
 public:
  static const Luokka kLuokka;
  /// Dated today, made by the present user.
  clsSaastotoimenpide();

  /// Takes its place in a building.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  clsMuuttuneetAttribuutit MuuttuneetAttribuutit;
  double LampoEnergiaJalkeen = 0;      ///< yearly gross heat after, MWh/a
  double SahkoEnergiaJalkeen = 0;      ///< yearly gross electricity after, MWh/a
  double VedenkulutusJalkeen = 0;      ///< yearly water after, m³/a
  bool JalkeenTiedotUpToDate = false;  ///< the figures after are valid
  bool EnnenTiedotUpToDate = false;    ///< the figures before are valid
  double SahkoLoisTehoHinta = 0;       ///< €/kVAr
  double SahkoPatoTehoHinta = 0;       ///< €/kW
  double LampoTehoHinta = 0;           ///< €/kW
  double VesiHinta = 0;                ///< €/m³
  double SahkoEnergiaHinta = 0;        ///< €/MWh
  double LampoEnergiaHinta = 0;        ///< €/MWh
  double SaastoLoisTeho = 0;           ///< saved reactive power, kVAr: given, never calculated, as the two below
  double SaastoPatoTeho = 0;           ///< saved power, kW
  double SaastoLampoteho = 0;          ///< saved heat power, kW
  double Investointi = 0;              ///< €
  double TekninenKayttoika = 0;        ///< technical life of what is bought, a; 0: that of the calculation period
  std::string Kuvaus;
  std::string Nimi;
  std::string ToimenpiteenPaivays;
  std::string ToimenpiteenTekijanNimi;
  KelluvaRyhma KelluvaEnnen;  ///< the measure's own group before; empty when it concerns a live object

  bool Kelluva() const noexcept { return MuuttuneetAttribuutit.Kelluva(); }
  /// Takes the prices of the building's supplies, which stay with the measure from then on.
  void OtaHinnat();
  /// The object before: the live one, or the measure's own group, made when there is none yet. Nothing when the live
  /// one is gone.
  Olio* Ennen();
  /// Makes the object after: a copy of the one before with the changes written in it, under an identity of its own.
  /// Parts of it keep theirs. Changes that can't be written are passed over and told. An error when the object before
  /// is gone.
  std::unique_ptr<Olio> TeeJalkeen();
  /// Takes what the edited object after differs by from the one before as the measure's changes; its figures after are
  /// stale then. A structure whose U-value has changed is to keep it: it won't be computed from layers any more.
  void PaivitaMuuttuneetAttribuutit(Olio& jalkeen);

  /// Takes the change back, and with it what goes with it: the text of a choice, the way of calculation, the flag of a
  /// U-value. The figures after are stale then.
  void PeruMuutos(const Tunniste& muutos);

  /// Computes the figures before, unless they are valid, and the figures after. With a calculator of the building many
  /// measures share one calculation of the base.
  void PaivitaKulutukset();
  void PaivitaKulutukset(Muunnelmalaskin& laskin);
  /// The stored figures, computed first when they aren't valid: those after rest on those before.
  Hyodykkeet KulutusEnnen();
  Hyodykkeet KulutusJalkeen();
  /// The figures after, and valid from now on.
  void KulutusJalkeen(const Hyodykkeet& kulutus) noexcept;
  Hyodykkeet Saasto();
  /// What the yearly saving is worth at the measure's prices, with its saved powers.
  Kustannussaastot Kustannussaasto(const Hyodykkeet& saasto) const noexcept;
  Kustannussaastot Kustannussaasto() { return Kustannussaasto(Saasto()); }
  double KustannusSaastoYhteensa(const Alvprosentit& alv) { return Kustannussaasto().Yhteensa(alv); }
  double Takaisinmaksuaika(const Alvprosentit& alv) {
    return ::Takaisinmaksuaika(Investointi, KustannusSaastoYhteensa(alv), alv);
  }
  /// What bought energy and water cost and emit less, each state by its own supplies and tariffs.
  Ostot Ostosaasto();
  Ostot Ostosaasto(Muunnelmalaskin& laskin);

  /// Lets the person edit the measure, modal; what it changes is edited in the ordinary dialog of the object after. OK
  /// commits. Cancel takes back what was written in the dialog's own fields; changes that were made through the object
  /// after stay, committed too. True after OK.
  bool NaytaKayttoliittyma();
  /// At the OK of the dialog, with the measure's key.
  Oma<std::function<void(const Tunniste&)>> OkKlikattu;

  /// Yearly gross heat and electricity, MWh/a, and water, m³/a, before. A new figure more than 0.1 away from the stored
  /// one makes the figures before and after invalid.
  double LampoEnergiaEnnen() const noexcept { return lampoEnnen_; }
  void LampoEnergiaEnnen(double arvo) noexcept { AsetaEnnen(lampoEnnen_, arvo); }
  double SahkoEnergiaEnnen() const noexcept { return sahkoEnnen_; }
  void SahkoEnergiaEnnen(double arvo) noexcept { AsetaEnnen(sahkoEnnen_, arvo); }
  double VedenkulutusEnnen() const noexcept { return vesiEnnen_; }
  void VedenkulutusEnnen(double arvo) noexcept { AsetaEnnen(vesiEnnen_, arvo); }

 private:
  static const Jasen kJasenet[];

  void AsetaEnnen(double& tieto, double arvo) noexcept;
  std::unique_ptr<Olio> TeeLiitetty();
  std::unique_ptr<Olio> TeeKelluva();
  void KiinnitaUArvot(Olio& jalkeen, clsMuuttuneetAttribuutit& muutokset) const;
  Hyodykkeet LaskeKelluva(Muunnelmalaskin& laskin);

  Koti koti_;
  double lampoEnnen_ = 0;
  double sahkoEnnen_ = 0;
  double vesiEnnen_ = 0;
};
