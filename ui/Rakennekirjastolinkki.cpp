// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Rakennekirjastolinkki.h"

#include "tekstit/virheet.h"
#include "ui/Lomake.h"
#include "ui/Tekstivarasto.h"

namespace {

/// Stands in where there is no server: the batch program, tests.
class Puuttuva : public Rakennekirjastolinkki {
 public:
  std::unique_ptr<Rakennekirjastopyynto> ValitseRakenne(const std::string&,
                                                        Rakennekirjastotapahtumat tapahtumat) override {
    return EiVastaa(tapahtumat);
  }
  std::unique_ptr<Rakennekirjastopyynto> ValitseMateriaali(const std::string&,
                                                           Rakennekirjastotapahtumat tapahtumat) override {
    return EiVastaa(tapahtumat);
  }
  void NaytaRakennekirjasto() override { EiVastaa({}); }
  void NaytaMateriaalikirjasto() override { EiVastaa({}); }

 private:
  static std::unique_ptr<Rakennekirjastopyynto> EiVastaa(const Rakennekirjastotapahtumat& tapahtumat) {
    NaytaVirhe(virheet::kKirjastoEiVastannut);
    Nosta(tapahtumat.RakKirjasto_TimeOut);
    Nosta(tapahtumat.RakKirjasto_KantaDlgSuljettu);
    return std::make_unique<Rakennekirjastopyynto>();
  }
};

Rakennekirjastolinkki* nykyinen = nullptr;

}  // namespace

Rakennekirjastolinkki& RakennekirjastolinkkiNyt() {
  static Puuttuva puuttuva;
  return nykyinen ? *nykyinen : puuttuva;
}

void AsetaRakennekirjastolinkki(Rakennekirjastolinkki* linkki) { nykyinen = linkki; }
