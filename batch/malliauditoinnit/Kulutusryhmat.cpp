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
const Luettelorivi& Etsi(const std::vector<Luettelorivi>& luettelo, const std::string& id) {
  const auto kohta = std::ranges::find(luettelo, id, &Luettelorivi::Id);
  if (kohta == luettelo.end()) throw std::runtime_error("luettelossa ei ole: " + id);
  return *kohta;
}

/// A cell in place of the catalogue's figure, if it holds one.
void Korvaa(const Rivi& rivi, const char* sarake, double& luku) {
  if (!rivi.at(sarake).empty()) luku = Luku(rivi, sarake);
}

void Tayta(const Rivi& rivi, const Sahkolaite& laite, clsSahkonKulutusryhma& ryhma) {
  TaytaRyhma(laite, ryhma);
  ryhma.LaskentayksikkoNumber = Luku(rivi, "Yksikoita");
  Korvaa(rivi, "Arvo", ryhma.LaskentaperusteNumber);
  Korvaa(rivi, "Tunnit", ryhma.KayttoaikaHpD);
  Korvaa(rivi, "Vuorokaudet", ryhma.KayttoaikaDpA);
}

void Tayta(const Rivi& rivi, const Vedenkaytto& kaytto, clsVedenKulutusryhma& ryhma) {
  TaytaRyhma(kaytto, ryhma);
  ryhma.Laskentayksikko = Luku(rivi, "Yksikoita");
  Korvaa(rivi, "Arvo", ryhma.LaskentaperusteNumber);
  Korvaa(rivi, "Tunnit", ryhma.KayttokuvausKertaaD);
  Korvaa(rivi, "Vuorokaudet", ryhma.KayttokuvausDpA);
}

/// The rows of a building that are of the kind, as groups in the order of the table.
template <class Luettelo, class Ryhmat>
void LisaaRyhmat(const std::string& tunnus, const char* laji, const std::vector<Rivi>& rivit, const Luettelo& luettelo,
                 Ryhmat& ryhmat) {
  for (const Rivi& rivi : rivit) {
    if (rivi.at("Tunnus") != tunnus || rivi.at("Laji") != laji) continue;
    const auto& luettelorivi = Etsi(luettelo, rivi.at("Rivi"));
    Tayta(rivi, luettelorivi, ryhmat.LisaaRyhma(Otsikko(luettelorivi.Haara), true));
  }
  ryhmat.PaivitaKulutusRyhmatJaLaitteet();
}

}  // namespace

void AsetaKulutusryhmat(const std::string& tunnus, const std::vector<Rivi>& ryhmat, clsRakennus& rakennus) {
  clsVedenKulutusryhmat& vesi = rakennus.VedenKulutusryhmat;
  while (vesi.Count() > 0) vesi.PoistaRivi(vesi.Item(1).sKey);
  LisaaRyhmat(tunnus, "Sahko", ryhmat, LueSahkolaitteet(0), rakennus.SahkonKulutusryhmat);
  LisaaRyhmat(tunnus, "Vesi", ryhmat, LueVedenkaytot(0), vesi);
}

void TaytaLuettelosta(const std::string& luettelorivi, Olio& ryhma) {
  if (auto* sahko = dynamic_cast<clsSahkonKulutusryhma*>(&ryhma))
    TaytaRyhma(Etsi(LueSahkolaitteet(0), luettelorivi), *sahko);
  else
    TaytaRyhma(Etsi(LueVedenkaytot(0), luettelorivi), dynamic_cast<clsVedenKulutusryhma&>(ryhma));
}
