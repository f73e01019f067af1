// SPDX-License-Identifier: GPL-3.0-or-later
// The list of saving measures.
#include <unordered_map>

#include "building/Muutosilmoitus.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelmalaskin.h"
#include "measures/Toimenpidepuu.h"
#include "measures/Toimenpidesarakkeet.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_toimenpideluettelo.h"
#include "tekstit/viestit.h"
#include "ui/Hiljaa.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/Virheilmoitus.h"
#include "ui/frmSaastoToimenpiteet.h"
#include "ui/frmSyotaToimenpiteenNimi.h"

/// The open window: each change is committed at once, and it follows what others commit.
class Toimenpideluettelo {
 public:
  Toimenpideluettelo(clsSaastotoimenpiteet& toimenpiteet, clsRakennus& rakennus)
      : toimenpiteet_(toimenpiteet), rakennus_(rakennus), laskin_(rakennus) {
    lomake_.TreeViewKlikattu = [this] { NaytaSolmunToimenpiteet(); };
    lomake_.SolmuaPainettu = [this] { Muokkaa(ValittuToimenpidesolmu()); };
    lomake_.SolmuPoistettava = [this] {
      if (!ValittuToimenpidesolmu().Tyhja()) lomake_.cmdPoista.Kohde().KayttajaPainaa();
    };
    lomake_.NakymatasonValintaCmbKlikattu = [this](int nakyma) {
      toimenpiteet_.TaulukonNakymaTyyppiID = nakyma;
      NaytaSarakkeet();
    };
    lomake_.RahatMuuttuivat = [this] { Nayta(); };
    lomake_.luettelo.Aseta({.sisalto = [this] { return Sisalto(); },
                            .nimi = [this](const Tunniste& avain) { return toimenpiteet_.Item(avain).Nimi; },
                            .lisaa = [this] { return Lisaa(); },
                            .muokkaa = [this](const Tunniste& avain) { Muokkaa(avain); },
                            .poista = [this](const Tunniste& avain) { Poista(avain); },
                            .valittu = [this] { NaytaOhje(); },
                            .lisayseste = [this] { return Lisayseste(); },
                            .poistonSeuraus = [this](const Tunniste& avain) { return PoistonSeuraus(avain); }});
    tilaus_ = rakennus_.TilaaMuutokset([this] { MuutosTuli(); });
  }
  Toimenpideluettelo(const Toimenpideluettelo&) = delete;
  Toimenpideluettelo& operator=(const Toimenpideluettelo&) = delete;

  void Avaa(int taso) {
    const bool avataan = !lomake_.Auki();
    Laske();
    NaytaPuu();
    if (taso >= 0 && static_cast<std::size_t>(taso) < toimenpiteet_.kTasot.size())
      lomake_.lvwKohdentaminen.Valitse(toimenpiteet_.kTasot[static_cast<std::size_t>(taso)]);
    else if (avataan)
      lomake_.lvwKohdentaminen.Indeksi(Luettelo::kEiRivia);
    NaytaToimenpiteet();
    lomake_.luettelo.Valitse({});
    lomake_.Nayta();
  }

 private:
  // What is shown.

  /// The window must open also over a building or a measure that can't be calculated: there it is mended.
  void Laske() try {
    const Odotus odotus;
    toimenpiteet_.PaivitaHierarkiaLista();
    toimenpiteet_.PaivitaEnnenTiedotToimenpiteisiin(laskin_);
  } catch (const Virhe& virhe) {
    KerroVirhe(virhe);
  }
  /// What can't be calculated is told at opening.
  void MuutosTuli() {
    if (!lomake_.Auki()) return;
    {
      const Hiljaisuus hiljaisuus;
      Laske();
    }
    Nayta();
  }
  void Nayta() {
    NaytaPuu();
    NaytaToimenpiteet();
  }
  void NaytaPuu() const { lomake_.lvwKohdentaminen.Tayta(Toimenpidepuu(toimenpiteet_, true)); }
  void NaytaSarakkeet() const {
    AsetaToimenpidesarakkeet(lomake_.lvwToimenpiteet, toimenpiteet_.TaulukonNakymaTyyppiID, true);
  }
  void NaytaToimenpiteet() {
    lomake_.cmbNakymatasonValinta.Indeksi(toimenpiteet_.TaulukonNakymaTyyppiID);
    lomake_.lblToimenpiteet.Otsikko(Teksti(tekstit::kToimenpiteetVerrattuna) + ". " + Asetukset().Verohuomautus());
    NaytaSarakkeet();
    lomake_.luettelo.Nayta();
  }
  /// Of a measure's own node the list shows the measures beside it, that one chosen.
  void NaytaSolmunToimenpiteet() {
    const Odotus odotus;
    lomake_.luettelo.Nayta();
    lomake_.luettelo.Valitse(ValittuToimenpidesolmu());
  }
  void NaytaOhje() const {
    lomake_.lblOhje.Otsikko(lomake_.lvwToimenpiteet.Rivit().empty() ? Teksti(tekstit::kEiToimenpiteita) : "");
  }

