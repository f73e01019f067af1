// SPDX-License-Identifier: GPL-3.0-or-later
// The comparison of electricity tariffs, the saving of a combination, and its way to the arranger.
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Paivamaara.h"
#include "kernel/Sormenjalki.h"
#include "kernel/Virhe.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_hankinta.h"
#include "tekstit/lomakkeet_tariffivertailu.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Hiljaa.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmSahkotariffiVertailu.h"
#include "ui/frmTariffiToimPitPeruste.h"
#include "ui/frmVertailunKuvausDialogi.h"

namespace {

using Tapaus = clsTariffiVertailuTapaus;
using Avainjasen = Tunniste Tapaus::*;

constexpr const char* kRahaa = "### ##0";
constexpr const char* kLahtotieto = "### ##0.##";
constexpr const char* kEiLukua = "---";

/// A case as its dialog shows it.
struct Tapauksenkuvaus {
  Tapaus tapaus;
  double kerroin;  ///< shown amount for one stored
};

const Sidontataulu<Tapaus> kLahtotiedot{"frmSahkotariffiVertailu",
                                        {Lukukentta<&Tapaus::TotEnergia>("txtTotEnergia", kLahtotieto),
                                         Lukukentta<&Tapaus::TotHuippuTeho>("txtTotHuippuTeho", kLahtotieto),
                                         Lukukentta<&Tapaus::TotLoisteho>("txtTotLoisteho", kLahtotieto)}};
const Sidontataulu<Tapauksenkuvaus> kKuvaus{
    "frmVertailunKuvausDialogi",
    {Tekstikentta<Polku<&Tapauksenkuvaus::tapaus, &Tapaus::Nimi>>("txtNimi"),
     Lukukentta<Polku<&Tapauksenkuvaus::tapaus, &Tapaus::Investointi>, &Tapauksenkuvaus::kerroin>("txtInvestointi",
                                                                                                  "### ##0.##"),
     Tekstikentta<Polku<&Tapauksenkuvaus::tapaus, &Tapaus::Kuvaus>>("txtKuvaus")}};

struct Kustannuslaji {
  Tekstinumero nimi;
  double Vuosilasku::*era;
};
constexpr Kustannuslaji kKustannuslajit[] = {
    {tekstit::kVertailunPerusmaksu, &Vuosilasku::perus},       {tekstit::kVertailunTehomaksu, &Vuosilasku::teho},
    {tekstit::kVertailunLoistehomaksu, &Vuosilasku::loisteho}, {tekstit::kVertailunEnergiamaksut, &Vuosilasku::energia},
    {tekstit::kVertailunSahkovero, &Vuosilasku::vero},         {tekstit::kVertailunMuutMaksut, &Vuosilasku::muu},
};

const clsTariffit& Tariffit() { return VaadiRakennus().Tariffit; }

/// Bills of the case; nothing when its tariff is gone or the bill isn't finite.
std::optional<Vuosilasku> Myynti(const Tapaus& tapaus) {
  return LaskeHiljaa([&] { return tapaus.Myynti(Tariffit()); });
}
std::optional<Vuosilasku> Siirto(const Tapaus& tapaus) {
  return LaskeHiljaa([&] { return tapaus.Siirto(Tariffit()); });
}
std::optional<double> Kustannus(const Tapaus& tapaus) {
  return LaskeHiljaa([&] { return tapaus.KustannusYhteensa(Tariffit()); });
}

void LisaaRaha(Luettelorivi& rivi, std::optional<double> arvo) {
  if (arvo)
    rivi.LisaaLuku(*arvo, kRahaa);
  else
    rivi.solut.emplace_back(kEiLukua);
}
std::string Vuodessa(double rahaa) { return Muotoile(rahaa, kRahaa) + " " + Asetukset().strDefaultCurrencyUnit + "/a"; }

bool SamatLahtotiedot(const Tapaus& x, const Tapaus& y) {
  return x.TotEnergia == y.TotEnergia && x.TotHuippuTeho == y.TotHuippuTeho && x.TotLoisteho == y.TotLoisteho;
}

/// The tariffs by which the building buys its electricity now; empty keys when it has none.
std::pair<Tunniste, Tunniste> NykyisetTariffit() {
  const clsEnergiamuodot& muodot = VaadiRakennus().Perustiedot.SahkonHankinta.Energiamuodot;
  if (muodot.Count() == 0) return {};
  return {muodot.Item(1).MyyntiTariffiSkey, muodot.Item(1).SiirtoTariffiSkey};
}

/// Name of a case's tariff in a list.
std::string TariffinNimi(const Tunniste& avain) {
  if (avain.Tyhja()) return Teksti(tekstit::kEiTariffia);
  const clsTariffi* tariffi = Tariffit().Etsi(avain);
  return tariffi ? tariffi->Nimi : Teksti(tekstit::kTariffiaEiLoydy);
}

/// The tariffs of one kind to choose from, none at first.
class Tariffivalinta {
 public:
  Tariffivalinta(const ComboBox& lista, clsTariffi::Laji laji, Avainjasen avain)
      : lista_(lista), laji_(laji), avain_(avain) {}

