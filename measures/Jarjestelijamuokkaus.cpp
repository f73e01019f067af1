// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Jarjestelijamuokkaus.h"

#include <algorithm>
#include <utility>

#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "lifecycle/Toimenpideinvestointi.h"
#include "lifecycle/clsElinkaari.h"
#include "measures/Riviperuste.h"
#include "measures/Toimenpidesarakkeet.h"
#include "measures/Vesiputous.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/Taulukkovienti.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_jarjestelija.h"
#include "tekstit/tulokset.h"
#include "tekstit/virheet.h"
#include "ui/Hiljaa.h"
#include "ui/Lomakekaannos.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Virheilmoitus.h"

namespace {

using Rivi = clsValittuToimenpide;

constexpr const char* kEiLukua = "---";
constexpr int kElinkaarinakyma = 4, kNakymia = 5;

}  // namespace

Jarjestelijamuokkaus::Jarjestelijamuokkaus(clsRakennus& rakennus)
    : rakennus_(rakennus), jarjestelija_(rakennus.ToimenpiteidenJarjestelija) {
  Kuuntele();
  tilaus_ = rakennus_.TilaaMuutokset([this] { MuutosTuli(); });
}

void Jarjestelijamuokkaus::Kuuntele() {
  lomake_.NakymatasonValintaCmbKlikattu = [this] {
    KirjoitaDataluokka();
    NaytaSarakkeet();
    Nayta();
  };
  lomake_.VaihtoehtoSuodatusCmbKlikattu = [this] {
    KirjoitaDataluokka();
    Nayta();
  };
  lomake_.TehtyToimenpideChekattu = [this](const Tunniste& toimenpide, bool valittu) {
    Muuta(valittu ? tekstit::kPakettiinValinta : tekstit::kPaketistaPoisto, [&] {
      jarjestelija_.Valitse(toimenpide, valittu);
      return lomake_.lvwValitut.Valittu();
    });
  };
  lomake_.ValittuToimenpideSiirtyiYlos = [this](const Tunniste& rivi) {
    Muuta(tekstit::kPaketinJarjestys, [&] { return jarjestelija_.SiirraYlos(rivi); });
  };
  lomake_.ValittuToimenpideSiirtyiAlas = [this](const Tunniste& rivi) {
    Muuta(tekstit::kPaketinJarjestys, [&] { return jarjestelija_.SiirraAlas(rivi); });
  };
  lomake_.SaaSiirtaa = [](const Tunniste&, const Tunniste& edellinen) { return !edellinen.Tyhja(); };
  lomake_.ValittuToimenpideSiirtyi = [this](const Tunniste& rivi, const Tunniste& edellinen) {
    Muuta(tekstit::kPaketinJarjestys, [&] { return jarjestelija_.SiirraJalkeen(rivi, edellinen); });
  };
  lomake_.PoistaValittuKlikattu = [this](const Tunniste& rivi) {
    Muuta(tekstit::kPaketistaPoisto, [&] {
      jarjestelija_.PoistaRivi(rivi);
      return rivi;
    });
  };
  lomake_.LaskeKlikattu = [this] {
    Laske();
    Nayta();
  };
  lomake_.Taulukko2eenKlikattu = [this] { VieTaulukko2een(); };
  lomake_.RiviVaihtui = [this] { PaivitaNapit(); };
  lomake_.SuureVaihtui = [this] { NaytaKuva(); };
  lomake_.RahatMuuttuivat = [this] {
    NaytaOtsikot();
    NaytaSarakkeet();
    if (lomake_.chkLaskeHeti.Valittu() || !jarjestelija_.Vanhentunut()) Laske();
    Nayta();
  };
  lomake_.OkKlikattu = [this] {
    KirjoitaDataluokka();
    lomake_.Sulje();
  };
  lomake_.PeruutaKlikattu = [this] { lomake_.Sulje(); };  // each action was committed
}

