// SPDX-License-Identifier: GPL-3.0-or-later
// Copying a building and freeing the copy, against a plain copy of as many bytes as the copy holds.
#include <malloc.h>

#include <cstring>

#include "bench/Mittaukset.h"
#include "building/clsTilat.h"

namespace mittaus {

namespace {

/// Bytes in use: the model's objects, and texts and lists, which come from the heap.
std::size_t VarattujaTavuja() {
  const struct mallinfo2 tiedot = mallinfo2();
  return oliomuisti::Kaytossa() + tiedot.uordblks + tiedot.hblkhd;
}

/// Bytes that a copy of the building takes. The first copy makes room for objects that is then there for the second.
std::size_t KopionTavut(clsRakennus& rakennus) {
  rakennus.Kopioi();
  const std::size_t ennen = VarattujaTavuja();
  const auto kopio = rakennus.Kopioi();
  return VarattujaTavuja() - ennen;
}

}  // namespace

Vertailupari Kopiointipari(clsRakennus& rakennus) {
  struct Tila {
    explicit Tila(clsRakennus& r) : rakennus(r), lahde(KopionTavut(r), 'x'), kohde(lahde.size(), '\0') {}
    clsRakennus& rakennus;
    std::vector<char> lahde, kohde;
    int tiloja = 0;
    double ala = 0;
  };
  auto tila = std::make_shared<Tila>(rakennus);
  return {[tila] {
            std::unique_ptr<clsRakennus> kopio;
            double kesto = Suoritinaika([&] { kopio = tila->rakennus.Kopioi(); });
            tila->tiloja = kopio->Tilat.Count();
            tila->ala = kopio->Tilat.BruttoAlaYht();
            kesto += Suoritinaika([&] {
              kopio->Delete();
              kopio.reset();
            });
            return kesto;
          },
          [tila] {
            return Suoritinaika([&] {
              std::memcpy(tila->kohde.data(), tila->lahde.data(), tila->lahde.size());
              Kayta(tila->kohde[tila->kohde.size() / 2]);
            });
          },
          [tila] {
            if (tila->tiloja != tila->rakennus.Tilat.Count() || tila->kohde != tila->lahde)
              throw std::runtime_error("the copy differs");
            VaadiSama(tila->ala, tila->rakennus.Tilat.BruttoAlaYht(), 0, "area");
          }};
}

Vertailupari Kumouspari(clsRakennus& rakennus) {
  struct Tila {
    clsRakennus& rakennus;
    std::unique_ptr<clsRakennus> edellinen;  // the building as it was: its register is valid
    std::unique_ptr<clsRakennus> askel;
  };
  auto tila = std::make_shared<Tila>(Tila{rakennus, rakennus.Tilannekuva(), nullptr});
  tila->edellinen->PaivitaInstanssiIdLista();
  return {[tila] {
            tila->askel.reset();
            tila->rakennus.RekisteriVanheni();
            return Suoritinaika([&] { tila->askel = tila->rakennus.Tilannekuva(); });
          },
          [tila] {
            std::unique_ptr<clsRakennus> kopio;
            const double kesto = Suoritinaika([&] { kopio = tila->edellinen->Tilannekuva(); });
            Kayta(kopio->MuuLampo);
            return kesto;
          },
          [tila] {
            if (tila->askel->Sormenjalki() != tila->rakennus.Sormenjalki())
              throw std::runtime_error("the step differs from the object");
          }};
}

}  // namespace mittaus
