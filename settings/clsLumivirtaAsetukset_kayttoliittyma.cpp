// SPDX-License-Identifier: GPL-3.0-or-later
// The settings dialog. It works on the store; the object reads the store again after OK.
#include <filesystem>
#include <system_error>

#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "settings/Asetusavaimet.h"
#include "settings/Yhteystietokentat.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/viestit.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/frmOptions.h"

namespace {

/// What the form has written that the store hasn't.
struct Asetusluonnos {
  void Aseta(Avain avain, std::string arvo) {
    if (HaeAsetus(avain) != arvo) muutokset.push_back(AsetuksenArvo(avain, std::move(arvo)));
  }
  void Aseta(Avain avain, std::optional<double> arvo) {
    if (arvo) Aseta(avain, MiljoonasosinaTekstina(*arvo));
  }
  std::vector<Asetus> muutokset;
};

template <Avain A>
struct Tekstiarvo {
  using Olio = Asetusluonnos;
  using Arvo = std::string;
  static std::string Hae(const Asetusluonnos&) { return HaeAsetus(A); }
  static void Aseta(Asetusluonnos& luonnos, std::string arvo) { luonnos.Aseta(A, std::move(arvo)); }
};

/// All decimals are shown, so that the text tells the number.
template <Avain A>
struct Prosenttiarvo {
  using Olio = Asetusluonnos;
  using Arvo = std::string;
  static std::string Hae(const Asetusluonnos&) { return frmOptions::Tarkkana(HaeMiljoonasosat(A)); }
  static void Aseta(Asetusluonnos& luonnos, const std::string& teksti) { luonnos.Aseta(A, LueLuku(teksti)); }
};

struct VerollaHinnoin {
  using Olio = Asetusluonnos;
  using Arvo = bool;
  static bool Hae(const Asetusluonnos&) { return HaeTotuus(Avain::KaytaLVI); }
  static void Aseta(Asetusluonnos& luonnos, bool verolla) {
    luonnos.Aseta(Avain::KaytaLVI, TotuusTekstina(verolla));
    luonnos.Aseta(Avain::IlmanLVI, TotuusTekstina(!verolla));
  }
};

/// The first currency when the store names none.
struct Valuutanvalinta {
  using Olio = Asetusluonnos;
  using Arvo = std::int32_t;
  static std::int32_t Hae(const Asetusluonnos&) {
    const std::int32_t valuutta = HaeKokonaisluku(Avain::Valuutta);
    return valuutta >= 0 && valuutta < std::ssize(Valuutat()) ? valuutta : 0;
  }
  static void Aseta(Asetusluonnos& luonnos, std::int32_t valuutta) {
    luonnos.Aseta(Avain::Valuutta, std::to_string(valuutta));
  }
};

const Sidontataulu kSidonnat{
    "frmOptions",
    {
        Tekstikentta<Prosenttiarvo<Avain::YleinenALV>{}>("txtYleinenALV"),
        Tekstikentta<Prosenttiarvo<Avain::TotLampo>{}>("txtTotLampo"),
        Tekstikentta<Prosenttiarvo<Avain::TotSahko>{}>("txtTotSahko"),
        Tekstikentta<Prosenttiarvo<Avain::TotVesi>{}>("txtTotVesi"),
        Nappikentta<VerollaHinnoin{}, true>("optKaytaLVI"),
        Nappikentta<VerollaHinnoin{}, false>("optIlmanLVI"),
        Valintakentta<Valuutanvalinta{}>("cmbValuutta"),
        Tekstikentta<Tekstiarvo<Avain::Vakiokanta>{}>("txtVakiokanta"),
        Tekstikentta<Tekstiarvo<Avain::Kayttajakohtainen>{}>("txtKayttajakohtainen"),
        Tekstikentta<Tekstiarvo<Avain::VakiokantaVersio>{}>("txtVakiokantaVersio"),
        Tekstikentta<Tekstiarvo<Avain::Energia_Vakiokanta>{}>("txtEnergia_Vakiokanta"),
        Tekstikentta<Tekstiarvo<Avain::Energia_Kayttajakohtainen>{}>("txtEnergia_Kayttajakohtainen"),
        Tekstikentta<Tekstiarvo<Avain::Oletusosoite>{}>("txtOletusosoite"),
    }};

const Sidontataulu<clsKatselmoijanTiedot> kYhteystiedot{
    "frmOptions", std::span(kYhteystietokentat), {kLVIkatselmoija, kSahkokatselmoija}};

/// Fields of files that must exist.
struct Tiedostokentta {
  Avain avain;
  TextBox frmOptions::*kentta;
};
constexpr Tiedostokentta kTiedostot[] = {
    {Avain::Vakiokanta, &frmOptions::txtVakiokanta},
    {Avain::Kayttajakohtainen, &frmOptions::txtKayttajakohtainen},
    {Avain::Energia_Vakiokanta, &frmOptions::txtEnergia_Vakiokanta},
    {Avain::Energia_Kayttajakohtainen, &frmOptions::txtEnergia_Kayttajakohtainen},
};
constexpr Avain kVerot[] = {Avain::Veroluokka1, Avain::Veroluokka2};

void LueYhteystiedot(const frmOptions& lomake, Avain ensimmainen, const char* kenen) {
  clsKatselmoijanTiedot tiedot;
  tiedot.HaeOletukset(ensimmainen);
  kYhteystiedot.Lue(lomake, tiedot, kenen);
}

/// The keys of an auditor's fields follow each other.
void KirjoitaYhteystiedot(const frmOptions& lomake, Avain ensimmainen, const char* kenen, Asetusluonnos& luonnos) {
  clsKatselmoijanTiedot tiedot;
  kYhteystiedot.Kirjoita(lomake, tiedot, kenen);
  for (std::size_t i = 0; i < clsKatselmoijanTiedot::kKenttia; ++i)
    luonnos.Aseta(static_cast<Avain>(static_cast<std::size_t>(ensimmainen) + i),
                  tiedot.*clsKatselmoijanTiedot::Kentta(i));
}

const Valuutta& ValuuttaNumero(std::int32_t i) { return Valuutat()[static_cast<std::size_t>(i)]; }

std::vector<std::string> ValuuttojenNimet() {
  std::vector<std::string> nimet;
  for (const Valuutta& valuutta : Valuutat()) nimet.emplace_back(valuutta.nimi);
  return nimet;
}

/// The taxes from one display currency to another, all decimals kept; a field that holds no number stays.
void MuunnaVerot(frmOptions& lomake, double kerroin) {
  for (std::size_t i = 0; i < std::size(kVerot); ++i)
    if (const auto vero = lomake.Vero(i)) lomake.AsetaVero(i, *vero * kerroin);
}

bool OnTiedosto(const std::string& nimi) {
  std::error_code virhe;
  return std::filesystem::is_regular_file(nimi, virhe);
}

/// A newly chosen database must exist; else a message, and the field gets the focus.
bool TiedostotLoytyvat(const frmOptions& lomake) {
  for (const Tiedostokentta& k : kTiedostot) {
    const TextBox& kentta = lomake.*k.kentta;
    if (kentta.Teksti() == HaeAsetus(k.avain) || OnTiedosto(kentta.Teksti())) continue;
    Ilmoita(Teksti(tekstit::kTiedostoaEiOle) + " " + kentta.Teksti(), Teksti(tekstit::kHuomautus), Vakavuus::Varoitus);
    kentta.Kohdista();
    return false;
  }
  return true;
}

}  // namespace

