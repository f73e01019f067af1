// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/Puhallinmuokkaus.h"

#include <limits>

#include "building/Muokkausistunto.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_puhaltimet.h"
#include "ui/Hiljaa.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"

namespace {

using Kulutus = clsPuhaltimenSahkonKulutus;
using Lomakeluokka = frmIVKoneenPuhaltimienSahkonKaytto;

constexpr int kPieninVirta = 30, kTaysVirta = 100;  // %, ends of the curve

constexpr const char* kTeho = "### ##0.000";  // kW
constexpr const char* kVirta = "### ##0.00#";
constexpr const char* kProsentti = "0.##";
constexpr const char* kEiArvoa = "---";

double TuloOsateho(const Kulutus& k) { return k.TallennettuTuloSahkoOsaTeho(); }
double PoistoOsateho(const Kulutus& k) { return k.TallennettuPoistoSahkoOsaTeho(); }
void AsetaTuloOsateho(Kulutus& k, double teho) { k.TuloSahkoOsaTeho(teho); }
void AsetaPoistoOsateho(Kulutus& k, double teho) { k.PoistoSahkoOsaTeho(teho); }

const Sidontataulu kSidonnat{
    "frmIVKoneenPuhaltimienSahkonKaytto",
    {
        Lukukentta<&Kulutus::Teho11Prosentti>("txtTeho11Prosentti", kProsentti),
        Lukukentta<&Kulutus::OsaTehoProsentti>("txtOsaTehoProsentti", kProsentti),
        Lukukentta<&Kulutus::TuloSahkoTeho11>("txtSahkoTeho11Tulo", kTeho),
        Lukukentta<&Kulutus::PoistoSahkoTeho11>("txtSahkoTeho11Poisto", kTeho),
        Valintakentta<&Kulutus::Teho11TiedonLaatuIDTulo>("cmbTeho11TiedonLaatuTulo"),
        Valintakentta<&Kulutus::Teho11TiedonLaatuIDPoisto>("cmbTeho11TiedonLaatuPoisto"),
        Lukukentta<Funktiot<TuloOsateho, AsetaTuloOsateho>>("txtSahkoOsaTehoTulo", kTeho),
        Lukukentta<Funktiot<PoistoOsateho, AsetaPoistoOsateho>>("txtSahkoOsaTehoPoisto", kTeho),
        Valintakentta<&Kulutus::OsaTehoTiedonLaatuIDTulo>("cmbOsaTehoTiedonLaatuTulo"),
        Valintakentta<&Kulutus::OsaTehoTiedonLaatuIDPoisto>("cmbOsaTehoTiedonLaatuPoisto"),
    }};

/// The members of one fan.
struct Puhallintiedot {
  int nimi;  // text id
  double Kulutus::*virta;
  double Kulutus::*taysteho;
  std::int32_t Kulutus::*laatu;
  std::int32_t Kulutus::*osalaatu;
  clsPuhallinSahkoLaskParametrit Kulutus::*parametrit;
  bool (Kulutus::*onPuhallin)() const noexcept;
  PuhaltimenTeho (Kulutus::*puhallin)() const;
  double (Kulutus::*ominaisteho)() const;
  double (Kulutus::*osateho)() const;
  double (Kulutus::*tallennettuOsateho)() const noexcept;
  void (Kulutus::*asetaOsateho)(double) noexcept;
};
constexpr Puhallintiedot kPuhaltimet[] = {
    {tekstit::kTulopuhallin, &Kulutus::TuloIlmavirta11Teho, &Kulutus::TuloSahkoTeho11,
     &Kulutus::Teho11TiedonLaatuIDTulo, &Kulutus::OsaTehoTiedonLaatuIDTulo, &Kulutus::TuloPuhParam,
     &Kulutus::OnTulopuhallin, &Kulutus::Tulopuhallin, &Kulutus::TuloSahkoOminaisteho, &Kulutus::TuloSahkoOsaTeho,
     &Kulutus::TallennettuTuloSahkoOsaTeho, &Kulutus::TuloSahkoOsaTeho},
    {tekstit::kPoistopuhallin, &Kulutus::PoistoIlmavirta11Teho, &Kulutus::PoistoSahkoTeho11,
     &Kulutus::Teho11TiedonLaatuIDPoisto, &Kulutus::OsaTehoTiedonLaatuIDPoisto, &Kulutus::PoistoPuhParam,
     &Kulutus::OnPoistopuhallin, &Kulutus::Poistopuhallin, &Kulutus::PoistoSahkoOminaisteho,
     &Kulutus::PoistoSahkoOsaTeho, &Kulutus::TallennettuPoistoSahkoOsaTeho, &Kulutus::PoistoSahkoOsaTeho},
};

std::string LukuTaiViiva(const std::optional<double>& luku, const char* kuvio) {
  return luku ? Muotoile(*luku, kuvio) : kEiArvoa;
}

/// Power at each whole per cent; no number where the fan doesn't run.
std::vector<double> Tehokayra(PuhaltimenTeho puhallin) {
  std::vector<double> tehot;
  for (int x = kPieninVirta; x <= kTaysVirta; ++x)
    tehot.push_back(puhallin.OnVirta(x) ? puhallin.Teho(x) : std::numeric_limits<double>::quiet_NaN());
  return tehot;
}

}  // namespace

