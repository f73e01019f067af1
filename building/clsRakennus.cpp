// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsRakennus.h"

#include "building/Tasehaarukka.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "kernel/Rekisteri.h"
#include "kernel/Tulos.h"
#include "kernel/Versio.h"
#include "kernel/Vertailu.h"
#include "kernel/Virhe.h"
#include "lifecycle/clsElinkaari.h"
#include "measures/Muunnelma.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/Yhteenvetoikkuna.h"
#include "results/clsRaporttiasetukset.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmLampoYhteenveto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

/// A part of the building.
template <auto Hae>
constexpr Jasen Osa(std::string_view nimi) {
  Jasen j{nimi, Laji::Olio, {}};
  j.olio = [](Olio& o) -> Olio* { return &Hae(static_cast<clsRakennus&>(o)); };
  return j;
}

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Saa; }>("Saa"),
    Osa<[](clsRakennus& r) -> Olio& { return r.SahkonKulutusryhmat; }>("SahkonKulutusryhmat"),
    Osa<[](clsRakennus& r) -> Olio& { return r.VedenKulutusryhmat; }>("VedenKulutusryhmat"),
    Osa<[](clsRakennus& r) -> Olio& { return r.ProjektiAsetukset; }>("ProjektiAsetukset"),
    Osa<[](clsRakennus& r) -> Olio& { return r.KatselmoijienTiedot; }>("KatselmoijienTiedot"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Tariffit; }>("Tariffit"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Vesitariffit; }>("Vesitariffit"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Saastotoimenpiteet; }>("Saastotoimenpiteet"),
    Osa<[](clsRakennus& r) -> Olio& { return r.SahkoTariffienVertailu; }>("SahkoTariffienVertailu"),
    Osa<[](clsRakennus& r) -> Olio& { return r.ToimenpiteidenJarjestelija; }>("ToimenpiteidenJarjestelija"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Perustiedot; }>("Perustiedot"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Tilat; }>("Tilat"),
    Osa<[](clsRakennus& r) -> Olio& { return r.IVKoneet; }>("IVKoneet"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Elinkaari; }>("Elinkaari"),
    Osa<[](clsRakennus& r) -> Olio& { return r.Raporttiasetukset; }>("Raporttiasetukset"),
    Arvo<&clsRakennus::Major>("Major"),
    Arvo<&clsRakennus::Minor>("Minor"),
    Arvo<&clsRakennus::Revision>("Revision"),
    Arvo<&clsRakennus::MuuLampo>("MuuLampo", Suure("MWh/a").Tavallisesti(0, 200000)),
    Arvo<&clsRakennus::Tallennettu>("Tallennettu"),
};