  bool Tyhja() const { return avaimet_.size() <= 1; }
  /// Fills the list and chooses the tariff of the case, which loses one that is no more.
  void Nayta(Tapaus& tapaus) {
    std::vector<std::string> nimet{Teksti(tekstit::kEiTariffia)};
    avaimet_ = {Tunniste()};
    for (const clsTariffi& tariffi : Tariffit())
      if (tariffi.Tariffityyppi == laji_) {
        nimet.push_back(tariffi.Nimi);
        avaimet_.push_back(tariffi.sKey);
      }
    const auto valittu = std::ranges::find(avaimet_, tapaus.*avain_);
    if (valittu == avaimet_.end()) tapaus.*avain_ = {};
    lista_.Rivit(nimet);
    lista_.Indeksi(valittu == avaimet_.end() ? 0 : static_cast<int>(valittu - avaimet_.begin()));
  }
  void Ota(Tapaus& tapaus) const { tapaus.*avain_ = avaimet_.at(static_cast<std::size_t>(lista_.Indeksi())); }
  /// The first tariff for a case that has none.
  void ValitseEnsimmainen(Tapaus& tapaus) const {
    for (const clsTariffi& tariffi : Tariffit())
      if ((tapaus.*avain_).Tyhja() && tariffi.Tariffityyppi == laji_) tapaus.*avain_ = tariffi.sKey;
  }
  /// Lets the person edit the tariffs and choose one for the case.
  void Muokkaa(Tapaus& tapaus) const {
    const auto valittu = VaadiRakennus().Tariffit.NaytaKayttoliittyma(laji_, tapaus.*avain_, tapaus.TotEnergia);
    if (valittu) tapaus.*avain_ = *valittu;
  }

 private:
  ComboBox lista_;
  clsTariffi::Laji laji_;
  Avainjasen avain_;
  std::vector<Tunniste> avaimet_{Tunniste()};
};

/// The dialog of a case's name, investment and description. `tallenna` takes the case at OK, if anything was written.
/// True after OK.
bool MuokkaaKuvausta(Tapauksenkuvaus kuvaus, const std::function<void(const Tapaus&)>& tallenna) {
  frmVertailunKuvausDialogi lomake;
  bool hyvaksytty = false;
  kKuvaus.Lue(lomake, kuvaus);
  const Tapaus& tapaus = kuvaus.tapaus;
  lomake.lblTallennettu.Otsikko(Teksti(tekstit::kYhdistelmaTallennettu) + " " + tapaus.ToimenpiteenPaivays +
                                (tapaus.ToimenpiteenTekijanNimi.empty() ? "" : ", " + tapaus.ToimenpiteenTekijanNimi));
  lomake.OkKlikattu = [&] {
    if (lomake.txtNimi.Teksti().find_first_not_of(' ') == std::string::npos)
      return HylkaaKentta(lomake.txtNimi.Kohde(), Teksti(tekstit::kYhdistelmaIlmanNimea));
    kKuvaus.Kirjoita(lomake, kuvaus);
    tallenna(tapaus);
    hyvaksytty = true;
    lomake.Sulje();
  };
  lomake.PeruutaKlikattu = [&] { lomake.Sulje(); };
  lomake.NaytaModaalisena();
  return hyvaksytty;
}

/// The choice of the case that another one is compared with.
class Vertailukohta {
 public:
  Vertailukohta(const clsSahkoTariffienVertailu& vertailu, const Tapaus& vietava)
      : vertailu_(vertailu), vietava_(vietava), kerroin_(vertailu.NayttoKerroin()) {}

