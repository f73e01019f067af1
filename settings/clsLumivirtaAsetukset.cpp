// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsLumivirtaAsetukset.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <utility>
#include <vector>

#include "kernel/Hakemistot.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "library/Rakennetietokanta.h"
#include "settings/Asetusavaimet.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr double kMarkkaa = 5.94573;

constexpr std::array kValuutat = {
    Valuutta{"mk", kMarkkaa}, Valuutta{"euro", 1},      Valuutta{"ATS", 13.7603}, Valuutta{"BEF", 40.3399},
    Valuutta{"DEM", 1.95583}, Valuutta{"ESP", 166.386}, Valuutta{"FRF", 6.55957}, Valuutta{"IEP", 0.787564},
    Valuutta{"ITL", 1936.27}, Valuutta{"LUF", 40.3399}, Valuutta{"NLG", 2.20371}, Valuutta{"PTE", 200.482},
};

constexpr std::array kKaynnistyksessaVirkistettavat = {Avain::YleinenALV, Avain::TotLampo,    Avain::TotSahko,
                                                       Avain::TotVesi,    Avain::Veroluokka1, Avain::Veroluokka2};

double OletusMiljoonasosat(Avain avain) { return LueLuku(OletusAsetus(avain)).value() / 1000000.0; }

/// Login name of the effective user; empty when the system knows none.
std::string Kayttajatunnus() {
  if (const passwd* tiedot = getpwuid(geteuid()); tiedot && *tiedot->pw_name) return tiedot->pw_name;
  const char* ymparistosta = std::getenv("USER");
  return ymparistosta ? ymparistosta : "";
}

/// The full name: the field of the user database up to its first comma, else the login name.
std::string KayttajanKokonimi() {
  const passwd* tiedot = getpwuid(geteuid());
  const std::string kentta = tiedot && tiedot->pw_gecos ? tiedot->pw_gecos : "";
  const std::string nimi = kentta.substr(0, kentta.find(','));
  return nimi.empty() ? Kayttajatunnus() : nimi;
}

/// Saves for the next start; a store that can't be written is told at the start already.
void TallennaHiljaa(Avain avain, const std::string& arvo) {
  try {
    TallennaAsetus(avain, arvo);
  } catch (const Virhe&) {
  }
}

/// What the database tells of itself; the stored text while it can't be read, which is told where it is needed.
std::string VakiokannanVersio(const std::string& kanta) {
  try {
    return Rakennetietokanta(kanta).Versio();
  } catch (const Virhe&) {
    return HaeAsetus(Avain::VakiokantaVersio);
  }
}

void KerroVioittumisesta() {
  AsetaVioittumisilmoitus([](const std::string& siirretty) {
    Ilmoita(
        "Asetustiedosto oli vioittunut. Se on siirretty nimelle\n" + siirretty + "\nja käytössä ovat oletusasetukset.",
        {}, Vakavuus::Varoitus);
  });
}

std::vector<Asetus> KaynnistyksenAsetukset() {
  std::vector<Asetus> asetukset = {AsetuksenArvo(Avain::Kotihakemisto, AppPath()),
                                   AsetuksenArvo(Avain::Julkaisuversionumero, "1")};
  for (const Avain avain : kKaynnistyksessaVirkistettavat) asetukset.push_back(AsetuksenArvo(avain, HaeAsetus(avain)));
  for (const Avain avain : {Avain::Energia_Kayttajakohtainen, Avain::Energia_Vakiokanta}) {
    asetukset.push_back(AsetuksenArvo(avain, OletusAsetus(avain)));
  }
  return asetukset;
}

}  // namespace

std::span<const Valuutta> Valuutat() { return kValuutat; }

clsLumivirtaAsetukset::clsLumivirtaAsetukset()
    : YleinenALV(OletusMiljoonasosat(Avain::YleinenALV)),
      dblLampoALV(OletusMiljoonasosat(Avain::TotLampo)),
      dblSahkoALV(OletusMiljoonasosat(Avain::TotSahko)),
      dblVesiALV(OletusMiljoonasosat(Avain::TotVesi)),
      KaytaKohtTulostuksissaALVHintoja(true),
      dblSahkoVeroluokka1(OletusMiljoonasosat(Avain::Veroluokka1)),
      dblSahkoVeroluokka2(OletusMiljoonasosat(Avain::Veroluokka2)),
      SahkoVeroKotitalous(41.75 / kMarkkaa),
      SahkoVeroTeollisuus(25.75 / kMarkkaa) {
  HaeKayttajanNimet();
  ValuuttaTyyppi(0);
}

