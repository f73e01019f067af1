// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and loading of the building: the project file itself is kernel/Projektitiedosto.
#include <algorithm>
#include <filesystem>
#include <limits>
#include <span>

#include "building/Energiamuotomuutokset.h"
#include "building/Materiaalimuutokset.h"
#include "building/Tiedostomuunnokset.h"
#include "building/Versiotarkistus.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Hakemistot.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Rekisteri.h"
#include "kernel/Versio.h"
#include "kernel/Virhe.h"
#include "library/Rakennetietokanta.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Odotus.h"
#include "ui/Paaikkuna.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr std::size_t kPolunPituusPaneelissa = 70;

/// Text of the part that is being saved or loaded, by class.
struct Osateksti {
  const Luokka& luokka;
  int teksti;
};

int OsanTeksti(const Luokka& luokka) {
  static const Osateksti kOsatekstit[] = {
      {clsPerustiedot::kLuokka, tekstit::kOsaPerustiedot},
      {clsTilat::kLuokka, tekstit::kOsaTilat},
      {clsRakenteet::kLuokka, tekstit::kOsaRakenteet},
      {clsIVKoneet::kLuokka, tekstit::kOsaKoneet},
      {clsSahkonKulutusryhmat::kLuokka, tekstit::kOsaSahko},
      {clsVedenKulutusryhmat::kLuokka, tekstit::kOsaVesi},
      {clsEnergianHankinta::kLuokka, tekstit::kOsaHankinta},
      {clsTariffit::kLuokka, tekstit::kOsaTariffit},
      {clsVesitariffit::kLuokka, tekstit::kOsaVesitariffit},
      {clsSahkoTariffienVertailu::kLuokka, tekstit::kOsaTariffivertailu},
      {clsToimenpiteidenJarjestelija::kLuokka, tekstit::kOsaJarjestelija},
      {clsSaa::kLuokka, tekstit::kOsaSaa},
      {clsKatselmoijienTiedot::kLuokka, tekstit::kOsaKatselmoijat},
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

/// The message with the first of the names below it.
void KerroLuettelo(std::string viesti, const std::vector<std::string>& nimet) {
  constexpr std::size_t kNimia = 20;
  for (const std::string& nimi : std::span(nimet).first(std::min(nimet.size(), kNimia))) viesti += "\n" + nimi;
  Ilmoita(viesti, Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
}

void KerroMenetettavasta(const Latausraportti& raportti) {
  if (raportti.vaurioita > 0)
    KerroLuettelo(Teksti(tekstit::kVaurioituneitaArvoja) + " " + std::to_string(raportti.vaurioita),
                  raportti.esimerkit);
  if (!raportti.tuntemattomat.empty()) KerroLuettelo(Teksti(tekstit::kTuntemattomiaTietoja), raportti.tuntemattomat);
}

/// A question of two sentences; No is the default. True = Yes.
bool Kysy(Tekstinumero syy, Tekstinumero kysymys) {
  return ViestitNyt().Nayta(
             {Teksti(syy) + " " + Teksti(kysymys), {}, Vakavuus::Kysymys, Napit::KyllaEi, Vastaus::Ei}) ==
         Vastaus::Kylla;
}

/// What the person can do about a save that failed.
Tekstinumero Neuvo(const std::exception& virhe) {
  using Syy = Projektivirhe::Syy;
  const auto* projektivirhe = dynamic_cast<const Projektivirhe*>(&virhe);
  switch (projektivirhe ? projektivirhe->OmaSyy() : Syy::Kirjoitus) {
    case Syy::MalliPuuttuu:
    case Syy::Malli:
      return tekstit::kNeuvoMalli;
    case Syy::Arvo:
      return tekstit::kNeuvoArvo;
    case Syy::Vaihtunut:
      return tekstit::kNeuvoVaihtunut;
    default:
      return tekstit::kNeuvoLevy;
  }
}

/// The cause, what has become of the file, and what to do, in one message.
void KerroTallennusvirhe(const std::exception& virhe) {
  NaytaVirhe(virheet::kTallennusEpaonnistui,
             SyynKuvaus(virhe) + ". Virhekoodi: " + std::to_string(virheet::kTallennusEpaonnistui) + "\n\n" +
                 Teksti(tekstit::kTallennusEpaonnistui) + " " + Teksti(Neuvo(virhe)));
}

std::string Versioteksti(const clsRakennus& rakennus) {
  return std::to_string(rakennus.Major) + "." + std::to_string(rakennus.Minor) + "." +
         std::to_string(rakennus.Revision);
}

}  // namespace

bool clsRakennus::Tallenna(const std::string& tiedosto, const Tiedostotunnus* odotettu) {
  Odotus odotus(Teksti(tekstit::kTallennetaanKohdetta) + " " + Perustiedot.KohteenNimi + " ");
  try {
    for (clsIVKone& kone : IVKoneet) kone.PaivitaOsienTiedot();
    PaivitaInstanssiIdLista();
    Major = kVersioMajor;
    Minor = kVersioMinor;
    Revision = kVersioRevision;
    ProjektiAsetukset.strCurrentProjectFileRevision = Versioteksti(*this);
    Tallennettu = true;  // as the file says it
    const Tallennusraportti raportti =
        TallennaProjekti(*this, tiedosto, {},
                         {.sailytaEnnen = vaurioitunut_,
                          .odotettu = odotettu,
                          .eteneminen = NaytaOsat(odotus, Teksti(tekstit::kTallennetaanKohdetta))});
    LuettuTiedosto = raportti.tunnus;
    Tallennettu = raportti.vahvistettu;
    if (!Tallennettu)
      Ilmoita(Teksti(tekstit::kTallennusVahvistamatta) + "\n" + tiedosto, Teksti(tekstit::kHuomautus),
              Vakavuus::Varoitus);
    for (const std::string& luokka : raportti.ilmanTunnistetta)
      Ilmoita("Tänne ei pitäisi tulla. InstanssiId puuttuu! Olion typename: " + luokka);
    vaurioitunut_ = false;
    return Tallennettu;
  } catch (const std::exception& virhe) {
    Tallennettu = false;
    KerroTallennusvirhe(virhe);
    return false;
  }
}

void clsRakennus::Hae(const std::string& tiedosto) try {
  Odotus odotus(Teksti(tekstit::kAvataanKohdetta) + LyhennaPolku(tiedosto, kPolunPituusPaneelissa));
  Latausraportti raportti;
  raportti.eteneminen =
      NaytaOsat(odotus, Teksti(tekstit::kAvataanKohdetta) + LyhennaPolku(tiedosto, kPolunPituusPaneelissa));
  HaeProjekti(*this, tiedosto, raportti);
  const Tiedostoversio versio{Major, Minor, Revision};
  VaadiTunnettuVersio(versio);
  LuettuTiedosto = raportti.tunnus;
  for (clsTariffi& tariffi : Tariffit) tariffi.TaydennaMaksut();
  for (clsVesitariffi& tariffi : Vesitariffit) tariffi.TaydennaMaksut();
  const bool muunnettu = MuunnaNykyiseksi(*this, tiedosto, versio);
  const bool materiaalitPaivitetty = TarjoaMateriaalienPaivitysta();
  const bool paivitetty = TarjoaEnergiamuotojenPaivitysta() || materiaalitPaivitetty;
  TyyppiTiedot.Nimet.TyhjennaIdListat();
  if (PaivitaIdLista(*this, TyyppiTiedot) > 0 && Saastotoimenpiteet.Count() > 0)
    Ilmoita(Teksti(tekstit::kMuutoksiaOhitettiin), Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
  Saa.AsetaSaaPaikkakunta(Perustiedot.LammTarveLukuPaikkakuntaID());
  ProjektiAsetukset.strCurrentProjectFile = tiedosto;
  ProjektiAsetukset.strCurrentProjectPath = std::filesystem::path(tiedosto).parent_path().string();
  ProjektiAsetukset.strCurrentProjectFileRevision = Versioteksti(*this);
  PaaikkunaNyt().AsetaOtsikko("");
  for (clsSaastotoimenpide& toimenpide : Saastotoimenpiteet) toimenpide.EnnenTiedotUpToDate = false;
  vaurioitunut_ = raportti.vaurioita > 0 || !raportti.tuntemattomat.empty();
  Tallennettu = raportti.vaurioita == 0 && !muunnettu && !paivitetty;
  KerroMenetettavasta(raportti);
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
  Odotus odotus(Teksti(tekstit::kPaivitetaanMateriaaleja));
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
  if (!Kysy(tekstit::kVakiokantaUudempi, tekstit::kPaivitetaankoMateriaalit)) return false;
  if (!HyvaksyMateriaalimuutokset(std::move(muutokset))) return false;
  PaivitaMateriaalitVakiokannasta(tiedosto);
  return true;
} catch (const Virhe& virhe) {
  Ilmoita(Teksti(tekstit::kMateriaalejaEiPaivitetty) + "\n" + virhe.SyynKuvaus(), Teksti(tekstit::kVirhe),
          Vakavuus::Varoitus);
  return false;
}

bool clsRakennus::EnVakioKantaUudempiKuinMinun(std::int32_t versio) const {
  for (const clsEnergianHankinta* hankinta : {&Perustiedot.LammonHankinta, &Perustiedot.SahkonHankinta})
    for (const clsEnergiamuoto& muoto : hankinta->Energiamuodot)
      if (muoto.OnVakiokannasta && versio > muoto.EnergiaMuotokannanVersio) return true;
  return false;
}

void clsRakennus::PaivitaEnMuodotVakiokannasta() try {
  Energiamuotokanta kanta(Energiamuotokanta::Laji::Vakio);
  const Odotus odotus(Teksti(tekstit::kPaivitetaanMuotoja));
  auto puuttuvat = Perustiedot.LammonHankinta.PaivitaEMuodotVakiokannasta(kanta);
  const auto sahkon = Perustiedot.SahkonHankinta.PaivitaEMuodotVakiokannasta(kanta);
  puuttuvat.insert(puuttuvat.end(), sahkon.begin(), sahkon.end());
  if (!puuttuvat.empty()) KerroLuettelo(Teksti(tekstit::kMuotojaEiKannassa), puuttuvat);
} catch (...) {
  NostaVirhe("clsRakennus:PaivitaEnMuodotVakiokannasta Method");
}

/// As with the materials. An object without forms of the standard database isn't bothered with a database that can't be
/// read; one that tells no version is told of in any case. True when the forms were brought up to date.
bool clsRakennus::TarjoaEnergiamuotojenPaivitysta() {
  try {
    Energiamuotokanta kanta(Energiamuotokanta::Laji::Vakio);
    const std::int32_t versio = kanta.Versio();
    if (versio == -1) {
      Ilmoita(Teksti(tekstit::kMuotojaEiVerrattu), Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
      return false;
    }
    if (!EnVakioKantaUudempiKuinMinun(versio)) return false;
    Energiamuotomuutokset muutokset = VertaaEnergiamuodot(Perustiedot, kanta);
    if (muutokset.Tyhja()) return false;
    if (!Kysy(tekstit::kPolttoainekantaUudempi, tekstit::kPaivitetaankoMuodot)) return false;
    if (!HyvaksyEnergiamuotomuutokset(std::move(muutokset.rivit))) return false;
    Ilmoita(Teksti(tekstit::kMuodotHaetaan) + " " + Teksti(tekstit::kMuotojenOsuudetSailyvat));
    PaivitaEnMuodotVakiokannasta();
    return true;
  } catch (const Virhe& virhe) {
    if (EnVakioKantaUudempiKuinMinun(std::numeric_limits<std::int32_t>::max()))
      Ilmoita(Teksti(tekstit::kMuotojaEiVerrattu) + "\n" + virhe.SyynKuvaus(), Teksti(tekstit::kVirhe),
              Vakavuus::Varoitus);
    return false;
  }
}
