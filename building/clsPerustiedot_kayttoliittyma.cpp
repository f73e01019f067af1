// SPDX-License-Identifier: GPL-3.0-or-later
// The basic-data dialog.
#include "building/Lammitystarveluvut.h"
#include "building/Muokkausistunto.h"
#include "building/Oletusmalli.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Paaikkuna.h"
#include "ui/Sidonta.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmNormeeraamatonKulutus.h"
#include "ui/frmPerustiedot.h"

namespace {

constexpr int kVuosia = 3;
constexpr const char* kTarvelukukuvio = "### ##0";
constexpr int kPieninVuosi = 1700, kSuurinVuosi = 2100;  // years of completion that default structures are told for

std::int32_t Paikkakunta(const clsPerustiedot& tiedot) { return tiedot.LammTarveLukuPaikkakuntaID(); }
void AsetaPaikkakunta(clsPerustiedot& tiedot, std::int32_t id) { tiedot.LammTarveLukuPaikkakuntaID(id); }

const Sidontataulu kSidonnat{
    "frmPerustiedot",
    {
        Tekstikentta<&clsPerustiedot::KohteenNimi>("txtKohteenNimi"),
        Tekstikentta<&clsPerustiedot::Pvm>("txtPvm"),
        Valintakentta<&clsPerustiedot::KayttoTarkoitusID, &clsPerustiedot::Kayttotarkoitus>("cmbKayttotarkoitus"),
        Lukukentta<&clsPerustiedot::ValmistumisVuosi>("txtValmistumisVuosi", "0"),
        Lukukentta<&clsPerustiedot::Kokonaistilavuus>("txtKokonaistilavuus", "### ##0"),
        Lukukentta<&clsPerustiedot::KylmanTilavuudenOsuus>("txtKylmanTilavuudenOsuus", "0.0"),
        Lukukentta<&clsPerustiedot::BruttoAla>("txtBruttoAla", "### ##0"),
        Lukukentta<&clsPerustiedot::KylmanAlanOsuus>("txtKylmanAlanOsuus", "0.0"),
        Lukukentta<&clsPerustiedot::KerrostenLukumaara>("txtKerrostenLukumaara", "0.0"),
        Lukukentta<&clsPerustiedot::KohteenHenkiloMaara>("txtKohteenHenkiloMaara", "### ##0"),
        Valintakentta<Funktiot<Paikkakunta, AsetaPaikkakunta>, &clsPerustiedot::LammTarveLukuPaikkakunta>(
            "cmbPaikkakunta"),
        Lukukentta<Polku<&clsPerustiedot::ToteutuneetKulutukset, &clsToteutuneetKulutukset::KulutusTietojenViimVuosi>>(
            "txtKulutusTietojenViimVuosi", "0"),
    }};

/// A measured year; the word is its row on the form, the newest one first.
const Sidontataulu kVuodenSidonnat{
    "frmPerustiedot",
    {
        Rastikentta<&clsToteutunutKulutus::KaytaVertailuVuotena>("optVertailuvuosi*"),
        Lukukentta<&clsToteutunutKulutus::LammTarveLuku>("txtLammTarveLuku*", kTarvelukukuvio),
        Lukukentta<&clsToteutunutKulutus::Lampo>("txtLampo*", "### ##0.0"),
        Lukukentta<&clsToteutunutKulutus::Sahko>("txtSahko*", "### ##0.0"),
        Lukukentta<&clsToteutunutKulutus::Vesi>("txtVesi*", "### ##0"),
    },
    {"1", "2", "3"}};

/// The first comparison year counts, so it is ticked last.
void Lue(frmPerustiedot& lomake, const clsPerustiedot& tiedot) {
  kSidonnat.Lue(lomake, tiedot);
  for (int i = kVuosia; i >= 1; --i)
    if (const clsToteutunutKulutus* vuosi = tiedot.ToteutuneetKulutukset.Vuosi(i))
      kVuodenSidonnat.Lue(lomake, *vuosi, std::to_string(i));
  lomake.txtNormVuodenLammTarveLuku.Luku(tiedot.NormVuodenLammTarveLuku, "### ##0");
  lomake.lblALV.Otsikko(Asetukset().Verohuomautus());
  lomake.NaytaVuodet();
  lomake.LaskeOminaiskulutukset();
}

void Kirjoita(const frmPerustiedot& lomake, clsPerustiedot& tiedot) {
  kSidonnat.Kirjoita(lomake, tiedot);
  for (int i = 1; i <= kVuosia; ++i)
    if (clsToteutunutKulutus* vuosi = tiedot.ToteutuneetKulutukset.Vuosi(i))
      kVuodenSidonnat.Kirjoita(lomake, *vuosi, std::to_string(i));
}

/// Fills in the degree days of the years that the table knows, and tells of each where it comes from.
void HaeTarveluvut(const frmPerustiedot& lomake, const clsPerustiedot& tiedot) {
  const int viimeinen = static_cast<int>(lomake.txtKulutusTietojenViimVuosi.Luku());
  std::string kerrottava = lomake.cmbPaikkakunta.Teksti();
  for (int i = 0; i < kVuosia; ++i) {
    const auto tarveluku = HaeLammitystarveluku(Paikkakunta(tiedot), viimeinen - i);
    kerrottava += "\n\n" + std::to_string(viimeinen - i) + ": ";
    kerrottava += tarveluku ? Muotoile(tarveluku->luku, kTarvelukukuvio) + " °Cd, " + tarveluku->lahde
                            : Teksti(tekstit::kEiTarvelukua);
    clsToteutunutKulutus* vuosi = tiedot.ToteutuneetKulutukset.Vuosi(i + 1);
    if (!tarveluku || !vuosi) continue;
    vuosi->LammTarveLuku = tarveluku->luku;
    lomake.txtLammTarveLuku[static_cast<std::size_t>(i)].Luku(tarveluku->luku, kTarvelukukuvio);
  }
  Ilmoita(kerrottava, Teksti(tekstit::kHuomautus));
}

/// The normalised consumption stands on the comparison year's degree days: a figure that nobody has given doesn't get
/// there in silence. False when the person goes back to it.
bool TarvelukuOnAnnettu(const frmPerustiedot& lomake, const clsPerustiedot& tiedot) {
  const clsToteutunutKulutus& vertailuvuosi = tiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
  if (vertailuvuosi.LammTarveLuku != kLammitystarvelukuAluksi || !(vertailuvuosi.Lampo > 0)) return true;
  const Viesti kysymys{Teksti(tekstit::kTarvelukuAntamatta), Teksti(tekstit::kHuomautus), Vakavuus::Kysymys,
                       Napit::KyllaEi, Vastaus::Kylla};
  if (ViestitNyt().Nayta(kysymys) == Vastaus::Ei) return true;
  if (const int rivi = lomake.Vertailuvuosi(); rivi >= 0)
    lomake.txtLammTarveLuku[static_cast<std::size_t>(rivi)].Kohdista();
  return false;
}

bool VakioOsuusMahtuuKulutukseen(const clsPerustiedot& tiedot) {
  for (const clsToteutunutKulutus& vuosi : tiedot.ToteutuneetKulutukset)
    if (vuosi.KaytaVertailuVuotena && vuosi.Lampo < tiedot.LammKulVakioOsuus.VuosiOsuus) return false;
  return true;
}

/// The model is made from these: each must be there and make sense. Tells of the first that doesn't, and takes the
/// person to it.
bool KelpaaMalliksi(const frmPerustiedot& lomake, const clsPerustiedot& tiedot) {
  const auto puuttuu = [](const TextBox& kentta, Tekstinumero teksti) {
    HylkaaKentta(kentta.Kohde(), Teksti(teksti));
    return false;
  };
  if (tiedot.ValmistumisVuosi < kPieninVuosi || tiedot.ValmistumisVuosi > kSuurinVuosi)
    return puuttuu(lomake.txtValmistumisVuosi, tekstit::kMallinVuosiPuuttuu);
  if (!(tiedot.Kokonaistilavuus > 0)) return puuttuu(lomake.txtKokonaistilavuus, tekstit::kMallinTietoPuuttuu);
  if (!(tiedot.BruttoAla > 0)) return puuttuu(lomake.txtBruttoAla, tekstit::kMallinTietoPuuttuu);
  if (!(tiedot.KerrostenLukumaara > 0)) return puuttuu(lomake.txtKerrostenLukumaara, tekstit::kMallinTietoPuuttuu);
  return true;
}

/// After an error, when the basic data are again as they were: all that another model was to replace, and the weather
/// of the locality.
void PalautaMalli(clsPerustiedot& tiedot, clsRakennus* entinen) {
  if (!tiedot.OletusarvotLaskettu) return;
  if (!entinen) return tiedot.SaaTietoMuuttui.arvo(tiedot.LammTarveLukuPaikkakuntaID());
  tiedot.Kopioi(entinen->Perustiedot);
  VaadiRakennus().PalautaTilannekuva(*entinen);
}

/// A new object that isn't taken into use has no file and no name.
void Peruttu(const clsPerustiedot& tiedot) {
  if (!tiedot.OletusarvotLaskettu) {
    VaadiRakennus().ProjektiAsetukset.strCurrentProjectFile.clear();
    PaaikkunaNyt().AsetaOtsikko("");
  }
  PaaikkunaNyt().TyokalutKaytossa(2, tiedot.OletusarvotLaskettu);
}

/// What OK asks of the values; `luodaan`: a model is made from them.
bool VoiOttaaKayttoon(const frmPerustiedot& lomake, const clsPerustiedot& tiedot, bool luodaan) {
  if (!VakioOsuusMahtuuKulutukseen(tiedot)) return NaytaVirhe(virheet::kKulutusAlleVakion), false;
  if (!TarvelukuOnAnnettu(lomake, tiedot)) return false;
  return !luodaan || (KelpaaMalliksi(lomake, tiedot) && VahvistaRakennekirjasto(OletusmallinLahtotiedot(tiedot)));
}

}  // namespace

