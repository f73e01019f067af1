// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <memory>

#include "building/Koti.h"
#include "building/Muutosilmoitus.h"
#include "kernel/Tiedostotunnus.h"
#include "kernel/clsTyyppiTiedot.h"

class MuutostenKeraaja;
class clsElinkaari;
class clsIVKoneet;
class clsKatselmoijienTiedot;
class clsMuuttuneetAttribuutit;
class clsPerustiedot;
class clsProjektiAsetukset;
class clsRaporttiasetukset;
class clsSaa;
class clsSaastotoimenpiteet;
class clsSahkoTariffienVertailu;
class clsSahkonKulutusryhmat;
class clsTariffit;
class clsTilat;
class clsToimenpiteidenJarjestelija;
class clsVedenKulutusryhmat;
class clsVesitariffit;
class Yhteenvetoikkuna;
class frmLampoYhteenveto;

/// Sums over the spaces and the machines of a building on which its gross energies rest, MWh/a.
struct Energiasummat {
  double tarve = 0;          ///< heat demand of the spaces
  double saatohaviot = 0;    ///< control losses of the spaces
  double sahkotilat = 0;     ///< demand and control losses of those heated by electricity
  double jalkilammitys = 0;  ///< after-heating of the machines
  double patterit = 0;       ///< the part of it that electric coils give
  double puhaltimet = 0;     ///< electricity of the fans
};

/// A building: the root of the model. Owns every part, answers for the building's heat and electricity totals, and is
/// what saving measures copy and patch. Holds no physics: a figure is pulled from the parts at the moment it is asked.
///
/// Months are 0 to 11; monthly figures kWh, yearly ones MWh. Results are taken inside a Tasehaarukka, their own when
/// the caller has none, so that they are the same alone and together. Errors: 9999 with the method's literal.
///
/// The parts are known here by name only: whoever uses one includes its header, so that a change of one part's header
/// doesn't compile the users of the others anew.
class clsRakennus : public Malli<clsRakennus> {
  struct Osat;
  const std::unique_ptr<Osat> osat_;

 public:
  static const Luokka kLuokka;
  /// Use-type code of each index of `clsPerustiedot.KayttoTarkoitusID`.
  static constexpr std::array<int, 41> KayttoTarkoitusKoodit{1,  2,  3,  4,  11, 12, 13, 14, 21, 22, 23, 24, 31, 32,
                                                             41, 42, 43, 44, 45, 49, 51, 52, 53, 60, 61, 62, 63, 64,
                                                             65, 66, 69, 71, 72, 79, 81, 89, 91, 92, 93, 94, 99};

  clsRakennus();
  ~clsRakennus() override;
  clsRakennus(const clsRakennus&) = delete;
  clsRakennus& operator=(const clsRakennus&) = delete;

  /// What the parts of this building know it by.
  const Koti& OmaKoti() const noexcept { return koti_; }

  clsSaa& Saa;
  clsSahkonKulutusryhmat& SahkonKulutusryhmat;
  clsVedenKulutusryhmat& VedenKulutusryhmat;
  clsProjektiAsetukset& ProjektiAsetukset;
  clsKatselmoijienTiedot& KatselmoijienTiedot;
  clsTariffit& Tariffit;
  clsVesitariffit& Vesitariffit;
  clsSaastotoimenpiteet& Saastotoimenpiteet;
  clsSahkoTariffienVertailu& SahkoTariffienVertailu;
  clsToimenpiteidenJarjestelija& ToimenpiteidenJarjestelija;
  clsPerustiedot& Perustiedot;
  clsTilat& Tilat;
  clsIVKoneet& IVKoneet;
  clsElinkaari& Elinkaari;
  clsRaporttiasetukset& Raporttiasetukset;
  clsTyyppiTiedot TyyppiTiedot;

  std::int32_t Major, Minor, Revision;  ///< version of the program that last wrote the object
  double MuuLampo = 0;                  ///< other heat use that the auditor enters, MWh/a
  bool Tallennettu = false;             ///< the object equals its file

