// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Rakennemuokkaus.h"

#include <algorithm>
#include <numeric>

#include "building/LisaaKopio.h"
#include "building/Muokkausistunto.h"
#include "building/Rakenneleikkaus.h"
#include "building/Toimenpideviittaukset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "kernel/Luvut.h"
#include "kernel/Sormenjalki.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Hiljaa.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Liittaminen.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr const char* kUarvo = "0.00#";
constexpr const char* kAla = "### ##0.0#";
constexpr const char* kKulma = "0.#";
constexpr const char* kEiArvoa = "---";
constexpr const char* kKonduktanssi = "### ##0.0";  // W/K
constexpr const char* kOsuus = "0.0";               // %
constexpr int kUsarake = 3;

const Sidontataulu kRatkaisunSidonnat{
    "frmRakenteet",
    {
        Tekstikentta<&Rakenneratkaisu::Nimi>("txtNimi"),
        Tekstikentta<&Rakenneratkaisu::Kuvaus>("txtKuvaus"),
        Tekstikentta<&Rakenneratkaisu::Paloluokka>("txtPaloluokka"),
        Lukukentta<&Rakenneratkaisu::Paksuus>("txtPaksuus", "### ##0.##"),
        Lukukentta<&Rakenneratkaisu::Rw>("txtRw", "0.#"),
        Lukukentta<&Rakenneratkaisu::Pistemaiset>("txtPistemaiset", "### ##0.##"),
        Lukukentta<&Rakenneratkaisu::PistemaisetWpK>("txtPistemaisetWpK", "0.00##"),
        Lukukentta<&Rakenneratkaisu::Viivamaiset>("txtViivamaiset", "### ##0.##"),
        Lukukentta<&Rakenneratkaisu::ViivamaisetWpK>("txtViivamaisetWpK", "0.00##"),
        Lukukentta<&Rakenneratkaisu::PintavastusSisa>("txtPintavastusSisa", "0.00#"),
        Lukukentta<&Rakenneratkaisu::PintavastusUlko>("txtPintavastusUlko", "0.00#"),
        Lukukentta<&Rakenneratkaisu::KerrostenMassaYht>("txtKerrostenMassaYht", "### ##0.#"),
        Lukukentta<&Rakenneratkaisu::Karmikerroin>("txtKarmikerroin", "0.#"),
        Lukukentta<&Rakenneratkaisu::Aurinkoenergianlapaisy>("txtAurinkoenergianlapaisy", "0.#"),
        Lukukentta<&Rakenneratkaisu::Verhokerroin>("txtVerhokerroin", "0.#"),
        Lukukentta<&Rakenneratkaisu::Kokonaisvarjostuskerroin>("txtKokonaisvarjostuskerroin", "0.#"),
    }};

double Uarvo(const clsRakenne& rakenne) { return rakenne.U_arvo(); }
/// A calculated U-value isn't written.
void AsetaUarvo(clsRakenne& rakenne, double u) {
  if (!rakenne.LaskeU_arvoMateriaaleista && u != rakenne.U_arvo()) rakenne.U_arvo(u);
}

const Sidontataulu kSidonnat{"frmRakenteet",
                             {
                                 Lukukentta<&clsRakenne::PintaAla>("txtRakenneala", kAla),
                                 Rastikentta<&clsRakenne::LaskeU_arvoMateriaaleista>("chkLaskeUarvoMateriaaleista"),
                                 Lukukentta<Funktiot<Uarvo, AsetaUarvo>>("txtUarvo", kUarvo),
                             }};
/// What only a structure that borders on something has.
const Sidontataulu kRajanSidonnat{"frmRakenteet",
                                  {Valintakentta<&clsRakenne::TyyppiID, &clsRakenne::TyyppiStr>("cmbTyyppi")}};
