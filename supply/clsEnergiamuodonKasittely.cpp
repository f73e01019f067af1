// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamuodonKasittely.h"

#include <algorithm>

#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet.h"
#include "tekstit/lomakkeet_hankinta.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Hakuvalinta.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

using Rivi = Energiamuotorivi;

constexpr const char* kLuku = "### ##0.######";
constexpr const char* kHyotysuhde = "0.0##";

const Sidontataulu kSidonnat{"frmEmuo3",
                             {
                                 Tekstikentta<&Rivi::Nimi>("txtNimi"),
                                 Tekstikentta<&Rivi::Kuvaus>("txtKuvaus"),
                                 Tekstikentta<&Rivi::Yksikko>("txtYksikko"),
                                 Lukukentta<&Rivi::Hyotysuhde>("txtHyotysuhde", kHyotysuhde),
                                 Lukukentta<&Rivi::OsuusNettotarpeesta>("txtOsuusNettotarpeesta", kLuku),
                                 Lukukentta<&Rivi::Vakiohäviöt>("txtVakiohaviot", kLuku),
                                 Lukukentta<&Rivi::YlempiLampoArvo>("txtYlempiLampoArvo", kLuku),
                                 Lukukentta<&Rivi::AlempiLampoArvo>("txtAlempiLampoArvo", kLuku),
                                 Lukukentta<&Rivi::Massa>("txtMassa", kLuku),
                                 Lukukentta<&Rivi::Kuivatiheys>("txtKuivatiheys", kLuku),
                                 Lukukentta<&Rivi::UusiutumatonEnergia>("txtUusiutumatonEnergia", kLuku),
                                 Lukukentta<&Rivi::UusiutuvaEnergia>("txtUusiutuvaEnergia", kLuku),
                                 Lukukentta<&Rivi::UusiutumattomatRaakaaineet>("txtUusiutumattomatRaakaaineet", kLuku),
                                 Lukukentta<&Rivi::UusiutuvatRaakaaineet>("txtUusiutuvatRaakaaineet", kLuku),
                                 Lukukentta<&Rivi::IlmastonLampeneminenCO2ekv>("txtIlmastonLampeneminenCO2ekv", kLuku),
                                 Lukukentta<&Rivi::VarastoitunutCO2>("txtVarastoitunutCO2", kLuku),
                                 Lukukentta<&Rivi::HappamoituminenSOxekv>("txtHappamoituminenSOxekv", kLuku),
                                 Lukukentta<&Rivi::OksidanttienMuodostus>("txtOksidanttienMuodostus", kLuku),
                             }};

Tunniste Avain(std::int32_t id) { return std::to_string(id); }

Luettelorivi Luettelonrivi(const Rivi& rivi) {
  Luettelorivi naytettava{{rivi.Nimi}, Avain(rivi.Id)};
  naytettava.LisaaLuku(rivi.IlmastonLampeneminenCO2ekv, "### ##0.00");
  naytettava.piirteet.selite = rivi.Kuvaus;
  return naytettava;
}

}  // namespace

clsEnergiamuodonKasittely::clsEnergiamuodonKasittely() {
  lomake_.luettelo.Aseta({.sisalto = [this] { return Rivit(); },
                          .nimi = [this](const Tunniste&) { return Valittu()->Nimi; },
                          .lisaa = [this] { return Lisaa(); },
                          .kopioi = [this](const Tunniste&) { return Kopioi(Rivi(*Valittu())); },
                          .poista =
                              [this](const Tunniste&) {
                                kanta_->Poista(Valittu()->Id);
                                LueRivit(0);
                              },
                          .paina = [this](const Tunniste&) { Hyvaksy(); },
                          .valittu = [this] { NaytaValittu(); },
                          .lisayseste =
                              [this] {
                                if (Muokattavissa()) return std::string();
                                return Teksti(kanta_ ? tekstit::kVakiokantaaEiMuokata
                                                     : tekstit::kPolttoainekantaLukematta);
                              },
                          .muokattavissa = [this](const Tunniste&) { return Muokattavissa(); },
                          .otaKentat = [this] { return OtaKentat(); }});
  lomake_.KantaVaihtui = [this] { KantaVaihtui(); };
  lomake_.HakuMuuttui = [this] { HakuMuuttui(); };
  lomake_.KenttaMuuttui = [this] { PaivitaTallennus(); };
  lomake_.TallennaKlikattu = [this] { Tallenna(); };
  lomake_.OkKlikattu = [this] { Hyvaksy(); };
  lomake_.PeruutaKlikattu = [this] {
    if (OtaKentat()) lomake_.Sulje();
  };
}

