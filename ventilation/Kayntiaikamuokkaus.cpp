// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/Kayntiaikamuokkaus.h"

#include "building/Muokkausistunto.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_puhaltimet.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viikkokuvaus.h"
#include "ui/frmSyotaTuntiTiedot.h"

namespace {

constexpr int kPaiviaViikossa = 7;

constexpr const char* kTunnit = "0.0#";
constexpr const char* kVuositunnit = "# ### ##0";

/// A line of the chosen season; the word is its number on the form.
const Sidontataulu kSidonnat{
    "frmIlmanvaihtokoneenKayntiajat",
    {
        Lukukentta<&clsKayntiAika::KayntiJaksojenLkm>("txtKayntiJaksojenLkm*", "0"),
        Aikakentta<&clsKayntiAika::Alkaa>("txtAlkaa*"),
        Aikakentta<&clsKayntiAika::Paattyy>("txtPaattyy*"),
        Lukukentta<&clsKayntiAika::TuloIlmavirtaProsentti>("txtTuloIlmavirtaProsentti*", "0.0#"),
        Lukukentta<&clsKayntiAika::Tsp>("txtTsp*", "0.0#"),
        Lukukentta<&clsKayntiAika::dTPuhallin>("txtdTPuhallin*", "0.0#"),
    },
    {"1", "2", "3", "4", "5", "6", "7"}};

std::string RivinNumero(std::size_t rivi) { return std::to_string(rivi + 1); }

std::vector<std::string> Summarivi(const std::string& nimi, const Kayntisumma& summa) {
  return {nimi, std::to_string(summa.riveja), Muotoile(summa.tunnit, kVuositunnit),
          summa.tunnit > 0 ? Muotoile(summa.Keskivirta(), "0.#") : ""};
}

/// What a person should know of a line that doesn't do what it seems to.
std::string Huomautus(const clsKayntiAika& jakso) {
  if (jakso.KayntiJaksojenLkm <= 0) return {};
  if (!jakso.Kaytossa()) return Teksti(tekstit::kJaksoIlmanIlmavirtaa);
  if (!jakso.LampotilatTaulukossa()) return Teksti(tekstit::kJaksoIlmanLammitysta);
  if (jakso.KayntiJaksojenLkm > kPaiviaViikossa)
    return Teksti(tekstit::kJaksojaLiikaa) + " " + std::to_string(jakso.KayntiJaksojenLkm) + ".";
  return {};
}

}  // namespace

Kayntiaikamuokkaus::Kayntiaikamuokkaus(clsKayntiAjat& ajat) : ajat_(ajat) { LiitaTapahtumat(); }

void Kayntiaikamuokkaus::LiitaTapahtumat() {
  KayttoLiittyma.SyottotapaValittu = [this] { KayttoLiittyma_SyottotapaValittu(); };
  KayttoLiittyma.JaksoValittu = [this] { LueDataluokka(); };
  KayttoLiittyma.KenttaMuuttui = [this](std::size_t rivi) { KayttoLiittyma_KenttaMuuttui(rivi); };
  KayttoLiittyma.KenttaJatetty = [this](std::size_t rivi) { KayttoLiittyma_KenttaJatetty(rivi); };
  KayttoLiittyma.TunteinaKlikattu = [this](std::size_t rivi) { KayttoLiittyma_TunteinaKlikattu(rivi); };
  KayttoLiittyma.KopioiMuihinKlikattu = [this] { KayttoLiittyma_KopioiMuihinKlikattu(); };
}

bool Kayntiaikamuokkaus::Nayta() {
  Muokkausistunto istunto(ajat_, KayttoLiittyma,
                          {.nimi = ajat_.IvKoneenNimi,
                           .lue = [this] { NaytaSyottotapa(); },
                           .voimaan = [this] { ajat_.KayntiAikojenSyottoTapa = SyottotavanNimi(); },
                           .virheenJalkeen = [this] { NaytaSyottotapa(); }});
  return istunto.Nayta();
}

std::string Kayntiaikamuokkaus::SyottotavanNimi() const { return KayttoLiittyma.cmbKayntiAikojenSyottoTapa.Teksti(); }

/// A season that lacks lines gets them: they are there to be written in.
void Kayntiaikamuokkaus::NaytaSyottotapa() {
  const clsKayntiAika oletus;
  if (ajat_.TaydennaJaksot(oletus.Tsp, oletus.dTPuhallin)) VaadiRakennus().RekisteriVanheni();
  KayttoLiittyma.ValitseSyottotapa(ajat_.Vuosittainen() ? 0 : 1);
  NaytaJaksot();
}

clsKayntiAika& Kayntiaikamuokkaus::Jakso(std::size_t rivi) const {
  return ajat_.Item(clsKayntiAjat::JaksonAvain(static_cast<int>(rivi) + 1, Vuosijakso()));
}

std::string Kayntiaikamuokkaus::JaksonNimi() const {
  return Teksti(tekstit::kVuodenajat[static_cast<std::size_t>(Vuosijakso())]);
}

