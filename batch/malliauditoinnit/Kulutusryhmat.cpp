// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/malliauditoinnit/Kulutusryhmat.h"

#include <algorithm>
#include <stdexcept>

#include "building/clsRakennus.h"
#include "consumers/Kulutusluettelo.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"

namespace {

/// The row of the tree under which the groups of a branch of the catalogue hang.
Tunniste Otsikko(const std::string& haara) {
  static const std::map<std::string, const char*> kOtsikot{{"Valaistus", "sKeyValaistus"},
                                                           {"LVI", "sKeyLVISahko"},
                                                           {"Muu", "sKeyMuuSahko"},
                                                           {"Käyttövesi", "sKeyNormaaliVesi"},
                                                           {"Prosessivesi", "sKeyProsessivesi"}};
  return kOtsikot.at(haara);
}

template <class Luettelorivi>
const Luettelorivi& Etsi(const std::vector<Luettelorivi>& luettelo, const Rivi& rivi) {
  const auto kohta = std::ranges::find(luettelo, rivi.at("Rivi"), &Luettelorivi::Id);
  if (kohta == luettelo.end()) throw std::runtime_error(rivi.at("Tunnus") + ": luettelossa ei ole: " + rivi.at("Rivi"));
  return *kohta;
}

/// A cell in place of the catalogue's figure, if it holds one.
void Korvaa(const Rivi& rivi, const char* sarake, double& luku) {
  if (!rivi.at(sarake).empty()) luku = Luku(rivi, sarake);
}

void LisaaSahkoryhma(const Rivi& rivi, const Sahkolaite& laite, clsSahkonKulutusryhmat& ryhmat) {
  clsSahkonKulutusryhma& ryhma = ryhmat.Add(Tunniste::Uusi(clsSahkonKulutusryhma::kLuokka.NimiSana()));
  TaytaRyhma(laite, ryhma);
  ryhma.LaskentayksikkoNumber = Luku(rivi, "Yksikoita");
  Korvaa(rivi, "Arvo", ryhma.LaskentaperusteNumber);
  Korvaa(rivi, "Tunnit", ryhma.KayttoaikaHpD);
  Korvaa(rivi, "Vuorokaudet", ryhma.KayttoaikaDpA);
  ryhmat.AddListaItem(ryhma.sKey, Otsikko(laite.Haara), 0, ryhma.KulutusRyhma, ryhma.Vuosikulutus(), true);
}

void LisaaVesiryhma(const Rivi& rivi, const Vedenkaytto& kaytto, clsVedenKulutusryhmat& ryhmat) {
  const bool prosessi = kaytto.Haara == "Prosessivesi";
  clsVedenKulutusryhma& ryhma =
      ryhmat.Add(Tunniste::Uusi(clsVedenKulutusryhma::kLuokka.NimiSana()),
                 prosessi ? clsVedenKulutusryhma::Prosessivesi : clsVedenKulutusryhma::Kayttovesi);
  TaytaRyhma(kaytto, ryhma);
  ryhma.Laskentayksikko = Luku(rivi, "Yksikoita");
  Korvaa(rivi, "Arvo", ryhma.LaskentaperusteNumber);
  Korvaa(rivi, "Tunnit", ryhma.KayttokuvausKertaaD);
  Korvaa(rivi, "Vuorokaudet", ryhma.KayttokuvausDpA);
  ryhmat.AddListaItem(ryhma.sKey, Otsikko(kaytto.Haara), 0, ryhma.KulutusRyhma, true).OnProsessiVesi = prosessi;
}

void PoistaTyhjatVesiryhmat(clsVedenKulutusryhmat& ryhmat) {
  while (ryhmat.Count() > 0) {
    const Tunniste avain = ryhmat.Item(1).sKey;
    ryhmat.RemoveListaItem(avain);
    ryhmat.Remove(avain);
  }
}

}  // namespace

void AsetaKulutusryhmat(const std::string& tunnus, const std::vector<Rivi>& ryhmat, clsRakennus& rakennus) {
  const auto laitteet = LueSahkolaitteet(0);
  const auto kaytot = LueVedenkaytot(0);
  PoistaTyhjatVesiryhmat(rakennus.VedenKulutusryhmat);
  for (const Rivi& rivi : ryhmat) {
    if (rivi.at("Tunnus") != tunnus) continue;
    if (rivi.at("Laji") == "Sahko")
      LisaaSahkoryhma(rivi, Etsi(laitteet, rivi), rakennus.SahkonKulutusryhmat);
    else
      LisaaVesiryhma(rivi, Etsi(kaytot, rivi), rakennus.VedenKulutusryhmat);
  }
}
