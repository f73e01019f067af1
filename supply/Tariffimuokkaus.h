// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "building/LisaaKopio.h"
#include "building/Muokkausistunto.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Luetteleminen.h"
#include "kernel/Luvut.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/Tariffitapa.h"
#include "supply/clsEnergiamaksu.h"
#include "tekstit/lomakkeet_tariffit.h"
#include "tekstit/rakennus.h"
#include "tekstit/virheet.h"
#include "ui/Hiljaa.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Sidonta.h"
#include "ui/Tariffilomake.h"
#include "ui/Tekstivarasto.h"

/// Fields that all tariffs have. The VAT comes first: the amounts are written by it.
template <class Tariffi>
inline constexpr OlionSidonta<Tariffi> kTariffinKentat[] = {
    Tekstikentta<&Tariffi::Nimi>("TxtNimi"),
    Rastikentta<&Tariffi::MaksutSisaltavatALVn>("chkALV"),
    Lukukentta<&Tariffi::ALV>("txtALV", "0.##"),
    Lukukentta<&Tariffi::Perusmaksu, &Tariffi::NayttoKerroin>("TxtPerusmaksu", "0.00"),
    Lukukentta<&Tariffi::MuuMaksu, &Tariffi::NayttoKerroin>("TxtMuuMaksu", "0.00"),
};

/// One unit price of a tariff, shown by the tariff's factor.
struct Maksurivi {
  clsEnergiamaksu& maksu;
  double kerroin;
};
template <auto Jasen>
struct Maksuarvo {
  using Olio = Maksurivi;
  using Arvo = typename sidonta::Kohde<Jasen>::Arvo;
  static const Arvo& Hae(const Maksurivi& rivi) { return rivi.maksu.*Jasen; }
  static void Aseta(Maksurivi& rivi, Arvo arvo) { rivi.maksu.*Jasen = std::move(arvo); }
};
inline constexpr auto kMaksunNimi = Tekstikentta<Maksuarvo<&clsEnergiamaksu::Nimi>{}>("txtEnergiamaksuNimi*");
inline constexpr auto kMaksunHinta =
    Lukukentta<Maksuarvo<&clsEnergiamaksu::Hinta>{}, &Maksurivi::kerroin>("txtEnergiamaksuHinta*", "0.00");

/// A row of the yearly bill, in euros without VAT. One with a name is a part of the sum and of the picture.
struct Laskurivi {
  double arvo;
  const TextBox* kentta = nullptr;
  const char* kuvio = "";
  Tekstinumero nimi{};
};

/// The dialog of the building's tariffs while it is open, whatever they price. They are edited live: what the person
/// writes reaches the chosen tariff at once, if it is good. Cancel copies back what was.
template <class Tariffit, class Tariffi>
class Tariffimuokkaus {
 public:
  Tariffimuokkaus(Tariffit& tariffit, Tariffilomake& lomake, Tariffitapa tapa)
      : tariffit_(tariffit), lomake_(lomake), tapa_(tapa) {
    LiitaTapahtumat();
  }
  virtual ~Tariffimuokkaus() = default;
  Tariffimuokkaus(const Tariffimuokkaus&) = delete;
  Tariffimuokkaus& operator=(const Tariffimuokkaus&) = delete;

  /// Shows the dialog with the tariff of that key chosen and its bill for the consumption. The key of the one chosen at
  /// OK, empty when there are no tariffs; nothing after Cancel.
  std::optional<Tunniste> Nayta(const Tunniste& valittava, double kulutus) {
    kulutus_ = kulutus;
    lomake_.kulutus.Luku(kulutus, "### ##0.##");
    Muokkausistunto istunto(tariffit_, lomake_,
                            {.lue = [&] { NaytaLuettelo(valittava); },
                             .kirjoita = [this] { Viimeistele(); },
                             .tarkista = [this] { return !Muokattavissa() || Kelpaa(*Valittu()); },
                             .virheenJalkeen = [this] { NaytaLuettelo(lomake_.lista.Valittu()); }});
    if (!istunto.Nayta()) return std::nullopt;
    return lomake_.lista.Valittu();
  }

