// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsYhteenveto.h"

#include <cmath>
#include <stdexcept>

#include "building/Hankintalaskelma.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_yhteenveto.h"
#include "tekstit/virheet.h"
#include "ui/Tekstivarasto.h"

namespace {

using Y = clsYhteenveto;
using Maara = Yhteismaara Y::*;

constexpr double kgTonnissa = 1000;
constexpr const char* kYhteensa = "# ### ##0";
constexpr const char* kOminainen = "# ### ##0.00";

template <Maara M, double Yhteismaara::*Osa>
double Lue(const Y& yhteenveto) {
  const Yhteismaara& maara = yhteenveto.*M;
  if (!maara.vika.empty()) throw std::runtime_error(maara.vika);
  return maara.*Osa;
}

template <Maara M, double Yhteismaara::*Osa = &Yhteismaara::yhteensa>
constexpr Tulos Rivi(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  return Vuositulos<[](const Y& y) { return Lue<M, Osa>(y); }>(nimi, teksti, yksikko,
                                                               Osa == &Yhteismaara::yhteensa ? kYhteensa : kOminainen);
}
template <Maara M>
constexpr Tulos Kuutiolle(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  return Rivi<M, &Yhteismaara::kuutiolle>(nimi, teksti, yksikko);
}
template <Maara M>
constexpr Tulos Neliolle(std::string_view nimi, Tekstinumero teksti, std::string_view yksikko) {
  return Rivi<M, &Yhteismaara::neliolle>(nimi, teksti, yksikko);
}

using tekstit::kYhteenvedonLasketut;
using tekstit::kYhteenvedonMitatut;

constexpr Tulos kTulokset[] = {
    Lukutulos<&Y::Neliot>("Neliot", tekstit::kYhteenvedonAla, "m²", kYhteensa),
    Lukutulos<&Y::Kuutiot>("Kuutiot", tekstit::kYhteenvedonTilavuus, "m³", kYhteensa),
    Rivi<&Y::YhtLammitysenergiaKulutus>("YhtLammitysenergiaKulutus", kYhteenvedonMitatut[0], "MWh/a"),
    Rivi<&Y::YhtLammitysenergiaKustannus>("YhtLammitysenergiaKustannus", kYhteenvedonMitatut[1], "mkTagi/a"),
    Rivi<&Y::YhtLammitysenergiaCO2paasto>("YhtLammitysenergiaCO2paasto", kYhteenvedonMitatut[2], "t/a"),
    Rivi<&Y::YhtSahkoKulutus>("YhtSahkoKulutus", kYhteenvedonMitatut[3], "MWh/a"),
    Rivi<&Y::YhtSahkoKustannus>("YhtSahkoKustannus", kYhteenvedonMitatut[4], "mkTagi/a"),
    Rivi<&Y::YhtSahkoCO2Paasto>("YhtSahkoCO2Paasto", kYhteenvedonMitatut[5], "t/a"),
    Rivi<&Y::YhtVesiKulutus>("YhtVesiKulutus", kYhteenvedonMitatut[6], "m³/a"),
    Rivi<&Y::YhtVesiKustannus>("YhtVesiKustannus", kYhteenvedonMitatut[7], "mkTagi/a"),
    Rivi<&Y::YhtVesiCO2Paasto>("YhtVesiCO2Paasto", kYhteenvedonMitatut[8], "t/a"),

    Kuutiolle<&Y::YhtLammitysenergiaKulutus>("TunLammitysenergiaOminaiskulutus1", kYhteenvedonMitatut[0], "MWh/m³,a"),
    Neliolle<&Y::YhtLammitysenergiaKulutus>("TunLammitysenergiaOminaiskulutus2", kYhteenvedonMitatut[0], "MWh/m²,a"),
    Kuutiolle<&Y::YhtLammitysenergiaKustannus>("TunLammitysenergiaOminaiskustannus1", kYhteenvedonMitatut[1],
                                               "mkTagi/m³,a"),
    Neliolle<&Y::YhtLammitysenergiaKustannus>("TunLammitysenergiaOminaiskustannus2", kYhteenvedonMitatut[1],
                                              "mkTagi/m²,a"),
    Kuutiolle<&Y::YhtLammitysenergiaCO2paasto>("TunLammitysenergiaCO2Paasto1", kYhteenvedonMitatut[2], "t/m³,a"),
    Neliolle<&Y::YhtLammitysenergiaCO2paasto>("TunLammitysenergiaCO2Paasto2", kYhteenvedonMitatut[2], "t/m²,a"),
    Kuutiolle<&Y::YhtSahkoKulutus>("TunSahkoenergiaOminaiskulutus1", kYhteenvedonMitatut[3], "MWh/m³,a"),
    Neliolle<&Y::YhtSahkoKulutus>("TunSahkoenergiaOminaiskulutus2", kYhteenvedonMitatut[3], "MWh/m²,a"),
    Kuutiolle<&Y::YhtSahkoKustannus>("TunSahkoenergiaOminaiskustannus1", kYhteenvedonMitatut[4], "mkTagi/m³,a"),
    Neliolle<&Y::YhtSahkoKustannus>("TunSahkoenergiaOminaiskustannus2", kYhteenvedonMitatut[4], "mkTagi/m²,a"),
    Kuutiolle<&Y::YhtSahkoCO2Paasto>("TunSahkoenergiaCO2Paasto1", kYhteenvedonMitatut[5], "t/m³,a"),
    Neliolle<&Y::YhtSahkoCO2Paasto>("TunSahkoenergiaCO2Paasto2", kYhteenvedonMitatut[5], "t/m²,a"),
    Kuutiolle<&Y::YhtVesiKulutus>("TunVesiOminaiskulutus1", kYhteenvedonMitatut[6], "m³/m³,a"),
    Neliolle<&Y::YhtVesiKulutus>("TunVesiOminaiskulutus2", kYhteenvedonMitatut[6], "m³/m²,a"),
    Kuutiolle<&Y::YhtVesiKustannus>("TunVesiOminaiskustannus1", kYhteenvedonMitatut[7], "mkTagi/m³,a"),
    Neliolle<&Y::YhtVesiKustannus>("TunVesiOminaiskustannus2", kYhteenvedonMitatut[7], "mkTagi/m²,a"),
    Kuutiolle<&Y::YhtVesiCO2Paasto>("TunVesiCO2Paasto1", kYhteenvedonMitatut[8], "t/m³,a"),
    Neliolle<&Y::YhtVesiCO2Paasto>("TunVesiCO2Paasto2", kYhteenvedonMitatut[8], "t/m²,a"),

    Rivi<&Y::LaskettuLammitysenergiaKulutus>("LaskettuLammitysenergiaKulutus", kYhteenvedonLasketut[0], "MWh/a"),
    Rivi<&Y::LaskettuLammitysenergiaKustannus>("LaskettuLammitysenergiaKustannus", kYhteenvedonLasketut[1], "mkTagi/a"),
    Rivi<&Y::LaskettuLammitysenergiaCO2Paasto>("LaskettuLammitysenergiaCO2Paasto", kYhteenvedonLasketut[2], "t/a"),
    Rivi<&Y::LaskettuSahkoKulutus>("LaskettuSahkoKulutus", kYhteenvedonLasketut[3], "MWh/a"),
    Rivi<&Y::LaskettuSahkoKustannus>("LaskettuSahkoKustannus", kYhteenvedonLasketut[4], "mkTagi/a"),
    Rivi<&Y::LaskettuSahkoCO2Paasto>("LaskettuSahkoCO2Paasto", kYhteenvedonLasketut[5], "t/a"),
    Rivi<&Y::LaskettuVesiKulutus>("LaskettuVesiKulutus", kYhteenvedonLasketut[6], "m³/a"),
    Rivi<&Y::LaskettuVesiKustannus>("LaskettuVesiKustannus", kYhteenvedonLasketut[7], "mkTagi/a"),
    Rivi<&Y::LaskettuVesiCO2Paasto>("LaskettuVesiCO2Paasto", kYhteenvedonLasketut[8], "t/a"),
};

constexpr Jasen kJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId")};

/// One of the three that a building buys, with its totals.
struct Ostettava {
  clsEnergianHankinta::Laji laji;
  Energialaji alv;
  clsEnergianHankinta clsPerustiedot::*hankinta;
  double (*mitattu)(clsRakennus&);
  double (*laskettu)(clsRakennus&);
  Maara kulutus, kustannus, paasto;
  Maara laskettuKulutus, laskettuKustannus, laskettuPaasto;
};

const clsToteutunutKulutus& Vuosi(const clsRakennus& r) {
  return r.Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot();
}

constexpr Ostettava kOstettavat[] = {
    {clsEnergianHankinta::Lampo, Energialaji::Lampo, &clsPerustiedot::LammonHankinta,
     [](clsRakennus& r) { return r.ToteutunutNormitettuLampo(); },
     [](clsRakennus& r) { return r.VuotuinenBruttoLampoEnergia(); }, &Y::YhtLammitysenergiaKulutus,
     &Y::YhtLammitysenergiaKustannus, &Y::YhtLammitysenergiaCO2paasto, &Y::LaskettuLammitysenergiaKulutus,
     &Y::LaskettuLammitysenergiaKustannus, &Y::LaskettuLammitysenergiaCO2Paasto},
    {clsEnergianHankinta::Sahko, Energialaji::Sahko, &clsPerustiedot::SahkonHankinta,
     [](clsRakennus& r) { return Vuosi(r).Sahko; }, [](clsRakennus& r) { return r.VuotuinenBruttoSahkoEnergia(); },
     &Y::YhtSahkoKulutus, &Y::YhtSahkoKustannus, &Y::YhtSahkoCO2Paasto, &Y::LaskettuSahkoKulutus,
     &Y::LaskettuSahkoKustannus, &Y::LaskettuSahkoCO2Paasto},
    {clsEnergianHankinta::Vesi, Energialaji::Vesi, &clsPerustiedot::VedenHankinta,
     [](clsRakennus& r) { return Vuosi(r).Vesi; },
     [](clsRakennus& r) { return r.VedenKulutusryhmat.VuotuinenVedenKulutus(); }, &Y::YhtVesiKulutus,
     &Y::YhtVesiKustannus, &Y::YhtVesiCO2Paasto, &Y::LaskettuVesiKulutus, &Y::LaskettuVesiKustannus,
     &Y::LaskettuVesiCO2Paasto},
};

/// Gives the total what `laske` computes, or tells in it why it can't be.
template <class F>
void AsetaLaskettu(const Y& yhteenveto, Yhteismaara& maara, F&& laske) {
  try {
    yhteenveto.Aseta(maara, Aarellinen(laske()));
    maara.vika.clear();
  } catch (const std::exception& virhe) {
    maara = {NAN, NAN, NAN, SyynKuvaus(virhe)};
  }
}

/// Raises what was amiss with a total that others rest on.
double Kelvollinen(const Yhteismaara& maara) {
  if (!maara.vika.empty()) throw std::runtime_error(maara.vika);
  return maara.yhteensa;
}

}  // namespace