  /// Empties the register and then the parts, before the object is dropped.
  void Delete();
  /// Empties the register and rebuilds it by walking the tree.
  void PaivitaInstanssiIdLista();
  /// Objects have come, gone or been replaced: the register is rebuilt at the next look-up.
  void RekisteriVanheni() noexcept {
    rekisteriVoimassa_ = false;
    ++vaihe_;
  }
  /// Grows whenever objects or committed values have changed: figures kept from before it no longer hold.
  std::uint64_t Vaihe() const noexcept { return vaihe_; }
  /// The object of that class and identity, with the item that holds it, or nothing. The one way to look into the
  /// register.
  Instanssi HaeInstanssi(std::string_view luokka, const Tunniste& instanssiId);
  /// Deep copy of the physics and the energy tariffs, identities included; measures, water tariffs, tariff comparison
  /// and arranger stay with this object. Into an existing target it reuses the target's parts. Returns the copy when
  /// there is no target.
  std::unique_ptr<clsRakennus> Kopioi(clsRakennus* kohde = nullptr);
  /// A copy of the whole object but what tells of its file (`ProjektiAsetukset`): measures, tariffs and all, with a
  /// register of its own.
  std::unique_ptr<clsRakennus> Tilannekuva();
  /// Makes this object what it was when the picture was taken. Its objects are reused and its weather is read, and open
  /// windows show it.
  void PalautaTilannekuva(const clsRakennus& kuva);
  /// A number that tells whether the content has changed: that of Tilannekuva.
  std::uint64_t Sormenjalki();
  /// Changes from `vanha` to this object.
  void VertaileAttribuutit(clsRakennus& vanha, MuutostenKeraaja& muuttuneet);
  /// Writes a measure's new values into this building for good (measures/Muunnelma.h takes them back); what can't be
  /// written is passed over.
  void LiitaSaastoToimenpide(const clsMuuttuneetAttribuutit& muuttuneet);

  /// Saves to a project file (kernel/Projektitiedosto.h). Never raises: error 1039 is shown, the former file is whole
  /// and `Tallennettu` stays False. True when saved. With `odotettu` a file that isn't any more in that state, since
  /// another hand has changed it, isn't replaced.
  bool Tallenna(const std::string& tiedosto, const Tiedostotunnus* odotettu = nullptr);
  /// Loads from a project file and makes this building's weather the locality's. Raises Virhe, also for a file of a
  /// newer program; damaged values keep their defaults and are told of.
  void Hae(const std::string& tiedosto);
  /// The state of the file that this object was last read from or saved to: before a save, OnYha() of it tells whether
  /// another hand has changed the file since. No part of copies.
  Tiedostotunnus LuettuTiedosto;

  /// Some structure was made with an older version of the standard structure database than the one in use.
  bool RakVakioKantaUudempiKuinMinunRakenteet() const;
  /// Gives the materials of all structures the figures of the structure database `tiedosto`, and its version.
  void PaivitaMateriaalitVakiokannasta(const std::string& tiedosto);

  /// Some energy form of the heat or electricity supply that counts as of the standard fuel database was taken from an
  /// older version of it than `versio`.
  bool EnVakioKantaUudempiKuinMinun(std::int32_t versio) const;
  /// Gives the energy forms of the heat and electricity supplies the values that the standard fuel database has now,
  /// and tells once which it no longer has. Raises error 9999 when it can't be read.
  void PaivitaEnMuodotVakiokannasta();

  // Reserved merge points: they do nothing and answer False.
  bool YhdistaEnergianHankinta(const Olio&, const Olio&) const { return false; }
  bool YhdistaTila(const Olio&, const Olio&) const { return false; }
  bool YhdistaIVKone(const Olio&, const Olio&) const { return false; }
  bool YhdistäSahkonKulutusryhma(const Olio&, const Olio&) const { return false; }
  bool YhdistaVedenKulutusryhma(const Olio&, const Olio&) const { return false; }

