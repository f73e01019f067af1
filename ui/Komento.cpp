// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Komento.h"

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

#include "ui/Viestit.h"
#include "ui/Virheilmoitus.h"

namespace {

int syvyys = 0;  // commands that are running, each inside the former
int lepaa = 0;   // those of them that wait for the person in a modal form

std::function<void()>& ViestienNaytto() {
  static std::function<void()> nayta;
  return nayta;
}

std::function<void()>& KomennonJalki() {
  static std::function<void()> jalki;
  return jalki;
}

void SuoritaVartioituna(const std::function<void()>& komento) {
  const std::string paneeli = ViestitNyt().Paneeli();
  const std::string ikkuna = AktiivisenOtsikko();
  const auto kerro = [&](const std::exception& virhe) {
    ViestitNyt().AsetaPaneeli(paneeli);
    KerroVirhe(virhe, ikkuna);
  };
  try {
    komento();
  } catch (const std::exception& virhe) {
    kerro(virhe);
  } catch (...) {
    kerro(std::runtime_error("tuntematon virhe"));
  }
}

}  // namespace

void SuoritaKomento(const std::function<void()>& komento) {
  ++syvyys;
  SuoritaVartioituna(komento);
  if (syvyys == 1 && KomennonJalki()) SuoritaVartioituna(KomennonJalki());
  --syvyys;
  NaytaOdottavatViestit();
}

void AsetaKomennonJalki(std::function<void()> jalki) { KomennonJalki() = std::move(jalki); }

bool KomentoKaynnissa() { return syvyys > 0; }

IhmisenVuoro::IhmisenVuoro() noexcept : edellinen_(std::exchange(lepaa, syvyys)) {}
IhmisenVuoro::~IhmisenVuoro() { lepaa = edellinen_; }

bool OnHiljaista() noexcept { return syvyys == lepaa; }

void AsetaViestienNaytto(std::function<void()> nayta) { ViestienNaytto() = std::move(nayta); }

void NaytaOdottavatViestit() {
  if (ViestienNaytto()) ViestienNaytto()();
}
