// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/Kayntiaikamuokkaus.h"

#include <stdexcept>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Kellonajat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_puhaltimet.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viikkokuvaus.h"
#include "ui/frmSyotaTuntiTiedot.h"

namespace {

constexpr int kPaiviaViikossa = 7;

constexpr const char* kTunnit = "0.0#";
constexpr const char* kVuositunnit = "# ### ##0";

using Lomakeluokka = frmIlmanvaihtokoneenKayntiajat;

/// How a field shows its value, and how it is read: false, and nothing changed, when the text has no such value.
struct Kentta {
  std::string (*teksti)(const clsKayntiAika&);
  bool (*lue)(const std::string&, clsKayntiAika&);
};

template <double clsKayntiAika::*M>
constexpr Kentta Mittaluku() {
  return {[](const clsKayntiAika& k) { return Muotoile(k.*M, "0.0#"); },
          [](const std::string& teksti, clsKayntiAika& k) {
            const auto luku = LueLuku(teksti);
            if (luku) k.*M = *luku;
            return luku.has_value();
          }};
}

template <Kellonaika clsKayntiAika::*M>
constexpr Kentta Aika() {
  return {[](const clsKayntiAika& k) { return KellonaikaTekstina(k.*M); },
          [](const std::string& teksti, clsKayntiAika& k) {
            const auto aika = LueKellonaika(teksti);
            if (aika) k.*M = *aika;
            return aika.has_value();
          }};
}

bool LueKertoja(const std::string& teksti, clsKayntiAika& k) try {
  const auto luku = LueLuku(teksti);
  if (luku) k.KayntiJaksojenLkm = PyoristaKokonaisluvuksi(*luku);
  return luku.has_value();
} catch (const std::out_of_range&) {
  return false;
}

/// In the order of Lomakeluokka::Sarake.
constexpr Kentta kKentat[Lomakeluokka::kSarakkeita] = {
    {[](const clsKayntiAika& k) { return std::to_string(k.KayntiJaksojenLkm); }, LueKertoja},
    Aika<&clsKayntiAika::Alkaa>(),
    Aika<&clsKayntiAika::Paattyy>(),
    Mittaluku<&clsKayntiAika::TuloIlmavirtaProsentti>(),
    Mittaluku<&clsKayntiAika::Tsp>(),
    Mittaluku<&clsKayntiAika::dTPuhallin>(),
};

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

Kayntiaikamuokkaus::Kayntiaikamuokkaus(clsKayntiAjat& ajat) : ajat_(ajat), varalla_(ajat.Kopioi()) {
  LiitaTapahtumat();
  if (!ajat.IvKoneenNimi.empty()) KayttoLiittyma.Otsikko(ajat.IvKoneenNimi + ": " + KayttoLiittyma.Otsikko());
}

void Kayntiaikamuokkaus::LiitaTapahtumat() {
  KayttoLiittyma.SyottotapaValittu = [this] { KayttoLiittyma_SyottotapaValittu(); };
  KayttoLiittyma.JaksoValittu = [this] { LueDataluokka(); };
  KayttoLiittyma.KenttaMuuttui = [this](std::size_t r, Lomakesarake s) { KayttoLiittyma_KenttaMuuttui(r, s); };
  KayttoLiittyma.KenttaJatetty = [this](std::size_t r, Lomakesarake s) { KayttoLiittyma_KenttaJatetty(r, s); };
  KayttoLiittyma.TunteinaKlikattu = [this](std::size_t rivi) { KayttoLiittyma_TunteinaKlikattu(rivi); };
  KayttoLiittyma.KopioiMuihinKlikattu = [this] { KayttoLiittyma_KopioiMuihinKlikattu(); };
  KayttoLiittyma.OkKlikattu = [this] { KayttoLiittyma_OkKlikattu(); };
  KayttoLiittyma.PeruutaKlikattu = [this] { KayttoLiittyma_PeruutaKlikattu(); };
}

bool Kayntiaikamuokkaus::Nayta() {
  const clsKayntiAika oletus;
  if (ajat_.TaydennaJaksot(oletus.Tsp, oletus.dTPuhallin)) VaadiRakennus().RekisteriVanheni();
  KayttoLiittyma.ValitseSyottotapa(ajat_.Vuosittainen() ? 0 : 1);
  NaytaJaksot();
  KayttoLiittyma.NaytaModaalisena();
  return hyvaksytty_;
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
  for (std::size_t s = 0; s < Lomakeluokka::kSarakkeita; ++s) {
    const TextBox& kentta = KayttoLiittyma.rivit[rivi].kentat[s];
    kentta.Kohde().PaataMuokkaus();
    kentta.Teksti(kKentat[s].teksti(Jakso(rivi)));
  }
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

void Kayntiaikamuokkaus::KayttoLiittyma_KenttaMuuttui(std::size_t rivi, Lomakesarake sarake) try {
  if (kKentat[sarake].lue(KayttoLiittyma.rivit[rivi].kentat[sarake].Teksti(), Jakso(rivi))) NaytaTulokset();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_KenttaMuuttui Method");
}

/// What was written is shown as it was understood; a text that wasn't stays for the person to mend.
void Kayntiaikamuokkaus::KayttoLiittyma_KenttaJatetty(std::size_t rivi, Lomakesarake sarake) try {
  const TextBox& kentta = KayttoLiittyma.rivit[rivi].kentat[sarake];
  clsKayntiAika luettu;
  if (kentta.Muuttunut() && kKentat[sarake].lue(kentta.Teksti(), luettu)) kentta.Teksti(kKentat[sarake].teksti(luettu));
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

void Kayntiaikamuokkaus::KayttoLiittyma_OkKlikattu() try {
  ajat_.KayntiAikojenSyottoTapa = KayttoLiittyma.cmbKayntiAikojenSyottoTapa.Teksti();
  hyvaksytty_ = true;
  KayttoLiittyma.Sulje();
} catch (...) {
  varalla_->Kopioi(ajat_);
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_OkKlikattu Method");
}

void Kayntiaikamuokkaus::KayttoLiittyma_PeruutaKlikattu() try {
  Odotus odotus;
  varalla_->Kopioi(ajat_);
  VaadiRakennus().RekisteriVanheni();
  KayttoLiittyma.Sulje();
} catch (...) {
  NostaVirhe("Kayntiaikamuokkaus:KayttoLiittyma_PeruutaKlikattu Method");
}
