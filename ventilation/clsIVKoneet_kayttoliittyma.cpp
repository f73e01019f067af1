// SPDX-License-Identifier: GPL-3.0-or-later
// The list of machines.
#include <array>
#include <optional>

#include "building/LisaaKopio.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_ilmanvaihto.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmIVKoneYhteenveto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr const char* kEiLukua = "---";

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
     "### ##0.00#", true},
    {[](const Koneluvut& k) { return std::optional(k.kone.OnPoistopuhallin() ? k.kone.PoistoIlmavirta11Teho : 0); },
     "### ##0.00#", true},
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
    Ilmoita(kone.KoneenTunnus + ": " + virhe.Kuvaus() + "\n" + virhe.Lahde(), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
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
    std::vector<std::string> rivi{kone.KoneenTunnus, kone.IVPeriaate, tila ? tila->TilanNimi : Teksti(tekstit::kViiva)};
    for (std::size_t i = 0; i < summat.size(); ++i) {
      const auto arvo = kSarakkeet[i].arvo(luvut);
      summat[i] = arvo && summat[i] ? std::optional(*summat[i] + *arvo) : std::nullopt;
      rivi.push_back(Luku(arvo, kSarakkeet[i]));
    }
    sisalto.rivit.push_back({std::move(rivi), kone.sKey});
  }
  for (std::size_t i = 0; i < summat.size(); ++i)
    sisalto.summat.push_back(kSarakkeet[i].summataan ? Luku(summat[i], kSarakkeet[i]) : "");
  return sisalto;
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
  frmIVKoneYhteenveto& lomake = *kayttoLiittyma_.arvo;
  lomake.LisaaKlikattu = [this] { KayttoLiittyma_LisaaKlikattu(); };
  lomake.MuokkaaKlikattu = [this] { KayttoLiittyma_MuokkaaKlikattu(); };
  lomake.KopioiKlikattu = [this] { KayttoLiittyma_KopioiKlikattu(); };
  lomake.PoistaKlikattu = [this] { KayttoLiittyma_PoistaKlikattu(); };
}

void clsIVKoneet::LueDataluokka() try {
  Odotus odotus;
  kayttoLiittyma_.arvo->lvwKoneet.Tayta(KoneidenRivit(*this));
  PaivitaNapit();
} catch (...) {
  NostaVirhe("clsIVKoneet:LueDataluokka Method");
}

void clsIVKoneet::ListaaKoneet() try {
  if (kayttoLiittyma_.arvo && kayttoLiittyma_.arvo->Auki()) LueDataluokka();
} catch (...) {
  NostaVirhe("clsIVKoneet:ListaaKoneet Method");
}

void clsIVKoneet::PaivitaNapit() { kayttoLiittyma_.arvo->PaivitaNapit(VaadiRakennus().Saastotoimenpiteet.Count() > 0); }

clsIVKone& clsIVKoneet::ValittuKone() const { return Item(kayttoLiittyma_.arvo->lvwKoneet.Valittu()); }

bool clsIVKoneet::Muokkaa(clsIVKone& kone) try {
  kone.LampoSahkoKulutusMuuttui.arvo = [this] { IVKone_LampoSahkoKulutusMuuttui(); };
  return kone.NaytaKayttoliittyma();
} catch (...) {
  NostaVirhe("clsIVKoneet:Muokkaa Method");
}

void clsIVKoneet::IVKone_LampoSahkoKulutusMuuttui() { VuotuinenIVjalkilammitysLampoUpToDate = false; }

void clsIVKoneet::Valitse(const Tunniste& avain) {
  kayttoLiittyma_.arvo->lvwKoneet.Valitse(avain);
  PaivitaNapit();
}

/// After machines have come or gone.
void clsIVKoneet::LuetteloMuuttui(int toiminto, const Tunniste& valittava) {
  VaadiRakennus().Muuttui(Teksti(toiminto));
  Valitse(valittava);
}

void clsIVKoneet::KayttoLiittyma_LisaaKlikattu() try {
  const Tunniste avain = Tunniste::Uusi(clsIVKone::kLuokka.NimiSana());
  clsIVKone& kone = Add(avain);
  clsKayntiAjat& ajat = kone.KayntiAikaYleistiedot;
  ajat.LuoJaksot(kone.SisaanpuhallusLampotila(), kone.IlmanLampeneminenPuhaltimessa);
  ajat.KayntiAikojenSyottoTapa = Valintalista("frmIlmanvaihtokoneenKayntiajat", "cmbKayntiAikojenSyottoTapa").at(0);
  if (Muokkaa(kone)) return Valitse(avain);
  Remove(avain);
  VaadiRakennus().RekisteriVanheni();
} catch (...) {
  NostaVirhe("clsIVKoneet:KayttoLiittyma_LisaaKlikattu Method");
}

void clsIVKoneet::KayttoLiittyma_MuokkaaKlikattu() try { Muokkaa(ValittuKone()); } catch (...) {
  NostaVirhe("clsIVKoneet:KayttoLiittyma_MuokkaaKlikattu Method");
}

void clsIVKoneet::KayttoLiittyma_KopioiKlikattu() try {
  clsIVKone& kopio = LisaaKopio(*this, ValittuKone());
  kopio.KoneenTunnus = Teksti(tekstit::kKopio) + kopio.KoneenTunnus;
  kopio.PaivitaOsienTiedot();
  LuetteloMuuttui(tekstit::kIlmanvaihtokoneenKopiointi, kopio.sKey);
} catch (...) {
  NostaVirhe("clsIVKoneet:KayttoLiittyma_KopioiKlikattu Method");
}

void clsIVKoneet::KayttoLiittyma_PoistaKlikattu() try {
  clsIVKone& kone = ValittuKone();
  if (const std::string nimet = ViittaavatToimenpiteet(kone); !nimet.empty())
    return Ilmoita(Teksti(tekstit::kKonettaEiVoiPoistaa) + " " + nimet, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  if (!KysyPoisto()) return;
  Remove(Tunniste(kone.sKey));
  LuetteloMuuttui(tekstit::kIlmanvaihtokoneenPoisto, {});
} catch (...) {
  NostaVirhe("clsIVKoneet:KayttoLiittyma_PoistaKlikattu Method");
}
