// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Tarkistusyhteenveto.h"

#include <optional>

#include "batch/JsonKirjoitin.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "checks/Tarkistukset.h"
#include "tekstit/tarkistukset.h"
#include "ui/Tekstivarasto.h"

void KirjoitaTarkistukset(std::ostream& tulos, const std::string& tiedosto, clsRakennus& rakennus) {
  tulos << rakennus.Perustiedot.KohteenNimi << "  (" << tiedosto << ")\n";
  const std::vector<Havainto> havainnot = Tarkista(rakennus);
  if (havainnot.empty()) tulos << "  " << Teksti(tekstit::kEiHuomautettavaa) << '\n';
  std::optional<Tarkistustaso> taso;
  for (const Havainto& havainto : havainnot) {
    if (taso != havainto.taso) tulos << "  " << TasonOtsikko(havainto.taso) << '\n';
    taso = havainto.taso;
    tulos << "    " << havainto.kohde.polku << ": " << havainto.teksti << '\n';
  }
  tulos << '\n';
}

void KirjoitaTarkistukset(JsonKirjoitin& json, clsRakennus& rakennus) {
  json.AlaTaulukko();
  for (const Havainto& havainto : Tarkista(rakennus)) {
    json.AlaOlio();
    json.Avain("Nimi"), json.Arvo(havainto.nimi);
    json.Avain("Taso"), json.Arvo(TasonSana(havainto.taso));
    json.Avain("Kohde"), json.Arvo(havainto.kohde.polku);
    json.Avain("Teksti"), json.Arvo(havainto.teksti);
    json.LopetaOlio();
  }
  json.LopetaTaulukko();
}
