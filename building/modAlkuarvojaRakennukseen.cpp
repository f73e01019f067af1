// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/modAlkuarvojaRakennukseen.h"

#include <cmath>

#include "building/Lammitystarveluvut.h"
#include "building/clsPerustiedot.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Hakemistot.h"
#include "kernel/Luvut.h"
#include "kernel/Paivamaara.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/rakennus.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/Virheilmoitus.h"

namespace {

constexpr double kProsentti = 100;
constexpr double kIkkunoidenOsuus = 0.12, kOvienOsuus = 0.01;  // of the floor area
constexpr int kSuorakaide = 1;                                 // plan shape of a new building, sides 1 to 2
constexpr double kSuorakaiteenSuhde = 0.5;
constexpr double kPohjanAlaIlmanKerroksia = 500;                                  // m²
constexpr double kKylmaVesi = 5, kKuumaKayttovesi = 55, kKuumaProsessivesi = 70;  // °C
constexpr double kTuntiaVuodessa = 8760;

/// Structures of a new space; each with its share of the windows or the whole of another area.
enum class Pinta { Ulkoseina, Ikkuna, Pohja };
struct Oletusrakenne {
  const char* nimi;
  const char* kirjastosarake;
  Pinta pinta;
  double osuus;
  double u_arvo;
  std::int32_t suuntaus;
  std::int32_t rakennetyyppi;
  int paneeliteksti;
};
constexpr Oletusrakenne kOletusrakenteet[] = {
    {"Ulkoseinät", "USRakenneID", Pinta::Ulkoseina, 1, 0.29, kIta, Rakennelaji::Ulkoseina, tekstit::kLuodaanUlkoseinat},
    {"Ikkuna, länsi", "IkkRakenneID", Pinta::Ikkuna, 0.15, 1.8, kLansi, Rakennelaji::Ikkuna, tekstit::kLuodaanIkkunat},
    {"Ikkuna, etelä", "IkkRakenneID", Pinta::Ikkuna, 0.4, 1.8, kEtela, Rakennelaji::Ikkuna, tekstit::kLuodaanIkkunat},
    {"Ikkuna, itä", "IkkRakenneID", Pinta::Ikkuna, 0.15, 1.8, kIta, Rakennelaji::Ikkuna, tekstit::kLuodaanIkkunat},
    {"Ikkuna, pohj", "IkkRakenneID", Pinta::Ikkuna, 0.3, 1.8, kPohjoinen, Rakennelaji::Ikkuna,
     tekstit::kLuodaanIkkunat},
    {"Maanvarainen alapohja", "APRakenneID", Pinta::Pohja, 1, 0.36, kVaakasuora, Rakennelaji::Alapohja,
     tekstit::kLuodaanAlapohja},
    {"Yläpohja", "YPRakenneID", Pinta::Pohja, 1, 0.22, kVaakasuora, Rakennelaji::Ylapohja, tekstit::kLuodaanYlapohja},
};

/// What a structure of each kind borders on at first.
std::int32_t RajoittuminenTyypista(std::int32_t rakennetyyppi) {
  switch (rakennetyyppi) {
    case Rakennelaji::Alapohja:
      return kMaa;
    case Rakennelaji::KantavaValiseina:
    case Rakennelaji::KevytValiseina:
    case Rakennelaji::Valipohja:
      return kHuonelampoinenTila;
    default:
      return kUlkoilma;
  }
}

Rakennekirjasto AvaaKirjasto() { return {Asetukset().strKayttajanTietokanta, Asetukset().strVakioTietokanta}; }

/// Text of a choice list's row; "" when the list has no such row.
std::string Valinnan(std::string_view lomake, std::string_view valinta, std::int32_t indeksi) {
  const auto rivit = Valintalista(lomake, valinta);
  return indeksi >= 0 && indeksi < static_cast<std::int32_t>(rivit.size()) ? rivit[static_cast<std::size_t>(indeksi)]
                                                                           : std::string();
}

template <class T>
void AsetaVarjostus(T& varjostus, std::string_view valinta, double kulma) {
  varjostus.TyyppiID = 0;
  varjostus.TyyppiStr = Valinnan("frmRakenteet", valinta, 0);
  varjostus.Varjostuskulma = kulma;
}

/// The value as it reads back from the shown text.
double Naytettyna(double arvo, std::string_view kuvio) { return LueLuku(Muotoile(arvo, kuvio)).value_or(arvo); }

double UlkoseinaAlaTaiNolla(const clsTila& tila, double kerroksia) {
  try {
    return LaskeUlkoseinaAla(tila, kSuorakaide, kSuorakaiteenSuhde, kerroksia);
  } catch (const Virhe& virhe) {
    KerroVirhe(virhe);
    return 0;
  }
}

void LisaaVesiryhma(clsVedenKulutusryhmat& ryhmat, int teksti) {
  clsVedenKulutusryhma& ryhma = ryhmat.LisaaRyhma("sKeyNormaaliVesi", true);
  ryhma.KulutusRyhma = ryhmat.ListaItem(ryhma.sKey).NimiTeksti = Teksti(teksti);
}

void Alusta(clsEnergianHankinta& hankinta, clsEnergianHankinta::Laji laji, int teksti) {
  hankinta.Nimi = Teksti(teksti);
  hankinta.Kuvaus = "";
  hankinta.Kayttotarkoitus = laji;
}

/// Default rows of a use-type code and a year, at most two: more isn't asked for.
std::vector<Oletusarvorivi> Oletusarvorivit(int koodi, int vuosi, const std::string& taulu) {
  const Tietokanta kanta(Aineistotiedosto("Oletuskanta.mdb"));
  Kysely kysely(kanta,
                "SELECT " + taulu + ".* FROM " + taulu + ", RakennustyyppienOletusarvot " +
                    "WHERE RakennustyyppienOletusarvot.KayttotarkoitusID = ? " +
                    "AND RakennustyyppienOletusarvot.RakenneTyyppiRatkaisuID = " + taulu + ".Id " +
                    "AND RakennustyyppienOletusarvot.Rakennusv_alk <= ?2 " +
                    "AND RakennustyyppienOletusarvot.Rakennusv_lop >= ?2 LIMIT 2",
                koodi, vuosi);
  std::vector<Oletusarvorivi> rivit;
  while (kysely.Seuraava()) {
    Oletusarvorivi rivi;
    for (int i = 0; i < kysely.Sarakkeita(); ++i) rivi[std::string(kysely.SarakkeenNimi(i))] = kysely.Teksti(i);
    rivit.push_back(std::move(rivi));
  }
  return rivit;
}

constexpr const char* kRakenteidenTaulu = "RakenneTyyppiratkaisut";

/// Some default solution of the model isn't in any library that can be read.
bool RatkaisujaPuuttuu(Rakennekirjasto& kirjasto, const TilanLahtotiedot& tiedot) {
  for (const Oletusarvorivi& rivi : Oletusarvorivit(tiedot.kayttotarkoituskoodi, tiedot.vuosi, kRakenteidenTaulu))
    for (const Oletusrakenne& malli : kOletusrakenteet)
      if (!kirjasto.Hae(rivi.at(malli.kirjastosarake))) return true;
  return false;
}

}  // namespace