bool clsPerustiedot::NaytaKayttoliityma() try {
  frmPerustiedot lomake;
  const std::int32_t entinenPaikkakunta = paikkakunta_;
  bool luodaanUudelleen = false;
  std::unique_ptr<clsRakennus> entinenMalli;  // while another is made in its place
  if (!OletusarvotLaskettu) PaaikkunaNyt().TyokalutKaytossa(3, false);
  const bool luotavissa = OletusarvotLaskettu && OnOletusmalli(VaadiRakennus());
  lomake.cmdLuoMalli.Kaytossa(luotavissa);
  if (OletusarvotLaskettu && !luotavissa) lomake.cmdLuoMalli.Vihje(Teksti(tekstit::kMalliaMuokattu));
  lomake.DataMuuttui = lomake.KulutustietoMuuttui = [&] { Kirjoita(lomake, *this); };
  lomake.SaaPaikkakuntaMuuttui = [&](int id) {
    LammTarveLukuPaikkakuntaID(id);
    lomake.txtNormVuodenLammTarveLuku.Luku(NormVuodenLammTarveLuku, "### ##0");
  };
  lomake.VakioOsuusKlikattu = [&] {
    frmNormeeraamatonKulutus().Kysy(LammKulVakioOsuus.kkOsuus, LammKulVakioOsuus.VuosiOsuus);
  };
  lomake.HaeTarveluvutKlikattu = [&] { HaeTarveluvut(lomake, *this); };
  lomake.LammonHankintaKlikattu = [&] { LammonHankinta.NaytaKayttoliittyma(); };
  lomake.SahkonHankintaKlikattu = [&] { SahkonHankinta.NaytaKayttoliittyma(); };
  lomake.VedenHankintaKlikattu = [&] { VedenHankinta.NaytaKayttoliittyma(); };
  lomake.LuoMalliKlikattu = [&] {
    luodaanUudelleen = true;
    Nosta(lomake.OkKlikattu);
    luodaanUudelleen = false;
    entinenMalli.reset();
  };
  clsRakennus& rakennus = VaadiRakennus();  // whose tariffs the supplies' dialogs edit
  Muokkausistunto istunto(
      std::tie(*this, rakennus.Tariffit, rakennus.Vesitariffit), lomake,
      {.nimi = OletusarvotLaskettu ? KohteenNimi : "",
       .lue = [&] { Lue(lomake, *this); },
       .kirjoita = [&] { Kirjoita(lomake, *this); },
       .tarkista = [&] { return VoiOttaaKayttoon(lomake, *this, !OletusarvotLaskettu || luodaanUudelleen); },
       .voimaan =
           [&] {
             PaaikkunaNyt().TyokalutKaytossa(3, true);
             if (luodaanUudelleen) {
               entinenMalli = VaadiRakennus().Tilannekuva();
               OletusarvotLaskettu = false;
             }
             OtaKayttoon(entinenPaikkakunta);
           },
       .virheenJalkeen = [&] { PalautaMalli(*this, entinenMalli.get()); },
       .peruttu = [&] { Peruttu(*this); }});
  istunto.Nayta();
  return OletusarvotLaskettu;
} catch (...) {
  NostaVirhe("clsPerustiedot:NaytaKayttoliityma Method");
}

void clsPerustiedot::OtaKayttoon(std::int32_t entinenPaikkakunta) try {
  const bool uusi = !OletusarvotLaskettu;
  if (paikkakunta_ != entinenPaikkakunta || uusi) SaaTietoMuuttui.arvo(paikkakunta_);
  if (!uusi) return;
  LaskeOletusarvotPerustietojenMukaan.arvo();
  OletusarvotLaskettu = true;
} catch (...) {
  NostaVirhe("clsPerustiedot:OtaKayttoon Method");
}