Puhallinmuokkaus::Puhallinmuokkaus(clsPuhaltimenSahkonKulutus& kulutus) : kulutus_(kulutus) { LiitaTapahtumat(); }

void Puhallinmuokkaus::LiitaTapahtumat() {
  KayttoLiittyma.IlmavirtaMuuttui = [this] { KayttoLiittyma_IlmavirtaMuuttui(); };
  KayttoLiittyma.TaysiTehoMuuttui = [this](Puoli puoli) { KayttoLiittyma_TaysiTehoMuuttui(puoli); };
  KayttoLiittyma.TaydenTehonLaatuValittu = [this](Puoli puoli) { KayttoLiittyma_TaydenTehonLaatuValittu(puoli); };
  KayttoLiittyma.TarkennettuKlikattu = [this](Puoli puoli) { KayttoLiittyma_TarkennettuKlikattu(puoli); };
  KayttoLiittyma.OsaTehoMuuttui = [this](Puoli puoli) { KayttoLiittyma_OsaTehoMuuttui(puoli); };
  KayttoLiittyma.OsaTehonLaatuValittu = [this](Puoli puoli) { KayttoLiittyma_OsaTehonLaatuValittu(puoli); };
}

bool Puhallinmuokkaus::Nayta() {
  Muokkausistunto istunto(kulutus_, KayttoLiittyma,
                          {.nimi = kulutus_.KoneenTunnus,
                           .lue = [this] { LueDataluokka(); },
                           .kirjoita = [this] { kSidonnat.Kirjoita(KayttoLiittyma, kulutus_); },
                           .tarkista = [this] { return OsatehotLaskettavissa(); },
                           .virheenJalkeen = [this] { LueDataluokka(); }});
  return istunto.Nayta();
}

void Puhallinmuokkaus::LueDataluokka() try {
  kSidonnat.Lue(KayttoLiittyma, kulutus_);
  for (const Puoli puoli : {Lomakeluokka::kTulo, Lomakeluokka::kPoisto})
    KayttoLiittyma.puhaltimet[puoli].txtIlmavirta11Teho.Luku(kulutus_.*kPuhaltimet[puoli].virta, kVirta);
  PaivitaKentat();
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:LueDataluokka Method");
}

bool Puhallinmuokkaus::OnPuhallin(Puoli puoli) const { return (kulutus_.*kPuhaltimet[puoli].onPuhallin)(); }

bool Puhallinmuokkaus::OnOsavirta() const {
  return kulutus_.JarjestelmaTyyppiID == PuhaltimenTeho::Kaksinopeus ||
         kulutus_.JarjestelmaTyyppiID == PuhaltimenTeho::MuuttuvaIlmavirta;
}

std::optional<double> Puhallinmuokkaus::Osateho(Puoli puoli) const {
  return LaskeHiljaa([&] { return (kulutus_.*kPuhaltimet[puoli].osateho)(); });
}

std::optional<Puhallinmuokkaus::Puoli> Puhallinmuokkaus::Laskematon() const {
  for (const Puoli puoli : {Lomakeluokka::kTulo, Lomakeluokka::kPoisto})
    if (OnPuhallin(puoli) && !Osateho(puoli)) return puoli;
  return std::nullopt;
}

void Puhallinmuokkaus::PaivitaKentat() {
  KayttoLiittyma.PaivitaKentat({.onPuhallin = {OnPuhallin(Lomakeluokka::kTulo), OnPuhallin(Lomakeluokka::kPoisto)},
                                .osavirta = OnOsavirta(),
                                .muuttuva = kulutus_.JarjestelmaTyyppiID == PuhaltimenTeho::MuuttuvaIlmavirta});
}

void Puhallinmuokkaus::NaytaTulokset() {
  for (const Puoli puoli : {Lomakeluokka::kTulo, Lomakeluokka::kPoisto}) NaytaPuhaltimenTulokset(puoli);
  NaytaKayra();
  NaytaHuomautus();
}

void Puhallinmuokkaus::NaytaPuhaltimenTulokset(Puoli puoli) {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  const Lomakeluokka::Puhallin& kentat = KayttoLiittyma.puhaltimet[puoli];
  kentat.txtOminaisteho.Teksti(LukuTaiViiva(LaskeHiljaa([&] { return (kulutus_.*t.ominaisteho)(); }), "### ##0.00"));
  const auto osateho = Osateho(puoli);
  if (kulutus_.*t.osalaatu == Kulutus::Laskettu) kentat.txtSahkoOsaTeho.Teksti(LukuTaiViiva(osateho, kTeho));
  kentat.txtSahkoOsaTeho.Kaytossa(OnPuhallin(puoli) && OnOsavirta() && osateho);
}