void AlustaPerustiedot(clsPerustiedot& perustiedot) try {
  perustiedot.KohteenNimi = "";
  perustiedot.BruttoAla = 0;
  perustiedot.KerrostenLukumaara = 1;
  perustiedot.Kokonaistilavuus = 0;
  perustiedot.KayttoTarkoitusID = 0;
  perustiedot.ValmistumisVuosi = 0;
  perustiedot.LammTarveLukuPaikkakuntaID(perustiedot.LammTarveLukuPaikkakuntaID());  // and its degree days
  AlustaLammonHankinta(perustiedot.LammonHankinta);
  AlustaSahkonHankinta(perustiedot.SahkonHankinta);
  AlustaVedenHankinta(perustiedot.VedenHankinta);
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:AlustaPerustiedot Method");
}

void AlustaLammonHankinta(clsEnergianHankinta& hankinta) {
  Alusta(hankinta, clsEnergianHankinta::Lampo, tekstit::kLammonHankinta);
}
void AlustaSahkonHankinta(clsEnergianHankinta& hankinta) {
  Alusta(hankinta, clsEnergianHankinta::Sahko, tekstit::kSahkonHankinta);
}
void AlustaVedenHankinta(clsEnergianHankinta& hankinta) {
  Alusta(hankinta, clsEnergianHankinta::Vesi, tekstit::kVedenHankinta);
}

