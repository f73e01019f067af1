// SPDX-License-Identifier: GPL-3.0-or-later
// Attributes by name, against a hash map of names for the class, and resolved once, against a plain index.
#include <random>

#include "bench/Mittaukset.h"
#include "building/clsTilat.h"

namespace mittaus {

namespace {

constexpr int kKierroksia = 200;
constexpr double kNimellaTavoite = 0.6, kRatkaistunaTavoite = 1.2;

using Haku = double (*)(const clsTila&);
struct Attribuutti {
  std::string nimi;
  Haku haku;
};

template <auto Kentta>
double Hae(const clsTila& tila) {
  return tila.*Kentta;
}

/// The numbers of a space.
const std::vector<Attribuutti>& Attribuutit() {
  static const std::vector<Attribuutti> attribuutit{
      {"Kokonaistilavuus", Hae<&clsTila::Kokonaistilavuus>},
      {"BruttoAla", Hae<&clsTila::BruttoAla>},
      {"TilanHenkilomaara", Hae<&clsTila::TilanHenkilomaara>},
      {"TilanKayttoaikaHpA", Hae<&clsTila::TilanKayttoaikaHpA>},
      {"Sisalampotila", Hae<&clsTila::Sisalampotila>},
      {"PainovoimainenIVMaara", Hae<&clsTila::PainovoimainenIVMaara>},
      {"Vuotoilmanvaihto", Hae<&clsTila::Vuotoilmanvaihto>},
      {"Saatohyotysuhde", Hae<&clsTila::Saatohyotysuhde>},
  };
  return attribuutit;
}

struct Tila {
  Tila() {
    std::mt19937 arpa(1);
    for (const Jasen& jasen : clsTila::kLuokka.Jasenet()) hajautus.emplace(jasen.nimi, nullptr);
    for (const Attribuutti& a : Attribuutit()) hajautus.at(a.nimi) = a.haku;
    for (int i = 0; i < 256; ++i) {
      const Attribuutti& a = Attribuutit()[arpa() % Attribuutit().size()];
      nimet.push_back(a.nimi);
      indeksit.push_back(static_cast<std::size_t>(&a - Attribuutit().data()));
    }
    for (int i = 0; i < 100; ++i) {
      auto& tila = tilat.emplace_back(std::make_unique<clsTila>());
      tila->BruttoAla = 100 + i;
      tila->Kokonaistilavuus = 300 + i;
    }
  }
  std::vector<std::unique_ptr<clsTila>> tilat;
  std::vector<std::string> nimet;  // in random order
  std::vector<std::size_t> indeksit;
  std::unordered_map<std::string, Haku> hajautus;  // all names of the class
  double oma = 0, toinen = 0;
};

template <class F>
double Toista(double& summa, F&& kierros) {
  return Suoritinaika([&] {
    summa = 0;
    for (int i = 0; i < kKierroksia; ++i) summa += kierros();
    Kayta(summa);
  });
}

void Nimella(benchmark::State& state) {
  Tila tila;
  const Olio& olio = *tila.tilat.front();
  const clsTila& tyypitetty = *tila.tilat.front();
  MittaaParit(
      state, kNimellaTavoite,
      [&] {
        return Toista(tila.oma, [&] {
          double summa = 0;
          ArvoNakyma arvo;
          for (const std::string& nimi : tila.nimet) {
            olio.LuokanTiedot().Etsi(nimi)->nayta(olio, arvo);
            summa += arvo.Reaali();
          }
          return summa;
        });
      },
      [&] {
        return Toista(tila.toinen, [&] {
          double summa = 0;
          for (const std::string& nimi : tila.nimet) summa += tila.hajautus.find(nimi)->second(tyypitetty);
          return summa;
        });
      },
      [&] { VaadiSama(tila.oma, tila.toinen, 0, "sum"); });
}

/// Each attribute is resolved once and then read from every object.
void Ratkaistuna(benchmark::State& state) {
  Tila tila;
  MittaaParit(
      state, kRatkaistunaTavoite,
      [&] {
        return Toista(tila.oma, [&] {
          double summa = 0;
          ArvoNakyma arvo;
          for (const Attribuutti& a : Attribuutit()) {
            const Jasen& jasen = *clsTila::kLuokka.Etsi(a.nimi);
            for (const auto& olio : tila.tilat) {
              jasen.nayta(*olio, arvo);
              summa += arvo.Reaali();
            }
          }
          return summa;
        });
      },
      [&] {
        return Toista(tila.toinen, [&] {
          double summa = 0;
          for (std::size_t i = 0; i < Attribuutit().size(); ++i)
            for (const auto& olio : tila.tilat) summa += Attribuutit()[i].haku(*olio);
          return summa;
        });
      },
      [&] { VaadiSama(tila.oma, tila.toinen, 0, "sum"); });
}

}  // namespace

void IlmoitaJasenmittaukset() {
  IlmoitaParit("attribute by name, 51,200 times; std::unordered_map of names", Nimella);
  IlmoitaParit("attributes of 100 objects, resolved once; an index of getters", Ratkaistuna);
}

}  // namespace mittaus
