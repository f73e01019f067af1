// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kernel/Asetusvarasto.h"
#include "settings/Alvprosentit.h"

class frmOptions;

/// Which VAT rate an amount takes. The first three are the kind codes of an energy supply.
enum class Energialaji { Lampo = 0, Sahko = 1, Vesi = 2, Yleinen = 3 };

struct Valuutta {
  std::string_view nimi;
  double kerroin;  ///< units for one euro; the irrevocable rates of Council Regulation (EC) No 2866/98
};

/// The display currencies by `ValuuttaTyyppi`, which is the index of the list `cmbValuutta`.
std::span<const Valuutta> Valuutat();

/// The user's settings in memory. The settings dialog writes the store and lets the one global object read it again.
/// Money is held in euros without VAT everywhere else; a shown amount is multiplied by `NayttoKerroin`.
class clsLumivirtaAsetukset {
 public:
  /// Default rates, taxes and currency, and the user's two names. The full name is asked of the system once per user
  /// and is then kept in the store.
  clsLumivirtaAsetukset();

  double YleinenALV;                      ///< general VAT, per cent
  double dblLampoALV;                     ///< VAT of heat, per cent
  double dblSahkoALV;                     ///< VAT of electricity, per cent
  double dblVesiALV;                      ///< VAT of water, per cent
  bool KaytaKohtTulostuksissaALVHintoja;  ///< shown amounts include VAT

  std::string strDefaultCurrencyUnit;  ///< name of the display currency, in place of "mkTagi" in captions
  double dblCurrencyConvCoeff = 1;     ///< display currency per euro

  double dblSahkoVeroluokka1;  ///< electricity tax class 1, euro/MWh
  double dblSahkoVeroluokka2;  ///< electricity tax class 2, euro/MWh
  double SahkoVeroKotitalous;  ///< household electricity tax, euro/MWh
  double SahkoVeroTeollisuus;  ///< industry's electricity tax, euro/MWh

  std::string strVakioTietokanta;         ///< standard structure database, full name
  std::string strKayttajanTietokanta;     ///< user's structure database, full name
  std::string strCurrentDatabaseVersion;  ///< version text of the standard structure database
  std::string VakioPolttoainekanta;       ///< standard fuel database, full name
  std::string KayttajanPolttoainekanta;   ///< user's fuel database, full name

  std::string strWWWOsoite;            ///< default address of the web view
  std::string strCurrentUserRealName;  ///< user's full name
  std::string strCurrentUserName;      ///< user's login name

  /// Index of the display currency. Setting it sets the currency's name and coefficient; outside Valuutat() it raises.
  std::int32_t ValuuttaTyyppi() const { return valuuttaTyyppi_; }
  void ValuuttaTyyppi(std::int32_t tyyppi);

  /// The version of the standard structure database as a number: the leading integer of its text, 0 when it has none.
  std::int32_t TietokannanVersio() const;

  /// Reads the store into the object.
  void HaeRekisteristä();
  /// Nothing is written through the object: the dialog writes the store.
  void VieRekisteriin() {}

  /// Lets the person edit the store. OK writes what has changed, all of it or nothing, and lets this object read the
  /// store again; the open forms follow the currency and the VAT. Cancel leaves everything as it was.
  void NaytaKayttoliittyma();

  /// What a shown amount is multiplied by: the coefficient of the currency, with the VAT of the kind when amounts are
  /// shown with it.
  double NayttoKerroin(Energialaji laji) const;
  /// What a caption over amounts tells of their VAT: "Maksut sisältävät ALV:n" or "ALV: 0 %".
  std::string Verohuomautus() const;
  /// The VAT rates that shown costs bear: all 0 when amounts are shown without VAT.
  Alvprosentit NaytettavatAlvt() const;

 private:
  void HaeKayttajanNimet();
  static void LueDataluokka(frmOptions& lomake);
  static std::vector<Asetus> KirjoitaDataluokka(const frmOptions& lomake);
  void KayttoLiittyma_OkKlikattu(frmOptions& lomake);
  double AlvProsentti(Energialaji laji) const;

  std::int32_t valuuttaTyyppi_ = 0;
};

/// The one object of the settings, made on first use, for the rest of the program.
clsLumivirtaAsetukset& Asetukset();

/// What a start writes to the store: the data directory, the release number, the fuel databases of this directory, and
/// the VAT rates and taxes as they are, so that a first start leaves those keys. A store that can't be written is told.
void PaivitaKaynnistyksessa();
