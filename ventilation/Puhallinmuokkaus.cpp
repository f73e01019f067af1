// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/Puhallinmuokkaus.h"

#include <limits>

#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_puhaltimet.h"
#include "ui/Hiljaa.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"

namespace {

using Kulutus = clsPuhaltimenSahkonKulutus;
using Lomakeluokka = frmIVKoneenPuhaltimienSahkonKaytto;

constexpr int kPieninVirta = 30, kTaysVirta = 100;  // %, ends of the curve

constexpr const char* kTeho = "### ##0.000";  // kW
constexpr const char* kVirta = "### ##0.00#";
constexpr const char* kProsentti = "0.##";
constexpr const char* kEiArvoa = "---";

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

Puhallinmuokkaus::Puhallinmuokkaus(clsPuhaltimenSahkonKulutus& kulutus)
    : kulutus_(kulutus), varalla_(kulutus.Kopioi()) {
  LiitaTapahtumat();
  if (!kulutus.KoneenTunnus.empty()) KayttoLiittyma.Otsikko(kulutus.KoneenTunnus + ": " + KayttoLiittyma.Otsikko());
}

void Puhallinmuokkaus::LiitaTapahtumat() {
  KayttoLiittyma.TaysiVirtaMuuttui = [this] {
    KayttoLiittyma_IlmavirtaMuuttui(KayttoLiittyma.txtTeho11Prosentti, &Kulutus::Teho11Prosentti);
  };
  KayttoLiittyma.OsavirtaMuuttui = [this] {
    KayttoLiittyma_IlmavirtaMuuttui(KayttoLiittyma.txtOsaTehoProsentti, &Kulutus::OsaTehoProsentti);
  };
  KayttoLiittyma.TaysiTehoMuuttui = [this](Puoli puoli) { KayttoLiittyma_TaysiTehoMuuttui(puoli); };
  KayttoLiittyma.TaydenTehonLaatuValittu = [this](Puoli puoli) { KayttoLiittyma_TaydenTehonLaatuValittu(puoli); };
  KayttoLiittyma.TarkennettuKlikattu = [this](Puoli puoli) { KayttoLiittyma_TarkennettuKlikattu(puoli); };
  KayttoLiittyma.OsaTehoMuuttui = [this](Puoli puoli) { KayttoLiittyma_OsaTehoMuuttui(puoli); };
  KayttoLiittyma.OsaTehonLaatuValittu = [this](Puoli puoli) { KayttoLiittyma_OsaTehonLaatuValittu(puoli); };
  KayttoLiittyma.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  KayttoLiittyma.PeruutaKlikattu = [this] { KayttoLiittyma_PeruutaKlikattu(); };
}

bool Puhallinmuokkaus::Nayta() {
  LueDataluokka();
  KayttoLiittyma.NaytaModaalisena();
  return hyvaksytty_;
}

void Puhallinmuokkaus::LueDataluokka() try {
  KayttoLiittyma.txtTeho11Prosentti.Luku(kulutus_.Teho11Prosentti, kProsentti);
  KayttoLiittyma.txtOsaTehoProsentti.Luku(kulutus_.OsaTehoProsentti, kProsentti);
  for (const Puoli puoli : {Lomakeluokka::kTulo, Lomakeluokka::kPoisto}) LuePuhallin(puoli);
  PaivitaKentat();
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:LueDataluokka Method");
}

void Puhallinmuokkaus::LuePuhallin(Puoli puoli) {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  const Lomakeluokka::Puhallin& kentat = KayttoLiittyma.puhaltimet[puoli];
  kentat.txtIlmavirta11Teho.Luku(kulutus_.*t.virta, kVirta);
  kentat.txtSahkoTeho11.Luku(kulutus_.*t.taysteho, kTeho);
  kentat.cmbTeho11TiedonLaatu.Indeksi(kulutus_.*t.laatu);
  kentat.txtSahkoOsaTeho.Luku((kulutus_.*t.tallennettuOsateho)(), kTeho);
  kentat.cmbOsaTehoTiedonLaatu.Indeksi(kulutus_.*t.osalaatu);
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

void Puhallinmuokkaus::KayttoLiittyma_IlmavirtaMuuttui(const TextBox& kentta, double Kulutus::*virta) try {
  if (const auto luku = LueLuku(kentta.Teksti())) kulutus_.*virta = *luku;
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_IlmavirtaMuuttui Method");
}

/// A power written by hand is given.
void Puhallinmuokkaus::KayttoLiittyma_TaysiTehoMuuttui(Puoli puoli) try {
  const Puhallintiedot& t = kPuhaltimet[puoli];
  const Lomakeluokka::Puhallin& kentat = KayttoLiittyma.puhaltimet[puoli];
  if (const auto teho = LueLuku(kentat.txtSahkoTeho11.Teksti())) kulutus_.*t.taysteho = *teho;
  kulutus_.*t.laatu = Kulutus::Annettu;
  kentat.cmbTeho11TiedonLaatu.Indeksi(Lomakeluokka::kAnnettu);
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
  const Lomakeluokka::Puhallin& kentat = KayttoLiittyma.puhaltimet[puoli];
  if (const auto teho = LueLuku(kentat.txtSahkoOsaTeho.Teksti())) (kulutus_.*t.asetaOsateho)(*teho);
  kulutus_.*t.osalaatu = Kulutus::Annettu;
  kentat.cmbOsaTehoTiedonLaatu.Indeksi(Lomakeluokka::kAnnettu);
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
void Puhallinmuokkaus::KayttoLiittyma_OkKlikattu() try {
  if (const auto puoli = Laskematon()) {
    (kulutus_.*kPuhaltimet[*puoli].osateho)();
    return KayttoLiittyma.txtOsaTehoProsentti.Kohdista();
  }
  hyvaksytty_ = true;
  KayttoLiittyma.Sulje();
} catch (...) {
  varalla_->Kopioi(kulutus_);
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_OkKlikattu Method");
}

void Puhallinmuokkaus::KayttoLiittyma_PeruutaKlikattu() try {
  Odotus odotus;
  varalla_->Kopioi(kulutus_);
  KayttoLiittyma.Sulje();
} catch (...) {
  NostaVirhe("Puhallinmuokkaus:KayttoLiittyma_PeruutaKlikattu Method");
}
