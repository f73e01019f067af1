// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Vertailu.h"

#include "kernel/Kokoelma.h"

namespace {

bool OnReaalinen(Laji laji) {
  return laji == Laji::Yksinkertainen || laji == Laji::Kaksinkertainen || laji == Laji::Paivays ||
         laji == Laji::Desimaali;
}

bool Muuttunut(Laji laji, const ArvoNakyma& arvo, const ArvoNakyma& toinen) {
  if (laji == Laji::Teksti) return arvo.Teksti() != toinen.Teksti();
  if (!OnReaalinen(laji)) return arvo.Lukuna() != toinen.Lukuna();
  return toinen.Lukuna() < arvo.Lukuna() - kVertailutarkkuus || toinen.Lukuna() > arvo.Lukuna() + kVertailutarkkuus;
}

Muutos TeeMuutos(const Olio& tama, const Jasen& jasen, const ArvoNakyma& jalkeen, const ArvoNakyma& ennen) {
  Muutos m{jasen.nimi, tama.LuokanNimi(), jasen.laji, tama.InstanssiId};
  if (jasen.laji == Laji::Teksti) {
    m.arvoEnnenStr = ennen.Teksti();
    m.arvoJalkeenStr = jalkeen.Teksti();
  } else {
    m.arvoEnnen = ennen.Lukuna();
    m.arvoJalkeen = jalkeen.Lukuna();
  }
  return m;
}

void VertaileArvot(const Olio& tama, const Olio& toinen, const Jasen& jasen, MuutostenKeraaja& muuttuneet) {
  ArvoNakyma arvo, vanha;
  jasen.nayta(tama, arvo);
  jasen.nayta(toinen, vanha);
  if (Muuttunut(jasen.laji, arvo, vanha)) muuttuneet.Lisaa(TeeMuutos(tama, jasen, arvo, vanha));
}

void VertaileAlkiot(KokoelmaPohja& tama, KokoelmaPohja& toinen, MuutostenKeraaja& muuttuneet,
                    const clsTyyppiTiedot& tyypit) {
  for (int i = 1; i <= tama.Count(); ++i) {
    Alkio& alkio = tama.Pohja(i);
    if (Alkio* pari = toinen.EtsiPohja(alkio.sKey)) VertaileOliot(alkio, *pari, muuttuneet, tyypit);
  }
}

}  // namespace

void VertaileOliot(Olio& tama, Olio& toinen, MuutostenKeraaja& muuttuneet, const clsTyyppiTiedot& tyypit) {
  if (&tama.LuokanTiedot() != &toinen.LuokanTiedot()) return muuttuneet.LuokatEroavat(tama, toinen);
  if (tama.LuokanTiedot().Osallistuminen() == Luokka::Osallistuu::EiKumpaankaan) return;
  if (KokoelmaPohja* kokoelma = tama.Kokoelmana()) VertaileAlkiot(*kokoelma, *toinen.Kokoelmana(), muuttuneet, tyypit);
  const clsTyyppiTieto* tieto = tyypit.Etsi(tama.LuokanTiedot());
  if (!tieto) return;
  for (const Jasen* jasen : tieto->Jasenet()) {
    if (jasen->kopio) continue;
    if (!jasen->OnOlio()) {
      VertaileArvot(tama, toinen, *jasen, muuttuneet);
      continue;
    }
    Olio* oma = jasen->olio(tama);
    Olio* pari = jasen->olio(toinen);
    if (oma && pari) VertaileOliot(*oma, *pari, muuttuneet, tyypit);
  }
}
