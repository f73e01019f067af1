// SPDX-License-Identifier: GPL-3.0-or-later
// Measured use against what the model gives and against what is usual for the use type.
#include <algorithm>
#include <array>
#include <cmath>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "checks/Ominaiskulutukset.h"
#include "checks/Tarkistusajo.h"
#include "checks/Tarkistusrajat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "tekstit/tarkistukset.h"
#include "ui/Tekstivarasto.h"

namespace {

namespace raja = tarkistusraja;
constexpr double kTuhat = 1000;
constexpr const char* kMaara = "### ##0.0";

const clsToteutunutKulutus& Mitattu(const clsRakennus& rakennus) {
  return rakennus.Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
}

/// Heat, electricity or water of a year, MWh or m³.
struct Kulutuslaji {
  Tekstinumero nimi;
  std::string_view suure;
  std::array<std::string_view, 3> mittausohjaimet;  ///< of the years in the basic data, newest first
  double clsToteutunutKulutus::*laskulta;
  /// Measured, as it is compared: heat as of a normal year.
  double (*mitattu)(clsRakennus&);
  double (*laskettu)(clsRakennus&);
  /// The part of the measured use that the usual figures don't hold.
  double (*vertailematta)(clsRakennus&);
};
double EiMitaan(clsRakennus&) { return 0; }
constexpr Kulutuslaji kLampo{tekstit::kTarkistettuLampo,
                             "lampo",
                             {"txtLampo1", "txtLampo2", "txtLampo3"},
                             &clsToteutunutKulutus::Lampo,
                             [](clsRakennus& r) { return r.ToteutunutNormitettuLampo(); },
                             [](clsRakennus& r) { return r.VuotuinenBruttoLampoEnergia(); },
                             EiMitaan};
constexpr Kulutuslaji kSahko{tekstit::kTarkistettuSahko,
                             "sahko",
                             {"txtSahko1", "txtSahko2", "txtSahko3"},
                             &clsToteutunutKulutus::Sahko,
                             [](clsRakennus& r) { return Mitattu(r).Sahko; },
                             [](clsRakennus& r) { return r.SahkonKulutusryhmat.Vuosikulutus(); },
                             [](clsRakennus& r) { return r.SahkonKulutusryhmat.LammitysSahkonVuosikulutus(); }};
constexpr Kulutuslaji kVesi{tekstit::kTarkistettuVesi,
                            "vesi",
                            {"txtVesi1", "txtVesi2", "txtVesi3"},
                            &clsToteutunutKulutus::Vesi,
                            [](clsRakennus& r) { return Mitattu(r).Vesi; },
                            [](clsRakennus& r) { return r.VedenKulutusryhmat.VuotuinenVedenKulutus(); },
                            EiMitaan};

/// The field of the comparison year.
std::string_view Mittausohjain(const clsRakennus& rakennus, const Kulutuslaji& laji) {
  const clsToteutuneetKulutukset& kulutukset = rakennus.Perustiedot.ToteutuneetKulutukset;
  const auto rivi = static_cast<std::size_t>(kulutukset.KulutusTietojenViimVuosi - kulutukset.Vertailuvuosi());
  return laji.mittausohjaimet.at(std::min(rivi, laji.mittausohjaimet.size() - 1));
}

void MittausPuuttuu(Tarkistusajo& ajo) {
  const int vuosi = ajo.rakennus.Perustiedot.ToteutuneetKulutukset.Vertailuvuosi();
  if (vuosi == 0) return;
  for (const Kulutuslaji& laji : {kLampo, kSahko, kVesi})
    if (Mitattu(ajo.rakennus).*laji.laskulta <= 0 && laji.laskettu(ajo.rakennus) > 0)
      ajo.LoytyiRakennuksesta({std::to_string(vuosi), Teksti(laji.nimi)}, Mittausohjain(ajo.rakennus, laji));
}

template <const Kulutuslaji& laji>
void Mallista(Tarkistusajo& ajo) {
  const double mitattu = laji.mitattu(ajo.rakennus), laskettu = laji.laskettu(ajo.rakennus);
  if (mitattu <= 0 || laskettu <= 0 || std::abs(laskettu - mitattu) <= raja::kMallinPoikkeama * mitattu) return;
  ajo.LoytyiRakennuksesta(
      {Muotoile(laskettu, kMaara), Muotoile(mitattu, kMaara), Muotoile(100 * laskettu / mitattu, "0")});
}

/// What of the use falls to a unit of the building, in the row's unit; 0 when that isn't known.
double Ominaisluku(const clsPerustiedot& tiedot, double maara, const Ominaiskulutus& tavallinen) {
  const double koko = tavallinen.yksikko.find("m²") != std::string::npos ? tiedot.BruttoAla : tiedot.Kokonaistilavuus;
  return koko > 0 ? maara * kTuhat / koko : 0;
}

/// "Oppilaitokset 124–266 kWh/m²,a tai 29–63 kWh/m³,a", several groups with commas.
std::string Valit(const std::vector<Ominaiskulutus>& tavalliset) {
  std::string valit, ryhma;
  for (const Ominaiskulutus& t : tavalliset) {
    if (t.ryhma == ryhma)
      valit += " " + Teksti(tekstit::kTavallinenTai) + " ";
    else
      valit += (valit.empty() ? "" : ", ") + t.ryhma + " ";
    valit += Muotoile(t.ala, "0.#") + "–" + Muotoile(t.yla, "0.#") + " " + t.yksikko;
    ryhma = t.ryhma;
  }
  return valit;
}

/// The figure fits none of the rows of its use type: one that is out by the area and not by the volume is of a building
/// of unusual height.
template <const Kulutuslaji& laji>
void Tavallisesta(Tarkistusajo& ajo) {
  const clsPerustiedot& tiedot = ajo.rakennus.Perustiedot;
  const auto kayttotarkoitus = static_cast<std::size_t>(tiedot.KayttoTarkoitusID);
  if (kayttotarkoitus >= clsRakennus::KayttoTarkoitusKoodit.size()) return;
  const auto tavalliset = HaeOminaiskulutukset(clsRakennus::KayttoTarkoitusKoodit.at(kayttotarkoitus), laji.suure);
  const double maara = laji.mitattu(ajo.rakennus) - laji.vertailematta(ajo.rakennus);
  if (tavalliset.empty() || maara <= 0) return;
  const double luku = Ominaisluku(tiedot, maara, tavalliset.front());
  const bool sopii = std::ranges::any_of(tavalliset, [&](const Ominaiskulutus& t) {
    const double sen = Ominaisluku(tiedot, maara, t);
    return t.ala <= sen && sen <= t.yla;
  });
  if (luku > 0 && !sopii)
    ajo.LoytyiRakennuksesta(
        {Muotoile(luku, "0.#") + " " + tavalliset.front().yksikko, Valit(tavalliset), tavalliset.front().lahde},
        Mittausohjain(ajo.rakennus, laji));
}

}  // namespace