  /// The key of the case that the person has chosen; empty when the person gave up.
  Tunniste Kysy() {
    Luettelosisalto sisalto;
    for (const Tapaus& tapaus : vertailu_.Tapaukset) {
      Luettelorivi& rivi = sisalto.rivit.emplace_back(Luettelorivi{{tapaus.Nimi}, tapaus.sKey});
      const auto kustannus = Kustannus(tapaus);
      LisaaRaha(rivi, kustannus ? std::optional(*kustannus * kerroin_) : std::nullopt);
      rivi.piirteet.lihava = tapaus.sKey == vietava_.sKey;
    }
    lomake_.lstTehdytTariffivertailut.Tayta(std::move(sisalto));
    lomake_.lstTehdytTariffivertailut.Valitse(Ehdotus());
    lomake_.lstTehdytTariffivertailut.KunMuuttuu([this] { NaytaSaasto(); });
    lomake_.lstTehdytTariffivertailut.KunKlikataan([this] { Hyvaksy(); });
    lomake_.OkKlikattu = [this] { Hyvaksy(); };
    lomake_.PeruutaKlikattu = [this] { lomake_.Sulje(); };
    NaytaSaasto();
    lomake_.NaytaModaalisena();
    return hyvaksytty_;
  }

 private:
  /// The present tariffs, else the dearest case.
  Tunniste Ehdotus() const {
    const auto nykyiset = NykyisetTariffit();
    for (const Tapaus& tapaus : vertailu_.Tapaukset)
      if (tapaus.sKey != vietava_.sKey && std::pair(tapaus.MyyntiTariffiSkey, tapaus.SiirtoTariffiSkey) == nykyiset)
        return tapaus.sKey;
    return vertailu_.Tapaukset.KalleinTariffisKey(Tariffit());
  }
  const Tapaus* Valittu() const { return vertailu_.Tapaukset.Etsi(lomake_.lstTehdytTariffivertailut.Valittu()); }

  void NaytaSaasto() {
    const Tapaus* viite = Valittu();
    const auto ennen = viite ? Kustannus(*viite) : std::nullopt, jalkeen = Kustannus(vietava_);
    if (!ennen || !jalkeen) return lomake_.lblSaasto.Otsikko("");
    const double saasto = *ennen - *jalkeen;
    std::string teksti = Teksti(tekstit::kTariffisaastoOn) + " " + Vuodessa(saasto * kerroin_);
    if (saasto > 0)
      teksti += ", " + Teksti(tekstit::kTariffinTakaisinmaksuaika) + " " +
                Muotoile(vietava_.Investointi / saasto, "### ##0.0") + " a";
    if (!SamatLahtotiedot(*viite, vietava_)) teksti += ". " + Teksti(tekstit::kYhdistelmatEriEnergialla);
    lomake_.lblSaasto.Otsikko(std::move(teksti));
  }
  void Hyvaksy() {
    const Tapaus* viite = Valittu();
    if (!viite || viite->sKey == vietava_.sKey) return Hylkaa(tekstit::kVertailukohtaSama);
    if (!viite->TariffitLoytyvat(Tariffit())) return Hylkaa(tekstit::kYhdistelmanTariffiKadonnut);
    hyvaksytty_ = viite->sKey;
    lomake_.Sulje();
  }
  static void Hylkaa(Tekstinumero syy) { Ilmoita(Teksti(syy), Teksti(tekstit::kVirhe), Vakavuus::Virhe); }

  const clsSahkoTariffienVertailu& vertailu_;
  const Tapaus& vietava_;
  double kerroin_;
  frmTariffiToimPitPeruste lomake_;
  Tunniste hyvaksytty_;
};

}  // namespace