 protected:
  virtual bool Naytetaan(const Tariffi&) const { return true; }
  virtual Tariffi& Uusi() = 0;
  /// Lets the person fill a new one from the catalogue. False when none was picked.
  virtual bool Poimi(Tariffi& tariffi) = 0;
  /// Names of what uses it.
  virtual std::vector<std::string> Kayttajat(const Tariffi& tariffi) const = 0;
  /// A tariff was chosen: shows which fees it has.
  virtual void NaytaRivit(const Tariffi&) {}
  /// Fills the fields of the tariff.
  virtual void NaytaKentat(Tariffi& tariffi) = 0;
  /// Writes this field, and what follows from it. False when it holds nothing good.
  virtual bool KirjoitaKentta(const Ohjain& kentta, Tariffi& tariffi) = 0;
  virtual std::vector<Laskurivi> Lasku(const Tariffi& tariffi, double kulutus) const = 0;
  /// What is to be looked at in it; empty: nothing.
  virtual std::string Huomautus(const Tariffi&) const { return {}; }
  /// What is written of a tariff that is left, whatever the person changed.
  virtual void Viimeistele(Tariffi&) {}
  /// At OK: false, after telling why, when the dialog has to stay open.
  virtual bool Kelpaa(const Tariffi&) const { return true; }
  bool Muokattavissa() const { return Valittu() && tapa_ == Tariffitapa::Muokkaus; }

 private:
  Tariffi* Valittu() const { return tariffit_.Etsi(lomake_.lista.Valittu()); }

  void LiitaTapahtumat() {
    lomake_.luettelo.Aseta(
        {.sisalto = [this] { return Rivit(); },
         .nimi = [this](const Tunniste& avain) { return tariffit_.Item(avain).Nimi; },
         .lisaa = [this] { return Lisattiin(Uusi()); },
         .kopioi = [this](const Tunniste& avain) { return Kopioi(tariffit_.Item(avain)); },
         .poista = [this](const Tunniste& avain) { Poista(avain); },
         .paina = [this](const Tunniste&) { lomake_.TxtNimi.Kohdista(); },
         .valittu = [this] { NaytaValittu(); },
         .lukko = [this] { return tapa_ == Tariffitapa::Valinta ? Teksti(tekstit::kTariffinVoiVainValita) : ""; },
         .poistoeste = [this](const Tunniste& avain) { return Poistoeste(tariffit_.Item(avain)); },
         .otaKentat = [this] { return OtaKentat(); }});
    lomake_.LuettelostaKlikattu = [this] { LisaaLuettelosta(); };
    lomake_.KenttaMuuttui = [this](Ohjain& kentta) { KenttaMuuttui(kentta); };
    lomake_.KulutusMuuttui = [this] { KulutusMuuttui(); };
  }

  Luettelorivi Rivi(const Tariffi& tariffi) const {
    Luettelorivi rivi{{tariffi.Nimi}, tariffi.sKey};
    const std::string huomautus = Huomautus(tariffi), kayttajat = Luettele(Kayttajat(tariffi));
    if (!huomautus.empty()) rivi.piirteet.merkitys = Merkitys::Huomio;
    rivi.piirteet.selite = huomautus;
    if (!kayttajat.empty())
      rivi.piirteet.selite += (huomautus.empty() ? "" : "\n") + Teksti(tekstit::kTariffiaKayttaa) + " " + kayttajat;
    return rivi;
  }
  Luettelosisalto Rivit() const {
    Luettelosisalto sisalto;
    for (const Tariffi& tariffi : tariffit_)
      if (Naytetaan(tariffi)) sisalto.rivit.push_back(Rivi(tariffi));
    return sisalto;
  }
  void NaytaLuettelo(const Tunniste& valittava) {
    lomake_.lista.Tayta(Rivit());
    lomake_.luettelo.Valitse(valittava);
  }
  void NaytaValittu() {
    lomake_.TyhjennaKentat();
    lomake_.KentatKaytossa(Muokattavissa());
    if (const Tariffi* tariffi = Valittu()) NaytaRivit(*tariffi);
    Paivita();
  }
  /// Shows the chosen tariff and its bill; what has been written wrong stays to be mended.
  void Paivita() {
    Tariffi* tariffi = Valittu();
    if (tariffi) NaytaKentat(*tariffi);
    NaytaLasku(tariffi);
  }

