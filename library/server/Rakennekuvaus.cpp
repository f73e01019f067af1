// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Rakennekuvaus.h"

#include "kernel/Luvut.h"
#include "library/Lampotilajakauma.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Lampotilakuvaus.h"
#include "ui/Tekstivarasto.h"

namespace {

Leikkaus Talvipaivana(const Rakenneratkaisu& ratkaisu) {
  return MuodostaLeikkaus(ratkaisu, kNayttoTsisa, kNayttoTulko);
}

std::string KyllaTaiEi(bool arvo) { return Teksti(arvo ? tekstit::kKirjastonKylla : tekstit::kKirjastonEi); }

std::string Materiaalit(const clsRakennekerros& kerros) {
  if (kerros.Yhtenainen || kerros.Lisamateriaali.Nimi.empty()) return KerroksenNimi(kerros);
  return KerroksenNimi(kerros) + " + " + kerros.Lisamateriaali.Nimi + " " +
         Muotoile(kerros.LisamateriaalinOsuus, "0.#") + " %";
}

}  // namespace

std::string UarvonTeksti(const Rakenneratkaisu& ratkaisu) {
  const auto U = ratkaisu.VoimassaolevaU_arvo();
  if (!U) return Teksti(tekstit::kEiUarvoa);
  const bool laskettu = !ratkaisu.U_arvoAnnettu && ratkaisu.LaskeU_arvo();
  return Teksti(tekstit::kUarvo) + " " + Muotoile(*U, "0.00#") + " " + Teksti(tekstit::kUarvonYksikko) +
         (laskettu ? "" : " (" + Teksti(tekstit::kAnnettu) + ")");
}

Kaaviotiedot Leikkauskuva(const Rakenneratkaisu& ratkaisu) {
  Leikkaus leikkaus = Talvipaivana(ratkaisu);
  return Lampotilakuvaus(UarvonTeksti(ratkaisu), std::move(leikkaus.nimet), std::move(leikkaus.paksuudet),
                         std::move(leikkaus.vastukset), std::move(leikkaus.lampotilat));
}

Taulukko Kerrosrivit(const Rakenneratkaisu& ratkaisu) {
  const Leikkaus leikkaus = Talvipaivana(ratkaisu);
  Taulukko rivit;
  for (const clsRakennekerros& kerros : ratkaisu.Kerrokset) {
    const std::size_t i = rivit.size();
    rivit.push_back({std::to_string(i + 1), Materiaalit(kerros), Muotoile(kerros.Paksuus, "0.#"),
                     Muotoile(leikkaus.vastukset[i], "0.000"),
                     leikkaus.lampotilat.empty() ? std::string() : Muotoile(leikkaus.lampotilat[i + 2], "0.0"),
                     KyllaTaiEi(kerros.UArvoon), KyllaTaiEi(kerros.Yhtenainen)});
  }
  return rivit;
}