  double VuotuinenIVjalkilammitysLampo();
  double VuotuinenAurinkoKuorma() const { return 0; }
  double VuotuisetLKVHaviot();           ///< heat for domestic hot water
  double VuotuisetProsessiVesiHaviot();  ///< heat for process water
  double LampoHaviotTilatKk(int kuukausi);
  double LampoEnergianTarveTilatKk(int kuukausi);
  double AurinkoKuorma(int kuukausi);
  // Declared and deliberately empty monthly results.
  double LampoHaviotIVKk(int) const { return 0; }
  double HyodynnetytLampoKuormatKk(int) const { return 0; }
  double LammonTuotonHaviotKk(int) const { return 0; }
  double LKVHaviotKk(int) const { return 0; }
  double ProsessiVesiHaviotKk(int) const { return 0; }
  /// Electric load of the consumers that belong to no space, over the gross area: kWh/m² in a month. With an area of 0
  /// or less a message, and 0.
  double LaskeYleisSahkoKuorma();
  double VuotuinenLampoEnergianTarveTilat();
  double VuotuisetLampoHaviot();
  double VuotuisetHyodynnetytLampoKuormat();
  double VuotuisetSaatohaviot();
  /// Losses of producing the heat of spaces and after-heating, by the heat supply's forms: (1 / efficiency − 1) × the
  /// form's share. A form of efficiency 0 adds nothing.
  double VuotuisetLammonKonversiohaviot();
  double VuotuisetSahkoKonversiohaviot();
  double VuotuisetLaiteSahkoKonversiohaviot();
  double VuotuisetSahkoLammonKonversiohaviot();
  double VuotuinenBruttoLampoEnergia();
  double VuotuinenBruttoSahkoEnergia();
  double VuotuinenBruttoLaiteSahkoEnergia();
  /// Gross energies, and the net demands that the supplies convert, from sums that the caller has, MWh.
  double BruttoLampoEnergia(const Energiasummat& summat) const;
  double BruttoSahkoEnergia(const Energiasummat& summat) const;
  double LammonNettotarve(const Energiasummat& summat) const { return summat.jalkilammitys + summat.tarve; }
  double SahkonNettotarve(const Energiasummat& summat) const;
  /// Measured heat of the comparison year, its weather-dependent part scaled to the normal year: (Q − V) N / S + V.
  /// Warns when the constant share V exceeds Q; 0 with error 1050 when the year has no degree days S.
  double ToteutunutNormitettuLampo();

  /// To be called once when a command or a dialog has committed a change of the model, whatever it was: the object
  /// differs from its file, measures, caches and register no longer hold, the session makes it a step of undo, and open
  /// windows show the new figures. `toiminto` is what the person sees as its name, "Tilan tiedot".
  void Muuttui(std::string_view toiminto);
  /// The same for a change of saving measures or of their order: the model is what it was, and figures that rest on it
  /// hold.
  void ToimenpiteetMuuttuivat(std::string_view toiminto);
  /// The content isn't that of the last commit: of Muuttui, PalautaTilannekuva, or the session's beginning.
  bool Kirjaamatta() { return Sormenjalki() != kirjattu_; }
  /// The content as it is now is where the next change begins.
  void OtaKirjatuksi() { kirjattu_ = Sormenjalki(); }
  /// Open windows show the present figures.
  void PaivitaNakymat();
  /// A window that shows results of this building: `naytaUudelleen` runs after each change while the subscription is
  /// kept.
  [[nodiscard]] Muutostilaus TilaaMuutokset(Muutoskuulija naytaUudelleen);
  /// The session's ear for Muuttui.
  std::function<void(std::string_view toiminto)> MuutosVahvistettu;

  /// Opens the heat summary after its warnings; re-bases all measures on the present model.
  void NaytaLampoYhteenvetoDlg();
  /// Opens the yearly summary (results/Yhteenvetoikkuna.h).
  void NaytaYhteenvetoDlg();

 private:
  Energiasummat Lammityssummat();
  void PoistaVoimasta();
  void Vahvista(std::string_view toiminto);
  void LuoOletusmalli();
  void TyhjennaOsat();
  bool TarjoaMateriaalienPaivitysta();
  bool TarjoaEnergiamuotojenPaivitysta();
  void VaroitaMaanvaraisista() const;
  void VaroitaIlmavirroista();
  void PaivitaLampoYhteenveto();
  void TaytaLampoYhteenveto();
  void PaivitaToimenpiteidenPerusta();

  Koti koti_{*this};
  Muutosilmoitus nakymat_;
  bool rekisteriVoimassa_ = false;
  std::uint64_t vaihe_ = 0;
  std::uint64_t kirjattu_ = 0;  // fingerprint at the last commit
  bool vaurioitunut_ = false;   // the file had values that could not be read: the next save keeps it aside
  std::unique_ptr<frmLampoYhteenveto> lampoYhteenveto_;
  Muutostilaus lampoYhteenvedonTilaus_;
  std::unique_ptr<Yhteenvetoikkuna> yhteenveto_;
};