  /// The bill, times the factor of the tariff.
  void NaytaLasku(const Tariffi* tariffi) const {
    const double kerroin = tariffi ? tariffi->NayttoKerroin() : 1;
    const auto rivit = LaskeHiljaa([&] { return tariffi ? Lasku(*tariffi, kulutus_) : std::vector<Laskurivi>(); });
    Kaaviotiedot kaavio{.otsikko = tariffi ? LaskunOtsikko(*tariffi) : "",
                        .yksikko = Asetukset().strDefaultCurrencyUnit + "/a"};
    double summa = 0;
    for (const Laskurivi& rivi : rivit.value_or(std::vector<Laskurivi>())) {
      if (rivi.kentta) rivi.kentta->Luku(rivi.arvo * kerroin, rivi.kuvio);
      if (!rivi.nimi) continue;
      kaavio.nimet.push_back(Teksti(rivi.nimi));
      kaavio.arvot.push_back(rivi.arvo * kerroin);
      summa += rivi.arvo * kerroin;
    }
    lomake_.yhteensa.Teksti(rivit && tariffi ? Muotoile(summa, "### ##0.00") : "");
    lomake_.chtLasku.Kaavio(std::move(kaavio));
  }
  static std::string LaskunOtsikko(const Tariffi& tariffi) {
    if (!tariffi.MaksutSisaltavatALVn) return Teksti(tekstit::kVuosilaskuVerotta);
    return Teksti(tekstit::kVuosilaskuVerolla) + " " + Muotoile(tariffi.ALV, "0.##") + " %";
  }

  void KenttaMuuttui(const Ohjain& kentta) {
    Tariffi* tariffi = Valittu();
    if (!tariffi || !KirjoitaKentta(kentta, *tariffi)) return;
    lomake_.PaataMuokkaus(kentta);
    Paivita();
    lomake_.lista.Vaihda(lomake_.lista.Indeksi(), Rivi(*tariffi));
  }
  void KulutusMuuttui() {
    if (!::Kelpaa(lomake_.kulutus.Kohde())) return;
    LueArvo(lomake_.kulutus, kulutus_);
    NaytaLasku(Valittu());
  }
  bool OtaKentat() {
    if (!TarkistaLukukentat(lomake_)) return false;
    Viimeistele();
    return true;
  }
  void Viimeistele() {
    if (Muokattavissa()) Viimeistele(*Valittu());
  }

  /// A tariff has come: it is in the list, its name ready to be written.
  Tunniste Lisattiin(const Tariffi& uusi) {
    VaadiRakennus().RekisteriVanheni();
    lomake_.lista.Tayta(Rivit());
    lomake_.TxtNimi.Kohdista();
    return uusi.sKey;
  }
  void LisaaLuettelosta() {
    if (!OtaKentat()) return;
    Tariffi& uusi = Uusi();
    try {
      if (Poimi(uusi)) return lomake_.luettelo.Valitse(Lisattiin(uusi));
    } catch (...) {
      tariffit_.Remove(uusi.sKey);
      throw;
    }
    tariffit_.Remove(uusi.sKey);
  }
  Tunniste Kopioi(const Tariffi& lahde) {
    Tariffi& kopio = LisaaKopio(tariffit_, lahde);
    kopio.Nimi = Teksti(tekstit::kKopio) + kopio.Nimi;
    return Lisattiin(kopio);
  }
  void Poista(const Tunniste& avain) {
    tariffit_.Remove(avain);
    VaadiRakennus().RekisteriVanheni();
    lomake_.luettelo.Nayta();
  }
  std::string Poistoeste(const Tariffi& tariffi) const {
    const auto kayttajat = Kayttajat(tariffi);
    if (kayttajat.empty()) return {};
    return Viestiteksti(virheet::kTariffiKaytossa) + " " + Teksti(tekstit::kTariffiaKayttaa) + " " +
           Luettele(kayttajat) + ".";
  }

  Tariffit& tariffit_;
  Tariffilomake& lomake_;
  Tariffitapa tapa_;
  double kulutus_ = 0;  // MWh/a; of water m³/a
};
