// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/raportti/Raportinosat.h"

#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Versio.h"
#include "kernel/Virhe.h"
#include "results/clsRaporttiasetukset.h"
#include "results/raportti/Raporttiaineisto.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "tekstit/raportti.h"
#include "tekstit/tarkistukset.h"
#include "ui/Hiljaa.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr Raporttiosarivi kOsat[] = {
    {"Yhteenveto", tekstit::kRapOsaYhteenveto, raportti::Omistajalle},
    {"Kohde", tekstit::kRapOsaKohde, raportti::Kohde},
    {"Kulutus", tekstit::kRapOsaKulutus, raportti::Kulutus},
    {"Lampo", tekstit::kRapOsaLampo, raportti::Lampo},
    {"Ilmanvaihto", tekstit::kRapOsaIlmanvaihto, raportti::Ilmanvaihto},
    {"Sahko", tekstit::kRapOsaSahko, raportti::Sahko},
    {"Vesi", tekstit::kRapOsaVesi, raportti::Vesi},
    {"Toimenpiteet", tekstit::kRapOsaToimenpiteet, raportti::Toimenpiteet},
    {"Paketti", tekstit::kRapOsaPaketti, raportti::Paketti},
    {"Rakenteet", tekstit::kRapOsaRakenteet, raportti::Rakenneluettelo, true},
    {"Hinnat", tekstit::kRapOsaHinnat, raportti::Hinnat, true},
    {"Lahteet", tekstit::kRapOsaLahteet, raportti::Lahteet, true},
    {"Tarkistukset", tekstit::kRapOsaTarkistukset, raportti::Tarkistukset, true},
};

/// 1, 2, ... for chapters, "Liite A", "Liite B", ... for appendices.
class Numerointi {
 public:
  std::string Seuraava(bool liite) {
    if (!liite) return std::to_string(++luvut_);
    return Lause(tekstit::kRapLiite, {std::string(1, static_cast<char>('A' + liitteet_++))});
  }

 private:
  int luvut_ = 0, liitteet_ = 0;
};

Raportinosa TeeOsa(const Raporttiosarivi& rivi, std::string numero, Raporttiaineisto& aineisto) {
  Raportinosa osa{std::string(rivi.nimi), Teksti(rivi.otsikko), std::move(numero)};
  try {
    rivi.rakenna(osa, aineisto);
  } catch (const std::exception& virhe) {
    osa.lohkot.clear();
    osa.Kappale(Lause(tekstit::kRapOsaaEiVoituLaskea, {SyynKuvaus(virhe)}));
  }
  return osa;
}

std::vector<std::string> Kansirivit(const clsRakennus& rakennus) {
  std::vector<std::string> rivit{rakennus.Perustiedot.Pvm};
  for (const clsKatselmoijanTiedot* k :
       {&rakennus.KatselmoijienTiedot.LVIKatselmoija, &rakennus.KatselmoijienTiedot.SahkoKatselmoija})
    if (!k->Nimi.empty()) rivit.push_back(k->Tehtavanimike.empty() ? k->Nimi : k->Nimi + ", " + k->Tehtavanimike);
  return rivit;
}

}  // namespace

std::span<const Raporttiosarivi> Raporttiosat() { return kOsat; }

Raportti TeeRaportti(clsRakennus& rakennus) try {
  const Hiljaisuus hiljaisuus;  // what the figures have to tell stands in the report
  const clsPerustiedot& p = rakennus.Perustiedot;
  Raporttiaineisto aineisto(rakennus);
  Raportti raportti{
      .otsikko = Teksti(tekstit::kRapOtsikko),
      .kohde = p.KohteenNimi,
      .alaotsikko = p.Kayttotarkoitus,
      .pvm = p.Pvm,
      .tekija = rakennus.KatselmoijienTiedot.LVIKatselmoija.Nimi,
      .ohjelma = Lause(tekstit::kRapOhjelma, {std::to_string(kVersioMajor) + "." + std::to_string(kVersioMinor) + "." +
                                              std::to_string(kVersioRevision)}),
      .kansirivit = Kansirivit(rakennus)};
  Numerointi numerot;
  for (const Raporttiosarivi& rivi : Raporttiosat())
    if (rakennus.Raporttiasetukset.OnMukana(rivi.nimi))
      raportti.osat.push_back(TeeOsa(rivi, numerot.Seuraava(rivi.liite), aineisto));
  return raportti;
} catch (...) {
  NostaVirhe("Raportinosat:TeeRaportti Function");
}
