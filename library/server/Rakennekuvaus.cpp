// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Rakennekuvaus.h"

#include "kernel/Luvut.h"
#include "library/Lampotilajakauma.h"
#include "library/server/Tekstinumerot.h"
#include "ui/Lampotilakuvaus.h"
#include "ui/Tekstivarasto.h"

using namespace kirjastotekstit;

namespace {

LammonlapaisyTulos Jakauma(const Rakenneratkaisu& ratkaisu) {
  return LaskeLampotilajakauma(ratkaisu, kNayttoTsisa, kNayttoTulko);
}

std::string KyllaTaiEi(bool arvo) { return Teksti(arvo ? kKylla : kEi); }

std::string Materiaalit(const clsRakennekerros& kerros) {
  if (kerros.Yhtenainen || kerros.Lisamateriaali.Nimi.empty()) return KerroksenNimi(kerros);
  return KerroksenNimi(kerros) + " + " + kerros.Lisamateriaali.Nimi + " " +
         Muotoile(kerros.LisamateriaalinOsuus, "0.#") + " %";
}

}  // namespace

std::string UarvonTeksti(const Rakenneratkaisu& ratkaisu) {
  const auto U = ratkaisu.VoimassaolevaU_arvo();
  if (!U) return Teksti(kEiUarvoa);
  const bool laskettu = !ratkaisu.U_arvoAnnettu && ratkaisu.LaskeU_arvo();
  return Teksti(kUarvo) + " " + Muotoile(*U, "0.00#") + " " + Teksti(kUarvonYksikko) +
         (laskettu ? "" : " (" + Teksti(kAnnettu) + ")");
}

Kaaviotiedot Leikkauskuva(const Rakenneratkaisu& ratkaisu) {
  const LammonlapaisyTulos tulos = Jakauma(ratkaisu);
  std::vector<Leikkauskerros> kerrokset;
  for (const clsRakennekerros& kerros : ratkaisu.Kerrokset)
    kerrokset.push_back({KerroksenNimi(kerros), kerros.Paksuus, tulos.kerrosvastukset[kerrokset.size()]});
  return Lampotilakuvaus(UarvonTeksti(ratkaisu), kerrokset, tulos.lampotilat, kNayttoTsisa, kNayttoTulko);
}

Taulukko Kerrosrivit(const Rakenneratkaisu& ratkaisu) {
  const LammonlapaisyTulos tulos = Jakauma(ratkaisu);
  Taulukko rivit;
  for (const clsRakennekerros& kerros : ratkaisu.Kerrokset) {
    const std::size_t i = rivit.size();
    rivit.push_back({std::to_string(i + 1), Materiaalit(kerros), Muotoile(kerros.Paksuus, "0.#"),
                     Muotoile(tulos.kerrosvastukset[i], "0.000"),
                     tulos.onArvo ? Muotoile(tulos.lampotilat[i + 1], "0.0") : std::string(),
                     KyllaTaiEi(kerros.UArvoon), KyllaTaiEi(kerros.Yhtenainen)});
  }
  return rivit;
}
