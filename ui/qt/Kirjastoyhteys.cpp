// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Kirjastoyhteys.h"

#include <QApplication>
#include <QLocalSocket>
#include <QPointer>
#include <QProcess>
#include <QRemoteObjectNode>

#include "library/Kirjastopaikka.h"
#include "library/Kirjastosanoma.h"
#include "rep_Rakennekirjastopalvelu_replica.h"
#include "tekstit/viestit.h"
#include "tekstit/virheet.h"
#include "ui/Komento.h"
#include "ui/Lomake.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"

namespace {

constexpr std::chrono::milliseconds kYritysvali{100};

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

}  // namespace

/// Closes the dialog when its holder goes.
class Kirjastoyhteys::Pyynto : public Rakennekirjastopyynto {
 public:
  Pyynto(Kirjastoyhteys& yhteys, int numero) : yhteys_(&yhteys), numero_(numero) {}
  ~Pyynto() override {
    if (yhteys_) yhteys_->Peru(numero_);
  }

 private:
  QPointer<Kirjastoyhteys> yhteys_;
  int numero_;
};

/// One connection, from the socket to the server's object. It isn't used again once it has broken. What it tells comes
/// by the event loop, so that it may be dropped by whoever is told.
class Kirjastoyhteys::Yhteys {
 public:
  Yhteys(Kirjastoyhteys& omistaja, int numero) : omistaja_(omistaja), numero_(numero) {
    const auto poikki = [&omistaja, numero] { omistaja.YhteysPoikki(numero); };
    QObject::connect(&pistoke_, &QLocalSocket::connected, &omistaja, [this] { Aloita(); });
    QObject::connect(&pistoke_, &QLocalSocket::disconnected, &omistaja, poikki, Qt::QueuedConnection);
    QObject::connect(&pistoke_, &QLocalSocket::errorOccurred, &omistaja, poikki, Qt::QueuedConnection);
  }
  ~Yhteys() { pistoke_.disconnect(&omistaja_); }

  int Numero() const { return numero_; }
  void Yhdista(const std::string& nimi) { pistoke_.connectToServer(Q(nimi)); }
  /// Nothing until the server's object is known.
  RakennekirjastopalveluReplica* Palvelu() const {
    return palvelu_ && palvelu_->isInitialized() ? palvelu_.get() : nullptr;
  }

 private:
  using Palvelu_ = RakennekirjastopalveluReplica;

  void Aloita() {
    solmu_.addClientSideConnection(&pistoke_);
    palvelu_.reset(solmu_.acquire<Palvelu_>());
    Kuuntele(&Palvelu_::initialized, [o = &omistaja_, n = numero_] { o->Yhdistetty(n); });
    Kuuntele(&Palvelu_::avattu, [o = &omistaja_](int numero, qint64 prosessi) { o->Kuittaa(numero, prosessi); });
    Kuuntele(&Palvelu_::rakenneValittu, [o = &omistaja_](int numero, const QString& sanoma) {
      o->Toimita([=] {
        const auto ratkaisu = RatkaisuSanomasta(sanoma.toStdString());
        if (ratkaisu) Nosta(o->Tapahtumat(numero).RakKirjasto_RakenneValittu, *ratkaisu);
      });
    });
    Kuuntele(&Palvelu_::materiaaliValittu, [o = &omistaja_](int numero, const QString& sanoma) {
      o->Toimita([=] {
        const auto materiaali = MateriaaliSanomasta(sanoma.toStdString());
        if (materiaali) Nosta(o->Tapahtumat(numero).RakKirjasto_MateriaaliValittu, *materiaali);
      });
    });
    Kuuntele(&Palvelu_::suodatettu, [o = &omistaja_](int numero, const QString& suodatin) {
      if (o->OnKesken(numero)) o->avaus_->suodatin = suodatin;
    });
    Kuuntele(&Palvelu_::suljettu, [o = &omistaja_](int numero) {
      o->Toimita([=] {
        if (o->OnKesken(numero)) o->Paata();
      });
    });
  }

