// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/AurinkoLaskin.h"

#include "solar/AurinkoVirhe.h"
#include "solar/Aurinkotaulukot.h"

namespace {

/// From the transmittance at normal incidence to the mean over the angles of incidence; prEN 832.
constexpr double kVinonSateilynKerroin = 0.9;

}  // namespace

void AurinkoLaskin::LataaSaa(std::string_view polku) { saa_ = &HaeSaataulukko(polku); }

void AurinkoLaskin::LataaFh(std::string_view polku) { fh_ = &HaeVarjostustaulukko(Varjostuslaji::Horisontti, polku); }

void AurinkoLaskin::HorisonttiKulma(int suuntaus, double kulma) {
  horisonttiKulmat_[Indeksi(IlmansuuntaNumerosta(suuntaus))] = kulma;
}

double AurinkoLaskin::Keskilampotila(int kuukausi, int vyohyke) const {
  return Vyohykkeet.Item(vyohyke).Asetuslampotila(kuukausi);
}

void AurinkoLaskin::Laske() try {
  energiat_.Tyhjenna();
  if (!saa_) throw AurinkoVirhe("Aurinkolaskennan säätiedostoa ei ole luettu.");
  if (!fh_) throw AurinkoVirhe("Horisontin varjostustaulukkoa (Fh) ei ole luettu.");
  for (int i = 1; i <= Vyohykkeet.Count(); ++i) energiat_.Add({});
  for (int i = 1; i <= Ikkunat.Count(); ++i) LisaaEnergia(Ikkunat.Item(i));
} catch (...) {
  energiat_.Tyhjenna();
  throw;
}

void AurinkoLaskin::LisaaEnergia(const LaskentaIkkuna& ikkuna) {
  const Ilmansuunta suunta = IlmansuuntaNumerosta(ikkuna.Suuntaus);
  const double fh = fh_->Kerroin(Leveysaste, horisonttiKulmat_[Indeksi(suunta)], suunta);
  const double fo = ikkuna.Fo(Leveysaste);
  const double ff = ikkuna.Ff(Leveysaste);
  const Kuukausiarvot& sateily = saa_->Sateily(suunta);
  Kuukausiarvot& energia = energiat_.Item(ikkuna.Vyohyke);
  for (std::size_t m = 0; m < energia.arvot.size(); ++m)
    energia.arvot[m] += sateily.arvot[m] * ikkuna.PintaAla * kVinonSateilynKerroin * ikkuna.Aurinkoenergianlapaisy *
                        ikkuna.Karmikerroin * ikkuna.Verhokerroin * fh * fo * ff;
}
