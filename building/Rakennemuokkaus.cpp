// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Rakennemuokkaus.h"

#include <algorithm>

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
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "ui/Hiljaa.h"
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

/// Adds the cells of conductance, W/K, as the mean of the year, and of the share of the loss, %.
void LisaaHavio(Luettelorivi& rivi, double havio, double yhteensa, double Tsisa) {
  constexpr double kWperkW = 1000;
  if (const double astetunnit = Astetunnit(Tsisa); astetunnit > 0)
    rivi.LisaaLuku(havio * kWperkW / astetunnit, kKonduktanssi);
  else
    rivi.solut.emplace_back(kEiArvoa);
  if (yhteensa > 0)
    rivi.LisaaLuku(havio / yhteensa * 100, kOsuus);
  else
    rivi.solut.emplace_back(kEiArvoa);
}

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
  lomake.RakenneValittu = [this] { KayttoLiittyma_RakenneValittu(); };
  lomake.NaytettavatValittu = [this] { KayttoLiittyma_NaytettavatValittu(); };
  lomake.LisaaKlikattu = [this] { KayttoLiittyma_LisaaKlikattu(); };
  lomake.KopioiKlikattu = [this] { KayttoLiittyma_KopioiKlikattu(); };
  lomake.PoistaKlikattu = [this] { KayttoLiittyma_PoistaKlikattu(); };
  lomake.RivitLiitetty = [this](const Taulukko& rivit) { KayttoLiittyma_RivitLiitetty(rivit); };
  lomake.HaeKirjastostaKlikattu = [this] { KayttoLiittyma_HaeKirjastosta(); };
  lomake.UarvonLahdeKlikattu = [this] { KayttoLiittyma_UarvonLahdeKlikattu(); };
  lomake.RajoittuminenValittu = [this] { KayttoLiittyma_RajoittuminenValittu(); };
  lomake.PintavastusMuuttui = [this] { KayttoLiittyma_PintavastusMuuttui(); };
  lomake.VarjostusValittu = [this](frmRakenteet::Varjostus v) { KayttoLiittyma_VarjostusValittu(v); };
}

