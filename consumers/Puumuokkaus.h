// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "building/Luettelovaraus.h"
#include "building/Muutosilmoitus.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "consumers/Kulutusluettelo.h"
#include "consumers/Kulutuspuu.h"
#include "kernel/Virhe.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_kulutuspuut.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Hiljaa.h"
#include "ui/Liittaminen.h"
#include "ui/Odotus.h"
#include "ui/Puulomake.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/Virheilmoitus.h"
#include "ui/frmJakaumaGraafi.h"

/// What may be done where a row of a kind is chosen. A title can be added anywhere.
struct SallitutToimet {
  bool lisaa, kopioi, muokkaa, poista, jakauma;
};
constexpr SallitutToimet Sallitut(Rivilaji laji) {
  switch (laji) {
    case Rivilaji::Juuri:
      return {.lisaa = false, .kopioi = false, .muokkaa = false, .poista = false, .jakauma = true};
    case Rivilaji::Otsikko:
      return {.lisaa = true, .kopioi = false, .muokkaa = false, .poista = false, .jakauma = true};
    case Rivilaji::Kierto:
      return {.lisaa = false, .kopioi = false, .muokkaa = false, .poista = false, .jakauma = false};
    case Rivilaji::Nimike:
      return {.lisaa = true, .kopioi = false, .muokkaa = true, .poista = true, .jakauma = true};
    case Rivilaji::Siirretty:
      return {.lisaa = true, .kopioi = false, .muokkaa = false, .poista = false, .jakauma = false};
    case Rivilaji::Ryhma:
      return {.lisaa = true, .kopioi = true, .muokkaa = true, .poista = true, .jakauma = false};
  }
  return {};
}

/// How the person edits a tree of consumers in its list, which stays open: each change is committed at once, follows
/// what others commit, and Cancel takes back what was done here. Puu and form outlive it.
template <class Puu>
class Puumuokkaus {
 public:
  using Ryhma = typename Puu::Alkioluokka;
  using Rivi = typename Puu::Riviluokka;

  struct Toimet {
    std::function<void()> laske;                            ///< rows and figures up to date; may raise an error
    std::function<void(const Rivi&, Luettelorivi&)> luvut;  ///< adds the number cells of a row
    std::function<void(bool laskettu)> nayta;               ///< fills what stands beside the list
    std::span<const Liitossarake> sarakkeet;                ///< what pasted rows may tell
    std::function<void(Ryhma&)> alustaLiitettava;           ///< what a pasted row doesn't tell
    Tekstinumero muutTiedot{};                              ///< name of what isn't in the rows
    std::function<bool()> otaKentat = [] { return true; };  ///< takes the fields beside the list
    std::function<void()> hylkaaKentat = [] {};             ///< gives up what is written in them
  };

  Puumuokkaus(Puu& puu, Puulomake& lomake, Toimet toimet)
      : puu_(puu), lomake_(lomake), toimet_(std::move(toimet)), nimi_(lomake.Otsikko()) {
    lomake_.luettelo.Aseta(Luettelontoimet());
    lomake_.LuettelostaKlikattu = [this] { LisaaLuettelosta(); };
    lomake_.NimikeKlikattu = [this] { LisaaNimike(); };
    lomake_.OkKlikattu = [this] { Hyvaksy(); };
    lomake_.PeruutaKlikattu = [this] { Peruuta(); };
    lomake_.lvwRyhmat.KunHaaraAvataan([this] { OtaNayttotila(); });
    tilaus_ = VaadiRakennus().TilaaMuutokset([this] { MuutosTuli(); });
  }
  Puumuokkaus(const Puumuokkaus&) = delete;
  Puumuokkaus& operator=(const Puumuokkaus&) = delete;

  /// Opens the list, with what Cancel takes back, or brings it to front.
  void Avaa() {
    const bool avataan = !lomake_.Auki();
    Laske();
    if (avataan) varaus_.emplace(puu_);
    Nayta();
    if (avataan) Valitse({});
    lomake_.Nayta();
  }
  /// Fills the list anew and chooses the row, the first one for an empty key.
  void Lue(const Tunniste& valittava) {
    Laske();
    Nayta();
    Valitse(valittava);
  }
  /// Makes a change of this list and commits it under the name, if it says that there was one. After an error all is
  /// as it was.
  template <class F>
  bool Muuta(Tekstinumero nimi, F muutos) {
    const OmaMuutos oma(*this);
    const auto varalla = puu_.Kopioi();
    try {
      if (!muutos()) return false;
      VaadiRakennus().Muuttui(Teksti(nimi));
      return true;
    } catch (...) {
      varalla->Kopioi(puu_);
      VaadiRakennus().RekisteriVanheni();
      Nayta();
      throw;
    }
  }
  Tunniste Valittu() const { return lomake_.luettelo.Valittu(); }
  /// The chosen row, or nothing.
  const Rivi* ValittuRivi() const { return puu_.ListaItems().Etsi(Valittu()); }