void AlustaToteutuneetKulutukset(clsToteutuneetKulutukset& kulutukset) try {
  for (int i = 1; i <= 3; ++i) {
    clsToteutunutKulutus& vuosi = kulutukset.Add("Tot " + std::to_string(i));
    vuosi.KaytaVertailuVuotena = i == 1;
    vuosi.LammTarveLuku = kLammitystarvelukuAluksi;
  }
  kulutukset.KulutusTietojenViimVuosi = TamaVuosi() - 1;
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:AlustaToteutuneetKulutukset Method");
}

void LuoTilat(clsTilat& tilat, const TilanLahtotiedot& tiedot) try {
  Odotus odotus(Teksti(tekstit::kLuodaanTilat));
  clsTila& tila = tilat.Add(Tunniste::Uusi(clsTila::kLuokka.NimiSana()));
  TilanLahtotiedot lammin = tiedot;
  lammin.ala = (1 - tiedot.kylmanAlanOsuus / kProsentti) * tiedot.ala;
  lammin.tilavuus = (1 - tiedot.kylmanTilavuudenOsuus / kProsentti) * tiedot.tilavuus;
  LuoTilanRakenteet(tila, lammin);
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoTilat Method");
}

void LuoTilanRakenteet(clsTila& tila, const TilanLahtotiedot& tiedot) try {
  tila.TilanNimi = Teksti(tekstit::kLammitettyTila);
  tila.Kuvausteksti = Teksti(tekstit::kRakennuksenKokoLammitettyOsa);
  tila.TilanHenkilomaara = tiedot.henkiloita;
  tila.BruttoAla = tiedot.ala;
  tila.Kokonaistilavuus = tiedot.tilavuus;
  tila.TilanKayttoaikaStr = Valinnan("frmTila", "cmbTilanKayttoaika", tila.TilanKayttoaikaID);
  tila.SaatotapaStr = Valinnan("frmTila", "cmbSaatotapa", tila.SaatotapaID);

  const double ikkunat = kIkkunoidenOsuus * tiedot.ala;
  const double ovet = kOvienOsuus * tiedot.ala;
  const double ulkoseina = std::max(0.0, UlkoseinaAlaTaiNolla(tila, tiedot.kerroksia) - ikkunat - ovet);
  const double pohja = tiedot.kerroksia > 0 ? tiedot.ala / tiedot.kerroksia : kPohjanAlaIlmanKerroksia;

  auto kirjasto = AvaaKirjasto();
  const auto oletukset = HaeOletusarvot(tiedot.kayttotarkoituskoodi, tiedot.vuosi, 0);
  Odotus odotus;
  for (const Oletusrakenne& malli : kOletusrakenteet) {
    odotus.Teksti(Teksti(malli.paneeliteksti));
    const double pintaAla = malli.osuus * (malli.pinta == Pinta::Ulkoseina ? ulkoseina
                                           : malli.pinta == Pinta::Ikkuna  ? ikkunat
                                                                           : pohja);
    const std::string kirjastoId = oletukset ? oletukset->at(malli.kirjastosarake) : std::string();
    LuoRakenne(tila.Rakenteet.Add(Tunniste::Uusi(clsRakenne::kLuokka.NimiSana())),
               {malli.nimi, malli.rakennetyyppi, malli.suuntaus, pintaAla, malli.u_arvo, kirjastoId}, &kirjasto);
  }
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoTilanRakenteet Method");
}

