// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a saving measure.
#include "building/Muokkausistunto.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "lifecycle/Elinkaariehdotukset.h"
#include "measures/Muunnelmalaskin.h"
#include "measures/Muutoskuvaus.h"
#include "measures/Toimenpidekohde.h"
#include "measures/clsSaastotoimenpide.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsEnergianHankinta.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_toimenpide.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Hiljaa.h"
#include "ui/Odotus.h"
#include "ui/Sidonta.h"
#include "ui/frmSaastotoimenpide.h"

namespace {

using Toimenpide = clsSaastotoimenpide;

constexpr const char* kMaara = "### ##0.00";
constexpr const char* kTeho = "0.00";
constexpr const char* kHinta = "0.00";
constexpr const char* kAika = "0.0";

template <Energialaji L>
double Kerroin(const Toimenpide&) {
  return Asetukset().NayttoKerroin(L);
}
constexpr auto kLampo = Kerroin<Energialaji::Lampo>;
constexpr auto kSahko = Kerroin<Energialaji::Sahko>;
constexpr auto kVesi = Kerroin<Energialaji::Vesi>;
constexpr auto kYleinen = Kerroin<Energialaji::Yleinen>;

const Sidontataulu kSidonnat{"frmSaastotoimenpide",
                             {
                                 Tekstikentta<&Toimenpide::Nimi>("txtNimi"),
                                 Tekstikentta<&Toimenpide::Kuvaus>("txtKuvaus"),
                                 Tekstikentta<&Toimenpide::ToimenpiteenPaivays>("txtToimenpiteenPaivays"),
                                 Tekstikentta<&Toimenpide::ToimenpiteenTekijanNimi>("txtToimenpiteenTekijanNimi"),
                                 Lukukentta<&Toimenpide::LampoEnergiaHinta, kLampo>("txtLampoEnergiaHinta", kHinta),
                                 Lukukentta<&Toimenpide::LampoTehoHinta, kLampo>("txtLampoTehoHinta", kHinta),
                                 Lukukentta<&Toimenpide::SahkoEnergiaHinta, kSahko>("txtSahkoEnergiaHinta", kHinta),
                                 Lukukentta<&Toimenpide::SahkoLoisTehoHinta, kSahko>("txtSahkoLoisTehoHinta", kHinta),
                                 Lukukentta<&Toimenpide::SahkoPatoTehoHinta, kSahko>("txtSahkoPatoTehoHinta", kHinta),
                                 Lukukentta<&Toimenpide::VesiHinta, kVesi>("txtVesiHinta", kHinta),
                                 Lukukentta<&Toimenpide::SaastoLampoteho>("txtSaastoLampoteho", kTeho),
                                 Lukukentta<&Toimenpide::SaastoPatoTeho>("txtSaastoPatoTeho", kTeho),
                                 Lukukentta<&Toimenpide::SaastoLoisTeho>("txtSaastoLoisTeho", kTeho),
                                 Lukukentta<&Toimenpide::Investointi, kYleinen>("txtInvestointi", "### ##0"),
                                 Lukukentta<&Toimenpide::TekninenKayttoika>("txtTekninenKayttoika", "##0.##"),
                             }};

/// What the person writes in the dialog. Cancel takes it back, but not the changes that the object after has brought.
class Kentat {
 public:
  explicit Kentat(Toimenpide& toimenpide) : toimenpide_(&toimenpide), arvot_(toimenpide) {}
  std::unique_ptr<Kentat> Kopioi() const { return std::make_unique<Kentat>(*toimenpide_); }
  /// Back to the measure that the copy was taken of.
  void Kopioi(Kentat& kohde) const {
    constexpr std::tuple kKentat{&Toimenpide::Nimi,
                                 &Toimenpide::Kuvaus,
                                 &Toimenpide::ToimenpiteenPaivays,
                                 &Toimenpide::ToimenpiteenTekijanNimi,
                                 &Toimenpide::LampoEnergiaHinta,
                                 &Toimenpide::LampoTehoHinta,
                                 &Toimenpide::SahkoEnergiaHinta,
                                 &Toimenpide::SahkoLoisTehoHinta,
                                 &Toimenpide::SahkoPatoTehoHinta,
                                 &Toimenpide::VesiHinta,
                                 &Toimenpide::SaastoLampoteho,
                                 &Toimenpide::SaastoPatoTeho,
                                 &Toimenpide::SaastoLoisTeho,
                                 &Toimenpide::Investointi,
                                 &Toimenpide::TekninenKayttoika};
    std::apply([&](auto... kentta) { ((kohde.toimenpide_->*kentta = arvot_.*kentta), ...); }, kKentat);
  }

