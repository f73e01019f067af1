// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsToimenpiteidenJarjestelija.h"

#include <algorithm>

#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelmaketju.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsTariffiVertailuTapaus.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsToimenpiteidenJarjestelija::ValitutToimenpiteet>("ValitutToimenpiteet"),
    Arvo<&clsToimenpiteidenJarjestelija::NaytaToimenpiteetStr>("NaytaToimenpiteetStr"),
    Arvo<&clsToimenpiteidenJarjestelija::NaytaToimenpiteetID>("NaytaToimenpiteetID"),
    Arvo<&clsToimenpiteidenJarjestelija::TaulukonNakymaStr>("TaulukonNakymaStr"),
    Arvo<&clsToimenpiteidenJarjestelija::TaulukonNakymaTyyppiID>("TaulukonNakymaTyyppiID"),
};

using Jarjestelija = clsToimenpiteidenJarjestelija;
using Rivi = clsValittuToimenpide;

constexpr Tulos kTulokset[] = {
    Kokoelmatulos<&Jarjestelija::ValitutToimenpiteet>("ValitutToimenpiteet"),
    Lukutulos<[](const Jarjestelija& j) {
      if (const Rivi* yhteensa = j.ValitutToimenpiteet.Etsi(clsValitutToimenpiteet::kYhteensa)) yhteensa->Laskettu();
      return j.PaketinTakaisinmaksuaika(Asetukset().NaytettavatAlvt()).value_or(kEiTakaisinmaksua);
    }>("PaketinTakaisinmaksuaika", tekstit::kPaketinTakaisinmaksuaika, "a", "### ##0.0"),
};

/// The costs, or nothing when they can't be computed: the rows have prices of their own.
template <class F>
std::optional<Ostot> Jos(F&& laske) {
  try {
    return laske();
  } catch (const Virhe&) {
    return std::nullopt;
  }
}

/// What the totals row sums up.
constexpr double Rivi::*kSummattavat[] = {
    &Rivi::KustannusSaastoLampoEnergia,
    &Rivi::KustannusSaastoLampoTeho,
    &Rivi::KustannusSaastoSahkoEnergia,
    &Rivi::KustannusSaastoSahkoLoisTeho,
    &Rivi::KustannusSaastoSahkoPatoTeho,
    &Rivi::KustannusSaastoVesi,
    &Rivi::KustannusSaastoYhteensa,
    &Rivi::Investointi,
    &Rivi::SaastoLampoEnergia,
    &Rivi::SaastoSahkoEnergia,
    &Rivi::SaastoVedenKulutus,
    &Rivi::SaastoLampoteho,
    &Rivi::SaastoLoisTeho,
    &Rivi::SaastoPatoTeho,
};

}  // namespace

const Luokka clsToimenpiteidenJarjestelija::kLuokka{"clsToimenpiteidenJarjestelija", kJasenet,
                                                    Luokka::Osallistuu::EiRekisteriin, kTulokset};

/// One run over the rows: the state of the model and of what the model doesn't know, row after row.
class clsToimenpiteidenJarjestelija::Laskenta {
 public:
  Laskenta(Muunnelmalaskin& laskin, const clsSaastotoimenpiteet& toimenpiteet, const Hyodykkeet& perusta)
      : toimenpiteet_(toimenpiteet), ketju_(laskin), tila_(perusta) {}

  void Laske(Rivi& rivi) {
    clsSaastotoimenpide* toimenpide = toimenpiteet_.Etsi(rivi.ToimenpidesKey);
    if (!toimenpide) return void(puuttuvat_ += "\n" + rivi.Nimi);
    const Hyodykkeet ennen = tila_;
    tila_ = Jalkeen(*toimenpide);
    Tayta(rivi, *toimenpide, ennen - tila_);
  }
  const Hyodykkeet& Tila() const noexcept { return tila_; }
  Ostot LaskeOstot() const { return ketju_.LaskeOstot(tila_); }
  /// Names of the rows whose measure is gone.
  const std::string& Puuttuvat() const noexcept { return puuttuvat_; }

