// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpiteet.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "building/clsPerustiedot.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelmalaskin.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/viestit.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Kopio<&clsSaastotoimenpiteet::TaulukonNakymaTyyppiID>("TaulukonNakymaTyyppiID"),
};

constexpr auto kMallinSolmu = clsSaastoToimenpideListaItem::Mallisolmu;
constexpr auto kToimenpidesolmu = clsSaastoToimenpideListaItem::Toimenpidesolmu;

const Tunniste kSahko = "sKeySahko", kVesi = "sKeyVesi", kProsessivesi = "sKeyProsessiVesi";
const Tunniste kTilat = "sKeyJohtuminen", kKoneet = "sKeyIlmanvaihtokoneet";

/// A node below which the objects of a collection stand.
struct Haara {
  Tunniste avain;
  Olio* (*kohde)(const clsRakennus&, const Tunniste& avain);
};

constexpr auto kTila = [](const clsRakennus& r, const Tunniste& avain) -> Olio* { return r.Tilat.Etsi(avain); };
constexpr auto kKone = [](const clsRakennus& r, const Tunniste& avain) -> Olio* { return r.IVKoneet.Etsi(avain); };
constexpr auto kSahkoryhma = [](const clsRakennus& r, const Tunniste& avain) -> Olio* {
  return r.SahkonKulutusryhmat.Etsi(avain);
};
constexpr auto kVesiryhma = [](const clsRakennus& r, const Tunniste& avain) -> Olio* {
  return r.VedenKulutusryhmat.Etsi(avain);
};

const std::array<Haara, 7> kHaarat{{{kTilat, kTila},
                                    {kKoneet, kKone},
                                    {"sKeyValaistus", kSahkoryhma},
                                    {"sKeyLVISahko", kSahkoryhma},
                                    {"sKeyMuuSahko", kSahkoryhma},
                                    {"sKeyNormaaliVesi", kVesiryhma},
                                    {kProsessivesi, kVesiryhma}}};

bool OnHaara(const Tunniste& avain) {
  return std::ranges::any_of(kHaarat, [&](const Haara& haara) { return haara.avain == avain; });
}

/// The live object that a measure at the node would concern, or nothing.
Olio* ElavaKohde(const clsRakennus& r, const clsSaastoToimenpideListaItem& solmu) {
  for (const Haara& haara : kHaarat)
    if (haara.avain == solmu.Parent) return haara.kohde(r, solmu.sKey);
  if (solmu.sKey == "sKeyEnergianJaVedenHankintaLampo") return &r.Perustiedot.LammonHankinta;
  if (solmu.sKey == "sKeyEnergianJaVedenHankintaSahko") return &r.Perustiedot.SahkonHankinta;
  if (solmu.sKey == "sKeyEnergianJaVedenHankintaVesi") return &r.Perustiedot.VedenHankinta;
  return nullptr;
}

/// The class of the group of its own that a measure at the node would have, or nothing.
const Luokka* KelluvanLuokka(const clsSaastoToimenpideListaItem& solmu) {
  if (solmu.sKey == kSahko || solmu.Parent == kSahko) return &clsSahkonKulutusryhma::kLuokka;
  if (solmu.sKey == kVesi || solmu.Parent == kVesi) return &clsVedenKulutusryhma::kLuokka;
  return nullptr;
}

/// A new water group has the temperatures of its kind and uses cold water.
void Alusta(clsVedenKulutusryhma& ryhma, const clsVedenKulutusryhmat& ryhmat, bool prosessivesi) {
  ryhma.KulutusRyhmaTyyppi = prosessivesi ? clsVedenKulutusryhma::Prosessivesi : clsVedenKulutusryhma::Kayttovesi;
  ryhmat.Tiedot(ryhma.KulutusRyhmaTyyppi).KopioiArvot(ryhma.VedenTiedot);
  ryhma.VedenKayttolampotila = ryhma.VedenTiedot.KylmanLampotila;
}

}  // namespace

const Luokka clsSaastotoimenpiteet::kLuokka{"clsSaastotoimenpiteet", kJasenet, Luokka::Osallistuu::EiRekisteriin};
const Tunniste clsSaastotoimenpiteet::kKokoKohde = "sKeyKokoKohde";
const std::array<Tunniste, 6> clsSaastotoimenpiteet::kTasot{
    "sKeyKokoKohde", "sKeyEnergianJaVedenHankinta", "sKeyJohtuminen", "sKeyIlmanvaihtokoneet", "sKeySahko", "sKeyVesi"};