bool VahvistaRakennekirjasto(const TilanLahtotiedot& tiedot) try {
  Rakennekirjasto kirjasto = AvaaKirjasto();
  const bool puuttuu = RatkaisujaPuuttuu(kirjasto, tiedot);
  if (!puuttuu && kirjasto.Viat().empty()) return true;
  std::string teksti = Teksti(puuttuu ? tekstit::kMallinRakenteitaPuuttuu : tekstit::kMalliVakiokirjastosta);
  for (const Rakennekirjasto::Vika& vika : kirjasto.Viat()) teksti += "\n\n" + vika.kuvaus;
  if (puuttuu)
    return ViestitNyt().Nayta({teksti, Teksti(tekstit::kHuomautus), Vakavuus::Kysymys, Napit::KyllaEi, Vastaus::Ei}) ==
           Vastaus::Kylla;
  Ilmoita(teksti, Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  return true;
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:VahvistaRakennekirjasto Method");
}

void AsetaOletusrajoittuminen(clsRakenne& rakenne) {
  rakenne.TyyppiID = RajoittuminenTyypista(rakenne.Rakennetyyppi);
  rakenne.TyyppiStr = Valinnan("frmRakenteet", "cmbTyyppi", rakenne.TyyppiID);
}

void LuoRakenne(clsRakenne& rakenne, const RakenteenLahtotiedot& tiedot, Rakennekirjasto* kirjasto) try {
  rakenne.Rakennetyyppi = tiedot.rakennetyyppi;
  rakenne.U_arvo(tiedot.u_arvo);
  if (kirjasto && !tiedot.kirjastoId.empty()) {
    const auto loytynyt = kirjasto->Hae(tiedot.kirjastoId);
    Rakenneratkaisu& ratkaisu = rakenne.RakenneRatkaisu.Luo();
    ratkaisu = loytynyt ? *loytynyt : PuuttuvaRakenneratkaisu(tiedot.kirjastoId, tiedot.rakennetyyppi);
    rakenne.LaskeU_arvoMateriaaleista = loytynyt && !ratkaisu.U_arvoAnnettu && ratkaisu.LaskeU_arvo();
    if (const auto u = ratkaisu.VoimassaolevaU_arvo()) rakenne.U_arvo(Naytettyna(*u, "0.000"));
    ratkaisu.Kuvaus = ratkaisu.Kuvaus.empty() ? tiedot.nimi : tiedot.nimi + ". " + ratkaisu.Kuvaus;
  }
  rakenne.PintaAla = Naytettyna(tiedot.ala, "0.0");
  AsetaOletusrajoittuminen(rakenne);
  rakenne.SuuntausID = tiedot.suuntaus;
  rakenne.SuuntausStr = Valinnan("frmRakenteet", "cmbSuuntaus", tiedot.suuntaus);
  AsetaVarjostus(rakenne.HorisVarjostus, "cmbHorisVarjTyyppi", 15);
  AsetaVarjostus(rakenne.SivuLippa, "cmbSivulipanTyyppi", 10);
  AsetaVarjostus(rakenne.YlaLippa, "cmbYlalipanTyyppi", 25);
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoRakenne Method");
}

std::optional<Oletusarvorivi> HaeOletusarvot(int kayttotarkoituskoodi, int vuosi, int tila) try {
  auto rivit = Oletusarvorivit(kayttotarkoituskoodi, vuosi, tila == 0 ? kRakenteidenTaulu : "RakenteidenMenekit");
  if (rivit.size() == 1) return std::move(rivit.front());
  Ilmoita(Teksti(rivit.empty() ? tekstit::kEiOletusrakenteita : tekstit::kMontaOletusrakennetta),
          Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  return std::nullopt;
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:HaeOletusarvot Method");
}

void LuoSahkoRyhmat(clsSahkonKulutusryhmat& ryhmat) try {
  Odotus odotus(Teksti(tekstit::kLuodaanSahkonKulutusryhmat));
  ryhmat.LuoKiinteatRivit();
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoSahkoRyhmat Method");
}

void LuoVesiRyhmat(clsVedenKulutusryhmat& ryhmat) try {
  Odotus odotus(Teksti(tekstit::kLuodaanVedenKulutusryhmat));
  ryhmat.LKVTiedot.KylmanLampotila = kKylmaVesi;
  ryhmat.LKVTiedot.LamminLampotila = kKuumaKayttovesi;
  ryhmat.LKVTiedot.Sahkolammitys = false;
  ryhmat.ProsessiVedenTiedot.KylmanLampotila = kKylmaVesi;
  ryhmat.ProsessiVedenTiedot.LamminLampotila = kKuumaProsessivesi;
  ryhmat.LKVKiertoKayttoAika = kTuntiaVuodessa;
  ryhmat.LuoKiinteatRivit();
  ryhmat.ListaItem("sKeyProsessivesi").OnProsessiVesi = true;
  for (const int teksti : {tekstit::kKayttovesiAsukkaat, tekstit::kKeittio, tekstit::kSiivous})
    LisaaVesiryhma(ryhmat, teksti);
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoVesiRyhmat Method");
}

void LuoToimenpideLista(clsSaastotoimenpiteet& toimenpiteet) try {
  struct Solmu {
    int teksti;
    const char* vanhempi;
    const char* avain;
  };
  constexpr Solmu kSolmut[] = {
      {tekstit::kKokoKohde, "", "sKeyKokoKohde"},
      {tekstit::kHaaraHankinta, "sKeyKokoKohde", "sKeyEnergianJaVedenHankinta"},
      {tekstit::kHaaraLampo, "sKeyEnergianJaVedenHankinta", "sKeyEnergianJaVedenHankintaLampo"},
      {tekstit::kHaaraSahko, "sKeyEnergianJaVedenHankinta", "sKeyEnergianJaVedenHankintaSahko"},
      {tekstit::kHaaraVesi, "sKeyEnergianJaVedenHankinta", "sKeyEnergianJaVedenHankintaVesi"},
      {tekstit::kHaaraJohtuminen, "sKeyKokoKohde", "sKeyJohtuminen"},
      {tekstit::kHaaraKoneet, "sKeyKokoKohde", "sKeyIlmanvaihtokoneet"},
      {tekstit::kHaaraSahko, "sKeyKokoKohde", "sKeySahko"},
      {tekstit::kHaaraValaistus, "sKeySahko", "sKeyValaistus"},
      {tekstit::kHaaraLvi, "sKeySahko", "sKeyLVISahko"},
      {tekstit::kHaaraMuuSahko, "sKeySahko", "sKeyMuuSahko"},
      {tekstit::kHaaraVesi, "sKeyKokoKohde", "sKeyVesi"},
      {tekstit::kHaaraKayttovesi, "sKeyVesi", "sKeyNormaaliVesi"},
      {tekstit::kHaaraProsessivesi, "sKeyVesi", "sKeyProsessiVesi"},
  };
  for (const Solmu& solmu : kSolmut)
    toimenpiteet.AddListaItem(solmu.avain, solmu.vanhempi, Teksti(solmu.teksti), 0).Visible = true;
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoToimenpideLista Method");
}

void LuoValitutToimenpiteet(clsToimenpiteidenJarjestelija& jarjestelija) try {
  clsValittuToimenpide& rivi = jarjestelija.ValitutToimenpiteet.Add("sKeyValitutYhteensa", "");
  rivi.Tyyppi = clsValittuToimenpide::Yhteensa;
  rivi.ToimenpidesKey = "sKeyValitutYhteensaEiViittausta";
  rivi.Nimi = Teksti(tekstit::kValitutYhteensa);
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LuoValitutToimenpiteet Method");
}

double LaskeUlkoseinaAla(const clsTila& tila, int muoto, double r, double kerroksia) try {
  if (kerroksia <= 0) {
    NaytaVirhe(virheet::kKerroksetPuuttuvat);
    return 0;
  }
  if (r <= 0) {
    NaytaVirhe(virheet::kSivusuhdePuuttuu);
    return 0;
  }
  const double F = tila.BruttoAla / kerroksia;
  double P = 0;
  switch (muoto) {
    case 0:
      P = 4 * std::sqrt(F);
      break;
    case 1:
      P = 2 * (r + 1) * std::sqrt(F / r);
      break;
    case 2:
      P = 4 * std::sqrt(Jaa(F, 2 * r - r * r));
      break;
    case 3:
      P = (6 - r) * std::sqrt(Jaa(F, 3 * r - 2 * r * r));
      break;
    case 4:
      P = 8 * (1 - r) * std::sqrt(Jaa(F, 2 * (2 * r - r * r)));
      break;
    default:
      break;
  }
  return Aarellinen(P * Jaa(tila.Kokonaistilavuus, tila.BruttoAla) * kerroksia);
} catch (...) {
  NostaVirhe("modAlkuarvojaRakennukseen:LaskeUlkoseinaAla Method");
}
