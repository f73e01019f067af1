// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsPuhaltimenSahkonKulutus.h"

#include "kernel/Laskenta.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/tulokset.h"
#include "ventilation/clsIVKone.h"

namespace {

using Kulutus = clsPuhaltimenSahkonKulutus;

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Kulutus::TuloSahkoTeho11>("TuloSahkoTeho11", Suure("kW").Rajat(0).Tavallisesti(0, 100)),
    Arvo<&Kulutus::PoistoSahkoTeho11>("PoistoSahkoTeho11", Suure("kW").Rajat(0).Tavallisesti(0, 100)),
    Ominaisuus<Kulutus, [](const Kulutus& k) { return k.TallennettuTuloSahkoOsaTeho(); },
               [](Kulutus& k, double teho) { k.TuloSahkoOsaTeho(teho); }>("TuloSahkoOsaTeho",
                                                                          Suure("kW").Rajat(0).Tavallisesti(0, 100)),
    Ominaisuus<Kulutus, [](const Kulutus& k) { return k.TallennettuPoistoSahkoOsaTeho(); },
               [](Kulutus& k, double teho) { k.PoistoSahkoOsaTeho(teho); }>("PoistoSahkoOsaTeho",
                                                                            Suure("kW").Rajat(0).Tavallisesti(0, 100)),
    Arvo<&Kulutus::Teho11Prosentti>("Teho11Prosentti", Suure("%").Rajat(30, 100)),
    Arvo<&Kulutus::OsaTehoProsentti>("OsaTehoProsentti", Suure("%").Rajat(30, 100)),
    Kopio<&Kulutus::TuloIlmavirta11Teho>("TuloIlmavirta11Teho", "m³/s"),
    Kopio<&Kulutus::PoistoIlmavirta11Teho>("PoistoIlmavirta11Teho", "m³/s"),
    Arvo<&Kulutus::Teho11TiedonLaatuIDTulo>("Teho11TiedonLaatuIDTulo"),
    Arvo<&Kulutus::Teho11TiedonLaatuIDPoisto>("Teho11TiedonLaatuIDPoisto"),
    Arvo<&Kulutus::OsaTehoTiedonLaatuIDTulo>("OsaTehoTiedonLaatuIDTulo"),
    Arvo<&Kulutus::OsaTehoTiedonLaatuIDPoisto>("OsaTehoTiedonLaatuIDPoisto"),
    Kopio<&Kulutus::VakioPaineOsuusID>("VakioPaineOsuusID"),
    Kopio<&Kulutus::PuhaltimenVoimansiirtoTapaID>("PuhaltimenVoimansiirtoTapaID"),
    Kopio<&Kulutus::PuhaltimenSaatotapaID>("PuhaltimenSaatotapaID"),
    Kopio<&Kulutus::JarjestelmaTyyppiID>("JarjestelmaTyyppiID"),
    Kopio<&Kulutus::IVPeriaateID>("IVPeriaateID"),
    Kopio<&Kulutus::PuhaltimenSaatotapa>("PuhaltimenSaatotapa"),
    Kopio<&Kulutus::KoneenTunnus>("KoneenTunnus"),
    Lapsi<&Kulutus::TuloPuhParam>("TuloPuhParam"),
    Lapsi<&Kulutus::PoistoPuhParam>("PoistoPuhParam"),
};

constexpr Tulos kTulokset[] = {
    Lukutulos<&clsPuhaltimenSahkonKulutus::TuloSahkoOminaisteho>("TuloSahkoOminaisteho",
                                                                 tekstit::kTulopuhaltimenOminaisteho, "kW/(m³/s)"),
    Lukutulos<&clsPuhaltimenSahkonKulutus::PoistoSahkoOminaisteho>("PoistoSahkoOminaisteho",
                                                                   tekstit::kPoistopuhaltimenOminaisteho, "kW/(m³/s)"),
    Lukutulos<[](const clsPuhaltimenSahkonKulutus& p) { return p.TuloSahkoOsaTeho(); }>(
        "TuloSahkoOsaTeho", tekstit::kTulopuhaltimenOsateho, "kW"),
    Lukutulos<[](const clsPuhaltimenSahkonKulutus& p) { return p.PoistoSahkoOsaTeho(); }>(
        "PoistoSahkoOsaTeho", tekstit::kPoistopuhaltimenOsateho, "kW"),
};

constexpr double kTaysVirta = 100;          // %
constexpr std::int32_t kOsuudenAskel = 10;  // % for each row of the choice of constant pressure

double Ominaisteho(PuhaltimenTeho puhallin, double virta) {
  return virta > 0 ? Jaa(puhallin.Teho(kTaysVirta), virta) : 0;
}

}  // namespace

const Luokka clsPuhaltimenSahkonKulutus::kLuokka{"clsPuhaltimenSahkonKulutus", kJasenet, kTulokset};

bool clsPuhaltimenSahkonKulutus::OnTulopuhallin() const noexcept { return IVPeriaateID != clsIVKone::Poistoilmakone; }

bool clsPuhaltimenSahkonKulutus::OnPoistopuhallin() const noexcept { return IVPeriaateID != clsIVKone::Tuloilmakone; }

PuhaltimenTeho clsPuhaltimenSahkonKulutus::Puhallin(double taysteho, const Valinnat& koneen) const {
  clsMivSaato saato;
  saato.IlmavirranSaatotapa = koneen.saatotapa;
  saato.VoimansiirtoID = koneen.voimansiirto;
  saato.PaineenKorotuksenVakioOsuus = koneen.vakiopaine * kOsuudenAskel;
  saato.IlmavirtaPros = Teho11Prosentti;
  saato.P1 = taysteho;
  return {koneen.jarjestelma, saato};
}

double clsPuhaltimenSahkonKulutus::TuloSahkoOminaisteho() const try {
  return Ominaisteho(Tulopuhallin(), TuloIlmavirta11Teho);
} catch (...) {
  NostaVirhe("clsPuhaltimenSahkonKulutus:TuloSahkoOminaisteho Method");
}

double clsPuhaltimenSahkonKulutus::PoistoSahkoOminaisteho() const try {
  return Ominaisteho(Poistopuhallin(), PoistoIlmavirta11Teho);
} catch (...) {
  NostaVirhe("clsPuhaltimenSahkonKulutus:PoistoSahkoOminaisteho Method");
}

double clsPuhaltimenSahkonKulutus::TuloSahkoOsaTeho() const try {
  return OsaTehoTiedonLaatuIDTulo == Laskettu ? Tulopuhallin().Osateho(OsaTehoProsentti) : tuloSahkoOsaTeho_;
} catch (...) {
  NostaVirhe("clsPuhaltimenSahkonKulutus:TuloSahkoOsaTeho Method");
}

double clsPuhaltimenSahkonKulutus::PoistoSahkoOsaTeho() const try {
  return OsaTehoTiedonLaatuIDPoisto == Laskettu ? Poistopuhallin().Osateho(OsaTehoProsentti) : poistoSahkoOsaTeho_;
} catch (...) {
  NostaVirhe("clsPuhaltimenSahkonKulutus:PoistoSahkoOsaTeho Method");
}
