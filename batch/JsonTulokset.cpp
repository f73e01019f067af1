// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <vector>

#include "batch/Tarkistusyhteenveto.h"
#include "batch/Toimenpidelaskenta.h"
#include "batch/Tulokset.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "lifecycle/clsElinkaari.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/Lampoyhteenveto.h"
#include "results/clsYhteenveto.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/tulokset.h"
#include "ui/Hiljaa.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

/// A setting in force, under its member's name.
template <auto Asetus>
constexpr Tulos Asetustulos(std::string_view nimi) {
  if constexpr (std::is_same_v<decltype(Asetus), bool clsLumivirtaAsetukset::*>)
    return Totuustulos<[](clsRakennus&) { return Asetukset().*Asetus; }>(nimi);
  else
    return Lukutulos<[](clsRakennus&) { return Asetukset().*Asetus; }>(nimi, {}, "");
}

/// What amounts of money are shown with.
constexpr Tulos kAsetukset[] = {
    Asetustulos<&clsLumivirtaAsetukset::dblCurrencyConvCoeff>("dblCurrencyConvCoeff"),
    Asetustulos<&clsLumivirtaAsetukset::dblLampoALV>("dblLampoALV"),
    Asetustulos<&clsLumivirtaAsetukset::dblSahkoALV>("dblSahkoALV"),
    Asetustulos<&clsLumivirtaAsetukset::dblVesiALV>("dblVesiALV"),
    Asetustulos<&clsLumivirtaAsetukset::YleinenALV>("YleinenALV"),
    Asetustulos<&clsLumivirtaAsetukset::KaytaKohtTulostuksissaALVHintoja>("KaytaKohtTulostuksissaALVHintoja"),
};

/// What the measured year has to tell is told once, with the building's own results.
clsYhteenveto LaskeYhteenveto(clsRakennus& rakennus) {
  const Hiljaisuus hiljaisuus;
  clsYhteenveto yhteenveto;
  yhteenveto.LueDataluokka(rakennus);
  return yhteenveto;
}

/// The objects at the top of the JSON; what each shows stands in the table of results of its class.
const Tulos kJuuri[] = {
    Ryhmatulos("Asetukset", kAsetukset),
    Osatulos<[](clsRakennus& r) -> clsSaa& { return r.Saa; }>("Saa"),
    Osatulos<[](clsRakennus& r) -> Olio& { return r; }>("Rakennus"),
    Kokoelmatulos<[](clsRakennus& r) -> clsTilat& { return r.Tilat; }>("Tilat"),
    Kokoelmatulos<[](clsRakennus& r) -> clsIVKoneet& { return r.IVKoneet; }>("IVKoneet"),
    Osatulos<[](clsRakennus& r) -> clsSahkonKulutusryhmat& { return r.SahkonKulutusryhmat; }>("Sahkoryhmat"),
    Osatulos<[](clsRakennus& r) -> clsVedenKulutusryhmat& { return r.VedenKulutusryhmat; }>("Vesiryhmat"),
    Osatulos<[](clsRakennus& r) -> clsPerustiedot& { return r.Perustiedot; }>("EnergianHankinta"),
    Kokoelmatulos<[](clsRakennus& r) -> clsTariffit& { return r.Tariffit; }>("Tariffit"),
    Kokoelmatulos<[](clsRakennus& r) -> clsVesitariffit& { return r.Vesitariffit; }>("Vesitariffit"),
    Osatulos<[](clsRakennus& r) -> clsSahkoTariffienVertailu& { return r.SahkoTariffienVertailu; }>("TariffiVertailu"),
    Kokoelmatulos<[](clsRakennus& r) -> clsSaastotoimenpiteet& { return r.Saastotoimenpiteet; }>("Toimenpiteet"),
    Osatulos<[](clsRakennus& r) -> clsToimenpiteidenJarjestelija& { return r.ToimenpiteidenJarjestelija; }>(
        "Jarjestelija"),
    Osatulos<[](clsRakennus& r) { return LaskeYhteenveto(r); }>("Yhteenveto"),
    Ryhmatulos("LampoYhteenveto", LampoyhteenvedonTulokset()),
    Osatulos<[](clsRakennus& r) -> clsElinkaari& { return r.Elinkaari; }>("Elinkaari"),
};

/// Writes rows of results, and keeps the errors of those that can't be computed.
class Tuloskirjoitin {
 public:
  explicit Tuloskirjoitin(JsonKirjoitin& json) : json_(json) {}

  void Rivit(const Tuloskohde& kohde, std::span<const Tulos> rivit) {
    for (const Tulos& rivi : rivit) Rivi(kohde, rivi);
  }
  void LisaaVirhe(const std::exception& virhe) {
    const auto* nostettu = dynamic_cast<const Virhe*>(&virhe);
    LisaaVirhe((nostettu ? nostettu->Lahde() + ": " : std::string()) + SyynKuvaus(virhe));
  }
  void LisaaVirhe(const std::string& virhe) {
    if (std::ranges::find(virheet_, virhe) == virheet_.end()) virheet_.push_back(virhe);
  }
  const std::vector<std::string>& Virheet() const { return virheet_; }