 private:
  Toimenpide* toimenpide_;
  Toimenpide arvot_;
};

/// A figure that is shown, computed of the measure.
struct Naytto {
  const char* kentta;
  double (*arvo)(const Hyodykkeet& ennen, const Hyodykkeet& jalkeen, const Kustannussaastot& saasto);
  const char* kuvio = kMaara;
};
constexpr Energialaji L = Energialaji::Lampo, S = Energialaji::Sahko, V = Energialaji::Vesi;
double Raha(Energialaji laji, double maara) { return maara * Asetukset().NayttoKerroin(laji); }

using H = const Hyodykkeet&;
using K = const Kustannussaastot&;
constexpr Naytto kNaytot[] = {
    {"txtLampoEnnen", [](H ennen, H, K) { return ennen.lampo; }},
    {"txtSahkoEnnen", [](H ennen, H, K) { return ennen.sahko; }},
    {"txtVesiEnnen", [](H ennen, H, K) { return ennen.vesi; }},
    {"txtLampoJalkeen", [](H, H jalkeen, K) { return jalkeen.lampo; }},
    {"txtSahkoJalkeen", [](H, H jalkeen, K) { return jalkeen.sahko; }},
    {"txtVesiJalkeen", [](H, H jalkeen, K) { return jalkeen.vesi; }},
    {"txtLampoSaasto", [](H ennen, H jalkeen, K) { return ennen.lampo - jalkeen.lampo; }},
    {"txtSahkoSaasto", [](H ennen, H jalkeen, K) { return ennen.sahko - jalkeen.sahko; }},
    {"txtVesiSaasto", [](H ennen, H jalkeen, K) { return ennen.vesi - jalkeen.vesi; }},
    {"txtLampoKustannus", [](H, H, K saasto) { return Raha(L, saasto.lampoEnergia); }},
    {"txtSahkoKustannus", [](H, H, K saasto) { return Raha(S, saasto.sahkoEnergia); }},
    {"txtVesiKustannus", [](H, H, K saasto) { return Raha(V, saasto.vesi); }},
    {"txtLampotehoKustannus", [](H, H, K saasto) { return Raha(L, saasto.lampoTeho); }},
    {"txtPatotehoKustannus", [](H, H, K saasto) { return Raha(S, saasto.sahkoPatoTeho); }},
    {"txtLoistehoKustannus", [](H, H, K saasto) { return Raha(S, saasto.sahkoLoisTeho); }},
    {"txtKustannusSaastoYhteensa",
     [](H, H, K saasto) { return saasto.Yhteensa(Asetukset().NaytettavatAlvt()) * Asetukset().dblCurrencyConvCoeff; }},
};

/// The dialog while it is open. The measure follows what is written.
class Toimenpidemuokkaus {
 public:
  Toimenpidemuokkaus(Toimenpide& toimenpide, clsRakennus& rakennus)
      : toimenpide_(toimenpide), rakennus_(rakennus), laskin_(rakennus), kuvaus_(rakennus) {
    lomake_.KenttaMuuttui = [this](const Ohjain& kentta) { KayttoLiittyma_DataMuuttui(kentta); };
    lomake_.EnnenKlikattu = [this] { NaytaEnnen(); };
    lomake_.JalkeenKlikattu = [this] { NaytaJalkeen(); };
    lomake_.PoistaMuutosKlikattu = [this] { PoistaMuutos(); };
    lomake_.KayttoiatKlikattu = [this] { OtaKayttoika(); };
    lomake_.RahatMuuttuivat = [this] { LueDataluokka(); };
    const std::string& luokka = toimenpide_.MuuttuneetAttribuutit.TyypinNimi;
    lomake_.imgModuuli.Kuva(std::string(ToimenpiteenKuva(luokka)));
    if (const Tekstinumero moduuli = ToimenpiteenModuuli(luokka)) lomake_.lblModuuli.Otsikko(Teksti(moduuli));
    lomake_.cmdEnnen.Nakyva(toimenpide_.Kelluva());
    lomake_.NaytaTariffisaasto(luokka == clsEnergianHankinta::kLuokka.Nimi());
  }

  bool Nayta() {
    Kentat kentat(toimenpide_);
    const std::string otsikko = lomake_.Otsikko();
    Muokkausistunto istunto(kentat, lomake_,
                            {.nimi = toimenpide_.Nimi,
                             .lue = [this] { LueDataluokka(); },
                             .kirjoita = [this] { kSidonnat.Kirjoita(lomake_, toimenpide_); },
                             .tapahtuma =
                                 [&] {
                                   Kirjaa(otsikko);
                                   Nosta(toimenpide_.OkKlikattu.arvo, toimenpide_.sKey);
                                 },
                             .virheenJalkeen = [this] { LueDataluokka(); },
                             .peruttu = [&] { Kirjaa(otsikko); }});
    return istunto.Nayta();
  }

