// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Kerrosmuokkaus.h"

#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"

namespace {

constexpr const char* kVastus = "0.00##";  // m²K/W
constexpr const char* kUarvo = "0.00#";    // W/m²K
constexpr const char* kEiArvoa = "---";

using Aine = frmRakennekerroksenMuokkaaminen::Aine;

struct Ainekentta {
  TextBox Aine::*kentta;
  float Materiaali::*luku;
  const char* kuvio;
};
constexpr Ainekentta kAinekentat[] = {
    {&Aine::lambda, &Materiaali::Lambda, "0.0####"},
    {&Aine::tiheys, &Materiaali::Tiheys, "### ##0.##"},
    {&Aine::ominaislampo, &Materiaali::Ominaislampo, "0.0##"},
};

/// Fills also the field in which the person is writing.
void LueAine(const Aine& kentat, const Materiaali& aine) {
  kentat.nimi.Kohde().PaataMuokkaus();
  kentat.nimi.Teksti(aine.Nimi);
  for (const Ainekentta& k : kAinekentat) {
    (kentat.*k.kentta).Kohde().PaataMuokkaus();
    (kentat.*k.kentta).Luku(aine.*k.luku, k.kuvio);
  }
}

void KirjoitaAine(const Aine& kentat, Materiaali& aine) {
  aine.Nimi = kentat.nimi.Teksti();
  for (const Ainekentta& k : kAinekentat) LueArvo(kentat.*k.kentta, aine.*k.luku);
}

/// The table of air layers when the material is air. A library that can't be read knows of none.
std::optional<Ilmakerrokset> IlmakerroksetJosIlmaa(const Materiaali& materiaali) try {
  const Ilmakerrokset taulukko(Asetukset().strVakioTietokanta);
  if (taulukko.Aine() != materiaali.Nimi) return std::nullopt;
  return taulukko;
} catch (const Virhe&) {
  return std::nullopt;
}

clsRakennekerros& MuokattavaKerros(colMateriaalit& kerrokset, int paikka) {
  return paikka > kerrokset.Count() ? kerrokset.LisaaKerros() : kerrokset.Item(paikka);
}

}  // namespace

Kerrosmuokkaus::Kerrosmuokkaus(Rakenneratkaisu ratkaisu, int paikka)
    : ratkaisu_(std::move(ratkaisu)), kerros_(MuokattavaKerros(ratkaisu_.Kerrokset, paikka)) {
  LiitaTapahtumat();
  LueDataluokka();
  NaytaTulokset();
}

bool Kerrosmuokkaus::Nayta() try {
  KayttoLiittyma.NaytaModaalisena();
  return hyvaksytty_;
} catch (...) {
  NostaVirhe("Kerrosmuokkaus:Nayta Method");
}

void Kerrosmuokkaus::LiitaTapahtumat() {
  frmRakennekerroksenMuokkaaminen& lomake = KayttoLiittyma;
  lomake.DataMuuttui = [this] { KayttoLiittyma_DataMuuttui(); };
  lomake.PaamateriaaliHakuun = [this] { RakenneKayttoliittyma_PaamateriaaliHakuun(); };
  lomake.LisamateriaaliHakuun = [this] { RakenneKayttoliittyma_LisamateriaaliHakuun(); };
  lomake.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  lomake.PeruutaKlikattu = [this] { KayttoLiittyma.Sulje(); };
}

void Kerrosmuokkaus::LueDataluokka() {
  const frmRakennekerroksenMuokkaaminen& lomake = KayttoLiittyma;
  lomake.txtKerroksenNimi.Teksti(kerros_.Nimi);
  lomake.txtPaksuus.Luku(kerros_.Paksuus, "### ##0.##");
  lomake.chkUArvoon.Valittu(kerros_.UArvoon);
  lomake.chkHomogeeninen.Valittu(kerros_.Yhtenainen);
  LueAine(lomake.paamateriaali, kerros_.Materiaali);
  LueAine(lomake.lisamateriaali, kerros_.Lisamateriaali);
  lomake.txtLisamateriaalinOsuus.Luku(kerros_.LisamateriaalinOsuus, "0.0#");
  lomake.txtLammonvastus.Luku(kerros_.Lammonvastus, kVastus);
  KayttoLiittyma.PaivitaKentat();
}

