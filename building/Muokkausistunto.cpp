// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Muokkausistunto.h"

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "ui/Odotus.h"

namespace {

int istuntoja = 0;  // that are open, each inside the former

struct Avoinna {
  Avoinna() { ++istuntoja; }
  ~Avoinna() { --istuntoja; }
  Avoinna(const Avoinna&) = delete;
  Avoinna& operator=(const Avoinna&) = delete;
};

void Tee(const std::function<void()>& toimi) {
  if (toimi) toimi();
}

}  // namespace

Muokkausistunto::Muokkausistunto(Muokkauslomake& lomake, Muokkaustoimet toimet, std::function<void()> kopioiTakaisin)
    : lomake_(lomake),
      toimet_(std::move(toimet)),
      kopioiTakaisin_(std::move(kopioiTakaisin)),
      muutoksenNimi_(lomake.Otsikko()) {}

bool Muokkausistunto::Nayta() {
  const Avoinna avoinna;
  if (!toimet_.nimi.empty()) lomake_.Otsikko(toimet_.nimi + ": " + muutoksenNimi_);
  lomake_.OkKlikattu = [this] { Hyvaksy(); };
  lomake_.PeruutaKlikattu = [this] { Peruuta(); };
  Tee(toimet_.lue);
  lomake_.NaytaModaalisena();
  return hyvaksytty_;
}

bool Muokkausistunto::Auki() { return istuntoja > 0; }

void Muokkausistunto::Hyvaksy() try {
  Odotus odotus;
  Tee(toimet_.kirjoita);
  if (toimet_.tarkista && !toimet_.tarkista()) return;
  Tee(toimet_.voimaan);
  Tee(toimet_.tapahtuma);
  Kirjaa();
  hyvaksytty_ = true;
  lomake_.Sulje();
} catch (...) {
  Palauta();
  Tee(toimet_.virheenJalkeen);
  NostaVirhe("Muokkausistunto:Hyvaksy Method");
}

void Muokkausistunto::Peruuta() try {
  Odotus odotus;
  Palauta();
  Tee(toimet_.peruttu);
  lomake_.Sulje();
} catch (...) {
  NostaVirhe("Muokkausistunto:Peruuta Method");
}

void Muokkausistunto::Palauta() {
  kopioiTakaisin_();
  VaadiRakennus().RekisteriVanheni();
}

void Muokkausistunto::Kirjaa() const {
  if (istuntoja > 1) return;
  clsRakennus& rakennus = VaadiRakennus();
  if (!toimet_.elava)
    rakennus.Tallennettu = false;
  else if (rakennus.Kirjaamatta())
    rakennus.Muuttui(muutoksenNimi_);
}
