// SPDX-License-Identifier: GPL-3.0-or-later
// The list of machines.
#include <array>
#include <optional>

#include "building/Kokoelmamuokkaus.h"
#include "building/LisaaKopio.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tekstit/lomakkeet_ilmanvaihto.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Virheilmoitus.h"
#include "ui/frmIVKoneYhteenveto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr const char* kEiLukua = "---";
constexpr int kTilasarake = 2;

/// A machine and its year, if that could be calculated.
struct Koneluvut {
  const clsIVKone& kone;
  std::optional<clsIVKone::Vuosiluvut> vuosi;
};

/// A number column of the list; no value when the figure couldn't be calculated.
struct Sarake {
  std::optional<double> (*arvo)(const Koneluvut&);
  const char* kuvio;
  bool summataan;
};

template <double clsIVKone::Vuosiluvut::*Luku>
std::optional<double> Vuodesta(const Koneluvut& k) {
  return k.vuosi ? std::optional((*k.vuosi).*Luku) : std::nullopt;
}

constexpr Sarake kSarakkeet[] = {
    {[](const Koneluvut& k) { return std::optional(k.kone.OnTulopuhallin() ? k.kone.TuloIlmavirta11Teho : 0); },
     "### ##0.000", true},
    {[](const Koneluvut& k) { return std::optional(k.kone.OnPoistopuhallin() ? k.kone.PoistoIlmavirta11Teho : 0); },
     "### ##0.000", true},
    {Vuodesta<&clsIVKone::Vuosiluvut::kayntiaika>, "### ##0", false},
    {Vuodesta<&clsIVKone::Vuosiluvut::jalkilammitys>, "### ##0.00", true},
    {Vuodesta<&clsIVKone::Vuosiluvut::talteenotto>, "### ##0.00", true},
    {Vuodesta<&clsIVKone::Vuosiluvut::puhaltimet>, "### ##0.00", true},
};

/// The list must open also over a machine that can't be calculated: it is where the fault is mended.
std::optional<clsIVKone::Vuosiluvut> LasketutLuvut(clsIVKone& kone) {
  try {
    return kone.VuodenLuvut();
  } catch (const Virhe& virhe) {
    KerroVirhe(virhe);
    return std::nullopt;
  }
}

std::string Luku(std::optional<double> arvo, const Sarake& sarake) {
  return arvo ? Muotoile(*arvo, sarake.kuvio) : kEiLukua;
}

/// Rows of the list and their sums; without one figure the sum isn't known either.
Luettelosisalto KoneidenRivit(const clsIVKoneet& koneet) {
  Luettelosisalto sisalto{{}, {Teksti(tekstit::kRakenteetYhteensa), "", ""}};
  std::array<std::optional<double>, std::size(kSarakkeet)> summat;
  summat.fill(0.0);
  for (clsIVKone& kone : koneet) {
    const clsTila* tila = VaadiRakennus().Tilat.Etsi(kone.LiittyyTilaansKey);
    const Koneluvut luvut{kone, LasketutLuvut(kone)};
    Luettelorivi rivi{{kone.KoneenTunnus, kone.IVPeriaate, tila ? tila->TilanNimi : Teksti(tekstit::kViiva)},
                      kone.sKey};
    if (!tila)
      rivi.piirteet = {
          .merkitys = Merkitys::Huomio, .merkitty = kTilasarake, .selite = Teksti(tekstit::kKoneellaEiTilaa)};
    for (std::size_t i = 0; i < summat.size(); ++i) {
      const auto arvo = kSarakkeet[i].arvo(luvut);
      if (arvo)
        rivi.LisaaLuku(*arvo, kSarakkeet[i].kuvio);
      else
        rivi.solut.emplace_back(kEiLukua);
      const auto naytetty = LueLuku(rivi.solut.back());  // so that the shown numbers add up
      summat[i] = naytetty && summat[i] ? std::optional(*summat[i] + *naytetty) : std::nullopt;
    }
    sisalto.rivit.push_back(std::move(rivi));
  }
  for (std::size_t i = 0; i < summat.size(); ++i)
    sisalto.summat.push_back(kSarakkeet[i].summataan ? Luku(summat[i], kSarakkeet[i]) : "");
  return sisalto;
}