constexpr Tulos kTulokset[] = {
    Vuositulos<&clsRakennus::VuotuinenIVjalkilammitysLampo>("VuotuinenIVjalkilammitysLampo",
                                                            tekstit::kKoneidenJalkilammitys),
    Vuositulos<&clsRakennus::VuotuinenAurinkoKuorma>("VuotuinenAurinkoKuorma", tekstit::kTasetermit[6]),
    Vuositulos<&clsRakennus::VuotuisetLKVHaviot>("VuotuisetLKVHaviot", tekstit::kKayttovedenLammitys),
    Vuositulos<&clsRakennus::VuotuisetProsessiVesiHaviot>("VuotuisetProsessiVesiHaviot",
                                                          tekstit::kProsessivedenLammitys),
    Lukutulos<&clsRakennus::LaskeYleisSahkoKuorma>("LaskeYleisSahkoKuorma", tekstit::kYleisSahkokuorma, "kWh/m²,kk"),
    Vuositulos<&clsRakennus::VuotuinenLampoEnergianTarveTilat>("VuotuinenLampoEnergianTarveTilat",
                                                               tekstit::kTilojenLammitys),
    Vuositulos<&clsRakennus::VuotuisetLampoHaviot>("VuotuisetLampoHaviot", tekstit::kTasetermit[3]),
    Vuositulos<&clsRakennus::VuotuisetHyodynnetytLampoKuormat>("VuotuisetHyodynnetytLampoKuormat",
                                                               tekstit::kTasetermit[10]),
    Vuositulos<&clsRakennus::VuotuisetSaatohaviot>("VuotuisetSaatohaviot", tekstit::kSaatohaviot),
    Vuositulos<&clsRakennus::VuotuisetLammonKonversiohaviot>("VuotuisetLammonKonversiohaviot",
                                                             tekstit::kLammontuotannonHaviot),
    Vuositulos<&clsRakennus::VuotuisetSahkoKonversiohaviot>("VuotuisetSahkoKonversiohaviot",
                                                            tekstit::kSahkonHankinnanHaviot),
    Vuositulos<&clsRakennus::VuotuisetLaiteSahkoKonversiohaviot>("VuotuisetLaiteSahkoKonversiohaviot",
                                                                 tekstit::kLaitesahkonHankinnanHaviot),
    Vuositulos<&clsRakennus::VuotuisetSahkoLammonKonversiohaviot>("VuotuisetSahkoLammonKonversiohaviot",
                                                                  tekstit::kLammityssahkonHankinnanHaviot),
    Vuositulos<&clsRakennus::VuotuinenBruttoLampoEnergia>("VuotuinenBruttoLampoEnergia", tekstit::kOstettavaLampo),
    Vuositulos<&clsRakennus::VuotuinenBruttoSahkoEnergia>("VuotuinenBruttoSahkoEnergia", tekstit::kOstettavaSahko),
    Vuositulos<&clsRakennus::VuotuinenBruttoLaiteSahkoEnergia>("VuotuinenBruttoLaiteSahkoEnergia",
                                                               tekstit::kOstettavaLaitesahko),
    Vuositulos<&clsRakennus::ToteutunutNormitettuLampo>("ToteutunutNormitettuLampo", tekstit::kMitattuNormitettu),
    Kuukausitulos<&clsRakennus::LampoHaviotTilatKk>("LampoHaviotTilatKk", tekstit::kTasetermit[3]),
    Kuukausitulos<&clsRakennus::LampoEnergianTarveTilatKk>("LampoEnergianTarveTilatKk", tekstit::kTasetermit[11]),
    Kuukausitulos<&clsRakennus::AurinkoKuorma>("AurinkoKuorma", tekstit::kTasetermit[6]),
    Kuukausitulos<&clsRakennus::LampoHaviotIVKk>("LampoHaviotIVKk", tekstit::kIlmanvaihdonHaviot),
    Kuukausitulos<&clsRakennus::HyodynnetytLampoKuormatKk>("HyodynnetytLampoKuormatKk", tekstit::kTasetermit[10]),
    Kuukausitulos<&clsRakennus::LammonTuotonHaviotKk>("LammonTuotonHaviotKk", tekstit::kLammontuotannonHaviot),
    Kuukausitulos<&clsRakennus::LKVHaviotKk>("LKVHaviotKk", tekstit::kKayttovedenLammitys),
    Kuukausitulos<&clsRakennus::ProsessiVesiHaviotKk>("ProsessiVesiHaviotKk", tekstit::kProsessivedenLammitys),
    Upotustulos<[](clsRakennus& r) -> clsIVKoneet& { return r.IVKoneet; }>(),
};

template <class F>
double TilojenSumma(const clsTilat& tilat, F&& arvo) {
  double summa = 0;
  for (clsTila& tila : tilat) summa += arvo(tila);
  return summa;
}

}  // namespace

const Luokka clsRakennus::kLuokka{"clsRakennus", kJasenet, kTulokset};

struct clsRakennus::Osat {
  clsSaa saa;
  clsSahkonKulutusryhmat sahko;
  clsVedenKulutusryhmat vesi;
  clsProjektiAsetukset projekti;
  clsKatselmoijienTiedot katselmoijat;
  clsTariffit tariffit;
  clsVesitariffit vesitariffit;
  clsSaastotoimenpiteet toimenpiteet;
  clsSahkoTariffienVertailu vertailu;
  clsToimenpiteidenJarjestelija jarjestelija;
  clsPerustiedot perustiedot;
  clsTilat tilat;
  clsIVKoneet koneet;
  clsElinkaari elinkaari;
  clsRaporttiasetukset raportti;
};

