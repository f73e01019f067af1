// SPDX-License-Identifier: GPL-3.0-or-later
// The summaries, and the first model of a new building.
#include "building/Kuukausitase.h"
#include "building/Oletusmalli.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "checks/Tarkistusrajat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "library/Rakennetyyppi.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/Lampoyhteenveto.h"
#include "results/Yhteenvetoikkuna.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Hiljaa.h"
#include "ui/Laskentakohde.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmLampoYhteenveto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

/// "The part, and the rest": how the panel tells that the generation goes on.
class Vaiheet {
 public:
  Vaiheet()
      : odotus_(Teksti(tekstit::kLuodaanKohteenOletustietoja)),
        teksti_(Teksti(tekstit::kLuodaanKohteenOletustietoja)) {}
  void Seuraava() { odotus_.Teksti(teksti_ += "."); }
  void Valmis() { odotus_.Teksti(Teksti(tekstit::kOletustiedotLuotu)); }

 private:
  Odotus odotus_;
  std::string teksti_;
};

}  // namespace

void clsRakennus::PoistaVoimasta() {
  RekisteriVanheni();
  for (clsSaastotoimenpide& toimenpide : Saastotoimenpiteet) toimenpide.EnnenTiedotUpToDate = false;
  ToimenpiteidenJarjestelija.Vanhenna();
  Tilat.VuotuinenLampoEnergianTarveUpToDate(false);
  IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate = false;
}

void clsRakennus::Muuttui(std::string_view toiminto) {
  PoistaVoimasta();
  Vahvista(toiminto);
}

void clsRakennus::ToimenpiteetMuuttuivat(std::string_view toiminto) { Vahvista(toiminto); }

void clsRakennus::Vahvista(std::string_view toiminto) {
  Tallennettu = false;
  if (MuutosVahvistettu) MuutosVahvistettu(toiminto);
  OtaKirjatuksi();
  nakymat_.Ilmoita();
}

void clsRakennus::PaivitaNakymat() {
  PoistaVoimasta();
  nakymat_.Ilmoita();
}

Muutostilaus clsRakennus::TilaaMuutokset(Muutoskuulija naytaUudelleen) {
  return nakymat_.Tilaa(std::move(naytaUudelleen));
}

void clsRakennus::LuoOletusmalli() try {
  TyhjennaOsat();  // what a failed try has left
  Vaiheet vaiheet;
  vaiheet.Seuraava();
  LuoTilat(Tilat, OletusmallinLahtotiedot(Perustiedot));
  vaiheet.Seuraava();
  LuoSahkoRyhmat(SahkonKulutusryhmat);
  vaiheet.Seuraava();
  LuoVesiRyhmat(VedenKulutusryhmat);
  vaiheet.Seuraava();
  LuoToimenpideLista(Saastotoimenpiteet);
  LuoValitutToimenpiteet(ToimenpiteidenJarjestelija);
  vaiheet.Valmis();
  SahkoTariffienVertailu.TotEnergia = Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Sahko;
  SahkoTariffienVertailu.TotHuippuTeho = 0;
  SahkoTariffienVertailu.TotLoisteho = 0;
  RekisteriVanheni();
} catch (...) {
  NostaVirhe("clsRakennus:LuoOletusmalli Method");
}

void clsRakennus::NaytaLampoYhteenvetoDlg() try {
  if (!lampoYhteenveto_) {
    lampoYhteenveto_ = std::make_unique<frmLampoYhteenveto>();
    lampoYhteenveto_->MuuLampoMuuttui = [this](double arvo) {
      MuuLampo = arvo;
      Muuttui(Teksti(tekstit::kMuuLampo));
    };
    lampoYhteenveto_->KuukausitaseKlikattu = [this] { NaytaKuukausitase(*this); };
    lampoYhteenveto_->OkKlikattu = [this] { lampoYhteenveto_->Sulje(); };
    lampoYhteenvedonTilaus_ = TilaaMuutokset([this] {
      const Hiljaisuus hiljaisuus;  // the warnings are told at opening
      if (lampoYhteenveto_->Auki()) PaivitaLampoYhteenveto();
    });
  }
  const Odotus odotus;
  VaroitaMaanvaraisista();
  VaroitaIlmavirroista();
  ToteutunutNormitettuLampo();  // tells what is amiss with the comparison year
  PaivitaLampoYhteenveto();
  lampoYhteenveto_->Nayta();
} catch (...) {
  NostaVirhe("clsRakennus:NaytaLampoYhteenvetoDlg Method");
}