/// The open comparison. What is compared is a case of its own, in no list, which follows the typing; the energy and the
/// powers are committed when their field is left.
class Tariffivertailuikkuna {
 public:
  explicit Tariffivertailuikkuna(clsSahkoTariffienVertailu& vertailu) : vertailu_(vertailu) {
    lomake_.yhdistelmat.Aseta({.sisalto = [this] { return Yhdistelmat(); },
                               .nimi = [this](const Tunniste& avain) { return Yhdistelma(avain).Nimi; },
                               .lisaa = [this] { return Kayttoliittyma_TalletaYhdistelmaKlikattu(); },
                               .muokkaa = [this](const Tunniste& avain) { Muokkaa(Yhdistelma(avain)); },
                               .poista = [this](const Tunniste& avain) { Poista(avain); },
                               .valittu = [this] { lomake_.cmdOtaVertailuun.Kaytossa(Valittu()); },
                               .lisayseste = [this] { return Talletuseste(); },
                               .poistonSeuraus = [](const Tunniste& avain) { return PoistonSeuraus(avain); },
                               .otaKentat = [this] { return lomake_.OtaKentat(); }});
    lomake_.KenttaMuuttui = [this](const Ohjain& kentta) {
      if (kLahtotiedot.KirjoitaKentta(kentta, vertailtava_)) NaytaLuvut();
    };
    lomake_.KentatMuuttuivat = [this] { KentatMuuttuivat(); };
    lomake_.TariffiValittu = [this] { TariffiValittu(); };
    lomake_.AlvKlikattu = [this] { AlvKlikattu(); };
    lomake_.MyyntitariffitKlikattu = [this] { MuokkaaTariffeja(myynnit_); };
    lomake_.SiirtotariffitKlikattu = [this] { MuokkaaTariffeja(siirrot_); };
    lomake_.OtaVertailuunKlikattu = [this] { OtaVertailuun(); };
    lomake_.VieTaulukko2eenKlikattu = [this] { Kayttoliittyma_VieTaulukko2eenKlikattu(); };
    lomake_.RahatMuuttuivat = [this] { Nayta(); };
    tilaus_ = VaadiRakennus().TilaaMuutokset([this] {
      if (lomake_.Auki()) LueDataluokka();
    });
  }
  Tariffivertailuikkuna(const Tariffivertailuikkuna&) = delete;
  Tariffivertailuikkuna& operator=(const Tariffivertailuikkuna&) = delete;

  void Avaa() {
    if (!lomake_.Auki()) {
      const auto [myynti, siirto] = NykyisetTariffit();
      vertailu_.Tapaus(myynti, siirto).Kopioi(vertailtava_);
      myynnit_.ValitseEnsimmainen(vertailtava_);
      siirrot_.ValitseEnsimmainen(vertailtava_);
      kLahtotiedot.Lue(lomake_, vertailtava_);
    }
    LueDataluokka();
    lomake_.Nayta();
  }

 private:
  Tapaus& Yhdistelma(const Tunniste& avain) const { return vertailu_.Tapaukset.Item(avain); }
  Tapaus* Valittu() const { return vertailu_.Tapaukset.Etsi(lomake_.yhdistelmat.Valittu()); }
  /// What is compared, at the energy and the powers last committed.
  Tapaus Vertailtava() const {
    return vertailu_.Tapaus(vertailtava_.MyyntiTariffiSkey, vertailtava_.SiirtoTariffiSkey);
  }
  static double Ala() { return VaadiRakennus().Perustiedot.BruttoAla; }

  /// Makes a change of the object and commits it under the name, if there was one. After an error all is as it was.
  template <class T, class F>
  void Muuta(T& olio, Tekstinumero nimi, F muutos) {
    clsRakennus& rakennus = VaadiRakennus();
    const auto varalla = olio.Kopioi();
    const auto ennen = Sormenjalki(*varalla, rakennus.TyyppiTiedot);
    try {
      muutos();
      rakennus.RekisteriVanheni();
      if (Sormenjalki(olio, rakennus.TyyppiTiedot) == ennen) return;
      vertailu_.BruttoAla = Ala();
      rakennus.ToimenpiteetMuuttuivat(Teksti(nimi));
    } catch (...) {
      varalla->Kopioi(olio);
      rakennus.RekisteriVanheni();
      LueDataluokka();
      throw;
    }
  }

  // From the comparison to the window.

