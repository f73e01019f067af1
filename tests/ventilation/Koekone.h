// SPDX-License-Identifier: GPL-3.0-or-later
// Machines for the tests of ventilation.
#pragma once
#include "tests/building/Koerakennus.h"
#include "ventilation/LammitysTaulukko.h"
#include "ventilation/MivSovitteet.h"
#include "ventilation/clsIVKoneet.h"
#include "ventilation/clsVoimasiirto.h"

struct Kaynti {
  int kertoja;
  int alkaa, paattyy;  // minutes of the day
  double virta = 100;  // %
};

class KoneTesti : public RakennusTesti {
 protected:
  clsIVKone& LisaaKone(const Tunniste& tila = {}) {
    clsIVKone& kone = rakennus->IVKoneet.Add(Tunniste::Uusi(clsIVKone::kLuokka.NimiSana()));
    kone.LiittyyTilaansKey = tila;
    kone.KayntiAikaYleistiedot.LuoJaksot(kone.SisaanpuhallusLampotila(), kone.IlmanLampeneminenPuhaltimessa);
    return kone;
  }
  /// Puts the runs on the lines of a season; the lines left over don't run.
  static void Kayta(clsIVKone& kone, const std::vector<Kaynti>& kaynnit, int vuosijakso = clsKayntiAika::KokoVuosi) {
    for (int rivi = 1; rivi <= clsKayntiAjat::kJaksojaVuosijaksossa; ++rivi)
      kone.KayntiAikaYleistiedot.Item(clsKayntiAjat::JaksonAvain(rivi, vuosijakso)).KayntiJaksojenLkm = 0;
    int rivi = 0;
    for (const Kaynti& kaynti : kaynnit) {
      clsKayntiAika& jakso = kone.KayntiAikaYleistiedot.Item(clsKayntiAjat::JaksonAvain(++rivi, vuosijakso));
      jakso.KayntiJaksojenLkm = kaynti.kertoja;
      jakso.Alkaa.minuutit = kaynti.alkaa;
      jakso.Paattyy.minuutit = kaynti.paattyy;
      jakso.TuloIlmavirtaProsentti = kaynti.virta;
    }
  }
  static const std::vector<Kaynti>& Toimistoajat() {
    static const std::vector<Kaynti> ajat{
        {5, 6 * 60 + 20, 17 * 60 + 45, 100}, {5, 17 * 60 + 45, 6 * 60 + 20, 50}, {2, 0, 0, 40}};
    return ajat;
  }
};