void Puhallinmuokkaus::NaytaKayra() {
  Kaaviotiedot kaavio{.otsikko = Teksti(tekstit::kPuhallinkuvanOtsikko),
                      .nimet = {Teksti(tekstit::kPuhallinkuvanIlmavirta)},
                      .arvot = {},
                      .sarjat = {},
                      .yksikko = "kW"};
  for (int x = kPieninVirta; x <= kTaysVirta; ++x) kaavio.arvot.push_back(x);
  for (const Puoli puoli : {Lomakeluokka::kTulo, Lomakeluokka::kPoisto}) {
    const Puhallintiedot& t = kPuhaltimet[puoli];
    if (!OnPuhallin(puoli)) continue;
    if (auto kayra = LaskeHiljaa([&] { return Tehokayra((kulutus_.*t.puhallin)()); }))
      kaavio.sarjat.push_back({Teksti(t.nimi), *std::move(kayra)});
  }
  KayttoLiittyma.chtOsateho.Kaavio(std::move(kaavio));
}

void Puhallinmuokkaus::NaytaHuomautus() {
  std::string huomautus;
  if (!OnOsavirta()) huomautus = Teksti(tekstit::kVakiokoneVainTaysilla);
  if (Laskematon()) huomautus = Teksti(tekstit::kOsatehoaEiVoiLaskea);
  KayttoLiittyma.lblHuomautus.Otsikko(huomautus);
}

void Puhallinmuokkaus::KayttoLiittyma_IlmavirtaMuuttui() try {
  kSidonnat.Kirjoita(KayttoLiittyma, kulutus_);
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_IlmavirtaMuuttui Method");
}

/// A power written by hand is given.
void Puhallinmuokkaus::KayttoLiittyma_TaysiTehoMuuttui(Puoli puoli) try {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  kSidonnat.Kirjoita(KayttoLiittyma, kulutus_);
  kulutus_.*t.laatu = Kulutus::Annettu;
  KayttoLiittyma.puhaltimet[puoli].cmbTeho11TiedonLaatu.Indeksi(Lomakeluokka::kAnnettu);
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_TaysiTehoMuuttui Method");
}

/// A power becomes calculated by being calculated.
void Puhallinmuokkaus::KayttoLiittyma_TaydenTehonLaatuValittu(Puoli puoli) try {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  const ComboBox& laatu = KayttoLiittyma.puhaltimet[puoli].cmbTeho11TiedonLaatu;
  if (laatu.Indeksi() == Lomakeluokka::kAnnettu)
    kulutus_.*t.laatu = Kulutus::Annettu;
  else
    KayttoLiittyma_TarkennettuKlikattu(puoli);
  laatu.Indeksi(kulutus_.*t.laatu);
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_TaydenTehonLaatuValittu Method");
}

void Puhallinmuokkaus::KayttoLiittyma_TarkennettuKlikattu(Puoli puoli) try {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  const Lomakeluokka::Puhallin& kentat = KayttoLiittyma.puhaltimet[puoli];
  clsPuhallinSahkoLaskParametrit& parametrit = kulutus_.*t.parametrit;
  if (!parametrit.NaytaKayttoliittyma(Teksti(t.nimi), kulutus_.*t.virta)) return;
  kulutus_.*t.taysteho = parametrit.Ottoteho();
  kulutus_.*t.laatu = Kulutus::Laskettu;
  kentat.txtSahkoTeho11.Kohde().PaataMuokkaus();
  kentat.txtSahkoTeho11.Luku(kulutus_.*t.taysteho, kTeho);
  kentat.cmbTeho11TiedonLaatu.Indeksi(Lomakeluokka::kLaskettu);
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_TarkennettuKlikattu Method");
}

void Puhallinmuokkaus::KayttoLiittyma_OsaTehoMuuttui(Puoli puoli) try {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  kSidonnat.Kirjoita(KayttoLiittyma, kulutus_);
  kulutus_.*t.osalaatu = Kulutus::Annettu;
  KayttoLiittyma.puhaltimet[puoli].cmbOsaTehoTiedonLaatu.Indeksi(Lomakeluokka::kAnnettu);
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_OsaTehoMuuttui Method");
}

/// A given power that nobody has written yet begins as the calculated one.
void Puhallinmuokkaus::KayttoLiittyma_OsaTehonLaatuValittu(Puoli puoli) try {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  const Lomakeluokka::Puhallin& kentat = KayttoLiittyma.puhaltimet[puoli];
  if ((kulutus_.*t.tallennettuOsateho)() == 0) (kulutus_.*t.asetaOsateho)(Osateho(puoli).value_or(0));
  kulutus_.*t.osalaatu = kentat.cmbOsaTehoTiedonLaatu.Indeksi();
  kentat.txtSahkoOsaTeho.Kohde().PaataMuokkaus();
  kentat.txtSahkoOsaTeho.Luku((kulutus_.*t.tallennettuOsateho)(), kTeho);
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_OsaTehonLaatuValittu Method");
}

/// The model itself tells what is wrong with a part flow, by computing once more.
bool Puhallinmuokkaus::OsatehotLaskettavissa() {
  const auto puoli = Laskematon();
  if (!puoli) return true;
  (kulutus_.*kPuhaltimet[*puoli].osateho)();
  KayttoLiittyma.txtOsaTehoProsentti.Kohdista();
  return false;
}