/// What only a window has.
const Sidontataulu kIkkunanSidonnat{
    "frmRakenteet",
    {
        Valintakentta<&clsRakenne::SuuntausID, &clsRakenne::SuuntausStr>("cmbSuuntaus"),
        Valintakentta<Polku<&clsRakenne::YlaLippa, &clsLippaVarjostus::TyyppiID>,
                      Polku<&clsRakenne::YlaLippa, &clsLippaVarjostus::TyyppiStr>>("cmbYlalipanTyyppi"),
        Lukukentta<Polku<&clsRakenne::YlaLippa, &clsLippaVarjostus::Varjostuskulma>>("txtYlalipanVarjostuskulma",
                                                                                     kKulma),
        Valintakentta<Polku<&clsRakenne::SivuLippa, &clsLippaVarjostus::TyyppiID>,
                      Polku<&clsRakenne::SivuLippa, &clsLippaVarjostus::TyyppiStr>>("cmbSivulipanTyyppi"),
        Lukukentta<Polku<&clsRakenne::SivuLippa, &clsLippaVarjostus::Varjostuskulma>>("txtSivulipanVarjostuskulma",
                                                                                      kKulma),
        Valintakentta<Polku<&clsRakenne::HorisVarjostus, &clsHorisVarjostus::TyyppiID>,
                      Polku<&clsRakenne::HorisVarjostus, &clsHorisVarjostus::TyyppiStr>>("cmbHorisVarjTyyppi"),
        Lukukentta<Polku<&clsRakenne::HorisVarjostus, &clsHorisVarjostus::Varjostuskulma>>(
            "txtYmparistonVarjostuskulma", kKulma),
    }};

/// What a type of shading sets; the types behind leave the angle as it is.
constexpr std::array<double, 2> kYlalippakulmat{25, 45};  // degrees
constexpr std::array<double, 2> kSivulippakulmat{10, 30};
constexpr std::array<double, 3> kHorisonttikulmat{15, 30, 45};

/// Takes the chosen type of shading and its angle.
template <class V>
void ValitseVarjostus(V& varjostus, const ComboBox& tyyppi, const TextBox& kulma, std::span<const double> kulmat) {
  varjostus.TyyppiID = tyyppi.Indeksi();
  varjostus.TyyppiStr = tyyppi.Teksti();
  const auto rivi = static_cast<std::size_t>(varjostus.TyyppiID);
  if (rivi >= kulmat.size()) return;
  varjostus.Varjostuskulma = kulmat[rivi];
  kulma.Luku(varjostus.Varjostuskulma, kKulma);
}

std::string ValinnanRivi(const ComboBox& valinta, std::int32_t rivi) {
  const auto& rivit = valinta.Kohde().Rivit();
  const auto i = static_cast<std::size_t>(rivi);
  return rivi >= 0 && i < rivit.size() ? rivit[i].front() : std::string();
}

/// Conduction loss of the structure in a year, kWh; 0 when it can't be computed, which the calculation tells of.
double VuosiHavio(const clsRakenne& rakenne, double Tsisa) {
  const auto havio = LaskeHiljaa([&] {
    double summa = 0;
    for (int m = 0; m < kKuukausia; ++m) summa += rakenne.LampoHaviot(Tsisa, m);
    return summa;
  });
  return havio.value_or(0);
}

/// Difference of indoor and outdoor temperature over the year, Kh.
double Astetunnit(double Tsisa) {
  constexpr double kTuntiaVuorokaudessa = 24;
  double astetunnit = 0;
  for (int m = 0; m < kKuukausia; ++m)
    astetunnit +=
        (Tsisa - VaadiSaa().Keskilampotila(m)) * kPaivatKuukaudessa[static_cast<std::size_t>(m)] * kTuntiaVuorokaudessa;
  return astetunnit;
}

/// Conduction losses of all structures.
struct Haviot {
  double yhteensa = 0;  // kWh/a
  double astetunnit;    // Kh/a

