// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of heat tariffs, of electricity transfer tariffs and of electricity sales tariffs.
#include "kernel/Kirjainkoko.h"
#include "kernel/Virhe.h"
#include "supply/Tariffiluettelo.h"
#include "supply/Tariffimuokkaus.h"
#include "supply/clsTariffit.h"
#include "ui/frmSahkotariffi.h"

namespace {

constexpr const char* kLomake = "frmSahkotariffi";
constexpr const char* kHinta = "0.00";
constexpr const char* kPeruste = "### ##0.##";
constexpr const char* kRahaa = "### ##0.00";
constexpr const char* kKokonaisina = "### ##0";
constexpr double kProsentti = 100;

const Sidontataulu<clsTariffi> kYhteiset{kLomake, std::span(kTariffinKentat<clsTariffi>)};
const Sidontataulu kSidonnat{
    kLomake,
    {
        Lukukentta<&clsTariffi::Tehomaksu, &clsTariffi::NayttoKerroin>("TxtTehomaksu", kHinta),
        Lukukentta<&clsTariffi::TehomaksunMaaraytymisperuste>("txtTehomaksunPeruste", kPeruste),
        Lukukentta<&clsTariffi::Loistehomaksu, &clsTariffi::NayttoKerroin>("TxtLoistehomaksu", kHinta),
        Lukukentta<&clsTariffi::LoistehomaksunMaaraytymisperuste>("txtLoistehomaksunPeruste", kPeruste),
        Lukukentta<&clsTariffi::Energiavero, &clsTariffi::NayttoKerroin>("txtVeroHinta", kHinta),
    }};
const Sidontataulu kVeroluokka{
    kLomake, {Valintakentta<&clsTariffi::EnergiaveroID, &clsTariffi::EnergiaveroStr>("cmbSahkoVeroTyyppi")}};
const Sidontataulu<Maksurivi> kMaksut{
    kLomake,
    {kMaksunNimi, kMaksunHinta, Lukukentta<Maksuarvo<&clsEnergiamaksu::Kulutusosuus>{}>("txtKulutusosuus*", "0.##")},
    {"1", "2", "3", "4", "5", "6"}};

/// Calls with the word of each energy fee and the fee itself.
template <class F>
void KullekinMaksulle(clsTariffi& tariffi, F f) {
  for (int i = 1; const std::string& sana : kMaksut.Sanat()) {
    Maksurivi rivi{tariffi.Maksu(i++), tariffi.NayttoKerroin()};
    f(sana, rivi);
  }
}

Tekstinumero Ikkunaotsikko(clsTariffi::Laji laji) {
  switch (laji) {
    case clsTariffi::LampoTariffi:
      return tekstit::kLampotariffinValinta;
    case clsTariffi::SahkoSiirtoTariffi:
      return tekstit::kSiirtotariffinValinta;
    default:
      return tekstit::kMyyntitariffinValinta;
  }
}

class Energiatariffimuokkaus : public Tariffimuokkaus<clsTariffit, clsTariffi> {
 public:
  Energiatariffimuokkaus(clsTariffit& tariffit, frmSahkotariffi& lomake, clsTariffi::Laji laji, Tariffitapa tapa)
      : Tariffimuokkaus(tariffit, lomake, tapa), tariffit_(tariffit), lomake_(lomake), laji_(laji) {
    lomake.Otsikko(Teksti(Ikkunaotsikko(laji)));
    lomake.NaytaVero(Teksti(laji == clsTariffi::LampoTariffi ? tekstit::kLampoveroOtsikko : tekstit::kSahkoveroOtsikko),
                     Verolista());
  }

 private:
  bool Verolista() const { return laji_ == clsTariffi::SahkoSiirtoTariffi; }

  bool Naytetaan(const clsTariffi& tariffi) const override { return tariffi.Tariffityyppi == laji_; }
  clsTariffi& Uusi() override {
    clsTariffi& uusi = tariffit_.LisaaTariffi(laji_);
    if (Verolista()) OtaLuokanVero(uusi);
    return uusi;
  }
  bool Poimi(clsTariffi& tariffi) override { return PoimiLuettelosta(tariffi); }
  std::vector<std::string> Kayttajat(const clsTariffi& tariffi) const override { return tariffit_.Kayttajat(tariffi); }

