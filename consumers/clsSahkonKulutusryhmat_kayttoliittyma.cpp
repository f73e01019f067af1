// SPDX-License-Identifier: GPL-3.0-or-later
// The list of electricity consumers.
#include "building/Tasehaarukka.h"
#include "building/clsTilat.h"
#include "consumers/Puumuokkaus.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "tekstit/lomakkeet_tilat.h"
#include "ui/frmSahkoLaitteet.h"

namespace {

using Ryhma = clsSahkonKulutusryhma;

constexpr const char* kMWh = "MWh/a";
constexpr const char* kRivilla = "##0.00";
constexpr const char* kYlhaalla = "0";
constexpr const char* kRyhmanLomake = "frmTarkennettuLaiteLaskenta";

/// The units of power or of energy, and the captions of what is counted in each.
struct Yksikot {
  explicit Yksikot(const std::string& tapa)
      : yksikot(Valintalista(kRyhmanLomake, "cmbLaskentaOminaissuure" + tapa)),
        laskettavat(Valintalista(kRyhmanLomake, "cmbLaskentayksikko" + tapa)) {}
  std::vector<std::string> yksikot, laskettavat;
};

/// What pasted rows tell of devices: power in a unit of power with hours of use, or consumption in one of energy.
class Laitesarakkeet {
 public:
  std::span<const Liitossarake> Sarakkeet() const { return sarakkeet_; }
  void Alusta(Ryhma& ryhma) const { Aseta(ryhma, true, kLaitteelle); }

 private:
  static constexpr int kLaitteelle = 1;  // W a device

  static void Aseta(Ryhma& ryhma, const Yksikot& yksikot, bool teho, int paikka) {
    const auto i = static_cast<std::size_t>(paikka);
    ryhma.LaskentatapaTehopohjainen(teho);
    ryhma.LaskentaperusteID = static_cast<std::int16_t>(paikka);
    ryhma.LaskentaperusteStr = yksikot.yksikot.at(i);
    ryhma.Laskentayksikko = yksikot.laskettavat.at(i);
    if (!teho) ryhma.KayttoaikaHpD = ryhma.KayttoaikaDpA = 1;  // times of use don't enter energy
  }
  void Aseta(Ryhma& ryhma, bool teho, int paikka) const { Aseta(ryhma, teho ? tehon_ : energian_, teho, paikka); }
  Solutulos AsetaYksikko(Ryhma& ryhma, std::string_view solu) const {
    for (const bool teho : {true, false})
      if (const int paikka = SananPaikka((teho ? tehon_ : energian_).yksikot, solu); paikka >= 0) {
        Aseta(ryhma, teho, paikka);
        return {};
      }
    std::vector<std::string> kaikki = tehon_.yksikot;
    kaikki.insert(kaikki.end(), energian_.yksikot.begin(), energian_.yksikot.end());
    return EiValinta(kaikki);
  }
  /// A time of use, which energy has none of.
  static Liitossarake Kayttosarake(Tekstinumero otsikko, std::string_view jasen) {
    Liitossarake sarake = Jasensarake(otsikko, jasen);
    sarake.aseta = [aseta = sarake.aseta](Olio& olio, std::string_view solu) {
      if (!static_cast<Ryhma&>(olio).LaskentatapaTehopohjainen())
        return Solutulos{.hylkays = Teksti(tekstit::kYksikossaEiKayttoa)};
      return aseta(olio, solu);
    };
    return sarake;
  }

  Yksikot tehon_{"Teho"}, energian_{"Energia"};
  std::vector<Liitossarake> sarakkeet_{
      Jasensarake(tekstit::kSarakeNimike, "KulutusRyhma", tekstit::kLiitettavaPuuttuu),
      Jasensarake(tekstit::kSarakeMaara, "LaskentayksikkoNumber", tekstit::kLiitettavaPuuttuu),
      Jasensarake(tekstit::kSarakeTeho, "LaskentaperusteNumber", tekstit::kLiitettavaPuuttuu),
      {tekstit::kSarakeYksikko,
       [this](Olio& olio, std::string_view solu) { return AsetaYksikko(static_cast<Ryhma&>(olio), solu); }},
      Kayttosarake(tekstit::kSarakeKayttoVrk, "KayttoaikaHpD"),
      Kayttosarake(tekstit::kSarakeKayttoVuosi, "KayttoaikaDpA")};
};

bool OnSahkolammitettyjaTiloja(const clsRakennus& rakennus) {
  return std::any_of(rakennus.Tilat.begin(), rakennus.Tilat.end(),
                     [](const clsTila& tila) { return tila.Sahkolammitys; });
}

}  // namespace

/// The open list and what it edits.
class Sahkoluettelo {
 public:
  explicit Sahkoluettelo(clsSahkonKulutusryhmat& puu)
      : puu_(puu),
        muokkaus_(puu, lomake_,
                  {.laske = [this] { Laske(); },
                   .luvut = [](const clsSahkoListaItem& rivi,
                               Luettelorivi& nakyva) { nakyva.LisaaLuku(rivi.Vuosikulutus, kRivilla); },
                   .nayta = [this](bool laskettu) { Nayta(laskettu); },
                   .sarakkeet = sarakkeet_.Sarakkeet(),
                   .alustaLiitettava = [this](Ryhma& ryhma) { sarakkeet_.Alusta(ryhma); }}) {
    lomake_.JakaumaKlikattu = [this] { NaytaJakauma(); };
  }

  Puumuokkaus<clsSahkonKulutusryhmat>& Muokkaus() { return muokkaus_; }

 private:
  /// Electrically heated spaces are asked in one bracket.
  void Laske() {
    std::optional<Tasehaarukka> haarukka;
    if (OnSahkolammitettyjaTiloja(VaadiRakennus())) haarukka.emplace(VaadiRakennus());
    puu_.PaivitaKulutusRyhmatJaLaitteet();
    laskettu_ = puu_.Vuosikulutus();
  }
  void Nayta(bool laskettu) const {
    const double toteutunut = VaadiRakennus().Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Sahko;
    lomake_.NaytaVertailu(toteutunut, laskettu ? std::optional(laskettu_) : std::nullopt, kYlhaalla);
  }
  /// The rows under the root, or under one of those.
  void NaytaJakauma() {
    const clsSahkoListaItem* rivi = muokkaus_.ValittuRivi();
    if (rivi && Sallitut(puu_.Laji(*rivi)).jakauma)
      muokkaus_.NaytaJakauma(rivi->NimiTeksti, puu_.Lapset(rivi->sKey), &clsSahkoListaItem::Vuosikulutus, kMWh);
  }

  clsSahkonKulutusryhmat& puu_;
  frmSahkoLaitteet lomake_;
  Laitesarakkeet sarakkeet_;
  double laskettu_ = 0;  // MWh/a
  Puumuokkaus<clsSahkonKulutusryhmat> muokkaus_;
};

void clsSahkonKulutusryhmat::NaytaKayttoliittyma() try {
  if (!luettelo_.arvo) luettelo_.arvo = std::make_shared<Sahkoluettelo>(*this);
  luettelo_.arvo->Muokkaus().Avaa();
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:NaytaKayttoliittyma Method");
}

void clsSahkonKulutusryhmat::LueDataluokka(const Tunniste& sKey) try {
  if (luettelo_.arvo) luettelo_.arvo->Muokkaus().Lue(sKey);
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:LueDataluokka Method");
}