  /// Shows how the rows divide a figure, named as in the tree.
  static void NaytaJakauma(const std::string& otsikko, const std::vector<Rivi*>& rivit, double Rivi::*suure,
                           const std::string& yksikko) {
    if (rivit.empty()) return;
    std::vector<std::string> nimet;
    std::vector<double> arvot;
    for (const Rivi* rivi : rivit) {
      nimet.push_back(rivi->NimiTeksti);
      arvot.push_back(rivi->*suure);
    }
    frmJakaumaGraafi().NaytaJakauma(otsikko + ", " + VaadiRakennus().Perustiedot.KohteenNimi, std::move(nimet),
                                    std::move(arvot), yksikko);
  }

 private:
  /// While it lives, what changes is of this list's making.
  class OmaMuutos {
   public:
    explicit OmaMuutos(Puumuokkaus& muokkaus) : muokkaus_(muokkaus) { ++muokkaus_.omia_; }
    ~OmaMuutos() {
      if (--muokkaus_.omia_ == 0 && muokkaus_.varaus_) muokkaus_.varaus_->OmaMuutos();
    }
    OmaMuutos(const OmaMuutos&) = delete;
    OmaMuutos& operator=(const OmaMuutos&) = delete;

   private:
    Puumuokkaus& muokkaus_;
  };

  Luettelotoimet Luettelontoimet() {
    return {.sisalto = [this] { return Sisalto(); },
            .nimi = [this](const Tunniste& avain) { return puu_.ListaItem(avain).NimiTeksti; },
            .lisaa = [this] { return Lisaa([](Ryhma&) { return true; }); },
            .muokkaa = [this](const Tunniste& avain) { Muokkaa(avain); },
            .kopioi = [this](const Tunniste& avain) { return Kopioi(avain); },
            .poista = [this](const Tunniste& avain) { Poista(avain); },
            .siirra = [this](const Tunniste& rivi, const Tunniste& kohde) { Siirra(rivi, kohde); },
            .saaSiirtaa = [this](const Tunniste& rivi, const Tunniste& kohde) { return puu_.VoiSiirtaa(rivi, kohde); },
            .liita = [this](const Taulukko& rivit) { return Liita(rivit); },
            .valittu = [this] { PaivitaNapit(); },
            .lukko = Muokkauslukko,
            .lisayseste = [this] { return Lisayseste(); },
            .poistoeste = [this](const Tunniste& avain) { return Poistoeste(avain); },
            .muokattavissa = [this](const Tunniste& avain) { return SallitutRivilla(avain).muokkaa; },
            .kopioitavissa = [this](const Tunniste& avain) { return SallitutRivilla(avain).kopioi; },
            .otaKentat = toimet_.otaKentat};
  }

  SallitutToimet SallitutRivilla(const Tunniste& avain) const {
    const Rivi* rivi = puu_.ListaItems().Etsi(avain);
    return rivi ? Sallitut(puu_.Laji(*rivi)) : SallitutToimet{};
  }
  std::string Lisayseste() const {
    return SallitutRivilla(Valittu()).lisaa ? std::string() : Teksti(tekstit::kValitseLisayspaikka);
  }
  std::string Poistoeste(const Tunniste& avain) const {
    if (!puu_.Lapset(avain).empty()) return Teksti(tekstit::kNimikkeellaRiveja);
    Ryhma* ryhma = puu_.Etsi(avain);
    const std::string nimet = ryhma ? ViittaavatToimenpiteet(*ryhma) : std::string();
    return nimet.empty() ? nimet : Viestiteksti(virheet::kRyhmaKaytossa) + " " + nimet;
  }
  void PaivitaNapit() const {
    const std::string lukko = Muokkauslukko();
    const std::string este = lukko.empty() ? Lisayseste() : lukko;
    lomake_.cmdLisaaUusiNimike.Kaytossa(lukko.empty());
    lomake_.cmdLisaaLuettelosta.Kaytossa(este.empty());
    if (!este.empty()) lomake_.cmdLisaaLuettelosta.Vihje(este);
    lomake_.cmdJakauma.Kaytossa(SallitutRivilla(Valittu()).jakauma);
  }