 private:
  /// A floating measure isn't written into the model: its own difference is taken from all that follow.
  Hyodykkeet Jalkeen(clsSaastotoimenpide& toimenpide) {
    if (!toimenpide.Kelluva()) return ketju_.Liita(toimenpide.MuuttuneetAttribuutit) - kelluvat_;
    const Hyodykkeet ero = toimenpide.Saasto();
    kelluvat_ += ero;
    return tila_ - ero;
  }
  static void Tayta(Rivi& rivi, const clsSaastotoimenpide& toimenpide, const Hyodykkeet& saasto) {
    const Alvprosentit alv = Asetukset().NaytettavatAlvt();
    const Kustannussaastot kustannukset = toimenpide.Kustannussaasto(saasto);
    rivi.AsetaKustannukset(kustannukset);
    rivi.KustannusSaastoYhteensa = kustannukset.Yhteensa(alv);
    rivi.Takaisinmaksuaika = Takaisinmaksuaika(toimenpide.Investointi, rivi.KustannusSaastoYhteensa, alv);
    rivi.Investointi = toimenpide.Investointi;
    rivi.SaastoLampoEnergia = saasto.lampo;
    rivi.SaastoSahkoEnergia = saasto.sahko;
    rivi.SaastoVedenKulutus = saasto.vesi;
    rivi.SaastoLampoteho = toimenpide.SaastoLampoteho;
    rivi.SaastoLoisTeho = toimenpide.SaastoLoisTeho;
    rivi.SaastoPatoTeho = toimenpide.SaastoPatoTeho;
    rivi.TiedotUpToDate = true;
  }

  const clsSaastotoimenpiteet& toimenpiteet_;
  Muunnelmaketju ketju_;
  Hyodykkeet tila_;      // gross figures after the rows so far
  Hyodykkeet kelluvat_;  // what the floating measures so far have saved
  std::string puuttuvat_;
};

