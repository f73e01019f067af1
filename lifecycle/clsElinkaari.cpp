// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/clsElinkaari.h"

#include <array>
#include <utility>

#include "building/clsRakennus.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "lifecycle/Kustannuspuu.h"
#include "lifecycle/Toimenpideinvestointi.h"
#include "lifecycle/Vaikutuspuu.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/elinkaari.h"

namespace {

constexpr double kProsentti = 100;

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsElinkaari::OletuksetAnnettu>("OletuksetAnnettu"),
    Arvo<&clsElinkaari::Pitoaika>("Pitoaika", Suure("a").Rajat(0, 200)),
    Arvo<&clsElinkaari::Korkokanta>("Korkokanta", Suure("%").Rajat(-50, 100)),
    Arvo<&clsElinkaari::LammonHinnannousu>("LammonHinnannousu", Suure("%").Rajat(-50, 100)),
    Arvo<&clsElinkaari::SahkonHinnannousu>("SahkonHinnannousu", Suure("%").Rajat(-50, 100)),
    Arvo<&clsElinkaari::VedenHinnannousu>("VedenHinnannousu", Suure("%").Rajat(-50, 100)),
    Arvo<&clsElinkaari::VertailunNimi>("VertailunNimi"),
    Arvo<&clsElinkaari::VertailuMateriaalit>("VertailuMateriaalit", Suure("kg/m²,a").Rajat(0)),
    Arvo<&clsElinkaari::VertailuEnergia>("VertailuEnergia", Suure("kg/m²,a").Rajat(0)),
    Lapsi<&clsElinkaari::Perustaminen>("Perustaminen"),
    Lapsi<&clsElinkaari::Hoito>("Hoito"),
};

using Luku = std::optional<double>;

Kustannuspuu Puu(const Tuloskohde& kohde, Kustannuspuu::Laji laji) { return {kohde.Omistaja<clsRakennus>(), laji}; }
Luku Perustamiskustannukset(const Tuloskohde& kohde) { return Puu(kohde, Kustannuspuu::Laji::Perustaminen).Yhteensa(); }
Luku HoidonNykyarvo(const clsElinkaari& elinkaari, const Tuloskohde& kohde) {
  const auto oletukset = elinkaari.Oletukset();
  return oletukset ? Puu(kohde, Kustannuspuu::Laji::Hoito).Nykyarvo(*oletukset) : std::nullopt;
}
Luku Elinkaarikustannus(const clsElinkaari& elinkaari, const Tuloskohde& kohde) {
  const Luku perustaminen = Perustamiskustannukset(kohde), hoito = HoidonNykyarvo(elinkaari, kohde);
  if (!perustaminen || !hoito) return std::nullopt;
  return *perustaminen + *hoito;
}
template <Kustannuspuu::Laji Puulaji>
void Solmujen(const Tuloskohde& kohde, const Karttakasittelija& kasittele) {
  const Kustannuspuu puu = Puu(kohde, Puulaji);
  for (const Kustannuspuu::Solmu& solmu : puu.Solmut())
    if (solmu.kustannus) kasittele(solmu.avain.Teksti(), *solmu.kustannus);
}

/// A default of the reckoning, once they have been given.
template <auto Oletus>
constexpr Tulos Oletustulos(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko, const char* kuvio) {
  return Ehkatulos<[](const clsElinkaari& e) { return e.OletuksetAnnettu ? Luku(e.*Oletus) : std::nullopt; }>(
      nimi, teksti, yksikko, kuvio);
}

constexpr Tulos kHinnannousu[] = {
    Oletustulos<&clsElinkaari::LammonHinnannousu>("Lampo", tekstit::kLammonHinnannousu, "%", "0.0"),
    Oletustulos<&clsElinkaari::SahkonHinnannousu>("Sahko", tekstit::kSahkonHinnannousu, "%", "0.0"),
    Oletustulos<&clsElinkaari::VedenHinnannousu>("Vesi", tekstit::kVedenHinnannousu, "%", "0.0"),
};

/// A figure of an investment over the calculation period.
template <auto Luvun, auto Hae>
Luku Laskelmasta(const Tuloskohde& kohde) {
  const auto oletukset = kohde.Omistaja<clsRakennus>().Elinkaari.Oletukset();
  return oletukset ? LaskeElinkaariluvut(Hae(kohde), oletukset).*Luvun : std::nullopt;
}

template <class Olio, auto Hae>
constexpr std::array kInvestointitulokset{
    Ehkatulos<[](Olio&, const Tuloskohde& k) { return Laskelmasta<&Elinkaariluvut::nettonykyarvo, Hae>(k); }>(
        "Nettonykyarvo", tekstit::kNettonykyarvo, "€", "### ##0"),
    Ehkatulos<[](Olio&, const Tuloskohde& k) { return Laskelmasta<&Elinkaariluvut::takaisinmaksuaika, Hae>(k); }>(
        "DiskontattuTakaisinmaksuaika", tekstit::kDiskontattuTakaisinmaksuaika, "a", "### ##0.0"),
    Ehkatulos<[](Olio&, const Tuloskohde& k) { return Laskelmasta<&Elinkaariluvut::sisainenKorko, Hae>(k); }>(
        "SisainenKorko", tekstit::kSisainenKorko, "%", "### ##0.0"),
    Ehkatulos<[](Olio&, const Tuloskohde& k) { return Laskelmasta<&Elinkaariluvut::energianHinta, Hae>(k); }>(
        "SaastetynEnergianHinta", tekstit::kSaastetynEnergianHinta, "€/MWh", "### ##0.00"),
};