  /// Adds the cells of conductance, W/K, as the mean of the year, and of the share of the loss, %.
  void Lisaa(Luettelorivi& rivi, double havio) const {
    constexpr double kWperkW = 1000;
    const auto lisaa = [&](bool tiedossa, double arvo, const char* kuvio) {
      if (tiedossa) return rivi.LisaaLuku(arvo, kuvio);
      rivi.solut.emplace_back(kEiArvoa);
    };
    lisaa(astetunnit > 0, havio * kWperkW / astetunnit, kKonduktanssi);
    lisaa(yhteensa > 0, havio / yhteensa * 100, kOsuus);
  }
};

bool OnIkkuna(const clsRakenne& rakenne) { return rakenne.Rakennetyyppi == Rakennelaji::Ikkuna; }
bool Rajoittuu(const clsRakenne& rakenne) { return rakenne.Rakennetyyppi <= Rakennelaji::Alapohja; }

/// Heat should go through it to the air, but it has no U-value. The loss to the ground asks for none.
bool UarvoPuuttuu(const clsRakenne& rakenne) {
  const bool ilmaan = Rajoittuu(rakenne) ? rakenne.TyyppiID == kUlkoilma || rakenne.TyyppiID == kPuskuritila
                                         : OnIkkuna(rakenne) || rakenne.Rakennetyyppi == Rakennelaji::Ovi;
  return ilmaan && rakenne.U_arvo() <= 0;
}

/// A solution without layers; a window lets the sun through as an ordinary one.
Rakenneratkaisu UusiRatkaisu(const std::string& nimi, std::int32_t rakennetyyppi) {
  Rakenneratkaisu ratkaisu = PuuttuvaRakenneratkaisu({}, rakennetyyppi);
  ratkaisu.Nimi = nimi;
  ratkaisu.Kerrokset.Tyhjenna();
  const Pintavastukset pinnat = Oletuspintavastukset(ratkaisu.Rakennetyyppi);
  ratkaisu.PintavastusSisa = pinnat.sisa;
  ratkaisu.PintavastusUlko = pinnat.ulko;
  return ratkaisu;
}

/// Makes a new structure of that kind of it.
void Alusta(clsRakenne& rakenne, std::int32_t rakennetyyppi, const std::string& nimi) {
  LuoRakenne(rakenne, {nimi, rakennetyyppi, 0, 0, 0, {}}, nullptr);
  rakenne.RakenneRatkaisu.Luo() = UusiRatkaisu(nimi, rakennetyyppi);
}

/// The kind by the word of the choice list or of the library.
Solutulos AsetaTyyppi(Olio& olio, std::string_view sana) {
  std::vector<std::string> tyypit = Valintalista("frmRakenteet", "cmbRakennetyyppi");
  tyypit.erase(tyypit.begin());  // "all"
  const std::int32_t tyyppi = RakennetyyppiSanasta(sana).value_or(SananPaikka(tyypit, sana));
  if (tyyppi < 0) return EiValinta(tyypit);
  Alusta(static_cast<clsRakenne&>(olio), tyyppi, {});
  return {};
}

Solutulos AsetaNimi(Olio& olio, std::string_view nimi) {
  static_cast<clsRakenne&>(olio).RakenneRatkaisu->Nimi = nimi;
  return {};
}

/// What pasted rows tell of structures: the kind first, since it decides what the others begin with.
std::vector<Liitossarake> Liitossarakkeet(bool tyyppiVaaditaan) {
  return {
      {tekstit::kSarakeRakennetyyppi, AsetaTyyppi, tyyppiVaaditaan ? tekstit::kLiitettavaIlmanTyyppia : Tekstinumero{}},
      {tekstit::kSarakeRakenne, AsetaNimi},
      Jasensarake(tekstit::kSarakePintaAla, "PintaAla"),
      Jasensarake(tekstit::kSarakeUarvo, "U_arvo"),
      Valintasarake(tekstit::kSarakeRajoittuu, "TyyppiID", "TyyppiStr", "frmRakenteet", "cmbTyyppi"),
      Valintasarake(tekstit::kSarakeSuuntaus, "SuuntausID", "SuuntausStr", "frmRakenteet", "cmbSuuntaus")};
}

