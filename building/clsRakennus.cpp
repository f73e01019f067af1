// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsRakennus.h"

#include "building/Tasehaarukka.h"
#include "building/Yhteiset.h"
#include "kernel/Luvut.h"
#include "kernel/Rekisteri.h"
#include "kernel/Tulos.h"
#include "kernel/Versio.h"
#include "kernel/Vertailu.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmLampoYhteenveto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsRakennus::Saa>("Saa"),
    Lapsi<&clsRakennus::SahkonKulutusryhmat>("SahkonKulutusryhmat"),
    Lapsi<&clsRakennus::VedenKulutusryhmat>("VedenKulutusryhmat"),
    Lapsi<&clsRakennus::ProjektiAsetukset>("ProjektiAsetukset"),
    Lapsi<&clsRakennus::KatselmoijienTiedot>("KatselmoijienTiedot"),
    Lapsi<&clsRakennus::Tariffit>("Tariffit"),
    Lapsi<&clsRakennus::Vesitariffit>("Vesitariffit"),
    Lapsi<&clsRakennus::Saastotoimenpiteet>("Saastotoimenpiteet"),
    Lapsi<&clsRakennus::SahkoTariffienVertailu>("SahkoTariffienVertailu"),
    Lapsi<&clsRakennus::ToimenpiteidenJarjestelija>("ToimenpiteidenJarjestelija"),
    Lapsi<&clsRakennus::Perustiedot>("Perustiedot"),
    Lapsi<&clsRakennus::Tilat>("Tilat"),
    Lapsi<&clsRakennus::IVKoneet>("IVKoneet"),
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
    Upotustulos<&clsRakennus::IVKoneet>(),
};

template <class F>
double TilojenSumma(const clsTilat& tilat, F&& arvo) {
  double summa = 0;
  for (clsTila& tila : tilat) summa += arvo(tila);
  return summa;
}

/// Loss of turning bought energy into the net demand, MWh, form by form.
double Konversiohaviot(const clsEnergianHankinta& hankinta, double verkko) {
  constexpr double kProsentti = 100;
  double haviot = 0;
  for (const clsEnergiamuoto& muoto : hankinta.Energiamuodot) {
    const double osuus = muoto.OsuusNettotarpeesta / kProsentti;
    const double hyotysuhde = muoto.Hyotysuhde / kProsentti;
    if (hyotysuhde != 0) haviot += (1 / hyotysuhde - 1) * (verkko * osuus);
  }
  return Aarellinen(haviot);
}

/// The value of a changed attribute as the kind that it was recorded under; nothing for an unknown code.
Variantti UusiArvo(const clsMuuttunutAttribuutti& muutos) {
  const double arvo = muutos.ArvoJalkeen;
  switch (static_cast<Laji>(muutos.TietoTyyppi)) {
    case Laji::Lyhyt:
      return static_cast<std::int16_t>(PyoristaKokonaisluvuksi(arvo));
    case Laji::Pitka:
      return PyoristaKokonaisluvuksi(arvo);
    case Laji::Yksinkertainen:
      return static_cast<float>(arvo);
    case Laji::Kaksinkertainen:
    case Laji::Paivays:
      return arvo;
    case Laji::Valuutta:
      return Rahamaara{arvo};
    case Laji::Teksti:
      return muutos.ArvoJalkeenStr;
    case Laji::Totuus:
      return arvo != 0;
    case Laji::Desimaali:
      return Desimaali{arvo};
    case Laji::Olio:
      break;
  }
  return {};
}

}  // namespace

const Luokka clsRakennus::kLuokka{"clsRakennus", kJasenet, kTulokset};

clsRakennus::clsRakennus() : Major(kVersioMajor), Minor(kVersioMinor), Revision(kVersioRevision) {
  TyyppiTiedot.AlustaTyyppitiedot("");
  Perustiedot.SaaTietoMuuttui.arvo = [this](int paikkakunta) { Saa.AsetaSaaPaikkakunta(paikkakunta); };
  Perustiedot.LaskeOletusarvotPerustietojenMukaan.arvo = [this] { LuoOletusmalli(); };
}