  template <class Signaali, class Tee>
  void Kuuntele(Signaali signaali, Tee tee) {
    QObject::connect(palvelu_.get(), signaali, &omistaja_, tee, Qt::QueuedConnection);
  }

  Kirjastoyhteys& omistaja_;
  int numero_;
  QLocalSocket pistoke_;
  QRemoteObjectNode solmu_;
  std::unique_ptr<Palvelu_> palvelu_;
};

Kirjastoyhteys::Kirjastoyhteys(Kirjastoyhteystiedot tiedot) : tiedot_(std::move(tiedot)) {
  for (QTimer* ajastin : {&aikaraja_, &uusiYritys_, &purku_}) ajastin->setSingleShot(true);
  connect(&aikaraja_, &QTimer::timeout, this, &Kirjastoyhteys::EiVastannut);
  connect(&uusiYritys_, &QTimer::timeout, this, &Kirjastoyhteys::Yhdista);
  connect(&purku_, &QTimer::timeout, this, &Kirjastoyhteys::PuraJono);
  AsetaRakennekirjastolinkki(this);
}

Kirjastoyhteys::~Kirjastoyhteys() { AsetaRakennekirjastolinkki(nullptr); }

std::unique_ptr<Rakennekirjastopyynto> Kirjastoyhteys::ValitseRakenne(const std::string& rakennetyyppi,
                                                                      Rakennekirjastotapahtumat tapahtumat) {
  return std::make_unique<Pyynto>(*this, Avaa(false, true, rakennetyyppi, std::move(tapahtumat)));
}

std::unique_ptr<Rakennekirjastopyynto> Kirjastoyhteys::ValitseMateriaali(const std::string& nimi,
                                                                         Rakennekirjastotapahtumat tapahtumat) {
  return std::make_unique<Pyynto>(*this, Avaa(true, true, nimi, std::move(tapahtumat)));
}

void Kirjastoyhteys::NaytaRakennekirjasto() { Avaa(false, false, {}, {}); }

void Kirjastoyhteys::NaytaMateriaalikirjasto() { Avaa(true, false, {}, {}); }

// --- openings and their events --------------------------------------------------------------------------------------

int Kirjastoyhteys::Avaa(bool materiaalit, bool valinta, const std::string& alku,
                         Rakennekirjastotapahtumat tapahtumat) {
  if (avaus_) Paata();
  const int numero = ++avauksia_;
  avaus_ = std::make_unique<Avaus>(Avaus{numero, materiaalit, valinta, alku, std::move(tapahtumat)});
  aikaraja_.start(tiedot_.aikaraja);
  Laheta();
  return numero;
}

/// The holder has gone: the dialog closes and nothing is told of it.
void Kirjastoyhteys::Peru(int numero) {
  if (!OnKesken(numero)) return;
  if (yhteys_ && yhteys_->Palvelu()) yhteys_->Palvelu()->sulje(numero);
  avaus_.reset();
  aikaraja_.stop();
}

/// The opening has come to its end, and its listener is told.
void Kirjastoyhteys::Paata() {
  const auto paatetty = std::move(avaus_);
  aikaraja_.stop();
  Nosta(paatetty->tapahtumat.RakKirjasto_KantaDlgSuljettu);
}

void Kirjastoyhteys::Toimita(std::function<void()> tapahtuma) {
  jono_.push_back(std::move(tapahtuma));
  PuraJono();
}

void Kirjastoyhteys::PuraJono() {
  while (!jono_.empty()) {
    if (KomentoKaynnissa() && !QApplication::activeModalWidget()) return purku_.start(kYritysvali);
    const auto tapahtuma = std::move(jono_.front());
    jono_.pop_front();
    SuoritaKomento(tapahtuma);
  }
}

// --- the connection -------------------------------------------------------------------------------------------------