void Jarjestelijamuokkaus::Avaa() {
  rakennus_.Saastotoimenpiteet.PaivitaHierarkiaLista();
  if (!lomake_.Auki()) {
    lomake_.cmbVaihtoehtoSuodatus.Indeksi(0);
    lomake_.cmbNakymatasonValinta.Indeksi(std::clamp(jarjestelija_.TaulukonNakymaTyyppiID, 0, kNakymia - 1));
    KirjoitaDataluokka();
    NaytaOtsikot();
    NaytaSarakkeet();
  }
  Laske();
  Nayta();
  lomake_.Nayta();
}

/// How the lists are shown is stored, but is no change of the object.
void Jarjestelijamuokkaus::KirjoitaDataluokka() {
  jarjestelija_.NaytaToimenpiteetID = lomake_.cmbVaihtoehtoSuodatus.Indeksi();
  jarjestelija_.NaytaToimenpiteetStr = Haara().Teksti();
  jarjestelija_.TaulukonNakymaTyyppiID = lomake_.cmbNakymatasonValinta.Indeksi();
  jarjestelija_.TaulukonNakymaStr = lomake_.cmbNakymatasonValinta.Teksti();
  rakennus_.OtaKirjatuksi();
}

/// The node whose measures the upper list shows.
const Tunniste& Jarjestelijamuokkaus::Haara() const {
  return clsSaastotoimenpiteet::kTasot.at(static_cast<std::size_t>(lomake_.cmbVaihtoehtoSuodatus.Indeksi()));
}

/// The window must open also over a building that can't be calculated. False after an error, which it tells.
bool Jarjestelijamuokkaus::Yrita(const std::function<void()>& laske) {
  const Odotus odotus;
  try {
    laske();
    return true;
  } catch (const Virhe& virhe) {
    KerroVirhe(virhe);
    return false;
  }
}

void Jarjestelijamuokkaus::Laske() {
  jarjestelija_.ValitutToimenpiteet.LaskelmatUpToDate = false;
  laskettu_ = Yrita([this] { jarjestelija_.PaivitaValitutToimenpiteet(); });
}

void Jarjestelijamuokkaus::LaskeBruttosaastot() {
  laskettu_ = Yrita([this] { rakennus_.Saastotoimenpiteet.PaivitaEnnenTiedotToimenpiteisiin(); });
}

/// Makes a change, commits it and chooses the row of the key that it gives. After an error all is as it was.
void Jarjestelijamuokkaus::Muuta(Tekstinumero nimi, const std::function<Tunniste()>& muutos) {
  const auto rivit = jarjestelija_.Kopioi();
  const auto toimenpiteet = rakennus_.Saastotoimenpiteet.Kopioi();
  Tunniste valittava;
  omaMuutos_ = true;
  try {
    valittava = muutos();
    if (lomake_.chkLaskeHeti.Valittu()) Laske();
    rakennus_.ToimenpiteetMuuttuivat(Teksti(nimi));
  } catch (...) {
    omaMuutos_ = false;
    rivit->Kopioi(jarjestelija_);
    toimenpiteet->Kopioi(rakennus_.Saastotoimenpiteet);
    Nayta();
    throw;
  }
  omaMuutos_ = false;
  lomake_.lvwValitut.Valitse(valittava);
  PaivitaNapit();
}

/// What can't be computed was told at opening, or when the person pressed.
void Jarjestelijamuokkaus::MuutosTuli() {
  if (!lomake_.Auki()) return;
  if (!omaMuutos_) {
    const Hiljaisuus hiljaisuus;
    rakennus_.Saastotoimenpiteet.PaivitaHierarkiaLista();
    if (lomake_.chkLaskeHeti.Valittu() && jarjestelija_.Vanhentunut())
      Laske();
    else
      LaskeBruttosaastot();
  }
  Nayta();
}