std::string Poistoeste(clsRakenne& rakenne) {
  const std::string nimet = ViittaavatToimenpiteet(rakenne);
  return nimet.empty() ? nimet : Teksti(tekstit::kRakennettaEiVoiPoistaa) + " " + nimet;
}

std::uint64_t Sormenjalki(clsRakenne& rakenne) { return Sormenjalki(rakenne, VaadiRakennus().TyyppiTiedot); }

/// The row without its losses.
Luettelorivi Rivi(const frmRakenteet& l, const clsRakenne& rakenne) {
  Luettelorivi rivi{{rakenne.NaytettavaNimi(), ValinnanRivi(l.cmbRakennetyyppi, rakenne.Rakennetyyppi + 1)},
                    rakenne.sKey};
  rivi.LisaaLuku(rakenne.PintaAla, "### ##0.00");
  rivi.LisaaLuku(rakenne.U_arvo(), kUarvo);
  rivi.solut.push_back(Rajoittuu(rakenne) ? ValinnanRivi(l.cmbTyyppi, rakenne.TyyppiID) : "");
  rivi.solut.push_back(OnIkkuna(rakenne) ? ValinnanRivi(l.cmbSuuntaus, rakenne.SuuntausID) : "");
  if (UarvoPuuttuu(rakenne))
    rivi.piirteet = {.merkitys = Merkitys::Huomio, .merkitty = kUsarake, .selite = Teksti(tekstit::kUarvoPuuttuu)};
  return rivi;
}

}  // namespace

Rakennemuokkaus::Rakennemuokkaus(clsRakenteet& rakenteet, double Tsisa) : rakenteet_(rakenteet), Tsisa_(Tsisa) {
  LiitaTapahtumat();
  LiitaKerrostapahtumat();
}

bool Rakennemuokkaus::Nayta(std::int32_t rakennetyyppi, const std::string& tilanNimi) {
  KayttoLiittyma.Naytettavat(rakennetyyppi);
  std::unordered_set<Tunniste> entiset;
  for (const clsRakenne& rakenne : rakenteet_) entiset.insert(rakenne.sKey);
  Muokkausistunto istunto(rakenteet_, KayttoLiittyma,
                          {.nimi = tilanNimi,
                           .lue = [this] { NaytaLuettelo({}); },
                           .kirjoita = [this] { KirjoitaDataluokka(); },
                           .tarkista = [this, entiset] { return UarvotOnAnnettu(entiset); },
                           .virheenJalkeen = [this] { NaytaLuettelo(muokattava_); }});
  return istunto.Nayta();
}

bool Rakennemuokkaus::UarvotOnAnnettu(const std::unordered_set<Tunniste>& entiset) {
  std::string nimet;
  Tunniste ensimmainen;
  for (const clsRakenne& rakenne : rakenteet_) {
    if (entiset.contains(rakenne.sKey) || !UarvoPuuttuu(rakenne)) continue;
    if (nimet.empty()) ensimmainen = rakenne.sKey;
    nimet += "\n" + rakenne.NaytettavaNimi();
  }
  if (nimet.empty()) return true;
  const Viesti kysymys{Teksti(tekstit::kUarvojaPuuttuu) + nimet, Teksti(tekstit::kHuomautus), Vakavuus::Kysymys,
                       Napit::KyllaEi, Vastaus::Kylla};
  if (ViestitNyt().Nayta(kysymys) == Vastaus::Ei) return true;
  NaytaLuettelo(ensimmainen);
  KayttoLiittyma.txtUarvo.Kohdista();
  return false;
}

