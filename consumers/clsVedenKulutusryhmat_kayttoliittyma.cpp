// SPDX-License-Identifier: GPL-3.0-or-later
// The list of water consumers with the water data.
#include "consumers/Puumuokkaus.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "kernel/Sormenjalki.h"
#include "tekstit/lomakkeet_tilat.h"
#include "ui/Sidonta.h"
#include "ui/frmVedenKulutus.h"

namespace {

using Ryhma = clsVedenKulutusryhma;
using Ryhmat = clsVedenKulutusryhmat;

constexpr const char* kLuku = "##0.00";
constexpr const char* kLampotila = "0.0";
constexpr const char* kRyhmanLomake = "frmTarkennettuVesiLaskenta";
constexpr double kkWhPerMWh = 1e3;

const Sidontataulu kSidonnat{
    "frmVedenKulutus",
    {Lukukentta<Polku<&Ryhmat::LKVTiedot, &clsVedenTiedot::KylmanLampotila>>("txtKylmanVedenLampotila0", kLampotila),
     Lukukentta<Polku<&Ryhmat::LKVTiedot, &clsVedenTiedot::LamminLampotila>>("txtLampimanVedenLampotila0", kLampotila),
     Rastikentta<Polku<&Ryhmat::LKVTiedot, &clsVedenTiedot::Sahkolammitys>>("chkSahkoLampoNormaaliLKV"),
     Lukukentta<Polku<&Ryhmat::ProsessiVedenTiedot, &clsVedenTiedot::KylmanLampotila>>("txtKylmanVedenLampotila1",
                                                                                       kLampotila),
     Lukukentta<Polku<&Ryhmat::ProsessiVedenTiedot, &clsVedenTiedot::LamminLampotila>>("txtLampimanVedenLampotila1",
                                                                                       kLampotila),
     Rastikentta<Polku<&Ryhmat::ProsessiVedenTiedot, &clsVedenTiedot::Sahkolammitys>>("chkSahkoLampoProsessi"),
     Lukukentta<&Ryhmat::LKVKiertoVirtaama>("txtLKVKiertovirtaama", "0.00#"),
     Lukukentta<&Ryhmat::LKVKiertoJaahtyma>("txtLKVJaahtyma", kLampotila)}};

/// The figure of each column of the list, from the second one on.
struct Sarake {
  double clsVesiListaItem::*suure;
  const char* yksikko;
};
constexpr Sarake kSarakkeet[] = {{&clsVesiListaItem::KvVuosikulutus, "m³/a"},
                                 {&clsVesiListaItem::LkvVuosikulutus, "m³/a"},
                                 {&clsVesiListaItem::Vuosikulutus, "MWh/a"}};

/// Which of the times of use a unit has, in the order of the units.
struct Kaytto {
  bool vuorokaudessa, vuodessa;
};
constexpr Kaytto kKaytot[] = {{true, true}, {false, false}, {false, true}, {false, true},
                              {true, true}, {true, true},   {true, true}};

/// What pasted rows tell of uses of water.
class Vesisarakkeet {
 public:
  std::span<const Liitossarake> Sarakkeet() const { return sarakkeet_; }
  void Alusta(Ryhma& ryhma) const { Aseta(ryhma, 0); }

 private:
  void Aseta(Ryhma& ryhma, int paikka) const {
    const auto i = static_cast<std::size_t>(paikka);
    ryhma.LaskentaperusteID = static_cast<std::int16_t>(paikka);
    ryhma.LaskentaperusteStr = yksikot_.at(i);
    ryhma.LaskentayksikonTeksti = laskettavat_.at(i);
    // A time of use that the unit doesn't have counts 1.
    ryhma.KayttokuvausKertaaD = kKaytot[i].vuorokaudessa ? 0 : 1;
    ryhma.KayttokuvausDpA = kKaytot[i].vuodessa ? 0 : 1;
  }
  Solutulos AsetaYksikko(Ryhma& ryhma, std::string_view solu) const {
    const int paikka = SananPaikka(yksikot_, solu);
    if (paikka < 0 || paikka >= std::ssize(kKaytot)) return EiValinta(yksikot_);
    Aseta(ryhma, paikka);
    return {};
  }
  static Liitossarake Kayttosarake(Tekstinumero otsikko, std::string_view jasen, bool Kaytto::*on) {
    Liitossarake sarake = Jasensarake(otsikko, jasen);
    sarake.aseta = [aseta = sarake.aseta, on](Olio& olio, std::string_view solu) {
      if (!(kKaytot[static_cast<std::size_t>(static_cast<Ryhma&>(olio).LaskentaperusteID)].*on))
        return Solutulos{.hylkays = Teksti(tekstit::kYksikossaEiKayttoa)};
      return aseta(olio, solu);
    };
    return sarake;
  }
  /// The share of hot water follows the use temperature.
  static Liitossarake Lampotilasarake() {
    Liitossarake sarake = Jasensarake(tekstit::kSarakeKayttolampotila, "VedenKayttolampotila");
    sarake.aseta = [aseta = sarake.aseta](Olio& olio, std::string_view solu) {
      Solutulos tulos = aseta(olio, solu);
      if (tulos.hylkays.empty()) static_cast<Ryhma&>(olio).PaivitaLampimanVedenOsuus();
      return tulos;
    };
    return sarake;
  }