clsRakennus::clsRakennus()
    : osat_(std::make_unique<Osat>()),
      Saa(osat_->saa),
      SahkonKulutusryhmat(osat_->sahko),
      VedenKulutusryhmat(osat_->vesi),
      ProjektiAsetukset(osat_->projekti),
      KatselmoijienTiedot(osat_->katselmoijat),
      Tariffit(osat_->tariffit),
      Vesitariffit(osat_->vesitariffit),
      Saastotoimenpiteet(osat_->toimenpiteet),
      SahkoTariffienVertailu(osat_->vertailu),
      ToimenpiteidenJarjestelija(osat_->jarjestelija),
      Perustiedot(osat_->perustiedot),
      Tilat(osat_->tilat),
      IVKoneet(osat_->koneet),
      Elinkaari(osat_->elinkaari),
      Raporttiasetukset(osat_->raportti),
      Major(kVersioMajor),
      Minor(kVersioMinor),
      Revision(kVersioRevision) {
  TyyppiTiedot.AlustaTyyppitiedot("");
  Tilat.Kotiudu(koti_);
  IVKoneet.Kotiudu(koti_);
  SahkonKulutusryhmat.Kotiudu(koti_);
  Saastotoimenpiteet.Kotiudu(koti_);
  ToimenpiteidenJarjestelija.Kotiudu(koti_);
  Elinkaari.Kotiudu(koti_);
  Perustiedot.Kotiudu(koti_);
  Tariffit.Kotiudu(koti_);
  Vesitariffit.Kotiudu(koti_);
  Perustiedot.SaaTietoMuuttui.arvo = [this](int paikkakunta) { Saa.AsetaSaaPaikkakunta(paikkakunta); };
  Perustiedot.LaskeOletusarvotPerustietojenMukaan.arvo = [this] { LuoOletusmalli(); };
}

clsRakennus::~clsRakennus() {
  koti_.Havia();
  if (GlobaaliRakennus() == this) AsetaGlobaaliRakennus(nullptr);
}

void clsRakennus::Delete() try {
  TyyppiTiedot.Nimet.TyhjennaIdListat();
  RekisteriVanheni();
  TyhjennaOsat();
  Tariffit.Tyhjenna();
  Vesitariffit.Tyhjenna();
} catch (...) {
  NostaVirhe("clsRakennus:Delete Method");
}

void clsRakennus::TyhjennaOsat() {
  IVKoneet.Tyhjenna();
  SahkonKulutusryhmat.Tyhjenna();
  Tilat.Tyhjenna();
  VedenKulutusryhmat.Tyhjenna();
  Saastotoimenpiteet.Tyhjenna();
  ToimenpiteidenJarjestelija.ValitutToimenpiteet.Tyhjenna();
}

void clsRakennus::PaivitaInstanssiIdLista() try {
  TyyppiTiedot.Nimet.TyhjennaIdListat();
  PaivitaIdLista(*this, TyyppiTiedot);
  rekisteriVoimassa_ = true;
} catch (...) {
  NostaVirhe("clsRakennus:PaivitaInstanssiIdLista Method");
}

Instanssi clsRakennus::HaeInstanssi(std::string_view luokka, const Tunniste& instanssiId) {
  if (!rekisteriVoimassa_) PaivitaInstanssiIdLista();
  const InstanssiLista* lista = TyyppiTiedot.Nimet.Etsi(luokka);
  return lista ? lista->Etsi(instanssiId) : Instanssi{};
}

std::unique_ptr<clsRakennus> clsRakennus::Kopioi(clsRakennus* kohde) try {
  std::unique_ptr<clsRakennus> uusi;
  if (!kohde) {
    uusi = std::make_unique<clsRakennus>();
    kohde = uusi.get();
  }
  IVKoneet.Kopioi(kohde->IVKoneet);
  Saa.Kopioi(kohde->Saa);
  Saa.KopioiTaulut(kohde->Saa);
  Perustiedot.Kopioi(kohde->Perustiedot);
  SahkonKulutusryhmat.Kopioi(kohde->SahkonKulutusryhmat);
  Tilat.Kopioi(kohde->Tilat);
  VedenKulutusryhmat.Kopioi(kohde->VedenKulutusryhmat);
  Tariffit.Kopioi(kohde->Tariffit);
  KatselmoijienTiedot.Kopioi(kohde->KatselmoijienTiedot);
  ProjektiAsetukset.Kopioi(kohde->ProjektiAsetukset);
  kohde->Tallennettu = Tallennettu;
  kohde->InstanssiId = InstanssiId;
  kohde->RekisteriVanheni();
  return uusi;
} catch (...) {
  NostaVirhe("clsRakennus:Kopioi Method");
}