/// A field that holds no number yet leaves its value as it was.
void Kerrosmuokkaus::KirjoitaDataluokka() {
  const frmRakennekerroksenMuokkaaminen& lomake = KayttoLiittyma;
  kerros_.Nimi = lomake.txtKerroksenNimi.Teksti();
  LueArvo(lomake.txtPaksuus, kerros_.Paksuus);
  kerros_.UArvoon = lomake.chkUArvoon.Valittu();
  kerros_.Yhtenainen = lomake.chkHomogeeninen.Valittu();
  KirjoitaAine(lomake.paamateriaali, kerros_.Materiaali);
  KirjoitaAine(lomake.lisamateriaali, kerros_.Lisamateriaali);
  LueArvo(lomake.txtLisamateriaalinOsuus, kerros_.LisamateriaalinOsuus);
  LueArvo(lomake.txtLammonvastus, kerros_.Lammonvastus);
}

/// The layer's own resistance, surfaces left out, and the U-value of the structure with this layer.
void Kerrosmuokkaus::NaytaTulokset() {
  const ::Kerros laskettava[] = {kerros_.Laskentakerros()};
  const LammonlapaisyTulos tulos = LaskeLammonlapaisy(laskettava, 0, 0, 0, 0);
  KayttoLiittyma.txtKerroksenVastus.Teksti(tulos.onArvo ? Muotoile(tulos.R, kVastus) : kEiArvoa);
  const auto U = ratkaisu_.LaskeU_arvo();
  KayttoLiittyma.txtRakenteenUarvo.Teksti(U ? Muotoile(*U, kUarvo) : kEiArvoa);
}

void Kerrosmuokkaus::KayttoLiittyma_DataMuuttui() {
  KirjoitaDataluokka();
  if (ilma_) EhdotaIlmaraonVastusta();
  NaytaTulokset();
}

/// The fixed resistance follows the material and its thickness until the person has written it.
void Kerrosmuokkaus::EhdotaIlmaraonVastusta() {
  const TextBox& kentta = KayttoLiittyma.txtLammonvastus;
  if (kentta.Muuttunut()) return;
  const auto suunta = LampovirranSuunta(ratkaisu_.Rakennetyyppi);
  kerros_.Lammonvastus = ilma_ ? static_cast<float>(ilma_->Vastus(kerros_.Paksuus, suunta)) : 0;
  kentta.Luku(kerros_.Lammonvastus, kVastus);
}

void Kerrosmuokkaus::Hae(const Materiaali& nykyinen, std::function<void(const Materiaali&)> valittu) {
  KirjoitaDataluokka();
  haku_.reset();
  haku_ = RakennekirjastolinkkiNyt().ValitseMateriaali(nykyinen.Nimi,
                                                       {.RakKirjasto_MateriaaliValittu = std::move(valittu)});
}

void Kerrosmuokkaus::RakenneKayttoliittyma_PaamateriaaliHakuun() {
  Hae(kerros_.Materiaali, [this](const Materiaali& materiaali) { OtaPaamateriaali(materiaali); });
}

void Kerrosmuokkaus::RakenneKayttoliittyma_LisamateriaaliHakuun() {
  Hae(kerros_.Lisamateriaali, [this](const Materiaali& materiaali) { OtaLisamateriaali(materiaali); });
}

void Kerrosmuokkaus::OtaPaamateriaali(const Materiaali& materiaali) {
  KirjoitaDataluokka();
  kerros_.Materiaali = materiaali;
  LueAine(KayttoLiittyma.paamateriaali, materiaali);
  ilma_ = IlmakerroksetJosIlmaa(materiaali);
  EhdotaIlmaraonVastusta();
  NaytaTulokset();
}

void Kerrosmuokkaus::OtaLisamateriaali(const Materiaali& materiaali) {
  KirjoitaDataluokka();
  kerros_.Lisamateriaali = materiaali;
  LueAine(KayttoLiittyma.lisamateriaali, materiaali);
  NaytaTulokset();
}

void Kerrosmuokkaus::KayttoLiittyma_OkKlikattu() {
  KirjoitaDataluokka();
  hyvaksytty_ = true;
  KayttoLiittyma.Sulje();
}