 private:
  /// One step of undo. Also at Cancel, when the changes have been edited: they stay.
  void Kirjaa(const std::string& toiminto) {
    if (!rakennus_.Kirjaamatta()) return;
    rakennus_.ToimenpiteidenJarjestelija.Vanhenna();
    rakennus_.ToimenpiteetMuuttuivat(toiminto);
  }

  // From the measure to the fields.

  void LueDataluokka() {
    const Odotus odotus;
    lomake_.NaytaVero(Asetukset().Verohuomautus());
    kSidonnat.Paivita(lomake_, toimenpide_);
    NaytaMuutokset();
    NaytaLuvut();
  }
  /// What the calculation complains of is told in words beside the figures.
  void NaytaLuvut() {
    const Hiljaisuus hiljaisuus;
    std::string huomautus;
    try {
      if (!toimenpide_.EnnenTiedotUpToDate || !toimenpide_.JalkeenTiedotUpToDate)
        toimenpide_.PaivitaKulutukset(laskin_);
      NaytaLuvut(toimenpide_.KulutusEnnen(), toimenpide_.KulutusJalkeen());
      NaytaOstot();
      huomautus = hiljaisuus.EnsimmainenViesti();
    } catch (const Virhe& virhe) {
      for (const Naytto& naytto : kNaytot) lomake_.Etsi(naytto.kentta).Teksti(Teksti(tekstit::kViiva));
      lomake_.txtTakaisinmaksuaika.Teksti(Teksti(tekstit::kViiva));
      NaytaOstot();
      huomautus = virhe.Kuvaus();
    }
    lomake_.lblHuomautus.Otsikko(huomautus.empty() ? Tilannehuomautus() : huomautus);
  }
  void NaytaLuvut(const Hyodykkeet& ennen, const Hyodykkeet& jalkeen) {
    const Kustannussaastot saasto = toimenpide_.Kustannussaasto(ennen - jalkeen);
    for (const Naytto& naytto : kNaytot)
      lomake_.Etsi(naytto.kentta).Teksti(Muotoile(naytto.arvo(ennen, jalkeen, saasto), naytto.kuvio));
    const Alvprosentit alv = Asetukset().NaytettavatAlvt();
    NaytaAika(lomake_.txtTakaisinmaksuaika, saasto.Yhteensa(alv));
  }
  /// By a yearly saving in euros, with VAT when amounts are shown with it; none for one that is shown as 0.
  void NaytaAika(const TextBox& kentta, double saasto) const {
    const bool nolla = LueLuku(Muotoile(saasto * Asetukset().dblCurrencyConvCoeff, kMaara)) == 0;
    kentta.Teksti(
        nolla ? Teksti(tekstit::kViiva)
              : Muotoile(::Takaisinmaksuaika(toimenpide_.Investointi, saasto, Asetukset().NaytettavatAlvt()), kAika));
  }
  /// What is bought, each state by its own supplies and tariffs; dashes where that can't be told.
  void NaytaOstot() {
    const auto ostot = LaskeHiljaa([this] { return toimenpide_.Ostosaasto(laskin_); });
    if (!ostot) {
      for (const TextBox& kentta : {lomake_.txtPaastosaasto, lomake_.txtTariffisaasto, lomake_.txtTariffiaika})
        kentta.Teksti(Teksti(tekstit::kViiva));
      return;
    }
    const Hyodykkeet& hinta = ostot->hinta;
    const double saasto = Raha(L, hinta.lampo) + Raha(S, hinta.sahko) + Raha(V, hinta.vesi);
    lomake_.txtPaastosaasto.Luku(ostot->paastot, kMaara);
    lomake_.txtTariffisaasto.Luku(saasto, kMaara);
    NaytaAika(lomake_.txtTariffiaika, saasto / Asetukset().dblCurrencyConvCoeff);
  }
  std::string Tilannehuomautus() {
    if (!toimenpide_.Ennen()) return Teksti(tekstit::kToimenpiteenKohdePuuttuu);
    if (lahtotilanneMuuttui_) return Teksti(tekstit::kLahtotilanneMuuttui);
    if (toimenpide_.MuuttuneetAttribuutit.Count() == 0) return Teksti(tekstit::kToimenpideEiMuutaMitaan);
    return {};
  }
  void NaytaMuutokset() {
    Luettelosisalto sisalto;
    for (const Muutosrivi& muutos : kuvaus_.Rivit(toimenpide_))
      sisalto.rivit.push_back({{muutos.kohde, muutos.ominaisuus, muutos.ennen, muutos.jalkeen}, muutos.avain});
    lomake_.NaytaMuutokset(std::move(sisalto));
    lomake_.cmdJalkeen.Kaytossa(toimenpide_.Ennen() != nullptr);
  }