clsRakennus::~clsRakennus() {
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

Olio* clsRakennus::HaeInstanssi(std::string_view luokka, const Tunniste& instanssiId) {
  if (!rekisteriVoimassa_) PaivitaInstanssiIdLista();
  const InstanssiLista* lista = TyyppiTiedot.Nimet.Etsi(luokka);
  return lista ? lista->Item(instanssiId) : nullptr;
}

std::unique_ptr<clsRakennus> clsRakennus::Kopioi(clsRakennus* kohde) try {
  TyyppiTiedot.Nimet.TyhjennaIdListat();
  std::unique_ptr<clsRakennus> uusi;
  if (!kohde) {
    uusi = std::make_unique<clsRakennus>();
    kohde = uusi.get();
  }
  IVKoneet.Kopioi(kohde->IVKoneet);
  Saa.Kopioi(kohde->Saa);
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
  PaivitaInstanssiIdLista();
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
  for (const clsMuuttunutAttribuutti& muutos : muuttuneet) {
    Olio* olio = HaeInstanssi(muutos.clsTypeName, muutos.InstanssiId);
    const Variantti arvo = UusiArvo(muutos);
    if (olio && !std::holds_alternative<std::monostate>(arvo)) AsetaJasen(*olio, muutos.AttribuutinNimi, arvo);
  }
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
  return Konversiohaviot(Perustiedot.LammonHankinta,
                         VuotuinenIVjalkilammitysLampo() + VuotuinenLampoEnergianTarveTilat());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuisetLaiteSahkoKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Konversiohaviot(Perustiedot.SahkonHankinta, SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuisetSahkoLammonKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Konversiohaviot(Perustiedot.SahkonHankinta, SahkonKulutusryhmat.LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuisetSahkoKonversiohaviot() try {
  const Tasehaarukka haarukka(*this);
  return Konversiohaviot(Perustiedot.SahkonHankinta, SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus() +
                                                         SahkonKulutusryhmat.LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsTilat:VuotuisetSaatohaviot Method");
}

double clsRakennus::VuotuinenBruttoLampoEnergia() try {
  const Tasehaarukka haarukka(*this);
  return Aarellinen(VuotuinenLampoEnergianTarveTilat() + VuotuinenIVjalkilammitysLampo() + VuotuisetLKVHaviot() +
                    VuotuisetProsessiVesiHaviot() + MuuLampo + VuotuisetSaatohaviot() +
                    VuotuisetLammonKonversiohaviot() - SahkonKulutusryhmat.LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsRakennus:VuotuinenBruttoLampoEnergia Method");
}

double clsRakennus::VuotuinenBruttoSahkoEnergia() try {
  const Tasehaarukka haarukka(*this);
  return Aarellinen(VuotuisetSahkoKonversiohaviot() + SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus() +
                    SahkonKulutusryhmat.LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsRakennus:VuotuinenBruttoLampoEnergia Method");
}

double clsRakennus::VuotuinenBruttoLaiteSahkoEnergia() try {
  const Tasehaarukka haarukka(*this);
  return Aarellinen(VuotuisetLaiteSahkoKonversiohaviot() + SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus());
} catch (...) {
  NostaVirhe("clsRakennus:VuotuinenBruttoLampoEnergia Method");
}

double clsRakennus::ToteutunutNormitettuLampo() try {
  const double norm = Perustiedot.NormVuodenLammTarveLuku;
  const double vakio = Perustiedot.LammKulVakioOsuus.VuosiOsuus;
  const clsToteutunutKulutus vertailuvuosi = Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
  if (vakio > vertailuvuosi.Lampo)
    Ilmoita(Teksti(tekstit::kVakioOsuusAlku) + " " + Muotoile(vertailuvuosi.Lampo, "0") + " " +
            Teksti(tekstit::kVakioOsuusKeski) + " " + Muotoile(vakio, "0") + " " + Teksti(tekstit::kVakioOsuusLoppu));
  if (vertailuvuosi.LammTarveLuku <= 0) {
    NaytaVirhe(virheet::kVuodenLammitystarvelukuPuuttuu);
    return 0;
  }
  return Aarellinen((vertailuvuosi.Lampo - vakio) * norm / vertailuvuosi.LammTarveLuku + vakio);
} catch (...) {
  NostaVirhe("clsRakennus:ToteutunutNormitettuLampo Method");
}