  std::vector<std::string> yksikot_ = Valintalista(kRyhmanLomake, "cmbLaskentaOminaissuure");
  std::vector<std::string> laskettavat_ = Valintalista(kRyhmanLomake, "cmbLaskentayksikko");
  std::vector<Liitossarake> sarakkeet_{
      Jasensarake(tekstit::kSarakeKulutuskohde, "KulutusRyhma", tekstit::kLiitettavaPuuttuu),
      Jasensarake(tekstit::kSarakeMaara, "Laskentayksikko", tekstit::kLiitettavaPuuttuu),
      Jasensarake(tekstit::kSarakeOminaiskulutus, "LaskentaperusteNumber", tekstit::kLiitettavaPuuttuu),
      {tekstit::kSarakeYksikko,
       [this](Olio& olio, std::string_view solu) { return AsetaYksikko(static_cast<Ryhma&>(olio), solu); }},
      Kayttosarake(tekstit::kSarakeKayttoVrk, "KayttokuvausKertaaD", &Kaytto::vuorokaudessa),
      Kayttosarake(tekstit::kSarakeKayttoVuosi, "KayttokuvausDpA", &Kaytto::vuodessa),
      Lampotilasarake()};
};

}  // namespace

/// The open list and what it edits.
class Vesiluettelo {
 public:
  explicit Vesiluettelo(Ryhmat& puu)
      : puu_(puu),
        muokkaus_(puu, lomake_,
                  {.laske = [this] { puu_.PaivitaKulutusRyhmatJaLaitteet(); },
                   .luvut =
                       [](const clsVesiListaItem& rivi, Luettelorivi& nakyva) {
                         for (const Sarake& sarake : kSarakkeet) nakyva.LisaaLuku(rivi.*sarake.suure, kLuku);
                       },
                   .nayta = [this](bool laskettu) { Nayta(laskettu); },
                   .sarakkeet = sarakkeet_.Sarakkeet(),
                   .alustaLiitettava = [this](Ryhma& ryhma) { sarakkeet_.Alusta(ryhma); },
                   .muutTiedot = tekstit::kVedenTiedot,
                   .otaKentat = [this] { return lomake_.OtaKentat(); },
                   .hylkaaKentat = [this] { lomake_.HylkaaKentat(); }}) {
    lomake_.PerustiedotMuuttuivat = [this] { PerustiedotMuuttuivat(); };
    lomake_.JakaumaKlikattu = [this](int sarake) { NaytaJakauma(sarake); };
  }

  Puumuokkaus<Ryhmat>& Muokkaus() { return muokkaus_; }

 private:
  void Nayta(bool laskettu) const {
    kSidonnat.Lue(lomake_, puu_);
    lomake_.txtLKVKiertojohdonHaviot.Luku(puu_.LKVKiertopiirinHavio() / kkWhPerMWh, kLuku);
    const double toteutunut = VaadiRakennus().Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Vesi;
    lomake_.NaytaVesivertailu(toteutunut, laskettu ? std::optional(puu_.RivienVedenKulutus()) : std::nullopt);
  }

  void PerustiedotMuuttuivat() {
    std::vector<const Ryhma*> rajanYli;
    const bool muuttui = muokkaus_.Muuta(tekstit::kVedenTiedot, [&] {
      const clsTyyppiTiedot& tyypit = VaadiRakennus().TyyppiTiedot;
      const auto ennen = SormenjalkiIlmanAlkioita(puu_, tyypit);
      kSidonnat.Kirjoita(lomake_, puu_);
      if (SormenjalkiIlmanAlkioita(puu_, tyypit) == ennen) return false;
      rajanYli = puu_.VesitiedotMuuttuivat();
      return true;
    });
    if (!muuttui) return Nayta(true);
    for (const Ryhma* ryhma : rajanYli)
      Ilmoita(
          Teksti(tekstit::kRyhmanOsuusAlku) + " '" + ryhma->KulutusRyhma + "' " + Teksti(tekstit::kRyhmanOsuusLoppu),
          Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  }

  /// Under the root its titles and the loop, under a title of the tree its groups.
  void NaytaJakauma(int sarake) {
    const clsVesiListaItem* rivi = muokkaus_.ValittuRivi();
    if (!rivi || sarake < 1 || sarake > std::ssize(kSarakkeet)) return;
    const Sarake& valittu = kSarakkeet[sarake - 1];
    const auto otsikko = lomake_.lvwRyhmat.Kohde().Osat()[static_cast<std::size_t>(sarake)].otsikko;
    const Rivilaji laji = puu_.Laji(*rivi);
    if (laji == Rivilaji::Juuri)
      muokkaus_.NaytaJakauma(otsikko, puu_.PaaRivit(), valittu.suure, valittu.yksikko);
    else if (laji == Rivilaji::Otsikko)
      muokkaus_.NaytaJakauma(otsikko, puu_.Lapset(rivi->sKey), valittu.suure, valittu.yksikko);
  }

  Ryhmat& puu_;
  frmVedenKulutus lomake_;
  Vesisarakkeet sarakkeet_;
  Puumuokkaus<Ryhmat> muokkaus_;
};

void clsVedenKulutusryhmat::NaytaKayttoliittyma() try {
  if (!luettelo_.arvo) luettelo_.arvo = std::make_shared<Vesiluettelo>(*this);
  luettelo_.arvo->Muokkaus().Avaa();
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:NaytaKayttoliittyma Method");
}

void clsVedenKulutusryhmat::LueDataluokka(const Tunniste& sKey) try {
  if (luettelo_.arvo) luettelo_.arvo->Muokkaus().Lue(sKey);
} catch (...) {
  NostaVirhe("clsVedenKulutusryhmat:LueDataluokka Method");
}