void clsLumivirtaAsetukset::HaeKayttajanNimet() {
  strCurrentUserRealName = HaeAsetus(Avain::CurrentUserRealName);
  if (strCurrentUserRealName == OletusAsetus(Avain::CurrentUserRealName)) {
    strCurrentUserRealName = KayttajanKokonimi();
    if (strCurrentUserRealName.empty()) {
      Ilmoita("Failed to get Excel-user name");
    } else {
      TallennaHiljaa(Avain::CurrentUserRealName, strCurrentUserRealName);
    }
  }
  strCurrentUserName = Kayttajatunnus();
  if (strCurrentUserName.empty()) Ilmoita("Failed to get login-user name");
}

void clsLumivirtaAsetukset::ValuuttaTyyppi(std::int32_t tyyppi) {
  if (tyyppi < 0 || tyyppi >= std::ssize(kValuutat)) {
    NostaVirhe("clsLumivirtaAsetukset:ValuuttaTyyppi Property Let", "Tuntematon valuutta " + std::to_string(tyyppi));
  }
  const Valuutta& valuutta = kValuutat[static_cast<std::size_t>(tyyppi)];
  valuuttaTyyppi_ = tyyppi;
  strDefaultCurrencyUnit = valuutta.nimi;
  dblCurrencyConvCoeff = valuutta.kerroin;
}

std::int32_t clsLumivirtaAsetukset::TietokannanVersio() const {
  const std::string& teksti = strCurrentDatabaseVersion;
  std::int32_t versio = 0;
  std::from_chars(teksti.data(), teksti.data() + teksti.size(), versio);
  return versio;
}

void clsLumivirtaAsetukset::HaeRekisteristä() try {
  YleinenALV = HaeMiljoonasosat(Avain::YleinenALV);
  strVakioTietokanta = HaeAsetus(Avain::Vakiokanta);
  strKayttajanTietokanta = HaeAsetus(Avain::Kayttajakohtainen);
  strCurrentDatabaseVersion = VakiokannanVersio(strVakioTietokanta);
  dblLampoALV = HaeMiljoonasosat(Avain::TotLampo);
  dblSahkoALV = HaeMiljoonasosat(Avain::TotSahko);
  dblVesiALV = HaeMiljoonasosat(Avain::TotVesi);
  KaytaKohtTulostuksissaALVHintoja = HaeTotuus(Avain::KaytaLVI);
  const std::int32_t valuutta = HaeKokonaisluku(Avain::Valuutta);
  ValuuttaTyyppi(valuutta >= 0 && valuutta < std::ssize(kValuutat) ? valuutta : 0);
  dblSahkoVeroluokka1 = HaeMiljoonasosat(Avain::Veroluokka1);
  dblSahkoVeroluokka2 = HaeMiljoonasosat(Avain::Veroluokka2);
  strWWWOsoite = HaeAsetus(Avain::Oletusosoite);
  strCurrentUserRealName = HaeAsetus(Avain::CurrentUserRealName);
  VakioPolttoainekanta = HaeAsetus(Avain::Energia_Vakiokanta);
  KayttajanPolttoainekanta = HaeAsetus(Avain::Energia_Kayttajakohtainen);
} catch (...) {
  NostaVirhe("clsLumivirtaAsetukset:HaeRekisteristä Method");
}

double clsLumivirtaAsetukset::NayttoKerroin(Energialaji laji) const {
  return KaytaKohtTulostuksissaALVHintoja ? dblCurrencyConvCoeff * (1 + AlvProsentti(laji) / 100)
                                          : dblCurrencyConvCoeff;
}

Alvprosentit clsLumivirtaAsetukset::NaytettavatAlvt() const {
  if (!KaytaKohtTulostuksissaALVHintoja) return {};
  return {.lampo = dblLampoALV, .sahko = dblSahkoALV, .vesi = dblVesiALV, .yleinen = YleinenALV};
}

double clsLumivirtaAsetukset::AlvProsentti(Energialaji laji) const {
  switch (laji) {
    case Energialaji::Lampo:
      return dblLampoALV;
    case Energialaji::Sahko:
      return dblSahkoALV;
    case Energialaji::Vesi:
      return dblVesiALV;
    default:
      return YleinenALV;
  }
}

std::string clsLumivirtaAsetukset::Verohuomautus() const {
  return KaytaKohtTulostuksissaALVHintoja ? Teksti(tekstit::kMaksutSisaltavatAlvn)
                                          : Teksti(tekstit::kArvonlisaveroOtsikko) + " 0 %";
}

clsLumivirtaAsetukset& Asetukset() {
  static clsLumivirtaAsetukset asetukset = [] {
    KerroVioittumisesta();
    return clsLumivirtaAsetukset();
  }();
  return asetukset;
}

void PaivitaKaynnistyksessa() try {
  KerroVioittumisesta();
  TallennaAsetukset(KaynnistyksenAsetukset());
} catch (const std::exception& virhe) {
  Ilmoita("Asetuksia ei voi tallentaa: " + SyynKuvaus(virhe) +
              "\nOhjelma toimii, mutta asetusten muutokset eivät säily. Tarkista hakemiston oikeudet ja levytila.",
          {}, Vakavuus::Varoitus);
}
