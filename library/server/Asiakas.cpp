// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Asiakas.h"

#include <QCoreApplication>
#include <QTimer>

#include "library/Kirjastosanoma.h"
#include "library/server/Materiaaliselain.h"
#include "library/server/Rakenneselain.h"
#include "ui/Komento.h"

namespace {

constexpr std::chrono::milliseconds kUusiYritys{50};

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

}  // namespace

Asiakas::Asiakas(QLocalSocket* pistoke) : pistoke_(pistoke) {
  pistoke_->setParent(nullptr);
  isanta_.addHostSideConnection(pistoke);
  isanta_.enableRemoting(this);
}

void Asiakas::KunVapaa(std::function<void()> tee) {
  if (KomentoKaynnissa())
    QTimer::singleShot(kUusiYritys, this, [this, tee = std::move(tee)] { KunVapaa(tee); });
  else
    SuoritaKomento(tee);
}

void Asiakas::avaa(int pyynto, bool materiaalit, bool valinta, const QString& kayttajanKanta, const QString& vakiokanta,
                   const QString& alku, int vuosi, const QString& suodatin) {
  Q_EMIT avattu(pyynto, QCoreApplication::applicationPid());
  pyynto_ = pyynto;
  const Kirjastot kirjastot(kayttajanKanta.toStdString(), vakiokanta.toStdString());
  const Selaimenavaus avaus{kirjastot,
                            valinta,
                            alku.toStdString(),
                            [=, this] { Suljettu(pyynto); },
                            vuosi,
                            suodatin.toStdString(),
                            [=, this](const std::string& ehdot) { Q_EMIT suodatettu(pyynto, Q(ehdot)); }};
  KunVapaa([=, this] {
    if (pyynto_ != pyynto) return;  // closed meanwhile, or another one came
    selain_ = TeeSelain(pyynto, materiaalit, avaus);
    selain_->Nayta();
  });
}

std::unique_ptr<Selain> Asiakas::TeeSelain(int pyynto, bool materiaalit, Selaimenavaus avaus) {
  if (materiaalit)
    return std::make_unique<Materiaaliselain>(std::move(avaus), [=, this](const Materiaali& materiaali) {
      Q_EMIT materiaaliValittu(pyynto, Q(Sanomaksi(materiaali)));
    });
  return std::make_unique<Rakenneselain>(std::move(avaus), [=, this](const Rakenneratkaisu& ratkaisu) {
    Q_EMIT rakenneValittu(pyynto, Q(Sanomaksi(ratkaisu)));
  });
}

/// Told by the window itself, so it goes a moment later.
void Asiakas::Suljettu(int pyynto) {
  Q_EMIT suljettu(pyynto);
  if (pyynto_ == pyynto) pyynto_ = 0;
  KunVapaa([this] {
    if (pyynto_ == 0) selain_.reset();
  });
}

void Asiakas::sulje(int pyynto) {
  if (pyynto_ != pyynto) return;
  pyynto_ = 0;
  KunVapaa([this] {
    if (pyynto_ == 0) selain_.reset();
  });
}