  void LueDataluokka() {
    Vertailtava().Kopioi(vertailtava_);
    kLahtotiedot.Paivita(lomake_, vertailtava_);
    lomake_.chkALV.Valittu(vertailu_.KaytaVertailussaALVHintoja);
    Nayta();
  }
  void Nayta() {
    myynnit_.Nayta(vertailtava_);
    siirrot_.Nayta(vertailtava_);
    NaytaLuvut();
    lomake_.yhdistelmat.Nayta();
    lomake_.lblHalvinJaKallein.Otsikko(HalvinJaKallein());
    lomake_.NaytaOhje(Ohje());
  }
  void NaytaLuvut() {
    lomake_.txtOmSahkoEnergia.Luku(clsSahkoTariffienVertailu::Ominaisarvo(vertailtava_.TotEnergia, Ala()), "0.00");
    lomake_.txtOmSahkoTeho.Luku(clsSahkoTariffienVertailu::Ominaisarvo(vertailtava_.TotHuippuTeho, Ala()), "0.00");
    PaivitaKustannuksetTabiin();
  }
  void PaivitaKustannuksetTabiin() const {
    const auto myynti = Myynti(vertailtava_), siirto = Siirto(vertailtava_);
    const double kerroin = vertailu_.NayttoKerroin();
    const auto rivi = [&](Tekstinumero nimi, auto era) {
      Luettelorivi solut{{Teksti(nimi)}};
      const auto luku = [&](const std::optional<Vuosilasku>& lasku) {
        return lasku ? std::optional(era(*lasku) * kerroin) : std::nullopt;
      };
      const auto myydaan = luku(myynti), siirretaan = luku(siirto);
      for (const auto arvo : {myydaan, siirretaan}) LisaaRaha(solut, arvo);
      LisaaRaha(solut, myydaan && siirretaan ? std::optional(*myydaan + *siirretaan) : std::nullopt);
      return solut;
    };
    Luettelosisalto sisalto;
    for (const Kustannuslaji& laji : kKustannuslajit)
      sisalto.rivit.push_back(rivi(laji.nimi, [&](const Vuosilasku& lasku) { return lasku.*laji.era; }));
    sisalto.summat = rivi(tekstit::kVertailuYhteensa, [](const Vuosilasku& lasku) { return lasku.Yhteensa(); }).solut;
    lomake_.lvwKustannukset.Tayta(std::move(sisalto));
  }

  // The saved combinations.

  Luettelosisalto Yhdistelmat() const {
    const Tunniste halvin = vertailu_.Tapaukset.HalvinTariffisKey(Tariffit());
    const Tunniste kallein = vertailu_.Tapaukset.KalleinTariffisKey(Tariffit());
    Luettelosisalto sisalto;
    for (const Tapaus& tapaus : vertailu_.Tapaukset) {
      Luettelorivi& rivi = sisalto.rivit.emplace_back(Rivi(tapaus));
      if (halvin != kallein) Merkitse(rivi, tapaus.sKey == halvin, tapaus.sKey == kallein);
    }
    return sisalto;
  }
  Luettelorivi Rivi(const Tapaus& tapaus) const {
    const double kerroin = vertailu_.NayttoKerroin();
    const auto rahana = [&](const std::optional<Vuosilasku>& lasku) {
      return lasku ? std::optional(lasku->Yhteensa() * kerroin) : std::nullopt;
    };
    const auto myynti = rahana(Myynti(tapaus)), siirto = rahana(Siirto(tapaus));
    Luettelorivi rivi{{tapaus.Nimi, TariffinNimi(tapaus.MyyntiTariffiSkey)}, tapaus.sKey};
    LisaaRaha(rivi, myynti);
    rivi.solut.push_back(TariffinNimi(tapaus.SiirtoTariffiSkey));
    LisaaRaha(rivi, siirto);
    LisaaRaha(rivi, myynti && siirto ? std::optional(*myynti + *siirto) : std::nullopt);
    LisaaRaha(rivi, tapaus.Investointi * kerroin);
    rivi.LisaaLuku(tapaus.TotEnergia, "### ##0.0");
    rivi.solut.push_back(tapaus.Kuvaus);
    if (!tapaus.TariffitLoytyvat(Tariffit()))
      rivi.piirteet = {.merkitys = Merkitys::Huomio, .selite = Teksti(tekstit::kYhdistelmanTariffiKadonnut)};
    return rivi;
  }
  static void Merkitse(Luettelorivi& rivi, bool halvin, bool kallein) {
    constexpr int kYhteensa = 5;
    if (halvin) rivi.piirteet = {.lihava = true, .selite = Teksti(tekstit::kHalvinYhdistelma)};
    if (kallein)
      rivi.piirteet = {
          .merkitys = Merkitys::Huomio, .merkitty = kYhteensa, .selite = Teksti(tekstit::kKalleinYhdistelma)};
  }
  std::string HalvinJaKallein() const {
    const clsTariffiVertailuTapaukset& kaikki = vertailu_.Tapaukset;
    const Tunniste halvin = kaikki.HalvinTariffisKey(Tariffit()), kallein = kaikki.KalleinTariffisKey(Tariffit());
    if (halvin == kallein) return {};
    const Tapaus &edullinen = Yhdistelma(halvin), &kallis = Yhdistelma(kallein);
    const double ero = kallis.KustannusYhteensa(Tariffit()) - edullinen.KustannusYhteensa(Tariffit());
    return Teksti(tekstit::kYhdistelmienEro) + " " + Vuodessa(ero * vertailu_.NayttoKerroin()) + ": " +
           Teksti(tekstit::kHalvinOn) + " " + edullinen.Nimi + ", " + Teksti(tekstit::kKalleinOn) + " " + kallis.Nimi;
  }
  /// What the person is to know; empty: nothing.
  std::string Ohje() const {
    if (myynnit_.Tyhja() && siirrot_.Tyhja()) return Teksti(tekstit::kVertailussaEiTariffeja);
    const clsTariffiVertailuTapaukset& kaikki = vertailu_.Tapaukset;
    const bool eroavat =
        std::ranges::any_of(kaikki, [&](const Tapaus& t) { return !SamatLahtotiedot(t, kaikki.Item(1)); });
    return eroavat ? Teksti(tekstit::kYhdistelmatEriEnergialla) : std::string();
  }

