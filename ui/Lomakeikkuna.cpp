// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lomakeikkuna.h"

#include <algorithm>
#include <utility>

#include "kernel/Kirjainkoko.h"
#include "ui/Komento.h"

namespace {

Lomakesovitin& Sovitin() {
  static Lomakesovitin sovitin;
  return sovitin;
}

}  // namespace

Lomakeikkuna::~Lomakeikkuna() = default;

Ohjain* Lomakeikkuna::Loyda(std::string_view nimi) const {
  for (const auto& ohjain : ohjaimet_)
    if (SamaNimi(ohjain->Nimi(), nimi)) return ohjain.get();
  return nullptr;
}

Ohjain& Lomakeikkuna::Etsi(std::string_view nimi) const {
  if (Ohjain* ohjain = Loyda(nimi)) return *ohjain;
  throw TuntematonOhjain("lomakkeella ei ole ohjainta " + std::string(nimi));
}

bool Lomakeikkuna::Nakyvissa(const Ohjain& ohjain) const {
  if (!ohjain.Nakyva()) return false;
  for (const auto& muu : ohjaimet_) {
    if (SamaNimi(muu->Nimi(), ohjain.Sailio())) return Nakyvissa(*muu);
    if (muu->Tyyppi() != Ohjaintyyppi::TabStrip) continue;
    const auto sivu = std::ranges::find(muu->Osat(), ohjain.Sailio(), &Osa::nimi);
    if (sivu != muu->Osat().end()) return sivu - muu->Osat().begin() == muu->Indeksi() && Nakyvissa(*muu);
  }
  return true;
}

Ohjain* Lomakeikkuna::Kaytettavissa(std::initializer_list<std::string_view> napit) const {
  for (const std::string_view nimi : napit)
    if (Ohjain* nappi = Loyda(nimi); nappi && nappi->Nakyva()) return nappi;
  return nullptr;
}

void Lomakeikkuna::KayttajaHyvaksyy() {
  Ohjain* nappi = Kaytettavissa({"cmdOk", "cmdJatka", "cmdSulje"});
  if (nappi && nappi->Kaytossa()) nappi->KayttajaPainaa();
}

void Lomakeikkuna::KayttajaPeruuttaa() {
  Ohjain* nappi = Kaytettavissa({"cmdPeruuta", "cmdSulje"});
  if (nappi && nappi->Kaytossa()) nappi->KayttajaPainaa();
  if (!nappi && Suljettu) SuoritaKomento(Suljettu);
}

void Lomakeikkuna::KayttajaTulostaa() {
  Ohjain* nappi = Kaytettavissa({"cmdTulosta"});
  if (nappi && nappi->Kaytossa()) return nappi->KayttajaPainaa();
  if (!nappi && Tulostettava) SuoritaKomento(Tulostettava);
}

void AsetaLomakesovitin(Lomakesovitin sovitin) { Sovitin() = std::move(sovitin); }

std::unique_ptr<Lomakeikkuna> TeeLomakeikkuna(const std::string& nimi) {
  if (!Sovitin()) throw std::logic_error("lomakkeille ei ole asetettu sovitinta: " + nimi);
  return Sovitin()(nimi);
}
