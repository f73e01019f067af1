// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Kerrosmuokkaus.h"

#include "building/Muokkausistunto.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Sidonta.h"

namespace {

constexpr const char* kVastus = "0.00##";  // m²K/W
constexpr const char* kUarvo = "0.00#";    // W/m²K
constexpr const char* kEiArvoa = "---";

const Sidontataulu kSidonnat{"frmRakennekerroksenMuokkaaminen",
                             {
                                 Tekstikentta<&clsRakennekerros::Nimi>("txtKerroksenNimi"),
                                 Lukukentta<&clsRakennekerros::Paksuus>("txtPaksuus", "### ##0.##"),
                                 Rastikentta<&clsRakennekerros::UArvoon>("chkUArvoon"),
                                 Rastikentta<&clsRakennekerros::Yhtenainen>("chkHomogeeninen"),
                                 Lukukentta<&clsRakennekerros::LisamateriaalinOsuus>("txtLisamateriaalinOsuus", "0.0#"),
                                 Lukukentta<&clsRakennekerros::Lammonvastus>("txtLammonvastus", kVastus),
                             }};

constexpr const char *kPaa = "Paa", *kLisa = "Lisa";

/// A material of the layer; the word tells which.
const Sidontataulu kAineenSidonnat{"frmRakennekerroksenMuokkaaminen",
                                   {
                                       Tekstikentta<&Materiaali::Nimi>("txt*materiaalinNimi"),
                                       Lukukentta<&Materiaali::Lambda>("txt*materiaalinLambda", "0.0####"),
                                       Lukukentta<&Materiaali::Tiheys>("txt*materiaalinTiheys", "### ##0.##"),
                                       Lukukentta<&Materiaali::Ominaislampo>("txt*materiaalinOminaislampo", "0.0##"),
                                   },
                                   {kPaa, kLisa}};

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
}

bool Kerrosmuokkaus::Nayta() try {
  Muokkausistunto istunto(ratkaisu_, KayttoLiittyma,
                          {.lue = [this] { LueDataluokka(); }, .kirjoita = [this] { KirjoitaDataluokka(); }});
  return istunto.Nayta();
} catch (...) {
  NostaVirhe("Kerrosmuokkaus:Nayta Method");
}

void Kerrosmuokkaus::LiitaTapahtumat() {
  frmRakennekerroksenMuokkaaminen& lomake = KayttoLiittyma;
  lomake.DataMuuttui = [this] { KayttoLiittyma_DataMuuttui(); };
  lomake.PaamateriaaliHakuun = [this] { RakenneKayttoliittyma_PaamateriaaliHakuun(); };
  lomake.LisamateriaaliHakuun = [this] { RakenneKayttoliittyma_LisamateriaaliHakuun(); };
}

void Kerrosmuokkaus::LueDataluokka() {
  kSidonnat.Lue(KayttoLiittyma, kerros_);
  kAineenSidonnat.Lue(KayttoLiittyma, kerros_.Materiaali, kPaa);
  kAineenSidonnat.Lue(KayttoLiittyma, kerros_.Lisamateriaali, kLisa);
  KayttoLiittyma.PaivitaKentat();
  NaytaTulokset();
}

void Kerrosmuokkaus::KirjoitaDataluokka() {
  kSidonnat.Kirjoita(KayttoLiittyma, kerros_);
  KirjoitaAine(kerros_.Materiaali, kPaa);
  KirjoitaAine(kerros_.Lisamateriaali, kLisa);
}

/// A material that gets another name is no longer the library's.
void Kerrosmuokkaus::KirjoitaAine(Materiaali& aine, std::string_view sana) {
  const std::string nimi = aine.Nimi;
  kAineenSidonnat.Kirjoita(KayttoLiittyma, aine, sana);
  if (aine.Nimi != nimi) aine.Id.clear();
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

/// Fills also the field in which the person is writing.
void Kerrosmuokkaus::NaytaAine(const frmRakennekerroksenMuokkaaminen::Aine& kentat, const Materiaali& aine,
                               std::string_view sana) {
  for (const TextBox& kentta : {kentat.nimi, kentat.lambda, kentat.tiheys, kentat.ominaislampo})
    kentta.Kohde().PaataMuokkaus();
  kAineenSidonnat.Lue(KayttoLiittyma, aine, sana);
}

void Kerrosmuokkaus::OtaPaamateriaali(const Materiaali& materiaali) {
  KirjoitaDataluokka();
  kerros_.Materiaali = materiaali;
  NaytaAine(KayttoLiittyma.paamateriaali, materiaali, kPaa);
  ilma_ = IlmakerroksetJosIlmaa(materiaali);
  EhdotaIlmaraonVastusta();
  NaytaTulokset();
}

void Kerrosmuokkaus::OtaLisamateriaali(const Materiaali& materiaali) {
  KirjoitaDataluokka();
  kerros_.Lisamateriaali = materiaali;
  NaytaAine(KayttoLiittyma.lisamateriaali, materiaali, kLisa);
  NaytaTulokset();
}
