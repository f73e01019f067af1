// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamuoto.h"

#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelma.h"
#include "tekstit/tulokset.h"

namespace {

using Muoto = clsEnergiamuoto;

/// An impact in the member table: as it is read, or as stored when the resources don't give it, so that the form can
/// always be saved.
template <double (Muoto::*Hae)() const, auto Kentta>
constexpr Jasen Vaikutusjasen(std::string_view nimi, Suure suure) {
  return Ominaisuus<Muoto,
                    [](const Muoto& m) {
                      try {
                        return (m.*Hae)();
                      } catch (const std::exception&) {
                        return m.*Kentta;
                      }
                    },
                    [](Muoto& m, double arvo) { m.*Kentta = arvo; }, Kentta>(nimi, suure);
}

template <double (Muoto::*Hae)() const>
constexpr Tulos Vaikutustulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  return Lukutulos<[](const Muoto& m) { return (m.*Hae)(); }>(nimi, teksti, yksikko, "### ##0.0##");
}

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&Muoto::Nimi>("Nimi"),
    Lukutulos<&Muoto::MassaYht>("MassaYht", tekstit::kPolttoaineidenMassa, "kg/MWh"),
    Vaikutustulos<&Muoto::UusiutumatonEnergia>("UusiutumatonEnergia", tekstit::kUusiutumatonEnergia, "MJ/MWh"),
    Vaikutustulos<&Muoto::UusiutuvaEnergia>("UusiutuvaEnergia", tekstit::kUusiutuvaEnergia, "MJ/MWh"),
    Vaikutustulos<&Muoto::UusiutumattomatRaakaaineet>("UusiutumattomatRaakaaineet",
                                                      tekstit::kUusiutumattomatRaakaaineet, "kg/MWh"),
    Vaikutustulos<&Muoto::UusiutuvatRaakaaineet>("UusiutuvatRaakaaineet", tekstit::kUusiutuvatRaakaaineet, "kg/MWh"),
    Vaikutustulos<&Muoto::IlmastonLampeneminenCO2ekv>("IlmastonLampeneminenCO2ekv",
                                                      tekstit::kIlmastonLampeneminenCO2ekv, "kg/MWh"),
    Vaikutustulos<&Muoto::VarastoitunutCO2>("VarastoitunutCO2", tekstit::kVarastoitunutCO2, "kg/MWh"),
    Vaikutustulos<&Muoto::HappamoituminenSOxekv>("HappamoituminenSOxekv", tekstit::kHappamoituminenSOxekv, "kg/MWh"),
    Vaikutustulos<&Muoto::OksidanttienMuodostus>("OksidanttienMuodostus", tekstit::kOksidanttienMuodostus, "kg/MWh"),
    Vaikutustulos<&Muoto::Particle>("Particle", tekstit::kParticle, "kg/MWh"),
};

}  // namespace