const Luokka clsYhteenveto::kLuokka{"clsYhteenveto", kJasenet, Luokka::Osallistuu::EiKumpaankaan, kTulokset};

void clsYhteenveto::Aseta(Yhteismaara& maara, double arvo) const {
  if (Kuutiot > 0) maara.kuutiolle = arvo / Kuutiot;
  if (Neliot > 0) maara.neliolle = arvo / Neliot;
  maara.yhteensa = arvo;
}

void clsYhteenveto::LueDataluokka(clsRakennus& rakennus) try {
  Neliot = rakennus.Perustiedot.BruttoAla;
  Kuutiot = rakennus.Perustiedot.Kokonaistilavuus;
  Vertailuvuosi = rakennus.Perustiedot.ToteutuneetKulutukset.Vertailuvuosi();
  LueMitatut(rakennus);
  LueLasketut(rakennus);
  KeraaHuomautukset(rakennus);
} catch (...) {
  NostaVirhe("clsYhteenveto:LueDataluokka Method");
}

void clsYhteenveto::LueMitatut(clsRakennus& rakennus) {
  for (const Ostettava& o : kOstettavat) {
    const clsEnergiamuodot& muodot = (rakennus.Perustiedot.*o.hankinta).Energiamuodot;
    const Yhteismaara& kulutus = this->*o.kulutus;
    AsetaLaskettu(*this, this->*o.kulutus, [&] { return o.mitattu(rakennus); });
    AsetaLaskettu(*this, this->*o.kustannus, [&] {
      return (Kelvollinen(kulutus) * muodot.Keskihinta() + muodot.Vuosimaksut()) * Asetukset().NayttoKerroin(o.alv);
    });
    if (o.laji == clsEnergianHankinta::Vesi) continue;  // no emissions are known of water
    AsetaLaskettu(*this, this->*o.paasto,
                  [&] { return muodot.IlmastonLampeneminenCO2ekv() * Kelvollinen(kulutus) / kgTonnissa; });
  }
}

