// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Komento.h"

#include <exception>
#include <string>
#include <utility>

#include "kernel/Virhe.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

int syvyys = 0;  // commands that are running, each inside the former

std::function<void()>& ViestienNaytto() {
  static std::function<void()> nayta;
  return nayta;
}

std::function<void()>& KomennonJalki() {
  static std::function<void()> jalki;
  return jalki;
}

void NaytaKeskeytys(const std::string& paneeli, const std::string& teksti) {
  ViestitNyt().AsetaPaneeli(paneeli);
  Ilmoita(teksti, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
}

void SuoritaVartioituna(const std::function<void()>& komento) {
  const std::string paneeli = ViestitNyt().Paneeli();
  try {
    komento();
  } catch (const Virhe& virhe) {
    NaytaKeskeytys(paneeli, virhe.Kuvaus() + "\n" + virhe.Lahde());
  } catch (const std::exception& virhe) {
    NaytaKeskeytys(paneeli, Teksti(tekstit::kOhjelmassaTapahtuiVirhe) + "\n" + virhe.what());
  } catch (...) {
    NaytaKeskeytys(paneeli, Teksti(tekstit::kOhjelmassaTapahtuiVirhe));
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

void AsetaViestienNaytto(std::function<void()> nayta) { ViestienNaytto() = std::move(nayta); }

void NaytaOdottavatViestit() {
  if (ViestienNaytto()) ViestienNaytto()();
}