void clsRakennus::VertaileAttribuutit(clsRakennus& vanha, MuutostenKeraaja& muuttuneet) try {
  VertaileOliot(*this, vanha, muuttuneet, TyyppiTiedot);
} catch (...) {
  NostaVirhe("clsRakennus:VertaileAttribuutit Method");
}

void clsRakennus::LiitaSaastoToimenpide(const clsMuuttuneetAttribuutit& muuttuneet) try {
  ++vaihe_;
  Muunnelma(*this, muuttuneet).Jata();
} catch (...) {
  NostaVirhe("clsRakennus:LiitaSaastoToimenpide Method");
}

double clsRakennus::VuotuinenIVjalkilammitysLampo() try {
  return IVKoneet.VuotuinenIVjalkilammitysLampo();
} catch (...) {
  NostaVirhe("clsRakennus:VuotuisetIVHaviot Method");
}

double clsRakennus::VuotuisetLKVHaviot() try {
  return VedenKulutusryhmat.VuotuinenLkvLammityksenEnergia();
} catch (...) {
  NostaVirhe("clsRakennus:VuotuisetLKVHaviotKk Method");
}

double clsRakennus::VuotuisetProsessiVesiHaviot() try {
  return VedenKulutusryhmat.VuotuinenProsessivedenLammityksenEnergia();
} catch (...) {
  NostaVirhe("clsRakennus:VuotuisetProsessiVesiHaviot Method");
}

double clsRakennus::LampoHaviotTilatKk(int kuukausi) try {
  const Tasehaarukka haarukka(*this);
  return TilojenSumma(Tilat, [kuukausi](clsTila& t) { return t.LampoHaviot(kuukausi); });
} catch (...) {
  NostaVirhe("clsRakennus:LampoHaviotTilatKk Method");
}

double clsRakennus::LampoEnergianTarveTilatKk(int kuukausi) try {
  const Tasehaarukka haarukka(*this);
  return TilojenSumma(Tilat, [kuukausi](clsTila& t) { return t.LampoEnergianTarve(kuukausi); });
} catch (...) {
  NostaVirhe("clsRakennus:LampoEnergianTarveKk Method");
}

double clsRakennus::AurinkoKuorma(int kuukausi) try {
  const Tasehaarukka haarukka(*this);
  return TilojenSumma(Tilat, [kuukausi](clsTila& t) { return t.AurinkoKuorma(kuukausi); });
} catch (...) {
  NostaVirhe("clsRakennus:AurinkoKuorma Method");
}

double clsRakennus::LaskeYleisSahkoKuorma() try {
  if (Perustiedot.BruttoAla > 0) return SahkonKulutusryhmat.TiloihinLiittymatonSahkoKuorma() / Perustiedot.BruttoAla;
  Ilmoita("Tänne ei pitäisi tulla ohjelmansuorituksessa. Kohteen bruttoala 0 tai pienempi. Ole hyvä ja korjaa.");
  return 0;
} catch (...) {
  NostaVirhe("clsRakennus:LaskeYleisSahkoKuorma Method");
}

double clsRakennus::VuotuinenLampoEnergianTarveTilat() try {
  const Tasehaarukka haarukka(*this);
  Tilat.PaivitaTilojenLampotaseenLahtotiedot();
  return Tilat.VuotuinenLampoEnergianTarve();
} catch (...) {
  NostaVirhe("clsRakennus:LampoEnergianTarveYht Method");
}

double clsRakennus::VuotuisetLampoHaviot() try {
  const Tasehaarukka haarukka(*this);
  return Tilat.VuotuisetLampoHaviot();
} catch (...) {
  NostaVirhe("clsRakennus:LampoHaviotYht Method");
}

double clsRakennus::VuotuisetHyodynnetytLampoKuormat() try {
  const Tasehaarukka haarukka(*this);
  return Tilat.VuotuisetHyodynnetytLampoKuormat();
} catch (...) {
  NostaVirhe("clsRakennus:HyodynnetytLampoKuormatYht Method");
}

double clsRakennus::VuotuisetSaatohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Tilat.VuotuisetSaatohaviot();
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

// The conversion losses and the gross energies each report under one literal of their family.

