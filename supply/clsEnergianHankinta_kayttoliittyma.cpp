// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a supply.
#include <cmath>

#include "building/Kokoelmamuokkaus.h"
#include "building/clsPerustiedot.h"
#include "kernel/Luvut.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsEnergianHankinta.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_hankinta.h"
#include "tekstit/lomakkeet_tariffit.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Hiljaa.h"
#include "ui/frmEnHankKoostEnergiamuodoista.h"

namespace {

using Hankinta = clsEnergianHankinta;
using Muoto = clsEnergiamuoto;

constexpr double kProsentti = 100;
constexpr const char* kOsuus = "0.0#######";
constexpr const char* kHinta = "### ##0.00";

/// The dialog while it is open. Forms and tariffs are edited live; Cancel copies back what was.
class Hankintamuokkaus {
 public:
  explicit Hankintamuokkaus(Hankinta& hankinta)
      : hankinta_(hankinta), elava_(OnElavassaMallissa(hankinta)), rakennus_(VaadiRakennus()) {
    switch (hankinta.Kayttotarkoitus) {
      case Hankinta::Lampo:
        lomake_.NaytaLampona();
        break;
      case Hankinta::Sahko:
        lomake_.NaytaSahkona();
        break;
      default:
        lomake_.NaytaVetena();
    }
    LiitaTapahtumat();
  }

  bool Nayta() {
    Muokkausistunto istunto(std::tie(hankinta_, rakennus_.Tariffit, rakennus_.Vesitariffit), lomake_,
                            {.elava = elava_,
                             .lue = [this] { lomake_.muodot.Nayta(); },
                             .tarkista = [this] { return OsuudetTayttyvat(); },
                             .tapahtuma = hankinta_.OKPainettu.arvo,
                             .virheenJalkeen = [this] { lomake_.muodot.Nayta(); }});
    return istunto.Nayta();
  }

 private:
  /// False for a supply that a saving measure owns: the building didn't change with it.
  static bool OnElavassaMallissa(const Hankinta& hankinta) {
    const clsPerustiedot& tiedot = VaadiRakennus().Perustiedot;
    return &hankinta == &tiedot.LammonHankinta || &hankinta == &tiedot.SahkonHankinta ||
           &hankinta == &tiedot.VedenHankinta;
  }

  void LiitaTapahtumat() {
    Luettelotoimet toimet = Toimet<Muoto>({.kokoelma = hankinta_.Energiamuodot,
                                           .nimi = &Muoto::Nimi,
                                           .kaytossa = tekstit::kMuotoKaytossa,
                                           .muokkaa = [](Muoto& muoto) { return muoto.NaytaKayttoliityma(); },
                                           .alusta = [this](Muoto& uusi) { hankinta_.AlustaMuoto(uusi); },
                                           .avaaKopio = true},
                                          [this] { return Sisalto(); });
    toimet.naytaUudelleen = true;
    toimet.poistoeste = [this](const Tunniste& avain) { return Poistoeste(hankinta_.Energiamuodot.Item(avain)); };
    toimet.valittu = [this] { NaytaMuut(); };
    lomake_.muodot.Aseta(std::move(toimet));
    lomake_.lvwEnergiamuodot.KunMuokataan([this](int rivi, int, const std::string& teksti) {
      OsuusKirjoitettu(hankinta_.Energiamuodot.Item(lomake_.lvwEnergiamuodot.Avain(rivi)), teksti);
    });
    lomake_.cmdMyyntiTariffi.KunKlikataan([this] { KayttoLiittyma_MyyntiTariffiKlikattu(); });
    lomake_.cmdSiirtoTariffi.KunKlikataan([this] { Kayttoliittyma_SiirtoTariffiKlikattu(); });
    lomake_.cmdIrrotaTariffit.KunKlikataan([this] { IrrotaTariffit(); });
    lomake_.RahatMuuttuivat = [this] { NaytaHinnat(); };
  }

  bool Vesi() const { return hankinta_.Kayttotarkoitus == Hankinta::Vesi; }
  bool Sahko() const { return hankinta_.Kayttotarkoitus == Hankinta::Sahko; }
  Muoto* Valittu() const { return hankinta_.Energiamuodot.Etsi(lomake_.lvwEnergiamuodot.Valittu()); }

