// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Materiaalimuutokset.h"

#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmMateriaalimuutokset.h"

namespace {

constexpr const char* kUarvonKuvio = "0.00#";

struct Suure {
  float Materiaali::*luku;
  int nimi;
  const char* kuvio;
};
constexpr Suure kSuureet[] = {
    {&Materiaali::Lambda, tekstit::kLammonjohtavuusYksikoin, "0.0####"},
    {&Materiaali::Tiheys, tekstit::kTiheysYksikoin, "### ##0.##"},
    {&Materiaali::Ominaislampo, tekstit::kOminaislampoYksikoin, "0.0##"},
};

/// Adds the rows of one structure.
class Vertailu {
 public:
  Vertailu(Taulukko& rivit, const clsTila& tila, const clsRakenne& rakenne)
      : rivit_(rivit), tila_(tila), rakenne_(rakenne), nykyinen_(*rakenne.RakenneRatkaisu) {}

  void Vertaa(const Rakenneratkaisu& uusi) const {
    for (int i = 1; i <= nykyinen_.Kerrokset.Count(); ++i) {
      const clsRakennekerros &ennen = nykyinen_.Kerrokset.Item(i), &jalkeen = uusi.Kerrokset.Item(i);
      const std::string kerros = ennen.Nimi.empty() ? std::to_string(i) : ennen.Nimi;
      VertaaAineita(kerros, ennen.Materiaali, jalkeen.Materiaali);
      VertaaAineita(kerros, ennen.Lisamateriaali, jalkeen.Lisamateriaali);
    }
    if (rakenne_.LaskeU_arvoMateriaaleista) VertaaUarvoja(uusi);
  }

 private:
  void VertaaAineita(const std::string& kerros, const Materiaali& ennen, const Materiaali& jalkeen) const {
    for (const Suure& s : kSuureet)
      if (ennen.*s.luku != jalkeen.*s.luku)
        Lisaa(kerros, ennen.Nimi, s.nimi, Muotoile(ennen.*s.luku, s.kuvio), Muotoile(jalkeen.*s.luku, s.kuvio));
  }

  void VertaaUarvoja(const Rakenneratkaisu& uusi) const {
    const auto ennen = nykyinen_.LaskeU_arvo(), jalkeen = uusi.LaskeU_arvo();
    if (ennen && jalkeen && *ennen != *jalkeen)
      Lisaa({}, {}, tekstit::kLaskettuUArvoYksikoin, Muotoile(*ennen, kUarvonKuvio), Muotoile(*jalkeen, kUarvonKuvio));
  }

  void Lisaa(const std::string& kerros, const std::string& aine, int suure, std::string ennen,
             std::string jalkeen) const {
    rivit_.push_back({tila_.TilanNimi, rakenne_.NaytettavaNimi(), kerros, aine, Teksti(suure), std::move(ennen),
                      std::move(jalkeen)});
  }

  Taulukko& rivit_;
  const clsTila& tila_;
  const clsRakenne& rakenne_;
  const Rakenneratkaisu& nykyinen_;
};

}  // namespace

Taulukko Materiaalimuutokset(const clsTilat& tilat, Rakennetietokanta& kanta) try {
  Taulukko rivit;
  for (const clsTila& tila : tilat)
    for (const clsRakenne& rakenne : tila.Rakenteet) {
      if (!rakenne.RakenneRatkaisu) continue;
      Rakenneratkaisu uusi = *rakenne.RakenneRatkaisu;
      if (kanta.PaivitaMateriaalit(uusi)) Vertailu(rivit, tila, rakenne).Vertaa(uusi);
    }
  return rivit;
} catch (...) {
  NostaVirhe("Materiaalimuutokset:Materiaalimuutokset Function");
}

bool HyvaksyMateriaalimuutokset(Taulukko muutokset) {
  frmMateriaalimuutokset lomake;
  return lomake.Kysy(std::move(muutokset));
}
