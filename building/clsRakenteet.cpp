// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsRakenteet.h"

#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Virhe.h"

namespace {
constexpr Jasen kJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId")};
}

namespace {

/// Fetches the solutions and layers that the losses are computed from: they lie all over the memory, and waiting for
/// one after the other would take most of the time. (noipa: the compiler would take a function that only fetches for
/// one without effect and drop it.)
[[gnu::noipa]] void Esihae(const clsRakenteet& rakenteet) noexcept {
  for (const clsRakenne& rakenne : rakenteet)
    if (rakenne.RakenneRatkaisu) __builtin_prefetch(&rakenne.RakenneRatkaisu->Kerrokset);
  for (const clsRakenne& rakenne : rakenteet)
    if (rakenne.LaskeU_arvoMateriaaleista && rakenne.RakenneRatkaisu)
      for (const clsRakennekerros& kerros : rakenne.RakenneRatkaisu->Kerrokset) __builtin_prefetch(&kerros.Paksuus);
}

}  // namespace

const Luokka clsRakenteet::kLuokka{"clsRakenteet", kJasenet};

double clsRakenteet::LampoHaviot(double Tsisa, int kuukausi) const try {
  double summa = 0;
  for (const clsRakenne& rakenne : *this) summa += rakenne.LampoHaviot(Tsisa, kuukausi);
  return summa;
} catch (...) {
  NostaVirhe("clsRakenteet:LampoHaviot Method");
}

Kuukausitaulu clsRakenteet::LampoHaviot(double Tsisa) const try {
  Kuukausitaulu summa{};
  Esihae(*this);
  const Kuukausitaulu& ulkolampotilat = Rakennus().Saa.Keskilampotilat();
  for (const clsRakenne& rakenne : *this) rakenne.LisaaLampoHaviot(Tsisa, ulkolampotilat, summa);
  return summa;
} catch (...) {
  NostaVirhe("clsRakenteet:LampoHaviot Method");
}

void clsRakenteet::PaivitaRakenteetVakiokannasta(Rakennetietokanta& kanta) {
  for (clsRakenne& rakenne : *this) rakenne.PaivitaMateriaalitVakiokannasta(kanta);
}

double clsRakenteet::Ala(std::int32_t tyyppi) const {
  double ala = 0;
  for (const clsRakenne& rakenne : *this)
    if (rakenne.Rakennetyyppi == tyyppi) ala += rakenne.PintaAla;
  return ala;
}
