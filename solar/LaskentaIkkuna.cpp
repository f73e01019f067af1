// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/LaskentaIkkuna.h"

#include "solar/AurinkoVirhe.h"
#include "solar/Aurinkotaulukot.h"

void LaskentaIkkuna::LataaFf(std::string_view polku) { ff_ = &HaeVarjostustaulukko(Varjostuslaji::SivuLippa, polku); }

void LaskentaIkkuna::LataaFo(std::string_view polku) { fo_ = &HaeVarjostustaulukko(Varjostuslaji::YlaLippa, polku); }

double LaskentaIkkuna::Ff(double leveysaste) const {
  if (!ff_) throw AurinkoVirhe("Ikkunan sivulippojen varjostustaulukkoa (Ff) ei ole luettu.");
  return ff_->Kerroin(leveysaste, SivuLippaKulma, IlmansuuntaNumerosta(Suuntaus));
}

double LaskentaIkkuna::Fo(double leveysaste) const {
  if (!fo_) throw AurinkoVirhe("Ikkunan ylälipan varjostustaulukkoa (Fo) ei ole luettu.");
  return fo_->Kerroin(leveysaste, YlaLippaKulma, IlmansuuntaNumerosta(Suuntaus));
}