void clsEnergiamuodonKasittely::Selaa(bool lammitys) try { Nayta(lammitys, Kanta::Vakio, 0, false); } catch (...) {
  NostaVirhe("clsEnergiamuodonKasittely:Selaa Method");
}

std::optional<clsEnergiamuodonKasittely::Rivivalinta> clsEnergiamuodonKasittely::Poimi(bool lammitys, Kanta kanta,
                                                                                       std::int32_t id) try {
  Nayta(lammitys, kanta, id, true);
  return poimittu_;
} catch (...) {
  NostaVirhe("clsEnergiamuodonKasittely:Poimi Method");
}

void clsEnergiamuodonKasittely::Nayta(bool lammitys, Kanta kanta, std::int32_t id, bool poiminta) {
  poiminta_ = poiminta;
  lomake_.cmdOk.Nakyva(poiminta);
  if (!poiminta) lomake_.cmdPeruuta.Otsikko(Teksti(tekstit::kSulje));
  lomake_.cmbKanta.Indeksi(static_cast<int>(kanta));
  lomake_.cmbJoukko.Indeksi(lammitys ? 0 : 1);
  AvaaKanta(id);
  lomake_.txtHaku.Kohdista();
  lomake_.NaytaModaalisena();
}

void clsEnergiamuodonKasittely::AvaaKanta(std::int32_t id) {
  naytetty_ = {static_cast<Kanta>(lomake_.cmbKanta.Indeksi()), lomake_.cmbJoukko.Indeksi() == 0};
  lomake_.Otsikko(lomake_.cmbJoukko.Teksti());
  kanta_.reset();
  rivit_.clear();
  try {
    kanta_.emplace(naytetty_.kanta);
    rivit_ = kanta_->Rivit(Lammitys());
  } catch (const std::exception& virhe) {
    kanta_.reset();
    const std::string& polku =
        naytetty_.kanta == Kanta::Vakio ? Asetukset().VakioPolttoainekanta : Asetukset().KayttajanPolttoainekanta;
    Ilmoita({.teksti = Teksti(tekstit::kPolttoainekantaLukematta) + "\n\n" + polku,
             .otsikko = Teksti(tekstit::kVirhe),
             .vakavuus = Vakavuus::Virhe,
             .tarkenne = virhe.what()});
  }
  lomake_.luettelo.Nayta();
  lomake_.luettelo.Valitse(Avain(id));
}

void clsEnergiamuodonKasittely::LueRivit(std::int32_t id) {
  rivit_ = kanta_->Rivit(Lammitys());
  lomake_.luettelo.Nayta();
  if (id != 0) lomake_.luettelo.Valitse(Avain(id));
}

/// The rows that fit the search, the best first.
Luettelosisalto clsEnergiamuodonKasittely::Rivit() const {
  Taulukko haettavat;
  for (const Rivi& rivi : rivit_) haettavat.push_back({rivi.Nimi, rivi.Kuvaus});
  Luettelosisalto sisalto;
  for (const int osuma : EtsiValinnat(haettavat, lomake_.txtHaku.Teksti()))
    sisalto.rivit.push_back(Luettelonrivi(rivit_[static_cast<std::size_t>(osuma)]));
  return sisalto;
}

const Energiamuotorivi* clsEnergiamuodonKasittely::Valittu() const {
  const auto it =
      std::ranges::find(rivit_, lomake_.lvwEnergiamuodot.Valittu(), [](const Rivi& r) { return Avain(r.Id); });
  return it == rivit_.end() ? nullptr : &*it;
}

