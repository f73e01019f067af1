// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Selain.h"

#include <QDesktopServices>
#include <QUrl>

#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr int kOsoitettaEiOle = 2912, kOsoiteEiKelpaa = 2913, kSelaintaEiOle = 2914, kHuomautus = 9101;
constexpr const char* kTyhjaSivu = "about:blank";

bool OnVerkkosivu(const QUrl& sivu) {
  return sivu.isValid() && !sivu.host().isEmpty() && (sivu.scheme() == u"https" || sivu.scheme() == u"http");
}

void Kerro(const std::string& teksti) { Ilmoita(teksti, Teksti(kHuomautus), Vakavuus::Varoitus); }

}  // namespace

void NaytaWWW(const std::string& osoite) {
  if (osoite.empty() || osoite == kTyhjaSivu) return Kerro(Teksti(kOsoitettaEiOle));
  const QUrl sivu = QUrl::fromUserInput(QString::fromStdString(osoite));
  if (!OnVerkkosivu(sivu)) return Kerro(Teksti(kOsoiteEiKelpaa) + " " + osoite);
  if (!QDesktopServices::openUrl(sivu)) Kerro(Teksti(kSelaintaEiOle) + " " + osoite);
}