  std::string Talletuseste() const {
    const bool puuttuu = vertailtava_.MyyntiTariffiSkey.Tyhja() && vertailtava_.SiirtoTariffiSkey.Tyhja();
    return puuttuu ? Teksti(tekstit::kYhdistelmastaPuuttuuTariffi) : std::string();
  }
  /// Names of the tariffs and the VAT of the prices.
  std::string Nimiehdotus() const {
    std::string nimi;
    for (const Tunniste& avain : {vertailtava_.MyyntiTariffiSkey, vertailtava_.SiirtoTariffiSkey})
      if (!avain.Tyhja()) nimi += Tariffit().Item(avain).Nimi + ". ";
    const double alv = vertailu_.KaytaVertailussaALVHintoja ? Asetukset().dblSahkoALV : 0;
    return nimi + Teksti(tekstit::kAlv) + " " + Muotoile(alv, "0.##") + " %";
  }
  Tunniste Kayttoliittyma_TalletaYhdistelmaKlikattu() {
    Tapaus uusi = Vertailtava();
    uusi.sKey = Tunniste::Uusi(Tapaus::kLuokka.NimiSana());
    uusi.Nimi = Nimiehdotus();
    uusi.ToimenpiteenPaivays = TamaPaiva();
    uusi.ToimenpiteenTekijanNimi = Asetukset().strCurrentUserRealName;
    const bool talletettu = MuokkaaKuvausta({uusi, vertailu_.NayttoKerroin()}, [this](const Tapaus& tapaus) {
      Muuta(vertailu_, tekstit::kYhdistelmanTallennus, [&] { tapaus.Kopioi(vertailu_.Tapaukset.Add(tapaus.sKey)); });
    });
    return talletettu ? uusi.sKey : Tunniste();
  }
  void Muokkaa(Tapaus& muokattava) {
    MuokkaaKuvausta({muokattava, vertailu_.NayttoKerroin()}, [&](const Tapaus& tapaus) {
      Muuta(vertailu_, tekstit::kYhdistelmanTiedot, [&] { tapaus.Kopioi(Yhdistelma(tapaus.sKey)); });
    });
  }
  void Poista(const Tunniste& avain) {
    Muuta(vertailu_, tekstit::kYhdistelmanPoisto, [&] { vertailu_.Tapaukset.Remove(avain); });
  }
  /// Key of the arranger's row of the case; empty when there is none.
  static Tunniste JarjestelijanRivi(const Tunniste& tapaus) {
    for (const clsValittuToimenpide& rivi : VaadiRakennus().ToimenpiteidenJarjestelija.ValitutToimenpiteet)
      if (rivi.Tyyppi == clsValittuToimenpide::Tariffi && rivi.ToimenpidesKey == tapaus) return rivi.sKey;
    return {};
  }
  static std::string PoistonSeuraus(const Tunniste& avain) {
    return JarjestelijanRivi(avain).Tyhja() ? std::string() : Teksti(tekstit::kJarjestelijanRiviJaa);
  }

