// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the sample audits: project files of invented, typical Finnish buildings, by the program's own generator.
// Arguments: the table of the buildings (data/malliauditoinnit.csv) and the folder of the project files.
#include <filesystem>
#include <iostream>
#include <map>
#include <sstream>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "kernel/Luvut.h"
#include "kernel/Tekstitiedosto.h"
#include "kernel/Virhe.h"
#include "ui/KerataanViestit.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Tekstivarasto.h"

namespace {

using Rivi = std::map<std::string, std::string>;

constexpr std::int32_t kMuuKayttoaika = 4;

std::vector<std::string> Kentat(const std::string& rivi) {
  std::vector<std::string> kentat;
  std::istringstream lahde(rivi);
  for (std::string kentta; std::getline(lahde, kentta, ',');) kentat.push_back(kentta);
  return kentat;
}

std::vector<Rivi> LueTaulukko(const std::string& polku) {
  const auto rivit = LueRivit(polku);
  const auto otsikot = Kentat(rivit.at(0));
  std::vector<Rivi> taulukko;
  for (std::size_t i = 1; i < rivit.size(); ++i) {
    const auto kentat = Kentat(rivit[i]);
    Rivi& rivi = taulukko.emplace_back();
    for (std::size_t k = 0; k < otsikot.size(); ++k) rivi[otsikot[k]] = kentat.at(k);
  }
  return taulukko;
}

double Luku(const Rivi& rivi, const std::string& sarake) {
  const auto luku = LueLuku(rivi.at(sarake));
  if (!luku) throw std::runtime_error(rivi.at("Tunnus") + ", " + sarake + ": ei ole luku");
  return *luku;
}

std::int32_t Kokonaisluku(const Rivi& rivi, const std::string& sarake) {
  return PyoristaKokonaisluvuksi(Luku(rivi, sarake));
}

std::int16_t Kayttotarkoitusindeksi(int koodi) {
  const auto& koodit = clsRakennus::KayttoTarkoitusKoodit;
  const auto kohta = std::find(koodit.begin(), koodit.end(), koodi);
  if (kohta == koodit.end()) throw std::runtime_error("tuntematon käyttötarkoituskoodi " + std::to_string(koodi));
  return static_cast<std::int16_t>(kohta - koodit.begin());
}

void TaytaKulutukset(const Rivi& rivi, clsToteutuneetKulutukset& kulutukset) {
  kulutukset.KulutusTietojenViimVuosi = Kokonaisluku(rivi, "Vuosi1");
  for (int i = 1; i <= 3; ++i) {
    const std::string n = std::to_string(i);
    clsToteutunutKulutus& vuosi = *kulutukset.Vuosi(i);
    vuosi.LammTarveLuku = Luku(rivi, "LammTarveLuku" + n);
    vuosi.Lampo = Luku(rivi, "Lampo" + n);
    vuosi.Sahko = Luku(rivi, "Sahko" + n);
    vuosi.Vesi = Luku(rivi, "Vesi" + n);
  }
}

void TaytaPerustiedot(const Rivi& rivi, clsPerustiedot& tiedot) {
  AlustaPerustiedot(tiedot);
  AlustaToteutuneetKulutukset(tiedot.ToteutuneetKulutukset);
  tiedot.KohteenNimi = rivi.at("Nimi");
  tiedot.KayttoTarkoitusID = Kayttotarkoitusindeksi(Kokonaisluku(rivi, "KayttotarkoitusKoodi"));
  tiedot.Kayttotarkoitus =
      Valintalista("frmPerustiedot", "cmbKayttotarkoitus").at(static_cast<std::size_t>(tiedot.KayttoTarkoitusID));
  tiedot.ValmistumisVuosi = Kokonaisluku(rivi, "ValmistumisVuosi");
  tiedot.BruttoAla = Luku(rivi, "BruttoAla");
  tiedot.Kokonaistilavuus = Luku(rivi, "Kokonaistilavuus");
  tiedot.KerrostenLukumaara = Luku(rivi, "KerrostenLukumaara");
  tiedot.KohteenHenkiloMaara = Luku(rivi, "KohteenHenkiloMaara");
  tiedot.LammTarveLukuPaikkakuntaID(Kokonaisluku(rivi, "PaikkakuntaID"));
  tiedot.LammTarveLukuPaikkakunta = Valintalista("frmPerustiedot", "cmbPaikkakunta")
                                        .at(static_cast<std::size_t>(tiedot.LammTarveLukuPaikkakuntaID()));
  TaytaKulutukset(rivi, tiedot.ToteutuneetKulutukset);
}

void AsetaKayttoaika(const Rivi& rivi, clsTila& tila) {
  tila.TilanKayttoaikaID = kMuuKayttoaika;
  tila.TilanKayttoaikaStr = Valintalista("frmTila", "cmbTilanKayttoaika").at(kMuuKayttoaika);
  tila.TilanKayttoaikaHpA = Luku(rivi, "KayttoaikaHpA");
}

void TeeMalliauditointi(const Rivi& rivi, const std::filesystem::path& kansio) {
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  TaytaPerustiedot(rivi, rakennus.Perustiedot);
  rakennus.Perustiedot.OtaKayttoon(0);
  for (clsTila& tila : rakennus.Tilat) AsetaKayttoaika(rivi, tila);
  const auto tiedosto = kansio / (rivi.at("Tunnus") + " " + rivi.at("Nimi") + ".lvt");
  if (!rakennus.Tallenna(tiedosto.string())) throw std::runtime_error("tallennus epäonnistui: " + tiedosto.string());
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 3) throw std::runtime_error("käyttö: lumivirta-malliauditoinnit TAULUKKO.csv KANSIO");
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  AlustaTekstit();
  Asetukset().HaeRekisteristä();
  std::filesystem::create_directories(argv[2]);
  for (const Rivi& rivi : LueTaulukko(argv[1])) TeeMalliauditointi(rivi, argv[2]);
  for (const Viesti& viesti : viestit.Naytetyt()) std::cerr << viesti.teksti << '\n';
  return viestit.Naytetyt().empty() ? 0 : 1;
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-malliauditoinnit: " << SyynKuvaus(virhe) << '\n';
  return 1;
}
