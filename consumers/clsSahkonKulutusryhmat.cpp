// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkonKulutusryhmat.h"

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Laskenta.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/rakennus.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

constexpr Tulos kTulokset[] = {
    Vuositulos<&clsSahkonKulutusryhmat::Vuosikulutus>("Vuosikulutus", tekstit::kSahkoKaikki),
    Vuositulos<[](const clsSahkonKulutusryhmat& r) { return r.SahkoLaitteidenVuosikulutus(); }>(
        "SahkoLaitteidenVuosikulutus", tekstit::kLaitteidenSahko),
    Vuositulos<&clsSahkonKulutusryhmat::VuotuinenPuhallinSahko>("VuotuinenPuhallinSahko", tekstit::kPuhaltimienSahko),
    Vuositulos<[](const clsSahkonKulutusryhmat& r) { return r.LammitysSahkonVuosikulutus(); }>(
        "LammitysSahkonVuosikulutus", tekstit::kLammityssahko),
    Lukutulos<&clsSahkonKulutusryhmat::TiloihinLiittymatonSahkoKuorma>("TiloihinLiittymatonSahkoKuorma",
                                                                       tekstit::kYleisSahkokuorma, "kWh/kk"),
    Kokoelmatulos<[](clsSahkonKulutusryhmat& r) -> clsSahkonKulutusryhmat& { return r; }>("Ryhmat"),
    Karttatulos<[](const clsSahkonKulutusryhmat& r, const Karttakasittelija& kasittele) {
      LueAjantasaisetRivit(r, &clsSahkoListaItem::Vuosikulutus, kasittele);
    }>("Puu", tekstit::kKulutusRiveittain, "MWh/a"),
};

constexpr double kkWhPerMWh = 1e3;

// Keys of the tree's own rows, and of the rows of electrically heated water.
const Tunniste kYhteensa = "sKeySahkoYhteensa", kMuuSahko = "sKeyMuuSahko", kLviSahko = "sKeyLVISahko",
               kValaistus = "sKeyValaistus";
const Tunniste kKayttovedenSahko = "sKeyLkvSahko", kProsessivedenSahko = "sKeyProsessivesiSahko";

const Kiintearivi kKiinteat[] = {{kYhteensa, Rivilaji::Juuri, tekstit::kSahkoYhteensa},
                                 {kMuuSahko, Rivilaji::Otsikko, tekstit::kMuuSahko},
                                 {kLviSahko, Rivilaji::Otsikko, tekstit::kLviSahko},
                                 {kValaistus, Rivilaji::Otsikko, tekstit::kSahkonValaistus}};

constexpr const char* kLaskentatapa = "Tarkennettu";

}  // namespace

const Luokka clsSahkonKulutusryhmat::kLuokka{"clsSahkonKulutusryhmat", kJasenet, kTulokset};

clsSahkoListaItem& clsSahkonKulutusryhmat::AddListaItem(const Tunniste& sKey, const Tunniste& Parent,
                                                        std::int16_t ItemTyyppi, std::string NimiTeksti,
                                                        double Vuosikulutus, bool loppuun) try {
  clsSahkoListaItem& rivi = LisaaRivi(sKey, Parent, ItemTyyppi, std::move(NimiTeksti), loppuun);
  rivi.Vuosikulutus = Vuosikulutus;
  return rivi;
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:AddListaItem Method");
}

std::span<const Kiintearivi> clsSahkonKulutusryhmat::Kiinteat() const { return kKiinteat; }

Tunniste clsSahkonKulutusryhmat::OrvonPaikka(const Tunniste&) const { return kLviSahko; }