constexpr auto kToimenpiteen = [](const Tuloskohde& k) -> std::optional<Investointi> {
  return ToimenpiteenInvestointi(static_cast<clsSaastotoimenpide&>(k.olio), Asetukset().NaytettavatAlvt());
};
constexpr auto kPaketin = [](const Tuloskohde& k) {
  const clsRakennus& rakennus = k.Omistaja<clsRakennus>();
  return PaketinInvestointi(rakennus.ToimenpiteidenJarjestelija, rakennus.Saastotoimenpiteet,
                            Asetukset().NaytettavatAlvt());
};

constexpr auto kPaketinTulokset = kInvestointitulokset<clsElinkaari, kPaketin>;
constexpr auto kMitat = kInvestointitulokset<clsSaastotoimenpide, kToimenpiteen>;
constexpr Tulos kToimenpiteenTulokset[] = {Avaintulos(), kMitat[0], kMitat[1], kMitat[2], kMitat[3]};

Vaikutuspuu Vaikutukset(const Tuloskohde& kohde) { return kohde.Omistaja<clsRakennus>().Elinkaari.Vaikutukset(); }
Vaikutusarvot EnergianVaikutukset(const Tuloskohde& kohde) {
  const Vaikutuspuu puu = Vaikutukset(kohde);
  return puu.OstoPitoaikana(puu.Solmut().front());
}
Vaikutusarvot MateriaalienVaikutukset(const Tuloskohde& kohde) { return Vaikutukset(kohde).Materiaalit().arvot; }

/// A row for each kind of impact.
template <auto Hae, std::size_t... Lajit>
constexpr std::array<Tulos, sizeof...(Lajit)> Vaikutustulokset(std::index_sequence<Lajit...>) {
  return {Ehkatulos<[](clsElinkaari&, const Tuloskohde& k) { return Hae(k)[Lajit]; }>(
      kVaikutuslajit[Lajit], tekstit::kVaikutukset[Lajit], Lajit < 2 ? "MJ" : "kg", "### ##0")...};
}
template <auto Hae>
constexpr auto kVaikutustulokset = Vaikutustulokset<Hae>(std::make_index_sequence<kVaikutuslajit.size()>());
constexpr Tulos kYmparisto[] = {
    Ryhmatulos("Energia", kVaikutustulokset<EnergianVaikutukset>),
    Ryhmatulos("Materiaalit", kVaikutustulokset<MateriaalienVaikutukset>),
    Ehkatulos<[](clsElinkaari&, const Tuloskohde& k) { return Vaikutukset(k).Materiaalit().OsuusIlmanTietoja(); }>(
        "MassaIlmanTietoja", tekstit::kMassaIlmanTietoja, "", "0.00"),
};

constexpr Tulos kTulokset[] = {
    Oletustulos<&clsElinkaari::Pitoaika>("Pitoaika", tekstit::kPitoaika, "a", "0"),
    Oletustulos<&clsElinkaari::Korkokanta>("Korkokanta", tekstit::kKorkokanta, "%", "0.0"),
    Ehkatulos<[](clsElinkaari&, const Tuloskohde& k) { return Perustamiskustannukset(k); }>(
        "Perustamiskustannukset", tekstit::kPerustamiskustannukset, "€", "### ##0"),
    Ehkatulos<[](clsElinkaari& e, const Tuloskohde& k) { return HoidonNykyarvo(e, k); }>(
        "HoitokustannustenNykyarvo", tekstit::kHoitokustannustenNykyarvo, "€", "### ##0"),
    Ehkatulos<[](clsElinkaari& e, const Tuloskohde& k) { return Elinkaarikustannus(e, k); }>(
        "Elinkaarikustannus", tekstit::kElinkaarikustannus, "€", "### ##0"),
    Ryhmatulos("Hinnannousu", kHinnannousu),
    Karttatulos<[](clsElinkaari&, const Tuloskohde& k, const Karttakasittelija& f) {
      Solmujen<Kustannuspuu::Laji::Perustaminen>(k, f);
    }>("Perustaminen", tekstit::kPerustamiskustannukset, "€"),
    Karttatulos<[](clsElinkaari&, const Tuloskohde& k, const Karttakasittelija& f) {
      Solmujen<Kustannuspuu::Laji::Hoito>(k, f);
    }>("Hoito", tekstit::kVuotuisetHoitokustannukset, "€/a"),
    Kokoelmatulos<[](clsElinkaari&, const Tuloskohde& k) -> clsSaastotoimenpiteet& {
      return k.Omistaja<clsRakennus>().Saastotoimenpiteet;
    }>("Toimenpiteet", kToimenpiteenTulokset),
    Ryhmatulos("Paketti", kPaketinTulokset),
    Ryhmatulos("Ymparisto", kYmparisto),
};

}  // namespace

const Luokka clsElinkaari::kLuokka{"clsElinkaari", kJasenet, kTulokset};

std::optional<Elinkaarioletukset> clsElinkaari::Oletukset() const {
  if (!OletuksetAnnettu) return std::nullopt;
  return Elinkaarioletukset{
      .pitoaika = Pitoaika,
      .korko = Korkokanta / kProsentti,
      .nousu = {LammonHinnannousu / kProsentti, SahkonHinnannousu / kProsentti, VedenHinnannousu / kProsentti}};
}

Vaikutuspuu clsElinkaari::Vaikutukset() const try {
  return {koti_.Rakennus(), Materiaalivaikutukset(Asetukset().strVakioTietokanta),
          OletuksetAnnettu ? std::optional<int>(Pitoaika) : std::nullopt};
} catch (...) {
  NostaVirhe("clsElinkaari:Vaikutukset Method");
}
