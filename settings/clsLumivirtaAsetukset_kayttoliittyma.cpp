// SPDX-License-Identifier: GPL-3.0-or-later
// The settings dialog. It works on the store; the object reads the store again after OK.
#include <filesystem>
#include <system_error>

#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/Asetusavaimet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/viestit.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmOptions.h"

namespace {

struct Kentta {
  Avain avain;
  TextBox frmOptions::*kentta;
};
constexpr Kentta kProsentit[] = {
    {Avain::YleinenALV, &frmOptions::txtYleinenALV},
    {Avain::TotLampo, &frmOptions::txtTotLampo},
    {Avain::TotSahko, &frmOptions::txtTotSahko},
    {Avain::TotVesi, &frmOptions::txtTotVesi},
};
constexpr Kentta kTekstit[] = {
    {Avain::Vakiokanta, &frmOptions::txtVakiokanta},
    {Avain::Kayttajakohtainen, &frmOptions::txtKayttajakohtainen},
    {Avain::VakiokantaVersio, &frmOptions::txtVakiokantaVersio},
    {Avain::Energia_Vakiokanta, &frmOptions::txtEnergia_Vakiokanta},
    {Avain::Energia_Kayttajakohtainen, &frmOptions::txtEnergia_Kayttajakohtainen},
    {Avain::Oletusosoite, &frmOptions::txtOletusosoite},
};
constexpr Avain kVerot[] = {Avain::Veroluokka1, Avain::Veroluokka2};

/// The key of a contact field: the six of an auditor follow each other.
Avain Yhteystieto(Avain ensimmainen, std::size_t i) {
  return static_cast<Avain>(static_cast<std::size_t>(ensimmainen) + i);
}

const Valuutta& ValuuttaNumero(std::int32_t i) { return Valuutat()[static_cast<std::size_t>(i)]; }

std::vector<std::string> ValuuttojenNimet() {
  std::vector<std::string> nimet;
  for (const Valuutta& valuutta : Valuutat()) nimet.emplace_back(valuutta.nimi);
  return nimet;
}

/// The taxes from one display currency to another, all decimals kept; a field that holds no number stays.
void MuunnaVerot(frmOptions& lomake, double kerroin) {
  for (std::size_t i = 0; i < std::size(kVerot); ++i)
    if (const auto vero = lomake.Vero(i)) lomake.AsetaVero(i, *vero * kerroin);
}

bool OnTiedosto(const std::string& nimi) {
  std::error_code virhe;
  return std::filesystem::is_regular_file(nimi, virhe);
}

/// A newly chosen database must exist; else a message, and the field gets the focus.
bool TiedostotLoytyvat(const frmOptions& lomake) {
  for (const Kentta& k : kTekstit) {
    const TextBox& kentta = lomake.*k.kentta;
    const bool tarkistetaan = AsetuksenRivi(k.avain).laji == AsetusLaji::DatanTiedosto;
    if (!tarkistetaan || kentta.Teksti() == HaeAsetus(k.avain) || OnTiedosto(kentta.Teksti())) continue;
    Ilmoita(Teksti(tekstit::kTiedostoaEiOle) + " " + kentta.Teksti(), Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
    kentta.Kohdista();
    return false;
  }
  return true;
}

/// Values for the store; those that the store has already are left out.
class Muutokset {
 public:
  void Lisaa(Avain avain, std::string arvo) {
    if (HaeAsetus(avain) != arvo) muutokset_.push_back(AsetuksenArvo(avain, std::move(arvo)));
  }
  void Lisaa(Avain avain, std::optional<double> arvo) {
    if (arvo) Lisaa(avain, MiljoonasosinaTekstina(*arvo));
  }
  std::vector<Asetus> Kaikki() && { return std::move(muutokset_); }

 private:
  std::vector<Asetus> muutokset_;
};

}  // namespace

void clsLumivirtaAsetukset::NaytaKayttoliittyma() try {
  frmOptions lomake;
  LueDataluokka(lomake);
  std::int32_t naytetty = lomake.cmbValuutta.Indeksi();
  lomake.ValuuttaMuuttui = [&](std::int32_t valuutta) {
    HaeRekisteristä();
    MuunnaVerot(lomake, ValuuttaNumero(valuutta).kerroin / ValuuttaNumero(naytetty).kerroin);
    lomake.NaytaRahayksikko(ValuuttaNumero(valuutta).nimi);
    naytetty = valuutta;
  };
  lomake.OkKlikattu = [&] { KayttoLiittyma_OkKlikattu(lomake); };
  lomake.PeruutaKlikattu = [&] { lomake.Sulje(); };
  lomake.NaytaModaalisena();
} catch (...) {
  NostaVirhe("clsLumivirtaAsetukset:NaytaKayttoliittyma Method");
}

void clsLumivirtaAsetukset::LueDataluokka(frmOptions& lomake) {
  const std::int32_t tallennettu = HaeKokonaisluku(Avain::Valuutta);
  const std::int32_t valuutta = tallennettu >= 0 && tallennettu < std::ssize(Valuutat()) ? tallennettu : 0;
  for (const Kentta& k : kProsentit) frmOptions::NaytaTarkka(lomake.*k.kentta, HaeMiljoonasosat(k.avain));
  for (const Kentta& k : kTekstit) (lomake.*k.kentta).Teksti(HaeAsetus(k.avain));
  (HaeTotuus(Avain::KaytaLVI) ? lomake.optKaytaLVI : lomake.optIlmanLVI).Valittu(true);
  lomake.cmbValuutta.Rivit(ValuuttojenNimet());
  lomake.cmbValuutta.Indeksi(valuutta);
  lomake.NaytaRahayksikko(ValuuttaNumero(valuutta).nimi);
  for (std::size_t i = 0; i < std::size(kVerot); ++i)
    lomake.AsetaVero(i, HaeMiljoonasosat(kVerot[i]) * ValuuttaNumero(valuutta).kerroin);
  for (std::size_t i = 0; i < lomake.txtLVI.size(); ++i) {
    lomake.txtLVI[i].Teksti(HaeAsetus(Yhteystieto(Avain::LVI0, i)));
    lomake.txtSah[i].Teksti(HaeAsetus(Yhteystieto(Avain::Sah0, i)));
  }
}

std::vector<Asetus> clsLumivirtaAsetukset::KirjoitaDataluokka(const frmOptions& lomake) {
  Muutokset muutokset;
  for (const Kentta& k : kProsentit) muutokset.Lisaa(k.avain, LueLuku((lomake.*k.kentta).Teksti()));
  for (const Kentta& k : kTekstit) muutokset.Lisaa(k.avain, (lomake.*k.kentta).Teksti());
  muutokset.Lisaa(Avain::KaytaLVI, TotuusTekstina(lomake.optKaytaLVI.Valittu()));
  muutokset.Lisaa(Avain::IlmanLVI, TotuusTekstina(lomake.optIlmanLVI.Valittu()));
  muutokset.Lisaa(Avain::Valuutta, std::to_string(lomake.cmbValuutta.Indeksi()));
  const double kerroin = ValuuttaNumero(lomake.cmbValuutta.Indeksi()).kerroin;
  for (std::size_t i = 0; i < std::size(kVerot); ++i)
    if (const auto vero = lomake.Vero(i)) muutokset.Lisaa(kVerot[i], *vero / kerroin);
  for (std::size_t i = 0; i < lomake.txtLVI.size(); ++i) {
    muutokset.Lisaa(Yhteystieto(Avain::LVI0, i), lomake.txtLVI[i].Teksti());
    muutokset.Lisaa(Yhteystieto(Avain::Sah0, i), lomake.txtSah[i].Teksti());
  }
  return std::move(muutokset).Kaikki();
}

void clsLumivirtaAsetukset::KayttoLiittyma_OkKlikattu(frmOptions& lomake) {
  if (!TiedostotLoytyvat(lomake)) return;
  TallennaAsetukset(KirjoitaDataluokka(lomake));
  HaeRekisteristä();
  AsetaRahayksikko(strDefaultCurrencyUnit);
  lomake.Sulje();
  PaivitaRahat();
}
