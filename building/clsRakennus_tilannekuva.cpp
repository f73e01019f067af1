// SPDX-License-Identifier: GPL-3.0-or-later
// The whole object as one picture: what undo keeps, and what tells whether something has changed.
#include <functional>
#include <tuple>

#include "building/clsRakennus.h"
#include "kernel/Sormenjalki.h"
#include "kernel/Virhe.h"

namespace {

/// Every part but ProjektiAsetukset, which tells of the object's file.
constexpr auto kOsat = std::tuple{&clsRakennus::Saa,
                                  &clsRakennus::SahkonKulutusryhmat,
                                  &clsRakennus::VedenKulutusryhmat,
                                  &clsRakennus::KatselmoijienTiedot,
                                  &clsRakennus::Tariffit,
                                  &clsRakennus::Vesitariffit,
                                  &clsRakennus::Saastotoimenpiteet,
                                  &clsRakennus::SahkoTariffienVertailu,
                                  &clsRakennus::ToimenpiteidenJarjestelija,
                                  &clsRakennus::Perustiedot,
                                  &clsRakennus::Tilat,
                                  &clsRakennus::IVKoneet};

void KopioiSisalto(const clsRakennus& lahde, clsRakennus& kohde) {
  std::apply([&](auto... osa) { ((lahde.*osa).Kopioi(kohde.*osa), ...); }, kOsat);
  kohde.MuuLampo = lahde.MuuLampo;
  kohde.InstanssiId = lahde.InstanssiId;
}

}  // namespace

std::unique_ptr<clsRakennus> clsRakennus::Tilannekuva() try {
  if (!rekisteriVoimassa_) PaivitaInstanssiIdLista();  // no two objects of the picture answer to one identity
  auto kuva = std::make_unique<clsRakennus>();
  KopioiSisalto(*this, *kuva);
  return kuva;
} catch (...) {
  NostaVirhe("clsRakennus:Tilannekuva Method");
}

void clsRakennus::PalautaTilannekuva(const clsRakennus& kuva) try {
  KopioiSisalto(kuva, *this);
  Saa.AsetaSaaPaikkakunta(Perustiedot.LammTarveLukuPaikkakuntaID());
  PaivitaNakymat();
} catch (...) {
  NostaVirhe("clsRakennus:PalautaTilannekuva Method");
}

std::uint64_t clsRakennus::Sormenjalki() {
  std::uint64_t summa = std::hash<double>()(MuuLampo);
  std::apply([&](auto... osa) { ((summa = summa * 31 + ::Sormenjalki(this->*osa, TyyppiTiedot)), ...); }, kOsat);
  return summa;
}
