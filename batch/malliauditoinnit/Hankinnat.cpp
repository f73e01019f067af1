// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/malliauditoinnit/Hankinnat.h"

#include <algorithm>
#include <stdexcept>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Paivamaara.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "supply/Energiamuotokanta.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kAlv2007 = 22, kKaikki = 100;

/// The cell; 0 when it is empty.
double LukuTaiNolla(const Rivi& rivi, const char* sarake) { return rivi.at(sarake).empty() ? 0 : Luku(rivi, sarake); }

const Rivi& EtsiTariffi(const std::vector<Rivi>& tariffit, const std::string& tunnus) {
  const auto kohta = std::ranges::find(tariffit, tunnus, [](const Rivi& rivi) { return rivi.at("Tunnus"); });
  if (kohta == tariffit.end()) throw std::runtime_error("tariffia ei ole: " + tunnus);
  return *kohta;
}

/// A VAT rate and the way of showing that don't depend on the settings of whoever builds the samples.
template <class Tariffi>
Tariffi& Nimetty(Tariffi& tariffi, const Rivi& rivi) {
  tariffi.Nimi = rivi.at("Nimi");
  tariffi.ALV = kAlv2007;
  tariffi.MaksutSisaltavatALVn = false;
  return tariffi;
}

Tunniste LisaaTariffi(clsRakennus& rakennus, clsTariffi::Laji laji, const Rivi& hinnat) {
  clsTariffi& tariffi = Nimetty(rakennus.Tariffit.LisaaTariffi(laji), hinnat);
  const double yo = LukuTaiNolla(hinnat, "Yoosuus");
  tariffi.Maksu(1).Hinta = Luku(hinnat, "Hinta");
  tariffi.Maksu(1).Kulutusosuus = kKaikki - yo;
  tariffi.Maksu(2).Hinta = LukuTaiNolla(hinnat, "Yohinta");
  tariffi.Maksu(2).Kulutusosuus = yo;
  tariffi.Tehomaksu = LukuTaiNolla(hinnat, "Tehomaksu");
  tariffi.Loistehomaksu = LukuTaiNolla(hinnat, "Loistehomaksu");
  tariffi.Energiavero = LukuTaiNolla(hinnat, "Vero");
  tariffi.EnergiaveroID = clsTariffi::MuuVero;
  tariffi.EnergiaveroStr = Valintalista("frmSahkotariffi", "cmbSahkoVeroTyyppi").at(clsTariffi::MuuVero);
  return tariffi.sKey;
}

void AsetaTehot(const Rivi& rivi, clsTariffi& tariffi) {
  tariffi.TehomaksunMaaraytymisperuste = LukuTaiNolla(rivi, "Teho");
  tariffi.LoistehomaksunMaaraytymisperuste = LukuTaiNolla(rivi, "Loisteho");
  tariffi.Perusmaksu = LukuTaiNolla(rivi, "Perusmaksu");
}

void LisaaVesi(const Rivi& rivi, const std::vector<Rivi>& tariffit, clsRakennus& rakennus) {
  const Rivi& hinnat = EtsiTariffi(tariffit, rivi.at("Myynti"));
  clsVesitariffi& tariffi = Nimetty(rakennus.Vesitariffit.LisaaTariffi(), hinnat);
  tariffi.PuhdasVesi().Hinta = Luku(hinnat, "Hinta");
  tariffi.Jatevesi().Hinta = Luku(hinnat, "Jatevesi");
  tariffi.Jatevesi().Kulutusosuus = kKaikki;
  tariffi.Perusmaksu = LukuTaiNolla(rivi, "Perusmaksu");
  clsEnergiamuoto& muoto = rakennus.Perustiedot.VedenHankinta.LisaaMuoto();
  muoto.Nimi = "Vesilaitos";
  muoto.OsuusNettotarpeesta = Luku(rivi, "Osuus");
  muoto.Hyotysuhde = kKaikki;
  muoto.MyyntiTariffiSkey = tariffi.sKey;
}