/// The space by its name, which must be that of one space only.
Solutulos AsetaTila(Olio& kone, std::string_view nimi) {
  const clsTila* loytynyt = nullptr;
  int samoja = 0;
  for (const clsTila& tila : VaadiRakennus().Tilat)
    if (SamaNimi(tila.TilanNimi, nimi)) loytynyt = &tila, ++samoja;
  if (samoja != 1) return {.hylkays = Teksti(samoja ? tekstit::kMontaSamannimista : tekstit::kEiTilojenLuettelossa)};
  static_cast<clsIVKone&>(kone).LiittyyTilaansKey = loytynyt->sKey;
  return {};
}

// What pasted rows tell of machines.
const Liitossarake kLiitossarakkeet[] = {
    Jasensarake(tekstit::kSarakeKone, "KoneenTunnus", tekstit::kLiitettavaPuuttuu),
    Valintasarake(tekstit::kSarakePeriaate, "IVPeriaateID", "IVPeriaate", "frmIlmanvaihtokone", "cmbIVPeriaate"),
    {tekstit::kSarakeKoneenTila, AsetaTila},
    Jasensarake(tekstit::kSarakeTulo, "TuloIlmavirta11Teho"),
    Jasensarake(tekstit::kSarakePoisto, "PoistoIlmavirta11Teho"),
};

void ViimeisteleLiitetty(clsIVKone& kone) {
  kone.PoistaPeriaatteeseenKuulumattomat();
  kone.PaivitaOsienTiedot();
}

void AlustaKone(clsIVKone& kone) {
  clsKayntiAjat& ajat = kone.KayntiAikaYleistiedot;
  ajat.LuoJaksot(kone.SisaanpuhallusLampotila(), kone.IlmanLampeneminenPuhaltimessa);
  ajat.KayntiAikojenSyottoTapa = Valintalista("frmIlmanvaihtokoneenKayntiajat", "cmbKayntiAikojenSyottoTapa").at(0);
}

}  // namespace

void clsIVKoneet::NaytaKayttoliittyma() try {
  if (!kayttoLiittyma_.arvo) {
    kayttoLiittyma_.arvo = std::make_shared<frmIVKoneYhteenveto>();
    LiitaTapahtumat();
    tilaus_.arvo = VaadiRakennus().TilaaMuutokset([this] { ListaaKoneet(); });
  }
  LueDataluokka();
  kayttoLiittyma_.arvo->Nayta();
} catch (...) {
  NostaVirhe("clsIVKoneet:NaytaKayttoliittyma Method");
}

void clsIVKoneet::LiitaTapahtumat() {
  kayttoLiittyma_.arvo->luettelo.Aseta(
      Toimet(Kokoelmamuokkaus<clsIVKone>{.kokoelma = *this,
                                         .nimi = &clsIVKone::KoneenTunnus,
                                         .kopiointi = tekstit::kIlmanvaihtokoneenKopiointi,
                                         .poisto = tekstit::kIlmanvaihtokoneenPoisto,
                                         .kaytossa = tekstit::kKonettaEiVoiPoistaa,
                                         .muokkaa = [this](clsIVKone& kone) { return Muokkaa(kone); },
                                         .alusta = AlustaKone,
                                         .kopioitu = [](clsIVKone& kone) { kone.PaivitaOsienTiedot(); },
                                         .sarakkeet = kLiitossarakkeet,
                                         .liittaminen = tekstit::kKoneidenLiittaminen,
                                         .liitetty = ViimeisteleLiitetty},
             [this] { return KoneidenRivit(*this); }));
}

void clsIVKoneet::LueDataluokka() try {
  Odotus odotus;
  kayttoLiittyma_.arvo->luettelo.Nayta();
} catch (...) {
  NostaVirhe("clsIVKoneet:LueDataluokka Method");
}

void clsIVKoneet::ListaaKoneet() try {
  if (kayttoLiittyma_.arvo && kayttoLiittyma_.arvo->Auki()) LueDataluokka();
} catch (...) {
  NostaVirhe("clsIVKoneet:ListaaKoneet Method");
}

bool clsIVKoneet::Muokkaa(clsIVKone& kone) try {
  kone.LampoSahkoKulutusMuuttui.arvo = [this] { IVKone_LampoSahkoKulutusMuuttui(); };
  return kone.NaytaKayttoliittyma();
} catch (...) {
  NostaVirhe("clsIVKoneet:Muokkaa Method");
}

void clsIVKoneet::IVKone_LampoSahkoKulutusMuuttui() { VuotuinenIVjalkilammitysLampoUpToDate = false; }