void clsYhteenveto::LueLasketut(clsRakennus& rakennus) {
  for (const Ostettava& o : kOstettavat) {
    AsetaLaskettu(*this, this->*o.laskettuKulutus, [&] { return o.laskettu(rakennus); });
    Hankintalaskelma laskelma;
    const auto laske = [&](double Hankintalaskelma::*tulos) {
      if (laskelma.muodot.empty()) laskelma = LaskeHankinta(rakennus, o.laji);
      return laskelma.*tulos;
    };
    AsetaLaskettu(*this, this->*o.laskettuKustannus,
                  [&] { return laske(&Hankintalaskelma::kustannus) * Asetukset().NayttoKerroin(o.alv); });
    AsetaLaskettu(*this, this->*o.laskettuPaasto, [&] { return laske(&Hankintalaskelma::paasto); });
  }
}

void clsYhteenveto::KeraaHuomautukset(const clsRakennus& rakennus) {
  Huomautukset.clear();
  const auto huomauta = [this](Tekstinumero teksti) { Huomautukset.push_back(Teksti(teksti)); };
  if (Vertailuvuosi == 0)
    huomauta(tekstit::kEiVertailuvuotta);
  else if (Vuosi(rakennus).LammTarveLuku <= 0)
    huomauta(tekstit::kEiVertailuvuodenTarvelukua);
  if (Neliot <= 0) huomauta(tekstit::kEiAlaa);
  if (Kuutiot <= 0) huomauta(tekstit::kEiTilavuutta);
  for (const Ostettava& o : kOstettavat) {
    const clsEnergianHankinta& hankinta = rakennus.Perustiedot.*o.hankinta;
    const Yhteismaara& kustannus = this->*o.kustannus;
    if (!kustannus.vika.empty())
      Huomautukset.push_back(hankinta.Nimi + ": " + Teksti(tekstit::kKustannustaEiVoiLaskea) + " " + kustannus.vika);
    else if (hankinta.Energiamuodot.Keskihinta() == 0 && hankinta.Energiamuodot.Vuosimaksut() == 0)
      Huomautukset.push_back(hankinta.Nimi + ": " + Teksti(tekstit::kEiHintoja));
  }
}
