// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QLocalSocket>
#include <QRemoteObjectHost>
#include <memory>

#include "library/server/Selain.h"
#include "rep_Rakennekirjastopalvelu_source.h"

/// One connected program: its requests, its window and what it is told. It has at most one window; a further opening
/// takes the place of the former.
class Asiakas : public RakennekirjastopalveluSource {
 public:
  /// Takes the socket of a connection that has been made.
  explicit Asiakas(QLocalSocket* pistoke);

  QLocalSocket& Pistoke() const { return *pistoke_; }
  bool OnIkkuna() const { return selain_ != nullptr; }
  bool Yrita() { return !selain_ || selain_->Yrita(); }

  void avaa(int pyynto, bool materiaalit, bool valinta, const QString& kayttajanKanta, const QString& vakiokanta,
            const QString& alku, int vuosi, const QString& suodatin) override;
  void sulje(int pyynto) override;

 private:
  std::unique_ptr<Selain> TeeSelain(int pyynto, bool materiaalit, Selaimenavaus avaus);
  /// Runs as a command once no other one runs: the window of a running one mustn't go.
  void KunVapaa(std::function<void()> tee);
  void Suljettu(int pyynto);

  std::unique_ptr<QLocalSocket> pistoke_;
  QRemoteObjectHost isanta_;
  std::unique_ptr<Selain> selain_;
  int pyynto_ = 0;
};