void clsLumivirtaAsetukset::NaytaKayttoliittyma() try {
  frmOptions lomake;
  LueDataluokka(lomake);
  std::int32_t naytetty = lomake.cmbValuutta.Indeksi();
  lomake.ValuuttaMuuttui = [&](std::int32_t valuutta) {
    HaeRekisteristä();
    MuunnaVerot(lomake, ValuuttaNumero(valuutta).kerroin / ValuuttaNumero(naytetty).kerroin);
    lomake.NaytaRahayksikko(ValuuttaNumero(valuutta).nimi);
    naytetty = valuutta;
  };
  lomake.OkKlikattu = [&] { KayttoLiittyma_OkKlikattu(lomake); };
  lomake.PeruutaKlikattu = [&] { lomake.Sulje(); };
  lomake.NaytaModaalisena();
} catch (...) {
  NostaVirhe("clsLumivirtaAsetukset:NaytaKayttoliittyma Method");
}

void clsLumivirtaAsetukset::LueDataluokka(frmOptions& lomake) {
  lomake.cmbValuutta.Rivit(ValuuttojenNimet());
  kSidonnat.Lue(lomake, Asetusluonnos());
  const Valuutta& valuutta = ValuuttaNumero(lomake.cmbValuutta.Indeksi());
  lomake.NaytaRahayksikko(valuutta.nimi);
  for (std::size_t i = 0; i < std::size(kVerot); ++i)
    lomake.AsetaVero(i, HaeMiljoonasosat(kVerot[i]) * valuutta.kerroin);
  LueYhteystiedot(lomake, Avain::LVI0, kLVIkatselmoija);
  LueYhteystiedot(lomake, Avain::Sah0, kSahkokatselmoija);
}

std::vector<Asetus> clsLumivirtaAsetukset::KirjoitaDataluokka(const frmOptions& lomake) {
  Asetusluonnos luonnos;
  kSidonnat.Kirjoita(lomake, luonnos);
  const double kerroin = ValuuttaNumero(lomake.cmbValuutta.Indeksi()).kerroin;
  for (std::size_t i = 0; i < std::size(kVerot); ++i)
    if (const auto vero = lomake.Vero(i)) luonnos.Aseta(kVerot[i], std::optional(*vero / kerroin));
  KirjoitaYhteystiedot(lomake, Avain::LVI0, kLVIkatselmoija, luonnos);
  KirjoitaYhteystiedot(lomake, Avain::Sah0, kSahkokatselmoija, luonnos);
  return std::move(luonnos.muutokset);
}

void clsLumivirtaAsetukset::KayttoLiittyma_OkKlikattu(frmOptions& lomake) {
  if (!TiedostotLoytyvat(lomake)) return;
  TallennaAsetukset(KirjoitaDataluokka(lomake));
  HaeRekisteristä();
  AsetaRahayksikko(strDefaultCurrencyUnit);
  lomake.Sulje();
  PaivitaRahat();
}