std::span<const Tarkistus> Tulostarkistukset() {
  using enum Tarkistustaso;
  static constexpr std::string_view kPerustiedot = "frmPerustiedot";
  static constexpr Tarkistus kRivit[] = {
      {"MittausPuuttuu",
       Puute,
       tekstit::kMittausPuuttuu,
       tekstit::kMittausPuuttuuTeksti,
       {kPerustiedot, "txtLampo1"},
       MittausPuuttuu},
      {"LampoPoikkeaa",
       Epatodennakoinen,
       tekstit::kLampoPoikkeaa,
       tekstit::kLampoPoikkeaaTeksti,
       {"frmLampoYhteenveto", "txtHaviot"},
       Mallista<kLampo>},
      {"SahkoPoikkeaa",
       Epatodennakoinen,
       tekstit::kSahkoPoikkeaa,
       tekstit::kSahkoPoikkeaaTeksti,
       {"frmSahkoLaitteet", "lvwRyhmat"},
       Mallista<kSahko>},
      {"VesiPoikkeaa",
       Epatodennakoinen,
       tekstit::kVesiPoikkeaa,
       tekstit::kVesiPoikkeaaTeksti,
       {"frmVedenKulutus", "lvwRyhmat"},
       Mallista<kVesi>},
      {"OminaislampoPoikkeaa",
       Epatodennakoinen,
       tekstit::kOminaislampoPoikkeaa,
       tekstit::kOminaislampoPoikkeaaTeksti,
       {kPerustiedot, "txtLampo1"},
       Tavallisesta<kLampo>},
      {"OminaissahkoPoikkeaa",
       Epatodennakoinen,
       tekstit::kOminaissahkoPoikkeaa,
       tekstit::kOminaissahkoPoikkeaaTeksti,
       {kPerustiedot, "txtSahko1"},
       Tavallisesta<kSahko>},
      {"OminaisvesiPoikkeaa",
       Epatodennakoinen,
       tekstit::kOminaisvesiPoikkeaa,
       tekstit::kOminaisvesiPoikkeaaTeksti,
       {kPerustiedot, "txtVesi1"},
       Tavallisesta<kVesi>},
  };
  return kRivit;
}