void clsToimenpiteidenJarjestelija::PaivitaValitutToimenpiteet() try {
  Vanhenna();  // what an error leaves uncomputed
  std::string puuttuvat;
  if (koti_.Rakennus().Saastotoimenpiteet.Count() > 0 || ValitutToimenpiteet.Count() > 1) puuttuvat = LaskeRivit();
  PaivitaYhteensa();
  if (!puuttuvat.empty())
    Ilmoita(Teksti(tekstit::kRivinToimenpidePuuttuu) + puuttuvat, Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:PaivitaValitutToimenpiteet Method");
}

/// All but the totals. Gives the names of the rows whose measure is gone.
std::string clsToimenpiteidenJarjestelija::LaskeRivit() {
  const Odotus odotus;
  clsSaastotoimenpiteet& toimenpiteet = koti_.Rakennus().Saastotoimenpiteet;
  Muunnelmalaskin laskin(koti_.Rakennus());
  const Hyodykkeet perusta = toimenpiteet.PaivitaEnnenTiedotToimenpiteisiin(laskin);
  const auto ostot = Jos([&] { return laskin.PerustanOstot(perusta); });
  Laskenta laskenta(laskin, toimenpiteet, perusta);
  for (Rivi& rivi : ValitutToimenpiteet)
    if (rivi.Tyyppi == Rivi::Toimenpide)
      laskenta.Laske(rivi);
    else if (rivi.Tyyppi == Rivi::Tariffi)
      rivi.TiedotUpToDate = true;
  const auto jalkeen = Jos([&] { return laskenta.LaskeOstot(); });
  paketti_.arvo = {perusta, laskenta.Tila(), ostot, ostot && jalkeen ? std::optional(*ostot - *jalkeen) : std::nullopt};
  return laskenta.Puuttuvat();
}

void clsToimenpiteidenJarjestelija::PaivitaYhteensa() {
  Rivi* yhteensa = ValitutToimenpiteet.Etsi(clsValitutToimenpiteet::kYhteensa);
  if (!yhteensa) return;
  for (const auto suure : kSummattavat) {
    yhteensa->*suure = 0;
    for (const Rivi& rivi : ValitutToimenpiteet)
      if (rivi.Tyyppi != Rivi::Yhteensa) yhteensa->*suure += rivi.*suure;
  }
  yhteensa->TiedotUpToDate = true;
}

std::optional<double> clsToimenpiteidenJarjestelija::PaketinTakaisinmaksuaika(const Alvprosentit& alv) const try {
  const Rivi* yhteensa = ValitutToimenpiteet.Etsi(clsValitutToimenpiteet::kYhteensa);
  const double saasto = yhteensa ? yhteensa->Kustannussaasto().Yhteensa(alv) : 0;
  if (saasto == 0) return std::nullopt;
  return Takaisinmaksuaika(yhteensa->Investointi, saasto, alv);
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:PaketinTakaisinmaksuaika Method");
}

void clsToimenpiteidenJarjestelija::Vanhenna() noexcept {
  paketti_.arvo.reset();
  for (Rivi& rivi : ValitutToimenpiteet)
    if (rivi.Tyyppi != Rivi::Tariffi) rivi.TiedotUpToDate = false;
}

bool clsToimenpiteidenJarjestelija::Vanhentunut() const {
  for (const Rivi& rivi : ValitutToimenpiteet)
    if (!rivi.TiedotUpToDate) return true;
  return false;
}

/// The rows of these places, from 1, have others above them than before.
void clsToimenpiteidenJarjestelija::Muuttui(int ensimmainen, int viimeinen) {
  ValitutToimenpiteet.LaskelmatUpToDate = false;
  paketti_.arvo.reset();
  for (int i = ensimmainen; i <= viimeinen; ++i)
    if (Rivi& rivi = ValitutToimenpiteet.Item(i); rivi.Tyyppi == Rivi::Toimenpide) rivi.TiedotUpToDate = false;
  if (Rivi* yhteensa = ValitutToimenpiteet.Etsi(clsValitutToimenpiteet::kYhteensa)) yhteensa->TiedotUpToDate = false;
}

void clsToimenpiteidenJarjestelija::Valitse(const Tunniste& toimenpide, bool valittu) try {
  clsSaastotoimenpiteet& toimenpiteet = koti_.Rakennus().Saastotoimenpiteet;
  if (!valittu) return PoistaToimenpiteenRivit(toimenpide);
  const clsSaastotoimenpide& kohde = toimenpiteet.Item(toimenpide);
  toimenpiteet.ListaItem(toimenpide).ValittuTaulukko2een = true;
  Rivi& rivi = ValitutToimenpiteet.Add(Tunniste::Uusi(Rivi::kLuokka.NimiSana()), {});
  rivi.ToimenpidesKey = toimenpide;
  rivi.Nimi = kohde.Nimi;
  Muuttui(ValitutToimenpiteet.Count(), ValitutToimenpiteet.Count());
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:Valitse Method");
}

void clsToimenpiteidenJarjestelija::PoistaToimenpiteenRivit(const Tunniste& toimenpide) try {
  const auto onSen = [&](const Rivi& rivi) {
    return rivi.Tyyppi == Rivi::Toimenpide && rivi.ToimenpidesKey == toimenpide;
  };
  if (auto* solmu = koti_.Rakennus().Saastotoimenpiteet.ListaItems().Etsi(toimenpide))
    solmu->ValittuTaulukko2een = false;
  int paikka = 1;
  for (const Rivi& rivi : ValitutToimenpiteet) {
    if (onSen(rivi)) break;
    ++paikka;
  }
  if (paikka > ValitutToimenpiteet.Count()) return;
  ValitutToimenpiteet.PoistaJos(onSen);
  Muuttui(paikka, ValitutToimenpiteet.Count());
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:PoistaToimenpiteenRivit Method");
}

void clsToimenpiteidenJarjestelija::PoistaRivi(const Tunniste& avain) try {
  const Rivi& rivi = ValitutToimenpiteet.Item(avain);
  if (rivi.Tyyppi == Rivi::Toimenpide)
    if (auto* solmu = koti_.Rakennus().Saastotoimenpiteet.ListaItems().Etsi(rivi.ToimenpidesKey))
      solmu->ValittuTaulukko2een = false;
  const int paikka = Paikka(avain);
  ValitutToimenpiteet.Remove(avain);
  Muuttui(paikka, ValitutToimenpiteet.Count());
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:PoistaRivi Method");
}

/// From 1; 0 when there is no such row.
int clsToimenpiteidenJarjestelija::Paikka(const Tunniste& avain) const {
  for (int i = 1; i <= ValitutToimenpiteet.Count(); ++i)
    if (ValitutToimenpiteet.Item(i).sKey == avain) return i;
  return 0;
}

bool clsToimenpiteidenJarjestelija::VoiSiirtaaYlos(const Tunniste& rivi) const {
  const int paikka = Paikka(rivi);
  return paikka > 1 && ValitutToimenpiteet.Item(paikka - 1).Tyyppi != Rivi::Yhteensa;
}

bool clsToimenpiteidenJarjestelija::VoiSiirtaaAlas(const Tunniste& rivi) const {
  const int paikka = Paikka(rivi);
  return paikka > 0 && paikka < ValitutToimenpiteet.Count() &&
         ValitutToimenpiteet.Item(paikka).Tyyppi != Rivi::Yhteensa;
}

Tunniste clsToimenpiteidenJarjestelija::SiirraYlos(const Tunniste& rivi) try {
  if (!VoiSiirtaaYlos(rivi)) throw std::out_of_range("Valittu sKey oli listan ensimmäinen. Ei edeltäjiä.");
  const int paikka = Paikka(rivi);
  return SiirraJalkeen(rivi, paikka > 2 ? ValitutToimenpiteet.Item(paikka - 2).sKey : Tunniste());
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:SiirraYlos Method");
}

Tunniste clsToimenpiteidenJarjestelija::SiirraAlas(const Tunniste& rivi) try {
  if (!VoiSiirtaaAlas(rivi)) throw std::out_of_range("Valittu sKey oli listan viimeinen. Ei jälkimmäisiä.");
  return SiirraJalkeen(rivi, ValitutToimenpiteet.Item(Paikka(rivi) + 1).sKey);
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:SiirraAlas Method");
}

Tunniste clsToimenpiteidenJarjestelija::SiirraJalkeen(const Tunniste& avain, const Tunniste& edellinen) try {
  const Rivi& vanha = ValitutToimenpiteet.Item(avain);
  if (vanha.Tyyppi == Rivi::Yhteensa || edellinen == avain) return avain;
  const int entinen = Paikka(avain);
  Rivi& uusi = ValitutToimenpiteet.Add(Tunniste::Uusi(Rivi::kLuokka.NimiSana()), edellinen);
  uusi.ToimenpidesKey = vanha.ToimenpidesKey;
  uusi.Nimi = vanha.Nimi;
  uusi.Tyyppi = vanha.Tyyppi;
  if (vanha.Tyyppi == Rivi::Tariffi) {
    uusi.KustannusSaastoSahkoPatoTeho = vanha.KustannusSaastoSahkoPatoTeho;
    uusi.Takaisinmaksuaika = vanha.Takaisinmaksuaika;
    uusi.Investointi = vanha.Investointi;
  }
  ValitutToimenpiteet.Remove(avain);
  const int nykyinen = Paikka(uusi.sKey);
  Muuttui(std::min(entinen, nykyinen), std::max(entinen, nykyinen));
  return uusi.sKey;
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:SiirraJalkeen Method");
}

clsValittuToimenpide& clsToimenpiteidenJarjestelija::LisaaTariffirivi(const clsTariffiVertailuTapaus& tapaus,
                                                                      const clsTariffiVertailuTapaus& viite) try {
  const clsTariffit& tariffit = koti_.Rakennus().Tariffit;
  const double saasto = viite.KustannusYhteensa(tariffit) - tapaus.KustannusYhteensa(tariffit);
  Rivi& rivi = ValitutToimenpiteet.Add(Tunniste::Uusi(Rivi::kLuokka.NimiSana()), {});
  rivi.Tyyppi = Rivi::Tariffi;
  rivi.Nimi = Teksti(tekstit::kSahkotariffinVaihto) + " " + tapaus.Nimi;
  rivi.ToimenpidesKey = tapaus.sKey;
  rivi.Investointi = tapaus.Investointi;
  rivi.KustannusSaastoSahkoPatoTeho = saasto;
  if (saasto != 0) rivi.Takaisinmaksuaika = tapaus.Investointi / saasto;
  rivi.TiedotUpToDate = true;
  Muuttui(ValitutToimenpiteet.Count(), ValitutToimenpiteet.Count());
  return rivi;
} catch (...) {
  NostaVirhe("clsToimenpiteidenJarjestelija:LisaaTariffirivi Method");
}