 private:
  void Rivi(const Tuloskohde& kohde, const Tulos& rivi) {
    if (rivi.laji != Tuloslaji::Upotettu) json_.Avain(rivi.nimi);
    switch (rivi.laji) {
      case Tuloslaji::Kuukausi:
        return Kuukaudet(kohde, rivi);
      case Tuloslaji::Vuosi:
      case Tuloslaji::Luku:
        return Yrita([&] { json_.Arvo(rivi.Arvo(kohde)); });
      case Tuloslaji::Teksti:
        return Yrita([&] { json_.Arvo(rivi.sana(kohde)); });
      case Tuloslaji::Arvo:
        return Yrita([&] { std::visit([&](const auto& arvo) { Arvo(arvo); }, rivi.arvo(kohde)); });
      case Tuloslaji::Osa:
        return Yrita([&] { rivi.osat(kohde, [&](Olio& osa) { Kirjoita({osa, &kohde}); }); });
      case Tuloslaji::Upotettu:
        return rivi.osat(kohde, [&](Olio& osa) { Rivit({osa, &kohde}, osa.LuokanTiedot().Tulokset()); });
      case Tuloslaji::Osat:
        json_.AlaTaulukko();
        rivi.osat(kohde, [&](Olio& osa) { Kirjoita({osa, &kohde}, rivi.ryhma); });
        return json_.LopetaTaulukko();
      case Tuloslaji::Kartta:
        return Kartta(kohde, rivi);
      case Tuloslaji::Totuus:
        return Yrita([&] { json_.Totuus(rivi.totta(kohde)); });
      case Tuloslaji::Ryhma:
        json_.AlaOlio();
        Rivit(kohde, rivi.ryhma);
        return json_.LopetaOlio();
    }
  }
  void Arvo(std::monostate) { json_.EiArvoa(); }
  template <class T>
  void Arvo(const T& arvo) {
    json_.Arvo(arvo);
  }
  void Kirjoita(const Tuloskohde& kohde, std::span<const Tulos> rivit = {}) {
    json_.AlaOlio();
    Rivit(kohde, rivit.empty() ? kohde.olio.LuokanTiedot().Tulokset() : rivit);
    json_.LopetaOlio();
  }
  void Kuukaudet(const Tuloskohde& kohde, const Tulos& rivi) {
    const auto kuukausi = [&](int m) {
      std::vector<double> luvut;
      for (int i = 0; i < rivi.rinnakkain; ++i) luvut.push_back(rivi.luku(kohde, m, i));
      return luvut;
    };
    Yrita([&] {
      std::vector<std::vector<double>> vuosi;
      for (int m = 0; m < kKuukausia; ++m) vuosi.push_back(kuukausi(m));
      if (rivi.rinnakkain > 1) return json_.Taulukko(vuosi);
      std::vector<double> luvut;
      for (const auto& kuukauden : vuosi) luvut.push_back(kuukauden.front());
      json_.Luvut(luvut);
    });
  }
  void Kartta(const Tuloskohde& kohde, const Tulos& rivi) {
    Yrita([&] {
      std::vector<std::pair<std::string, double>> luvut;
      rivi.kartta(kohde, [&](std::string_view avain, double arvo) { luvut.emplace_back(avain, arvo); });
      json_.AlaOlio();
      for (const auto& [avain, arvo] : luvut) json_.Avain(avain), json_.Arvo(arvo);
      json_.LopetaOlio();
    });
  }
  /// The value is computed before anything of it is written.
  template <class F>
  void Yrita(F&& kirjoita) {
    try {
      kirjoita();
    } catch (const std::exception& virhe) {
      LisaaVirhe(virhe);
      json_.Tyhja();
    }
  }

  JsonKirjoitin& json_;
  std::vector<std::string> virheet_;
};

void KirjoitaViestit(JsonKirjoitin& json, const Tuloskirjoitin& tulokset, const KerataanViestit& viestit) {
  json.Avain("Viestit");
  json.AlaTaulukko();
  for (const std::string& rivi : Viestirivit(viestit)) json.Arvo(rivi);
  for (const std::string& virhe : tulokset.Virheet()) json.Arvo(virhe);
  if (json.KorjattujaTeksteja() > 0)
    json.Arvo(Teksti(tekstit::kMerkkejaKorvattiin) + " " + std::to_string(json.KorjattujaTeksteja()));
  json.LopetaTaulukko();
}

/// One calculation for all results; without it each that can be computed is, one by one.
std::unique_ptr<Tasehaarukka> AvaaHaarukka(clsRakennus& rakennus, Tuloskirjoitin& tulokset) {
  try {
    return std::make_unique<Tasehaarukka>(rakennus);
  } catch (const std::exception& virhe) {
    tulokset.LisaaVirhe(virhe);
    return nullptr;
  }
}

}  // namespace

bool KirjoitaJson(JsonKirjoitin& json, const std::string& tiedosto, clsRakennus& rakennus,
                  const KerataanViestit& viestit) {
  Tuloskirjoitin tulokset(json);
  if (const auto virhe = LaskeToimenpiteetUudelleen(rakennus)) tulokset.LisaaVirhe(*virhe);
  const auto haarukka = AvaaHaarukka(rakennus, tulokset);
  json.AlaOlio();
  json.Avain("Tiedosto");
  json.Arvo(tiedosto);
  tulokset.Rivit({rakennus}, kJuuri);
  json.Avain("Tarkistukset");
  KirjoitaTarkistukset(json, rakennus);
  KirjoitaViestit(json, tulokset, viestit);
  json.LopetaOlio();
  return json.Tyhjia() == 0 && tulokset.Virheet().empty();
}
