// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "kernel/Asetusvarasto.h"

/// The keys of the settings store, in the order of the table below. The six fields of an auditor follow each other.
enum class Avain {
  YleinenALV,                 ///< general VAT, %
  TotLampo,                   ///< VAT of heat, %
  TotSahko,                   ///< VAT of electricity, %
  TotVesi,                    ///< VAT of water, %
  KaytaLVI,                   ///< amounts shown with VAT
  IlmanLVI,                   ///< amounts shown without VAT
  Valuutta,                   ///< index of the display currency
  Veroluokka1,                ///< electricity tax class 1, euro/MWh
  Veroluokka2,                ///< electricity tax class 2, euro/MWh
  Vakiokanta,                 ///< standard structure database
  Kayttajakohtainen,          ///< user's structure database
  VakiokantaVersio,           ///< version of the standard structure database
  Energia_Vakiokanta,         ///< standard fuel database
  Energia_Kayttajakohtainen,  ///< user's fuel database
  Oletusosoite,               ///< address of the web view
  CurrentUserRealName,        ///< user's full name, once fetched
  NäytaTervehdys,             ///< 1: the welcome topic is still to be shown
  LVI0,                       ///< HVAC auditor: job title
  LVI1,                       ///< HVAC auditor: name
  LVI2,                       ///< HVAC auditor: telephone
  LVI3,                       ///< HVAC auditor: mobile telephone
  LVI4,                       ///< HVAC auditor: fax
  LVI5,                       ///< HVAC auditor: e-mail
  Sah0,                       ///< electrical auditor: job title
  Sah1,                       ///< electrical auditor: name
  Sah2,                       ///< electrical auditor: telephone
  Sah3,                       ///< electrical auditor: mobile telephone
  Sah4,                       ///< electrical auditor: fax
  Sah5,                       ///< electrical auditor: e-mail
  Kotihakemisto,              ///< AppPath of the last start
  Julkaisuversionumero,       ///< release number of the last start
  MainLeft,                   ///< main window's place, twips
  MainTop,                    ///< main window's place, twips
  MainWidth,                  ///< main window's size, twips
  MainHeight,                 ///< main window's size, twips
  TyokaluriviNakyy,           ///< tool bar shown
  TilariviNakyy,              ///< status bar shown
  SivunPaperi,                ///< paper of sheets and prints, settings/Sivuasetukset.h
  SivuVaakasuorassa,          ///< the paper lies on its long side
  SivunVasenReuna,            ///< margins, mm
  SivunYlareuna,
  SivunOikeaReuna,
  SivunAlareuna,
  Taulukkokansio,  ///< where the sheets go that are opened in the spreadsheet program; "" a temporary folder
  Lukumaara
};

/// What the text of a value means.
enum class AsetusLaji {
  Teksti,
  Miljoonasosat,  ///< integer, the value × 1 000 000, so that no decimal mark enters the store
  Totuus,         ///< "-1" or "0"
  Kokonaisluku,
  DatanTiedosto,  ///< full name of a file; the default is a name in AppPath
};

struct AsetusRivi {
  Avain tunnus;
  std::string_view osio;
  std::string_view avain;
  std::string_view oletus;
  AsetusLaji laji;
};