double clsRakennus::VuotuisetLammonKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Perustiedot.LammonHankinta.Energiamuodot.Konversiohaviot(VuotuinenIVjalkilammitysLampo() +
                                                                  VuotuinenLampoEnergianTarveTilat());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuisetLaiteSahkoKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Perustiedot.SahkonHankinta.Energiamuodot.Konversiohaviot(SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuisetSahkoLammonKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Perustiedot.SahkonHankinta.Energiamuodot.Konversiohaviot(SahkonKulutusryhmat.LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuisetSahkoKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Perustiedot.SahkonHankinta.Energiamuodot.Konversiohaviot(SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus() +
                                                                  SahkonKulutusryhmat.LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuinenBruttoLampoEnergia() try {
  const Tasehaarukka haarukka(*this);
  return BruttoLampoEnergia(Lammityssummat());
} catch (...) {
  NostaVirhe("clsRakennus:VuotuinenBruttoLampoEnergia Method");
}

double clsRakennus::VuotuinenBruttoSahkoEnergia() try {
  const Tasehaarukka haarukka(*this);
  Energiasummat summat = Lammityssummat();
  summat.puhaltimet = IVKoneet.VuotuinenPuhallinSahko();
  return BruttoSahkoEnergia(summat);
} catch (...) {
  NostaVirhe("clsRakennus:VuotuinenBruttoLampoEnergia Method");
}

/// All but that of the fans.
Energiasummat clsRakennus::Lammityssummat() {
  return {.tarve = VuotuinenLampoEnergianTarveTilat(),
          .saatohaviot = VuotuisetSaatohaviot(),
          .sahkotilat = Tilat.VuotuinenLammityssahko(),
          .jalkilammitys = VuotuinenIVjalkilammitysLampo(),
          .patterit = IVKoneet.VuotuinenPatteriSahko()};
}

double clsRakennus::BruttoLampoEnergia(const Energiasummat& s) const try {
  return Aarellinen(s.tarve + s.jalkilammitys + VedenKulutusryhmat.VuotuinenLkvLammityksenEnergia() +
                    VedenKulutusryhmat.VuotuinenProsessivedenLammityksenEnergia() + MuuLampo + s.saatohaviot +
                    Perustiedot.LammonHankinta.Energiamuodot.Konversiohaviot(LammonNettotarve(s)) -
                    SahkonKulutusryhmat.LammitysSahkonVuosikulutus(s.sahkotilat, s.patterit));
} catch (...) {
  NostaVirhe("clsRakennus:BruttoLampoEnergia Method");
}

double clsRakennus::SahkonNettotarve(const Energiasummat& s) const try {
  return SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus(s.puhaltimet) +
         SahkonKulutusryhmat.LammitysSahkonVuosikulutus(s.sahkotilat, s.patterit);
} catch (...) {
  NostaVirhe("clsRakennus:SahkonNettotarve Method");
}

double clsRakennus::BruttoSahkoEnergia(const Energiasummat& s) const try {
  return Aarellinen(Perustiedot.SahkonHankinta.Energiamuodot.Konversiohaviot(SahkonNettotarve(s)) +
                    SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus(s.puhaltimet) +
                    SahkonKulutusryhmat.LammitysSahkonVuosikulutus(s.sahkotilat, s.patterit));
} catch (...) {
  NostaVirhe("clsRakennus:BruttoSahkoEnergia Method");
}

double clsRakennus::VuotuinenBruttoLaiteSahkoEnergia() try {
  const Tasehaarukka haarukka(*this);
  return Aarellinen(VuotuisetLaiteSahkoKonversiohaviot() + SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus());
} catch (...) {
  NostaVirhe("clsRakennus:VuotuinenBruttoLampoEnergia Method");
}

double clsRakennus::ToteutunutNormitettuLampo() try {
  const double vakio = Perustiedot.LammKulVakioOsuus.VuosiOsuus;
  const clsToteutunutKulutus& vertailuvuosi = Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
  if (vakio > vertailuvuosi.Lampo)
    Ilmoita(Teksti(tekstit::kVakioOsuusAlku) + " " + Muotoile(vertailuvuosi.Lampo, "0") + " " +
            Teksti(tekstit::kVakioOsuusKeski) + " " + Muotoile(vakio, "0") + " " + Teksti(tekstit::kVakioOsuusLoppu));
  if (vertailuvuosi.LammTarveLuku <= 0) {
    NaytaVirhe(virheet::kVuodenLammitystarvelukuPuuttuu);
    return 0;
  }
  return Aarellinen(Perustiedot.NormitettuLampo(vertailuvuosi));
} catch (...) {
  NostaVirhe("clsRakennus:ToteutunutNormitettuLampo Method");
}
