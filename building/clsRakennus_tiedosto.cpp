// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and loading of the building: the project file itself is kernel/Projektitiedosto.
#include <filesystem>

#include "building/Materiaalimuutokset.h"
#include "building/Versiotarkistus.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Hakemistot.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Rekisteri.h"
#include "kernel/Versio.h"
#include "kernel/Virhe.h"
#include "library/Rakennetietokanta.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Odotus.h"
#include "ui/Paaikkuna.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr int kTallennusEpaonnistui = 1039;
constexpr std::size_t kPolunPituusPaneelissa = 70;

/// Text of the part that is being saved or loaded, by class.
struct Osateksti {
  const Luokka& luokka;
  int teksti;
};

int OsanTeksti(const Luokka& luokka) {
  static const Osateksti kOsatekstit[] = {
      {clsPerustiedot::kLuokka, 9520},
      {clsTilat::kLuokka, 9521},
      {clsRakenteet::kLuokka, 9522},
      {clsIVKoneet::kLuokka, 9523},
      {clsSahkonKulutusryhmat::kLuokka, 9524},
      {clsVedenKulutusryhmat::kLuokka, 9525},
      {clsEnergianHankinta::kLuokka, 9526},
      {clsTariffit::kLuokka, 9527},
      {clsVesitariffit::kLuokka, 9528},
      {clsSahkoTariffienVertailu::kLuokka, 9529},
      {clsToimenpiteidenJarjestelija::kLuokka, 9530},
      {clsSaa::kLuokka, 9531},
      {clsKatselmoijienTiedot::kLuokka, 9532},
  };
  for (const Osateksti& osa : kOsatekstit)
    if (&osa.luokka == &luokka) return osa.teksti;
  return 0;
}

/// Shows `alku` + ": " + the part's name as parts come by. Spaces bring the same part thousands of times: shown once.
Eteneminen NaytaOsat(Odotus& odotus, const std::string& alku) {
  return [&odotus, alku, edellinen = static_cast<const Luokka*>(nullptr)](const Luokka& luokka) mutable {
    if (&luokka == edellinen) return;
    edellinen = &luokka;
    if (const int teksti = OsanTeksti(luokka)) odotus.Teksti(alku + ": " + Teksti(teksti));
  };
}

void KerroVaurioista(const Latausraportti& raportti) {
  std::string viesti = Teksti(9504) + " " + std::to_string(raportti.vaurioita);
  for (const std::string& esimerkki : raportti.esimerkit) viesti += "\n" + esimerkki;
  Ilmoita(viesti, Teksti(9101), Vakavuus::Varoitus);
}

}  // namespace

bool clsRakennus::Tallenna(const std::string& tiedosto, const Tiedostotunnus* odotettu) {
  Odotus odotus(Teksti(9103) + " " + Perustiedot.KohteenNimi + " ");
  try {
    PaivitaInstanssiIdLista();
    Major = kVersioMajor;
    Minor = kVersioMinor;
    Revision = kVersioRevision;
    Tallennettu = true;  // as the file says it
    const Tallennusraportti raportti = TallennaProjekti(
        *this, tiedosto, {},
        {.sailytaEnnen = vaurioitunut_, .odotettu = odotettu, .eteneminen = NaytaOsat(odotus, Teksti(9103))});
    LuettuTiedosto = raportti.tunnus;
    for (const std::string& luokka : raportti.ilmanTunnistetta)
      Ilmoita("Tänne ei pitäisi tulla. InstanssiId puuttuu! Olion typename: " + luokka);
    vaurioitunut_ = false;
    return true;
  } catch (const std::exception& virhe) {
    Tallennettu = false;
    NaytaVirhe(kTallennusEpaonnistui, SyynKuvaus(virhe) + ". Virhekoodi: " + std::to_string(kTallennusEpaonnistui));
    Ilmoita(Teksti(9516), Teksti(9100), Vakavuus::Virhe);
    return false;
  }
}