void clsRakennus::NaytaYhteenvetoDlg() try {
  if (!yhteenveto_) yhteenveto_ = std::make_unique<Yhteenvetoikkuna>(*this);
  yhteenveto_->Nayta();
} catch (...) {
  NostaVirhe("clsRakennus:NaytaYhteenvetoDlg Method");
}

/// The figures, and with them the base of the measures.
void clsRakennus::PaivitaLampoYhteenveto() {
  const Odotus odotus;
  const Tasehaarukka haarukka(*this);
  TaytaLampoYhteenveto();
  PaivitaToimenpiteidenPerusta();
}

void clsRakennus::VaroitaMaanvaraisista() const {
  for (const clsTila& tila : Tilat) {
    const Laskentakohde tilassa(tila.TilanNimi);
    for (const clsRakenne& rakenne : tila.Rakenteet) {
      if (rakenne.TyyppiID != kMaa || rakenne.U_arvo() <= tarkistusraja::kSuuriMaanvarainenU) continue;
      const std::string nimi = Teksti(tekstit::kRakenne) + " " + rakenne.NaytettavaNimi();
      const Laskentakohde kohde(nimi, Laskentakohde::Tapa::Omistajineen);
      NaytaVirhe(virheet::kSuuriUArvo);
    }
  }
}

void clsRakennus::VaroitaIlmavirroista() {
  if (IVKoneet.Tuloilmavirtojen11Summa() > IVKoneet.Poistoilmavirtojen11Summa())
    Ilmoita(Teksti(tekstit::kTuloilmavirratSuuremmat) + " " + Teksti(tekstit::kTarkistaIlmavirrat),
            Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  std::string nimet;
  const auto irralliset = IVKoneet.ListaaTilaanLiittymattomatIVKoneet();
  for (const clsIVKone* kone : irralliset) nimet += (nimet.empty() ? "" : ", ") + kone->KoneenTunnus;
  if (!irralliset.empty())
    NaytaVirhe(irralliset.size() > 1 ? virheet::kKoneitaIrrallaan : virheet::kKoneIrrallaan, nimet);
}

void clsRakennus::TaytaLampoYhteenveto() {
  constexpr const char* kTarkka = "0.00000000";
  frmLampoYhteenveto& lomake = *lampoYhteenveto_;
  lomake.BruttoAla = Perustiedot.BruttoAla;
  lomake.Kokonaistilavuus = Perustiedot.Kokonaistilavuus;
  lomake.KohteenNimi = Perustiedot.KohteenNimi;
  for (const Tulos& tulos : LampoyhteenvedonTulokset())
    TextBox(lomake, tulos.nimi).Luku(tulos.Arvo({*this}), tulos.kuvio);
  lomake.txtSaatoHaviot.Luku(VuotuisetSaatohaviot(), kTarkka);
  lomake.txtLammonTuotonHaviot.Luku(VuotuisetLammonKonversiohaviot(), kTarkka);
  lomake.Laske();
}

void clsRakennus::PaivitaToimenpiteidenPerusta() {
  if (Saastotoimenpiteet.Count() == 0) return;
  const double lampo = VuotuinenBruttoLampoEnergia();
  const double sahko = VuotuinenBruttoSahkoEnergia();
  const double vesi = VedenKulutusryhmat.VuotuinenVedenKulutus();
  for (clsSaastotoimenpide& toimenpide : Saastotoimenpiteet) {
    toimenpide.LampoEnergiaEnnen(lampo);
    toimenpide.SahkoEnergiaEnnen(sahko);
    toimenpide.VedenkulutusEnnen(vesi);
  }
}