void Jarjestelijamuokkaus::NaytaOtsikot() {
  const std::string alv = ". " + Asetukset().Verohuomautus();
  lomake_.lblBrutto.Otsikko(Teksti(tekstit::kBruttovaikutukset) + alv);
  lomake_.lblNetto.Otsikko(Teksti(tekstit::kNettovaikutukset) + alv);
}

void Jarjestelijamuokkaus::NaytaSarakkeet() {
  const int nakyma = lomake_.cmbNakymatasonValinta.Indeksi();
  for (const ListView& lista : {lomake_.lvwToimenpiteet, lomake_.lvwValitut}) AsetaToimenpidesarakkeet(lista, nakyma);
}

void Jarjestelijamuokkaus::Nayta() {
  lomake_.lvwToimenpiteet.Tayta(Toimenpiteet());
  lomake_.lvwValitut.Tayta(Valitut());
  lomake_.lblPaketti.Otsikko(Yhteenveto());
  NaytaKuva();
  PaivitaNapit();
}

Luettelosisalto Jarjestelijamuokkaus::Toimenpiteet() {
  const clsSaastotoimenpiteet& toimenpiteet = rakennus_.Saastotoimenpiteet;
  Luettelosisalto sisalto;
  for (clsSaastotoimenpide* toimenpide : toimenpiteet.Toimenpiteet(Haara())) {
    Luettelorivi& rivi = sisalto.rivit.emplace_back(Bruttorivi(*toimenpide));
    rivi.avain = toimenpide->sKey;
    rivi.piirteet.rasti = toimenpiteet.ListaItem(toimenpide->sKey).ValittuTaulukko2een;
  }
  return sisalto;
}

Luettelorivi Jarjestelijamuokkaus::Bruttorivi(clsSaastotoimenpide& toimenpide) const {
  if (!laskettu_) return LuvutonToimenpiderivi(toimenpide.Nimi);
  Toimenpiderivi rivi = ToimenpiteenRivi(toimenpide);
  rivi.elinkaari =
      Elinkaari([&] { return std::optional(ToimenpiteenInvestointi(toimenpide, Asetukset().NaytettavatAlvt())); });
  return ToimenpiderivinSolut(rivi);
}

/// Figures over the life for the view that shows them; none where the investment can't be told.
Elinkaariluvut Jarjestelijamuokkaus::Elinkaari(const std::function<std::optional<Investointi>()>& investointi) const {
  if (lomake_.cmbNakymatasonValinta.Indeksi() != kElinkaarinakyma) return {};
  return LaskeElinkaariluvut(LaskeHiljaa(investointi).value_or(std::nullopt), rakennus_.Elinkaari.Oletukset());
}

Luettelosisalto Jarjestelijamuokkaus::Valitut() {
  Luettelosisalto sisalto;
  for (const Rivi& rivi : jarjestelija_.ValitutToimenpiteet) sisalto.rivit.push_back(Nettorivi(rivi));
  return sisalto;
}

Luettelorivi Jarjestelijamuokkaus::Nettorivi(const Rivi& rivi) {
  Toimenpiderivi luvut = JarjestelijanRivi(rivi);
  luvut.elinkaari = Elinkaari([&] {
    const Alvprosentit alv = Asetukset().NaytettavatAlvt();
    return rivi.Tyyppi == Rivi::Yhteensa ? PaketinInvestointi(jarjestelija_, rakennus_.Saastotoimenpiteet, alv)
                                         : RivinInvestointi(rivi, rakennus_.Saastotoimenpiteet, alv);
  });
  Luettelorivi nakyva = ToimenpiderivinSolut(luvut);
  nakyva.avain = rivi.sKey;
  nakyva.piirteet.lihava = rivi.Tyyppi != Rivi::Toimenpide;
  nakyva.piirteet.siirrettava = rivi.Tyyppi != Rivi::Yhteensa;
  nakyva.piirteet.merkitys = rivi.TiedotUpToDate ? Merkitys::Tavallinen : Merkitys::Vanhentunut;
  nakyva.piirteet.selite = Riviperuste(rakennus_, rivi);
  if (rivi.TiedotUpToDate) return nakyva;
  if (!nakyva.piirteet.selite.empty()) nakyva.piirteet.selite += "\n\n";
  nakyva.piirteet.selite += Teksti(tekstit::kRiviVanhentunut);
  return nakyva;
}

