// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/raportti/Raporttiaineisto.h"

#include <cmath>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/rakennus.h"
#include "ui/Tekstivarasto.h"

namespace {

double Osuus(double osa, double mitattu, double laskettu) {
  const double koko = mitattu > 0 ? mitattu : laskettu;
  return koko > 0 ? osa / koko * 100 : 0;
}

std::optional<double> Aika(double vuosia) { return vuosia == kEiTakaisinmaksua ? std::nullopt : std::optional(vuosia); }

}  // namespace

double Luku(const Yhteismaara& maara) { return maara.vika.empty() ? maara.yhteensa : 0; }

Raporttisolu Takaisinmaksusolu(const std::optional<double>& vuosia) {
  if (!vuosia) return Teksti(tekstit::kViiva);
  return Raporttiluku{*vuosia, "0.0", "[investointi]/[kustannus]"};
}

Raporttiaineisto::Raporttiaineisto(clsRakennus& rakennus_)
    : rakennus(rakennus_), valuutta(Asetukset().strDefaultCurrencyUnit), alv(Asetukset().NaytettavatAlvt()) {
  yhteenveto.LueDataluokka(rakennus);
  try {
    tase = LaskeKuukausitase(rakennus);
  } catch (const Virhe&) {  // the chapter of heat tells why
  }
  LaskeToimenpiteet();
}

void Raporttiaineisto::LaskeToimenpiteet() try {
  clsSaastotoimenpiteet& kaikki = rakennus.Saastotoimenpiteet;
  if (kaikki.Count() == 0 && rakennus.ToimenpiteidenJarjestelija.ValitutToimenpiteet.Count() <= 1) return;
  kaikki.PaivitaHierarkiaLista();
  rakennus.ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
  toimenpiteet = kaikki.Toimenpiteet(clsSaastotoimenpiteet::kKokoKohde);
  KeraaPaketti();
  if (paketti) return;
  for (clsSaastotoimenpide* toimenpide : toimenpiteet) {
    ehdotukset.push_back(Ehdota(*toimenpide));
    yhteensa.saasto += ehdotukset.back().saasto;
    yhteensa.rahaa += ehdotukset.back().rahaa;
    yhteensa.kustannussaasto += ehdotukset.back().kustannussaasto;
    yhteensa.investointi += ehdotukset.back().investointi;
  }
  if (yhteensa.kustannussaasto != 0) yhteensa.takaisinmaksu = yhteensa.investointi / yhteensa.kustannussaasto;
} catch (const std::exception& virhe) {
  toimenpidevika = SyynKuvaus(virhe);
}

Ehdotus Raporttiaineisto::Ehdota(clsSaastotoimenpide& toimenpide) const {
  return {toimenpide.Nimi,
          toimenpide.Saasto(),
          Rahana(toimenpide.Kustannussaasto()),
          toimenpide.KustannusSaastoYhteensa(alv) * Asetukset().dblCurrencyConvCoeff,
          toimenpide.Investointi * Asetukset().NayttoKerroin(Energialaji::Yleinen),
          Aika(toimenpide.Takaisinmaksuaika(alv))};
}

Hyodykkeet Raporttiaineisto::Rahana(const Kustannussaastot& s) const {
  const double kurssi = Asetukset().dblCurrencyConvCoeff;
  return {(s.lampoEnergia + s.lampoTeho) * (1 + alv.lampo / 100) * kurssi,
          (s.sahkoEnergia + s.sahkoPatoTeho + s.sahkoLoisTeho) * (1 + alv.sahko / 100) * kurssi,
          s.vesi * (1 + alv.vesi / 100) * kurssi};
}

void Raporttiaineisto::KeraaPaketti() {
  using Rivi = clsValittuToimenpide;
  const clsToimenpiteidenJarjestelija& jarjestelija = rakennus.ToimenpiteidenJarjestelija;
  for (const Rivi& rivi : jarjestelija.ValitutToimenpiteet) {
    const Ehdotus ehdotus{rivi.Nimi,
                          {rivi.SaastoLampoEnergia, rivi.SaastoSahkoEnergia, rivi.SaastoVedenKulutus},
                          Rahana(rivi.Kustannussaasto()),
                          rivi.Kustannussaasto().Yhteensa(alv) * Asetukset().dblCurrencyConvCoeff,
                          rivi.Investointi * Asetukset().NayttoKerroin(Energialaji::Yleinen),
                          Aika(rivi.Takaisinmaksuaika)};
    if (rivi.Tyyppi == Rivi::Yhteensa)
      yhteensa = ehdotus;
    else if (rivi.TiedotUpToDate)
      ehdotukset.push_back(ehdotus);
  }
  paketti = !ehdotukset.empty();
  yhteensa.takaisinmaksu = jarjestelija.PaketinTakaisinmaksuaika(alv);
}

Hyodykkeet Raporttiaineisto::Osuudet(const Hyodykkeet& saasto) const {
  const clsYhteenveto& y = yhteenveto;
  return {Osuus(saasto.lampo, Luku(y.YhtLammitysenergiaKulutus), Luku(y.LaskettuLammitysenergiaKulutus)),
          Osuus(saasto.sahko, Luku(y.YhtSahkoKulutus), Luku(y.LaskettuSahkoKulutus)),
          Osuus(saasto.vesi, Luku(y.YhtVesiKulutus), Luku(y.LaskettuVesiKulutus))};
}

double Raporttiaineisto::KustannustenOsuus(double saasto) const {
  return Kustannukset() > 0 ? saasto / Kustannukset() * 100 : 0;
}

double Raporttiaineisto::Kustannukset() const {
  return Luku(yhteenveto.YhtLammitysenergiaKustannus) + Luku(yhteenveto.YhtSahkoKustannus) +
         Luku(yhteenveto.YhtVesiKustannus);
}

double Raporttiaineisto::Paastot() const {
  return Luku(yhteenveto.YhtLammitysenergiaCO2paasto) + Luku(yhteenveto.YhtSahkoCO2Paasto) +
         Luku(yhteenveto.YhtVesiCO2Paasto);
}

std::string Raporttiaineisto::Vuosi() const {
  return yhteenveto.Vertailuvuosi ? std::to_string(yhteenveto.Vertailuvuosi) : Teksti(tekstit::kViiva);
}
