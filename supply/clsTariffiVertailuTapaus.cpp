// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffiVertailuTapaus.h"

#include "building/clsRakennus.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "supply/clsTariffit.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsTariffiVertailuTapaus::Nimi>("Nimi"),
    Arvo<&clsTariffiVertailuTapaus::Kuvaus>("Kuvaus"),
    Arvo<&clsTariffiVertailuTapaus::Investointi>("Investointi", "€"),
    Arvo<&clsTariffiVertailuTapaus::MyyntiTariffiSkey>("MyyntiTariffiSkey"),
    Arvo<&clsTariffiVertailuTapaus::SiirtoTariffiSkey>("SiirtoTariffiSkey"),
    Arvo<&clsTariffiVertailuTapaus::TotEnergia>("TotEnergia", "MWh/a"),
    Arvo<&clsTariffiVertailuTapaus::TotHuippuTeho>("TotHuippuTeho", "kW"),
    Arvo<&clsTariffiVertailuTapaus::TotLoisteho>("TotLoisteho", "kVAr"),
    Arvo<&clsTariffiVertailuTapaus::ToimenpiteenPaivays>("ToimenpiteenPaivays"),
    Arvo<&clsTariffiVertailuTapaus::ToimenpiteenTekijanNimi>("ToimenpiteenTekijanNimi"),
};

using Tapaus = clsTariffiVertailuTapaus;

const clsTariffit& Tariffit(const Tuloskohde& kohde) { return kohde.Omistaja<clsRakennus>().Tariffit; }

/// A part of the bill of one side.
template <Vuosilasku (Tapaus::*Lasku)(const clsTariffit&) const, double Vuosilasku::*Era>
constexpr Tulos Kustannus(std::string_view nimi, Tekstinumero teksti) {
  return Lukutulos<[](const Tapaus& t, const Tuloskohde& k) { return (t.*Lasku)(Tariffit(k)).*Era; }>(nimi, teksti,
                                                                                                      "€/a");
}
template <Vuosilasku (Tapaus::*Lasku)(const clsTariffit&) const>
constexpr Tulos Summa(std::string_view nimi, Tekstinumero teksti) {
  return Lukutulos<[](const Tapaus& t, const Tuloskohde& k) { return (t.*Lasku)(Tariffit(k)).Yhteensa(); }>(
      nimi, teksti, "€/a");
}

constexpr Tulos kTulokset[] = {
    Avaintulos(),
    Tekstitulos<&Tapaus::Nimi>("Nimi"),
    Kustannus<&Tapaus::Myynti, &Vuosilasku::perus>("MyyntiPerusmaksu", tekstit::kMyyntiPerusmaksu),
    Kustannus<&Tapaus::Myynti, &Vuosilasku::teho>("MyyntiPatoTehomaksu", tekstit::kMyyntiTehomaksu),
    Kustannus<&Tapaus::Myynti, &Vuosilasku::loisteho>("MyyntiLoisTehomaksu", tekstit::kMyyntiLoistehomaksu),
    Kustannus<&Tapaus::Myynti, &Vuosilasku::vero>("MyyntiSahkovero", tekstit::kMyyntiSahkovero),
    Kustannus<&Tapaus::Myynti, &Vuosilasku::energia>("MyyntiEnergiamaksut", tekstit::kMyyntiEnergiamaksut),
    Kustannus<&Tapaus::Myynti, &Vuosilasku::muu>("MyyntiMuutMaksut", tekstit::kMyyntiMuutMaksut),
    Kustannus<&Tapaus::Siirto, &Vuosilasku::perus>("SiirtoPerusmaksu", tekstit::kSiirtoPerusmaksu),
    Kustannus<&Tapaus::Siirto, &Vuosilasku::teho>("SiirtoPatoTehomaksu", tekstit::kSiirtoTehomaksu),
    Kustannus<&Tapaus::Siirto, &Vuosilasku::loisteho>("SiirtoLoisTehomaksu", tekstit::kSiirtoLoistehomaksu),
    Kustannus<&Tapaus::Siirto, &Vuosilasku::vero>("SiirtoSahkovero", tekstit::kSiirtoSahkovero),
    Kustannus<&Tapaus::Siirto, &Vuosilasku::energia>("SiirtoEnergiamaksut", tekstit::kSiirtoEnergiamaksut),
    Kustannus<&Tapaus::Siirto, &Vuosilasku::muu>("SiirtoMuutMaksut", tekstit::kSiirtoMuutMaksut),
    Summa<&Tapaus::Myynti>("Myyntikustannus", tekstit::kMyyntikustannus),
    Summa<&Tapaus::Siirto>("Siirtokustannus", tekstit::kSiirtokustannus),
    Lukutulos<[](const Tapaus& t, const Tuloskohde& k) { return t.KustannusYhteensa(Tariffit(k)); }>(
        "KustannusYhteensa", tekstit::kTariffikustannusYhteensa, "€/a"),
};

}  // namespace

const Luokka clsTariffiVertailuTapaus::kLuokka{"clsTariffiVertailuTapaus", kJasenet, kTulokset};

Vuosilasku clsTariffiVertailuTapaus::Lasku(const clsTariffit& tariffit, const Tunniste& avain) const {
  if (avain.Tyhja()) return {};
  const clsTariffi& tariffi = tariffit.Item(avain);
  const double vero = tariffi.Energiavero * TotEnergia;
  return {.energia = tariffi.Keskihinta() * TotEnergia - vero,
          .teho = tariffi.Tehomaksu * TotHuippuTeho,
          .loisteho = tariffi.Loistehomaksu * TotLoisteho,
          .perus = tariffi.Perusmaksu,
          .muu = tariffi.MuuMaksu,
          .vero = vero};
}

Vuosilasku clsTariffiVertailuTapaus::Myynti(const clsTariffit& tariffit) const try {
  return Lasku(tariffit, MyyntiTariffiSkey);
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaus:Myynti Method");
}

Vuosilasku clsTariffiVertailuTapaus::Siirto(const clsTariffit& tariffit) const try {
  return Lasku(tariffit, SiirtoTariffiSkey);
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaus:Siirto Method");
}

double clsTariffiVertailuTapaus::KustannusYhteensa(const clsTariffit& tariffit) const try {
  return Siirto(tariffit).Yhteensa() + Myynti(tariffit).Yhteensa();
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaus:KustannusYhteensa Method");
}

bool clsTariffiVertailuTapaus::TariffitLoytyvat(const clsTariffit& tariffit) const {
  const auto loytyy = [&](const Tunniste& avain) { return avain.Tyhja() || tariffit.Etsi(avain); };
  return loytyy(MyyntiTariffiSkey) && loytyy(SiirtoTariffiSkey);
}