void Rakennemuokkaus::LiitaTapahtumat() {
  frmRakenteet& lomake = KayttoLiittyma;
  lomake.luettelo.Aseta(Luettelonhoito());
  lomake.NaytettavatValittu = [this] { KayttoLiittyma_NaytettavatValittu(); };
  lomake.HaeKirjastostaKlikattu = [this] { KayttoLiittyma_HaeKirjastosta(); };
  lomake.UarvonLahdeKlikattu = [this] { KayttoLiittyma_UarvonLahdeKlikattu(); };
  lomake.RajoittuminenValittu = [this] { KayttoLiittyma_RajoittuminenValittu(); };
  lomake.PintavastusMuuttui = [this] { KayttoLiittyma_PintavastusMuuttui(); };
  lomake.VarjostusValittu = [this](frmRakenteet::Varjostus v) { KayttoLiittyma_VarjostusValittu(v); };
}

void Rakennemuokkaus::LueDataluokka() {
  clsRakenne* rakenne = Muokattava();
  if (!rakenne) return TyhjennaKentat();
  luettu_ = Sormenjalki(*rakenne);
  const frmRakenteet& l = KayttoLiittyma;
  l.lblRakennetyypinNimi.Otsikko(ValinnanRivi(l.cmbRakennetyyppi, rakenne->Rakennetyyppi + 1));
  kSidonnat.Lue(l, *rakenne);
  kRajanSidonnat.Lue(l, *rakenne);
  kIkkunanSidonnat.Lue(l, *rakenne);
  LueRatkaisu(rakenne->RakenneRatkaisu ? *rakenne->RakenneRatkaisu : Rakenneratkaisu());
  NaytaUarvo();
  NaytaKerrokset(-1);
}