  Luettelosisalto Sisalto() const {
    std::unordered_map<Tunniste, const clsValittuToimenpide*> jarjestetyt;
    for (const clsValittuToimenpide& rivi : rakennus_.ToimenpiteidenJarjestelija.ValitutToimenpiteet)
      if (rivi.Tyyppi == clsValittuToimenpide::Toimenpide) jarjestetyt.emplace(rivi.ToimenpidesKey, &rivi);
    Luettelosisalto sisalto;
    for (clsSaastotoimenpide* toimenpide : toimenpiteet_.Toimenpiteet(Mallisolmu())) {
      const auto jarjestetty = jarjestetyt.find(toimenpide->sKey);
      sisalto.rivit.push_back(Rivi(*toimenpide, jarjestetty == jarjestetyt.end() ? nullptr : jarjestetty->second));
    }
    return sisalto;
  }
  static Luettelorivi Rivi(clsSaastotoimenpide& toimenpide, const clsValittuToimenpide* jarjestetty) {
    Luettelorivi nakyva;
    if (toimenpide.JalkeenTiedotUpToDate) {
      Toimenpiderivi rivi = ToimenpiteenRivi(toimenpide);
      rivi.netto = jarjestetty;
      nakyva = ToimenpiderivinSolut(rivi);
    } else {
      nakyva = LuvutonToimenpiderivi(toimenpide.Nimi);
      nakyva.piirteet.merkitys = Merkitys::Huomio;
      nakyva.piirteet.selite = Teksti(tekstit::kToimenpidettaEiVoiLaskea);
    }
    nakyva.avain = toimenpide.sKey;
    return nakyva;
  }

  // The tree.

  const clsSaastoToimenpideListaItem* ValittuSolmu() const {
    return toimenpiteet_.ListaItems().Etsi(lomake_.lvwKohdentaminen.Valittu());
  }
  /// Key of the chosen node when it is that of a measure, else empty.
  Tunniste ValittuToimenpidesolmu() const {
    const auto* solmu = ValittuSolmu();
    return solmu && solmu->ItemTyyppi == clsSaastoToimenpideListaItem::Toimenpidesolmu ? solmu->sKey : Tunniste();
  }
  /// Key of the chosen node; of a measure's that of the node which it hangs under. Empty when none is chosen.
  Tunniste Mallisolmu() const {
    const auto* solmu = ValittuSolmu();
    if (!solmu) return {};
    return solmu->ItemTyyppi == clsSaastoToimenpideListaItem::Toimenpidesolmu ? solmu->Parent : solmu->sKey;
  }

  // What the person does.

  std::string Lisayseste() const {
    const Tunniste solmu = Mallisolmu();
    return solmu.Tyhja() || !toimenpiteet_.VoiLisata(solmu) ? Teksti(tekstit::kValitseToimenpiteenKohde)
                                                            : std::string();
  }
  Tunniste Lisaa();
  void Muokkaa(const Tunniste& avain);
  bool Jarjestelijassa(const Tunniste& avain) const {
    const auto& solmut = toimenpiteet_.ListaItems();
    const clsSaastoToimenpideListaItem* solmu = solmut.Etsi(avain);
    return solmu && solmu->ValittuTaulukko2een;
  }
  std::string PoistonSeuraus(const Tunniste& avain) const {
    return Jarjestelijassa(avain) ? Teksti(tekstit::kPoistuuJarjestelijasta) : std::string();
  }
  void Poista(const Tunniste& avain);

  clsSaastotoimenpiteet& toimenpiteet_;
  clsRakennus& rakennus_;
  Muunnelmalaskin laskin_;
  frmSaastoToimenpiteet lomake_;
  Muutostilaus tilaus_;
};

Tunniste Toimenpideluettelo::Lisaa() {
  const Tunniste solmu = Mallisolmu();
  if (toimenpiteet_.Count() == 0)
    Ilmoita(Teksti(tekstit::kEnsimmainenToimenpide) + "\n\n" + Teksti(tekstit::kLukitusPaattyy),
            Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  const auto nimi = frmSyotaToimenpiteenNimi().Kysy(toimenpiteet_.NimiEhdotus(solmu));
  if (!nimi) return {};
  const Odotus odotus;
  const clsSaastotoimenpide* uusi = toimenpiteet_.Lisaa(solmu, *nimi);
  if (!uusi) return {};
  const Tunniste avain = uusi->sKey;
  rakennus_.ToimenpiteetMuuttuivat(Teksti(tekstit::kToimenpiteenLisays));
  lomake_.luettelo.Valitse(avain);
  Muokkaa(avain);
  return avain;
}

/// The measure's own dialog commits.
void Toimenpideluettelo::Muokkaa(const Tunniste& avain) {
  if (clsSaastotoimenpide* toimenpide = toimenpiteet_.Etsi(avain)) toimenpide->NaytaKayttoliittyma();
}

/// The measures arranged behind it have been computed with it.
void Toimenpideluettelo::Poista(const Tunniste& avain) {
  if (Jarjestelijassa(avain)) rakennus_.ToimenpiteidenJarjestelija.Vanhenna();
  toimenpiteet_.Poista(avain);
  rakennus_.ToimenpiteetMuuttuivat(Teksti(tekstit::kToimenpiteenPoisto));
}

void clsSaastotoimenpiteet::NaytaKayttoliittyma(int taso) try {
  if (!luettelo_.arvo) luettelo_.arvo = std::make_shared<Toimenpideluettelo>(*this, koti_.Rakennus());
  luettelo_.arvo->Avaa(taso);
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:NaytaKayttoliittyma Method");
}