/// What the package as a whole gives.
std::string Jarjestelijamuokkaus::Yhteenveto() const {
  const auto& paketti = jarjestelija_.LaskettuPaketti();
  if (!paketti) return {};
  const auto aika = jarjestelija_.PaketinTakaisinmaksuaika(Asetukset().NaytettavatAlvt());
  std::string teksti = Teksti(tekstit::kPaketinTakaisinmaksuaika) + ": " +
                       (aika ? Muotoile(*aika, "### ##0.0") + " a" : std::string(kEiLukua));
  if (!paketti->saasto) return teksti;
  teksti += "\n" + Teksti(tekstit::kPaketinPaastot) + ": " + Muotoile(paketti->saasto->paastot, "### ##0.0") + " t/a";
  return teksti + "\n" + Teksti(tekstit::kPaketinTariffisaasto) + ": " +
         Muotoile(NaytettyHinta(paketti->saasto->hinta), "### ##0") + " " +
         RahayksikonKanssa("mkTagi/a", Asetukset().strDefaultCurrencyUnit);
}

/// A stale picture stays, paler, until there are new figures.
void Jarjestelijamuokkaus::NaytaKuva() {
  const auto suure = static_cast<Vesiputoussuure>(lomake_.cmbSuure.Indeksi());
  const bool vanhentunut = !jarjestelija_.LaskettuPaketti() && jarjestelija_.ValitutToimenpiteet.Count() > 1;
  Kaaviotiedot kuva = Vesiputous(rakennus_, suure);
  if (vanhentunut) {
    if (lomake_.chtVesiputous.Kaavio().yksikko == kuva.yksikko) kuva = Kaaviotiedot(lomake_.chtVesiputous.Kaavio());
    kuva.otsikko = lomake_.cmbSuure.Teksti() + " – " + Teksti(tekstit::kVesiputousVanhentunut);
  }
  lomake_.chtVesiputous.Kaavio(std::move(kuva));
  lomake_.chtVesiputous.Kaytossa(!vanhentunut);
}

/// The report table holds euros of the present model, and as many rows as its template has.
void Jarjestelijamuokkaus::VieTaulukko2een() {
  constexpr int kEuro = 1, kRiveja = 28;
  if (Asetukset().ValuuttaTyyppi() != kEuro) return NaytaVirhe(virheet::kTaulukko2OnEuroina);
  if (jarjestelija_.ValitutToimenpiteet.Count() >= kRiveja) return NaytaVirhe(virheet::kTaulukko2OnTaynna);
  if (jarjestelija_.Vanhentunut()) {
    Laske();
    Nayta();
  }
  VieListaTaulukkoon(lomake_.lvwValitut, true, 1, 1, true);
}

void Jarjestelijamuokkaus::PaivitaNapit() {
  const Tunniste valittu = lomake_.lvwValitut.Valittu();
  const Rivi* rivi = jarjestelija_.ValitutToimenpiteet.Etsi(valittu);
  lomake_.cmdYlos.Kaytossa(jarjestelija_.VoiSiirtaaYlos(valittu));
  lomake_.cmdAlas.Kaytossa(jarjestelija_.VoiSiirtaaAlas(valittu));
  lomake_.cmdPoista.Kaytossa(rivi && rivi->Tyyppi != Rivi::Yhteensa);
  lomake_.cmdTaulukko2een.Kaytossa(lomake_.cmbNakymatasonValinta.Indeksi() == 2);
}
