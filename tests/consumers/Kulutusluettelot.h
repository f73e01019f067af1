// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the lists of electricity and of water consumers share: a school, and what a person sees in a list.
#pragma once
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"

inline constexpr const char* kLista = "lvwRyhmat";
using Rivi = std::vector<std::string>;

class Kulutusluettelot : public RakennusTesti {
 protected:
  Kulutusluettelot() {
    AsetaTarkistuksenKello(nullptr);
    LuoKoulu();
    rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Sahko = 100;
    rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Vesi = 50;
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { askeleet.emplace_back(nimi); };
    ikkunat.KunNaytetaan("frmJakaumaGraafi", [this](Ikkunaton& l) {
      kaavio = l.Etsi("chtReport").Kaavio();
      l.KayttajaPainaa("cmdSulje");
    });
    Talleta();
  }
  void Talleta() {
    rakennus->Tallennettu = true;
    askeleet.clear();
  }
  void LisaaToimenpide(const Tunniste& kohde) {
    clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("toimenpide");
    toimenpide.Nimi = "Uudet valaisimet";
    toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin = kohde;
  }
  static std::vector<Rivi> Rivit(Ikkunaton& luettelo) { return luettelo.Etsi(kLista).Rivit(); }
  /// Numbers of the row of that name.
  static std::string Luvut(Ikkunaton& luettelo, const std::string& nimi) {
    std::string luvut;
    for (const Rivi& rivi : Rivit(luettelo))
      if (rivi[0] == nimi)
        for (std::size_t i = 1; i < rivi.size(); ++i) luvut += (i > 1 ? " | " : "") + rivi[i];
    return luvut;
  }
  /// Names of the rows under that one.
  static Rivi Alla(Ikkunaton& luettelo, const std::string& nimi) {
    const Luettelo& lista = luettelo.Etsi(kLista).Lista();
    Rivi nimet;
    for (int i = 0; i < lista.Maara(); ++i)
      if (lista.Solut()[static_cast<std::size_t>(i)][0] == nimi)
        for (const int lapsi : lista.Alemmat(i)) nimet.push_back(lista.Solut()[static_cast<std::size_t>(lapsi)][0]);
    return nimet;
  }
  static std::string Valittu(Ikkunaton& luettelo) {
    const Ohjain& lista = luettelo.Etsi(kLista);
    return lista.Rivit().at(static_cast<std::size_t>(lista.Indeksi()))[0];
  }

  std::vector<std::string> askeleet;
  Kaaviotiedot kaavio;
};
