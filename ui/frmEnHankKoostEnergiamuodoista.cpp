// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmEnHankKoostEnergiamuodoista.h"

#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_hankinta.h"
#include "ui/Tekstivarasto.h"

frmEnHankKoostEnergiamuodoista::frmEnHankKoostEnergiamuodoista() : Muokkauslomake("frmEnHankKoostEnergiamuodoista") {
  Etsi("lblYksVesihinta").Nakyva(false);
}

void frmEnHankKoostEnergiamuodoista::NaytaLampona() {
  Otsikko(Teksti(tekstit::kLammonHankinta));
  NaytaYhtenaTariffina({});
}

void frmEnHankKoostEnergiamuodoista::NaytaSahkona() { Otsikko(Teksti(tekstit::kSahkonHankinta)); }

/// Water is priced by the cubic metre and warms no climate.
void frmEnHankKoostEnergiamuodoista::NaytaVetena() {
  Otsikko(Teksti(tekstit::kVedenHankinta));
  Etsi("fraMuodot").Teksti(Teksti(tekstit::kVedenHankinnanKoostuminen));
  NaytaYhtenaTariffina(Teksti(tekstit::kHankintatapa));
  Etsi("lblYksVesihinta").Nakyva(true);
  for (const char* nimi : {"lblYksKeskihinta", "lblPaastokerroin", "txtPaastokerroin", "lblYksPaastokerroin"})
    Etsi(nimi).Nakyva(false);
}

void frmEnHankKoostEnergiamuodoista::NaytaYhtenaTariffina(std::string ensimmainenSarake) {
  Ohjain& lista = lvwEnergiamuodot.Kohde();
  std::vector<Osa> sarakkeet = lista.Osat();
  sarakkeet.pop_back();
  sarakkeet.back().otsikko = Teksti(tekstit::kHankinnanTariffi);
  if (!ensimmainenSarake.empty()) sarakkeet.front().otsikko = std::move(ensimmainenSarake);
  lista.Osat(std::move(sarakkeet));
  cmdMyyntiTariffi.Otsikko(Teksti(tekstit::kTariffinValintanappi));
  cmdSiirtoTariffi.Nakyva(false);
}
