// SPDX-License-Identifier: GPL-3.0-or-later
// Saving against a plain transaction of the same rows, opening against plain scans. Both sides work in one folder.
#include <filesystem>

#include "bench/Mittaukset.h"
#include "bench/Vertailukanta.h"
#include "building/Yhteiset.h"
#include "building/clsTilat.h"

namespace mittaus {

namespace {

std::string UusiTiedosto(const char* mika) {
  static int numero = 0;
  return Mittauskansio() + mika + std::to_string(++numero) + ".lvt";
}

void VaadiTallennus(clsRakennus& rakennus, const std::string& tiedosto) {
  if (!rakennus.Tallenna(tiedosto)) throw std::runtime_error("the save failed: " + tiedosto);
}

}  // namespace

Vertailupari Tallennuspari(clsRakennus& rakennus) {
  struct Tila {
    explicit Tila(clsRakennus& r) : rakennus(r) { VaadiTallennus(r, oma); }
    clsRakennus& rakennus;
    std::string oma = UusiTiedosto("oma"), toinen = UusiTiedosto("vertailu");
    Vertailukanta rivit{(VaadiTallennus(rakennus, oma), oma)};
    std::uint64_t tarkiste = rivit.Tarkiste();
  };
  auto tila = std::make_shared<Tila>(rakennus);
  return {[tila] { return Kesto([&] { VaadiTallennus(tila->rakennus, tila->oma); }); },
          [tila] {
            std::filesystem::remove(tila->toinen);
            return Kesto([&] { tila->rivit.Kirjoita(tila->toinen); });
          },
          [tila] {
            if (Vertailukanta(tila->oma).Tarkiste() != tila->tarkiste ||
                Vertailukanta(tila->toinen).Tarkiste() != tila->tarkiste)
              throw std::runtime_error("the saved rows differ");
          }};
}

Vertailupari Avauspari(clsRakennus& rakennus) {
  struct Tila {
    explicit Tila(clsRakennus& r)
        : tiedosto(UusiTiedosto("avattava")), olioita(Olioita(r)), ala(r.Tilat.BruttoAlaYht()) {
      VaadiTallennus(r, tiedosto);
      riveja = Vertailukanta(tiedosto).Riveja();
    }
    std::string tiedosto;
    int olioita, riveja = 0;
    double ala;
    std::unique_ptr<clsRakennus> avattu;
    std::unique_ptr<Selaus> selattu;
  };
  auto tila = std::make_shared<Tila>(rakennus);
  clsRakennus* globaali = &rakennus;
  return {[tila, globaali] {
            tila->avattu.reset();
            const double kesto = Suoritinaika([&] {
              tila->avattu = std::make_unique<clsRakennus>();
              AsetaGlobaaliRakennus(tila->avattu.get());
              tila->avattu->Hae(tila->tiedosto);
            });
            AsetaGlobaaliRakennus(globaali);
            return kesto;
          },
          [tila] {
            tila->selattu.reset();
            return Suoritinaika([&] { tila->selattu = std::make_unique<Selaus>(tila->tiedosto); });
          },
          [tila] {
            if (Olioita(*tila->avattu) != tila->olioita || tila->selattu->Riveja() != tila->riveja)
              throw std::runtime_error("the opened building differs");
            VaadiSama(tila->avattu->Tilat.BruttoAlaYht(), tila->ala, 0, "area");
          }};
}

}  // namespace mittaus