  // What the person does.

  void KayttoLiittyma_DataMuuttui(const Ohjain& kentta) {
    if (kSidonnat.KirjoitaKentta(kentta, toimenpide_)) NaytaLuvut();
  }
  std::string KohteenNimi() { return kuvaus_.KohteenNimi(toimenpide_); }
  void NaytaEnnen() {
    const Odotus odotus(Teksti(tekstit::kAvataanLahtotilanne) + " " + KohteenNimi());
    MuokkaaToimenpidekohdetta(*toimenpide_.Ennen(), false, [this] { EnnenMuuttui(); });
  }
  void EnnenMuuttui() {
    rakennus_.Tallennettu = false;
    lahtotilanneMuuttui_ = toimenpide_.Kelluva();
    if (!toimenpide_.Kelluva()) toimenpide_.EnnenTiedotUpToDate = toimenpide_.JalkeenTiedotUpToDate = false;
    LueDataluokka();
  }
  void NaytaJalkeen() {
    Odotus odotus(Teksti(tekstit::kMuodostetaanJalkeinen));
    const auto jalkeen = toimenpide_.TeeJalkeen();
    odotus.Teksti(Teksti(tekstit::kAvataanJalkeinen) + " " + KohteenNimi());
    MuokkaaToimenpidekohdetta(*jalkeen, toimenpide_.Kelluva(), [&] {
      MuutaToimenpidetta([&] { toimenpide_.PaivitaMuuttuneetAttribuutit(*jalkeen); });
      lahtotilanneMuuttui_ = false;
      LueDataluokka();
    });
  }
  void OtaKayttoika() {
    const auto ehdotus = PoimiEhdotus(Ehdotuslaji::Kayttoika);
    if (!ehdotus) return;
    toimenpide_.TekninenKayttoika = ehdotus->Arvo;
    kSidonnat.Paivita(lomake_, toimenpide_);
  }
  void PoistaMuutos() {
    const Tunniste avain = lomake_.lvwMuutokset.Valittu();
    if (avain.Tyhja()) return;
    MuutaToimenpidetta([&] { toimenpide_.PeruMuutos(avain); });
    LueDataluokka();
  }
  /// Other changes and their figures. After an error the measure has those that it had.
  void MuutaToimenpidetta(const std::function<void()>& muuta) {
    const Odotus odotus;
    const Napit napit(*this);
    const auto varalla = toimenpide_.Kopioi();
    try {
      muuta();
      toimenpide_.JalkeenTiedotUpToDate = false;
      toimenpide_.PaivitaKulutukset(laskin_);
    } catch (...) {
      varalla->Kopioi(toimenpide_);
      throw;
    }
    rakennus_.Tallennettu = false;
    kSidonnat.Kirjoita(lomake_, toimenpide_);
  }

  /// The buttons that act wait while figures are computed.
  class Napit {
   public:
    explicit Napit(Toimenpidemuokkaus& muokkaus) : muokkaus_(muokkaus) { Kaytossa(false); }
    ~Napit() { Kaytossa(true); }
    Napit(const Napit&) = delete;
    Napit& operator=(const Napit&) = delete;

   private:
    void Kaytossa(bool kaytossa) const {
      for (const CommandButton& nappi :
           {muokkaus_.lomake_.cmdEnnen, muokkaus_.lomake_.cmdJalkeen, muokkaus_.lomake_.cmdOk})
        nappi.Kaytossa(kaytossa);
    }
    Toimenpidemuokkaus& muokkaus_;
  };

  Toimenpide& toimenpide_;
  clsRakennus& rakennus_;
  Muunnelmalaskin laskin_;
  Muutoskuvaus kuvaus_;
  frmSaastotoimenpide lomake_;
  bool lahtotilanneMuuttui_ = false;  // and the side after isn't computed for it
};

}  // namespace

bool clsSaastotoimenpide::NaytaKayttoliittyma() try {
  return Toimenpidemuokkaus(*this, koti_.Rakennus()).Nayta();
} catch (...) {
  NostaVirhe("clsSaastotoimenpide:NaytaKayttoliittyma Method", Virheenkohde{Nimi});
}
