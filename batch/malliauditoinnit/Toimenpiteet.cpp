// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/malliauditoinnit/Toimenpiteet.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "batch/malliauditoinnit/Kayntiajat.h"
#include "batch/malliauditoinnit/Kulutusryhmat.h"
#include "building/clsRakennus.h"
#include "building/clsTila.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "supply/clsEnergianHankinta.h"
#include "ui/Tekstivarasto.h"
#include "ventilation/clsIVKone.h"

namespace {

constexpr double kHintataso = 0.7;   // building costs of 2007 by those of 2024 (docs/reference-data.md)
constexpr double kPyoristys = 10.0;  // €

/// The node whose text and whose parent's text are the two parts of the path, "Valaistus/Luokkahuone".
Tunniste Solmu(const clsSaastotoimenpiteet& toimenpiteet, const Rivi& rivi) {
  const std::string& polku = rivi.at("Kohde");
  for (const clsSaastoToimenpideListaItem& solmu : toimenpiteet.ListaItems()) {
    const clsSaastoToimenpideListaItem* vanhempi = toimenpiteet.ListaItems().Etsi(solmu.Parent);
    if (vanhempi && vanhempi->NimiTeksti + "/" + solmu.NimiTeksti == polku) return solmu.sKey;
  }
  throw std::runtime_error(rivi.at("Tunnus") + ", " + rivi.at("Nimi") + ": puussa ei ole: " + polku);
}

template <class Kokoelma, class F>
std::vector<Olio*> Jasenet(Kokoelma& kokoelma, F&& kuuluu) {
  std::vector<Olio*> jasenet;
  for (auto& jasen : kokoelma)
    if (kuuluu(jasen)) jasenet.push_back(&jasen);
  return jasenet;
}

bool OnLajia(const clsRakenne& rakenne, const std::string& laji) {
  static const auto lajit = Valintalista("frmRakenteet", "cmbRakennetyyppi");  // after the row of all kinds
  return laji == lajit.at(static_cast<std::size_t>(rakenne.Rakennetyyppi) + 1);
}

/// What a row changes: the object itself, its structures of a kind, its energy form or its fans.
std::vector<Olio*> Osat(Olio& olio, const std::string& osa) {
  if (osa.empty()) return {&olio};
  if (auto* tila = dynamic_cast<clsTila*>(&olio))
    return Jasenet(tila->Rakenteet, [&](const clsRakenne& rakenne) { return OnLajia(rakenne, osa); });
  if (auto* hankinta = dynamic_cast<clsEnergianHankinta*>(&olio))
    return Jasenet(hankinta->Energiamuodot, [&](const clsEnergiamuoto& muoto) { return muoto.Nimi == osa; });
  if (auto* kone = dynamic_cast<clsIVKone*>(&olio); kone && osa == "Puhaltimet")
    return {&kone->PuhaltimienSahkonKulutus};
  return {};
}

/// A U-value that is given isn't computed any more; a schedule is a text of its own; a row of the catalogue fills a
/// whole group.
void Aseta(Olio& osa, const std::string& ominaisuus, const std::string& arvo) {
  if (auto* rakenne = dynamic_cast<clsRakenne*>(&osa)) rakenne->LaskeU_arvoMateriaaleista = false;
  if (ominaisuus == "Kayntiajat")
    TaytaKayntiajat(arvo, dynamic_cast<clsIVKone&>(osa).KayntiAikaYleistiedot);
  else if (ominaisuus == "Luettelorivi")
    TaytaLuettelosta(arvo, osa);
  else
    AsetaJasen(osa, ominaisuus, arvo);
}

/// Carries out the rows of a measure at a stage, "Ennen" or "Jälkeen".
void Muokkaa(const Rivi& toimenpide, const std::vector<Rivi>& muutokset, const char* vaihe, Olio& olio) {
  for (const Rivi& rivi : muutokset) {
    if (rivi.at("Tunnus") != toimenpide.at("Tunnus") || rivi.at("Toimenpide") != toimenpide.at("Nimi") ||
        rivi.at("Vaihe") != vaihe)
      continue;
    const auto osat = Osat(olio, rivi.at("Osa"));
    if (osat.empty())
      throw std::runtime_error(rivi.at("Tunnus") + ", " + rivi.at("Toimenpide") + ": osaa ei ole: " + rivi.at("Osa"));
    for (Olio* osa : osat) Aseta(*osa, rivi.at("Ominaisuus"), rivi.at("Arvo"));
  }
}

double Investointi(const Rivi& rivi) {
  return std::round(Luku(rivi, "Yksikkohinta") * Luku(rivi, "Maara") * kHintataso / kPyoristys) * kPyoristys;
}

clsSaastotoimenpide& LisaaToimenpide(const Rivi& rivi, const std::vector<Rivi>& muutokset,
                                     clsSaastotoimenpiteet& toimenpiteet) {
  clsSaastotoimenpide& uusi = *toimenpiteet.Lisaa(Solmu(toimenpiteet, rivi), rivi.at("Nimi"));
  uusi.Kuvaus = rivi.at("Kuvaus");
  uusi.ToimenpiteenTekijanNimi = "Malliauditointi";
  uusi.Investointi = Investointi(rivi);
  uusi.SaastoLampoteho = Luku(rivi, "Lampoteho");
  uusi.SaastoPatoTeho = Luku(rivi, "Sahkoteho");
  if (uusi.Kelluva()) Muokkaa(rivi, muutokset, "Ennen", *uusi.Ennen());
  const auto jalkeen = uusi.TeeJalkeen();
  Muokkaa(rivi, muutokset, "Jälkeen", *jalkeen);
  uusi.PaivitaMuuttuneetAttribuutit(*jalkeen);
  if (uusi.MuuttuneetAttribuutit.Count() == 0)
    throw std::runtime_error(rivi.at("Tunnus") + ", " + uusi.Nimi + ": mitään ei muutu");
  return uusi;
}

}  // namespace

void AsetaToimenpiteet(const std::string& tunnus, const Toimenpidetaulukot& taulukot, clsRakennus& rakennus) {
  clsSaastotoimenpiteet& toimenpiteet = rakennus.Saastotoimenpiteet;
  toimenpiteet.PaivitaHierarkiaLista();
  std::map<std::int32_t, Tunniste> paketti;  // by the place in it
  for (const Rivi& rivi : taulukot.toimenpiteet) {
    if (rivi.at("Tunnus") != tunnus) continue;
    const Tunniste avain = LisaaToimenpide(rivi, taulukot.muutokset, toimenpiteet).sKey;
    if (!rivi.at("Paketti").empty()) paketti.emplace(Kokonaisluku(rivi, "Paketti"), avain);
  }
  for (const auto& [paikka, avain] : paketti) rakennus.ToimenpiteidenJarjestelija.Valitse(avain, true);
}
