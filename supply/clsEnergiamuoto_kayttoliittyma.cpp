// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of an energy form.
#include <cmath>

#include "building/Muokkausistunto.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "supply/clsEnergiamuodonKasittely.h"
#include "supply/clsEnergianHankinta.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_hankinta.h"
#include "tekstit/viestit.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmEnergiamuoto.h"

namespace {

using Muoto = clsEnergiamuoto;
using Kanta = Energiamuotokanta::Laji;

constexpr const char* kLomake = "frmEnergiamuoto";
constexpr const char* kVaikutus = "### ##0.0##";
constexpr const char* kMaara = "0.0####";
constexpr int kMaarasarake = 1;

/// An impact, as it is read: computed or typed.
template <double (Muoto::*Lue)() const, void (Muoto::*Kirjoita)(double)>
struct Vaikutus {
  using Olio = Muoto;
  using Arvo = double;
  static double Hae(const Muoto& muoto) { return (muoto.*Lue)(); }
  static void Aseta(Muoto& muoto, double arvo) { (muoto.*Kirjoita)(arvo); }
};

const Sidontataulu kSidonnat{kLomake,
                             {
                                 Tekstikentta<&Muoto::Nimi>("txtNimi"),
                                 Tekstikentta<&Muoto::Kuvaus>("txtKuvaus"),
                                 Lukukentta<&Muoto::Hyotysuhde>("txtHyotysuhde", "0.0##"),
                                 Lukukentta<&Muoto::OsuusNettotarpeesta>("txtOsuusNettotarpeesta", "0.0##"),
                                 Rastikentta<&Muoto::LaskePaastotPolttoaineista>("chkLaskePaastotPolttoaineista"),
                             }};
const Sidontataulu kVaikutukset{
    kLomake,
    {
        Lukukentta<Vaikutus<&Muoto::UusiutumatonEnergia, &Muoto::UusiutumatonEnergia>{}>("txtUusiutumatonEnergia",
                                                                                         kVaikutus),
        Lukukentta<Vaikutus<&Muoto::UusiutuvaEnergia, &Muoto::UusiutuvaEnergia>{}>("txtUusiutuvaEnergia", kVaikutus),
        Lukukentta<Vaikutus<&Muoto::UusiutumattomatRaakaaineet, &Muoto::UusiutumattomatRaakaaineet>{}>(
            "txtUusiutumattomatRaakaaineet", kVaikutus),
        Lukukentta<Vaikutus<&Muoto::UusiutuvatRaakaaineet, &Muoto::UusiutuvatRaakaaineet>{}>("txtUusiutuvatRaakaaineet",
                                                                                             kVaikutus),
        Lukukentta<Vaikutus<&Muoto::IlmastonLampeneminenCO2ekv, &Muoto::IlmastonLampeneminenCO2ekv>{}>(
            "txtIlmastonLampeneminenCO2ekv", kVaikutus),
        Lukukentta<Vaikutus<&Muoto::VarastoitunutCO2, &Muoto::VarastoitunutCO2>{}>("txtVarastoitunutCO2", kVaikutus),
        Lukukentta<Vaikutus<&Muoto::HappamoituminenSOxekv, &Muoto::HappamoituminenSOxekv>{}>("txtHappamoituminenSOxekv",
                                                                                             kVaikutus),
        Lukukentta<Vaikutus<&Muoto::OksidanttienMuodostus, &Muoto::OksidanttienMuodostus>{}>("txtOksidanttienMuodostus",
                                                                                             kVaikutus),
        Lukukentta<Vaikutus<&Muoto::Particle, &Muoto::Particle>{}>("txtParticle", kVaikutus),
    }};

/// The dialog while it is open. The list of fuels and the tick are edited live, the fields at OK.
class Muotomuokkaus {
 public:
  explicit Muotomuokkaus(Muoto& muoto) : muoto_(muoto) {
    lomake_.polttoaineet.Aseta({.sisalto = [this] { return Rivit(); },
                                .nimi = [this](const Tunniste& avain) { return muoto_.Resurssit.Item(avain).Nimi; },
                                .lisaa = [this] { return LisaaPolttoaine(); },
                                .poista = [this](const Tunniste& avain) { PoistaPolttoaine(avain); },
                                .paina = [](const Tunniste&) {},
                                .lukko = Muokkauslukko,
                                .poistoeste = [this](const Tunniste& avain) { return Poistoeste(avain); }});
    lomake_.lvwPolttoaineet.KunMuokataan([this](int rivi, int, const std::string& teksti) {
      MaaraKirjoitettu(muoto_.Resurssit.Item(lomake_.lvwPolttoaineet.Avain(rivi)), teksti);
    });
    lomake_.LasketaanKlikattu = [this] { LasketaanKlikattu(); };
    lomake_.PoimiKirjastostaKlikattu = [this] { PoimiKirjastosta(); };
  }

  bool Nayta() {
    const bool vesi = muoto_.Tyyppi == clsEnergianHankinta::Vesi;
    if (vesi) lomake_.Otsikko(Teksti(tekstit::kVedenHankintatapa));
    lomake_.NaytaEnergiatiedot(!vesi);
    Muokkausistunto istunto(muoto_, lomake_,
                            {.nimi = muoto_.Nimi,
                             .lue = [this] { LueDataluokka(); },
                             .kirjoita = [this] { KirjoitaDataluokka(); },
                             .virheenJalkeen = [this] { LueDataluokka(); }});
    return istunto.Nayta();
  }