  // What is compared.

  void KentatMuuttuivat() {
    kLahtotiedot.Kirjoita(lomake_, vertailtava_);
    OtaLahtotiedot();
  }
  /// The comparison takes the energy and the powers of what is compared.
  void OtaLahtotiedot() {
    Muuta(vertailu_, tekstit::kVertailunLahtotiedot, [&] {
      vertailu_.TotEnergia = vertailtava_.TotEnergia;
      vertailu_.TotHuippuTeho = vertailtava_.TotHuippuTeho;
      vertailu_.TotLoisteho = vertailtava_.TotLoisteho;
    });
    LueDataluokka();
  }
  void TariffiValittu() {
    myynnit_.Ota(vertailtava_);
    siirrot_.Ota(vertailtava_);
    NaytaLuvut();
    lomake_.yhdistelmat.PaivitaNapit();
  }
  void AlvKlikattu() {
    Muuta(vertailu_, tekstit::kVertailunLahtotiedot,
          [&] { vertailu_.KaytaVertailussaALVHintoja = lomake_.chkALV.Valittu(); });
  }
  void MuokkaaTariffeja(const Tariffivalinta& valinta) {
    if (!lomake_.OtaKentat()) return;
    valinta.Muokkaa(vertailtava_);
    Nayta();
  }
  void OtaVertailuun() {
    const Tapaus& tapaus = *Valittu();
    tapaus.Kopioi(vertailtava_);
    OtaLahtotiedot();
  }

  // To the arranger.

  void Kayttoliittyma_VieTaulukko2eenKlikattu() {
    const Tapaus* tapaus = Valittu();
    if (!tapaus) return NaytaVirhe(virheet::kYhdistelmaValitsematta);
    if (!tapaus->TariffitLoytyvat(Tariffit()))
      return Ilmoita(Teksti(tekstit::kYhdistelmanTariffiKadonnut), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
    const Tunniste viite = Vertailukohta(vertailu_, *tapaus).Kysy();
    if (viite.Tyhja()) return;
    const Tunniste entinen = JarjestelijanRivi(tapaus->sKey);
    if (!entinen.Tyhja() && !SaaKorvata()) return;
    clsToimenpiteidenJarjestelija& jarjestelija = VaadiRakennus().ToimenpiteidenJarjestelija;
    double saasto = 0;
    Muuta(jarjestelija, tekstit::kTariffinVaihtoJarjestelijaan, [&] {
      if (!entinen.Tyhja()) jarjestelija.PoistaRivi(entinen);
      saasto = jarjestelija.LisaaTariffirivi(*tapaus, Yhdistelma(viite)).KustannusSaastoSahkoPatoTeho;
    });
    Ilmoita(Teksti(tekstit::kYhdistelmaViety) + " " + Vuodessa(saasto * vertailu_.NayttoKerroin()) + ".");
  }
  static bool SaaKorvata() {
    return ViestitNyt().Nayta({Teksti(tekstit::kYhdistelmaJoJarjestelijassa), Teksti(tekstit::kHuomautus),
                               Vakavuus::Kysymys, Napit::KyllaEi, Vastaus::Kylla}) == Vastaus::Kylla;
  }

  clsSahkoTariffienVertailu& vertailu_;
  frmSahkotariffiVertailu lomake_;
  Tapaus vertailtava_;
  Tariffivalinta myynnit_{lomake_.cmbMyyntiTariffit, clsTariffi::SahkoMyyntiTariffi, &Tapaus::MyyntiTariffiSkey};
  Tariffivalinta siirrot_{lomake_.cmbSiirtoTariffit, clsTariffi::SahkoSiirtoTariffi, &Tapaus::SiirtoTariffiSkey};
  Muutostilaus tilaus_;
};

void clsSahkoTariffienVertailu::NaytaKayttoliittyma() try {
  if (!ikkuna_.arvo) ikkuna_.arvo = std::make_shared<Tariffivertailuikkuna>(*this);
  ikkuna_.arvo->Avaa();
} catch (...) {
  NostaVirhe("clsSahkoTariffienVertailu:NaytaKayttoliittyma Method");
}