void Rakennemuokkaus::LueDataluokka() {
  const clsRakenne* rakenne = Muokattava();
  if (!rakenne) return TyhjennaKentat();
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

Luettelorivi Rakennemuokkaus::Rivi(const clsRakenne& rakenne, double havioYhteensa) const {
  const frmRakenteet& l = KayttoLiittyma;
  Luettelorivi rivi{{rakenne.NaytettavaNimi(), ValinnanRivi(l.cmbRakennetyyppi, rakenne.Rakennetyyppi + 1)},
                    rakenne.sKey};
  rivi.LisaaLuku(rakenne.PintaAla, kAla);
  rivi.LisaaLuku(rakenne.U_arvo(), kUarvo);
  rivi.solut.push_back(Rajoittuu(rakenne) ? ValinnanRivi(l.cmbTyyppi, rakenne.TyyppiID) : "");
  rivi.solut.push_back(OnIkkuna(rakenne) ? ValinnanRivi(l.cmbSuuntaus, rakenne.SuuntausID) : "");
  LisaaHavio(rivi, VuosiHavio(rakenne, Tsisa_), havioYhteensa, Tsisa_);
  if (UarvoPuuttuu(rakenne))
    rivi.piirteet = {.merkitys = Merkitys::Huomio, .merkitty = kUsarake, .selite = Teksti(tekstit::kUarvoPuuttuu)};
  return rivi;
}

bool Rakennemuokkaus::Naytetaan(const clsRakenne& rakenne) const {
  const std::int32_t naytettavat = KayttoLiittyma.Naytettavat();
  return naytettavat == frmRakenteet::kKaikki || naytettavat == rakenne.Rakennetyyppi;
}

Luettelosisalto Rakennemuokkaus::Rivit(const Tunniste& valittava) const {
  double yhteensa = 0, naytetty = 0;
  for (const clsRakenne& rakenne : rakenteet_) yhteensa += VuosiHavio(rakenne, Tsisa_);
  Luettelosisalto sisalto;
  for (const clsRakenne& rakenne : rakenteet_) {
    if (!Naytetaan(rakenne) && rakenne.sKey != valittava) continue;
    sisalto.rivit.push_back(Rivi(rakenne, yhteensa));
    naytetty += VuosiHavio(rakenne, Tsisa_);
  }
  Luettelorivi summat{{Teksti(tekstit::kRakenteetYhteensa), "", "", "", "", ""}};
  LisaaHavio(summat, naytetty, yhteensa, Tsisa_);
  sisalto.summat = std::move(summat.solut);
  return sisalto;
}

/// Fills the list and shows the structure of that key, whatever its kind; the first one when there is none.
void Rakennemuokkaus::NaytaLuettelo(const Tunniste& valittava) {
  const ListView& lista = KayttoLiittyma.lvwRakenteet;
  lista.Tayta(Rivit(valittava));
  lista.Valitse(valittava);
  KayttoLiittyma.ValitseRakenne(lista.Indeksi());
  muokattava_ = lista.Valittu();
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

/// The picture, the U-value of the layers, and with it the structure's own when that is the source.
void Rakennemuokkaus::NaytaUarvo() {
  const clsRakenne& rakenne = rakenteet_.Item(muokattava_);
  const auto kerroksista = rakenne.RakenneRatkaisu ? rakenne.RakenneRatkaisu->LaskeU_arvo() : std::optional<double>();
  KayttoLiittyma.txtKerrostenUarvo.Teksti(kerroksista ? Muotoile(*kerroksista, kUarvo) : kEiArvoa);
  if (rakenne.LaskeU_arvoMateriaaleista) KayttoLiittyma.txtUarvo.Luku(rakenne.U_arvo(), kUarvo);
  KayttoLiittyma.chtLampotilat.Kaavio(Rakenneleikkaus(rakenne, Tsisa_));
}

bool Rakennemuokkaus::Lukittu() const { return VaadiRakennus().Saastotoimenpiteet.Count() > 0; }

void Rakennemuokkaus::PaivitaKentat() {
  const clsRakenne* rakenne = Muokattava();
  KayttoLiittyma.PaivitaKentat({.valittu = rakenne != nullptr,
                                .lukittu = Lukittu(),
                                .ikkuna = rakenne && OnIkkuna(*rakenne),
                                .rajoittuu = rakenne && Rajoittuu(*rakenne),
                                .kerroksia = !KayttoLiittyma.lvwKerrokset.Rivit().empty()});
}

void Rakennemuokkaus::KayttoLiittyma_RakenneValittu() {
  KirjoitaDataluokka();
  PaivitaRivit();
  KayttoLiittyma.ValitseRakenne(KayttoLiittyma.lvwRakenteet.Indeksi());
  muokattava_ = KayttoLiittyma.lvwRakenteet.Valittu();
  LueDataluokka();
  PaivitaKentat();
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

void Rakennemuokkaus::RakenteetMuuttuivat(const Tunniste& valittava) {
  VaadiRakennus().RekisteriVanheni();
  NaytaLuettelo(valittava);
}

void Rakennemuokkaus::KayttoLiittyma_LisaaKlikattu() {
  KirjoitaDataluokka();
  RakenteetMuuttuivat(LisaaRakenne(KayttoLiittyma.Naytettavat(), Teksti(tekstit::kTilanUusiRakenne)).sKey);
  KayttoLiittyma.txtNimi.Kohdista();
}

void Rakennemuokkaus::KayttoLiittyma_KopioiKlikattu() {
  KirjoitaDataluokka();
  const clsRakenne& lahde = rakenteet_.Item(muokattava_);
  clsRakenne& kopio = LisaaKopio(rakenteet_, lahde);
  if (kopio.RakenneRatkaisu) kopio.RakenneRatkaisu->Nimi = Teksti(tekstit::kKopio) + lahde.NaytettavaNimi();
  RakenteetMuuttuivat(kopio.sKey);
}

void Rakennemuokkaus::KayttoLiittyma_PoistaKlikattu() {
  if (const std::string nimet = ViittaavatToimenpiteet(rakenteet_.Item(muokattava_)); !nimet.empty())
    return Ilmoita(Teksti(tekstit::kRakennettaEiVoiPoistaa) + " " + nimet, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  if (!KysyPoisto(rakenteet_.Item(muokattava_).NaytettavaNimi())) return;
  if (haettava_ == muokattava_) RakKirjasto_KantaDlgSuljettu();
  rakenteet_.Remove(muokattava_);
  RakenteetMuuttuivat({});
}

void Rakennemuokkaus::KayttoLiittyma_RivitLiitetty(const Taulukko& rivit) {
  if (Lukittu()) return Ilmoita(Teksti(tekstit::kRakenteitaEiVoiLisata), Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  const std::int32_t naytettavat = KayttoLiittyma.Naytettavat();
  const bool kaikki = naytettavat == frmRakenteet::kKaikki;
  KirjoitaDataluokka();
  const auto avaimet =
      LiitaRivit(rivit, Liitossarakkeet(kaikki),
                 {.luo = [&]() -> Alkio& { return LisaaRakenne(kaikki ? Rakennelaji::Ulkoseina : naytettavat, {}); },
                  .poista = [this](const Tunniste& avain) { rakenteet_.Remove(avain); }});
  RakenteetMuuttuivat(avaimet.empty() ? muokattava_ : avaimet.back());
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