void LisaaEnergia(const Rivi& rivi, const std::vector<Rivi>& tariffit, clsRakennus& rakennus) {
  const bool lampo = rivi.at("Hankinta") == "Lampo";
  clsPerustiedot& tiedot = rakennus.Perustiedot;
  clsEnergiamuoto& muoto = (lampo ? tiedot.LammonHankinta : tiedot.SahkonHankinta).LisaaMuoto();
  Energiamuotokanta kanta(Energiamuotokanta::Laji::Vakio);
  const auto pohja = kanta.Hae(Kokonaisluku(rivi, "Muoto"));
  if (!pohja) throw std::runtime_error("energiamuotoa ei ole: " + rivi.at("Muoto"));
  muoto.OsuusNettotarpeesta = Luku(rivi, "Osuus");
  kanta.Poimi(*pohja, muoto);
  muoto.MyyntiTariffiSkey = LisaaTariffi(rakennus, lampo ? clsTariffi::LampoTariffi : clsTariffi::SahkoMyyntiTariffi,
                                         EtsiTariffi(tariffit, rivi.at("Myynti")));
  if (!rivi.at("Siirto").empty())
    muoto.SiirtoTariffiSkey =
        LisaaTariffi(rakennus, clsTariffi::SahkoSiirtoTariffi, EtsiTariffi(tariffit, rivi.at("Siirto")));
  AsetaTehot(rivi, rakennus.Tariffit.Item(muoto.SiirtoTariffiSkey.Tyhja() ? muoto.MyyntiTariffiSkey
                                                                          : muoto.SiirtoTariffiSkey));
}

/// The building's tariff of the row's name, made when it has none.
Tunniste HaeTariffi(clsRakennus& rakennus, clsTariffi::Laji laji, const Rivi& hinnat) {
  for (const clsTariffi& tariffi : rakennus.Tariffit)
    if (tariffi.Nimi == hinnat.at("Nimi")) return tariffi.sKey;
  return LisaaTariffi(rakennus, laji, hinnat);
}

clsTariffiVertailuTapaus& LisaaTapaus(const Rivi& rivi, const std::vector<Rivi>& tariffit, clsRakennus& rakennus) {
  clsSahkoTariffienVertailu& vertailu = rakennus.SahkoTariffienVertailu;
  vertailu.TotEnergia = rakennus.Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Sahko;
  vertailu.TotHuippuTeho = Luku(rivi, "Teho");
  vertailu.TotLoisteho = Luku(rivi, "Loisteho");
  vertailu.BruttoAla = rakennus.Perustiedot.BruttoAla;
  const clsTariffiVertailuTapaus pohja =
      vertailu.Tapaus(HaeTariffi(rakennus, clsTariffi::SahkoMyyntiTariffi, EtsiTariffi(tariffit, rivi.at("Myynti"))),
                      HaeTariffi(rakennus, clsTariffi::SahkoSiirtoTariffi, EtsiTariffi(tariffit, rivi.at("Siirto"))));
  clsTariffiVertailuTapaus& tapaus =
      vertailu.Tapaukset.Add(Tunniste::Uusi(clsTariffiVertailuTapaus::kLuokka.NimiSana()));
  tapaus.MyyntiTariffiSkey = pohja.MyyntiTariffiSkey;
  tapaus.SiirtoTariffiSkey = pohja.SiirtoTariffiSkey;
  tapaus.TotEnergia = pohja.TotEnergia;
  tapaus.TotHuippuTeho = pohja.TotHuippuTeho;
  tapaus.TotLoisteho = pohja.TotLoisteho;
  tapaus.Nimi = rivi.at("Nimi");
  tapaus.Kuvaus = rivi.at("Kuvaus");
  tapaus.Investointi = LukuTaiNolla(rivi, "Investointi");
  tapaus.ToimenpiteenPaivays = TamaPaiva();
  tapaus.ToimenpiteenTekijanNimi = "Malliauditointi";
  return tapaus;
}

}  // namespace

void AsetaTariffivertailu(const std::string& tunnus, const Hankintataulukot& taulukot, clsRakennus& rakennus) {
  for (const Rivi& rivi : taulukot.vertailut) {
    if (rivi.at("Tunnus") != tunnus) continue;
    const clsTariffiVertailuTapaus& tapaus = LisaaTapaus(rivi, taulukot.tariffit, rakennus);
    if (tapaus.Investointi > 0)
      rakennus.ToimenpiteidenJarjestelija.LisaaTariffirivi(tapaus, rakennus.SahkoTariffienVertailu.Tapaukset.Item(1));
  }
}

void AsetaHankinnat(const std::string& tunnus, const Hankintataulukot& taulukot, clsRakennus& rakennus) {
  for (const Rivi& rivi : taulukot.muodot) {
    if (rivi.at("Tunnus") != tunnus) continue;
    if (rivi.at("Hankinta") == "Vesi")
      LisaaVesi(rivi, taulukot.tariffit, rakennus);
    else
      LisaaEnergia(rivi, taulukot.tariffit, rakennus);
  }
}