void Rakennemuokkaus::TyhjennaKentat() {
  for (const auto& ohjain : KayttoLiittyma.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti("");
  for (const ComboBox& valinta : {KayttoLiittyma.cmbTyyppi, KayttoLiittyma.cmbSuuntaus}) valinta.Indeksi(-1);
  KayttoLiittyma.chkLaskeUarvoMateriaaleista.Valittu(false);
  KayttoLiittyma.lblRakennetyypinNimi.Otsikko("");
  KayttoLiittyma.lvwKerrokset.Rivit({});
  KayttoLiittyma.chtLampotilat.Kaavio({});
}

void Rakennemuokkaus::LueRatkaisu(const Rakenneratkaisu& ratkaisu) { kRatkaisunSidonnat.Lue(KayttoLiittyma, ratkaisu); }

void Rakennemuokkaus::KirjoitaDataluokka() {
  clsRakenne* rakenne = Muokattava();
  if (!rakenne) return;
  const frmRakenteet& l = KayttoLiittyma;
  kSidonnat.Kirjoita(l, *rakenne);
  if (Rajoittuu(*rakenne)) kRajanSidonnat.Kirjoita(l, *rakenne);
  if (OnIkkuna(*rakenne)) kIkkunanSidonnat.Kirjoita(l, *rakenne);
  if (rakenne->RakenneRatkaisu || kRatkaisunSidonnat.Muuttunut(l)) kRatkaisunSidonnat.Kirjoita(l, Ratkaisu());
  for (const auto& ohjain : l.Ohjaimet()) ohjain->PaataMuokkaus();
}

Rakenneratkaisu Rakennemuokkaus::RatkaisuTaiUusi() const {
  const clsRakenne& rakenne = rakenteet_.Item(muokattava_);
  return rakenne.RakenneRatkaisu ? *rakenne.RakenneRatkaisu : UusiRatkaisu({}, rakenne.Rakennetyyppi);
}

Rakenneratkaisu& Rakennemuokkaus::Ratkaisu() {
  clsRakenne& rakenne = rakenteet_.Item(muokattava_);
  if (!rakenne.RakenneRatkaisu) rakenne.RakenneRatkaisu.Luo() = RatkaisuTaiUusi();
  return *rakenne.RakenneRatkaisu;
}

bool Rakennemuokkaus::KaikkiNaytetaan() const { return KayttoLiittyma.Naytettavat() == frmRakenteet::kKaikki; }

bool Rakennemuokkaus::Naytetaan(const clsRakenne& rakenne) const {
  return KaikkiNaytetaan() || KayttoLiittyma.Naytettavat() == rakenne.Rakennetyyppi;
}

Luettelosisalto Rakennemuokkaus::Rivit(const Tunniste& valittava) const {
  std::vector<double> havio;
  for (const clsRakenne& rakenne : rakenteet_) havio.push_back(VuosiHavio(rakenne, Tsisa_));
  const Haviot haviot{std::accumulate(havio.begin(), havio.end(), 0.0), Astetunnit(Tsisa_)};
  double naytetty = 0;
  Luettelosisalto sisalto;
  auto oma = havio.begin();
  for (const clsRakenne& rakenne : rakenteet_) {
    const double rakenteen = *oma++;
    if (!Naytetaan(rakenne) && rakenne.sKey != valittava) continue;
    sisalto.rivit.push_back(Rivi(KayttoLiittyma, rakenne));
    haviot.Lisaa(sisalto.rivit.back(), rakenteen);
    naytetty += rakenteen;
  }
  Luettelorivi summat{{Teksti(tekstit::kRakenteetYhteensa), "", "", "", "", ""}};
  haviot.Lisaa(summat, naytetty);
  sisalto.summat = std::move(summat.solut);
  return sisalto;
}

/// Fills the list and chooses the structure of that key, whatever its kind; the first one when there is none.
void Rakennemuokkaus::NaytaLuettelo(const Tunniste& valittava) {
  KayttoLiittyma.lvwRakenteet.Tayta(Rivit(valittava));
  KayttoLiittyma.luettelo.Valitse(valittava);
}

void Rakennemuokkaus::NaytaValittu() {
  muokattava_ = KayttoLiittyma.luettelo.Valittu();
  LueDataluokka();
  PaivitaKentat();
}

/// A structure has changed, and with it the share of each. Rows that didn't change stay, and so does what is selected.
void Rakennemuokkaus::PaivitaRivit() {
  const ListView& lista = KayttoLiittyma.lvwRakenteet;
  const Tunniste valittu = lista.Valittu();
  lista.Tayta(Rivit(muokattava_));
  lista.Valitse(valittu);
}

/// Writes the fields to the structure that they tell of; its row, and the shares of all, follow if it has changed.
bool Rakennemuokkaus::OtaKentat() {
  if (!TarkistaLukukentat(KayttoLiittyma)) return false;
  KirjoitaDataluokka();
  if (clsRakenne* rakenne = Muokattava(); rakenne && Sormenjalki(*rakenne) != luettu_) PaivitaRivit();
  return true;
}

/// The picture, the U-value of the layers, and with it the structure's own when that is the source.
void Rakennemuokkaus::NaytaUarvo() {
  const clsRakenne& rakenne = rakenteet_.Item(muokattava_);
  const auto kerroksista = rakenne.RakenneRatkaisu ? rakenne.RakenneRatkaisu->LaskeU_arvo() : std::optional<double>();
  KayttoLiittyma.txtKerrostenUarvo.Teksti(kerroksista ? Muotoile(*kerroksista, kUarvo) : kEiArvoa);
  if (rakenne.LaskeU_arvoMateriaaleista) KayttoLiittyma.txtUarvo.Luku(rakenne.U_arvo(), kUarvo);
  KayttoLiittyma.chtLampotilat.Kaavio(Rakenneleikkaus(rakenne, Tsisa_));
}

void Rakennemuokkaus::PaivitaKentat() {
  const clsRakenne* rakenne = Muokattava();
  KayttoLiittyma.PaivitaKentat({.valittu = rakenne != nullptr,
                                .ikkuna = rakenne && OnIkkuna(*rakenne),
                                .rajoittuu = rakenne && Rajoittuu(*rakenne),
                                .kerroksia = !KayttoLiittyma.lvwKerrokset.Rivit().empty()});
}

void Rakennemuokkaus::KayttoLiittyma_NaytettavatValittu() {
  KirjoitaDataluokka();
  const clsRakenne* valittu = Muokattava();
  NaytaLuettelo(valittu && Naytetaan(*valittu) ? muokattava_ : Tunniste());
}

clsRakenne& Rakennemuokkaus::LisaaRakenne(std::int32_t rakennetyyppi, const std::string& nimi) {
  clsRakenne& rakenne = rakenteet_.Add(Tunniste::Uusi(clsRakenne::kLuokka.NimiSana()));
  Alusta(rakenne, rakennetyyppi, nimi);
  return rakenne;
}

Luettelotoimet Rakennemuokkaus::Luettelonhoito() {
  return {.sisalto = [this] { return Rivit(muokattava_); },
          .nimi = [this](const Tunniste& avain) { return rakenteet_.Item(avain).NaytettavaNimi(); },
          .lisaa = [this] { return Lisaa(); },
          .kopioi = [this](const Tunniste& avain) { return Kopioi(rakenteet_.Item(avain)); },
          .poista = [this](const Tunniste& avain) { Poista(avain); },
          .liita = [this](const Taulukko& rivit) { return Liita(rivit); },
          .paina = [this](const Tunniste&) { KayttoLiittyma.txtNimi.Kohdista(); },
          .valittu = [this] { NaytaValittu(); },
          .lukko = Muokkauslukko,
          .lisayseste = [this] { return KaikkiNaytetaan() ? Teksti(tekstit::kRakennetyyppiValitsematta) : ""; },
          .poistoeste = [this](const Tunniste& avain) { return Poistoeste(rakenteet_.Item(avain)); },
          .otaKentat = [this] { return OtaKentat(); }};
}

Tunniste Rakennemuokkaus::Lisattiin(const Tunniste& viimeinen) {
  VaadiRakennus().RekisteriVanheni();
  KayttoLiittyma.lvwRakenteet.Tayta(Rivit(viimeinen));
  return viimeinen;
}

Tunniste Rakennemuokkaus::Lisaa() {
  const clsRakenne& uusi = LisaaRakenne(KayttoLiittyma.Naytettavat(), Teksti(tekstit::kTilanUusiRakenne));
  KayttoLiittyma.txtNimi.Kohdista();
  return Lisattiin(uusi.sKey);
}

Tunniste Rakennemuokkaus::Kopioi(const clsRakenne& lahde) {
  clsRakenne& kopio = LisaaKopio(rakenteet_, lahde);
  if (kopio.RakenneRatkaisu) kopio.RakenneRatkaisu->Nimi = Teksti(tekstit::kKopio) + lahde.NaytettavaNimi();
  return Lisattiin(kopio.sKey);
}

void Rakennemuokkaus::Poista(const Tunniste& avain) {
  if (haettava_ == avain) RakKirjasto_KantaDlgSuljettu();
  rakenteet_.Remove(avain);
  VaadiRakennus().RekisteriVanheni();
  KayttoLiittyma.luettelo.Nayta();
}

Tunniste Rakennemuokkaus::Liita(const Taulukko& rivit) {
  const bool kaikki = KaikkiNaytetaan();
  const std::int32_t tyyppi = kaikki ? Rakennelaji::Ulkoseina : KayttoLiittyma.Naytettavat();
  const auto avaimet = LiitaRivit(rivit, Liitossarakkeet(kaikki),
                                  {.luo = [&]() -> Alkio& { return LisaaRakenne(tyyppi, {}); },
                                   .poista = [this](const Tunniste& avain) { rakenteet_.Remove(avain); }});
  return avaimet.empty() ? Tunniste() : Lisattiin(avaimet.back());
}

/// Whatever is chosen meanwhile, the pick goes to this structure. Opening for another one ends the former.
void Rakennemuokkaus::KayttoLiittyma_HaeKirjastosta() {
  RakKirjasto_KantaDlgSuljettu();
  const clsRakenne& rakenne = rakenteet_.Item(muokattava_);
  haettava_ = muokattava_;
  NaytaHaku(Teksti(tekstit::kKirjastostaHaetaan) + " " + rakenne.NaytettavaNimi());
  haku_ = RakennekirjastolinkkiNyt().ValitseRakenne(
      std::string(RakennetyypinSana(rakenne.Rakennetyyppi)),
      {.RakKirjasto_RakenneValittu = [this](const Rakenneratkaisu& r) { RakKirjasto_RakenneValittu(r); },
       .RakKirjasto_KantaDlgSuljettu = [this] { RakKirjasto_KantaDlgSuljettu(); }});
}

void Rakennemuokkaus::RakKirjasto_RakenneValittu(const Rakenneratkaisu& ratkaisu) {
  clsRakenne* rakenne = rakenteet_.Etsi(haettava_);
  if (!rakenne) return;
  const bool naytetaan = haettava_ == muokattava_;
  if (naytetaan) KirjoitaDataluokka();
  const std::int32_t entinen = rakenne->Rakennetyyppi;
  rakenne->OtaRatkaisu(ratkaisu);
  if (rakenne->Rakennetyyppi != entinen) AsetaOletusrajoittuminen(*rakenne);
  PaivitaRivit();
  if (!naytetaan) return;
  LueDataluokka();
  PaivitaKentat();
}

void Rakennemuokkaus::RakKirjasto_KantaDlgSuljettu() {
  haku_.reset();
  haettava_ = {};
  NaytaHaku({});
}

/// A long name may not fit beside the buttons; the tip shows it whole.
void Rakennemuokkaus::NaytaHaku(const std::string& teksti) {
  KayttoLiittyma.lblHaku.Otsikko(teksti);
  KayttoLiittyma.lblHaku.Vihje(teksti);
}

/// Unticked, what the field shows becomes the structure's value; ticked, only what was written there is kept.
void Rakennemuokkaus::KayttoLiittyma_UarvonLahdeKlikattu() {
  clsRakenne& rakenne = rakenteet_.Item(muokattava_);
  const TextBox& kentta = KayttoLiittyma.txtUarvo;
  const bool kerroksista = KayttoLiittyma.chkLaskeUarvoMateriaaleista.Valittu();
  const auto u = LueLuku(kentta.Teksti());
  if (u && (!kerroksista || kentta.Muuttunut())) rakenne.U_arvo(*u);
  rakenne.LaskeU_arvoMateriaaleista = kerroksista;
  kentta.Luku(rakenne.U_arvo(), kUarvo);
  NaytaUarvo();
}

void Rakennemuokkaus::KayttoLiittyma_RajoittuminenValittu() {
  kRajanSidonnat.Kirjoita(KayttoLiittyma, rakenteet_.Item(muokattava_));
  NaytaUarvo();
}

void Rakennemuokkaus::KayttoLiittyma_PintavastusMuuttui() {
  kRatkaisunSidonnat.Kirjoita(KayttoLiittyma, Ratkaisu());
  NaytaUarvo();
}

void Rakennemuokkaus::KayttoLiittyma_VarjostusValittu(frmRakenteet::Varjostus varjostus) {
  const frmRakenteet& l = KayttoLiittyma;
  clsRakenne& r = rakenteet_.Item(muokattava_);
  switch (varjostus) {
    case frmRakenteet::kYlalippa:
      return ValitseVarjostus(r.YlaLippa, l.cmbYlalipanTyyppi, l.txtYlalipanVarjostuskulma, kYlalippakulmat);
    case frmRakenteet::kSivulippa:
      return ValitseVarjostus(r.SivuLippa, l.cmbSivulipanTyyppi, l.txtSivulipanVarjostuskulma, kSivulippakulmat);
    case frmRakenteet::kHorisontti:
      return ValitseVarjostus(r.HorisVarjostus, l.cmbHorisVarjTyyppi, l.txtYmparistonVarjostuskulma, kHorisonttikulmat);
  }
}
