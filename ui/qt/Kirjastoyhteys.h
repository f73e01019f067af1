// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>
#include <deque>
#include <memory>

#include "ui/Rakennekirjastolinkki.h"

/// How a program reaches its library server.
struct Kirjastoyhteystiedot {
  std::string koti;                             ///< data directory of the program, AppPath
  std::string ohjelma;                          ///< the server program
  std::function<std::string()> kayttajanKanta;  ///< databases, asked for at each opening
  std::function<std::string()> vakiokanta;
  std::chrono::milliseconds aikaraja = std::chrono::seconds(15);  ///< for an opening to be answered, a start included
  std::function<int()> valmistumisvuosi{};  ///< of the building at work, asked for at each opening; 0: not known
};

/// The link to the library server process. Starts the server when a dialog is asked for and none runs; when it dies
/// under an open dialog, it is started anew once and the dialog opens again with the conditions that it had. Events
/// come through SuoritaKomento; while a command is at work without waiting for the person they are held back. Makes
/// itself the present link for its life.
class Kirjastoyhteys : public QObject, public Rakennekirjastolinkki {
 public:
  explicit Kirjastoyhteys(Kirjastoyhteystiedot tiedot);
  ~Kirjastoyhteys() override;

  std::unique_ptr<Rakennekirjastopyynto> ValitseRakenne(const std::string& rakennetyyppi,
                                                        Rakennekirjastotapahtumat tapahtumat) override;
  std::unique_ptr<Rakennekirjastopyynto> ValitseMateriaali(const std::string& nimi,
                                                           Rakennekirjastotapahtumat tapahtumat) override;
  void NaytaRakennekirjasto() override;
  void NaytaMateriaalikirjasto() override;

  /// The server's process once it has answered, 0 when there is none.
  qint64 Prosessi() const { return prosessi_; }

 private:
  class Pyynto;
  class Yhteys;
  struct Avaus {
    int numero = 0;
    bool materiaalit = false;
    bool valinta = false;
    std::string alku;
    Rakennekirjastotapahtumat tapahtumat;
    bool uudelleen = false;  // opened again after the server died
    QString suodatin{};      // conditions of the window
  };

  int Avaa(bool materiaalit, bool valinta, const std::string& alku, Rakennekirjastotapahtumat tapahtumat);
  void Peru(int numero);
  bool OnKesken(int numero) const { return avaus_ && avaus_->numero == numero; }
  /// A copy: a listener may drop its request while it runs. None for an opening that has come to its end.
  Rakennekirjastotapahtumat Tapahtumat(int numero) const {
    return OnKesken(numero) ? avaus_->tapahtumat : Rakennekirjastotapahtumat();
  }
  void Toimita(std::function<void()> tapahtuma);
  void PuraJono();
  void Paata();

  void Yhdista();
  void KaynnistaPalvelin();
  void Yhdistetty(int yhteys);
  void YhteysPoikki(int yhteys);
  void Laheta();
  void Kuittaa(int numero, qint64 prosessi);
  void Luovu(std::function<void()> kerro);
  void EiVastannut();
  void EiKaynnisty();

  Kirjastoyhteystiedot tiedot_;
  std::unique_ptr<Avaus> avaus_;
  std::unique_ptr<Yhteys> yhteys_;
  std::deque<std::function<void()>> jono_;  // events that wait for a running command
  QTimer aikaraja_;
  QTimer uusiYritys_;
  QTimer purku_;
  bool kaynnistetty_ = false;  // the server, since the last connection
  int avauksia_ = 0;
  int yhteyksia_ = 0;
  qint64 prosessi_ = 0;
};

/// The server program: beside this one, or where the environment variable LUMIVIRTA_KIRJASTOPALVELIN says.
std::string Kirjastopalvelinohjelma();