/// Every key with its section and default.
inline constexpr std::array kAsetukset = {
    AsetusRivi{Avain::YleinenALV, "Asetukset_Kustannuslaskenta", "YleinenALV", "22000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::TotLampo, "Asetukset_Kustannuslaskenta", "TotLampo", "22000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::TotSahko, "Asetukset_Kustannuslaskenta", "TotSahko", "22000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::TotVesi, "Asetukset_Kustannuslaskenta", "TotVesi", "22000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::KaytaLVI, "Asetukset_Kustannuslaskenta", "KaytaLVI", "-1", AsetusLaji::Totuus},
    AsetusRivi{Avain::IlmanLVI, "Asetukset_Kustannuslaskenta", "IlmanLVI", "0", AsetusLaji::Totuus},
    AsetusRivi{Avain::Valuutta, "Asetukset_Kustannuslaskenta", "Valuutta", "0", AsetusLaji::Kokonaisluku},
    AsetusRivi{Avain::Veroluokka1, "Asetukset_Kustannuslaskenta", "Veroluokka1", "7021846", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::Veroluokka2, "Asetukset_Kustannuslaskenta", "Veroluokka2", "4330839", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::Vakiokanta, "Asetukset_Tietokannat", "Vakiokanta", "Rakennekirjasto/Tietokanta_perus.mdb",
               AsetusLaji::DatanTiedosto},
    AsetusRivi{Avain::Kayttajakohtainen, "Asetukset_Tietokannat", "Kayttajakohtainen", "Rakennekirjasto/Tietokanta.mdb",
               AsetusLaji::DatanTiedosto},
    AsetusRivi{Avain::VakiokantaVersio, "Asetukset_Tietokannat", "VakiokantaVersio", "1.0001.5", AsetusLaji::Teksti},
    AsetusRivi{Avain::Energia_Vakiokanta, "Asetukset_Tietokannat", "Energia_Vakiokanta", "VakioPolttoainekanta.mdb",
               AsetusLaji::DatanTiedosto},
    AsetusRivi{Avain::Energia_Kayttajakohtainen, "Asetukset_Tietokannat", "Energia_Kayttajakohtainen",
               "KayttajanPolttoainekanta.mdb", AsetusLaji::DatanTiedosto},
    AsetusRivi{Avain::Oletusosoite, "Asetukset_WWW", "Oletusosoite", "about:blank", AsetusLaji::Teksti},
    AsetusRivi{Avain::CurrentUserRealName, "Asetukset_kayttaja", "CurrentUserRealName", "EmptyString",
               AsetusLaji::Teksti},
    AsetusRivi{Avain::NäytaTervehdys, "Asetukset_kayttaja", "NäytaTervehdys", "1", AsetusLaji::Kokonaisluku},
    AsetusRivi{Avain::LVI0, "Asetukset_KatselmoijanYhteystiedot", "LVI0", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::LVI1, "Asetukset_KatselmoijanYhteystiedot", "LVI1", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::LVI2, "Asetukset_KatselmoijanYhteystiedot", "LVI2", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::LVI3, "Asetukset_KatselmoijanYhteystiedot", "LVI3", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::LVI4, "Asetukset_KatselmoijanYhteystiedot", "LVI4", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::LVI5, "Asetukset_KatselmoijanYhteystiedot", "LVI5", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Sah0, "Asetukset_KatselmoijanYhteystiedot", "Sah0", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Sah1, "Asetukset_KatselmoijanYhteystiedot", "Sah1", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Sah2, "Asetukset_KatselmoijanYhteystiedot", "Sah2", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Sah3, "Asetukset_KatselmoijanYhteystiedot", "Sah3", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Sah4, "Asetukset_KatselmoijanYhteystiedot", "Sah4", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Sah5, "Asetukset_KatselmoijanYhteystiedot", "Sah5", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Kotihakemisto, "Asetukset_Kotihakemisto", "Kotihakemisto", "", AsetusLaji::Teksti},
    AsetusRivi{Avain::Julkaisuversionumero, "Asetukset_Julkaisuversionumero", "Julkaisuversionumero", "",
               AsetusLaji::Teksti},
    AsetusRivi{Avain::MainLeft, "Settings", "MainLeft", "1000", AsetusLaji::Kokonaisluku},
    AsetusRivi{Avain::MainTop, "Settings", "MainTop", "1000", AsetusLaji::Kokonaisluku},
    AsetusRivi{Avain::MainWidth, "Settings", "MainWidth", "12210", AsetusLaji::Kokonaisluku},
    AsetusRivi{Avain::MainHeight, "Settings", "MainHeight", "9510", AsetusLaji::Kokonaisluku},
    AsetusRivi{Avain::TyokaluriviNakyy, "Settings", "TyokaluriviNakyy", "-1", AsetusLaji::Totuus},
    AsetusRivi{Avain::TilariviNakyy, "Settings", "TilariviNakyy", "-1", AsetusLaji::Totuus},
    AsetusRivi{Avain::SivunPaperi, "Asetukset_Sivu", "Paperi", "A4", AsetusLaji::Teksti},
    AsetusRivi{Avain::SivuVaakasuorassa, "Asetukset_Sivu", "Vaakasuorassa", "-1", AsetusLaji::Totuus},
    AsetusRivi{Avain::SivunVasenReuna, "Asetukset_Sivu", "VasenReuna", "20000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::SivunYlareuna, "Asetukset_Sivu", "Ylareuna", "20000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::SivunOikeaReuna, "Asetukset_Sivu", "OikeaReuna", "20000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::SivunAlareuna, "Asetukset_Sivu", "Alareuna", "20000000", AsetusLaji::Miljoonasosat},
    AsetusRivi{Avain::Taulukkokansio, "Asetukset_Sivu", "Taulukkokansio", "", AsetusLaji::Teksti},
};

constexpr bool RivitJarjestyksessa() {
  for (std::size_t i = 0; i < kAsetukset.size(); ++i)
    if (kAsetukset[i].tunnus != static_cast<Avain>(i)) return false;
  return kAsetukset.size() == static_cast<std::size_t>(Avain::Lukumaara);
}
static_assert(RivitJarjestyksessa());

constexpr const AsetusRivi& AsetuksenRivi(Avain avain) { return kAsetukset[static_cast<std::size_t>(avain)]; }

/// The text that holds when the store has none: the table's, for a file its full name in AppPath.
std::string OletusAsetus(Avain avain);
/// The stored text, else the default. A stored file that isn't there gives way to the default: the program has moved.
std::string HaeAsetus(Avain avain);
/// Raises 9999 when the store can't be written.
void TallennaAsetus(Avain avain, std::string_view arvo);
/// A value to be saved with others, by TallennaAsetukset.
Asetus AsetuksenArvo(Avain avain, std::string arvo);

/// Values of the kinds Miljoonasosat, Totuus and Kokonaisluku. A text that doesn't say such a value gives the default.
double HaeMiljoonasosat(Avain avain);
bool HaeTotuus(Avain avain);
std::int32_t HaeKokonaisluku(Avain avain);

/// 21.5 as "21500000"; rounds half away from zero.
std::string MiljoonasosinaTekstina(double arvo);
/// "-1" or "0".
std::string TotuusTekstina(bool arvo);
