// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Muunnelmalaskin.h"

#include "building/Hankintalaskelma.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsTilat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelmaketju.h"
#include "ventilation/clsIVKoneet.h"

template <class Olio, class Luvut>
void Muunnelmalaskin::Luvusto<Olio, Luvut>::Tyhjenna() {
  luvut.clear();
  paikat.clear();
  entiset.clear();
}

template <class Olio, class Luvut>
void Muunnelmalaskin::Luvusto<Olio, Luvut>::Lisaa(const Olio& olio, const Luvut& uudet) {
  paikat.emplace(&olio, luvut.size());
  luvut.push_back(uudet);
}

template <class Olio, class Luvut>
void Muunnelmalaskin::Luvusto<Olio, Luvut>::Vaihda(const Olio& olio, const Luvut& uudet) {
  const std::size_t paikka = paikat.at(&olio);
  entiset.emplace_back(paikka, luvut[paikka]);
  luvut[paikka] = uudet;
}

template <class Olio, class Luvut>
void Muunnelmalaskin::Luvusto<Olio, Luvut>::Palauta() noexcept {
  for (auto entinen = entiset.rbegin(); entinen != entiset.rend(); ++entinen) luvut[entinen->first] = entinen->second;
  entiset.clear();
}

Muunnelmalaskin::Tilaluvut Muunnelmalaskin::Lue(clsTila& tila) {
  const double tarve = tila.VuotuinenLampoEnergianTarve();
  const double saatohaviot = tila.VuotuisetSaatohaviot();
  return {tarve, saatohaviot, tila.Sahkolammitys ? tarve + saatohaviot : 0};
}

Muunnelmalaskin::Koneluvut Muunnelmalaskin::Lue(const clsIVKone& kone) {
  const double jalkilammitys = kone.VuotuinenIVjalkilammitysLampo();
  return {jalkilammitys, kone.TuloilmanLammitysSahkoPatterilla ? jalkilammitys : 0, kone.VuotuinenPuhallinSahko()};
}

clsRakennus& Muunnelmalaskin::PerustaLuettuna() {
  if (!voimassa_ || vaihe_ != rakennus_.Vaihe()) LuePerusta();
  return rakennus_;
}

void Muunnelmalaskin::LuePerusta() {
  voimassa_ = false;
  tilat_.Tyhjenna();
  koneet_.Tyhjenna();
  hyodyt_.reset();
  const Tasehaarukka haarukka(rakennus_);
  for (const clsIVKone& kone : rakennus_.IVKoneet) koneet_.Lisaa(kone, Lue(kone));
  for (clsTila& tila : rakennus_.Tilat) tilat_.Lisaa(tila, Lue(tila));
  perusta_ = Brutto();
  vaihe_ = rakennus_.Vaihe();
  voimassa_ = true;
}

const Hyodykkeet& Muunnelmalaskin::Perusta() try {
  PerustaLuettuna();
  return perusta_;
} catch (...) {
  NostaVirhe("Muunnelmalaskin:Perusta Method");
}

Ostot Muunnelmalaskin::PerustanOstot(const Hyodykkeet& brutto) try {
  PerustaLuettuna();
  return LaskeOstot(brutto);
} catch (...) {
  NostaVirhe("Muunnelmalaskin:PerustanOstot Method");
}

Hyodykkeet Muunnelmalaskin::Laske(const clsMuuttuneetAttribuutit& muuttuneet) {
  return Muunnelmaketju(*this).Liita(muuttuneet);
}

std::vector<Muunnelmalaskin::Hyoty> Muunnelmalaskin::LueHyodyt() const {
  const Tasehaarukka haarukka(rakennus_);
  std::vector<Hyoty> hyodyt;
  for (clsTila& tila : rakennus_.Tilat)
    hyodyt.push_back({tila.VuotuisetHyodynnetytLampoKuormat() - tila.VuotuisetSaatohaviot(),
                      tila.VuotuinenIVKoneLampoKuorma() + tila.VuotuinenSahkoKuorma() + tila.VuotuinenAurinkoKuorma() +
                          tila.VuotuinenHenkiloKuorma()});
  return hyodyt;
}

double Muunnelmalaskin::Hyotyosuus(const Tunniste& tila) try {
  PerustaLuettuna();
  if (!hyodyt_) hyodyt_ = LueHyodyt();
  Hyoty summa{};
  auto hyoty = hyodyt_->begin();
  for (const clsTila& t : rakennus_.Tilat) {
    if (tila.Tyhja() || t.sKey == tila) {
      summa.hyodynnetyt += hyoty->hyodynnetyt;
      summa.kuormat += hyoty->kuormat;
    }
    ++hyoty;
  }
  return summa.kuormat == 0 ? 0 : summa.hyodynnetyt / summa.kuormat;
} catch (...) {
  NostaVirhe("Muunnelmalaskin:Hyotyosuus Method");
}

void Muunnelmalaskin::LaskeUudelleen(const Muunnelma::Ulottuvuus& ulottuvuus) {
  if (ulottuvuus.kaikkiKoneet) {
    for (const clsIVKone& kone : rakennus_.IVKoneet) koneet_.Vaihda(kone, Lue(kone));
  } else {
    for (const clsIVKone* kone : ulottuvuus.koneet) koneet_.Vaihda(*kone, Lue(*kone));
  }
  if (ulottuvuus.kaikkiTilat) {
    rakennus_.Tilat.PaivitaTilojenLampotaseenLahtotiedot();
    for (clsTila& tila : rakennus_.Tilat) tilat_.Vaihda(tila, Lue(tila));
  } else {
    for (clsTila* tila : ulottuvuus.tilat) tilat_.Vaihda(*tila, Lue(*tila));
  }
}

void Muunnelmalaskin::PalautaPerusta() noexcept {
  tilat_.Palauta();
  koneet_.Palauta();
}

Energiasummat Muunnelmalaskin::Summat() const {
  Energiasummat summat;
  for (const Tilaluvut& tila : tilat_.luvut) {
    summat.tarve += tila.tarve;
    summat.saatohaviot += tila.saatohaviot;
    summat.sahkotilat += tila.sahko;
  }
  for (const Koneluvut& kone : koneet_.luvut) {
    summat.jalkilammitys += kone.jalkilammitys;
    summat.patterit += kone.patteri;
    summat.puhaltimet += kone.puhaltimet;
  }
  return summat;
}

Hyodykkeet Muunnelmalaskin::Brutto() const {
  const Energiasummat summat = Summat();
  return {rakennus_.BruttoLampoEnergia(summat), rakennus_.BruttoSahkoEnergia(summat),
          rakennus_.VedenKulutusryhmat.VuotuinenVedenKulutus()};
}

Ostot Muunnelmalaskin::LaskeOstot(const Hyodykkeet& brutto) const {
  const Energiasummat summat = Summat();
  const clsPerustiedot& tiedot = rakennus_.Perustiedot;
  const Hankintalaskelma lampo =
      LaskeHankinta(tiedot, clsEnergianHankinta::Lampo, {brutto.lampo, rakennus_.LammonNettotarve(summat)});
  const Hankintalaskelma sahko =
      LaskeHankinta(tiedot, clsEnergianHankinta::Sahko, {brutto.sahko, rakennus_.SahkonNettotarve(summat)});
  const Hankintalaskelma vesi = LaskeHankinta(tiedot, clsEnergianHankinta::Vesi, {brutto.vesi});
  return {{lampo.kustannus, sahko.kustannus, vesi.kustannus}, lampo.paasto + sahko.paasto};
}