  static std::string Poistoeste(Muoto& muoto) {
    const std::string toimenpiteet = ViittaavatToimenpiteet(muoto);
    if (toimenpiteet.empty()) return {};
    return Teksti(tekstit::kMuotoKaytossa) + " " + muoto.Nimi + ". " + Teksti(tekstit::kViittaavatToimenpiteet) + " " +
           toimenpiteet;
  }

  // The list.

  /// Name of the tariff; none when the building no longer has it.
  std::optional<std::string> TariffinNimi(const Tunniste& avain) const {
    if (avain.Tyhja()) return Teksti(tekstit::kEiTariffia);
    if (Vesi()) {
      const clsVesitariffi* tariffi = rakennus_.Vesitariffit.Etsi(avain);
      return tariffi ? std::optional(tariffi->Nimi) : std::nullopt;
    }
    const clsTariffi* tariffi = rakennus_.Tariffit.Etsi(avain);
    return tariffi ? std::optional(tariffi->Nimi) : std::nullopt;
  }
  void LisaaTariffi(Luettelorivi& rivi, const Tunniste& avain) const {
    const auto nimi = TariffinNimi(avain);
    rivi.solut.push_back(nimi.value_or(Teksti(tekstit::kTariffiaEiLoydy)));
    if (nimi) return;
    rivi.piirteet.merkitys = Merkitys::Huomio;
    rivi.piirteet.selite = Teksti(tekstit::kTariffiKadonnut);
  }
  Luettelorivi Rivi(const Muoto& muoto) const {
    Luettelorivi rivi{{muoto.Nimi}, muoto.sKey};
    rivi.LisaaLuku(muoto.OsuusNettotarpeesta, kOsuus);
    rivi.LisaaLuku(muoto.Hyotysuhde, "0.00");
    rivi.piirteet.selite = muoto.Kuvaus;
    rivi.piirteet.muokattavat = {lomake_.kOsuussarake};
    LisaaTariffi(rivi, muoto.MyyntiTariffiSkey);
    if (Sahko()) LisaaTariffi(rivi, muoto.SiirtoTariffiSkey);
    return rivi;
  }
  Luettelosisalto Sisalto() const {
    Luettelosisalto sisalto;
    for (const Muoto& muoto : hankinta_.Energiamuodot) sisalto.rivit.push_back(Rivi(muoto));
    const double summa = hankinta_.Energiamuodot.OsuuksienSumma();
    sisalto.summat = {Teksti(tekstit::kMuotojenOsuudetYhteensa), Muotoile(summa, kOsuus), "", ""};
    if (!clsEnergiamuodot::OnTaysi(summa))
      sisalto.summat.back() = Teksti(summa < kProsentti ? tekstit::kOsuuksistaPuuttuu : tekstit::kOsuuksiaLiikaa) +
                              " " + Muotoile(std::abs(kProsentti - summa), kOsuus) + " %";
    return sisalto;
  }
  void OsuusKirjoitettu(Muoto& muoto, const std::string& teksti) {
    const auto osuus = LueLuku(teksti);
    if (!osuus || *osuus < 0 || *osuus > kProsentti)
      Ilmoita(Teksti(tekstit::kOsuusEiKelpaa), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    else if (teksti != Muotoile(muoto.OsuusNettotarpeesta, kOsuus))
      muoto.OsuusNettotarpeesta = *osuus;
    lomake_.muodot.Nayta();
  }
  bool OsuudetTayttyvat() const {
    const double summa = hankinta_.Energiamuodot.OsuuksienSumma();
    if (clsEnergiamuodot::OnTaysi(summa)) return true;
    const bool yli = summa > kProsentti;
    const int energia = yli ? virheet::kMuotojenOsuudetYli : virheet::kMuotojenOsuudetAlle;
    const int vesi = yli ? virheet::kTapojenOsuudetYli : virheet::kTapojenOsuudetAlle;
    NaytaVirhe(Vesi() ? vesi : energia, Muotoile(std::abs(summa - kProsentti), kOsuus) + " %");
    return false;
  }

  // What hangs on the list.

  void NaytaMuut() {
    const Muoto* muoto = Valittu();
    lomake_.cmdMyyntiTariffi.Kaytossa(muoto);
    lomake_.cmdSiirtoTariffi.Kaytossa(muoto);
    lomake_.cmdIrrotaTariffit.Kaytossa(muoto &&
                                       !(muoto->MyyntiTariffiSkey.Tyhja() && muoto->SiirtoTariffiSkey.Tyhja()));
    NaytaOsuudet();
    NaytaHinnat();
  }
  void NaytaOsuudet() const {
    Kaaviotiedot kaavio{.otsikko = Teksti(Vesi() ? tekstit::kTapojenOsuudetOtsikko : tekstit::kMuotojenOsuudetOtsikko),
                        .yksikko = "%",
                        .taysi = kProsentti};
    for (const Muoto& muoto : hankinta_.Energiamuodot) {
      const auto paasto = LaskeHiljaa([&] { return muoto.IlmastonLampeneminenCO2ekv(); });
      std::string nimi = muoto.Nimi;
      if (!Vesi() && paasto) nimi += ", " + Muotoile(*paasto, "### ##0.##") + " kg CO₂/MWh:";
      kaavio.nimet.push_back(std::move(nimi));
      kaavio.arvot.push_back(muoto.OsuusNettotarpeesta);
    }
    lomake_.chtOsuudet.Kaavio(std::move(kaavio));
  }
  /// Of a supply whose tariff is gone the price can't be told.
  void NaytaHinnat() const {
    const clsEnergiamuodot& muodot = hankinta_.Energiamuodot;
    const double kerroin = Asetukset().NayttoKerroin(static_cast<Energialaji>(hankinta_.Kayttotarkoitus));
    const auto nayta = [](const TextBox& kentta, std::optional<double> arvo) {
      kentta.Teksti(arvo ? Muotoile(*arvo, kHinta) : "---");
    };
    nayta(lomake_.txtKeskihinta, LaskeHiljaa([&] { return muodot.Keskihinta() * kerroin; }));
    nayta(lomake_.txtVuosimaksut, LaskeHiljaa([&] { return muodot.Vuosimaksut() * kerroin; }));
    nayta(lomake_.txtPaastokerroin, LaskeHiljaa([&] { return muodot.IlmastonLampeneminenCO2ekv(); }));
    lomake_.lblALV.Otsikko(Asetukset().Verohuomautus());
  }

  // Tariffs.

  /// The form's share of the measured consumption of the comparison year; only for the yearly bill in the dialog.
  double Kulutus(const Muoto& muoto) const {
    const auto kulutus = LaskeHiljaa([&] {
      const clsToteutunutKulutus& vuosi = rakennus_.Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
      if (Vesi()) return vuosi.Vesi;
      return Sahko() ? vuosi.Sahko : vuosi.Lampo;
    });
    return kulutus.value_or(0) * muoto.OsuusNettotarpeesta / kProsentti;
  }
  Tariffitapa Tapa() const { return elava_ ? Tariffitapa::Muokkaus : Tariffitapa::Valinta; }
  std::optional<Tunniste> Valitse(clsTariffi::Laji laji, const Tunniste& valittava, double kulutus) const {
    return rakennus_.Tariffit.NaytaKayttoliittyma(laji, valittava, kulutus, Tapa());
  }
  void Aseta(Tunniste& avain, const std::optional<Tunniste>& valittu) {
    if (valittu) avain = *valittu;
    lomake_.muodot.Nayta();
  }
  void KayttoLiittyma_MyyntiTariffiKlikattu() {
    Muoto& muoto = *Valittu();
    Tunniste& avain = muoto.MyyntiTariffiSkey;
    const double kulutus = Kulutus(muoto);
    if (Vesi()) return Aseta(avain, rakennus_.Vesitariffit.NaytaKayttoliittyma(avain, kulutus, Tapa()));
    Aseta(avain, Valitse(Sahko() ? clsTariffi::SahkoMyyntiTariffi : clsTariffi::LampoTariffi, avain, kulutus));
  }
  void Kayttoliittyma_SiirtoTariffiKlikattu() {
    Tunniste& avain = Valittu()->SiirtoTariffiSkey;
    Aseta(avain, Valitse(clsTariffi::SahkoSiirtoTariffi, avain, Kulutus(*Valittu())));
  }
  void IrrotaTariffit() {
    Valittu()->MyyntiTariffiSkey = Valittu()->SiirtoTariffiSkey = Tunniste();
    lomake_.muodot.Nayta();
  }

  Hankinta& hankinta_;
  const bool elava_;
  clsRakennus& rakennus_;
  frmEnHankKoostEnergiamuodoista lomake_;
};

}  // namespace

bool clsEnergianHankinta::NaytaKayttoliittyma() try { return Hankintamuokkaus(*this).Nayta(); } catch (...) {
  NostaVirhe("clsEnergianHankinta:NaytaKayttoliittyma Method");
}