constexpr Jasen clsEnergiamuoto::kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Muoto::Nimi>("Nimi"),
    Arvo<&Muoto::Kuvaus>("Kuvaus"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&Muoto::Tyyppi>("Tyyppi"),
    Arvo<&Muoto::OsuusNettotarpeesta>("OsuusNettotarpeesta", Suure("%").Rajat(0)),
    Arvo<&Muoto::Hyotysuhde>("Hyotysuhde", Suure("%").Rajat(0).Tavallisesti(50, 600)),
    Arvo<&Muoto::MyyntiTariffiSkey>("MyyntiTariffiSkey"),
    Arvo<&Muoto::SiirtoTariffiSkey>("SiirtoTariffiSkey"),
    Arvo<&Muoto::Yksikko>("Yksikko"),
    Arvo<&Muoto::IdEmuotoKannassa>("IdEmuotoKannassa"),
    Arvo<&Muoto::OnVakiokannasta>("OnVakiokannasta"),
    Arvo<&Muoto::EnergiaMuotokannanVersio>("EnergiaMuotokannanVersio"),
    Arvo<&Muoto::LaskePaastotPolttoaineista>("LaskePaastotPolttoaineista"),
    Vaikutusjasen<&Muoto::UusiutumatonEnergia, &Muoto::uusiutumatonEnergia_>("UusiutumatonEnergia", "MJ/MWh"),
    Vaikutusjasen<&Muoto::UusiutuvaEnergia, &Muoto::uusiutuvaEnergia_>("UusiutuvaEnergia", "MJ/MWh"),
    Vaikutusjasen<&Muoto::UusiutumattomatRaakaaineet, &Muoto::uusiutumattomatRaakaaineet_>("UusiutumattomatRaakaaineet",
                                                                                           "kg/MWh"),
    Vaikutusjasen<&Muoto::UusiutuvatRaakaaineet, &Muoto::uusiutuvatRaakaaineet_>("UusiutuvatRaakaaineet", "kg/MWh"),
    Vaikutusjasen<&Muoto::IlmastonLampeneminenCO2ekv, &Muoto::ilmastonLampeneminenCO2ekv_>("IlmastonLampeneminenCO2ekv",
                                                                                           "kg/MWh"),
    Vaikutusjasen<&Muoto::VarastoitunutCO2, &Muoto::varastoitunutCO2_>("VarastoitunutCO2", "kg/MWh"),
    Vaikutusjasen<&Muoto::HappamoituminenSOxekv, &Muoto::happamoituminenSOxekv_>("HappamoituminenSOxekv", "kg/MWh"),
    Vaikutusjasen<&Muoto::OksidanttienMuodostus, &Muoto::oksidanttienMuodostus_>("OksidanttienMuodostus", "kg/MWh"),
    Vaikutusjasen<&Muoto::Particle, &Muoto::particle_>("Particle", "kg/MWh"),
    Lapsi<&Muoto::Resurssit>("Resurssit"),
};

const Luokka clsEnergiamuoto::kLuokka{"clsEnergiamuoto", kJasenet, kTulokset};

clsEnergiamuoto::clsEnergiamuoto() { Resurssit.Yksikko = "MJ"; }

double clsEnergiamuoto::Vaikutus(double& talletettu, double (clsResurssit::*polttoaineista)() const) const try {
  if (!LaskePaastotPolttoaineista) return talletettu;
  const double laskettu = (Resurssit.*polttoaineista)() * kMJ_MWh;
  if (!Muunnelma::Voimassa()) talletettu = laskettu;
  return laskettu;
} catch (...) {
  NostaVirhe("clsEnergiamuoto:Vaikutus Method");
}

double clsEnergiamuoto::Konversiohavio(double verkko) const {
  constexpr double kProsentti = 100;
  const double osuus = OsuusNettotarpeesta / kProsentti;
  const double hyotysuhde = Hyotysuhde / kProsentti;
  return hyotysuhde == 0 ? 0 : (1 / hyotysuhde - 1) * (verkko * osuus);
}

void clsEnergiamuoto::Korvaa(const clsEnergiamuoto& uusi) {
  clsEnergiamuoto tuore = uusi;
  tuore.sKey = sKey;
  tuore.InstanssiId = InstanssiId;
  tuore.Tyyppi = Tyyppi;
  tuore.OsuusNettotarpeesta = OsuusNettotarpeesta;
  tuore.MyyntiTariffiSkey = MyyntiTariffiSkey;
  tuore.SiirtoTariffiSkey = SiirtoTariffiSkey;
  *this = tuore;
}

void clsEnergiamuoto::Paivita(const clsEnergiamuoto& uusi) {
  clsEnergiamuoto tuore = uusi;
  tuore.Resurssit = Resurssit;
  tuore.LaskePaastotPolttoaineista = LaskePaastotPolttoaineista;
  Korvaa(tuore);
}

clsResurssi& clsEnergiamuoto::LisaaPolttoaine(const clsResurssi& polttoaine) try {
  const Tunniste avain = Tunniste::Uusi(clsResurssi::kLuokka.NimiSana());
  clsResurssi& uusi = Resurssit.Add(avain);
  const Tunniste tunnus = uusi.InstanssiId;
  uusi = polttoaine;
  uusi.sKey = avain;
  uusi.InstanssiId = tunnus;
  return uusi;
} catch (...) {
  NostaVirhe("clsEnergiamuoto:LisaaPolttoaine Method");
}