void Kayntiaikamuokkaus::NaytaJaksot() {
  jaksot_ = ajat_.Vuosittainen() ? std::vector<int>{clsKayntiAika::KokoVuosi} : std::vector<int>{0, 1, 2, 3};
  KayttoLiittyma.cmdKopioiMuihin.Kaytossa(!ajat_.Vuosittainen());
  KayttoLiittyma.lvwJaksot.Rivit(Taulukko(jaksot_.size()));
  KayttoLiittyma.ValitseJakso(0);
  LueDataluokka();
}

void Kayntiaikamuokkaus::LueDataluokka() try {
  KayttoLiittyma.fraRivit.Otsikko(JaksonNimi());
  for (std::size_t rivi = 0; rivi < KayttoLiittyma.rivit.size(); ++rivi) LueRivi(rivi);
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:LueDataluokka Method");
}

void Kayntiaikamuokkaus::LueRivi(std::size_t rivi) {
  for (const TextBox& kentta : KayttoLiittyma.rivit[rivi].kentat) kentta.Kohde().PaataMuokkaus();
  kSidonnat.Lue(KayttoLiittyma, Jakso(rivi), RivinNumero(rivi));
}

void Kayntiaikamuokkaus::NaytaTulokset() {
  NaytaTunnit();
  NaytaSummat();
  NaytaViikko();
  NaytaHuomautukset();
}

/// A line that isn't run shows no hours: its equal times would be a whole day.
void Kayntiaikamuokkaus::NaytaTunnit() {
  for (std::size_t rivi = 0; rivi < KayttoLiittyma.rivit.size(); ++rivi) {
    const clsKayntiAika& jakso = Jakso(rivi);
    KayttoLiittyma.rivit[rivi].tunnit.Teksti(jakso.KayntiJaksojenLkm > 0 ? Muotoile(jakso.KayntiTunnit(), kTunnit)
                                                                         : std::string());
  }
}

void Kayntiaikamuokkaus::NaytaSummat() {
  Kayntisumma vuosi;
  for (std::size_t i = 0; i < jaksot_.size(); ++i) {
    const Kayntisumma summa = ajat_.Vuosijaksolta(jaksot_[i]);
    KayttoLiittyma.lvwJaksot.Rivi(static_cast<int>(i),
                                  Summarivi(Teksti(tekstit::kVuodenajat[static_cast<std::size_t>(jaksot_[i])]), summa));
    vuosi += summa;
  }
  KayttoLiittyma.lvwJaksot.Summarivi(jaksot_.size() > 1 ? Summarivi(Teksti(tekstit::kTunnitYhteensa), vuosi)
                                                        : std::vector<std::string>());
}

void Kayntiaikamuokkaus::NaytaViikko() {
  std::vector<Viikkokaynti> kaynnit;
  for (std::size_t rivi = 0; rivi < KayttoLiittyma.rivit.size(); ++rivi) {
    const clsKayntiAika& jakso = Jakso(rivi);
    kaynnit.push_back({jakso.KayntiJaksojenLkm, jakso.Alkaa, jakso.Paattyy, jakso.TuloIlmavirtaProsentti});
  }
  KayttoLiittyma.chtViikko.Kaavio(Viikkokuvaus(JaksonNimi(), kaynnit));
}

void Kayntiaikamuokkaus::NaytaHuomautukset() {
  std::string kaikki;
  for (std::size_t rivi = 0; rivi < KayttoLiittyma.rivit.size(); ++rivi)
    if (const std::string huomautus = Huomautus(Jakso(rivi)); !huomautus.empty())
      kaikki +=
          (kaikki.empty() ? "" : "\n") + Teksti(tekstit::kRivi) + " " + std::to_string(rivi + 1) + ": " + huomautus;
  KayttoLiittyma.lblHuomautus.Otsikko(kaikki);
}

void Kayntiaikamuokkaus::KayttoLiittyma_SyottotapaValittu() try {
  ajat_.KayntiaikojenSyottotapaID = KayttoLiittyma.cmbKayntiAikojenSyottoTapa.Indeksi();
  NaytaJaksot();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_SyottotapaValittu Method");
}

void Kayntiaikamuokkaus::KayttoLiittyma_KenttaMuuttui(std::size_t rivi) try {
  kSidonnat.Kirjoita(KayttoLiittyma, Jakso(rivi), RivinNumero(rivi));
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_KenttaMuuttui Method");
}

void Kayntiaikamuokkaus::KayttoLiittyma_KenttaJatetty(std::size_t rivi) try {
  kSidonnat.Siisti(KayttoLiittyma, Jakso(rivi), RivinNumero(rivi));
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_KenttaJatetty Method");
}

void Kayntiaikamuokkaus::KayttoLiittyma_TunteinaKlikattu(std::size_t rivi) try {
  clsKayntiAika& jakso = Jakso(rivi);
  if (!frmSyotaTuntiTiedot().Kysy(jakso.Alkaa, jakso.Paattyy)) return;
  LueRivi(rivi);
  NaytaTulokset();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_TunteinaKlikattu Method");
}

void Kayntiaikamuokkaus::KayttoLiittyma_KopioiMuihinKlikattu() try {
  ajat_.KayttoLiittyma_KopioiMuihinKlikattu();
  LueDataluokka();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_KopioiMuihinKlikattu Method");
}