 private:
  void LueDataluokka() {
    kSidonnat.Lue(lomake_, muoto_);
    lomake_.polttoaineet.Nayta();
    NaytaVaikutukset();
    lomake_.lblLahde.Otsikko(Lahde());
  }
  void KirjoitaDataluokka() {
    kSidonnat.Kirjoita(lomake_, muoto_);
    if (!muoto_.LaskePaastotPolttoaineista) kVaikutukset.Kirjoita(lomake_, muoto_);
  }
  /// The row of the database that the form was taken from.
  std::string Lahde() const {
    if (muoto_.IdEmuotoKannassa == 0) return {};
    return Teksti(muoto_.OnVakiokannasta ? tekstit::kPoimittuVakiokannasta : tekstit::kPoimittuOmastaKannasta) + " " +
           std::to_string(muoto_.IdEmuotoKannassa);
  }

  void NaytaVaikutukset() {
    lomake_.chkLaskePaastotPolttoaineista.Valittu(muoto_.LaskePaastotPolttoaineista);
    lomake_.chkLaskePaastotPolttoaineista.Kaytossa(muoto_.Resurssit.Count() > 0 || muoto_.LaskePaastotPolttoaineista);
    lomake_.VaikutuksetLasketaan(muoto_.LaskePaastotPolttoaineista);
    kVaikutukset.Lue(lomake_, muoto_);
  }
  void PolttoaineetMuuttuivat() {
    VaadiRakennus().RekisteriVanheni();
    if (muoto_.LaskePaastotPolttoaineista)
      NaytaVaikutukset();
    else
      lomake_.chkLaskePaastotPolttoaineista.Kaytossa(muoto_.Resurssit.Count() > 0);
  }
  /// What has been typed stays when the person turns the computing on and off before OK.
  void LasketaanKlikattu() {
    if (!muoto_.LaskePaastotPolttoaineista) kVaikutukset.Kirjoita(lomake_, muoto_);
    muoto_.LaskePaastotPolttoaineista = lomake_.chkLaskePaastotPolttoaineista.Valittu();
    NaytaVaikutukset();
  }

  Luettelosisalto Rivit() const {
    Luettelosisalto sisalto;
    for (const clsResurssi& polttoaine : muoto_.Resurssit) {
      Luettelorivi rivi{{polttoaine.Nimi}, polttoaine.sKey};
      rivi.LisaaLuku(polttoaine.Maara, kMaara);
      rivi.LisaaLuku(polttoaine.IlmastonLampeneminenCO2ekv * polttoaine.Maara * Muoto::kMJ_MWh, "### ##0.00");
      rivi.piirteet = {.selite = polttoaine.Kuvaus, .muokattavat = {kMaarasarake}};
      sisalto.rivit.push_back(std::move(rivi));
    }
    return sisalto;
  }
  void MaaraKirjoitettu(clsResurssi& polttoaine, const std::string& teksti) {
    const auto maara = LueLuku(teksti);
    if (!maara || *maara < 0)
      Ilmoita(Teksti(tekstit::kPolttoaineenMaaraEiKelpaa), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    else if (teksti != Muotoile(polttoaine.Maara, kMaara))
      polttoaine.Maara = *maara;
    lomake_.polttoaineet.Nayta();
    PolttoaineetMuuttuivat();
  }

  Tunniste LisaaPolttoaine() {
    const auto poimittu = clsEnergiamuodonKasittely().Poimi(true, Kanta::Vakio, 0);
    if (!poimittu) return {};
    const Tunniste avain = muoto_.LisaaPolttoaine(Energiamuotokanta(poimittu->kanta).Polttoaine(poimittu->rivi)).sKey;
    lomake_.polttoaineet.Nayta();
    PolttoaineetMuuttuivat();
    return avain;
  }
  /// Without fuels nothing is left to compute from: the last computed figures stay.
  void PoistaPolttoaine(const Tunniste& avain) {
    if (muoto_.Resurssit.Count() == 1 && muoto_.LaskePaastotPolttoaineista) {
      muoto_.LaskePaastotPolttoaineista = false;
      NaytaVaikutukset();
    }
    muoto_.Resurssit.Remove(avain);
    lomake_.polttoaineet.Nayta();
    PolttoaineetMuuttuivat();
  }
  std::string Poistoeste(const Tunniste& avain) const {
    const std::string toimenpiteet = ViittaavatToimenpiteet(muoto_.Resurssit.Item(avain));
    if (toimenpiteet.empty()) return {};
    return Teksti(tekstit::kMuotoKaytossa) + " " + muoto_.Nimi + ". " + Teksti(tekstit::kViittaavatToimenpiteet) + " " +
           toimenpiteet;
  }

  bool Lammitys() const { return muoto_.Tyyppi == clsEnergianHankinta::Lampo; }

  /// A row brings no fuels: those of the form would go, which the lock forbids.
  void PoimiKirjastosta() {
    if (muoto_.Resurssit.Count() > 0 && !Muokkauslukko().empty())
      return Ilmoita(Teksti(tekstit::kPoimintaPoistaisiPolttoaineet), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    KirjoitaDataluokka();
    const auto poimittu = clsEnergiamuodonKasittely().Poimi(
        Lammitys(), muoto_.OnVakiokannasta ? Kanta::Vakio : Kanta::Kayttajan, muoto_.IdEmuotoKannassa);
    if (!poimittu) return;
    Energiamuotokanta(poimittu->kanta).Poimi(poimittu->rivi, muoto_);
    VaadiRakennus().RekisteriVanheni();
    LueDataluokka();
  }

  Muoto& muoto_;
  frmEnergiamuoto lomake_;
};

}  // namespace

bool clsEnergiamuoto::NaytaKayttoliityma() try { return Muotomuokkaus(*this).Nayta(); } catch (...) {
  NostaVirhe("clsEnergiamuoto:NaytaKayttoliityma Method");
}