  /// The list must open also over a building that can't be calculated: the rows are shown then without figures.
  void Laske() {
    const Odotus odotus;
    try {
      toimet_.laske();
      laskettu_ = true;
    } catch (const Virhe& virhe) {
      KerroVirhe(virhe);
      laskettu_ = false;
    }
  }
  void Nayta() {
    toimet_.nayta(laskettu_);
    lomake_.luettelo.Nayta();
  }
  void Valitse(const Tunniste& avain) { lomake_.luettelo.Valitse(avain); }
  Luettelosisalto Sisalto() const {
    Luettelosisalto sisalto;
    sisalto.rivit.reserve(static_cast<std::size_t>(puu_.CountListaItems()));
    for (const Rivi& rivi : puu_.ListaItems()) {
      const Rivilaji laji = puu_.Laji(rivi);
      Luettelorivi& nakyva = sisalto.rivit.emplace_back(
          Luettelorivi{.solut = {rivi.NimiTeksti}, .avain = rivi.sKey, .ylempi = rivi.Parent});
      nakyva.piirteet.lihava = laji == Rivilaji::Juuri || laji == Rivilaji::Otsikko || laji == Rivilaji::Nimike;
      nakyva.piirteet.suljettu = rivi.Collapsed;
      nakyva.piirteet.siirrettava = laji == Rivilaji::Ryhma;
      if (laji == Rivilaji::Siirretty) nakyva.piirteet.selite = Teksti(tekstit::kRivinLukuMuualta);
      toimet_.luvut(rivi, nakyva);
      if (laskettu_) continue;
      nakyva.luvut.clear();
      std::fill(nakyva.solut.begin() + 1, nakyva.solut.end(), Puulomake::kEiLukua);
    }
    return sisalto;
  }

  void MuutosTuli() {
    if (!lomake_.Auki()) return;
    {
      const Hiljaisuus hiljaisuus;  // what can't be calculated is told at opening
      Laske();
    }
    if (omia_ == 0) varaus_->MuidenMuutos();
    OtaNayttotila();
    Nayta();
  }
  /// What is open and what is seen is saved with the rows.
  void OtaNayttotila() const {
    const Luettelo& lista = lomake_.lvwRyhmat.Kohde().Lista();
    for (Rivi& rivi : puu_.ListaItems()) {
      const int paikka = lista.Etsi(rivi.sKey);
      if (paikka < 0) continue;
      rivi.Collapsed = lista.Suljettu(paikka);
      rivi.Visible = lista.Nakyvissa(paikka);
    }
  }

  /// Adds a group at the chosen row and lets the person fill it, after `esitayta` has said that it shall be.
  template <class F>
  Tunniste Lisaa(F esitayta) try {
    return Tayta(puu_.LisaaRyhma(puu_.Lisayspaikka(Valittu())), esitayta);
  } catch (...) {
    NostaVirhe("Puumuokkaus:Lisaa Method");
  }
  /// The key of the new group that the person accepted, else empty. Its dialog commits.
  template <class F>
  Tunniste Tayta(Ryhma& uusi, F esitayta) {
    const OmaMuutos oma(*this);
    const Tunniste avain = uusi.sKey;
    const auto hylkaa = [&] {
      puu_.PoistaRivi(avain);
      VaadiRakennus().RekisteriVanheni();
    };
    try {
      if (esitayta(uusi) && uusi.NaytaKayttoliittyma()) {
        AvaaHaara(avain);
        return avain;
      }
    } catch (...) {
      hylkaa();
      throw;
    }
    hylkaa();
    return {};
  }
  /// A row that the person has just made or moved is seen.
  void AvaaHaara(const Tunniste& avain) {
    Ohjain& lista = lomake_.lvwRyhmat.Kohde();
    const int rivi = lista.Lista().Etsi(avain);
    for (int ylempi = rivi < 0 ? rivi : lista.Lista().Ylempi(rivi); ylempi >= 0; ylempi = lista.Lista().Ylempi(ylempi))
      if (lista.Lista().Suljettu(ylempi)) lista.KayttajaAvaa(ylempi, true);
  }
  void LisaaLuettelosta() {
    if (!toimet_.otaKentat()) return;
    const Tunniste avain = Lisaa([](Ryhma& uusi) { return PoimiLuettelosta(uusi); });
    if (!avain.Tyhja()) Valitse(avain);
  }
  Tunniste Kopioi(const Tunniste& avain) try {
    return Tayta(puu_.KopioiRyhma(puu_.Item(avain)), [](Ryhma&) { return true; });
  } catch (...) {
    NostaVirhe("Puumuokkaus:Kopioi Method");
  }
  void Muokkaa(const Tunniste& avain) try {
    const OmaMuutos oma(*this);
    if (Ryhma* ryhma = puu_.Etsi(avain))
      ryhma->NaytaKayttoliittyma();
    else
      NimeaNimike(puu_.ListaItem(avain));
  } catch (...) {
    NostaVirhe("Puumuokkaus:Muokkaa Method");
  }
  void Poista(const Tunniste& avain) try {
    Muuta(puu_.Etsi(avain) ? tekstit::kKulutusryhmanPoisto : tekstit::kNimikkeenPoisto, [&] {
      puu_.PoistaRivi(avain);
      return true;
    });
  } catch (...) {
    NostaVirhe("Puumuokkaus:Poista Method");
  }
  void Siirra(const Tunniste& rivi, const Tunniste& kohde) try {
    Muuta(tekstit::kKulutusryhmanSiirto, [&] {
      puu_.Siirra(rivi, kohde);
      return true;
    });
    AvaaHaara(rivi);
    Valitse(rivi);
  } catch (...) {
    NostaVirhe("Puumuokkaus:Siirra Method");
  }