std::vector<clsSahkonKulutusryhmat::Siirrettava> clsSahkonKulutusryhmat::Siirrettavat() const {
  std::vector<Siirrettava> rivit;
  clsRakennus* rakennus = koti_.Etsi();
  if (!rakennus) return rivit;
  for (clsTila& tila : rakennus->Tilat)
    if (tila.Sahkolammitys) rivit.push_back({tila.sKey, tila.TilanNimi, tila.VuotuinenLampoEnergianTarve()});
  for (const clsIVKone& kone : rakennus->IVKoneet) rivit.push_back({kone.sKey, kone.KoneenTunnus, kone.Sahko()});
  const clsVedenKulutusryhmat& vesi = rakennus->VedenKulutusryhmat;
  if (vesi.LKVTiedot.Sahkolammitys)
    rivit.push_back(
        {kKayttovedenSahko, Teksti(tekstit::kKayttovedenSahkolammitys), vesi.VuotuinenLkvSahkoLammityksenEnergia()});
  if (vesi.ProsessiVedenTiedot.Sahkolammitys)
    rivit.push_back({kProsessivedenSahko, Teksti(tekstit::kProsessivedenSahkolammitys),
                     vesi.VuotuinenProsessivedenSahkoLammityksenEnergia()});
  return rivit;
}

void clsSahkonKulutusryhmat::PaivitaKulutusRyhmatJaLaitteet() try {
  const std::vector<Siirrettava> siirrettavat = Siirrettavat();  // may fail: before anything changes
  PaivitaRyhmienRivit([](clsSahkoListaItem& rivi, const clsSahkonKulutusryhma& ryhma) {
    rivi.NimiTeksti = ryhma.KulutusRyhma;
    rivi.Laskentatapa = kLaskentatapa;
    rivi.Vuosikulutus = ryhma.Vuosikulutus();
  });
  VaihdaSiirretyt(siirrettavat, kLviSahko);
  RipustaJaSummaa({&clsSahkoListaItem::Vuosikulutus});
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:PaivitaKulutusRyhmatJaLaitteet Method");
}

Tunniste clsSahkonKulutusryhmat::ToimenpiteidenSolmu(const Tunniste& ryhma) const {
  Tunniste avain = ryhma;
  for (int i = 0; i < CountListaItems(); ++i) {  // a damaged file's circle ends too
    const clsSahkoListaItem* rivi = ListaItems().Etsi(avain);
    if (!rivi) break;
    if (Laji(*rivi) == Rivilaji::Otsikko) return avain;
    avain = rivi->Parent;
  }
  return kMuuSahko;
}

double clsSahkonKulutusryhmat::Vuosikulutus() const try {
  return Aarellinen(SahkoLaitteidenVuosikulutus() + LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:Vuosikulutus Method");
}

double clsSahkonKulutusryhmat::SahkoLaitteidenVuosikulutus(double puhaltimet) const try {
  double summa = 0;
  for (const clsSahkonKulutusryhma& ryhma : *this) summa += ryhma.Vuosikulutus();
  return Aarellinen(summa + puhaltimet);
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:SahkoLaitteidenVuosikulutus Method");
}

double clsSahkonKulutusryhmat::VuotuinenPuhallinSahko() const try {
  const clsRakennus* rakennus = koti_.Etsi();
  return rakennus ? rakennus->IVKoneet.VuotuinenPuhallinSahko() : 0;
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:VuotuinenPuhallinSahko Method");
}

double clsSahkonKulutusryhmat::LammitysSahkonVuosikulutus() const try {
  clsRakennus& rakennus = koti_.Rakennus();
  return LammitysSahkonVuosikulutus(rakennus.Tilat.VuotuinenLammityssahko(), rakennus.IVKoneet.VuotuinenPatteriSahko());
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:LammitysSahkonVuosikulutus Method");
}

double clsSahkonKulutusryhmat::LammitysSahkonVuosikulutus(double tilat, double patterit) const try {
  const clsVedenKulutusryhmat& vesi = koti_.Rakennus().VedenKulutusryhmat;
  return Aarellinen(tilat + patterit + vesi.VuotuinenLkvSahkoLammityksenEnergia() +
                    vesi.VuotuinenProsessivedenSahkoLammityksenEnergia());
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:LammitysSahkonVuosikulutus Method");
}

double clsSahkonKulutusryhmat::TilanSahkoKuorma(const Tunniste& sKey) const try {
  double summa = 0;
  for (const clsSahkonKulutusryhma& ryhma : *this)
    if (ryhma.LiittyyTilaansKey == sKey && ryhma.EnergiaHyodynnetaanLammityksessa)
      summa += ryhma.Vuosikulutus() * kkWhPerMWh;
  return Aarellinen(summa / kKuukausia);
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:TilanSahkoKuorma Method");
}