void clsSaastotoimenpiteet::Kotiudu(const Koti& koti) {
  koti_.Muuta(koti);
  for (clsSaastotoimenpide& toimenpide : *this) toimenpide.Kotiudu(koti);
}

clsSaastoToimenpideListaItem& clsSaastotoimenpiteet::AddListaItem(const Tunniste& sKey, const Tunniste& Parent,
                                                                  std::string NimiTeksti, std::int32_t ItemTyyppi) try {
  return LisaaRivi(sKey, Parent, ItemTyyppi, std::move(NimiTeksti), true);
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:AddListaItem Method");
}

std::vector<Tunniste> clsSaastotoimenpiteet::LiittyykoToimenpidetta(const Tunniste& instanssiId) const {
  std::vector<Tunniste> avaimet;
  for (const clsSaastotoimenpide& toimenpide : *this)
    if (toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin == instanssiId) avaimet.push_back(toimenpide.sKey);
  return avaimet;
}

void clsSaastotoimenpiteet::PaivitaHierarkiaLista() try {
  const clsRakennus& rakennus = koti_.Rakennus();
  ListaItems().PoistaJos([](const clsSaastoToimenpideListaItem& solmu) {
    return solmu.ItemTyyppi == kMallinSolmu && OnHaara(solmu.Parent);
  });
  for (const clsTila& tila : rakennus.Tilat) LisaaMallinSolmu(tila.sKey, kTilat, tila.TilanNimi);
  for (const clsIVKone& kone : rakennus.IVKoneet) LisaaMallinSolmu(kone.sKey, kKoneet, kone.KoneenTunnus);
  const clsSahkonKulutusryhmat& sahko = rakennus.SahkonKulutusryhmat;
  for (const clsSahkonKulutusryhma& ryhma : sahko)
    LisaaMallinSolmu(ryhma.sKey, sahko.ToimenpiteidenSolmu(ryhma.sKey), ryhma.KulutusRyhma);
  for (const clsVedenKulutusryhma& ryhma : rakennus.VedenKulutusryhmat)
    LisaaMallinSolmu(ryhma.sKey, clsVedenKulutusryhmat::ToimenpiteidenSolmu(ryhma), ryhma.KulutusRyhma);
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:PaivitaHierarkiaLista Method");
}

void clsSaastotoimenpiteet::LisaaMallinSolmu(const Tunniste& sKey, const Tunniste& vanhempi, const std::string& nimi) {
  if (!sKey.Tyhja() && !Solmu(sKey)) LisaaRivi(sKey, vanhempi, kMallinSolmu, nimi, true);
}

std::vector<clsSaastotoimenpide*> clsSaastotoimenpiteet::Toimenpiteet(const Tunniste& solmu) const {
  std::unordered_map<Tunniste, bool> alla{{solmu, true}};  // whether a node lies below it
  const auto onAlla = [&](auto& itse, const Tunniste& avain) -> bool {
    if (const auto it = alla.find(avain); it != alla.end()) return it->second;
    alla[avain] = false;  // also ends a ring of parents
    const clsSaastoToimenpideListaItem* rivi = Solmu(avain);
    const bool on = rivi && !rivi->Parent.Tyhja() && itse(itse, rivi->Parent);
    return alla[avain] = on;
  };
  std::vector<clsSaastotoimenpide*> toimenpiteet;
  for (const clsSaastoToimenpideListaItem& rivi : ListaItems())
    if (rivi.ItemTyyppi == kToimenpidesolmu && onAlla(onAlla, rivi.Parent))
      if (clsSaastotoimenpide* toimenpide = Etsi(rivi.sKey)) toimenpiteet.push_back(toimenpide);
  return toimenpiteet;
}

bool clsSaastotoimenpiteet::VoiLisata(const Tunniste& solmu) {
  return !(solmu == kKokoKohde || solmu == "sKeyEnergianJaVedenHankinta" || OnHaara(solmu));
}

std::string clsSaastotoimenpiteet::NimiEhdotus(const Tunniste& solmu) const {
  const clsSaastoToimenpideListaItem& rivi = ListaItem(solmu);
  return rivi.NimiTeksti + ", " +
         Teksti(KelluvanLuokka(rivi) ? tekstit::kUusiToimenpiteenRyhma : tekstit::kToimenpiteessaMuutettu);
}