void clsRakennus::Hae(const std::string& tiedosto) try {
  Odotus odotus(Teksti(9106) + LyhennaPolku(tiedosto, kPolunPituusPaneelissa));
  Latausraportti raportti;
  raportti.eteneminen = NaytaOsat(odotus, Teksti(9106) + LyhennaPolku(tiedosto, kPolunPituusPaneelissa));
  HaeProjekti(*this, tiedosto, raportti);
  VaadiTunnettuVersio({Major, Minor, Revision});
  LuettuTiedosto = raportti.tunnus;
  const bool paivitetty = TarjoaMateriaalienPaivitysta();
  TyyppiTiedot.Nimet.TyhjennaIdListat();
  if (PaivitaIdLista(*this, TyyppiTiedot) > 0 && Saastotoimenpiteet.Count() > 0)
    Ilmoita(Teksti(9513), Teksti(9101), Vakavuus::Varoitus);
  Saa.AsetaSaaPaikkakunta(Perustiedot.LammTarveLukuPaikkakuntaID());
  ProjektiAsetukset.strCurrentProjectFile = tiedosto;
  ProjektiAsetukset.strCurrentProjectPath = std::filesystem::path(tiedosto).parent_path().string();
  PaaikkunaNyt().AsetaOtsikko("");
  for (clsSaastotoimenpide& toimenpide : Saastotoimenpiteet) toimenpide.EnnenTiedotUpToDate = false;
  vaurioitunut_ = raportti.vaurioita > 0;
  Tallennettu = !vaurioitunut_ && !paivitetty;
  if (vaurioitunut_) KerroVaurioista(raportti);
} catch (...) {
  NostaVirhe("clsRakennus:Hae Method");
}

bool clsRakennus::RakVakioKantaUudempiKuinMinunRakenteet() const try {
  const int versio = Asetukset().TietokannanVersio();
  for (const clsTila& tila : Tilat)
    for (const clsRakenne& rakenne : tila.Rakenteet)
      if (versio > rakenne.RakennekannanVersio) return true;
  return false;
} catch (...) {
  NostaVirhe("clsRakennus:RakVakioKantaUudempiKuinMinunRakenteet Method");
}

void clsRakennus::PaivitaMateriaalitVakiokannasta(const std::string& tiedosto) try {
  Rakennetietokanta kanta(tiedosto);
  Odotus odotus(Teksti(9229));
  for (clsTila& tila : Tilat) {
    tila.Rakenteet.PaivitaRakenteetVakiokannasta(kanta);
    odotus.Teksti(ViestitNyt().Paneeli() + "..");
  }
} catch (...) {
  NostaVirhe("clsRakennus:PaivitaMateriaalitVakiokannasta Method");
}

/// Asks only when something would change. A library that can't be read leaves the materials as they are: the object
/// opens all the same. True when they were brought up to date.
bool clsRakennus::TarjoaMateriaalienPaivitysta() try {
  if (!RakVakioKantaUudempiKuinMinunRakenteet()) return false;
  const std::string& tiedosto = Asetukset().strVakioTietokanta;
  Rakennetietokanta kanta(tiedosto);
  Taulukko muutokset = Materiaalimuutokset(Tilat, kanta);
  if (muutokset.empty()) return false;
  const Vastaus vastaus =
      ViestitNyt().Nayta({Teksti(9227) + " " + Teksti(9228), {}, Vakavuus::Kysymys, Napit::KyllaEi, Vastaus::Ei});
  if (vastaus != Vastaus::Kylla) return false;
  if (!HyvaksyMateriaalimuutokset(std::move(muutokset))) return false;
  PaivitaMateriaalitVakiokannasta(tiedosto);
  return true;
} catch (const Virhe& virhe) {
  Ilmoita(Teksti(9551) + "\n" + virhe.SyynKuvaus(), Teksti(9100), Vakavuus::Varoitus);
  return false;
}
