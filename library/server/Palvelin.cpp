// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/Palvelin.h"

#include <QApplication>
#include <algorithm>

#include "ui/Komento.h"

namespace {

constexpr std::chrono::seconds kOdotaEdellista{3};       // an ending server still holds the lock
constexpr std::chrono::seconds kEnsimmainenAsiakas{20};  // that started us may have died
constexpr std::chrono::milliseconds kSiivousvali{100};
constexpr std::chrono::seconds kTallennusvali{2};
constexpr std::chrono::seconds kTallennusaika{30};  // for what a program that has gone left unstored

}  // namespace

Palvelin::Palvelin(Kirjastopaikka paikka) : paikka_(std::move(paikka)) {
  siivous_.setSingleShot(true);
  connect(&kuuntelija_, &QLocalServer::newConnection, this, &Palvelin::OtaAsiakkaat);
  connect(&siivous_, &QTimer::timeout, this, &Palvelin::Siivoa);
  connect(&tallennus_, &QTimer::timeout, this, &Palvelin::YritaTallennuksia);
  tallennus_.start(kTallennusvali);
}

bool Palvelin::Kuuntele() {
  try {
    lukko_.emplace(paikka_.lukko, kOdotaEdellista);
  } catch (const std::exception&) {
    return false;
  }
  const QString nimi = QString::fromStdString(paikka_.pistoke);
  QLocalServer::removeServer(nimi);  // left by a server that was killed: we hold the lock
  kuuntelija_.setSocketOptions(QLocalServer::UserAccessOption);
  siivous_.start(kEnsimmainenAsiakas);
  return kuuntelija_.listen(nimi);
}

void Palvelin::OtaAsiakkaat() {
  while (QLocalSocket* pistoke = kuuntelija_.nextPendingConnection()) {
    asiakkaat_.push_back(std::make_unique<Asiakas>(pistoke));
    connect(
        pistoke, &QLocalSocket::disconnected, this, [this, asiakas = asiakkaat_.back().get()] { Poistui(*asiakas); },
        Qt::QueuedConnection);
  }
}

void Palvelin::Poistui(Asiakas& asiakas) {
  const auto it = std::ranges::find(asiakkaat_, &asiakas, &std::unique_ptr<Asiakas>::get);
  if (it == asiakkaat_.end()) return;
  if (asiakas.OnIkkuna()) poistuneet_.push_back({std::move(*it), QDeadlineTimer(kTallennusaika)});
  asiakkaat_.erase(it);
  // A program that is just connecting gets in; those that come and go don't put the cleaning off.
  if (!siivous_.isActive() || siivous_.remainingTimeAsDuration() > kSiivousvali) siivous_.start(kSiivousvali);
}

void Palvelin::Siivoa() {
  if (asiakkaat_.empty())
    if (QWidget* kysymys = QApplication::activeModalWidget()) kysymys->close();
  if (KomentoKaynnissa()) return siivous_.start(kSiivousvali);
  std::erase_if(poistuneet_, [](const Poistunut& p) { return p.asiakas->Yrita() || p.takaraja.hasExpired(); });
  if (!poistuneet_.empty()) return siivous_.start(kSiivousvali);
  if (!asiakkaat_.empty()) return;
  kuuntelija_.close();
  QApplication::quit();
}

void Palvelin::YritaTallennuksia() {
  if (KomentoKaynnissa()) return;
  SuoritaKomento([this] {
    for (const auto& asiakas : asiakkaat_) asiakas->Yrita();
  });
}