void clsEnergiamuodonKasittely::NaytaValittu() {
  const Rivi* rivi = Valittu();
  if (rivi)
    NaytaKentissa(*rivi);
  else
    lomake_.TyhjennaKentat();
  lomake_.LukitseKentat(!rivi || !Muokattavissa());
  lomake_.cmdOk.Kaytossa(rivi);
  PaivitaTallennus();
}

void clsEnergiamuodonKasittely::NaytaKentissa(const Rivi& rivi) {
  muokattava_ = rivi;
  lomake_.TyhjennaKentat();
  kSidonnat.Lue(lomake_, muokattava_);
  PaivitaTallennus();
}

void clsEnergiamuodonKasittely::PaivitaTallennus() const {
  lomake_.cmdUpdate.Kaytossa(Muokattavissa() && kSidonnat.Muuttunut(lomake_));
}

void clsEnergiamuodonKasittely::KantaVaihtui() {
  if (OtaKentat()) return AvaaKanta(0);
  lomake_.cmbKanta.Indeksi(static_cast<int>(naytetty_.kanta));
  lomake_.cmbJoukko.Indeksi(naytetty_.lammitys ? 0 : 1);
}

void clsEnergiamuodonKasittely::HakuMuuttui() {
  if (OtaKentat()) lomake_.luettelo.Nayta();
}

bool clsEnergiamuodonKasittely::OtaKentat() {
  if (!Muokattavissa() || !kSidonnat.Muuttunut(lomake_)) return true;
  const Viesti kysymys{Teksti(tekstit::kTallennetaankoMuotoKantaan) + " " + muokattava_.Nimi,
                       Teksti(tekstit::kHuomautus), Vakavuus::Kysymys, Napit::TallennaHylkaaPeruuta, Vastaus::Kylla};
  switch (ViestitNyt().Nayta(kysymys)) {
    case Vastaus::Kylla:
      return Tallenna();
    case Vastaus::Ei:
      NaytaKentissa(Rivi(muokattava_));
      return true;
    default:
      return false;
  }
}

/// The fields to the database. False, after telling why, when they couldn't be written.
bool clsEnergiamuodonKasittely::Tallenna() {
  if (!TarkistaLukukentat(lomake_)) return false;
  Rivi uusi = muokattava_;
  kSidonnat.Kirjoita(lomake_, uusi);
  if (!kanta_->Tallenna(uusi)) {
    Ilmoita(Teksti(tekstit::kMuotoPoistettuKannasta) + " " + uusi.Nimi, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    return false;
  }
  *std::ranges::find(rivit_, uusi.Id, &Rivi::Id) = uusi;
  const ListView& lista = lomake_.lvwEnergiamuodot;
  if (const int paikka = lista.Kohde().Lista().Etsi(Avain(uusi.Id)); paikka >= 0)
    lista.Vaihda(paikka, Luettelonrivi(uusi));
  NaytaKentissa(uusi);
  return true;
}

Tunniste clsEnergiamuodonKasittely::Lisaa() {
  const Rivi uusi = kanta_->Lisaa(Lammitys());
  lomake_.txtHaku.Teksti("");
  LueRivit(uusi.Id);
  lomake_.txtNimi.Kohdista();
  lomake_.txtNimi.ValitseTeksti();
  return Avain(uusi.Id);
}

/// Copies go to the user's own database, which is shown then.
Tunniste clsEnergiamuodonKasittely::Kopioi(const Rivi& lahde) {
  Energiamuotokanta oma(Kanta::Kayttajan);
  Rivi kopio = lahde;
  kopio.Id = oma.Lisaa(Lammitys()).Id;
  kopio.Nimi = Teksti(tekstit::kKopio) + lahde.Nimi;
  oma.Tallenna(kopio);
  lomake_.txtHaku.Teksti("");
  lomake_.cmbKanta.Indeksi(static_cast<int>(Kanta::Kayttajan));
  AvaaKanta(kopio.Id);
  lomake_.txtNimi.Kohdista();
  return Avain(kopio.Id);
}

void clsEnergiamuodonKasittely::Hyvaksy() {
  if (!poiminta_ || !OtaKentat() || !Valittu()) return;
  poimittu_ = {naytetty_.kanta, *Valittu()};
  lomake_.Sulje();
}