  /// Heat has no power fees of its own; one that came with the tariff is shown, since it counts.
  void NaytaRivit(const clsTariffi& t) override {
    const bool sahko = laji_ != clsTariffi::LampoTariffi;
    lomake_.NaytaTehomaksut(sahko || t.Tehomaksu != 0 || t.TehomaksunMaaraytymisperuste != 0,
                            sahko || t.Loistehomaksu != 0 || t.LoistehomaksunMaaraytymisperuste != 0);
  }
  void NaytaKentat(clsTariffi& tariffi) override {
    kYhteiset.Paivita(lomake_, tariffi);
    kSidonnat.Paivita(lomake_, tariffi);
    kVeroluokka.Paivita(lomake_, tariffi);
    KullekinMaksulle(tariffi, [&](const std::string& sana, Maksurivi& rivi) { kMaksut.Paivita(lomake_, rivi, sana); });
    const double osuudet = tariffi.Energiamaksut.OsuuksienSumma();
    lomake_.NaytaOsuudet(osuudet, clsEnergiamaksut::OnTaysi(osuudet));
    if (Muokattavissa()) lomake_.txtVeroHinta.Kaytossa(!Verolista() || !clsTariffi::LuokanVero(tariffi.EnergiaveroID));
  }
  bool KirjoitaKentta(const Ohjain& kentta, clsTariffi& tariffi) override {
    if (kVeroluokka.KirjoitaKentta(kentta, tariffi)) return OtaLuokanVero(tariffi), true;
    if (kYhteiset.KirjoitaKentta(kentta, tariffi) || kSidonnat.KirjoitaKentta(kentta, tariffi)) return true;
    bool kirjoitettu = false;
    KullekinMaksulle(tariffi, [&](const std::string& sana, Maksurivi& rivi) {
      kirjoitettu |= kMaksut.KirjoitaKentta(kentta, rivi, sana);
    });
    return kirjoitettu;
  }
  /// The tax of the class by the settings; one that sets no tax leaves the amount as it is.
  static void OtaLuokanVero(clsTariffi& tariffi) {
    tariffi.Energiavero = clsTariffi::LuokanVero(tariffi.EnergiaveroID).value_or(tariffi.Energiavero);
  }

  std::vector<Laskurivi> Lasku(const clsTariffi& tariffi, double kulutus) const override {
    const Vuosilasku lasku = tariffi.Lasku(kulutus);
    const auto teho = [](const TextBox& kentta, Tekstinumero nimi) { return kentta.Nakyva() ? nimi : Tekstinumero{}; };
    std::vector<Laskurivi> rivit{
        {lasku.energia, nullptr, "", tekstit::kLaskunEnergia},
        {lasku.teho, &lomake_.txtTehomaksuYhteensa, kKokonaisina,
         teho(lomake_.txtTehomaksuYhteensa, tekstit::kLaskunTeho)},
        {lasku.loisteho, &lomake_.txtLoistehomaksuYhteensa, kKokonaisina,
         teho(lomake_.txtLoistehomaksuYhteensa, tekstit::kLaskunLoisteho)},
        {lasku.perus, &lomake_.txtPerusmaksuYhteensa, kKokonaisina, tekstit::kLaskunPerusmaksu},
        {lasku.muu, &lomake_.txtMuuMaksuYhteensa, kRahaa, tekstit::kLaskunMuuMaksu},
        {lasku.vero, &lomake_.txtSahkoVeroYhtensa, kRahaa, tekstit::kLaskunVero},
    };
    for (int i = 0; i < clsTariffi::kMaksuja; ++i) {
      const clsEnergiamaksu& maksu = tariffi.Maksu(i + 1);
      rivit.push_back({maksu.Hinta * maksu.Kulutusosuus * kulutus / kProsentti,
                       &lomake_.txtEnergiaYhteensa[static_cast<std::size_t>(i)], kRahaa});
    }
    return rivit;
  }

  std::string Huomautus(const clsTariffi& tariffi) const override {
    const double osuudet = tariffi.Energiamaksut.OsuuksienSumma();
    if (clsEnergiamaksut::OnTaysi(osuudet)) return {};
    return Teksti(tekstit::kOsuuksienSummaOn) + " " + Muotoile(osuudet, "0.##") + " %.";
  }
  bool Kelpaa(const clsTariffi& tariffi) const override {
    if (clsEnergiamaksut::OnTaysi(tariffi.Energiamaksut.OsuuksienSumma())) return true;
    NaytaVirhe(virheet::kEnergiamaksujenOsuudetVaarin);
    lomake_.txtKulutusosuus1.Kohdista();
    return false;
  }

  clsTariffit& tariffit_;
  frmSahkotariffi& lomake_;
  clsTariffi::Laji laji_;
};

}  // namespace

std::optional<Tunniste> clsTariffit::NaytaKayttoliittyma(clsTariffi::Laji laji, const Tunniste& valittava,
                                                         double kulutus, Tariffitapa tapa) try {
  frmSahkotariffi lomake;
  return Energiatariffimuokkaus(*this, lomake, laji, tapa).Nayta(valittava, kulutus);
} catch (...) {
  NostaVirhe("clsTariffit:NaytaKayttoliittyma Method");
}
