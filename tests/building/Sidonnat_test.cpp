// SPDX-License-Identifier: GPL-3.0-or-later
// Every field of every dialog: another value is typed, and it is there again when the dialog is opened anew after OK,
// and isn't after Cancel or an OK that failed. A binding that is missing, or bound to nothing, falls here.
#include <set>

#include "building/Kerrosmuokkaus.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "results/raportti/Raporttiikkuna.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Sidonta.h"
#include "ventilation/clsIVKoneet.h"

namespace {

/// Fields for show, and those that say what is shown.
const std::set<std::string> kNaytettavat{"cmbRakenteidenDynamiikka", "cmbRakennetyyppi", "txtKulutus",
                                         "txtVedenkulutusM3a", "chkToimenpiteenVaikutusAste"};

bool OnKentta(const Ohjain& ohjain) {
  switch (ohjain.Tyyppi()) {
    case Ohjaintyyppi::TextBox:
      return !ohjain.Lukittu();
    case Ohjaintyyppi::ComboBox:
      return ohjain.Rivit().size() > 1;
    case Ohjaintyyppi::CheckBox:
    case Ohjaintyyppi::OptionButton:
      return true;
    default:
      return false;
  }
}

/// What the field shows, as a text.
std::string Tila(const Ohjain& ohjain) {
  switch (ohjain.Tyyppi()) {
    case Ohjaintyyppi::TextBox:
      return ohjain.Teksti();
    case Ohjaintyyppi::ComboBox:
      return std::to_string(ohjain.Indeksi());
    default:
      return ohjain.Valittu() ? "x" : "";
  }
}

std::vector<std::string> TaginOsat(std::string tag) {
  std::vector<std::string> osat(1);
  for (const char merkki : tag)
    if (merkki == ',')
      osat.emplace_back();
    else
      osat.back() += merkki;
  osat.resize(4);
  return osat;
}

/// Another number between the limits of the field.
std::string MuuLuku(const Ohjain& kentta, const std::vector<std::string>& tag) {
  const double nyt = std::floor(LueLuku(kentta.Teksti()).value_or(0));
  const double ala = LueLuku(tag[2]).value_or(0), yla = LueLuku(tag[3]).value_or(1e6);
  return Muotoile(nyt + 1 <= yla && nyt + 1 >= ala ? nyt + 1 : std::ceil(ala), "0");
}

std::string MuuTeksti(const Ohjain& kentta) {
  const auto tag = TaginOsat(kentta.Tag());
  if (SamaNimi(tag[1], "N")) return MuuLuku(kentta, tag);
  if (SamaNimi(tag[1], "K")) return kentta.Teksti() == "05:15" ? "06:15" : "05:15";
  if (SamaNimi(tag[1], "P")) return "1.2.2020";
  return kentta.Teksti() + " x";
}

/// Does to the field what a person could, and tells what it shall show from then on.
std::string Muuta(Ohjain& ohjain) {
  switch (ohjain.Tyyppi()) {
    case Ohjaintyyppi::TextBox: {
      const std::string teksti = MuuTeksti(ohjain);
      ohjain.KayttajaKirjoittaa(teksti);
      ohjain.KayttajaPoistuu();
      return teksti;
    }
    case Ohjaintyyppi::ComboBox: {
      const int muu = (ohjain.Indeksi() + 1) % static_cast<int>(ohjain.Rivit().size());
      ohjain.KayttajaValitsee(muu);
      return std::to_string(muu);
    }
    default:
      ohjain.KayttajaPainaa();
      return Tila(ohjain);
  }
}

bool Samat(const Ohjain& ohjain, const std::string& x, const std::string& y) {
  if (ohjain.Tyyppi() != Ohjaintyyppi::TextBox || x == y) return x == y;
  const auto lukuX = LueLuku(x), lukuY = LueLuku(y);
  return lukuX && lukuY && *lukuX == *lukuY;
}

/// Gives every number of the object and of its parts decimals that no field shows.
void Hienonna(Olio& olio) {
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet()) {
    if (jasen.OnOlio()) {
      if (Olio* osa = jasen.viittaus ? nullptr : jasen.olio(olio)) Hienonna(*osa);
    } else if (jasen.laji == Laji::Kaksinkertainen || jasen.laji == Laji::Yksinkertainen) {
      ArvoNakyma nyt, tarkempi;
      jasen.nayta(olio, nyt);
      tarkempi.Aseta(nyt.Lukuna() * (1 + 1e-6));
      jasen.kirjoita(olio, tarkempi);
    }
  }
  if (KokoelmaPohja* alkiot = olio.Kokoelmana())
    for (int i = 1; i <= alkiot->Count(); ++i) Hienonna(alkiot->Pohja(i));
}

