// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Rekisteri.h"

#include "kernel/Kokoelma.h"

namespace {

bool KirjaaRekisteriin(Olio& olio, clsTyyppiTiedot& tyypit) {
  InstanssiLista* lista = tyypit.Nimet.Etsi(olio.LuokanTiedot());
  if (!lista || lista->Add(olio)) return false;
  olio.InstanssiId = Tunniste::Uusi(olio.LuokanTiedot().NimiSana());
  lista->Add(olio);
  return true;
}

}  // namespace

int PaivitaIdLista(Olio& olio, clsTyyppiTiedot& tyypit) {
  if (olio.LuokanTiedot().Osallistuminen() != Luokka::Osallistuu::Kaikkeen) return 0;
  int uusittu = KirjaaRekisteriin(olio, tyypit);
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) uusittu += PaivitaIdLista(kokoelma->Pohja(i), tyypit);
  if (const clsTyyppiTieto* tieto = tyypit.Etsi(olio.LuokanTiedot()))
    for (const Jasen* jasen : tieto->Oliojasenet())
      if (Olio* lapsi = jasen->olio(olio)) uusittu += PaivitaIdLista(*lapsi, tyypit);
  return uusittu;
}

void UusiTunnisteet(Olio& olio) {
  olio.InstanssiId = Tunniste::Uusi(olio.LuokanTiedot().NimiSana());
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) UusiTunnisteet(kokoelma->Pohja(i));
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet())
    if (Olio* lapsi = jasen.OnOlio() && !jasen.viittaus ? jasen.olio(olio) : nullptr) UusiTunnisteet(*lapsi);
}
