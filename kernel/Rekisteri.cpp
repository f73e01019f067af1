// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Rekisteri.h"

#include "kernel/Kokoelma.h"

namespace {

bool KirjaaRekisteriin(Olio& olio, Olio* omistaja, clsTyyppiTiedot& tyypit) {
  InstanssiLista* lista = tyypit.Nimet.Etsi(olio.LuokanTiedot());
  if (!lista || lista->Add(olio, omistaja)) return false;
  olio.InstanssiId = Tunniste::Uusi(olio.LuokanTiedot().NimiSana());
  lista->Add(olio, omistaja);
  return true;
}

int Kirjaa(Olio& olio, Olio* omistaja, clsTyyppiTiedot& tyypit) {
  if (olio.LuokanTiedot().Osallistuminen() != Luokka::Osallistuu::Kaikkeen) return 0;
  int uusittu = KirjaaRekisteriin(olio, omistaja, tyypit);
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) {
      Olio& alkio = kokoelma->Pohja(i);
      uusittu += Kirjaa(alkio, omistaja ? omistaja : &alkio, tyypit);
    }
  if (const clsTyyppiTieto* tieto = tyypit.Etsi(olio.LuokanTiedot()))
    for (const Jasen* jasen : tieto->Oliojasenet())
      if (Olio* lapsi = jasen->olio(olio)) uusittu += Kirjaa(*lapsi, omistaja, tyypit);
  return uusittu;
}

}  // namespace

int PaivitaIdLista(Olio& olio, clsTyyppiTiedot& tyypit) { return Kirjaa(olio, nullptr, tyypit); }

void UusiTunnisteet(Olio& olio) {
  olio.InstanssiId = Tunniste::Uusi(olio.LuokanTiedot().NimiSana());
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) UusiTunnisteet(kokoelma->Pohja(i));
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet())
    if (Olio* lapsi = jasen.OnOlio() && !jasen.viittaus ? jasen.olio(olio) : nullptr) UusiTunnisteet(*lapsi);
}