clsSaastotoimenpide* clsSaastotoimenpiteet::Lisaa(const Tunniste& solmu, std::string nimi) try {
  const clsRakennus& rakennus = koti_.Rakennus();
  const clsSaastoToimenpideListaItem* rivi = Solmu(solmu);
  const Olio* kohde = rivi ? ElavaKohde(rakennus, *rivi) : nullptr;
  const Luokka* kelluva = rivi && !kohde ? KelluvanLuokka(*rivi) : nullptr;
  if (!kohde && !kelluva) {
    Ilmoita("Tänne ei pitäisi tulla. Tälle erikoistapaukselle lisää vielä toteuttamatta");
    return nullptr;
  }
  const Hyodykkeet perusta = AjantasainenPerusta();
  clsSaastotoimenpide& uusi = Add(Tunniste::Uusi(clsSaastotoimenpide::kLuokka.NimiSana()));
  try {
    uusi.Nimi = nimi.empty() ? NimiEhdotus(solmu) : std::move(nimi);
    uusi.OtaHinnat();
    uusi.MuuttuneetAttribuutit.TyypinNimi = kohde ? kohde->LuokanNimi() : kelluva->Nimi();
    if (kohde) uusi.MuuttuneetAttribuutit.LiittyyInstanssiin = kohde->InstanssiId;
    if (kelluva == &clsVedenKulutusryhma::kLuokka)
      Alusta(static_cast<clsVedenKulutusryhma&>(*uusi.Ennen()), rakennus.VedenKulutusryhmat, solmu == kProsessivesi);
    uusi.Ennen();
    uusi.LampoEnergiaEnnen(perusta.lampo);
    uusi.SahkoEnergiaEnnen(perusta.sahko);
    uusi.VedenkulutusEnnen(perusta.vesi);
    uusi.EnnenTiedotUpToDate = true;
    uusi.KulutusJalkeen(perusta);
    LisaaRivi(uusi.sKey, solmu, kToimenpidesolmu, uusi.Nimi, true);
  } catch (...) {
    Remove(Count());
    throw;
  }
  return &uusi;
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:Lisaa Method");
}

void clsSaastotoimenpiteet::Poista(const Tunniste& toimenpide) try {
  koti_.Rakennus().ToimenpiteidenJarjestelija.PoistaToimenpiteenRivit(toimenpide);
  if (Solmu(toimenpide)) RemoveListaItem(toimenpide);
  Remove(toimenpide);
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:Poista Method");
}

Hyodykkeet clsSaastotoimenpiteet::AjantasainenPerusta() {
  return perusta_.arvo && perusta_.arvo->vaihe == koti_.Rakennus().Vaihe() ? perusta_.arvo->kulutus
                                                                           : PaivitaEnnenTiedotToimenpiteisiin();
}

Hyodykkeet clsSaastotoimenpiteet::PaivitaEnnenTiedotToimenpiteisiin() try {
  Muunnelmalaskin laskin(koti_.Rakennus());
  return PaivitaEnnenTiedotToimenpiteisiin(laskin);
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:PaivitaEnnenTiedotToimenpiteisiin Method");
}

Hyodykkeet clsSaastotoimenpiteet::PaivitaEnnenTiedotToimenpiteisiin(Muunnelmalaskin& laskin) try {
  const Odotus odotus(Teksti(tekstit::kLasketaanLahtotilannetta));
  bool vanhentuneita = Count() == 0;
  for (clsSaastotoimenpide& toimenpide : *this) {
    if (toimenpide.EnnenTiedotUpToDate) continue;
    toimenpide.JalkeenTiedotUpToDate = false;
    vanhentuneita = true;
  }
  Hyodykkeet perusta = laskin.Perusta();
  std::exception_ptr virhe;  // the first: the other measures are computed all the same
  if (!vanhentuneita) perusta.lampo = Item(1).LampoEnergiaEnnen();
  for (clsSaastotoimenpide& toimenpide : *this) {
    toimenpide.LampoEnergiaEnnen(perusta.lampo);
    toimenpide.SahkoEnergiaEnnen(perusta.sahko);
    toimenpide.VedenkulutusEnnen(perusta.vesi);
    toimenpide.EnnenTiedotUpToDate = true;
    if (toimenpide.JalkeenTiedotUpToDate) continue;
    try {
      toimenpide.PaivitaKulutukset(laskin);
    } catch (...) {
      if (!virhe) virhe = std::current_exception();
    }
  }
  if (virhe) std::rethrow_exception(virhe);
  perusta_.arvo = {perusta, laskin.Rakennus().Vaihe()};
  return perusta;
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:PaivitaEnnenTiedotToimenpiteisiin Method");
}
