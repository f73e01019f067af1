// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Kirjastot.h"

#include <algorithm>
#include <iterator>

#include "kernel/Virhe.h"
#include "library/Kirjastoluettelo.h"
#include "library/Rakennetietokanta.h"

namespace {

std::vector<Muutoskuuntelija*>& Kuuntelijat() {
  static std::vector<Muutoskuuntelija*> kuuntelijat;
  return kuuntelijat;
}

template <class T>
void Siirra(std::vector<T>&& mista, std::vector<T>& minne) {
  std::ranges::move(mista, std::back_inserter(minne));
}

}  // namespace

Kirjastot::Kirjastot(std::string kayttajanKanta, std::string vakiokanta)
    : oma_{std::move(kayttajanKanta)}, vakio_{std::move(vakiokanta)} {}

void Kirjastot::Lataa() {
  rakenteet_.clear();
  materiaalit_.clear();
  versio_.clear();
  Lataa(Kirjasto::Oma);
  Lataa(Kirjasto::Vakio);
}

void Kirjastot::Lataa(Kirjasto kirjasto) {
  Kanta& kanta = Tila(kirjasto);
  try {
    auto rakenteet = LueRakenteet(kanta.polku, kirjasto);
    auto materiaalit = LueMateriaalit(kanta.polku, kirjasto);
    if (kirjasto == Kirjasto::Vakio) versio_ = Rakennetietokanta(kanta.polku).Versio();
    Siirra(std::move(rakenteet), rakenteet_);
    Siirra(std::move(materiaalit), materiaalit_);
    kanta.vika.clear();
  } catch (const Virhe& virhe) {
    kanta.vika = virhe.SyynKuvaus();
  }
}

Muutoskuuntelija::Muutoskuuntelija(std::function<void()> kunMuuttuu) : kunMuuttuu_(std::move(kunMuuttuu)) {
  Kuuntelijat().push_back(this);
}

Muutoskuuntelija::~Muutoskuuntelija() { std::erase(Kuuntelijat(), this); }

void IlmoitaMuutos() {
  for (const Muutoskuuntelija* kuuntelija : Kuuntelijat()) kuuntelija->kunMuuttuu_();
}
