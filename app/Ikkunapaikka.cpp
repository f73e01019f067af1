// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Ikkunapaikka.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "kernel/Asetusvarasto.h"
#include "settings/Asetusavaimet.h"

namespace {

constexpr double kTwipsPikselissa = 15;
constexpr Avain kAvaimet[] = {Avain::MainLeft, Avain::MainTop, Avain::MainWidth, Avain::MainHeight};

int Pikseleina(Avain avain) { return static_cast<int>(std::lround(HaeKokonaisluku(avain) / kTwipsPikselissa)); }

std::string Twipseina(int pikselit) { return std::to_string(static_cast<int>(pikselit * kTwipsPikselissa)); }

bool OnNaytolla(const QRect& paikka) {
  return std::ranges::any_of(QGuiApplication::screens(),
                             [&](const QScreen* naytto) { return naytto->availableGeometry().intersects(paikka); });
}

}  // namespace

void PalautaPaikka(QWidget& ikkuna) {
  const QRect paikka(Pikseleina(Avain::MainLeft), Pikseleina(Avain::MainTop), Pikseleina(Avain::MainWidth),
                     Pikseleina(Avain::MainHeight));
  if (!OnNaytolla(paikka)) return;
  ikkuna.move(paikka.topLeft());
  ikkuna.resize(paikka.size());
}

void TallennaPaikka(const QWidget& ikkuna) {
  if (ikkuna.isMinimized()) return;
  const QRect paikka = ikkuna.isMaximized() ? ikkuna.normalGeometry() : QRect(ikkuna.pos(), ikkuna.size());
  const int luvut[] = {paikka.left(), paikka.top(), paikka.width(), paikka.height()};
  std::vector<Asetus> asetukset;
  for (std::size_t i = 0; i < std::size(kAvaimet); ++i) {
    const AsetusRivi& rivi = AsetuksenRivi(kAvaimet[i]);
    asetukset.push_back({std::string(rivi.osio), std::string(rivi.avain), Twipseina(luvut[i])});
  }
  TallennaAsetukset(asetukset);
}
