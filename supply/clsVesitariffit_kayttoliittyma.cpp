// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of water tariffs.
#include "kernel/Virhe.h"
#include "supply/Tariffiluettelo.h"
#include "supply/Tariffimuokkaus.h"
#include "supply/clsVesitariffit.h"
#include "ui/frmVesitariffi.h"

namespace {

constexpr const char* kLomake = "frmVesitariffi";
constexpr const char* kRahaa = "# ### ##0.00";
constexpr double kProsentti = 100;

const Sidontataulu<clsVesitariffi> kYhteiset{kLomake, std::span(kTariffinKentat<clsVesitariffi>)};
const Sidontataulu<Maksurivi> kMaksut{kLomake, {kMaksunNimi, kMaksunHinta}, {"1", "2"}};
const Sidontataulu<Maksurivi> kJatevesi{
    kLomake, {Lukukentta<Maksuarvo<&clsEnergiamaksu::Kulutusosuus>{}>("txtLaskutettavaJateVesiOsuus", "0.##")}};

class Vesitariffimuokkaus : public Tariffimuokkaus<clsVesitariffit, clsVesitariffi> {
 public:
  Vesitariffimuokkaus(clsVesitariffit& tariffit, frmVesitariffi& lomake, Tariffitapa tapa)
      : Tariffimuokkaus(tariffit, lomake, tapa), tariffit_(tariffit), lomake_(lomake) {}

 private:
  clsVesitariffi& Uusi() override { return tariffit_.LisaaTariffi(); }
  bool Poimi(clsVesitariffi& tariffi) override { return PoimiLuettelosta(tariffi); }
  std::vector<std::string> Kayttajat(const clsVesitariffi& tariffi) const override {
    return tariffit_.Kayttajat(tariffi);
  }

  void NaytaKentat(clsVesitariffi& tariffi) override {
    const double kerroin = tariffi.NayttoKerroin();
    kYhteiset.Paivita(lomake_, tariffi);
    kMaksut.Paivita(lomake_, {tariffi.PuhdasVesi(), kerroin}, "1");
    kMaksut.Paivita(lomake_, {tariffi.Jatevesi(), kerroin}, "2");
    kJatevesi.Paivita(lomake_, {tariffi.Jatevesi(), kerroin});
    lomake_.NaytaVesivero(tariffi.VesiVero);
  }
  bool KirjoitaKentta(const Ohjain& kentta, clsVesitariffi& tariffi) override {
    const double kerroin = tariffi.NayttoKerroin();
    Maksurivi puhdas{tariffi.PuhdasVesi(), kerroin}, jate{tariffi.Jatevesi(), kerroin};
    return kYhteiset.KirjoitaKentta(kentta, tariffi) || kMaksut.KirjoitaKentta(kentta, puhdas, "1") ||
           kMaksut.KirjoitaKentta(kentta, jate, "2") || kJatevesi.KirjoitaKentta(kentta, jate);
  }
  /// Clean water is billed in full.
  void Viimeistele(clsVesitariffi& tariffi) override { tariffi.PuhdasVesi().Kulutusosuus = kProsentti; }

  std::vector<Laskurivi> Lasku(const clsVesitariffi& tariffi, double kulutus) const override {
    const Vuosilasku lasku = tariffi.Lasku(kulutus);
    const clsEnergiamaksu& jate = tariffi.Jatevesi();
    const double puhdasVuodessa = tariffi.PuhdasVesi().Hinta * kulutus;
    const double jateVuodessa = jate.Hinta * jate.Kulutusosuus * kulutus / kProsentti;
    return {
        {puhdasVuodessa, &lomake_.txtPuhdasVesiYhteensa, kRahaa, tekstit::kLaskunPuhdasVesi},
        {jateVuodessa, &lomake_.txtJatevesiYhteensa, kRahaa, tekstit::kLaskunJatevesi},
        {puhdasVuodessa + jateVuodessa, &lomake_.txtVesiYhteensa, kRahaa},
        {lasku.perus, &lomake_.txtPerusmaksuYhteensa, kRahaa, tekstit::kLaskunPerusmaksu},
        {lasku.muu, &lomake_.txtMuuMaksuYhteensa, kRahaa, tekstit::kLaskunMuuMaksu},
    };
  }

  clsVesitariffit& tariffit_;
  frmVesitariffi& lomake_;
};

}  // namespace

std::optional<Tunniste> clsVesitariffit::NaytaKayttoliittyma(const Tunniste& valittava, double kulutus,
                                                             Tariffitapa tapa) try {
  frmVesitariffi lomake;
  return Vesitariffimuokkaus(*this, lomake, tapa).Nayta(valittava, kulutus);
} catch (...) {
  NostaVirhe("clsVesitariffit:NaytaKayttoliittyma Method");
}
