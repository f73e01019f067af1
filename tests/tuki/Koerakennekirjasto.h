// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "library/Rakenneratkaisu.h"
#include "ui/Rakennekirjastolinkki.h"

/// The library server's place in a test without processes: remembers what was opened, and tells what the test lets the
/// person do.
class Koerakennekirjasto : public Rakennekirjastolinkki {
 public:
  Koerakennekirjasto() { AsetaRakennekirjastolinkki(this); }
  ~Koerakennekirjasto() override { AsetaRakennekirjastolinkki(nullptr); }

  /// The dialog is open for someone, with what it began at.
  bool Auki() const { return static_cast<bool>(tapahtumat_); }
  const std::string& Alku() const { return alku_; }

  void Valitse(const Rakenneratkaisu& ratkaisu) {
    Kerro(&Rakennekirjastotapahtumat::RakKirjasto_RakenneValittu, ratkaisu);
    Sulje();
  }
  void Valitse(const Materiaali& materiaali) {
    Kerro(&Rakennekirjastotapahtumat::RakKirjasto_MateriaaliValittu, materiaali);
    Sulje();
  }
  void EiVastaa() {
    Kerro(&Rakennekirjastotapahtumat::RakKirjasto_TimeOut);
    Sulje();
  }
  void Sulje() {
    const auto paatetty = std::move(tapahtumat_);
    tapahtumat_.reset();
    if (paatetty && paatetty->RakKirjasto_KantaDlgSuljettu) paatetty->RakKirjasto_KantaDlgSuljettu();
  }

  std::unique_ptr<Rakennekirjastopyynto> ValitseRakenne(const std::string& rakennetyyppi,
                                                        Rakennekirjastotapahtumat tapahtumat) override {
    return Avaa(rakennetyyppi, std::move(tapahtumat));
  }
  std::unique_ptr<Rakennekirjastopyynto> ValitseMateriaali(const std::string& nimi,
                                                           Rakennekirjastotapahtumat tapahtumat) override {
    return Avaa(nimi, std::move(tapahtumat));
  }
  void NaytaRakennekirjasto() override {}
  void NaytaMateriaalikirjasto() override {}

 private:
  struct Pyynto : Rakennekirjastopyynto {
    Pyynto(Koerakennekirjasto& linkki, int numero) : linkki_(linkki), numero_(numero) {}
    ~Pyynto() override {
      if (linkki_.numero_ == numero_) linkki_.tapahtumat_.reset();
    }
    Koerakennekirjasto& linkki_;
    int numero_;
  };

  std::unique_ptr<Rakennekirjastopyynto> Avaa(const std::string& alku, Rakennekirjastotapahtumat tapahtumat) {
    Sulje();
    alku_ = alku;
    tapahtumat_ = std::move(tapahtumat);
    return std::make_unique<Pyynto>(*this, ++numero_);
  }
  template <class F, class... A>
  void Kerro(F Rakennekirjastotapahtumat::*tapahtuma, const A&... arvot) {
    const F kerro = tapahtumat_ ? (*tapahtumat_).*tapahtuma : F();  // a copy: the listener may drop its request
    if (kerro) kerro(arvot...);
  }

  std::optional<Rakennekirjastotapahtumat> tapahtumat_;
  std::string alku_;
  int numero_ = 0;
};
