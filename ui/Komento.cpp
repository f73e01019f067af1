// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Komento.h"

#include <exception>
#include <string>

#include "kernel/Virhe.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr int kVirheenOtsikko = 9100;

std::function<void()>& Loppu() {
  static std::function<void()> loppu;
  return loppu;
}

void NaytaKeskeytys(const std::string& paneeli, const std::string& teksti) {
  ViestitNyt().AsetaPaneeli(paneeli);
  Ilmoita(teksti, Teksti(kVirheenOtsikko), Vakavuus::Virhe);
}

void SuoritaVartioituna(const std::function<void()>& komento) {
  const std::string paneeli = ViestitNyt().Paneeli();
  try {
    komento();
  } catch (const Virhe& virhe) {
    NaytaKeskeytys(paneeli, virhe.Kuvaus() + "\n" + virhe.Lahde());
  } catch (const std::exception& virhe) {
    NaytaKeskeytys(paneeli, Teksti(9999) + "\n" + virhe.what());
  } catch (...) {
    NaytaKeskeytys(paneeli, Teksti(9999));
  }
}

}  // namespace

void SuoritaKomento(const std::function<void()>& komento) {
  SuoritaVartioituna(komento);
  if (Loppu()) Loppu()();
}

void AsetaKomennonLoppu(std::function<void()> loppu) { Loppu() = std::move(loppu); }