class Sidonnat : public RakennusTesti {
 protected:
  Sidonnat() {
    AsetaTarkistuksenKello(nullptr);
    LuoKoulu();
    for (clsToteutunutKulutus& vuosi : rakennus->Perustiedot.ToteutuneetKulutukset) vuosi.LammTarveLuku = 4459;
    Tila().Kuvausteksti = "luokkia";
    for (clsRakenne& rakenne : Tila().Rakenteet)
      if (rakenne.Rakennetyyppi == Rakennelaji::Ikkuna) rakenne.LaskeU_arvoMateriaaleista = false;
    // A space whose choices leave all to the person.
    clsTila& muu = LisaaTila(300, 100);
    muu.PainovoimainenIlmanvaihto = true;
    muu.TilanKayttoaikaID = 4;
    muu.SaatotapaID = 5;
    Rakenne(Rakennelaji::Ulkoseina).RakenneRatkaisu->Kerrokset.Item(1).Yhtenainen = false;
    clsIVKone& kone = rakennus->IVKoneet.Add("kone");
    kone.KoneenTunnus = "TK01";
    kone.KayntiAikaYleistiedot.LuoJaksot(kone.SisaanpuhallusLampotila(), kone.IlmanLampeneminenPuhaltimessa);
    clsPuhaltimenSahkonKulutus& puhaltimet = kone.PuhaltimienSahkonKulutus;
    puhaltimet.TuloSahkoTeho11 = puhaltimet.PoistoSahkoTeho11 = 3;
    puhaltimet.TuloPuhParam.PaineenKorotus = 400;
    // Groups by power with a unit of their own, by specific consumption, and measured.
    for (const char* avain : {"teho", "ominaiskulutus", "mitattu"}) {
      clsSahkonKulutusryhma& ryhma = rakennus->SahkonKulutusryhmat.Add(avain);
      ryhma.LaskentatapaTehopohjainen(std::string_view(avain) == "teho");
      ryhma.LaskentatapaEnergiapohjainenIndex = std::string_view(avain) == "mitattu" ? 0 : 2;
    }
    // Shares that make 100 %, also when one of them grows to the next whole number.
    for (const auto laji : {clsTariffi::LampoTariffi, clsTariffi::SahkoSiirtoTariffi})
      for (clsEnergiamaksu& maksu : rakennus->Tariffit.LisaaTariffi(laji).Energiamaksut)
        maksu.Kulutusosuus = (maksu.sKey == "EnergiaMaksu1" ? 45 : 10) + 5 / 6.0;
    rakennus->Vesitariffit.LisaaTariffi();
    rakennus->Perustiedot.LammonHankinta.LisaaMuoto().LisaaPolttoaine({});
    rakennus->SahkoTariffienVertailu.Tapaukset.Add("yhdistelmä").Nimi = "Kilpailutettu";
    rakennus->Saastotoimenpiteet.PaivitaHierarkiaLista();
    rakennus->Saastotoimenpiteet.Lisaa(Tila().sKey);
    for (const char* sivulomake : {"frmPuhaltimenOttotehonTarkennettuLaskenta"})
      ikkunat.KunNaytetaan(sivulomake, [](Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); });
  }

  clsTila& Tila() const { return rakennus->Tilat.Item(1); }
  clsIVKone& Kone() const { return rakennus->IVKoneet.Item(1); }
  clsRakenne& Rakenne(std::int32_t tyyppi) const {
    for (clsRakenne& rakenne : Tila().Rakenteet)
      if (rakenne.Rakennetyyppi == tyyppi) return rakenne;
    throw std::logic_error("ei rakennetta");
  }

  struct Dialogi {
    std::string lomake;
    std::function<void()> avaa;
  };
  std::vector<Dialogi> Dialogit() const {
    return {
        {"frmTila", [this] { Tila().NaytaKayttoliittyma(); }},
        {"frmTila", [this] { rakennus->Tilat.Item(2).NaytaKayttoliittyma(); }},
        {"frmPerustiedot", [this] { rakennus->Perustiedot.NaytaKayttoliityma(); }},
        {"frmKatselmoijienTiedot", [this] { rakennus->KatselmoijienTiedot.NaytaKayttoliittyma(); }},
        {"frmRakenteet", [this] { Tila().Rakenteet.NaytaRakenteetKayttoliittyma(Rakennelaji::Ikkuna, "Koulu", 21); }},
        {"frmRakenteet",
         [this] { Tila().Rakenteet.NaytaRakenteetKayttoliittyma(Rakennelaji::Ulkoseina, "Koulu", 21); }},
        {"frmRakennekerroksenMuokkaaminen", [this] { MuokkaaKerrosta(); }},
        {"frmIlmanvaihtokone", [this] { Kone().NaytaKayttoliittyma(); }},
        {"frmIlmanvaihtokoneenKayntiajat", [this] { Kone().KayntiAikaYleistiedot.NaytaKayttoliittyma(); }},
        {"frmIVKoneenPuhaltimienSahkonKaytto", [this] { MuokkaaPuhaltimia(); }},
        {"frmPuhaltimenOttotehonTarkennettuLaskenta",
         [this] { Kone().PuhaltimienSahkonKulutus.TuloPuhParam.NaytaKayttoliittyma("Tulo", 1); }},
        {"frmLTOhyotylaskenta", [this] { Kone().Lto.NaytaKayttoliittyma(); }},
        {"frmSahkotariffi", [this] { rakennus->Tariffit.NaytaKayttoliittyma(clsTariffi::LampoTariffi, {}, 100); }},
        {"frmSahkotariffi",
         [this] { rakennus->Tariffit.NaytaKayttoliittyma(clsTariffi::SahkoSiirtoTariffi, {}, 100); }},
        {"frmVesitariffi", [this] { rakennus->Vesitariffit.NaytaKayttoliittyma({}, 100); }},
        {"frmTarkennettuLaiteLaskenta", [this] { rakennus->SahkonKulutusryhmat.Item(1).NaytaKayttoliittyma(); }},
        {"frmTarkennettuLaiteLaskenta", [this] { rakennus->SahkonKulutusryhmat.Item(2).NaytaKayttoliittyma(); }},
        {"frmTarkennettuLaiteLaskenta", [this] { rakennus->SahkonKulutusryhmat.Item(3).NaytaKayttoliittyma(); }},
        {"frmTarkennettuVesiLaskenta", [this] { rakennus->VedenKulutusryhmat.Item(1).NaytaKayttoliittyma(); }},
        {"frmEnergiamuoto",
         [this] { rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).NaytaKayttoliityma(); }},
        {"frmVertailunKuvausDialogi", [this] { MuokkaaTariffiyhdistelmaa(); }},
        {"frmRaportti", [this] { NaytaRaporttiikkuna(*rakennus); }},
        {"frmSaastotoimenpide", [this] { rakennus->Saastotoimenpiteet.Item(1).NaytaKayttoliittyma(); }},
    };
  }
  void MuokkaaKerrosta() const {
    Rakenneratkaisu& ratkaisu = *Rakenne(Rakennelaji::Ulkoseina).RakenneRatkaisu;
    Kerrosmuokkaus muokkaus(ratkaisu, 1);
    if (muokkaus.Nayta()) ratkaisu = muokkaus.Ratkaisu();
  }
  void MuokkaaTariffiyhdistelmaa() const {
    rakennus->SahkoTariffienVertailu.NaytaKayttoliittyma();
    ikkunat.Ikkuna("frmSahkotariffiVertailu").KayttajaPainaa("cmdMuokkaa");
  }
  void MuokkaaPuhaltimia() const {
    Kone().PaivitaOsienTiedot();
    Kone().PuhaltimienSahkonKulutus.NaytaKayttoliittyma();
  }

  /// Opens the dialog, lets the person act, and closes it by a button; what stays open after that by Cancel.
  void Avaa(const Dialogi& dialogi, const char* nappi, const std::function<void(Ikkunaton&)>& toimi) {
    ikkunat.KunNaytetaan(dialogi.lomake, [&](Ikkunaton& ikkuna) {
      toimi(ikkuna);
      ikkuna.KayttajaPainaa(nappi);
      if (ikkuna.Auki()) ikkuna.KayttajaPainaa("cmdPeruuta");
    });
    dialogi.avaa();
  }
  std::vector<std::string> Kentat(const Dialogi& dialogi) {
    std::vector<std::string> nimet;
    Avaa(dialogi, "cmdPeruuta", [&](Ikkunaton& ikkuna) {
      for (const auto& ohjain : ikkuna.Ohjaimet())
        if (OnKentta(*ohjain) && ohjain->Kaytossa() && ohjain->Nakyva() && !kNaytettavat.contains(ohjain->Nimi()))
          nimet.push_back(ohjain->Nimi());
    });
    return nimet;
  }
  /// What the field shows in a dialog opened for it.
  void OdotaNayttavan(const Dialogi& dialogi, const std::string& kentta, const std::string& odotettu) {
    Avaa(dialogi, "cmdPeruuta", [&](Ikkunaton& ikkuna) {
      const Ohjain& ohjain = ikkuna.Etsi(kentta);
      EXPECT_TRUE(Samat(ohjain, ::Tila(ohjain), odotettu)) << ::Tila(ohjain) << " != " << odotettu;
    });
  }
  int MuutoksiaRakennukseen(clsRakennus& ennen) {
    clsMuuttuneetAttribuutit muutokset;
    rakennus->VertaileAttribuutit(ennen, muutokset);
    return muutokset.Count();
  }

  /// Types another value and closes by the button. What was shown before and what was typed.
  std::pair<std::string, std::string> MuutaJaSulje(const Dialogi& dialogi, const std::string& kentta,
                                                   const char* nappi) {
    std::pair<std::string, std::string> tulos;
    Avaa(dialogi, nappi, [&](Ikkunaton& ikkuna) {
      tulos.first = ::Tila(ikkuna.Etsi(kentta));
      tulos.second = Muuta(ikkuna.Etsi(kentta));
    });
    return tulos;
  }

  /// It edits a copy, which its caller takes: nothing of the building changes under its OK.
  static constexpr const char* kEiKirjaa = "frmRakennekerroksenMuokkaaminen";
  std::set<std::string> koetut_;
  void Koettele(const Dialogi& dialogi, const std::string& kentta) {
    SCOPED_TRACE(dialogi.lomake + "." + kentta);
    koetut_.insert(dialogi.lomake + "." + kentta);
    const auto ennen = rakennus->Kopioi();
    const int erot = MuutoksiaRakennukseen(*ennen);  // what a copy leaves out
    OdotaNayttavan(dialogi, kentta, MuutaJaSulje(dialogi, kentta, "cmdPeruuta").first);
    EXPECT_EQ(MuutoksiaRakennukseen(*ennen), erot) << "after Cancel";

    if (dialogi.lomake != kEiKirjaa) {
      rakennus->MuutosVahvistettu = [](std::string_view) { throw std::runtime_error("levy täynnä"); };
      OdotaNayttavan(dialogi, kentta, MuutaJaSulje(dialogi, kentta, "cmdOk").first);
      EXPECT_EQ(MuutoksiaRakennukseen(*ennen), erot) << "after an OK that failed";
      rakennus->MuutosVahvistettu = nullptr;
    }

    OdotaNayttavan(dialogi, kentta, MuutaJaSulje(dialogi, kentta, "cmdOk").second);
    ennen->Kopioi(rakennus.get());
    rakennus->OtaKirjatuksi();
  }
};