  /// A name from the person, without blanks around it; empty when none was given.
  std::string KysyNimike(const std::string& nyt) const {
    std::string nimi = ViestitNyt().KysyTeksti(Teksti(tekstit::kAnnaNimike), nimi_, nyt).value_or("");
    nimi.erase(0, std::min(nimi.find_first_not_of(' '), nimi.size()));
    nimi.erase(nimi.find_last_not_of(' ') + 1);
    return nimi;
  }
  void LisaaNimike() {
    if (!toimet_.otaKentat()) return;
    const std::string nimi = KysyNimike(Teksti(tekstit::kUusiNimike));
    if (nimi.empty()) return;
    Tunniste avain;
    Muuta(tekstit::kNimikkeenLisays, [&] {
      avain = puu_.LisaaNimike(nimi).sKey;
      return true;
    });
    AvaaHaara(avain);
    Valitse(avain);
  }
  void NimeaNimike(Rivi& rivi) {
    const std::string nimi = KysyNimike(rivi.NimiTeksti);
    Muuta(tekstit::kNimikkeenNimi, [&] {
      if (nimi.empty() || nimi == rivi.NimiTeksti) return false;
      rivi.NimiTeksti = nimi;
      return true;
    });
  }

  /// Rows of a sheet come under the chosen row, in their order. The key of the last one; empty when there was none.
  Tunniste Liita(const Taulukko& rivit) try {
    const Tunniste vanhempi = puu_.Lisayspaikka(Valittu());
    if (vanhempi.Tyhja()) {
      Ilmoita(Teksti(tekstit::kValitseLisayspaikka), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
      return {};
    }
    std::vector<Tunniste> avaimet;
    Muuta(tekstit::kKulutusryhmienLiittaminen, [&] {
      avaimet = LiitaRivit(rivit, toimet_.sarakkeet,
                           {.luo = [&]() -> Alkio& {
                              Ryhma& uusi = puu_.LisaaRyhma(vanhempi, true);
                              toimet_.alustaLiitettava(uusi);
                              return uusi;
                            },
                            .poista = [&](const Tunniste& avain) { puu_.PoistaRivi(avain); }});
      VaadiRakennus().RekisteriVanheni();
      return !avaimet.empty();
    });
    if (avaimet.empty()) return {};
    AvaaHaara(avaimet.back());
    return avaimet.back();
  } catch (...) {
    NostaVirhe("Puumuokkaus:Liita Method");
  }

  /// All has been committed already, but for a field that hasn't been left.
  void Hyvaksy() {
    if (toimet_.otaKentat()) lomake_.Sulje();
  }
  void Peruuta() {
    if (!varaus_->Yhteiset().empty() && !PerutaankoMuidenkin()) return;
    toimet_.hylkaaKentat();
    toimet_.nayta(laskettu_);  // closing would take a field that is half written
    lomake_.Sulje();
    if (!varaus_->Muuttunut()) return;
    varaus_->Palauta();
    VaadiRakennus().Muuttui(nimi_ + ": " + Teksti(tekstit::kLuettelonPeruutus));
  }
  bool PerutaankoMuidenkin() const {
    std::vector<std::string> nimet;
    for (const Tunniste& avain : varaus_->Yhteiset()) nimet.push_back(NimiAvaimesta(avain));
    std::ranges::sort(nimet);
    std::string teksti = Teksti(tekstit::kMuutettuMuualla);
    for (const std::string& nimi : nimet) teksti += "\n" + nimi;
    return ViestitNyt().Nayta({teksti + "\n\n" + Teksti(tekstit::kPerutaankoMuidenkin), Teksti(tekstit::kHuomautus),
                               Vakavuus::Kysymys, Napit::KyllaEi, Vastaus::Ei}) == Vastaus::Kylla;
  }
  std::string NimiAvaimesta(const Tunniste& avain) const {
    for (const Puu* puu : std::initializer_list<const Puu*>{&puu_, &varaus_->Alussa()})
      if (const Rivi* rivi = puu->ListaItems().Etsi(avain)) return rivi->NimiTeksti;
    return Teksti(toimet_.muutTiedot);
  }

  Puu& puu_;
  Puulomake& lomake_;
  Toimet toimet_;
  std::string nimi_;  // of the list
  std::optional<Luettelovaraus<Puu>> varaus_;
  bool laskettu_ = false;
  int omia_ = 0;  // changes of the list's own that are under way, each inside the former
  Muutostilaus tilaus_;
};
