// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Selain.h"

#include <QDesktopServices>
#include <QUrl>

#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr const char* kTyhjaSivu = "about:blank";

bool OnVerkkosivu(const QUrl& sivu) {
  return sivu.isValid() && !sivu.host().isEmpty() && (sivu.scheme() == u"https" || sivu.scheme() == u"http");
}

void Kerro(const std::string& teksti) { Ilmoita(teksti, Teksti(tekstit::kHuomautus), Vakavuus::Varoitus); }

}  // namespace

void NaytaWWW(const std::string& osoite) {
  if (osoite.empty() || osoite == kTyhjaSivu) return Kerro(Teksti(tekstit::kOsoitePuuttuu));
  const QUrl sivu = QUrl::fromUserInput(QString::fromStdString(osoite));
  if (!OnVerkkosivu(sivu)) return Kerro(Teksti(tekstit::kOsoiteEiKelpaa) + " " + osoite);
  if (!QDesktopServices::openUrl(sivu)) Kerro(Teksti(tekstit::kSelaintaEiVoituAvata) + " " + osoite);
}