TEST_F(Sidonnat, AnotherValueIsKeptByOkAndTakenBackByCancelAndByAFailedOk) {
  for (const Dialogi& dialogi : Dialogit())
    for (const std::string& kentta : Kentat(dialogi)) Koettele(dialogi, kentta);

  const auto dialogit = Dialogit();
  for (const Sidontalista* taulu : Sidontalista::Kaikki()) {
    if (std::ranges::find(dialogit, taulu->Lomakkeenimi(), &Dialogi::lomake) == dialogit.end()) continue;
    for (const Sidonta& rivi : taulu->Rivit())
      for (const std::string& sana : taulu->Sanat()) {
        const std::string nimi = taulu->Lomakkeenimi() + "." + Sidontalista::OhjaimenNimi(rivi, sana);
        EXPECT_TRUE(koetut_.contains(nimi)) << nimi << " is bound, but no person could write in it here";
      }
  }
}

TEST_F(Sidonnat, AnOkWithNothingTypedKeepsEveryUnshownDecimal) {
  const auto ok = [](Ikkunaton&) {};
  for (const Dialogi& dialogi : Dialogit()) {
    SCOPED_TRACE(dialogi.lomake);
    Avaa(dialogi, "cmdOk", ok);  // texts of choices come beside their rows
    const double paikkakunnan = rakennus->Perustiedot.NormVuodenLammTarveLuku;
    Hienonna(rakennus->Perustiedot);
    rakennus->Perustiedot.NormVuodenLammTarveLuku = paikkakunnan;  // the table's, not the person's
    Hienonna(rakennus->Tilat);
    Hienonna(rakennus->IVKoneet);
    Hienonna(rakennus->SahkonKulutusryhmat);
    Hienonna(rakennus->VedenKulutusryhmat);
    Hienonna(rakennus->SahkoTariffienVertailu);
    const auto ennen = rakennus->Tilannekuva();
    Avaa(dialogi, "cmdOk", ok);
    EXPECT_EQ(MuutoksiaRakennukseen(*ennen), 0);
  }
}

TEST_F(Sidonnat, EveryFormWithATableIsWalked) {
  // tests/settings, tests/consumers, tests/supply
  std::set<std::string> kaydyt{"frmOptions", "frmVedenKulutus", "frmEmuo3", "frmSahkotariffiVertailu"};
  for (const Dialogi& dialogi : Dialogit()) kaydyt.insert(dialogi.lomake);
  for (const Sidontalista* taulu : Sidontalista::Kaikki())
    EXPECT_TRUE(kaydyt.contains(taulu->Lomakkeenimi())) << taulu->Lomakkeenimi();
}

}  // namespace