/// Sends the opening, or connects first.
void Kirjastoyhteys::Laheta() {
  if (!yhteys_) return uusiYritys_.start(0);
  if (!avaus_ || !yhteys_->Palvelu()) return;
  yhteys_->Palvelu()->avaa(avaus_->numero, avaus_->materiaalit, avaus_->valinta, Q(tiedot_.kayttajanKanta()),
                           Q(tiedot_.vakiokanta()), Q(avaus_->alku),
                           tiedot_.valmistumisvuosi ? tiedot_.valmistumisvuosi() : 0, avaus_->suodatin);
}

void Kirjastoyhteys::Yhdista() {
  if (yhteys_) return;
  SuoritaKomento([this] {
    const Kirjastopaikka paikka = PalvelimenPaikka(tiedot_.koti);
    yhteys_ = std::make_unique<Yhteys>(*this, ++yhteyksia_);
    yhteys_->Yhdista(paikka.pistoke);
  });
}

void Kirjastoyhteys::Yhdistetty(int yhteys) {
  if (!yhteys_ || yhteys_->Numero() != yhteys) return;
  kaynnistetty_ = false;
  Laheta();
}

/// The server died or there is none: while a dialog is wanted, it is started and tried again until the time is up. A
/// dialog that was open already gets that once.
void Kirjastoyhteys::YhteysPoikki(int yhteys) {
  if (!yhteys_ || yhteys_->Numero() != yhteys) return;
  yhteys_.reset();
  prosessi_ = 0;
  if (!avaus_) return;
  if (!aikaraja_.isActive()) {
    if (std::exchange(avaus_->uudelleen, true)) return EiVastannut();
    aikaraja_.start(tiedot_.aikaraja);
  }
  uusiYritys_.start(kYritysvali);
  if (!std::exchange(kaynnistetty_, true)) KaynnistaPalvelin();
}

/// The server goes on by itself when this program ends in the middle; it sees that its client has gone.
void Kirjastoyhteys::KaynnistaPalvelin() {
  QProcess palvelin;
  palvelin.setProgram(Q(tiedot_.ohjelma));
  palvelin.setArguments({QStringLiteral("--koti"), Q(tiedot_.koti)});
  palvelin.setStandardInputFile(QProcess::nullDevice());
  palvelin.setStandardOutputFile(QProcess::nullDevice());
  palvelin.setStandardErrorFile(QProcess::nullDevice());
  if (!palvelin.startDetached()) EiKaynnisty();
}

void Kirjastoyhteys::Kuittaa(int numero, qint64 prosessi) {
  prosessi_ = prosessi;
  if (OnKesken(numero)) aikaraja_.stop();
}

/// The opening ends without an answer, `kerro` telling why.
void Kirjastoyhteys::Luovu(std::function<void()> kerro) {
  aikaraja_.stop();
  yhteys_.reset();
  uusiYritys_.stop();
  kaynnistetty_ = false;
  prosessi_ = 0;
  Toimita([this, kerro = std::move(kerro), numero = avaus_ ? avaus_->numero : 0] {
    if (!OnKesken(numero)) return;
    kerro();
    Nosta(Tapahtumat(numero).RakKirjasto_TimeOut);
    if (OnKesken(numero)) Paata();
  });
}

void Kirjastoyhteys::EiVastannut() {
  Luovu([] { NaytaVirhe(virheet::kKirjastoEiVastannut); });
}

void Kirjastoyhteys::EiKaynnisty() {
  Luovu([ohjelma = tiedot_.ohjelma] {
    Ilmoita(Teksti(tekstit::kKirjastoEiKaynnisty) + "\n" + ohjelma, Teksti(tekstit::kVirhe), Vakavuus::Virhe);
  });
}

std::string Kirjastopalvelinohjelma() {
  const QString annettu = qEnvironmentVariable("LUMIVIRTA_KIRJASTOPALVELIN");
  return (annettu.isEmpty() ? QCoreApplication::applicationDirPath() + "/RakKirjSrv" : annettu).toStdString();
}
