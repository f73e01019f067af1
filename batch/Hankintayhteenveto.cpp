// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Hankintayhteenveto.h"

#include "batch/Kustannusyhteenveto.h"
#include "batch/Tekstitaulu.h"
#include "building/Hankintalaskelma.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "results/Perusteet.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

struct Hankinta {
  clsEnergianHankinta clsPerustiedot::*jasen;
  clsEnergianHankinta::Laji laji;
  Energialaji alv;
  const char* yksikko;
};
constexpr Hankinta kHankinnat[] = {
    {&clsPerustiedot::LammonHankinta, clsEnergianHankinta::Lampo, Energialaji::Lampo, "MWh/a"},
    {&clsPerustiedot::SahkonHankinta, clsEnergianHankinta::Sahko, Energialaji::Sahko, "MWh/a"},
    {&clsPerustiedot::VedenHankinta, clsEnergianHankinta::Vesi, Energialaji::Vesi, "m³/a"},
};

std::string Prosentteina(double luku) { return Muotoile(luku, "0.##") + " %"; }

void LisaaHankinta(Tekstitaulu& taulu, const Hankinta& h, clsRakennus& rakennus) {
  const clsEnergianHankinta& hankinta = rakennus.Perustiedot.*h.jasen;
  if (hankinta.Energiamuodot.Count() == 0) return;
  const bool paastoja = h.laji != clsEnergianHankinta::Vesi;
  const auto maara = [&](double ostettu) { return Muotoile(ostettu, "### ##0.00") + " " + h.yksikko; };
  const auto paasto = [&](double tonnia) { return paastoja ? Muotoile(tonnia, "### ##0.00") : std::string(); };
  try {
    const Hankintalaskelma laskelma = LaskeHankinta(rakennus, h.laji);
    taulu.Lisaa({hankinta.Nimi, maara(laskelma.brutto),
                 Muotoile(laskelma.kustannus * Asetukset().NayttoKerroin(h.alv), "### ##0"), paasto(laskelma.paasto)});
    for (const Hankintalaskelma::Muoto& m : laskelma.muodot)
      taulu.Lisaa({"  " + m.muoto->Nimi + ", " + Prosentteina(m.muoto->OsuusNettotarpeesta), maara(m.ostettu), "",
                   paasto(m.paasto)});
  } catch (const Virhe& virhe) {
    taulu.Lisaa({hankinta.Nimi + ": " + virhe.SyynKuvaus()});
  }
}

}  // namespace

void KirjoitaHankinta(std::ostream& tulos, clsRakennus& rakennus) {
  const clsPerustiedot& tiedot = rakennus.Perustiedot;
  bool muotoja = false;
  for (const Hankinta& h : kHankinnat) muotoja |= (tiedot.*h.jasen).Energiamuodot.Count() > 0;
  if (!muotoja) return;
  Tekstitaulu taulu({Teksti(tekstit::kOstettavaEnergiaJaVesi), Teksti(tekstit::kOstettu),
                     Asetukset().strDefaultCurrencyUnit + "/a", "t CO₂-ekv/a"});
  for (const Hankinta& h : kHankinnat) LisaaHankinta(taulu, h, rakennus);
  taulu.Tulosta(tulos);
  tulos << '\n';
  KirjoitaKustannukset(tulos, rakennus);
  tulos << "  " << Alvperuste() << "\n  " << Valuuttaperuste() << "\n\n";
}
