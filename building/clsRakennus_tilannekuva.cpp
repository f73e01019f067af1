// SPDX-License-Identifier: GPL-3.0-or-later
// The whole object as one picture: what undo keeps, and what tells whether something has changed.
#include <functional>
#include <tuple>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Sormenjalki.h"
#include "kernel/Virhe.h"
#include "lifecycle/clsElinkaari.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/clsRaporttiasetukset.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "ventilation/clsIVKoneet.h"

namespace {

/// Every part but ProjektiAsetukset, which tells of the object's file.
auto KuvanOsat(const clsRakennus& r) {
  return std::tie(r.Saa, r.SahkonKulutusryhmat, r.VedenKulutusryhmat, r.KatselmoijienTiedot, r.Tariffit, r.Vesitariffit,
                  r.Saastotoimenpiteet, r.SahkoTariffienVertailu, r.ToimenpiteidenJarjestelija, r.Perustiedot, r.Tilat,
                  r.IVKoneet, r.Elinkaari, r.Raporttiasetukset);
}

void KopioiSisalto(const clsRakennus& lahde, clsRakennus& kohde) {
  std::apply(
      [&kohde](auto&... oma) {
        std::apply([&oma...](auto&... toisen) { (oma.Kopioi(toisen), ...); }, KuvanOsat(kohde));
      },
      KuvanOsat(lahde));
  lahde.Saa.KopioiTaulut(kohde.Saa);
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
  OtaKirjatuksi();
  PaivitaNakymat();
} catch (...) {
  NostaVirhe("clsRakennus:PalautaTilannekuva Method");
}

std::uint64_t clsRakennus::Sormenjalki() {
  std::uint64_t summa = std::hash<double>()(MuuLampo);
  std::apply([&](auto&... osa) { ((summa = summa * 31 + ::Sormenjalki(osa, TyyppiTiedot)), ...); }, KuvanOsat(*this));
  return summa;
}
