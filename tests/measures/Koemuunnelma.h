// SPDX-License-Identifier: GPL-3.0-or-later
// A school of three spaces with machines, consumer groups and supplies, and variations of it.
#pragma once
#include <bit>
#include <sstream>

#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "supply/clsTariffit.h"
#include "tests/tuki/Arpa.h"
#include "tests/ventilation/Koekone.h"

/// Visits the object and all that it holds, of whatever class.
template <class F>
void Kierra(Olio& olio, F&& kay) {
  kay(olio);
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana())
    for (int i = 1; i <= kokoelma->Count(); ++i) Kierra(kokoelma->Pohja(i), kay);
  if (KokoelmaPohja* rivit = olio.ListaItemeina())
    for (int i = 1; i <= rivit->Count(); ++i) Kierra(rivit->Pohja(i), kay);
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet())
    if (Olio* lapsi = jasen.OnOlio() ? jasen.olio(olio) : nullptr) Kierra(*lapsi, kay);
}

/// Every field of the tree with all its bits, and where each object lies.
inline std::string Kuva(Olio& juuri) {
  std::ostringstream kuva;
  Kierra(juuri, [&kuva](Olio& olio) {
    kuva << &olio << ' ' << olio.InstanssiId.Teksti() << '\n';
    for (const Jasen& jasen : olio.LuokanTiedot().Jasenet()) {
      if (jasen.OnOlio()) continue;
      std::visit(
          [&kuva](const auto& arvo) {
            using T = std::remove_cvref_t<decltype(arvo)>;
            if constexpr (std::is_same_v<T, double>)
              kuva << std::bit_cast<std::uint64_t>(arvo);
            else if constexpr (std::is_same_v<T, float>)
              kuva << std::bit_cast<std::uint32_t>(arvo);
            else if constexpr (std::is_same_v<T, Kellonaika>)
              kuva << arvo.minuutit;
            else if constexpr (std::is_same_v<T, Tunniste>)
              kuva << arvo.Teksti();
            else
              kuva << arvo;
          },
          jasen.ota(olio));
      kuva << '\n';
    }
  });
  return kuva.str();
}

class Muunneltava : public KoneTesti {
 protected:
  Muunneltava() {
    LuoKoulu();
    for (int i = 0; i < 2; ++i) LisaaRakenne(LisaaTila(900), Rakennelaji::Ulkoseina, 80, 0.4 + i);
    for (const int tila : {1, 2, 2}) {
      clsIVKone& kone = LisaaKone(rakennus->Tilat.Item(tila).sKey);
      kone.LtoHyotysuhde = 40;
      kone.PuhaltimienSahkonKulutus.TuloSahkoTeho11 = 3;
      Kayta(kone, Toimistoajat());
    }
    for (const int tila : {0, 1, 2}) {
      clsSahkonKulutusryhma& ryhma = rakennus->SahkonKulutusryhmat.Add("sKeyRyhma" + std::to_string(tila));
      if (tila) ryhma.LiittyyTilaansKey = rakennus->Tilat.Item(tila).sKey;
      ryhma.EnergiaHyodynnetaanLammityksessa = true;
      ryhma.LaskentaperusteNumber = ryhma.LaskentayksikkoNumber = ryhma.KayttoaikaHpD = ryhma.KayttoaikaDpA = 20;
    }
    rakennus->Perustiedot.LammonHankinta.Energiamuodot.Add("sKeyMuoto").Hyotysuhde = 80;
    rakennus->PaivitaInstanssiIdLista();
  }

  static clsMuuttunutAttribuutti& Lisaa(clsMuuttuneetAttribuutit& lista, const Olio& olio, std::string_view nimi,
                                        Laji laji, double arvo, std::string teksti = {}) {
    lista.Lisaa({nimi, olio.LuokanNimi(), laji, olio.InstanssiId, 0, arvo, {}, std::move(teksti)});
    return lista.Item(lista.Count());
  }
  /// The model without measures and what else lies beside it.
  std::string MallinKuva() const {
    clsRakennus& r = *rakennus;
    return Kuva(r.Tilat) + Kuva(r.IVKoneet) + Kuva(r.SahkonKulutusryhmat) + Kuva(r.VedenKulutusryhmat) +
           Kuva(r.Perustiedot);
  }
};
